#pragma once
#include "toolkit/fenetre.h"

#include <memory>

struct Apropos;
struct Dialogue;
struct Gestion_Fichiers;

// The windows of the program, which live from the start to the end of the event loop.
struct Fenetres_programme {
    Apropos *          apropos    = nullptr;
    Gestion_Fichiers * principale = nullptr;
    Dialogue *         dialogue   = nullptr;
    // Made when they are first opened.
    std::unique_ptr<Fenetre> corbeille;
    std::unique_ptr<Fenetre> infos;
    std::unique_ptr<Fenetre> cde_chercher;
    std::unique_ptr<Fenetre> cherche_fichier;
    std::unique_ptr<Fenetre> options;
    std::unique_ptr<Fenetre> config_korvane;

    void Fermer_filles() {
        corbeille.reset();
        infos.reset();
        cde_chercher.reset();
        cherche_fichier.reset();
        options.reset();
        config_korvane.reset();
    }
};

inline Fenetres_programme fenetres;

inline Gestion_Fichiers & Principale() { return *fenetres.principale; }
