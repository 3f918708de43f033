#include "texte/mise_en_page.h"

#include <algorithm>

namespace {
constexpr double      millimetres_par_pouce = 25.4;
constexpr double      marge_mm              = 15;
constexpr int         marges_par_cote       = 12;  // a margin takes no more than that part of the sheet
constexpr double      points_par_pouce      = 72;
constexpr double      taille_ordinaire      = 10;      // points
constexpr double      chasse                = 0.6002;  // width of a fixed-pitch character, in ems
constexpr double      interligne_em         = 1.2;
constexpr std::size_t colonnes_minimales    = 80;
constexpr std::size_t pas_colonnes          = 20;

// What is left of one side of the sheet between two margins, from the origin of what can be printed.
struct Cote {
    int debut   = 0;
    int etendue = 1;
};

Cote Marges(int papier, int debut, int imprimable, int points) {
    const int voulue =
        std::min(static_cast<int>(marge_mm / millimetres_par_pouce * points), papier / marges_par_cote);
    const int avant = std::max(voulue - debut, 0);
    const int apres = std::max(voulue - (papier - debut - imprimable), 0);
    return {avant, std::max(imprimable - avant - apres, 1)};
}
}  // namespace

Mise_en_page Mettre_en_page(const Feuille & feuille) {
    const Cote   x = Marges(feuille.largeur, feuille.gauche, feuille.largeur_imprimable, feuille.points_x);
    const Cote   y = Marges(feuille.hauteur, feuille.haut, feuille.hauteur_imprimable, feuille.points_y);
    Mise_en_page page;
    page.gauche  = x.debut;
    page.haut    = y.debut;
    page.largeur = x.etendue;
    page.hauteur = y.etendue;
    // Widths and heights have each their own dots.
    const double points_x = std::max(feuille.points_x, 1);
    const double points_y = std::max(feuille.points_y, 1);
    const double serre    = page.largeur / (chasse * colonnes_minimales * points_x);
    const double em       = std::min(taille_ordinaire / points_par_pouce, serre);  // inches
    page.aspect           = points_y / points_x;
    page.corps            = std::max(static_cast<int>(em * points_y), 1);
    page.interligne       = std::max(static_cast<int>(em * interligne_em * points_y), 1);
    page.lignes           = static_cast<std::size_t>(std::max(page.hauteur / page.interligne, 1));
    const double colonnes = page.largeur * page.aspect / (chasse * page.corps);
    page.colonnes         = std::max(static_cast<std::size_t>(colonnes), colonnes_minimales);
    return page;
}

std::size_t Colonnes_pour(const Mise_en_page & page, std::size_t longueur) {
    if (longueur <= page.colonnes) return page.colonnes;
    return std::min((longueur + pas_colonnes - 1) / pas_colonnes * pas_colonnes, colonnes_maximales);
}

int Corps_pour(const Mise_en_page & page, std::size_t colonnes) {
    const double em = page.largeur * page.aspect / (chasse * static_cast<double>(colonnes));
    return std::clamp(static_cast<int>(em), 1, page.corps);
}
