#pragma once
#include "texte/rangees.h"
#include "visionneuse/decodage.h"

// A file of any kind as rows of 16 bytes: their position, their values in hexadecimal, their characters in the code page.
class Rangees_hexa : public Contenu_rangees {
public:
    static constexpr std::uint64_t octets_par_rangee = 16;

    // The page must outlive it.
    Rangees_hexa(Octets & octets, const Page_ansi & page) : octets_(octets), page_(page) {}

    std::uint64_t Debut() const override { return 0; }
    std::uint64_t Longueur() const override { return octets_.Longueur(); }
    Rangee        Lire(std::uint64_t position) override;

private:
    wchar_t Caractere_de(int octet) const;

    Octets &          octets_;
    const Page_ansi & page_;
};

// Bytes as pairs of digits, 16 a line.
std::wstring Octets_en_texte(Octets & octets, std::uint64_t debut, std::uint64_t fin);
