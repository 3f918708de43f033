#include "config/ligne_conf.h"

#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"
#include "platform/valeur_profil.h"

// What the buttons allow to save is written, read back and split again as the same line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    const std::wstring texte = Texte_libre(donnees, taille);
    const Ligne_conf   ligne = Decouper_ligne(texte);
    Exiger(Valeur_lue(Valeur_protegee(ligne.valeur)) == ligne.valeur);
    for (const auto section : {Section_conf::boutons, Section_conf::selections, Section_conf::associations}) {
        const Boutons_permis permis = Permettre(texte, section);
        if (permis.parcourir)
            Exiger(Decouper_ligne(Composer_ligne(texte, L"C:\\A.EXE", section)).cle == ligne.cle);
        if (!permis.enregistrer) continue;
        Exiger(!ligne.cle.empty() && Sans_blancs(ligne.cle) == ligne.cle &&
               ligne.cle.find(L'=') == ligne.cle.npos);
        Exiger(!Sans_blancs(ligne.valeur).empty());
        Exiger(Decouper_ligne(Ecrire_ligne(ligne)) == ligne &&
               Permettre(Ecrire_ligne(ligne), section) == permis);
    }
    return 0;
}
