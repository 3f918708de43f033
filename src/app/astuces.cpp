#include "app/astuces.h"

#include "app/fenetres.h"
#include "forms/gestion_fichiers.h"
#include "toolkit/ecran.h"

#include <algorithm>
#include <array>

namespace {
constexpr int     marge_texte   = 90;        // twips on each side of the text
constexpr Couleur fond          = 0xE1FFFF;  // pale yellow: it must stand out from the lists
constexpr Couleur encre         = 0x000000;
constexpr int     sous_pointeur = 330;  // twips below the pointer's tip, clear of its picture

std::array<Liste *, 5> Listes(Gestion_Fichiers & f) {
    return {&f.Répertoire_srce, &f.Fichier_srce, &f.Fichier_sél, &f.Répertoire_dest, &f.Fichier_dest};
}

void Montrer(Gestion_Fichiers & f, const Liste & liste, const std::wstring & texte) {
    const int droite  = f.Cadre_dest.Left() + f.Cadre_dest.Width();
    const int largeur = std::min(static_cast<int>(f.Largeur_texte(texte)) + 2 * marge_texte, droite);
    const int gauche  = std::clamp(liste.Left(), 0, std::max(0, droite - largeur));
    f.Tip.Caption(L" " + texte);
    f.Tip.Placer(gauche, Pointeur(f).y + sous_pointeur, largeur, f.Tip.Height());
    f.Tip.Visible(true);
}
}  // namespace

void Suivre_pointeur(Controle * controle) {
    Gestion_Fichiers & f      = Principale();
    const auto         listes = Listes(f);
    const auto         liste  = std::find(listes.begin(), listes.end(), controle);
    bool               coupee = false;
    const int          entree = liste == listes.end() ? -1 : (*liste)->Entree_survolee(coupee);
    if (entree < 0 || !coupee) return f.Tip.Visible(false);
    // Rows, not directories: the name as it stands on the row.
    Montrer(f, **liste, (*liste)->Liste::List(entree));
}

void Brancher_astuces(Gestion_Fichiers & f) {
    f.Tip.BackColor(fond);
    f.Tip.ForeColor(encre);
    for (Liste * liste : Listes(f)) {
        liste->Scroll = [&f] { f.Tip.Visible(false); };
    }
}
