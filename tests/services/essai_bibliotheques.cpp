#include "pilote/fichiers.h"
#include "platform/bibliotheques.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/windows.h"

#include <gtest/gtest.h>

namespace {

// What lies in the current directory under the name of a library.
class Bibliotheques : public testing::Test {
public:
    Bibliotheques() {
        Pilote::Creer_fichier(dossier / L"deposee.dll", "autre chose");
        Changer_repertoire(dossier.Chemin());
    }
    ~Bibliotheques() override { Changer_repertoire(avant); }

private:
    const std::wstring         avant = Repertoire_courant();
    Pilote::Dossier_temporaire dossier;
};

DWORD Code_de_chargement(const wchar_t * nom) {
    SetLastError(0);
    if (const HMODULE bibliotheque = LoadLibraryW(nom)) FreeLibrary(bibliotheque);
    return GetLastError();
}

}  // namespace

TEST_F(Bibliotheques, celle_que_le_systeme_n_a_pas_est_une_erreur_meme_deposee_dans_le_repertoire_courant) {
    try {
        Exiger_bibliotheque(L"deposee.dll");
        FAIL() << "chargée";
    } catch (const Erreur_execution & erreur) {
        EXPECT_EQ(erreur.numero, Numero::entree_sortie);
        EXPECT_EQ(erreur.code_systeme, DWORD{ERROR_MOD_NOT_FOUND});
        EXPECT_TRUE(erreur.chemin.ends_with(L"\\deposee.dll"));
    }
    EXPECT_NO_THROW(Exiger_bibliotheque(L"version.dll"));
}

TEST_F(Bibliotheques, restreintes_a_celles_du_systeme_le_repertoire_courant_n_est_plus_regarde) {
    Restreindre_bibliotheques();
    EXPECT_EQ(Code_de_chargement(L"deposee.dll"), DWORD{ERROR_MOD_NOT_FOUND});
    EXPECT_EQ(Code_de_chargement(L"version.dll"), 0u);
}
