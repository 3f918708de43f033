#include "app/lignes_commande.h"

#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"
#include "logique/interprete.h"

#include <algorithm>

namespace {

std::wstring sans_guillemets(std::wstring_view texte) {
    std::wstring reste(texte);
    std::erase(reste, L'"');
    return reste;
}

// A line is started as it is, or, when the interpreter reads it, without an end before its own.
void eprouver_depart(const std::wstring & ligne) {
    const std::wstring sure = Ligne_sure(ligne);
    if (!Lance_interprete(ligne)) return Exiger(sure == ligne);
    Exiger(!se_termine(sure) && Lance_interprete(sure));
}

void eprouver_saisie(const std::wstring & texte, const Existe & existe) {
    const std::wstring commande = Commande_saisie(L">" + texte);
    Exiger(commande.empty() || (commande.front() != L' ' && commande.back() != L' '));
    for (const wchar_t signe : commande) Exiger(signe >= L' ');
    const std::wstring ligne = Ligne_saisie(commande, existe);
    // Quotes and one blank are all that is added, and nothing that was typed is lost.
    std::wstring tel = sans_guillemets(ligne), saisi = sans_guillemets(commande);
    std::erase(tel, L' ');
    std::erase(saisi, L' ');
    Exiger(tel == saisi);
    eprouver_depart(ligne);
    eprouver_depart(Avec_com(ligne));
}

// Whatever follows a batch file's name, and however it is written.
void eprouver_lot(const std::wstring & texte) {
    for (const wchar_t * programme : {L"A.BAT ", L"\"C:\\B C\\A.cmd\"", L"a.bat. "}) {
        const std::wstring ligne = programme + texte;
        Exiger(Lance_interprete(ligne) && !se_termine(Ligne_sure(ligne)));
    }
    Exiger(!se_termine(Ligne_sure(Ligne_execution(L"C:\\A&B.BAT", texte))));
    // No file's name holds a quote or a control character.
    std::wstring nom = sans_guillemets(texte);
    std::erase_if(nom, [](wchar_t signe) { return signe < L' '; });
    Exiger(!se_termine(Citer_argument(L"A.BAT", nom)));
}

void eprouver_noms(const std::wstring & texte, const std::wstring & connu) {
    const Existe       existe = [&](std::wstring_view chemin) { return chemin == connu; };
    const std::wstring ligne  = Citer_programme(texte, existe);
    Exiger(sans_guillemets(ligne) == sans_guillemets(texte));
    // A program that the disk knows is started as itself.
    if (texte == connu && !connu.empty() && connu.find(L'"') == connu.npos)
        Exiger(ligne == Citer_fichier(connu));

    const Commande_bouton bouton = Lire_bouton(texte, existe);
    Exiger(bouton.extension.size() <= 3 && bouton.cible.size() <= texte.size());
    Exiger(bouton.repertoire.empty() || bouton.cible.find(bouton.repertoire) != bouton.cible.npos);
}

void eprouver_groupe(const std::wstring & un, const std::wstring & deux) {
    for (const wchar_t * programme : {L"A.EXE", L"A.BAT"}) {
        Groupe_fichiers   groupe(programme);
        const std::size_t le_plus_long =
            std::max(Citer_argument(programme, un).size(), Citer_argument(programme, deux).size());
        for (int i = 0; i < 20; ++i) {
            const auto pleine = groupe.Ajouter(i % 2 == 0 ? un : deux);
            if (pleine) Exiger(pleine->size() <= std::max(Groupe_fichiers::limite, le_plus_long + 1));
        }
        Exiger(groupe.Liste().size() <= std::max(Groupe_fichiers::limite, le_plus_long + 1));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    const std::wstring tout = Texte_libre(donnees, taille);
    const auto [un, deux]   = En_deux(tout);
    eprouver_saisie(tout, [](std::wstring_view) { return false; });
    eprouver_saisie(tout, [](std::wstring_view) { return true; });
    eprouver_lot(tout);
    eprouver_noms(un, deux);
    eprouver_noms(un + deux, un);
    eprouver_groupe(un, deux);
    Est_executable(Programme_associe(tout));
    return 0;
}
