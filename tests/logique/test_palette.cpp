#include "app/palette.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

TEST(Palette, un_texte_reste_lisible_sur_chacune_des_huit_couleurs) {
    for (int couleur = 0; couleur <= derniere_couleur; ++couleur) {
        const Couleurs_cadre cadre = Couleurs_du_cadre(couleur);
        EXPECT_GE(Contraste(cadre.encre, cadre.fond), 4.5) << couleur;
        EXPECT_NE(cadre.ligne, cadre.fond) << couleur;
    }
}

TEST(Palette, chaque_couleur_donne_son_fond_et_les_lignes_de_sa_variante_vive) {
    for (int couleur = 1; couleur <= derniere_couleur; ++couleur) {
        EXPECT_EQ(Couleurs_du_cadre(couleur).fond, Couleur_palette(couleur)) << couleur;
        EXPECT_EQ(Couleurs_du_cadre(couleur).ligne, Couleur_palette(couleur + 8)) << couleur;
    }
    EXPECT_EQ(Couleurs_du_cadre(4).fond, 0x000080u);   // dark red
    EXPECT_EQ(Couleurs_du_cadre(4).ligne, 0x0000FFu);  // red
}

TEST(Palette, zero_et_ce_qui_n_est_pas_permis_donnent_le_gris) {
    EXPECT_EQ(Couleurs_du_cadre(0), (Couleurs_cadre{Couleur_palette(8), Couleur_palette(7), 0x000000u}));
    for (int couleur : {-1, 8, 9, 15, 1000, -1000}) {
        EXPECT_EQ(Couleurs_du_cadre(couleur), Couleurs_du_cadre(0)) << couleur;
        EXPECT_EQ(Couleur_permise(couleur), 0) << couleur;
    }
    for (int couleur = 0; couleur <= derniere_couleur; ++couleur)
        EXPECT_EQ(Couleur_permise(couleur), couleur);
    EXPECT_EQ(Couleur_permise(3.9), 3);
    EXPECT_EQ(Couleur_permise(1e30), 0);
    EXPECT_EQ(Couleur_permise(std::nan("")), 0);
}

TEST(Palette, les_seize_couleurs_sont_distinctes_et_le_contraste_va_de_un_a_vingt_et_un) {
    std::set<std::uint32_t> couleurs;
    for (int index = 0; index < 16; ++index) couleurs.insert(Couleur_palette(index));
    EXPECT_EQ(couleurs.size(), 16u);
    EXPECT_NEAR(Contraste(Couleur_palette(0), Couleur_palette(15)), 21, 1e-9);
    EXPECT_NEAR(Contraste(Couleur_palette(15), Couleur_palette(0)), 21, 1e-9);
    EXPECT_NEAR(Contraste(Couleur_palette(3), Couleur_palette(3)), 1, 1e-9);
}
