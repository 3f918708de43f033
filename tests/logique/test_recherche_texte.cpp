#include "logique/octets_essai.h"
#include "visionneuse/index_lignes.h"
#include "visionneuse/libelles.h"
#include "visionneuse/recherche.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using Plage = Recherche::Plage;

wchar_t Plier(wchar_t c) {
    if (c == L'\u00E9') return L'\u00C9';
    return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - 32) : c;
}

std::optional<Plage> Trouver(const std::string & octets, std::wstring_view texte,
                             Codage codage = Codage::ansi, std::uint64_t depart = 0,
                             std::uint64_t pas = 1000) {
    Fichier_essai fichier(octets);
    Recherche     recherche(fichier.lecteur, Decodeur(codage, Page_latine()), texte, Plier, depart,
                            octets.size());
    while (recherche.Avancer(pas)) {
    }
    return recherche.Trouvee();
}

}  // namespace

TEST(Recherche, le_texte_est_trouve_sans_distinguer_les_majuscules_dans_chaque_codage) {
    EXPECT_EQ(Trouver("un ETE", L"ete"), (Plage{3, 6}));
    EXPECT_EQ(Trouver("un \xC9t\xE9", L"\u00E9T\u00C9"), (Plage{3, 6}));
    EXPECT_EQ(Trouver("un \xC3\x89t\xC3\xA9", L"\u00E9t\u00E9", Codage::utf8), (Plage{3, 8}));
    EXPECT_EQ(Trouver("u\0n\0e\0"s, L"NE", Codage::utf16_petit), (Plage{2, 6}));
    EXPECT_EQ(Trouver("\xF0\x9F\x98\x80x", L"\xD83D\xDE00", Codage::utf8), (Plage{0, 4}));
    EXPECT_EQ(Trouver("un", L"deux"), std::nullopt);
    EXPECT_EQ(Trouver("un", L""), std::nullopt);
    EXPECT_EQ(Trouver("", L"a"), std::nullopt);
}

TEST(Recherche, un_debut_qui_se_repete_n_en_cache_pas_la_suite) {
    EXPECT_EQ(Trouver("aaab", L"aab"), (Plage{1, 4}));
    EXPECT_EQ(Trouver("abababac", L"ababac"), (Plage{2, 8}));
    EXPECT_EQ(Trouver("aabaabaaab", L"aaab"), (Plage{6, 10}));
}

TEST(Recherche, elle_commence_ou_l_on_veut_et_ne_depend_pas_de_ses_pas) {
    const std::string octets = "abc abc abc";
    EXPECT_EQ(Trouver(octets, L"abc", Codage::ansi, 1), (Plage{4, 7}));
    EXPECT_EQ(Trouver(octets, L"abc", Codage::ansi, 9), std::nullopt);
    for (std::uint64_t pas = 1; pas < 5; ++pas)
        EXPECT_EQ(Trouver(octets, L"c a", Codage::ansi, 3, pas), (Plage{6, 9})) << pas;
    Fichier_essai fichier(octets);
    Recherche     bornee(fichier.lecteur, Decodeur(Codage::ansi, Page_latine()), L"abc", Plier, 1, 6);
    while (bornee.Avancer(100)) {
    }
    EXPECT_EQ(bornee.Trouvee(), std::nullopt);
}

TEST(Index_lignes, les_lignes_sont_comptees_quelle_que_soit_leur_fin) {
    struct Cas {
        std::string   octets;
        std::uint64_t lignes;
    };
    for (const Cas & cas :
         {Cas{"", 0}, {"a", 1}, {"a\n", 1}, {"a\r\nb", 2}, {"a\rb\nc\r\n", 3}, {"\n\n", 2}}) {
        Fichier_essai fichier(cas.octets);
        Index_lignes  index(fichier.lecteur, Decodeur(Codage::ansi, Page_latine()), 0);
        while (index.Avancer(1)) {
        }
        EXPECT_TRUE(index.Complet());
        EXPECT_EQ(index.Nombre(), cas.lignes) << testing::PrintToString(cas.octets);
    }
    Fichier_essai large("\xFF\xFE"
                        "a\0\r\0\n\0b\0"s);
    Index_lignes  index(large.lecteur, Decodeur(Codage::utf16_petit, Page_latine()), 2);
    while (index.Avancer(1000)) {
    }
    EXPECT_EQ(index.Nombre(), 2u);
    EXPECT_EQ(index.Ligne_de(8), 2u);
}

TEST(Index_lignes, la_ligne_d_une_position_est_connue_des_que_le_compte_y_est) {
    std::string octets;
    while (octets.size() < 600000) octets += "0123456\r\n";
    Fichier_essai fichier(octets);
    Index_lignes  index(fichier.lecteur, Decodeur(Codage::ansi, Page_latine()), 0);
    EXPECT_TRUE(index.Avancer(300000));
    EXPECT_EQ(index.Ligne_de(0), 1u);
    EXPECT_EQ(index.Ligne_de(9), 2u);
    EXPECT_EQ(index.Ligne_de(9 * 30000 + 4), 30001u);
    EXPECT_EQ(index.Ligne_de(500000), std::nullopt);
    EXPECT_FALSE(index.Complet());
    while (index.Avancer(300000)) {
    }
    EXPECT_EQ(index.Ligne_de(9 * 60000), 60001u);
    EXPECT_EQ(index.Nombre(), octets.size() / 9);
}

TEST(Libelles_visionneuse, le_titre_et_la_position_se_lisent) {
    EXPECT_EQ(Titre_fenetre(L""), L"Visionneuse");
    EXPECT_EQ(Titre_fenetre(L"C:\\x\\a.txt"), L"a.txt - Visionneuse");
    EXPECT_EQ(Libelle_position({L"", L""}, 1, 3), L"33 %");
    EXPECT_EQ(Libelle_position({L"2", L""}, 3, 3), L"Ligne 2 - 100 %");
    EXPECT_EQ(Libelle_position({L"2", L"1 000"}, 0, 0), L"Ligne 2 sur 1 000 - 100 %");
}

TEST(Libelles_visionneuse, une_panne_nomme_le_fichier_et_donne_le_message_du_systeme) {
    EXPECT_EQ(Libelle_panne(71, L"a:\\x", L"Pas pr\u00EAt"),
              L"a:\\x\n\nL'unit\u00E9 n'est pas pr\u00EAte : il n'y a pas de disque.\n(Pas pr\u00EAt)");
    EXPECT_EQ(Libelle_panne(9999, L"", L""), L"La lecture de ce fichier a \u00E9chou\u00E9.");
}
