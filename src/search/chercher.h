#pragma once
#include "platform/parcours.h"

#include <vector>

struct Gestion_Fichiers;

// What the SOURCE pane does for a search.
struct Volet_resultats {
    void (*quitter)();  // back to its files, nothing selected
    void (*montrer)(Gestion_Fichiers & f, std::vector<Fichier_trouve> trouves);
};

// The main window's search command: asks for the patterns, shows the results, hands the chosen ones to the pane.
void Brancher_chercher(Gestion_Fichiers & f, const Volet_resultats & volet);
