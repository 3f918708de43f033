#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

// Text for the functions under test from the bytes of the fuzzer: one character a byte, but 0xFE and 0xFF, which with the
// byte that follows give characters outside the code page.
inline std::wstring Texte_libre(const std::uint8_t * donnees, std::size_t taille) {
    std::wstring texte;
    for (std::size_t i = 0; i < taille; ++i) {
        const bool large = donnees[i] >= 0xFE && i + 1 < taille;
        texte += large ? static_cast<wchar_t>(0x3000 + donnees[++i]) : static_cast<wchar_t>(donnees[i]);
    }
    return texte;
}

// Both sides of the first line end; the second is empty without one.
inline std::pair<std::wstring, std::wstring> En_deux(const std::wstring & texte) {
    const std::size_t fin = texte.find(L'\n');
    if (fin == texte.npos) return {texte, {}};
    return {texte.substr(0, fin), texte.substr(fin + 1)};
}
