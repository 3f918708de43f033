#include "platform/valeur_profil.h"

namespace {
// The end mark of old text files and the blank that does not break count too.
constexpr std::wstring_view blancs = L" \t\n\v\f\r\x1A\xA0";

bool Entre_guillemets(std::wstring_view texte) {
    return texte.size() >= 2 && (texte.front() == L'"' || texte.front() == L'\'') &&
           texte.back() == texte.front();
}
}  // namespace

std::wstring_view Sans_blancs(std::wstring_view texte) {
    const std::size_t debut = texte.find_first_not_of(blancs);
    if (debut == texte.npos) return {};
    return texte.substr(debut, texte.find_last_not_of(blancs) - debut + 1);
}

std::wstring Valeur_lue(std::wstring_view ecrite) {
    std::wstring_view texte = Sans_blancs(ecrite);
    if (Entre_guillemets(texte)) texte = texte.substr(1, texte.size() - 2);
    return std::wstring(texte);
}

std::wstring Valeur_protegee(std::wstring_view valeur) {
    if (Valeur_lue(valeur) == valeur) return std::wstring(valeur);
    return L'"' + std::wstring(valeur) + L'"';
}
