#pragma once

class Fenetre;

// The main screen and the mouse pointer, in twips.
struct Point_twips {
    int x;
    int y;
};

int         Largeur_ecran();
int         Hauteur_ecran();
Point_twips Pointeur(const Fenetre & fenetre);  // of the window's client area
