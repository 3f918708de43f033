#include "search/modeles.h"

#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"

#include <algorithm>

namespace {

wchar_t plier(wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c; }

// The same rule, written as its definition reads.
bool conforme(std::wstring_view texte, std::wstring_view modele) {
    if (modele.empty()) return texte.empty();
    if (modele.front() == L'*')
        return conforme(texte, modele.substr(1)) || (!texte.empty() && conforme(texte.substr(1), modele));
    return !texte.empty() && (modele.front() == L'?' || modele.front() == texte.front()) &&
           conforme(texte.substr(1), modele.substr(1));
}

}  // namespace

// A typed pattern and a name: whatever they hold, what is true of every pattern stays true.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    const auto [saisi, nom] = En_deux(Texte_libre(donnees, taille));
    if (saisi.empty()) return 0;  // the field is not looked at
    const std::wstring complet = Completer_modele(saisi);
    Exiger(complet.find(L'.') != complet.npos && complet.front() != L'.');
    Exiger(Completer_modele(complet) == complet);
    const std::size_t debut = saisi.find_first_not_of(L' ');
    if (debut == saisi.npos)
        Exiger(complet == L"*.*");
    else
        Exiger(complet.find(saisi.substr(debut, saisi.find_last_not_of(L' ') + 1 - debut)) != complet.npos);

    // A pattern that is accepted holds more than wildcards, and nothing that the matching takes for its own signs.
    if (Modele_correct(complet)) {
        Exiger(complet == L"*." || complet.find_first_not_of(L"*.") != complet.npos);
        Exiger(complet.find_first_of(L"<>\"\\/:|") == complet.npos);
        const Motifs motifs = Motifs::Un_seul(complet, plier);
        Exiger(!motifs.Tout());
    }

    // The plain rule takes time that doubles with each "*".
    const auto etoiles = std::count(complet.begin(), complet.end(), L'*');
    if (etoiles <= 4 && nom.size() <= 64) Exiger(Texte_conforme(nom, complet) == conforme(nom, complet));
    // Every text answers to itself, and leaving out does not look at case.
    Exiger(Texte_conforme(complet, complet));
    std::wstring capitales = nom;
    std::transform(capitales.begin(), capitales.end(), capitales.begin(), plier);
    const Exclusion exclusion(complet, plier);
    Exiger(exclusion.Exclut(nom) == exclusion.Exclut(capitales));
    Exiger(!Exclusion(L"", plier).Exclut(nom));
    return 0;
}
