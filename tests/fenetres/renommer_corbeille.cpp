#include "fenetres/repertoires.h"

using namespace Pilote;

// A directory that has files in the recycle bin takes another name.
class Renommer_corbeille : public Repertoires {
protected:
    // A file of this directory is erased while the bin is in use, and the program is closed.
    void Effacer_puis_fermer(const std::wstring & repertoire) {
        Regler(L"Corbeille", L"Taille", L"9999");
        Creer_fichier_graine(repertoire + L"\\a.txt", 100, 7);
        empreinte_ = Empreinte(repertoire + L"\\a.txt");
        Lancer();
        Ouvrir(L"dest", destination);
        Ouvrir(L"srce", repertoire);
        Choisir({L"a.txt"});
        Cliquer(L"Effacer");
        Attendre_boite(gestionnaire,
                       L"Vous allez EFFACER le fichier 'a.txt' du répertoire\r" + repertoire +
                           L"\rConfirmez-vous cette commande ?",
                       oui_non, IDYES);
        Attendre_fin_commande();
        Fermer();
        ASSERT_EQ(Corbeille::Lignes().size(), 1u);
    }
    void Renommer(const std::wstring & chemin, const std::wstring & nom) {
        Cliquer(L"Renommer");
        Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du répertoire :\r" + Capitales(chemin),
                        chemin.substr(chemin.rfind(L'\\') + 1), nom.c_str(), L"OK");
    }

    std::uint64_t empreinte_ = 0;
};

TEST_F(Renommer_corbeille,
       les_fichiers_effaces_du_repertoire_restent_dans_la_corbeille_sous_son_nouveau_nom) {
    Regler(L"Corbeille", L"Taille", L"9999");
    Creer_source(L"haut\\a.txt", 100, 7);
    const std::uint64_t empreinte = Empreinte(Source(L"haut\\a.txt"));
    Lancer();
    Ouvrir(L"dest", destination);
    Ouvrir(L"srce", Source(L"haut"));
    Choisir({L"a.txt"});
    Cliquer(L"Effacer");
    Attendre_boite(gestionnaire,
                   L"Vous allez EFFACER le fichier 'a.txt' du répertoire\r" + Source(L"haut") +
                       L"\rConfirmez-vous cette commande ?",
                   oui_non, IDYES);
    Attendre_fin_commande();
    Cliquer(L"Mode");
    Cliquer(L"Renommer");
    Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du répertoire :\r" + Capitales(Source(L"haut")),
                    L"haut", L"θάλασσα", L"OK");
    Verifier_volets(Source(L"θάλασσα"), destination);
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 1u);
    EXPECT_EQ(Utf8(lignes[0].repertoire), Utf8(Source(L"θάλασσα") + L"\\"));
    EXPECT_EQ(Empreinte(lignes[0].Chemin_code()), empreinte);
}

// The limits are gone, the stored files are not: once there is a limit again they can be restored.
TEST_F(Renommer_corbeille, une_corbeille_qui_n_est_plus_utilisee_suit_aussi) {
    Effacer_puis_fermer(Source(L"haut"));
    Ne_pas_regler(L"Corbeille", L"Taille");
    Lancer_sur(Source(L"haut"));
    Renommer(Source(L"haut"), L"bas");
    Verifier_volets(Source(L"bas"), destination);
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 1u);
    EXPECT_EQ(Utf8(lignes[0].repertoire), Utf8(Source(L"bas") + L"\\"));
    EXPECT_EQ(Empreinte(lignes[0].Chemin_code()), empreinte_);
    // The bin is as little in use as before: its window has nothing to ask.
    Cliquer(L"Corbeille");
    EXIGER(Fenetre(L"Corbeille") != nullptr);
    Pilote::Cliquer(Controle(L"Corbeille", L"Fin"));
    ATTENDRE(Fenetre(L"Corbeille") == nullptr && Boite_absente());
    EXPECT_EQ(Corbeille::Lignes().size(), 1u);
}

TEST_F(Renommer_corbeille, sans_index_aucun_n_est_cree) {
    Creer_dossier(Source(L"haut"));
    Lancer_sur(Source(L"haut"));
    Renommer(Source(L"haut"), L"bas");
    Verifier_volets(Source(L"bas"), destination);
    EXPECT_FALSE(Existe(Corbeille::Index()) || Existe(Corbeille::Index_secours()));
}

// The records could not follow: the directory keeps its name until they can.
TEST_F(Renommer_corbeille, un_index_tenu_par_un_autre_programme_fait_refuser_le_nouveau_nom) {
    Effacer_puis_fermer(Source(L"haut"));
    Ne_pas_regler(L"Corbeille", L"Taille");
    Lancer_sur(Source(L"haut"));
    const HANDLE prise =
        CreateFileW(Corbeille::Index().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(prise, INVALID_HANDLE_VALUE);
    Renommer(Source(L"haut"), L"bas");
    Attendre_avertissement(protege);
    Verifier_volets(Source(L"haut"), destination);
    EXPECT_FALSE(Existe(Source(L"bas")));
    CloseHandle(prise);
    Renommer(Source(L"haut"), L"bas");
    Verifier_volets(Source(L"bas"), destination);
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 1u);
    EXPECT_EQ(Utf8(lignes[0].repertoire), Utf8(Source(L"bas") + L"\\"));
}
