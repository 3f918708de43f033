#include "search/nom_repertoire.h"

#include <algorithm>

namespace {
constexpr std::wstring_view blancs = L" \t\r\n";

std::wstring_view sans_bords(std::wstring_view texte, std::wstring_view bords) {
    const std::size_t debut = texte.find_first_not_of(bords);
    if (debut == texte.npos) return {};
    return texte.substr(debut, texte.find_last_not_of(bords) - debut + 1);
}

bool fin_egale(std::wstring_view texte, std::wstring_view fin, Plier_lettre plier) {
    if (texte.size() < fin.size()) return false;
    return std::equal(fin.rbegin(), fin.rend(), texte.rbegin(),
                      [&](wchar_t a, wchar_t b) { return a == b || plier(a) == plier(b); });
}

// "COLOR" of "SYSTEM\COLOR".
std::wstring_view dernier_nom(std::wstring_view nom) { return nom.substr(nom.rfind(L'\\') + 1); }
}  // namespace

std::wstring Chemin_saisi(std::wstring_view saisie) {
    std::wstring_view texte = sans_bords(saisie, blancs);
    if (texte.size() >= 2 && texte.front() == L'"' && texte.back() == L'"') {
        texte = sans_bords(texte.substr(1, texte.size() - 2), blancs);
    }
    return std::wstring(texte);
}

std::wstring Nom_saisi(std::wstring_view saisie) {
    std::wstring texte = Chemin_saisi(saisie);
    std::replace(texte.begin(), texte.end(), L'/', L'\\');
    const std::wstring_view nom = sans_bords(texte, L"\\");
    const bool impossible = nom.find_first_of(L":*?\"<>|") != nom.npos || nom.find(L"\\\\") != nom.npos ||
                            std::any_of(nom.begin(), nom.end(), [](wchar_t c) { return c < L' '; });
    return impossible ? std::wstring() : std::wstring(nom);
}

std::optional<std::size_t> Prochain_repertoire(const Arbre & arbre, std::wstring_view nom, std::size_t debut,
                                               Plier_lettre plier) {
    if (nom.empty()) return std::nullopt;
    const std::wstring_view dernier   = dernier_nom(nom);
    const std::wstring      fin       = L"\\" + std::wstring(nom);
    const bool              plusieurs = dernier.size() != nom.size();
    // The root has no name.
    for (std::size_t i = std::max<std::size_t>(debut, 1); i < arbre.Nombre(); ++i) {
        const std::wstring_view candidat = arbre.Nom(i);
        if (candidat.size() != dernier.size() || !fin_egale(candidat, dernier, plier)) continue;
        if (!plusieurs || fin_egale(arbre.Chemin(i), fin, plier)) return i;
    }
    return std::nullopt;
}
