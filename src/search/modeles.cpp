#include "search/modeles.h"

#include <algorithm>

namespace {

constexpr std::wstring_view sans_extension = L"*.";

// The greedy walk: the last "*" takes one character more each time what follows it does not fit.
template <class Egal> bool conforme(std::wstring_view texte, std::wstring_view modele, const Egal & egal) {
    std::size_t t = 0, m = 0, etoile = modele.npos, reprise = 0;
    while (t < texte.size()) {
        if (m < modele.size() && modele[m] == L'*') {
            etoile  = m++;
            reprise = t;
        } else if (m < modele.size() && (modele[m] == L'?' || egal(texte[t], modele[m]))) {
            ++t, ++m;
        } else if (etoile != modele.npos) {
            m = etoile + 1;
            t = ++reprise;
        } else {
            return false;
        }
    }
    return modele.find_first_not_of(L'*', m) == modele.npos;
}

}  // namespace

std::wstring Completer_modele(std::wstring_view saisi) {
    const std::size_t       debut = std::min(saisi.find_first_not_of(L' '), saisi.size());
    const std::wstring_view texte = saisi.substr(debut, saisi.find_last_not_of(L' ') + 1 - debut);
    if (texte.empty()) return L"*.*";
    const std::size_t point = texte.find(L'.');
    if (point == texte.npos) return std::wstring(texte) + L".*";
    return (point == 0 ? L"*" : L"") + std::wstring(texte);
}

bool Modele_correct(std::wstring_view modele) {
    if (modele == sans_extension) return true;
    return modele.find_first_not_of(L"*. ") != modele.npos && Motifs::Valide(modele);
}

bool Texte_conforme(std::wstring_view texte, std::wstring_view modele) {
    return conforme(texte, modele, [](wchar_t a, wchar_t b) { return a == b; });
}

Exclusion::Exclusion(std::wstring_view modele, Motifs::Plier plier)
    : modele_(modele), plier_(plier), aucune_(modele.empty()) {
    sans_extension_ = modele.ends_with(L'.');
    if (sans_extension_) modele_.pop_back();
    std::transform(modele_.begin(), modele_.end(), modele_.begin(), plier);
}

bool Exclusion::Exclut(std::wstring_view nom) const {
    if (aucune_ || (sans_extension_ && nom.find(L'.') != nom.npos)) return false;
    return conforme(nom, modele_, [this](wchar_t lettre, wchar_t pliee) { return plier_(lettre) == pliee; });
}

std::wstring Libelle_trouves(std::size_t nombre) {
    const wchar_t * suffixe = nombre > 1 ? L"s" : L"";
    return std::to_wstring(nombre) + L" fichier" + suffixe + L" trouvé" + suffixe;
}

std::wstring Libelle_sautes(std::size_t nombre) {
    if (nombre == 0) return {};
    if (nombre == 1) return L"1 répertoire n'a pas pu être lu.";
    return std::to_wstring(nombre) + L" répertoires n'ont pas pu être lus.";
}

std::wstring Libelle_rien(std::wstring_view modele, std::wstring_view unite) {
    return L"Pas de fichier correspondant à '" + std::wstring(modele) + L"'\r" + std::wstring(18, L' ') +
           L"sur le disque " + std::wstring(unite);
}
