#include "app/fenetre_fille.h"

#include "app/aide.h"
#include "app/fenetres.h"
#include "app/globals.h"
#include "forms/gestion_fichiers.h"
#include "toolkit/ecran.h"

#include <algorithm>

void Brancher_fille(Fenetre & fille, const wchar_t * aide_fenetre) {
    fille.KeyDown   = [](int & touche, int) { Form_KeyDown(touche); };
    fille.MouseMove = [aide_fenetre](Controle * controle) { Expliquer(controle, aide_fenetre); };
}

void Placer_fille(Fenetre & fille, int droite, int bas) {
    const Gestion_Fichiers & f = Principale();
    const int a_gauche = std::max(0, std::min(f.Left() + droite, Largeur_ecran() - fille.Width()));
    const int en_haut  = std::max(0, std::min(f.Top() + bas, Hauteur_ecran() - fille.Height()));
    fille.Move(a_gauche, en_haut);
}

void Fermer_fille(Fenetre & fille) {
    fille.Hide();
    if (variables.Aide_active) Rappel_aide();
}
