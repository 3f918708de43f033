#pragma once
#include <cstdint>

// The 16 colours of the classic console, and what the frames take from them. Colours are 0x00BBGGRR.

// The colour of that index, 0 (black) to 15 (white).
std::uint32_t Couleur_palette(int index);

// The setting of the frames' colour runs from 0 to this: above it there is no bright variant of the same hue.
inline constexpr int derniere_couleur = 7;

// That setting, as one rule for the start and the options: 0, the neutral one, stands for what is out of range.
int Couleur_permise(double valeur);

struct Couleurs_cadre {
    std::uint32_t fond;
    std::uint32_t ligne;  // the bright variant
    std::uint32_t encre;  // of a text on that background: black or white, whichever contrasts more

    bool operator==(const Couleurs_cadre &) const = default;
};

// Of a setting; one that is not permitted gives the neutral grey.
Couleurs_cadre Couleurs_du_cadre(int couleur);

// Ratio of the luminances of two colours, 1 to 21.
double Contraste(std::uint32_t a, std::uint32_t b);
