#pragma once
#include <cstddef>

// Where lines of text go on a printed sheet. Lengths are in the printer's dots.

// What a printer says of its sheet.
struct Feuille {
    int largeur            = 0;  // of the paper
    int hauteur            = 0;
    int gauche             = 0;  // what cannot be printed on that side
    int haut               = 0;
    int largeur_imprimable = 0;
    int hauteur_imprimable = 0;
    int points_x           = 0;  // per inch
    int points_y           = 0;
};

struct Mise_en_page {
    int         gauche     = 0;  // of the text, from the origin of what can be printed
    int         haut       = 0;
    int         largeur    = 0;  // between the margins
    int         hauteur    = 0;
    int         interligne = 0;
    int         corps      = 0;  // em of the ordinary font
    double      aspect     = 1;  // dots that a height takes for one of the same width
    std::size_t lignes     = 0;  // on a page, at least one
    std::size_t colonnes   = 0;  // in the ordinary font, at least 80
};

// Margins of 15 mm, narrower on a small sheet, and 10 points with six lines to the inch where 80 columns fit. A sheet without
// size is taken for one of a single dot.
Mise_en_page Mettre_en_page(const Feuille & feuille);

// Beyond so many columns nothing is printed: 160 characters are no longer, were they tabs alone.
inline constexpr std::size_t colonnes_maximales = 1280;

// How many columns a page is set in whose longest line has that length: its lines stay aligned.
std::size_t Colonnes_pour(const Mise_en_page & page, std::size_t longueur);
// The em of a fixed-pitch font of so many columns. Its shape stays: some printers do not draw a font narrower than it is.
int Corps_pour(const Mise_en_page & page, std::size_t colonnes);
