#include "app/cles_profil.h"

#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"

// The names found, put end to end again, are the head of the list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    const std::wstring liste = Texte_libre(donnees, taille);
    std::wstring       relue;
    for (const std::wstring & cle : Decouper_cles(liste)) {
        Exiger(!cle.empty() && cle.find(L'\0') == cle.npos);
        relue += cle + L'\0';
    }
    Exiger((liste + L'\0').starts_with(relue));
    // What is left is an empty name or nothing.
    Exiger(relue.size() >= liste.size() || liste[relue.size()] == L'\0');
    return 0;
}
