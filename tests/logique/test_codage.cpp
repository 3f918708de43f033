#include "texte/codage.h"

#include <gtest/gtest.h>

#include <string>

TEST(Codage, la_marque_dit_le_codage_et_sa_longueur) {
    EXPECT_EQ(Reconnaitre_codage("\xEF\xBB\xBF"
                                 "été"),
              (Marque_codage{Codage::utf8, 3}));
    EXPECT_EQ(Reconnaitre_codage(std::string("\xFF\xFE"
                                             "e\0",
                                             4)),
              (Marque_codage{Codage::utf16_petit, 2}));
    EXPECT_EQ(Reconnaitre_codage(std::string("\xFE\xFF\0"
                                             "e",
                                             4)),
              (Marque_codage{Codage::utf16_grand, 2}));
}

TEST(Codage, sans_marque_entiere_c_est_la_page_de_codes_du_systeme) {
    for (const std::string debut : {"", "\xEF", "\xEF\xBB", "\xFF", "\xFE", "texte", "\xBB\xBF\xEF"})
        EXPECT_EQ(Reconnaitre_codage(debut), Marque_codage{}) << debut;
}
