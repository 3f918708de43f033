#include "coupures/interception.h"
#include "platform/poignee.h"
#include "platform/unites.h"
#include "services/magasins.h"

#include <algorithm>

// Where the index is, whose the files are, and how long work on them is stopped.

namespace {

TEST_F(Magasins, la_purge_et_la_destruction_s_arretent_apres_le_fichier_en_main) {
    for (const wchar_t * nom : {L"a", L"b", L"c", L"d", L"e", L"f"}) Faire_et_deposer(nom);
    int demandes = 0;
    magasin.Purger({0, 1}, jour + 100, [&] { return ++demandes < 2; });
    EXPECT_EQ(2, demandes);
    ASSERT_EQ(4u, magasin.Fiches().size());
    EXPECT_EQ(L"c", magasin.Fiches()[0].nom);
    EXPECT_EQ(4, std::ranges::count(Contenu(Index()), '\n'));
    EXPECT_FALSE(magasin.Detruire([&] { return ++demandes < 3; }));
    EXPECT_TRUE(magasin.Ouvert());
    ASSERT_EQ(3u, magasin.Fiches().size());
    EXPECT_EQ(L"d", magasin.Fiches()[0].nom);
    EXPECT_EQ(3, std::ranges::count(Contenu(Index()), '\n'));
    Rouvrir();
    EXPECT_EQ(3u, magasin.Fiches().size());
}

// A record of ours lost its file before it was renamed, and somebody else's file took the name.
TEST_F(Magasins, un_fichier_du_meme_code_mais_d_une_autre_taille_n_est_pas_le_notre) {
    for (const int nombre : {1, 100}) {
        std::string               lignes;
        std::vector<std::wstring> etrangers;
        for (int i = 0; i < nombre; ++i) {
            const std::wstring code = Nom_code(jour - 1, i);
            lignes += Ligne(std::string(code.begin(), code.end()), "x.txt") + "\r\n";
            etrangers.push_back(Fichier(code, "d'un autre index"));
        }
        Rouvrir_sur(lignes);
        EXPECT_TRUE(magasin.Fiches().empty());
        Faire_et_deposer(L"a");
        Faire_et_deposer(L"b");
        magasin.Purger({0, 1}, jour + 100, Toujours);
        ASSERT_EQ(1u, magasin.Fiches().size());
        EXPECT_EQ(lignes, Contenu(Index()).substr(0, lignes.size()));
        magasin.Detruire(Toujours);
        for (const std::wstring & etranger : etrangers) EXPECT_EQ("d'un autre index", Contenu(etranger));
        Rouvrir();
    }
}

// The drive is asked once: each question to a drive without medium takes its time.
ESSAI_UNITE(F, une_unite_muette_n_est_interrogee_qu_une_fois) {
    unsigned questions[2] = {};
    for (const std::size_t essai : {0, 1}) {
        std::string lignes;
        for (std::size_t i = 0; i < (essai == 0 ? 1 : 20); ++i)
            lignes += "crb45000.1" + std::to_string(10 + i) + " 00000007 a.txt f:\\d" + std::to_string(i) +
                      "\\\r\n";
        Poser(Chemin(L"KORVANE.CRB"), lignes);
        Magasin magasin;
        magasin.Ouvrir({Racine()});
        Interception::Constat constat = Interception::Jouer(
            {Interception::Effet::compter, 0, 0, true}, Interception::Fin::fil, [&] { magasin.Relire(); });
        for (const std::string & nom : constat.noms) questions[essai] += nom.starts_with("GetFileAttributes");
        EXPECT_EQ(essai == 0 ? 1u : 20u, magasin.Fiches().size());
        magasin.Fermer();
        Regler_attributs(Chemin(L"KORVANE.CRB"), FILE_ATTRIBUTE_NORMAL);
    }
    EXPECT_EQ(questions[0], questions[1]);
}

TEST_F(Magasins, la_premiere_place_de_nouveau_permise_prend_ce_que_la_seconde_a_recu) {
    magasin.Fermer();
    Repertoire(L"premier");
    Repertoire(L"premier\\KORVANE.CRB");
    const std::vector<std::wstring> places = {Chemin(L"premier"), Chemin(L"second")};
    const std::wstring              second = Chemin(L"second\\KORVANE.CRB");
    magasin.Ouvrir(places);
    Faire_et_deposer(L"a");
    magasin.Fermer();
    const std::string lignes = Contenu(second);
    ASSERT_TRUE(RemoveDirectoryW(Chemin(L"premier\\KORVANE.CRB").c_str()));
    for (const bool coupe : {false, true}) {
        // Cut between the two, both have the line.
        if (coupe) Poser(second, lignes);
        magasin.Ouvrir(places);
        EXPECT_EQ(places[0], magasin.Repertoire());
        EXPECT_EQ(1u, magasin.Fiches().size());
        EXPECT_FALSE(Present(second));
        EXPECT_EQ(lignes, Contenu(Chemin(L"premier\\KORVANE.CRB")));
        magasin.Fermer();
    }
    magasin.Ouvrir(places);
    Tout_rendre();
    EXPECT_EQ("contenu", Contenu(Chemin(L"a")));
}

TEST_F(Magasins, un_index_occupe_n_en_fait_pas_faire_un_second) {
    magasin.Fermer();
    Repertoire(L"second");
    const Poignee_fichier prise(
        CreateFileW(Index().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(prise.Valide());
    EXPECT_EQ(70, Numero_leve([&] { magasin.Ouvrir({Chemin(L"index"), Chemin(L"second")}); }));
    EXPECT_FALSE(magasin.Ouvert());
    EXPECT_FALSE(Present(Chemin(L"second\\KORVANE.CRB")));
}

TEST(Supports, le_disque_du_systeme_est_fixe_et_une_unite_absente_ne_l_est_pas) {
    EXPECT_TRUE(Support_fixe(L"c:\\"));
    EXPECT_FALSE(Support_fixe(L"q:\\"));
}

ESSAI_UNITE(D, un_second_disque_est_fixe) { EXPECT_TRUE(Support_fixe(L"d:\\")); }
ESSAI_UNITE(A, une_disquette_n_est_pas_fixe) { EXPECT_FALSE(Support_fixe(L"a:\\")); }
ESSAI_UNITE(E, un_disque_compact_n_est_pas_fixe) { EXPECT_FALSE(Support_fixe(L"e:\\")); }

// A program that had it open went on writing.
TEST_F(Magasins, un_fichier_depose_qui_a_grandi_reste_le_notre) {
    Faire_et_deposer(L"a");
    Regler_attributs(Code(0), archive);
    Poser(Code(0), "contenu plus long");
    Regler_attributs(Code(0), archive | FILE_ATTRIBUTE_READONLY);
    Rouvrir();
    ASSERT_EQ(1u, magasin.Fiches().size());
    Tout_rendre();
    EXPECT_EQ("contenu plus long", Contenu(Chemin(L"a")));
    EXPECT_EQ("", Contenu(Index()));
}

TEST_F(Magasins, detruire_garde_l_index_qui_nomme_le_fichier_d_un_autre) {
    Fichier(L"crb44000.001", "d'un autre index");
    const std::string ligne = Ligne("crb44000.001", "x.txt") + "\r\n";
    Rouvrir_sur(ligne);
    Faire_et_deposer(L"a");
    EXPECT_TRUE(magasin.Detruire(Toujours));
    EXPECT_FALSE(magasin.Ouvert());
    EXPECT_EQ(ligne, Contenu(Index()));
    EXPECT_EQ("d'un autre index", Contenu(Chemin(L"crb44000.001")));
}

// Another program stores while ours destroys: its record is not among those that were read.
TEST_F(Magasins, detruire_garde_ce_qu_un_autre_a_depose_entre_temps) {
    Faire_et_deposer(L"a");
    Faire_et_deposer(L"b");
    const std::string ligne = Ligne("crb44000.002", "c") + "\r\n";
    EXPECT_TRUE(magasin.Detruire([&] {
        const std::string lu = Contenu(Index());
        Regler_attributs(Fichier(L"crb44000.002"), archive | FILE_ATTRIBUTE_READONLY);
        const Poignee_fichier autre(CreateFileW(Index().c_str(), FILE_APPEND_DATA,
                                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                                nullptr, OPEN_EXISTING, 0, nullptr));
        DWORD                 ecrits = 0;
        EXPECT_TRUE(
            WriteFile(autre.Valeur(), ligne.data(), static_cast<DWORD>(ligne.size()), &ecrits, nullptr));
        EXPECT_EQ(lu + ligne, Contenu(Index()));
        return true;
    }));
    EXPECT_EQ(ligne, Contenu(Index()));
    Rouvrir();
    Tout_rendre();
    EXPECT_EQ("contenu", Contenu(Chemin(L"c")));
}

// As many bytes in the same file: only they tell.
TEST_F(Magasins, un_index_change_sans_changer_de_longueur_est_relu) {
    Fichier(L"crb44000.001");
    Rouvrir_sur(Ligne("crb44000.001", "x.txt") + "\r\n");
    ASSERT_EQ(L"x.txt", magasin.Fiches().at(0).nom);
    const std::size_t ou = Contenu(Index()).find("x.txt");
    {
        const Poignee_fichier autre(CreateFileW(Index().c_str(), GENERIC_WRITE,
                                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                                nullptr, OPEN_EXISTING, 0, nullptr));
        SetFilePointer(autre.Valeur(), static_cast<LONG>(ou), nullptr, FILE_BEGIN);
        DWORD ecrits = 0;
        ASSERT_TRUE(WriteFile(autre.Valeur(), "y", 1, &ecrits, nullptr));
    }
    Faire_et_deposer(L"a");
    ASSERT_EQ(2u, magasin.Fiches().size());
    EXPECT_EQ(L"y.txt", magasin.Fiches()[0].nom);
}

}  // namespace
