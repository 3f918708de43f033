#include "platform/utf8.h"

#include <cstddef>
#include <cstdint>

namespace {

bool Moitie_haute(std::uint32_t c) { return c >= 0xD800 && c < 0xDC00; }
bool Moitie_basse(std::uint32_t c) { return c >= 0xDC00 && c < 0xE000; }

std::uint32_t Unite(std::wstring_view texte, std::size_t i) { return static_cast<std::uint32_t>(texte[i]); }

// The character at i, which then stands after it.
std::uint32_t Prendre(std::wstring_view texte, std::size_t & i) {
    const std::uint32_t premiere = Unite(texte, i++);
    if (!Moitie_haute(premiere) || i == texte.size() || !Moitie_basse(Unite(texte, i))) return premiere;
    return 0x10000 + ((premiere - 0xD800) << 10) + (Unite(texte, i++) - 0xDC00);
}

void Ajouter_octets(std::string & octets, std::uint32_t c) {
    const auto suite = [&](unsigned decalage) { octets += static_cast<char>(0x80 | (c >> decalage & 0x3F)); };
    if (c < 0x80) {
        octets += static_cast<char>(c);
    } else if (c < 0x800) {
        octets += static_cast<char>(0xC0 | c >> 6);
        suite(0);
    } else if (c < 0x10000) {
        octets += static_cast<char>(0xE0 | c >> 12);
        suite(6);
        suite(0);
    } else {
        octets += static_cast<char>(0xF0 | (c >> 18 & 7));
        suite(12);
        suite(6);
        suite(0);
    }
}

void Ajouter_caractere(std::wstring & texte, std::uint32_t c) {
    if (c < 0x10000) {
        texte += static_cast<wchar_t>(c);
        return;
    }
    texte += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
    texte += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
}

// How a first byte announces its character.
struct Forme {
    std::size_t   suite;    // bytes that follow
    std::uint32_t debut;    // bits of the first byte
    std::uint32_t minimum;  // smaller ones have a shorter form
};

std::optional<Forme> Forme_de(std::uint32_t octet) {
    if (octet < 0x80) return Forme{0, octet, 0};
    if (octet >= 0xC2 && octet < 0xE0) return Forme{1, octet & 0x1F, 0x80};
    if (octet >= 0xE0 && octet < 0xF0) return Forme{2, octet & 0x0F, 0x800};
    if (octet >= 0xF0 && octet < 0xF5) return Forme{3, octet & 0x07, 0x10000};
    return std::nullopt;
}

}  // namespace

std::string En_utf8(std::wstring_view texte) {
    std::string octets;
    octets.reserve(texte.size());
    for (std::size_t i = 0; i < texte.size();) Ajouter_octets(octets, Prendre(texte, i));
    return octets;
}

std::optional<std::wstring> De_utf8(std::string_view octets) {
    std::wstring texte;
    texte.reserve(octets.size());
    const auto lire = [&](std::size_t i) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(octets[i]));
    };
    for (std::size_t i = 0; i < octets.size();) {
        const auto forme = Forme_de(lire(i));
        if (!forme || octets.size() - i <= forme->suite) return std::nullopt;
        std::uint32_t c = forme->debut;
        for (std::size_t k = 1; k <= forme->suite; ++k) {
            if ((lire(i + k) & 0xC0) != 0x80) return std::nullopt;
            c = c << 6 | (lire(i + k) & 0x3F);
        }
        if (c < forme->minimum || c > 0x10FFFF) return std::nullopt;
        Ajouter_caractere(texte, c);
        i += forme->suite + 1;
    }
    return texte;
}
