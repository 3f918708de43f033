#include "platform/chemins.h"

#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"

namespace {

double longueur(std::wstring_view texte) { return static_cast<double>(texte.size()); }

void eprouver_raccourcir(const std::wstring & chemin, double largeur) {
    const std::wstring court = Raccourcir(chemin, largeur, longueur, L"c:");
    if (longueur(chemin) <= largeur) return Exiger(court == chemin);
    // Whole directories go, never part of a name.
    const std::wstring_view fin = std::wstring_view(court).substr(10);
    Exiger(court.substr(2, 8) == L"\\ . . .\\" && chemin.ends_with(fin));
    Exiger(fin.size() == chemin.size() || chemin[chemin.size() - fin.size() - 1] == L'\\');
}

void eprouver_nom(const std::wstring & repertoire, const std::wstring & nom) {
    if (!Nom_simple(nom)) return;
    // A bare name stays in the directory that it was joined to.
    const std::wstring chemin = Joindre(repertoire, nom);
    Exiger(Nom_du_chemin(chemin) == nom && chemin.starts_with(repertoire));
    Exiger(nom.find_first_of(L"\\/:*?") == nom.npos && nom != L"." && nom != L"..");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    const auto [chemin, nom] = En_deux(Texte_libre(donnees, taille));
    eprouver_raccourcir(chemin, static_cast<double>(nom.size()) - 4);
    eprouver_nom(chemin, nom);

    Exiger(chemin.starts_with(Repertoire_du_chemin(chemin)));
    Exiger(chemin.ends_with(Nom_du_chemin(chemin)));
    Exiger(chemin.ends_with(Extension_du_nom(chemin)));
    const std::wstring sans = Sans_barre_finale(chemin);
    Exiger(chemin.starts_with(sans) && Sans_barre_finale(sans) == sans);
    return 0;
}
