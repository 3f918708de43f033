#pragma once
#include <string>

class Fenetre;

// Shows the DESTINATION drive's free space, 0 for a drive that is not ready, and lets events run once.
void Afficher_espace_libre();

// Shortens Texte_chemin until it fits in `largeur` twips of that window's font; whole leading directories go.
void Raccourcir_chemin(const Fenetre & fenetre, double largeur);

// Colours the frames and lines of the main window: a setting of 0 to 7, the neutral grey for 0 and for any other.
void Appliquer_couleur(int couleur);

// True for "a:" and "b:", as the drive lists write them.
bool Est_disquette(const std::wstring & unite);
