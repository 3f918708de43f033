#include "platform/nombres.h"

#include <charconv>
#include <limits>

namespace {

bool chiffre(wchar_t c) { return c >= L'0' && c <= L'9'; }

// The part that is a number, in the form that the standard conversion reads.
std::string partie_lue(std::wstring_view texte) {
    std::string lue;
    std::size_t i = texte.find_first_not_of(L" \t");
    if (i == texte.npos) return lue;
    if (texte[i] == L'-') lue = '-';
    if (texte[i] == L'-' || texte[i] == L'+') ++i;
    for (; i < texte.size() && (chiffre(texte[i]) || texte[i] == L'.'); ++i)
        lue += static_cast<char>(texte[i]);
    return lue;  // the conversion stops at a second point
}

}  // namespace

std::wstring Avec_signe(std::int64_t n) { return (n < 0 ? L"" : L" ") + std::to_wstring(n); }

double Valeur(std::wstring_view texte) {
    const std::string lue    = partie_lue(texte);
    double            valeur = 0;
    const auto fin = std::from_chars(lue.data(), lue.data() + lue.size(), valeur, std::chars_format::fixed);
    // The value is left alone when it has no place in the type: hundreds of digits, before or after the point.
    if (fin.ec == std::errc::result_out_of_range && lue.find_first_of("123456789") < lue.find('.')) {
        valeur = std::numeric_limits<double>::max();
        if (lue.front() == '-') valeur = -valeur;
    }
    return valeur;
}

std::wstring Milliers(std::uint64_t n, std::wstring_view separateur) {
    std::wstring texte = std::to_wstring(n);
    for (std::size_t reste = texte.size(); reste > 3;) {
        reste -= 3;
        texte.insert(reste, separateur);
    }
    return texte;
}

std::wstring Chiffres(std::uint64_t n, unsigned au_moins) {
    std::wstring texte = std::to_wstring(n);
    if (texte.size() < au_moins) texte.insert(0, au_moins - texte.size(), L'0');
    return texte;
}

bool Est_oui(std::wstring_view valeur) {
    return valeur.size() >= 3 && (valeur[0] == L'O' || valeur[0] == L'o') &&
           (valeur[1] == L'U' || valeur[1] == L'u') && (valeur[2] == L'I' || valeur[2] == L'i');
}
