#pragma once
#include "platform/erreur.h"

#include <functional>
#include <string>

struct Gestion_Fichiers;

// The guard flag while it lives. Guards nest: each puts back what it found.
class Garde {
public:
    Garde();
    ~Garde();
    Garde(const Garde &)             = delete;
    Garde & operator=(const Garde &) = delete;

private:
    bool avant_;
};

// The trap of the pane handlers: takes the label, runs the body and has a run-time error reported. `remise`
// puts the window in order after a failure, before the report shows.
void Pieger(const std::wstring & commande, const std::function<void()> & corps,
            const std::function<void()> & remise = {});

// The gate and trap of the commands: nothing happens while another one is in progress. While the body runs
// the guard flag is up, the pointer is the hourglass and input reaches the stop button alone. Every way out
// ends with Retablir_fenetre, or Retablir_apres_echec for an error, which is reported after it.
void Garder(const std::wstring & commande, const std::function<void(Gestion_Fichiers &)> & corps);
