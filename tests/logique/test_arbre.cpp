#include "search/arbre.h"

#include <gtest/gtest.h>

TEST(Arbre, un_arbre_vide_n_est_celui_d_aucune_unite) {
    Arbre arbre;
    EXPECT_EQ(arbre.Nombre(), 0U);
    EXPECT_FALSE(arbre.Est_de(L"c:"));
    EXPECT_FALSE(arbre.Est_de(L""));
}

TEST(Arbre, la_racine_seule_garde_sa_barre) {
    Arbre arbre;
    arbre.Commencer(L"c:\\");
    EXPECT_EQ(arbre.Nombre(), 1U);
    EXPECT_EQ(arbre.Chemin(0), L"c:\\");
    EXPECT_EQ(arbre.Nom(0), L"");
}

TEST(Arbre, un_repertoire_est_nomme_par_tout_son_chemin) {
    Arbre arbre;
    arbre.Commencer(L"D:\\");
    arbre.Ajouter(0, L"WINDOWS");
    arbre.Ajouter(0, L"été");
    arbre.Ajouter(1, L"SYSTEM");
    arbre.Ajouter(3, L"日本");
    EXPECT_EQ(arbre.Chemin(1), L"D:\\WINDOWS");
    EXPECT_EQ(arbre.Chemin(2), L"D:\\été");
    EXPECT_EQ(arbre.Chemin(4), L"D:\\WINDOWS\\SYSTEM\\日本");
    EXPECT_EQ(arbre.Nom(3), L"SYSTEM");
    EXPECT_EQ(arbre.Parent(4), 3U);
}

TEST(Arbre, l_unite_se_reconnait_sans_regarder_la_casse) {
    Arbre arbre;
    arbre.Commencer(L"c:\\");
    EXPECT_TRUE(arbre.Est_de(L"C:"));
    EXPECT_TRUE(arbre.Est_de(L"c: [DISQUE]"));
    EXPECT_FALSE(arbre.Est_de(L"d:"));
    EXPECT_FALSE(arbre.Est_de(L"c"));
    arbre.Vider();
    EXPECT_FALSE(arbre.Est_de(L"C:"));
}

TEST(Arbre, recommencer_ne_laisse_rien_du_disque_precedent) {
    Arbre arbre;
    arbre.Commencer(L"c:\\");
    arbre.Ajouter(0, L"ancien");
    arbre.Commencer(L"d:\\");
    EXPECT_EQ(arbre.Nombre(), 1U);
    arbre.Ajouter(0, L"neuf");
    EXPECT_EQ(arbre.Chemin(1), L"d:\\neuf");
}

TEST(Arbre, trois_cent_mille_repertoires_et_mille_niveaux_tiennent) {
    Arbre arbre;
    arbre.Commencer(L"c:\\");
    for (std::size_t i = 0; i < 1000; ++i) arbre.Ajouter(i, L"n");
    for (std::size_t i = 1000; i < 300000; ++i) arbre.Ajouter(0, std::to_wstring(i));
    EXPECT_EQ(arbre.Chemin(1000).size(), 2U + 1000U * 2U);
    EXPECT_EQ(arbre.Nombre(), 300001U);
    EXPECT_EQ(arbre.Chemin(300000), L"c:\\299999");
}
