#include "fileops/curseur.h"

#include <gtest/gtest.h>

TEST(Curseur, il_reste_sur_l_entree_qui_prend_la_place_de_celle_qui_part) {
    Curseur curseur(5, 2);
    EXPECT_TRUE(curseur.Retirer());
    EXPECT_EQ(curseur.Index(), 2);
}

TEST(Curseur, au_bout_de_la_liste_il_passe_a_l_entree_d_avant) {
    Curseur curseur(3, 2);
    EXPECT_TRUE(curseur.Retirer());
    EXPECT_EQ(curseur.Index(), 1);
    EXPECT_TRUE(curseur.Retirer());
    EXPECT_EQ(curseur.Index(), 0);
}

TEST(Curseur, une_liste_vide_n_en_a_plus) {
    Curseur curseur(1, 0);
    EXPECT_FALSE(curseur.Retirer());
    EXPECT_EQ(curseur.Index(), -1);
}

TEST(Curseur, une_liste_sans_entree_courante_n_en_gagne_pas) {
    Curseur curseur(4, -1);
    EXPECT_TRUE(curseur.Retirer());
    EXPECT_EQ(curseur.Index(), -1);
}
