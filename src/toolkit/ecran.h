#pragma once

class Fenetre;

// The screens and the mouse pointer, in twips.
struct Point_twips {
    int x;
    int y;
};

struct Rectangle_twips {
    int gauche;
    int haut;
    int droite;
    int bas;
};

int Largeur_ecran();
int Hauteur_ecran();
// What the task bar leaves of the screen where that window is, or of the nearest one.
Rectangle_twips Zone_de_travail(const Fenetre & fenetre);
// Moves a window there, or as near as keeps it whole on the screen where `autour` is: nobody can answer what does not show.
void        Placer_a_l_ecran(Fenetre & fenetre, int left, int top, const Fenetre & autour);
Point_twips Pointeur(const Fenetre & fenetre);  // of the window's client area
