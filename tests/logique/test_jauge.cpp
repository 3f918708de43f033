#include "fileops/jauge.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint64_t bloc = 8192;

}  // namespace

TEST(Jauge, elle_se_montre_a_partir_de_quatre_blocs) {
    EXPECT_FALSE(Avance(1).Visible());
    EXPECT_FALSE(Avance(4 * bloc - 1).Visible());
    EXPECT_TRUE(Avance(4 * bloc).Visible());
    EXPECT_TRUE(Avance(std::uint64_t{20} << 40).Visible());
}

TEST(Jauge, elle_part_de_zero) {
    EXPECT_EQ(Avance(5 * bloc).Pourcentage(), 0);
    EXPECT_EQ(Avance(5 * bloc).Texte(), L"0%");
}

TEST(Jauge, son_texte_est_la_partie_entiere_du_pourcentage) {
    Avance avance(7 * bloc);  // 14.28 % a block
    avance.Ajouter(bloc);
    EXPECT_EQ(avance.Texte(), L"14%");
    avance.Ajouter(bloc);
    EXPECT_EQ(avance.Texte(), L"28%");
    avance.Ajouter(5 * bloc - 1);
    EXPECT_EQ(avance.Texte(), L"99%");
}

TEST(Jauge, le_dernier_bloc_ne_depasse_pas_cent) {
    Avance avance(4 * bloc + 1);
    for (int i = 0; i < 5; ++i) avance.Ajouter(bloc);
    EXPECT_EQ(avance.Pourcentage(), 100);
    avance.Ajouter(bloc);
    EXPECT_EQ(avance.Texte(), L"100%");
}

TEST(Jauge, un_fichier_de_beaucoup_de_blocs_finit_a_cent) {
    constexpr std::uint64_t blocs = 131071;
    Avance                  avance(blocs * bloc);
    for (std::uint64_t i = 0; i + 1 < blocs; ++i) avance.Ajouter(bloc);
    EXPECT_EQ(avance.Texte(), L"99%");
    avance.Ajouter(bloc);
    EXPECT_EQ(avance.Texte(), L"100%");
}
