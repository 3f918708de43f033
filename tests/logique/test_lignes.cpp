#include "logique/page_essai.h"
#include "recycle/lignes.h"

#include <gtest/gtest.h>

#include <string>

namespace {
const std::string fiche_1 = "crb35000.007 00012345 RAPPORT.DOC C:\\DOCS\\";
const std::string fiche_2 = "crb35001.008 00000001 B.TXT D:\\";

std::vector<Ligne_index> Decouper(const std::string & octets) { return Decouper_index(octets, Page_essai()); }

std::string Recoller(const std::vector<Ligne_index> & lignes) {
    std::string octets;
    for (const Ligne_index & ligne : lignes) octets += ligne.octets;
    return octets;
}
}  // namespace

TEST(Lignes, un_index_vide_n_en_a_pas) { EXPECT_TRUE(Decouper("").empty()); }

TEST(Lignes, les_deux_fins_de_ligne_sont_comprises) {
    const auto lignes = Decouper(fiche_1 + "\r\n" + fiche_2 + "\n");
    ASSERT_TRUE(lignes.size() == 2 && lignes[0].fiche && lignes[1].fiche);
    EXPECT_EQ(lignes[0].fiche->nom, L"RAPPORT.DOC");
    EXPECT_EQ(lignes[1].fiche->nom, L"B.TXT");
    EXPECT_TRUE(lignes[1].Entiere());
}

TEST(Lignes, ce_qui_n_est_pas_une_fiche_reste_a_sa_place) {
    const std::string octets =
        "; note\r\n" + fiche_1 + "\r\n\r\n\n" + std::string("\0\xFF", 2) + "\n" + fiche_2 + "\n";
    const auto lignes = Decouper(octets);
    ASSERT_EQ(lignes.size(), 6u);
    for (const std::size_t etrangere : {0u, 2u, 3u, 4u}) EXPECT_FALSE(lignes[etrangere].fiche) << etrangere;
    ASSERT_TRUE(lignes[5].fiche);
    EXPECT_EQ(lignes[5].fiche->nom, L"B.TXT");
    EXPECT_EQ(Recoller(lignes), octets);
}

TEST(Lignes, la_derniere_peut_etre_inachevee) {
    for (const std::string & fin : {fiche_2, fiche_2 + "\r", fiche_2.substr(0, 10), std::string("note")}) {
        const auto lignes = Decouper(fiche_1 + "\n" + fin);
        ASSERT_EQ(lignes.size(), 2u) << fin;
        EXPECT_FALSE(lignes[1].Entiere()) << fin;
        EXPECT_EQ(lignes[1].fiche.has_value(), fin.starts_with(fiche_2)) << fin;
        EXPECT_EQ(lignes[1].octets, fin);
    }
}

TEST(Lignes, tout_debut_d_une_fiche_est_reconnu) {
    for (std::size_t fin = 0; fin <= fiche_1.size(); ++fin)
        EXPECT_TRUE(Debut_de_fiche(fiche_1.substr(0, fin))) << fin;
    EXPECT_TRUE(Debut_de_fiche(std::string(200, '\0')));
    EXPECT_TRUE(Debut_de_fiche(fiche_1.substr(0, 5) + std::string(20, '\0')));
    for (const char * autre : {"note", "cr b", "crab", " crb", "\x01"})
        EXPECT_FALSE(Debut_de_fiche(autre)) << autre;
}
