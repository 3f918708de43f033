#include "recycle/tirage.h"

#include "recycle/fiche.h"

#include <string>

namespace {

// Drawings that may fall on a taken number before the next free one is looked for.
constexpr int tirages_permis = 32;

int Un_tirage(const Hasard & hasard) {
    const double n = hasard() * Numeros_pris::nombre;
    if (n < 0) return 0;
    return n < Numeros_pris::nombre ? static_cast<int>(n) : Numeros_pris::nombre - 1;
}

std::wstring En_minuscules(std::wstring_view nom) {
    std::wstring minuscules(nom);
    for (wchar_t & c : minuscules)
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c + (L'a' - L'A'));
    return minuscules;
}

}  // namespace

void Numeros_pris::Prendre(int numero) {
    if (numero >= 0 && numero < nombre) pris_.set(static_cast<std::size_t>(numero));
}

bool Numeros_pris::Pris(int numero) const {
    return numero >= 0 && numero < nombre && pris_.test(static_cast<std::size_t>(numero));
}

std::optional<int> Numeros_pris::Tirer(const Hasard & hasard) const {
    if (Tous()) return std::nullopt;
    int numero = Un_tirage(hasard);
    for (int tirage = 1; Pris(numero) && tirage < tirages_permis; ++tirage) numero = Un_tirage(hasard);
    while (Pris(numero)) numero = (numero + 1) % nombre;
    return numero;
}

std::optional<int> Numero_du_jour(std::wstring_view nom, std::int32_t jour) {
    const std::wstring premier = Nom_code(jour, 0);
    const std::size_t  fin     = premier.size() - 3;
    if (nom.size() != premier.size()) return std::nullopt;
    const std::wstring minuscules = En_minuscules(nom);
    int                numero     = 0;
    for (std::size_t i = 0; i < premier.size(); ++i) {
        const wchar_t c = minuscules[i];
        if (i < fin && c != premier[i]) return std::nullopt;
        if (i < fin) continue;
        if (c < L'0' || c > L'9') return std::nullopt;
        numero = numero * 10 + static_cast<int>(c - L'0');
    }
    return numero;
}
