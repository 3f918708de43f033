#include "browser/ligne_selection.h"

#include <gtest/gtest.h>

TEST(Ligne_selection, aucun_fichier_ne_donne_rien) { EXPECT_EQ(Ligne_selection(0, L"0"), L""); }

TEST(Ligne_selection, un_seul_fichier_est_au_singulier) {
    EXPECT_EQ(Ligne_selection(1, L"12"), L"   1 fichier sélectionné, total = 12 octets.");
}

TEST(Ligne_selection, deux_fichiers_et_plus_sont_au_pluriel) {
    EXPECT_EQ(Ligne_selection(2, L"1 234"), L"   2 fichiers sélectionnés, total = 1 234 octets.");
    EXPECT_EQ(Ligne_selection(100000, L"5 000 000 000"),
              L"   100000 fichiers sélectionnés, total = 5 000 000 000 octets.");
}
