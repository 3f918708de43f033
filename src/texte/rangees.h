#pragma once
#include <cstdint>
#include <string>
#include <vector>

// Text shown as rows of equal columns that are found by their byte position, so that the end of a file of any length is as near as
// its beginning.

// Stands in the second column of a character two columns wide.
inline constexpr wchar_t suite_de_caractere = L'\xFFFF';
// In `octets`: a column that shows no byte.
inline constexpr std::uint32_t hors_octets = 0xFFFFFFFF;

struct Rangee {
    std::uint64_t debut = 0;  // position of its first byte
    std::uint64_t suite = 0;  // position of the row after it
    std::wstring  texte;      // one element a column, nothing that moves a pen
    // For each column the byte shown there, counted from `debut`; one element more, for the end of what is shown.
    std::vector<std::uint32_t> octets{0};
};

class Contenu_rangees {
public:
    virtual ~Contenu_rangees() = default;

    virtual std::uint64_t Debut() const    = 0;  // position of the first row
    virtual std::uint64_t Longueur() const = 0;  // position after the last one
    // The row that shows the byte at `position`, which is at least Debut() and less than Longueur(). Errors of reading.
    virtual Rangee Lire(std::uint64_t position) = 0;
};
