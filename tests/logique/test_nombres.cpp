#include "platform/nombres.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

TEST(Nombres, un_nombre_positif_garde_la_place_de_son_signe) {
    EXPECT_EQ(Avec_signe(3), L" 3");
    EXPECT_EQ(Avec_signe(0), L" 0");
    EXPECT_EQ(Avec_signe(-12), L"-12");
    EXPECT_EQ(Avec_signe(std::numeric_limits<std::int64_t>::min()), L"-9223372036854775808");
}

TEST(Nombres, la_valeur_est_celle_du_nombre_en_tete) {
    struct Cas {
        std::wstring texte;
        double       valeur;
    };
    const std::vector<Cas> table = {
        {L"", 0},
        {L"   ", 0},
        {L"abc", 0},
        {L"12", 12},
        {L"   12 fichiers", 12},
        {L"12abc34", 12},
        {L"1 234", 1},
        {L"-5", -5},
        {L"+5", 5},
        {L"- 5", 0},
        {L"--5", 0},
        {L"-", 0},
        {L".", 0},
        {L".5", 0.5},
        {L"2.5.7", 2.5},
        {L"2,5", 2},
        {L"007", 7},
        {L"1e3", 1},
        {L"0x10", 0},
        {L"\t8", 8},
        {L"４２", 0},
        {std::wstring(L"4\0002", 3), 4},
        {std::wstring(400, L'9'), std::numeric_limits<double>::max()},
        {L"-" + std::wstring(400, L'9'), -std::numeric_limits<double>::max()},
        {L"0." + std::wstring(400, L'0') + L"1", 0},
    };
    for (const Cas & cas : table)
        EXPECT_EQ(Valeur(cas.texte), cas.valeur) << testing::PrintToString(cas.texte);
}

TEST(Nombres, les_milliers_sont_separes) {
    EXPECT_EQ(Milliers(0, L" "), L"0");
    EXPECT_EQ(Milliers(999, L" "), L"999");
    EXPECT_EQ(Milliers(1000, L" "), L"1 000");
    EXPECT_EQ(Milliers(1536, L"\u00A0"), L"1\u00A0536");
    EXPECT_EQ(Milliers(123456, L"."), L"123.456");
    EXPECT_EQ(Milliers(1234567, L"::"), L"1::234::567");
    EXPECT_EQ(Milliers(1234567, L""), L"1234567");
    EXPECT_EQ(Milliers(std::numeric_limits<std::uint64_t>::max(), L" "), L"18 446 744 073 709 551 615");
}

TEST(Nombres, les_zeros_de_tete_completent_jusqu_au_nombre_de_chiffres) {
    EXPECT_EQ(Chiffres(7, 3), L"007");
    EXPECT_EQ(Chiffres(0, 3), L"000");
    EXPECT_EQ(Chiffres(1234, 3), L"1234");
    EXPECT_EQ(Chiffres(4096, 8), L"00004096");
    EXPECT_EQ(Chiffres(100000000, 8), L"100000000");
    EXPECT_EQ(Chiffres(5, 0), L"5");
}

TEST(Nombres, oui_tient_dans_les_trois_premiers_caracteres) {
    for (const wchar_t * oui : {L"Oui", L"OUI", L"oui", L"oUi", L"Ouistiti"})
        EXPECT_TRUE(Est_oui(oui)) << oui;
    for (const wchar_t * non : {L"", L"O", L"Ou", L"Non", L" Oui", L"Ouais", L"1"})
        EXPECT_FALSE(Est_oui(non)) << non;
}
