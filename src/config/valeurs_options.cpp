#include "config/valeurs_options.h"

#include "platform/valeur_profil.h"

#include <algorithm>

namespace {
constexpr const wchar_t * racine           = L"Racine";
constexpr const wchar_t * courant          = L"Courant";
constexpr std::size_t     longueur_de_tete = 12;  // characters that tell an empty program name

wchar_t En_minuscule(wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; }

bool Meme_mot(std::wstring_view a, std::wstring_view b) {
    const auto pareilles = [](wchar_t x, wchar_t y) { return En_minuscule(x) == En_minuscule(y); };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), pareilles);
}
// A path copied from elsewhere may come between quotes, which no name can hold.
std::wstring_view Sans_guillemets(std::wstring_view texte) {
    while (texte.size() >= 2 && texte.front() == L'"' && texte.back() == L'"')
        texte = Sans_blancs(texte.substr(1, texte.size() - 2));
    return texte;
}
}  // namespace

std::wstring Programme_ecrit(std::wstring_view champ, const wchar_t * defaut) {
    const std::wstring_view texte = Sans_blancs(champ);
    if (Sans_blancs(champ.substr(0, longueur_de_tete)).empty() || Sans_guillemets(texte).empty())
        return defaut;
    return std::wstring(texte);
}

const wchar_t * Oui_non(bool oui) { return oui ? L"Oui" : L"Non"; }

Depart Depart_lu(std::wstring_view valeur) {
    if (Meme_mot(valeur, courant)) return Depart::courant;
    return Meme_mot(valeur, racine) ? Depart::racine : Depart::choisi;
}

std::wstring Depart_ecrit(Depart depart, std::wstring_view champ) {
    if (depart == Depart::racine) return racine;
    const std::wstring_view chemin = Sans_guillemets(Sans_blancs(champ));
    return depart == Depart::courant || chemin.empty() ? courant : std::wstring(chemin);
}
