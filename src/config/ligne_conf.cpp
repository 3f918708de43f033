#include "config/ligne_conf.h"

#include "platform/valeur_profil.h"

#include <algorithm>

namespace {
constexpr std::size_t max_extension = 3;  // characters of an association's key

std::size_t Position_egal(std::wstring_view ligne) {  // 1-based, 0 when absent
    const std::size_t egal = ligne.find(L'=');
    return egal == std::wstring_view::npos ? 0 : egal + 1;
}

wchar_t Plier(wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c; }

// In a profile file such a line would be a remark, or the beginning of a section.
bool Tient_lieu_de_cle(std::wstring_view texte) {
    return !texte.empty() && texte.front() != L';' && texte.front() != L'[';
}
}  // namespace

Ligne_conf Decouper_ligne(std::wstring_view ligne) {
    const std::size_t egal = Position_egal(ligne);
    if (egal <= 1) return {};
    return {std::wstring(Sans_blancs(ligne.substr(0, egal - 1))), std::wstring(ligne.substr(egal))};
}

std::wstring Ecrire_ligne(const Ligne_conf & ligne) { return ligne.cle + L"=" + ligne.valeur; }

bool Meme_cle(std::wstring_view a, std::wstring_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t x, wchar_t y) { return Plier(x) == Plier(y); });
}

Boutons_permis Permettre(std::wstring_view ligne, Section_conf section) {
    const std::size_t egal = Position_egal(ligne);
    if (egal <= 1 || !Tient_lieu_de_cle(Sans_blancs(ligne.substr(0, egal - 1)))) return {};
    if (section == Section_conf::associations && egal > max_extension + 1) return {};
    return {section != Section_conf::selections, !Sans_blancs(ligne.substr(egal)).empty()};
}

std::wstring Composer_ligne(std::wstring_view ligne, std::wstring_view fichier, Section_conf section) {
    const std::wstring cle      = Decouper_ligne(ligne).cle;
    std::wstring       composee = cle + L"=" + std::wstring(fichier);
    if (section == Section_conf::associations) composee += L" ^." + cle;
    return composee;
}
