#include "visionneuse/arguments.h"

#include <algorithm>

namespace {
constexpr std::wstring_view blancs     = L" \t\r\n";
constexpr wchar_t           separateur = L'\0';  // which no command line can hold

bool Est_vide(std::wstring_view texte) { return texte.find_first_not_of(blancs) == texte.npos; }
}  // namespace

Arguments Lire_arguments(std::wstring_view ligne) {
    Arguments    lus;
    std::wstring mot;
    bool         premier = true, entre_guillemets = false, quelconque = false;
    const auto   finir = [&](bool cite) {
        if (premier && !cite && mot == L"ovl")
            lus.rejoindre = true;
        else if (!Est_vide(mot))
            lus.fichiers.push_back(mot);
        premier = false;
        mot.clear();
    };
    bool cite = false;
    for (const wchar_t c : ligne) {
        const bool blanc = blancs.find(c) != blancs.npos && !entre_guillemets;
        if (blanc && quelconque) finir(cite);
        if (blanc)
            quelconque = cite = false;
        else if (c == L'"')
            entre_guillemets = !entre_guillemets, quelconque = cite = true;
        else
            mot += c, quelconque = true;
    }
    if (quelconque) finir(cite);
    return lus;
}

std::wstring Emballer(const std::vector<std::wstring> & fichiers) {
    std::wstring texte;
    for (const std::wstring & fichier : fichiers) {
        if (!texte.empty()) texte += separateur;
        texte += fichier;
    }
    return texte;
}

std::vector<std::wstring> Deballer(std::wstring_view texte) {
    std::vector<std::wstring> fichiers;
    while (!texte.empty()) {
        const std::size_t fin = std::min(texte.find(separateur), texte.size());
        if (!Est_vide(texte.substr(0, fin))) fichiers.emplace_back(texte.substr(0, fin));
        texte.remove_prefix(std::min(fin + 1, texte.size()));
    }
    return fichiers;
}
