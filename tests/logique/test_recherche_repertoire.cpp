#include "search/nom_repertoire.h"

#include <gtest/gtest.h>

#include <cwctype>
#include <ostream>
#include <string>
#include <vector>

namespace {

wchar_t majuscule(wchar_t c) { return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(c))); }

using Chemins = std::vector<std::wstring>;

Chemins tous(const Arbre & arbre, std::wstring_view nom) {
    Chemins chemins;
    for (auto i = Prochain_repertoire(arbre, nom, 0, majuscule); i;
         i      = Prochain_repertoire(arbre, nom, *i + 1, majuscule)) {
        chemins.push_back(arbre.Chemin(*i));
    }
    return chemins;
}

// C:\ holding JEUX, WINDOWS; each with SYSTEM; WINDOWS\SYSTEM\COLOR, and a SYSTEMS that is none of them.
class Recherche_repertoire : public testing::Test {
protected:
    Recherche_repertoire() {
        arbre.Commencer(L"C:\\");
        arbre.Ajouter(0, L"JEUX");     // 1
        arbre.Ajouter(0, L"WINDOWS");  // 2
        arbre.Ajouter(1, L"Color");    // 3
        arbre.Ajouter(1, L"System");   // 4
        arbre.Ajouter(2, L"SYSTEM");   // 5
        arbre.Ajouter(2, L"SYSTEMS");  // 6
        arbre.Ajouter(5, L"COLOR");    // 7
        arbre.Ajouter(7, L"JEUX");     // 8
    }
    Arbre arbre;
};

TEST_F(Recherche_repertoire,
       les_repertoires_d_un_meme_nom_viennent_du_plus_proche_de_la_racine_au_plus_lointain) {
    EXPECT_EQ(tous(arbre, L"JEUX"), (Chemins{L"C:\\JEUX", L"C:\\WINDOWS\\SYSTEM\\COLOR\\JEUX"}));
    EXPECT_EQ(tous(arbre, L"color"), (Chemins{L"C:\\JEUX\\Color", L"C:\\WINDOWS\\SYSTEM\\COLOR"}));
}

TEST_F(Recherche_repertoire, la_casse_ne_compte_pas_et_le_nom_est_entier) {
    EXPECT_EQ(tous(arbre, L"system"), (Chemins{L"C:\\JEUX\\System", L"C:\\WINDOWS\\SYSTEM"}));
    EXPECT_EQ(tous(arbre, L"YSTEM"), Chemins{});
    EXPECT_EQ(tous(arbre, L"SYSTE"), Chemins{});
}

TEST_F(Recherche_repertoire, un_nom_a_plusieurs_niveaux_est_la_fin_d_un_chemin) {
    EXPECT_EQ(tous(arbre, L"system\\color"), Chemins{L"C:\\WINDOWS\\SYSTEM\\COLOR"});
    EXPECT_EQ(tous(arbre, L"jeux\\color"), Chemins{L"C:\\JEUX\\Color"});
    EXPECT_EQ(tous(arbre, L"windows\\system\\color\\jeux"), Chemins{L"C:\\WINDOWS\\SYSTEM\\COLOR\\JEUX"});
    EXPECT_EQ(tous(arbre, L"YSTEM\\COLOR"), Chemins{});
    EXPECT_EQ(tous(arbre, L"JEUX\\SYSTEM\\COLOR"), Chemins{});
}

TEST_F(Recherche_repertoire, la_racine_n_a_pas_de_nom_et_un_nom_vide_ne_trouve_rien) {
    EXPECT_EQ(tous(arbre, L""), Chemins{});
    EXPECT_EQ(tous(arbre, L"C:"), Chemins{});
    EXPECT_EQ(tous(arbre, L"C:\\"), Chemins{});
}

TEST_F(Recherche_repertoire, un_arbre_vide_ne_contient_rien) {
    EXPECT_EQ(Prochain_repertoire(Arbre(), L"SYSTEM", 0, majuscule), std::nullopt);
    EXPECT_EQ(Prochain_repertoire(arbre, L"JEUX", arbre.Nombre(), majuscule), std::nullopt);
}

struct Cas {
    const wchar_t * saisie;
    const wchar_t * chemin;
    const wchar_t * nom;
};

void PrintTo(const Cas & cas, std::ostream * sortie) {
    for (const wchar_t * c = cas.saisie; *c != L'\0'; ++c) {
        if (*c >= L' ' && *c < 127)
            *sortie << static_cast<char>(*c);
        else
            *sortie << '#' << static_cast<int>(*c);
    }
}

class Saisie : public testing::TestWithParam<Cas> {};

TEST_P(Saisie, le_chemin_et_le_nom_a_chercher_sont_ceux_que_l_utilisateur_voulait) {
    EXPECT_EQ(Chemin_saisi(GetParam().saisie), GetParam().chemin);
    EXPECT_EQ(Nom_saisi(GetParam().saisie), GetParam().nom);
}

constexpr Cas cas[] = {
    {L"", L"", L""},
    {L"   ", L"", L""},
    {L"SYSTEM", L"SYSTEM", L"SYSTEM"},
    {L"  Été 98 \r\n", L"Été 98", L"Été 98"},
    {L"\"Program Files\"", L"Program Files", L"Program Files"},
    {L" \" SYSTEM\\ \" ", L"SYSTEM\\", L"SYSTEM"},
    {L"\"", L"\"", L""},
    {L"\"\"", L"", L""},
    {L"\"SYSTEM", L"\"SYSTEM", L""},
    {L"SYSTEM\\COLOR\\", L"SYSTEM\\COLOR\\", L"SYSTEM\\COLOR"},
    {L"/system/color/", L"/system/color/", L"system\\color"},
    {L"\\", L"\\", L""},
    {L"\\\\\\", L"\\\\\\", L""},
    {L"a\\\\b", L"a\\\\b", L""},
    {L"C:\\SYSTEM", L"C:\\SYSTEM", L""},
    {L"d:", L"d:", L""},
    {L"SYS*", L"SYS*", L""},
    {L"SYSTE?", L"SYSTE?", L""},
    {L"a|b", L"a|b", L""},
    {L"a\tb", L"a\tb", L""},
};
INSTANTIATE_TEST_SUITE_P(Table, Saisie, testing::ValuesIn(cas));

}  // namespace
