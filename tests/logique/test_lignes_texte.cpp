#include "texte/lignes.h"

#include <gtest/gtest.h>

using Textes = std::vector<std::string>;

namespace {
// The lines of a text handed over by blocks of that length.
Textes Lignes(std::string_view texte, std::size_t bloc, Codage codage = Codage::ansi,
              std::size_t retenus = 100) {
    Textes       lignes;
    Coupe_lignes coupe(codage, retenus);
    while (!texte.empty()) {
        texte.remove_prefix(coupe.Prendre(texte.substr(0, bloc)));
        if (!coupe.Complete()) continue;
        lignes.emplace_back(coupe.Octets());
        coupe.Suivante();
    }
    if (coupe.Entamee()) lignes.emplace_back(coupe.Octets());
    return lignes;
}

std::wstring Paires(std::size_t nombre) {
    std::wstring paires;
    while (paires.size() < nombre * 2) paires += L"\xD83D\xDE00";
    return paires;
}

Morceau Texte(const std::wstring & ligne) { return {false, ligne}; }
Morceau Page(std::optional<std::wstring> ligne) { return {true, std::move(ligne)}; }
}  // namespace

TEST(Lignes_texte, chaque_fin_de_ligne_compte_une_fois_quels_que_soient_les_blocs) {
    const struct {
        std::string_view texte;
        Textes           lignes;
    } lignes[] = {{"", {}},
                  {"a", {"a"}},
                  {"a\r\nb\r\n", {"a", "b"}},
                  {"a\nb", {"a", "b"}},
                  {"a\rb\r", {"a", "b"}},
                  {"\r\n\r\n", {"", ""}},
                  {"\n\n", {"", ""}},
                  {"\r\r\n\n", {"", "", ""}},
                  {"a\n\rb", {"a", "", "b"}},
                  {std::string_view("a\0b\r\n", 5), {std::string("a\0b", 3)}}};
    for (const auto & ligne : lignes) {
        for (std::size_t bloc = 1; bloc <= 4; ++bloc)
            EXPECT_EQ(ligne.lignes, Lignes(ligne.texte, bloc)) << ligne.texte;
    }
}

TEST(Lignes_texte, en_utf16_une_fin_de_ligne_a_deux_octets) {
    // The second letter's low byte is a line feed, its high byte a carriage return.
    const std::string petit("a\0\x0A\x0D\r\0\n\0b\0", 10);
    const std::string grand("\0a\x0D\x0A\0\r\0\n\0b", 10);
    for (std::size_t bloc = 1; bloc <= 5; ++bloc) {
        EXPECT_EQ((Textes{petit.substr(0, 4), petit.substr(8)}), Lignes(petit, bloc, Codage::utf16_petit))
            << bloc;
        EXPECT_EQ((Textes{grand.substr(0, 4), grand.substr(8)}), Lignes(grand, bloc, Codage::utf16_grand))
            << bloc;
    }
    EXPECT_EQ(Textes{}, Lignes("a", 1, Codage::utf16_petit)) << "la moitié d'un caractère n'en est pas un";
}

TEST(Lignes_texte, d_une_ligne_tres_longue_on_garde_le_debut_et_la_longueur) {
    Coupe_lignes      coupe(Codage::ansi, 640);
    const std::string bloc(8192, 'x');
    for (int i = 0; i < 100; ++i) coupe.Prendre(bloc);
    EXPECT_FALSE(coupe.Complete());
    coupe.Prendre("\n");
    EXPECT_TRUE(coupe.Complete());
    EXPECT_EQ(640u, coupe.Octets().size());
    EXPECT_EQ(819200u, coupe.Longueur());
    coupe.Suivante();
    EXPECT_EQ(0u, coupe.Longueur());
    EXPECT_FALSE(coupe.Entamee());
    EXPECT_EQ((Textes{"ab"}), Lignes("abcd", 1, Codage::ansi, 2));
    EXPECT_EQ((Textes{"ab"}), Lignes("abcd", 1, Codage::utf16_petit, 3)) << "pas de moitié de caractère";
}

TEST(Lignes_texte, une_ligne_s_imprime_coupee_a_160_caracteres_tabulations_etendues) {
    const std::wstring longue(160, L'x');
    const struct {
        std::wstring ligne, imprime;
    } lignes[] = {{L"", L""},
                  {L"abc  ", L"abc"},
                  {L"\tb", L"        b"},
                  {L"1234567\t9", L"1234567 9"},
                  {L"12345678\t7", L"12345678        7"},
                  {std::wstring(L"a\0b\x1A\x7F\x85z", 7), L"a b   z"},
                  {longue + L"y", longue},
                  {std::wstring(159, L'\t') + L"xy", std::wstring(159 * 8, L' ') + L"x"},
                  {longue.substr(1) + L"\xD83D\xDE00y", longue.substr(1) + L"\xD83D\xDE00"},
                  {longue.substr(1) + L"\xD83Dy", longue.substr(1) + L"\xD83D"},
                  {Paires(170), Paires(160)}};
    for (const auto & ligne : lignes) {
        EXPECT_EQ(std::vector{Texte(ligne.imprime)}, Morceaux_imprimables(ligne.ligne))
            << ligne.imprime.size();
    }
}

TEST(Lignes_texte, un_saut_de_page_commence_une_page_sans_ligne_blanche) {
    EXPECT_EQ((std::vector{Texte(L"a"), Page(L"b")}), Morceaux_imprimables(L"a\fb"));
    EXPECT_EQ((std::vector{Page(L"b")}), Morceaux_imprimables(L"\fb"));
    EXPECT_EQ((std::vector{Page(std::nullopt)}), Morceaux_imprimables(L"\f"));
    EXPECT_EQ((std::vector{Texte(L"a"), Page(std::nullopt), Page(L"b")}), Morceaux_imprimables(L"a\f\fb"));
    EXPECT_EQ((std::vector{Page(L"        b")}), Morceaux_imprimables(L"\f\tb"))
        << "les colonnes recommencent";
}
