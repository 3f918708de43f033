#include "visionneuse/rangees_hexa.h"

#include <string_view>

namespace {
constexpr std::wstring_view chiffres = L"0123456789ABCDEF";

// Eight digits at least, more from 4 GB on.
std::wstring Position_hexa(std::uint64_t position, std::uint64_t longueur) {
    unsigned nombre = 8;
    while (nombre < 16 && longueur >> (4 * nombre) != 0) ++nombre;
    std::wstring texte;
    for (unsigned i = nombre; i-- > 0;) texte += chiffres[position >> (4 * i) & 0xF];
    return texte;
}

void Ajouter_paire(std::wstring & texte, int octet) {
    texte += chiffres[static_cast<std::size_t>(octet >> 4)];
    texte += chiffres[static_cast<std::size_t>(octet & 0xF)];
}
}  // namespace

wchar_t Rangees_hexa::Caractere_de(int octet) const {
    const auto rang = static_cast<std::size_t>(octet);
    if (octet < 0x20 || octet == 0x7F || page_.tetes[rang]) return L'.';
    const wchar_t code       = page_.seuls[rang];
    const bool    imprimable = code >= 0xA0 || (octet < 0x7F && code >= 0x20);
    return imprimable && code != 0xAD && code != 0xFFFD ? code : L'.';
}

Rangee Rangees_hexa::Lire(std::uint64_t position) {
    Rangee rangee;
    rangee.debut = position / octets_par_rangee * octets_par_rangee;
    rangee.suite = rangee.debut + octets_par_rangee;
    rangee.texte = Position_hexa(rangee.debut, octets_.Longueur()) + L"  ";
    rangee.octets.assign(rangee.texte.size(), hors_octets);
    std::wstring caracteres;
    for (std::uint32_t i = 0; i < octets_par_rangee; ++i) {
        const int octet = octets_.Octet(rangee.debut + i);
        if (octet >= 0) {
            Ajouter_paire(rangee.texte, octet);
            caracteres += Caractere_de(octet);
        } else {
            rangee.texte += L"  ";
        }
        rangee.texte += i == 7 ? L"  " : L" ";
        rangee.octets.resize(rangee.texte.size(), octet >= 0 ? i : hors_octets);
    }
    rangee.texte += L' ';
    rangee.octets.push_back(hors_octets);
    rangee.texte += caracteres;
    for (std::uint32_t i = 0; i < caracteres.size(); ++i) rangee.octets.push_back(i);
    rangee.octets.push_back(static_cast<std::uint32_t>(caracteres.size()));
    return rangee;
}

std::wstring Octets_en_texte(Octets & octets, std::uint64_t debut, std::uint64_t fin) {
    std::wstring texte;
    for (std::uint64_t p = debut; p < fin; ++p) {
        const int octet = octets.Octet(p);
        if (octet < 0) break;
        if (p != debut) texte += (p - debut) % Rangees_hexa::octets_par_rangee == 0 ? L"\r\n" : L" ";
        Ajouter_paire(texte, octet);
    }
    return texte;
}
