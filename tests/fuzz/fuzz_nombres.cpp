#include "platform/nombres.h"

#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"

#include <cmath>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    const std::wstring texte  = Texte_libre(donnees, taille);
    const double       valeur = Valeur(texte);
    Exiger(std::isfinite(valeur));
    Exiger(Valeur(L"  " + texte) == valeur && Valeur(texte + L"x") == valeur);
    if (Est_oui(texte)) Exiger(valeur == 0);

    std::uint64_t n = 0;
    std::memcpy(&n, donnees, taille < sizeof n ? taille : sizeof n);
    std::wstring groupes = Milliers(n, L" ");
    Exiger(groupes.front() != L' ');
    std::erase(groupes, L' ');
    Exiger(groupes == std::to_wstring(n));
    Exiger(Chiffres(n, 8).ends_with(groupes) && Chiffres(n, 8).size() >= 8);
    Exiger(Valeur(Avec_signe(static_cast<std::int64_t>(n))) ==
           static_cast<double>(static_cast<std::int64_t>(n)));
    return 0;
}
