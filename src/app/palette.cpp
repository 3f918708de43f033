#include "app/palette.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {
constexpr std::array<std::uint32_t, 16> palette{0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                                                0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                                                0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
constexpr int                           noir        = 0;
constexpr int                           gris_clair  = 7;
constexpr int                           gris_fonce  = 8;
constexpr int                           blanc       = 15;
constexpr int                           vers_le_vif = 8;  // from a colour to its bright variant

// Light that one of the three components gives, 0 to 1.
double Lumiere(std::uint32_t couleur, unsigned decalage) {
    const double part = static_cast<double>((couleur >> decalage) & 0xFFU) / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(std::uint32_t couleur) {
    return 0.2126 * Lumiere(couleur, 0) + 0.7152 * Lumiere(couleur, 8) + 0.0722 * Lumiere(couleur, 16);
}

std::uint32_t Encre_lisible(std::uint32_t fond) {
    const std::uint32_t claire  = Couleur_palette(blanc);
    const std::uint32_t sombre  = Couleur_palette(noir);
    const bool          plus_vu = Contraste(claire, fond) >= Contraste(sombre, fond);
    return plus_vu ? claire : sombre;
}
}  // namespace

std::uint32_t Couleur_palette(int index) { return palette.at(static_cast<std::size_t>(index)); }

int Couleur_permise(double valeur) {
    return valeur >= 0 && valeur <= derniere_couleur ? static_cast<int>(valeur) : 0;
}

Couleurs_cadre Couleurs_du_cadre(int couleur) {
    const int           permise = Couleur_permise(couleur);
    const std::uint32_t fond    = Couleur_palette(permise == 0 ? gris_fonce : permise);
    const std::uint32_t ligne   = Couleur_palette(permise == 0 ? gris_clair : permise + vers_le_vif);
    return {fond, ligne, Encre_lisible(fond)};
}

double Contraste(std::uint32_t a, std::uint32_t b) {
    const auto [sombre, claire] = std::minmax({Luminance(a), Luminance(b)});
    return (claire + 0.05) / (sombre + 0.05);
}
