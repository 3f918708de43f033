#include "app/palette.h"
#include "config/valeurs_options.h"
#include "platform/nombres.h"

#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    const std::wstring texte     = Texte_libre(donnees, taille);
    const std::wstring programme = Programme_ecrit(texte, L"PELMIRA.EXE");
    Exiger(!programme.empty() && Programme_ecrit(programme, L"X") == programme);
    const std::wstring ecrit = Depart_ecrit(Depart_lu(texte), texte);
    Exiger(!ecrit.empty() && Depart_ecrit(Depart_lu(ecrit), ecrit) == ecrit);
    const int couleur = Couleur_permise(Valeur(texte));
    Exiger(couleur >= 0 && couleur <= derniere_couleur);
    Exiger(Contraste(Couleurs_du_cadre(couleur).fond, Couleurs_du_cadre(couleur).encre) >= 4.5);
    return 0;
}
