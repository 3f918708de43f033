#include "logique/octets_essai.h"
#include "visionneuse/rangees_hexa.h"
#include "visionneuse/rangees_texte.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace std::string_literals;
constexpr std::uint64_t ligne_maximale = Rangees_texte::ligne_maximale;

std::vector<Rangee> Toutes(Contenu_rangees & contenu) {
    std::vector<Rangee> rangees;
    for (std::uint64_t p = contenu.Debut(); p < contenu.Longueur(); p = rangees.back().suite) {
        rangees.push_back(contenu.Lire(p));
        if (rangees.back().suite <= p) break;  // it would never end
    }
    return rangees;
}

std::vector<std::wstring> Textes(const std::string & octets, Codage codage, std::uint64_t debut,
                                 unsigned colonnes) {
    Fichier_essai             fichier(octets);
    Rangees_texte             contenu(fichier.lecteur, Decodeur(codage, Page_latine()), debut, colonnes);
    std::vector<std::wstring> textes;
    for (const Rangee & rangee : Toutes(contenu)) textes.push_back(rangee.texte);
    return textes;
}

std::vector<std::wstring> Textes(const std::string & octets, unsigned colonnes = 0) {
    return Textes(octets, Codage::ansi, 0, colonnes);
}

using Liste = std::vector<std::wstring>;

// Whatever position of a row is asked for, the row is the same, and one after the other they cover everything. Some rows are looked
// at from afresh: finding one in a long line takes time under the sanitizers.
void Verifier_coherence(const std::string & octets, Codage codage, std::uint64_t debut, unsigned colonnes) {
    Fichier_essai  fichier(octets);
    const Decodeur decodeur(codage, Page_latine());
    Rangees_texte  contenu(fichier.lecteur, decodeur, debut, colonnes);
    std::uint64_t  attendu = debut;
    unsigned       rang    = 0;
    for (const Rangee & rangee : Toutes(contenu)) {
        ASSERT_EQ(rangee.debut, attendu);
        ASSERT_GT(rangee.suite, rangee.debut);
        ASSERT_EQ(rangee.octets.size(), rangee.texte.size() + 1);
        attendu = rangee.suite;
        if (++rang % 499 != 0 && rangee.suite - rangee.debut < ligne_maximale / 2) continue;
        for (const std::uint64_t p : {rangee.debut, (rangee.debut + rangee.suite) / 2, rangee.suite - 1}) {
            Rangees_texte seul(fichier.lecteur, decodeur, debut, colonnes);
            if (p >= contenu.Longueur()) continue;
            ASSERT_EQ(seul.Lire(p).debut, rangee.debut) << p;
        }
    }
    EXPECT_GE(attendu, octets.size());
}

}  // namespace

TEST(Rangees, les_lignes_finissent_par_chacune_des_fins_de_ligne) {
    EXPECT_EQ(Textes(""), Liste{});
    EXPECT_EQ(Textes("a"), Liste{L"a"});
    EXPECT_EQ(Textes("a\r\nb\nc\rd\r\r\n\n"), (Liste{L"a", L"b", L"c", L"d", L"", L""}));
    EXPECT_EQ(Textes("a\0\r\0\n\0b\0"s, Codage::utf16_petit, 0, 0), (Liste{L"a", L"b"}));
    EXPECT_EQ(Textes("\xFE\xFF\0a\0\n\0b"s, Codage::utf16_grand, 2, 0), (Liste{L"a", L"b"}));
    // 0x0A0D is one character of UTF-16, no line end.
    EXPECT_EQ(Textes("\x0D\x0A"s, Codage::utf16_petit, 0, 0).size(), 1u);
}

TEST(Rangees, ce_qui_bougerait_la_plume_a_sa_colonne) {
    EXPECT_EQ(Textes("a\tb"), Liste{L"a       b"});
    EXPECT_EQ(Textes("\x01\x7F\x85"), Liste{L"\u00B7\u00B7\u00B7"});
    EXPECT_EQ(Textes("\xE6\xBC\xA2|", Codage::utf8, 0, 0), (Liste{L"\u6F22"s + suite_de_caractere + L"|"}));
    EXPECT_EQ(Textes("\xF0\x9F\x98\x80|", Codage::utf8, 0, 0).front().size(), 3u);
    EXPECT_EQ(Textes("\xE2\x80\xAE|", Codage::utf8, 0, 0), Liste{L"\u00B7|"});
}

TEST(Rangees, chaque_colonne_dit_son_octet) {
    Fichier_essai fichier("\xC3\xA9\tb\r\n");
    Rangees_texte contenu(fichier.lecteur, Decodeur(Codage::utf8, Page_latine()), 0, 0);
    const Rangee  rangee = contenu.Lire(0);
    EXPECT_EQ(rangee.octets, (std::vector<std::uint32_t>{0, 2, 2, 2, 2, 2, 2, 2, 3, 4}));
    EXPECT_EQ(rangee.suite, 6u);
}

TEST(Rangees, les_lignes_sont_coupees_apres_un_blanc_ou_au_bord) {
    EXPECT_EQ(Textes("un deux trois", 8), (Liste{L"un deux ", L"trois"}));
    EXPECT_EQ(Textes("un deux trois", 7), (Liste{L"un deux ", L"trois"}));
    EXPECT_EQ(Textes("un deux trois", 6), (Liste{L"un ", L"deux ", L"trois"}));
    EXPECT_EQ(Textes("abcdefgh", 3), (Liste{L"abc", L"def", L"gh"}));
    EXPECT_EQ(Textes("abc\r\n\r\nd", 3), (Liste{L"abc", L"", L"d"}));
    EXPECT_EQ(Textes("ab\tcd", 4), (Liste{L"ab  ", L"cd"}));
    EXPECT_EQ(Textes("\xE6\xBC\xA2\xE6\xBC\xA2", Codage::utf8, 0, 3).size(), 2u);
    // A character wider than the window has a row of its own all the same.
    EXPECT_EQ(Textes("\xE6\xBC\xA2\xE6\xBC\xA2", Codage::utf8, 0, 1).size(), 2u);
}

TEST(Rangees, une_ligne_tres_longue_est_coupee_a_des_positions_fixes) {
    const std::string ligne(3 * ligne_maximale, 'x');
    const auto        textes = Textes("avant\n" + ligne + "\napres");
    ASSERT_EQ(textes.size(), 6u);
    EXPECT_EQ(textes.front(), L"avant");
    EXPECT_EQ(textes[1].size(), ligne_maximale - 6);
    EXPECT_EQ(textes[2].size(), ligne_maximale);
    EXPECT_EQ(textes[4], L"xxxxxx");
    EXPECT_EQ(textes.back(), L"apres");
    // As long as a line may be: whole.
    EXPECT_EQ(Textes("avant\n" + std::string(ligne_maximale, 'x') + "\n").size(), 2u);
}

TEST(Rangees, la_fin_de_deux_giga_octets_est_lue_sans_le_reste) {
    int    lectures = 0;
    Octets octets(
        [&](std::uint64_t, char * tampon, std::size_t longueur) {
            ++lectures;
            std::fill_n(tampon, longueur, 'x');
            return longueur;
        },
        1ULL << 31);
    Rangees_texte contenu(octets, Decodeur(Codage::ansi, Page_latine()), 0, 80);
    EXPECT_EQ(contenu.Lire((1ULL << 31) - 1).suite, 1ULL << 31);
    EXPECT_LE(lectures, 4);
}

TEST(Rangees, toute_position_d_une_rangee_donne_la_meme) {
    std::mt19937 hasard(7);
    const auto   tirer = [&](unsigned n) { return static_cast<unsigned>(hasard() % n); };
    for (int essai = 0; essai < 2; ++essai) {
        std::string octets;
        while (octets.size() < 2 * ligne_maximale) {
            const unsigned sorte = tirer(40);
            if (sorte == 0)
                octets.append(1 + tirer(70000), static_cast<char>('a' + tirer(26)));
            else if (sorte == 1)
                for (unsigned i = tirer(30000); i > 0; --i) octets += "\xE2\x82\xAC";
            else if (sorte < 6)
                octets += "\r\n"s.substr(tirer(2), 1 + tirer(2));
            else
                octets += static_cast<char>(tirer(256));
        }
        // The mark of UTF-16 shifts every character to an even position of its own.
        octets.resize(octets.size() / 2 * 2);
        for (const unsigned colonnes : {0U, 80U}) {
            Verifier_coherence(octets, Codage::ansi, 0, colonnes);
            Verifier_coherence(octets, Codage::utf8, 3, colonnes);
            Verifier_coherence(octets, Codage::utf16_petit, 2, colonnes);
        }
    }
}

TEST(Rangees, une_longue_ligne_qui_commence_pres_d_une_coupure_est_montree_jusqu_au_bout) {
    for (const unsigned avant : {9U, 8U, 5U, 1U}) {
        const std::string octets = std::string(ligne_maximale - avant - 1, 'a') + '\n' +
                                   std::string(ligne_maximale + 100, 'x') + "\nfin";
        ASSERT_NO_FATAL_FAILURE(Verifier_coherence(octets, Codage::ansi, 0, 0)) << avant;
        EXPECT_EQ(Textes(octets).back(), L"fin") << avant;
    }
    // The cut goes through a character of four bytes.
    std::string octets(ligne_maximale - 6, 'a');
    octets.replace(octets.size() - 2, 2, "\n\0"s);
    while (octets.size() < 2 * ligne_maximale + 100) octets += "\x3D\xD8\x00\xDE"s;
    ASSERT_NO_FATAL_FAILURE(Verifier_coherence(octets, Codage::utf16_petit, 0, 0));
}

TEST(Rangees_hexa, une_rangee_montre_seize_octets_et_la_derniere_ce_qui_reste) {
    Fichier_essai fichier("MZ\0\xE9\x90\x7F 0123456789"s);
    Rangees_hexa  contenu(fichier.lecteur, Page_latine());
    const Rangee  premiere = contenu.Lire(3);
    EXPECT_EQ(premiere.debut, 0u);
    EXPECT_EQ(premiere.suite, 16u);
    EXPECT_EQ(premiere.texte,
              L"00000000  4D 5A 00 E9 90 7F 20 30  31 32 33 34 35 36 37 38  MZ.\u00E9.. 012345678");
    EXPECT_EQ(premiere.octets.size(), premiere.texte.size() + 1);
    EXPECT_EQ(premiere.octets[0], hors_octets);
    EXPECT_EQ(premiere.octets[10], 0u);
    EXPECT_EQ(premiere.octets.back(), 16u);
    EXPECT_EQ(contenu.Lire(16).texte, L"00000010  39                                                9");
    EXPECT_EQ(Octets_en_texte(fichier.lecteur, 0, 3), L"4D 5A 00");
    EXPECT_EQ(Octets_en_texte(fichier.lecteur, 0, 100).substr(45), L"38\r\n39");
}

TEST(Rangees_hexa, au_dela_de_quatre_giga_octets_la_position_s_elargit) {
    Octets octets([](std::uint64_t, char * tampon, std::size_t n) { return std::fill_n(tampon, n, '\0'), n; },
                  0x123456789);
    Rangees_hexa contenu(octets, Page_latine());
    EXPECT_TRUE(contenu.Lire(0x123456788).texte.starts_with(L"123456780  00"));
}
