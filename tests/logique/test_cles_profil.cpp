#include "app/cles_profil.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace {
using Cles = std::vector<std::wstring>;
}

TEST(Cles_profil, chaque_nom_va_jusqu_a_son_nul_dans_l_ordre_du_fichier) {
    EXPECT_EQ(Decouper_cles(L"Zoo\0Arbre\0Été\0\0"s), (Cles{L"Zoo", L"Arbre", L"Été"}));
}

TEST(Cles_profil, une_section_vide_n_a_pas_de_nom) {
    EXPECT_EQ(Decouper_cles(L""), Cles{});
    EXPECT_EQ(Decouper_cles(L"\0"s), Cles{});
    EXPECT_EQ(Decouper_cles(L"\0\0"s), Cles{});
}

TEST(Cles_profil, un_nom_vide_termine_la_liste) {
    EXPECT_EQ(Decouper_cles(L"a\0\0b\0\0"s), Cles{L"a"});
    EXPECT_EQ(Decouper_cles(L"\0a\0\0"s), Cles{});
}

TEST(Cles_profil, le_dernier_nom_peut_avoir_perdu_ses_nuls) {
    EXPECT_EQ(Decouper_cles(L"a\0b\0"s), (Cles{L"a", L"b"}));
    EXPECT_EQ(Decouper_cles(L"a\0b"s), (Cles{L"a", L"b"}));
    EXPECT_EQ(Decouper_cles(L"a"), Cles{L"a"});
}

TEST(Cles_profil, les_noms_gardent_leurs_blancs_et_leurs_doubles) {
    EXPECT_EQ(Decouper_cles(L"Tous les textes\0a\0a\0\0"s), (Cles{L"Tous les textes", L"a", L"a"}));
}

TEST(Cles_profil, toute_coupure_de_la_liste_garde_les_noms_entiers) {
    const std::wstring liste  = L"un\0deux\0trois\0\0"s;
    const Cles         entier = Decouper_cles(liste);
    for (std::size_t n = 0; n < liste.size(); ++n) {
        const Cles cles = Decouper_cles(liste.substr(0, n));
        ASSERT_LE(cles.size(), entier.size()) << n;
        for (std::size_t i = 0; i + 1 < cles.size(); ++i) EXPECT_EQ(cles[i], entier[i]) << n;
    }
}
