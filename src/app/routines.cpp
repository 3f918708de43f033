#include "app/routines.h"

#include "app/fenetres.h"
#include "app/globals.h"
#include "app/palette.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/textes.h"
#include "platform/unites.h"
#include "toolkit/application.h"

#include <cmath>

void Afficher_espace_libre() {
    Gestion_Fichiers &  f      = Principale();
    const std::uint64_t libres = Octets_libres(f.Unité_dest.Drive().substr(0, 2) + L"\\");
    variables.Espace_libre_ko  = static_cast<double>(libres) / 1000.0;
    const auto arrondi         = static_cast<std::uint64_t>(std::llround(variables.Espace_libre_ko));
    f.Espace_libre.Caption(Format_milliers(arrondi) + L" Ko libres ");
    Application::Laisser_passer(true);
}

void Raccourcir_chemin(const Fenetre & fenetre, double largeur) {
    const auto mesure = [&](std::wstring_view texte) { return fenetre.Largeur_texte(texte); };
    variables.Texte_chemin =
        Raccourcir(variables.Texte_chemin, largeur, mesure, Principale().Unité_srce.Drive().substr(0, 2));
}

void Appliquer_couleur(int couleur) {
    Gestion_Fichiers &   f        = Principale();
    const Couleurs_cadre couleurs = Couleurs_du_cadre(couleur);
    for (Cadre * cadre : {&f.Cadre_srce, &f.Cadre_dest}) {
        cadre->BackColor(couleurs.fond);
        cadre->BorderColor(couleurs.ligne);
    }
    for (Etiquette * etiquette : {&f.Titre_srce, &f.Titre_dest, &f.En_cours, &f.Espace_libre}) {
        etiquette->BackColor(couleurs.fond);
        etiquette->ForeColor(couleurs.encre);
    }
    for (Ligne * separation : {&f.Ligne1, &f.Ligne2, &f.Ligne3}) separation->BackColor(couleurs.ligne);
    for (Ligne & bord : f.Ligne_jauge) bord.BackColor(couleurs.fond);
}

bool Est_disquette(const std::wstring & unite) { return unite == L"a:" || unite == L"b:"; }
