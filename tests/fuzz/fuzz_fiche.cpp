#include "logique/page_essai.h"
#include "platform/utf8.h"
#include "recycle/lignes.h"

#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"

namespace {

std::string Sans_fin(std::string ligne) {
    Exiger(ligne.ends_with("\r\n"));
    ligne.resize(ligne.size() - 2);
    return ligne;
}

// Whatever was read is written so that the same is read again.
void Verifier(const Fiche & fiche) {
    Exiger(fiche.code.size() == 12 && fiche.Jour() >= 10000 && fiche.Jour() <= 99999);
    Exiger(!fiche.nom.empty() && fiche.nom.find_first_of(L"\\/:") == fiche.nom.npos);
    Exiger(fiche.repertoire.size() >= 3 && fiche.repertoire[1] == L':' && fiche.repertoire.back() == L'\\');
    Exiger(Lire_fiche(Sans_fin(Ecrire_fiche(fiche, Page_essai())), Page_essai()) == fiche);
}

// A record of any name either reads back as it is or not at all.
void Verifier_nom(const std::wstring & nom) {
    const Fiche       fiche{L"crb35000.007", nom.size(), nom, L"C:\\DOCS\\"};
    const std::string ecrite = Ecrire_fiche(fiche, Page_essai());
    const auto        relue  = Lire_fiche(Sans_fin(ecrite), Page_essai());
    Exiger(!relue || *relue == fiche);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    const std::string octets(reinterpret_cast<const char *>(donnees), taille);
    if (const auto fiche = Lire_fiche(octets, Page_essai())) Verifier(*fiche);
    if (const auto fiche = Lire_fiche("crb35000.007 00012345 " + octets, Page_essai())) Verifier(*fiche);
    if (const auto texte = De_utf8(octets)) Exiger(De_utf8(En_utf8(*texte)) == texte);
    Verifier_nom(Texte_libre(donnees, taille));

    std::string recolles;
    for (const Ligne_index & ligne : Decouper_index(octets, Page_essai())) {
        Exiger(ligne.Entiere() || recolles.size() + ligne.octets.size() == octets.size());
        if (ligne.fiche) Verifier(*ligne.fiche);
        recolles += ligne.octets;
    }
    Exiger(recolles == octets);
    return 0;
}
