#include "platform/chemins.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::wstring_view points_de_suite = L"\\ . . .\\";

bool meme_ascii(std::wstring_view a, std::wstring_view capitales) {
    return std::equal(a.begin(), a.end(), capitales.begin(), capitales.end(), [](wchar_t x, wchar_t y) {
        return (x >= L'a' && x <= L'z' ? x - L'a' + L'A' : x) == y;
    });
}

// The system takes 1, 2 and 3 in superscript for the digits.
bool numero_de_port(wchar_t c) {
    return (c >= L'1' && c <= L'9') || c == L'\u00B9' || c == L'\u00B2' || c == L'\u00B3';
}

// A device keeps its meaning whatever follows its first point, and with blanks before that point.
bool nom_de_peripherique(std::wstring_view nom) {
    static constexpr std::array<std::wstring_view, 6> seuls{L"CON", L"PRN",    L"AUX",
                                                            L"NUL", L"CONIN$", L"CONOUT$"};
    nom = nom.substr(0, nom.find(L'.'));
    nom = nom.substr(0, nom.find_last_not_of(L' ') + 1);
    if (std::any_of(seuls.begin(), seuls.end(), [&](std::wstring_view p) { return meme_ascii(nom, p); }))
        return true;
    if (nom.size() != 4 || !numero_de_port(nom[3])) return false;
    return meme_ascii(nom.substr(0, 3), L"COM") || meme_ascii(nom.substr(0, 3), L"LPT");
}

bool caractere_interdit(wchar_t c) {
    return c < L' ' || c == L'\x7F' || std::wstring_view(L"\\/:*?\"<>|").find(c) != std::wstring_view::npos;
}

}  // namespace

std::wstring Joindre(std::wstring_view repertoire, std::wstring_view nom) {
    std::wstring chemin(repertoire);
    if (!chemin.empty() && chemin.back() != L'\\') chemin += L'\\';
    return chemin.append(nom);
}

std::wstring_view Nom_du_chemin(std::wstring_view chemin) {
    return chemin.substr(chemin.rfind(L'\\') + 1);  // npos + 1 is 0
}

std::wstring_view Repertoire_du_chemin(std::wstring_view chemin) {
    const std::size_t barre = chemin.rfind(L'\\');
    if (barre == chemin.npos) return {};
    const bool racine = barre == 0 || chemin[barre - 1] == L':';
    return chemin.substr(0, racine ? barre + 1 : barre);
}

std::wstring_view Extension_du_nom(std::wstring_view nom) {
    nom                     = Nom_du_chemin(nom);
    const std::size_t point = nom.rfind(L'.');
    return point == nom.npos ? std::wstring_view() : nom.substr(point + 1);
}

std::wstring Sans_barre_finale(std::wstring_view repertoire) {
    while (repertoire.size() > 1 && repertoire.back() == L'\\' && repertoire[repertoire.size() - 2] != L':') {
        repertoire.remove_suffix(1);
    }
    return std::wstring(repertoire);
}

bool Nom_simple(std::wstring_view nom) {
    if (nom.empty() || nom.back() == L' ' || nom.back() == L'.') return false;
    return std::none_of(nom.begin(), nom.end(), caractere_interdit) && !nom_de_peripherique(nom);
}

std::wstring Raccourcir(std::wstring_view chemin, double largeur,
                        const std::function<double(std::wstring_view)> & mesure, std::wstring_view unite) {
    if (mesure(chemin) <= largeur) return std::wstring(chemin);

    // Room is made for the widest drive letter, so that paths of all drives are cut alike.
    const double      place = largeur - mesure(std::wstring(L"W:").append(points_de_suite));
    std::wstring_view reste = chemin;
    for (std::size_t barre = reste.find(L'\\'); barre != reste.npos; barre = reste.find(L'\\')) {
        reste.remove_prefix(barre + 1);
        if (mesure(reste) <= place) break;
    }

    const bool   lettre = chemin.size() >= 2 && chemin[1] == L':';
    std::wstring court(lettre ? chemin.substr(0, 2) : unite.substr(0, 2));
    return court.append(points_de_suite).append(reste);
}
