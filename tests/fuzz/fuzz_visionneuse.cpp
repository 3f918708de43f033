#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"
#include "visionneuse/arguments.h"
#include "visionneuse/index_lignes.h"
#include "visionneuse/rangees_hexa.h"
#include "visionneuse/rangees_texte.h"

#include <algorithm>

namespace {

const Page_ansi & Page() {
    static const Page_ansi page = [] {
        Page_ansi a_paires;
        for (std::size_t i = 0; i < 256; ++i) a_paires.seuls[i] = static_cast<wchar_t>(i);
        a_paires.tetes[0x82] = true;
        a_paires.paire       = [](unsigned char, unsigned char suite) {
            return static_cast<wchar_t>(0x3000 + suite);
        };
        return a_paires;
    }();
    return page;
}

// Rows follow each other without a gap, and each is found again from its last byte.
void Parcourir(Contenu_rangees & contenu) {
    for (std::uint64_t p = contenu.Debut(); p < contenu.Longueur();) {
        const Rangee rangee = contenu.Lire(p);
        Exiger(rangee.debut == p && rangee.suite > p);
        Exiger(rangee.octets.size() == rangee.texte.size() + 1);
        Exiger(contenu.Lire(std::min(rangee.suite, contenu.Longueur()) - 1).debut == p);
        p = rangee.suite;
    }
}

}  // namespace

// A file of any bytes is shown whole in every coding, broken at any width, and its lines are counted; a command line of any text
// gives names that survive being handed over.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    if (taille < 2) return 0;
    const std::string contenu(reinterpret_cast<const char *>(donnees) + 2, taille - 2);
    const auto        lire = [&](std::uint64_t position, char * tampon, std::size_t longueur) {
        return contenu.copy(tampon, longueur, std::min<std::size_t>(position, contenu.size()));
    };
    Octets         octets(lire, contenu.size());
    const auto     codage = static_cast<Codage>(donnees[0] % 4);
    const Decodeur decodeur(codage, Page());
    const auto     apparence = Reconnaitre(contenu, donnees[0] > 127);
    const bool     sienne    = apparence.marque.codage == codage;
    const auto     debut     = sienne ? apparence.marque.octets : 0;
    Rangees_texte  texte(octets, decodeur, debut, donnees[1] % 20);
    Rangees_hexa   hexa(octets, Page());
    Parcourir(hexa);
    if (decodeur.Unite() == 1) Parcourir(texte);
    for (std::uint64_t p = debut; p < texte.Longueur(); p = texte.Lire(p).suite) {
    }
    Index_lignes index(octets, decodeur, debut);
    while (index.Avancer(7)) {
    }
    Exiger(index.Nombre() <= contenu.size());

    std::wstring ligne = Texte_libre(donnees, taille);
    std::replace(ligne.begin(), ligne.end(), L'\0', L' ');  // which ends a command line
    const Arguments lus = Lire_arguments(ligne);
    Exiger(Deballer(Emballer(lus.fichiers)) == lus.fichiers);
    return 0;
}
