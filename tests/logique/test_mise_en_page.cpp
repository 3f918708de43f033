#include "texte/mise_en_page.h"

#include <gtest/gtest.h>

namespace {
// A4 at 300 dots to the inch, printable to its edges.
constexpr Feuille a4{2480, 3508, 0, 0, 2480, 3508, 300, 300};

// What so many columns take in a font of that em.
double Largeur(const Mise_en_page & page, std::size_t colonnes, int corps) {
    return 0.6 * corps / page.aspect * static_cast<double>(colonnes);
}
}  // namespace

TEST(Mise_en_page, une_feuille_a4_a_des_marges_de_15_mm_dix_points_et_six_lignes_au_pouce) {
    const Mise_en_page page = Mettre_en_page(a4);
    EXPECT_EQ(177, page.gauche);
    EXPECT_EQ(177, page.haut);
    EXPECT_EQ(2480 - 2 * 177, page.largeur);
    EXPECT_EQ(50, page.interligne);
    EXPECT_EQ(41, page.corps);
    EXPECT_EQ(63u, page.lignes);
    EXPECT_EQ(86u, page.colonnes);
}

TEST(Mise_en_page, ce_qui_ne_s_imprime_pas_compte_dans_la_marge) {
    const Mise_en_page page = Mettre_en_page({2480, 3508, 50, 300, 2380, 2908, 300, 300});
    EXPECT_EQ(127, page.gauche) << "depuis le bord imprimable";
    EXPECT_EQ(0, page.haut) << "plus large que la marge";
    EXPECT_EQ(2480 - 2 * 177, page.largeur);
    EXPECT_EQ(2908, page.hauteur);
}

TEST(Mise_en_page, quatre_vingts_colonnes_et_tous_les_interlignes_tiennent_sur_toute_feuille) {
    const Feuille feuilles[] = {a4,
                                {1748, 2480, 0, 0, 1748, 2480, 300, 300},      // A5
                                {850, 1100, 20, 20, 810, 1060, 100, 100},      // letter
                                {1600, 4000, 30, 0, 1540, 4000, 508, 508},     // a roll of 80 mm
                                {4960, 3508, 100, 100, 4760, 3308, 600, 300},  // dots that are not square
                                {14028, 9924, 100, 100, 13828, 9724, 1200, 1200}};
    for (const Feuille & feuille : feuilles) {
        const Mise_en_page page = Mettre_en_page(feuille);
        EXPECT_GE(page.colonnes, 80u) << feuille.largeur;
        EXPECT_LE(Largeur(page, page.colonnes, page.corps), page.largeur) << feuille.largeur;
        EXPECT_LE(static_cast<int>(page.lignes) * page.interligne, page.hauteur) << feuille.largeur;
        EXPECT_GE(page.interligne, page.corps) << feuille.largeur;
        EXPECT_LE(feuille.gauche + page.gauche + page.largeur, feuille.largeur) << feuille.largeur;
    }
}

TEST(Mise_en_page, une_imprimante_qui_ne_dit_rien_de_sa_feuille_a_une_page_d_une_ligne) {
    const Mise_en_page page = Mettre_en_page({});
    EXPECT_EQ(1u, page.lignes);
    EXPECT_EQ(80u, page.colonnes);
    EXPECT_EQ(1, Corps_pour(page, 1000));
}

TEST(Mise_en_page, une_ligne_plus_longue_resserre_la_police_et_y_tient) {
    const Mise_en_page page = Mettre_en_page(a4);
    const struct {
        std::size_t longueur, colonnes;
    } lignes[] = {{0, 86},    {86, 86},   {87, 100},    {100, 100},
                  {160, 160}, {161, 180}, {1280, 1280}, {5000, 1280}};
    for (const auto & ligne : lignes) {
        const std::size_t colonnes = Colonnes_pour(page, ligne.longueur);
        EXPECT_EQ(ligne.colonnes, colonnes) << ligne.longueur;
        EXPECT_LE(Largeur(page, colonnes, Corps_pour(page, colonnes)), page.largeur) << ligne.longueur;
    }
    EXPECT_EQ(page.corps, Corps_pour(page, 86));
    EXPECT_EQ(22, Corps_pour(page, 160));
}
