#include "platform/poignee.h"
#include "services/magasins.h"

namespace {

TEST_F(Magasins, un_nom_repris_arrete_la_restauration_et_les_fichiers_deja_rendus_quittent_l_index) {
    for (const wchar_t * nom : {L"a", L"b", L"c", L"d"}) Faire_et_deposer(nom);
    Fichier(L"c", "un autre c");
    EXPECT_EQ(58, Numero_leve([&] { magasin.Restaurer({0, 2, 3}, Toujours); }));
    EXPECT_EQ("contenu", Contenu(Chemin(L"a")));
    EXPECT_EQ("un autre c", Contenu(Chemin(L"c")));
    for (int fois = 0; fois < 2; ++fois) {
        ASSERT_EQ(3u, magasin.Fiches().size());
        EXPECT_EQ(L"b", magasin.Fiches()[0].nom);
        EXPECT_EQ(L"c", magasin.Fiches()[1].nom);
        EXPECT_EQ(archive | en_depot, Attributs(Code(1)));
        EXPECT_EQ(21u, magasin.Total());
        Rouvrir();
    }
    DeleteFileW(Chemin(L"c").c_str());
    Tout_rendre();
    EXPECT_EQ("contenu", Contenu(Chemin(L"c")));
}

TEST_F(Magasins, la_purge_par_taille_detruit_les_plus_anciens_jusqu_a_la_limite) {
    for (const wchar_t * nom : {L"a", L"b", L"c"}) {
        Fichier(nom, Octets_varies(1024));
        Deposer(nom, 1024);
    }
    const std::wstring codes[] = {Code(0), Code(1), Code(2)};
    magasin.Purger({3, 0}, jour, Toujours);
    EXPECT_EQ(3u, magasin.Fiches().size());
    magasin.Purger({2, 0}, jour, Toujours);
    EXPECT_EQ(2u, magasin.Fiches().size());
    EXPECT_EQ(2048u, magasin.Total());
    EXPECT_FALSE(Present(codes[0]));
    magasin.Purger({1, 0}, jour, Toujours);
    EXPECT_FALSE(Present(codes[1]));
    magasin.Purger({1, 0}, jour + 900, Toujours);
    ASSERT_EQ(1u, magasin.Fiches().size());
    EXPECT_EQ(L"c", magasin.Fiches()[0].nom);
    EXPECT_TRUE(Present(codes[2]));
    EXPECT_NE(0u, Attributs(Index()) & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(Magasins, le_plus_recent_reste_meme_plus_grand_que_la_limite) {
    Faire_et_deposer(L"petit");
    Fichier(L"grand", Octets_varies(5000));
    Deposer(L"grand", 5000);
    magasin.Purger({1, 0}, jour, Toujours);
    ASSERT_EQ(1u, magasin.Fiches().size());
    EXPECT_EQ(L"grand", magasin.Fiches()[0].nom);
    Tout_rendre();
    EXPECT_TRUE(Octets_varies(5000) == Contenu(Chemin(L"grand")));
}

TEST_F(Magasins, sans_limite_rien_n_est_purge) {
    Faire_et_deposer(L"a");
    Faire_et_deposer(L"b");
    const std::string index = Contenu(Index());
    magasin.Purger({0, 0}, jour + 9999, Toujours);
    magasin.Purger({1, 0}, jour + 9999, Toujours);
    magasin.Purger({1, 1}, jour + 9999, Toujours);
    EXPECT_EQ(2u, magasin.Fiches().size());
    EXPECT_EQ(index, Contenu(Index()));
}

TEST_F(Magasins, la_purge_ne_touche_pas_un_fichier_code_d_un_autre_index) {
    const std::wstring etranger = Fichier(L"crb10000.001", "d'un autre");
    Regler_attributs(etranger, archive | FILE_ATTRIBUTE_HIDDEN);
    Regler_attributs(etranger, archive | en_depot);
    Faire_et_deposer(L"a");
    Faire_et_deposer(L"b");
    magasin.Purger({0, 1}, jour + 100, Toujours);
    EXPECT_EQ(1u, magasin.Fiches().size());
    magasin.Detruire(Toujours);
    EXPECT_EQ("d'un autre", Contenu(etranger));
    EXPECT_EQ(archive | en_depot, Attributs(etranger));
}

TEST_F(Magasins, detruire_ote_les_fichiers_puis_l_index) {
    Faire_et_deposer(L"a");
    Faire_et_deposer(L"b");
    const std::wstring codes[] = {Code(0), Code(1)};
    magasin.Detruire(Toujours);
    EXPECT_FALSE(Present(codes[0]) || Present(codes[1]));
    EXPECT_FALSE(Present(Index()));
    EXPECT_TRUE(magasin.Fiches().empty());
    EXPECT_EQ(0u, magasin.Total());
}

TEST_F(Magasins, un_fichier_qui_ne_peut_etre_detruit_reste_dans_l_index) {
    Faire_et_deposer(L"a");
    Faire_et_deposer(L"b");
    const std::wstring    libre = Code(0);
    const Poignee_fichier prise(
        CreateFileW(Code(1).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(prise.Valide());
    EXPECT_NE(0, Numero_leve([&] { magasin.Detruire(Toujours); }));
    EXPECT_FALSE(Present(libre));
    Rouvrir();
    ASSERT_EQ(1u, magasin.Fiches().size());
    EXPECT_EQ(L"b", magasin.Fiches()[0].nom);
}

}  // namespace
