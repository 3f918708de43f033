#include "app/astuces.h"

#include "app/fenetres.h"
#include "forms/gestion_fichiers.h"
#include "toolkit/ecran.h"

#include <algorithm>
#include <array>

namespace {
constexpr int     marge_texte   = 90;        // twips on each side of the text
constexpr int     marge_ligne   = 30;        // twips below the last line
constexpr Couleur fond          = 0xE1FFFF;  // pale yellow: it must stand out from the lists
constexpr Couleur encre         = 0x000000;
constexpr int     sous_pointeur = 330;  // twips below the pointer's tip, clear of its picture

std::array<Liste *, 5> Listes(Gestion_Fichiers & f) {
    return {&f.Répertoire_srce, &f.Fichier_srce, &f.Fichier_sél, &f.Répertoire_dest, &f.Fichier_dest};
}

void Peindre(Etiquette & tip) {
    tip.BackColor(fond);
    tip.ForeColor(encre);
}

// As wide as the text, no further right than `droite` twips.
void Montrer(Etiquette & tip, const Liste & liste, int entree, int droite) {
    // Rows, not directories: the name as it stands on the row.
    const std::wstring texte   = liste.Liste::List(entree);
    const Fenetre &    fenetre = tip.Parent();
    const int largeur = std::min(static_cast<int>(fenetre.Largeur_texte(texte)) + 2 * marge_texte, droite);
    const int gauche  = std::clamp(liste.Left(), 0, std::max(0, droite - largeur));
    tip.Caption(L" " + texte);
    tip.Placer(gauche, Pointeur(fenetre).y + sous_pointeur, largeur, tip.Height());
    tip.Visible(true);
}
}  // namespace

void Suivre_pointeur(Controle * controle) {
    Gestion_Fichiers & f      = Principale();
    const auto         listes = Listes(f);
    const auto         liste  = std::find(listes.begin(), listes.end(), controle);
    bool               coupee = false;
    const int          entree = liste == listes.end() ? -1 : (*liste)->Entree_survolee(coupee);
    if (entree < 0 || !coupee) return f.Tip.Visible(false);
    Montrer(f.Tip, **liste, entree, f.Cadre_dest.Left() + f.Cadre_dest.Width());
}

void Brancher_astuces(Gestion_Fichiers & f) {
    Peindre(f.Tip);
    for (Liste * liste : Listes(f)) {
        liste->Scroll = [&f] { f.Tip.Visible(false); };
    }
}

void Suivre_pointeur(const Controle * controle, const Liste & liste, Etiquette & tip) {
    bool      coupee = false;
    const int entree = controle == &liste ? liste.Entree_survolee(coupee) : -1;
    if (entree < 0 || !coupee) return tip.Visible(false);
    // The list takes the width of its window: what is longer goes on in a next line.
    const std::wstring texte   = liste.List(entree);
    const auto         hauteur = static_cast<int>(tip.Parent().Hauteur_texte(texte, liste.Width()));
    tip.Caption(texte);
    tip.Placer(liste.Left(), Pointeur(tip.Parent()).y + sous_pointeur, liste.Width(), hauteur + marge_ligne);
    tip.Visible(true);
}

void Preparer_astuce(Liste & liste, Etiquette & tip) {
    Peindre(tip);
    tip.Visible(false);
    liste.Scroll = [&tip] { tip.Visible(false); };
}
