#include "logique/page_essai.h"
#include "platform/utf8.h"
#include "recycle/fiche.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

const char * const exemple = "crb35000.007 00012345 RAPPORT.DOC C:\\DOCS\\";

std::optional<Fiche> Lire(const std::string & ligne) { return Lire_fiche(ligne, Page_essai()); }

std::string Ecrire(const Fiche & fiche) { return Ecrire_fiche(fiche, Page_essai()); }

Fiche Relue(const Fiche & fiche) {
    std::string ligne = Ecrire(fiche);
    EXPECT_TRUE(ligne.ends_with("\r\n"));
    ligne.resize(ligne.size() - 2);
    EXPECT_EQ(ligne.find_first_of("\r\n"), ligne.npos);
    return Lire(ligne).value_or(Fiche{});
}

}  // namespace

TEST(Fiche, l_exemple_se_lit_et_s_ecrit_a_l_octet_pres) {
    const Fiche fiche{L"crb35000.007", 12345, L"RAPPORT.DOC", L"C:\\DOCS\\"};
    EXPECT_EQ(Lire(exemple), fiche);
    EXPECT_EQ(Ecrire(fiche), std::string(exemple) + "\r\n");
    EXPECT_EQ(fiche.Jour(), 35000);
    EXPECT_EQ(fiche.Chemin_avant(), L"C:\\DOCS\\RAPPORT.DOC");
    EXPECT_EQ(fiche.Chemin_code(), L"C:\\DOCS\\crb35000.007");
}

TEST(Fiche, ce_qui_est_ecrit_se_relit) {
    const std::vector<Fiche> table = {
        {L"crb10000.000", 0, L"a", L"c:\\"},
        {L"crb99999.999", 99999999, L"sans extension", L"D:\\a b\\c d\\"},
        {L"crb45000.001", 100000000, L"neuf chiffres.bin", L"C:\\X\\"},
        {L"crb45000.001", 5000000000, L"12345678 D.txt", L"C:\\12345678 X\\"},
        {L"crb45000.001", UINT64_MAX, L"énorme.bin", L"C:\\Été\\"},
        {L"crb45000.123", 1, L"  blancs autour  ", L"C:\\ \\"},
        {L"crb45000.123", 1, L"...", L"C:\\.x\\"},
        {L"crb45000.123", 1, L"日本語 \xD83D\xDE00.txt", L"C:\\Ω\\"},
        {L"crb45000.123", 1, L"moitié seule \xD83D.txt", L"C:\\x\\"},
        {L"crb45000.123", 1, L"moitié seule \xDE00.txt", L"C:\\x\\"},
        {L"crb45000.123", 1, L"crb45000.124 00000002 x", L"C:\\x\\"},
        {L"crb45000.123", 1, std::wstring(255, L'n'), L"C:\\" + std::wstring(30000, L'r') + L"\\"},
    };
    for (const Fiche & fiche : table) EXPECT_EQ(Relue(fiche), fiche) << testing::PrintToString(fiche.nom);
}

TEST(Fiche, la_taille_occupe_huit_chiffres_au_moins) {
    const Fiche petite{L"crb45000.001", 7, L"n", L"C:\\"};
    const Fiche grande{L"crb45000.001", 1234567890, L"n", L"C:\\"};
    EXPECT_EQ(Ecrire(petite), "crb45000.001 00000007 n C:\\\r\n");
    EXPECT_EQ(Ecrire(grande), "crb45000.001 1234567890 n C:\\\r\n");
}

TEST(Fiche, un_nom_de_la_page_de_codes_y_est_ecrit) {
    const Fiche fiche{L"crb45000.001", 7, L"été", L"C:\\"};
    EXPECT_EQ(Ecrire(fiche), "crb45000.001 00000007 \xE9t\xE9 C:\\\r\n");
    EXPECT_EQ(Lire("crb45000.001 00000007 \xE9t\xE9 C:\\"), fiche);
}

TEST(Fiche, un_nom_hors_de_la_page_de_codes_est_ecrit_en_utf_8) {
    const Fiche fiche{L"crb45000.001", 7, L"été Ω", L"C:\\"};
    EXPECT_EQ(Ecrire(fiche), "crb45000.001 00000007 \xC3\xA9t\xC3\xA9 \xCE\xA9 C:\\\r\n");
    EXPECT_EQ(Relue(fiche), fiche);
}

TEST(Fiche, un_nom_qui_ressemble_a_de_l_utf_8_n_en_devient_pas_un_autre) {
    // In the code page these are two letters, and their bytes those of a single one in UTF-8.
    const Fiche fiche{L"crb45000.001", 7, L"\u00C3\u00A9.txt", L"C:\\"};
    EXPECT_EQ(Relue(fiche), fiche);
}

TEST(Fiche, aucun_debut_de_ligne_n_est_une_fiche_sauf_ou_un_repertoire_finit) {
    const std::string ligne = "crb35000.007 00012345 RAPPORT.DOC C:\\DOCS\\SUITE\\";
    for (std::size_t fin = 0; fin < ligne.size(); ++fin) {
        const bool barre = fin > 0 && ligne[fin - 1] == '\\';
        EXPECT_EQ(Lire(ligne.substr(0, fin)).has_value(), barre) << fin;
    }
}

TEST(Fiche, les_lignes_qui_n_en_sont_pas_sont_refusees) {
    const std::vector<std::string> table = {
        "",
        "\r",
        "crb",
        "bonjour",
        " crb35000.007 00012345 RAPPORT.DOC C:\\DOCS\\",
        "CRB35000.007 00012345 RAPPORT.DOC C:\\DOCS\\",
        "crb3500x.007 00012345 RAPPORT.DOC C:\\DOCS\\",
        "crb05000.007 00012345 RAPPORT.DOC C:\\DOCS\\",
        "crb35000,007 00012345 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.07 00012345 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.0x7 00012345 RAPPORT.DOC C:\\DOCS\\",
        "crb350000.007 00012345 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.007\t00012345 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.007  0012345 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.007 0012345 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.007 -0012345 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.007 000123x5 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.007 18446744073709551616 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.007 99999999999999999999999 RAPPORT.DOC C:\\DOCS\\",
        "crb35000.007 00012345RAPPORT.DOC C:\\DOCS\\",
        "crb35000.007 00012345 RAPPORT.DOC",
        "crb35000.007 00012345 RAPPORT.DOC C:",
        "crb35000.007 00012345 RAPPORT.DOC C:DOCS\\",
        "crb35000.007 00012345 RAPPORT.DOC C:/DOCS/",
        "crb35000.007 00012345 RAPPORT.DOC C:\\DOCS",
        "crb35000.007 00012345 RAPPORT.DOCC:\\DOCS\\",
        "crb35000.007 00012345 RAPPORT.DOC 1:\\DOCS\\",
        "crb35000.007 00012345 RAPPORT.DOC :\\DOCS\\",
        "crb35000.007 00012345 RAPPORT.DOC \\\\serveur\\partage\\",
        "crb35000.007 00012345 C:\\DOCS\\",
        "crb35000.007 00012345  C:\\DOCS\\",
        "crb35000.007 00012345 . C:\\DOCS\\",
        "crb35000.007 00012345 .. C:\\DOCS\\",
        "crb35000.007 00012345 ..\\AILLEURS.DOC C:\\DOCS\\",
        "crb35000.007 00012345 A/B C:\\DOCS\\",
        "crb35000.007 00012345 *.DOC C:\\DOCS\\",
        "crb35000.007 00012345 RAPPORT.DO? C:\\DOCS\\",
        "crb35000.007 00012345 RAPPORT.DOC C:\\DO*S\\",
        "crb35000.007 00012345 RAPPORT.DOC C:\\D:\\",
        "crb35000.007 00012345 RAP\tPORT.DOC C:\\DOCS\\",
        "crb35000.007 00012345 RAPPORT.DOC C:\\DOCS\\\r",
        std::string("crb35000.007 00012345 RAP\0ORT.DOC C:\\DOCS\\", 42),
        std::string("crb35000.007 00012345 RAPPORT.DOC C:\\DOCS\\\0", 43),
    };
    for (const std::string & ligne : table) EXPECT_FALSE(Lire(ligne)) << testing::PrintToString(ligne);
}

TEST(Fiche, une_ligne_tres_longue_est_refusee_sans_dommage) {
    const std::string debut = "crb35000.007 00012345 ";
    EXPECT_FALSE(Lire(debut + std::string(10'000'000, 'x') + " C:\\"));
    EXPECT_FALSE(Lire(debut + std::string(10'000'000, '\xE9')));
    EXPECT_FALSE(Lire("crb35000.007 " + std::string(1000, '9') + " x C:\\"));
}

TEST(Fiche, chaque_octet_au_dela_de_127_se_lit) {
    for (int octet = 128; octet < 256; ++octet) {
        const auto fiche = Lire(std::string("crb35000.007 00000001 a") + static_cast<char>(octet) + "b C:\\");
        ASSERT_TRUE(fiche) << octet;
        EXPECT_EQ(fiche->nom, std::wstring(L"a") + static_cast<wchar_t>(octet) + L"b");
        EXPECT_EQ(Relue(*fiche), *fiche);
    }
}

TEST(Fiche, le_nom_code_a_douze_caracteres) {
    EXPECT_EQ(Nom_code(35000, 7), L"crb35000.007");
    EXPECT_EQ(Nom_code(45678, 999), L"crb45678.999");
    EXPECT_EQ(Nom_code(99999, 0), L"crb99999.000");
    // A clock set beyond what five digits hold still gives names of that form.
    EXPECT_EQ(Nom_code(123456, 1000), L"crb99999.999");
    EXPECT_EQ(Nom_code(-1, -1), L"crb10000.000");
}

TEST(Utf8, les_suites_incorrectes_sont_refusees) {
    for (const char * octets :
         {"\x80", "\xC3", "\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF", "\xE2\x82", "\xF0\x8F\xBF\xBF",
          "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xC3(", "a\xE2(\xA1"})
        EXPECT_FALSE(De_utf8(octets)) << testing::PrintToString(octets);
}

TEST(Utf8, les_bornes_de_chaque_longueur_font_l_aller_et_retour) {
    for (const std::wstring & texte :
         {std::wstring(L"\x7F"), std::wstring(L"\x80\x7FF"), std::wstring(L"\x800\xFFFF"),
          std::wstring(L"\xD800\xDC00"), std::wstring(L"\xDBFF\xDFFF"), std::wstring(L"\xDC00\xD800"),
          std::wstring(L"a\0b", 3)})
        EXPECT_EQ(De_utf8(En_utf8(texte)), texte) << testing::PrintToString(texte);
    EXPECT_EQ(En_utf8(L"\xD83D\xDE00"), "\xF0\x9F\x98\x80");
}
