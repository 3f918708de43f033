#include "app/routines.h"

#include "app/fenetres.h"
#include "app/globals.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/textes.h"
#include "platform/unites.h"
#include "toolkit/application.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {
// The palette of the classic console, 0x00BBGGRR.
constexpr std::array<Couleur, 16> palette{0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                                          0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                                          0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
constexpr int                     gris_fonce = 8;
constexpr int                     gris_clair = 7;

// Light that one of the three components gives, 0 to 1.
double Lumiere(Couleur couleur, unsigned decalage) {
    const double part = static_cast<double>((couleur >> decalage) & 0xFFU) / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(Couleur couleur) {
    return 0.2126 * Lumiere(couleur, 0) + 0.7152 * Lumiere(couleur, 8) + 0.0722 * Lumiere(couleur, 16);
}

// Black or white, whichever contrasts more.
Couleur Encre_lisible(Couleur fond) {
    const double luminance    = Luminance(fond);
    const double contre_blanc = 1.05 / (luminance + 0.05);
    const double contre_noir  = (luminance + 0.05) / 0.05;
    return contre_blanc >= contre_noir ? palette[15] : palette[0];
}
}  // namespace

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

void Appliquer_couleur(int index) {
    Gestion_Fichiers & f       = Principale();
    const int          dernier = static_cast<int>(palette.size()) - 1;
    const bool         neutre  = index <= 0 || index > dernier;
    const int          rang    = neutre ? gris_fonce : index;
    const int          vif     = neutre ? gris_clair : std::min(index + 8, dernier);
    const Couleur      fond    = palette[static_cast<std::size_t>(rang)];
    const Couleur      ligne   = palette[static_cast<std::size_t>(vif)];
    for (Cadre * cadre : {&f.Cadre_srce, &f.Cadre_dest}) {
        cadre->BackColor(fond);
        cadre->BorderColor(ligne);
    }
    for (Etiquette * etiquette : {&f.Titre_srce, &f.Titre_dest, &f.En_cours, &f.Espace_libre}) {
        etiquette->BackColor(fond);
        etiquette->ForeColor(Encre_lisible(fond));
    }
    for (Ligne * separation : {&f.Ligne1, &f.Ligne2, &f.Ligne3}) separation->BackColor(ligne);
    for (Ligne & bord : f.Ligne_jauge) bord.BackColor(fond);
}

bool Est_disquette(const std::wstring & unite) { return unite == L"a:" || unite == L"b:"; }
