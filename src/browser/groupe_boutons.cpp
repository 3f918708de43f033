#include "browser/groupe_boutons.h"

#include <algorithm>
#include <ranges>
#include <unordered_set>

namespace {
// Where the group after these captions begins.
std::size_t Debut_suivant(const std::vector<std::wstring> & noms, const std::vector<std::wstring> & montres) {
    for (const std::wstring & montre : std::views::reverse(montres)) {
        const auto trouve = std::find(noms.begin(), noms.end(), montre);
        if (trouve != noms.end()) return static_cast<std::size_t>(trouve - noms.begin()) + 1;
    }
    return 0;
}
}  // namespace

std::wstring Nom_bouton(std::wstring_view caption) {
    std::wstring nom;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == L'&' && ++i == caption.size()) break;
        nom += caption[i];
    }
    return nom;
}

std::vector<std::wstring> Noms_distincts(const std::vector<std::wstring> & noms) {
    std::vector<std::wstring>             distincts;
    std::unordered_set<std::wstring_view> connus;
    for (const std::wstring & nom : noms) {
        if (connus.insert(nom).second) distincts.push_back(nom);
    }
    return distincts;
}

std::vector<std::wstring> Groupe_suivant(const std::vector<std::wstring> & noms,
                                         const std::vector<std::wstring> & montres, std::size_t places) {
    std::vector<std::wstring> groupe;
    const std::size_t         debut = Debut_suivant(noms, montres);
    for (std::size_t i = 0; i < std::min(places, noms.size()); ++i)
        groupe.push_back(noms[(debut + i) % noms.size()]);
    return groupe;
}
