#include "logique/octets_essai.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

// Every character of the bytes, the length of each after it.
std::vector<std::pair<char32_t, unsigned>> Tout(const std::string & octets, Codage codage,
                                                const Page_ansi & page = Page_latine()) {
    Fichier_essai                              fichier(octets);
    const Decodeur                             decodeur(codage, page);
    std::vector<std::pair<char32_t, unsigned>> lus;
    for (std::uint64_t p = 0;;) {
        const Caractere lu = decodeur.Lire(fichier.lecteur, p);
        if (lu.octets == 0) return lus;
        lus.emplace_back(lu.code, lu.octets);
        p += lu.octets;
    }
}

using Lus = std::vector<std::pair<char32_t, unsigned>>;

}  // namespace

TEST(Decodage, chaque_codage_donne_ses_caracteres) {
    EXPECT_EQ(Tout("e\xE9", Codage::ansi), (Lus{{'e', 1}, {0xE9, 1}}));
    EXPECT_EQ(Tout("e\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", Codage::utf8),
              (Lus{{'e', 1}, {0xE9, 2}, {0x20AC, 3}, {0x1F600, 4}}));
    EXPECT_EQ(Tout("e\0\xE9\0\x3D\xD8\0\xDE"s, Codage::utf16_petit),
              (Lus{{'e', 2}, {0xE9, 2}, {0x1F600, 4}}));
    EXPECT_EQ(Tout("\0e\0\xE9\xD8\x3D\xDE\0"s, Codage::utf16_grand),
              (Lus{{'e', 2}, {0xE9, 2}, {0x1F600, 4}}));
}

TEST(Decodage, ce_qui_n_est_pas_un_caractere_est_lu_octet_par_octet) {
    EXPECT_EQ(Tout("\x80", Codage::utf8), (Lus{{0xFFFD, 1}}));
    EXPECT_EQ(Tout("\xC0\x80", Codage::utf8), (Lus{{0xFFFD, 1}, {0xFFFD, 1}}));
    EXPECT_EQ(Tout("\xE0\x80\x80", Codage::utf8), (Lus{{0xFFFD, 1}, {0xFFFD, 1}, {0xFFFD, 1}}));
    EXPECT_EQ(Tout("\xED\xA0\x80", Codage::utf8), (Lus{{0xFFFD, 1}, {0xFFFD, 1}, {0xFFFD, 1}}));
    EXPECT_EQ(Tout("\xF5", Codage::utf8), (Lus{{0xFFFD, 1}}));
    EXPECT_EQ(Tout("\xE2\x82", Codage::utf8), (Lus{{0xFFFD, 1}, {0xFFFD, 1}}));
    EXPECT_EQ(Tout("\xE2\x82x", Codage::utf8), (Lus{{0xFFFD, 1}, {0xFFFD, 1}, {'x', 1}}));
    EXPECT_EQ(Tout("\x3D\xD8x\0"s, Codage::utf16_petit), (Lus{{0xFFFD, 2}, {'x', 2}}));
    EXPECT_EQ(Tout("\0\xDEx"s, Codage::utf16_petit), (Lus{{0xFFFD, 2}, {0xFFFD, 1}}));
}

TEST(Decodage, une_page_de_codes_a_paires_les_lit_par_deux) {
    Page_ansi page   = Page_latine();
    page.tetes[0x82] = true;
    page.paire = [](unsigned char, unsigned char suite) { return static_cast<wchar_t>(0x3000 + suite); };
    EXPECT_EQ(Tout("a\x82\xA0z", Codage::ansi, page), (Lus{{'a', 1}, {0x30A0, 2}, {'z', 1}}));
    EXPECT_EQ(Tout("\x82\n\x82", Codage::ansi, page), (Lus{{0xFFFD, 1}, {'\n', 1}, {0xFFFD, 1}}));
    page.utf8 = true;
    EXPECT_EQ(Tout("\xC3\xA9", Codage::ansi, page), (Lus{{0xE9, 2}}));
}

TEST(Decodage, la_nature_d_un_fichier_se_reconnait_a_son_debut) {
    struct Cas {
        std::string debut;
        bool        entier;
        Nature      nature;
        Codage      codage;
        std::size_t marque;
    };
    const Cas cas[] = {
        {"", true, Nature::texte, Codage::ansi, 0},
        {"texte", true, Nature::texte, Codage::ansi, 0},
        {"\xE9t\xE9", true, Nature::texte, Codage::ansi, 0},
        {"\xC3\xA9t\xC3\xA9", true, Nature::texte, Codage::utf8, 0},
        {"\xC3\xA9 \xE9", true, Nature::texte, Codage::ansi, 0},
        {"\xC3\xA9 \xE2\x82", true, Nature::texte, Codage::ansi, 0},
        {"\xC3\xA9 \xE2\x82", false, Nature::texte, Codage::utf8, 0},
        {"\xEF\xBB\xBF\xE9", true, Nature::texte, Codage::utf8, 3},
        {"\xFF\xFEx\0"s, true, Nature::texte, Codage::utf16_petit, 2},
        {"\xFE\xFF\0x"s, true, Nature::texte, Codage::utf16_grand, 2},
        {"a\0"s, true, Nature::binaire, Codage::ansi, 0},
        {"\xEF\xBB\xBF\0"s, true, Nature::binaire, Codage::utf8, 3},
    };
    for (const Cas & attendu : cas)
        EXPECT_EQ(Reconnaitre(attendu.debut, attendu.entier),
                  (Apparence{attendu.nature, {attendu.codage, attendu.marque}}))
            << testing::PrintToString(attendu.debut);
}

TEST(Decodage, le_texte_a_copier_a_les_fins_de_ligne_du_systeme) {
    Fichier_essai  fichier("a\nb\r\nc\rd\0\n\ne"s);
    const Decodeur decodeur(Codage::ansi, Page_latine());
    EXPECT_EQ(Texte_entre(fichier.lecteur, decodeur, 0, 100), L"a\r\nb\r\nc\r\nd\u00B7\r\n\r\ne");
    EXPECT_EQ(Texte_entre(fichier.lecteur, decodeur, 2, 3), L"b");
}

TEST(Octets, chaque_bloc_est_lu_une_fois_tant_qu_il_sert) {
    Fichier_essai fichier(std::string(5 * Octets::taille_bloc + 10, 'x'), 2);
    EXPECT_EQ(fichier.lecteur.Octet(0), 'x');
    EXPECT_EQ(fichier.lecteur.Octet(Octets::taille_bloc), 'x');
    EXPECT_EQ(fichier.lecteur.Octet(1), 'x');
    EXPECT_EQ(fichier.lectures, 2);
    EXPECT_EQ(fichier.lecteur.Octet(5 * Octets::taille_bloc + 9), 'x');
    EXPECT_EQ(fichier.lecteur.Octet(5 * Octets::taille_bloc + 10), -1);
    EXPECT_EQ(fichier.lectures, 3);
    // The block used longest ago has gone.
    EXPECT_EQ(fichier.lecteur.Octet(2), 'x');
    EXPECT_EQ(fichier.lectures, 3);
    EXPECT_EQ(fichier.lecteur.Octet(Octets::taille_bloc), 'x');
    EXPECT_EQ(fichier.lectures, 4);
}

TEST(Octets, un_fichier_raccourci_pendant_la_lecture_finit_ou_il_finit) {
    Fichier_essai fichier(std::string(3 * Octets::taille_bloc, 'x'));
    EXPECT_EQ(fichier.lecteur.Octet(0), 'x');
    fichier.contenu.resize(Octets::taille_bloc + 5);
    EXPECT_EQ(fichier.lecteur.Octet(Octets::taille_bloc + 4), 'x');
    EXPECT_EQ(fichier.lecteur.Octet(Octets::taille_bloc + 5), -1);
    EXPECT_EQ(fichier.lecteur.Longueur(), Octets::taille_bloc + 5);
    EXPECT_EQ(fichier.lecteur.Version(), 1u);
    // What was read before is read again: it may have changed as well.
    fichier.contenu.clear();
    EXPECT_EQ(fichier.lecteur.Octet(0), -1);
    EXPECT_EQ(fichier.lecteur.Longueur(), 0u);
}

TEST(Octets, une_lecture_qui_echoue_ne_change_rien) {
    bool   echouer = false;
    Octets octets(
        [&](std::uint64_t, char * tampon, std::size_t longueur) {
            if (echouer) throw std::runtime_error("lecture");
            std::fill_n(tampon, longueur, 'x');
            return longueur;
        },
        2 * Octets::taille_bloc);
    EXPECT_EQ(octets.Octet(0), 'x');
    echouer = true;
    EXPECT_THROW(octets.Octet(Octets::taille_bloc), std::runtime_error);
    EXPECT_EQ(octets.Octet(1), 'x');
    echouer = false;
    EXPECT_EQ(octets.Octet(Octets::taille_bloc), 'x');
}
