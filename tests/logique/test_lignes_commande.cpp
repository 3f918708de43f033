#include "fileops/lignes_commande.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {
struct Cas {
    std::wstring entree;
    std::wstring attendu;
};

void Verifier(const std::vector<Cas> & cas, std::wstring (*fonction)(std::wstring_view)) {
    for (const Cas & c : cas) EXPECT_EQ(fonction(c.entree), c.attendu) << testing::PrintToString(c.entree);
}
}  // namespace

TEST(Programmes, seules_quatre_extensions_sont_executables) {
    for (const wchar_t * nom : {L"A.EXE", L"a.com", L"C:\\X Y\\b.Bat", L"p.pif"})
        EXPECT_TRUE(Est_executable(nom)) << nom;
    for (const wchar_t * nom : {L"README.TXT", L"EXE", L"a.exe.txt", L"C:\\D.EXE\\sans", L"", L"a."})
        EXPECT_FALSE(Est_executable(nom)) << nom;
}

TEST(Programmes, un_chemin_avec_des_blancs_est_entre_guillemets) {
    Verifier({{L"C:\\A.TXT", L"C:\\A.TXT"}, {L"C:\\MES DOCS\\A.TXT", L"\"C:\\MES DOCS\\A.TXT\""}},
             Citer_fichier);
    Verifier({{L"NOTEPAD.EXE", L"NOTEPAD.EXE"},
              {L"C:\\Program Files\\Ed\\ED.EXE", L"\"C:\\Program Files\\Ed\\ED.EXE\""},
              {L"C:\\Program Files\\Ed\\ED.EXE /N x", L"\"C:\\Program Files\\Ed\\ED.EXE\" /N x"},
              {L"C:\\Mes outils\\ed", L"\"C:\\Mes outils\\ed\""},
              {L"\"C:\\Mes outils\\ed.exe\" /N", L"\"C:\\Mes outils\\ed.exe\" /N"},
              {L"ED.EXE /N", L"ED.EXE /N"},
              {L"", L""}},
             Citer_programme);
}

TEST(Parametres, ceux_qui_contiennent_un_guillemet_passent_comme_saisis) {
    Verifier(
        {{L"a", L"a"}, {L"a b", L"\"a b\""}, {L"\"a b\" c", L"\"a b\" c"}, {L"a\"b", L"a\"b"}, {L"", L""}},
        Citer_parametres);
}

TEST(Groupe, une_liste_se_ferme_avant_d_atteindre_126_caracteres) {
    Groupe_fichiers           groupe;
    std::vector<std::wstring> listes;
    for (int i = 0; i < 20; ++i) {
        if (auto pleine =
                groupe.Ajouter(L"C:\\UN REPERTOIRE ASSEZ LONG\\FICHIER" + std::to_wstring(i) + L".TXT"))
            listes.push_back(*pleine);
    }
    listes.push_back(groupe.Liste());
    EXPECT_EQ(listes.size(), 10U);
    for (const std::wstring & liste : listes) {
        EXPECT_EQ(liste.front(), L' ');
        EXPECT_LT(liste.size() - 1, 126U);
    }
    EXPECT_EQ(
        listes[0],
        L" \"C:\\UN REPERTOIRE ASSEZ LONG\\FICHIER0.TXT\" \"C:\\UN REPERTOIRE ASSEZ LONG\\FICHIER1.TXT\"");
}

TEST(Groupe, la_limite_compte_la_liste_et_le_chemin) {
    Groupe_fichiers groupe;
    EXPECT_FALSE(groupe.Ajouter(std::wstring(59, L'a')));
    EXPECT_FALSE(groupe.Ajouter(std::wstring(65, L'b')));  // 60 + 65 = 125
    EXPECT_TRUE(groupe.Ajouter(L"c"));
    EXPECT_EQ(groupe.Liste(), L" c");
}

TEST(Groupe, un_chemin_trop_long_a_lui_seul_part_seul) {
    Groupe_fichiers groupe;
    EXPECT_FALSE(groupe.Ajouter(std::wstring(200, L'a')));
    const auto pleine = groupe.Ajouter(L"b");
    ASSERT_TRUE(pleine);
    EXPECT_EQ(pleine->size(), 201U);
}

TEST(Lignes, visualiseur_et_editeur) {
    EXPECT_EQ(Ligne_visualiseur(L"PELMIRA.EXE", L" C:\\A"), L"PELMIRA.EXE ovl C:\\A");
    EXPECT_EQ(Ligne_visualiseur(L"pelmira.exe", L" C:\\A"), L"pelmira.exe  C:\\A");
    EXPECT_EQ(Ligne_visualiseur(L"VOIR.EXE", L" C:\\A"), L"VOIR.EXE  C:\\A");
    EXPECT_TRUE(Editeur_groupe(L"PELMIRA.EXE"));
    EXPECT_EQ(Ligne_editeur(L"PELMIRA.EXE", L" C:\\A C:\\B"), L"PELMIRA.EXE C:\\A C:\\B");
    EXPECT_EQ(Ligne_editeur(L"NOTEPAD.EXE", L"lettre à léa.txt"), L"NOTEPAD.EXE \"lettre à léa.txt\"");
    EXPECT_EQ(Ligne_editeur(L"NOTEPAD.EXE", L"a.txt"), L"NOTEPAD.EXE a.txt");
}

TEST(Lignes, execution_avec_et_sans_parametres) {
    EXPECT_EQ(Ligne_execution(L"C:\\A.EXE", L""), L"C:\\A.EXE");
    EXPECT_EQ(Ligne_execution(L"C:\\A.EXE", L"/S"), L"C:\\A.EXE/S");
    EXPECT_EQ(Ligne_execution(L"C:\\A.EXE", L"un deux"), L"C:\\A.EXE \"un deux\"");
    EXPECT_EQ(Ligne_execution(L"C:\\A.EXE", L"\"un deux\" trois"), L"C:\\A.EXE \"un deux\" trois");
    EXPECT_EQ(Ligne_execution(L"C:\\B C\\A.EXE", L"/S"), L"\"C:\\B C\\A.EXE\"/S");
}

TEST(Associations, le_programme_est_ce_qui_precede_la_marque) {
    EXPECT_EQ(Programme_associe(L"C:\\WINDOWS\\NOTEPAD.EXE ^.txt"), L"C:\\WINDOWS\\NOTEPAD.EXE");
    EXPECT_EQ(Programme_associe(L"C:\\WINDOWS\\NOTEPAD.EXE"), L"C:\\WINDOWS\\NOTEPAD.EXE");
    EXPECT_EQ(Programme_associe(L" ^.txt"), L"");
    EXPECT_EQ(Ligne_association(L"C:\\Mes outils\\ED.EXE", L"C:\\un deux.txt"),
              L"\"C:\\Mes outils\\ED.EXE\" \"C:\\un deux.txt\"");
}

TEST(Boutons, valeurs) {
    const struct {
        std::wstring    valeur;
        Commande_bouton attendu;
    } cas[] = {
        {L"C:\\APPS\\ED.EXE", {L"C:\\APPS\\ED.EXE", L"EXE", L"C:\\APPS", false}},
        {L"C:\\APPS\\ED.exe ?", {L"C:\\APPS\\ED.exe", L"EXE", L"C:\\APPS", true}},
        {L"C:\\ED.COM", {L"C:\\ED.COM", L"COM", L"C:\\", false}},
        {L"ED.EXE", {L"ED.EXE", L"EXE", L"", false}},
        {L"C:\\APPS\\ED", {L"C:\\APPS\\ED", L"", L"C:\\APPS", false}},
        {L"C:\\jean.dupont\\ED.EXE", {L"C:\\jean.dupont\\ED.EXE", L"EXE", L"C:\\jean.dupont", false}},
        {L"C:\\D\\ED.EXE /F:C:\\Y\\Z.TXT", {L"C:\\D\\ED.EXE /F:C:\\Y\\Z.TXT", L"EXE", L"C:\\D", false}},
        {L"C:\\D\\page.html", {L"C:\\D\\page.html", L"HTM", L"C:\\D", false}},
        {L"", {L"", L"", L"", false}},
    };
    for (const auto & c : cas)
        EXPECT_EQ(Lire_bouton(c.valeur), c.attendu) << testing::PrintToString(c.valeur);
}

TEST(Ligne_de_commande, la_commande_suit_l_invite) {
    Verifier({{L"C:\\>dir", L"dir"},
              {L"C:\\>  dir /w  ", L"dir /w"},
              {L"C:\\>a > b", L"a > b"},
              {L"dir", L""},
              {L"C:\\>", L""},
              {L"C:\\>   ", L""}},
             Commande_saisie);
}

TEST(Ligne_de_commande, les_arguments_sont_entre_guillemets) {
    Verifier({{L"edit", L"edit"},
              {L"edit a.txt", L"edit \"a.txt\""},
              {L"edit a.txt b", L"edit \"a.txt b\""},
              {L"edit \"a b.txt\"", L"edit \"a b.txt\""},
              {L"\"C:\\Mes outils\\ed.exe\" a b", L"\"C:\\Mes outils\\ed.exe\" \"a b\""}},
             Ligne_saisie);
    Verifier({{L"edit", L"edit.COM"},
              {L"edit \"a.txt\"", L"edit.COM \"a.txt\""},
              {L"\"C:\\Mes outils\\ed\" x", L"\"C:\\Mes outils\\ed.COM\" x"}},
             Avec_com);
}

TEST(Interprete, rien_ne_termine_la_commande) {
    Verifier({{L"a.bat b & calc", L"a.bat b ^& calc"},
              {L"a.bat \"b & calc\"", L"a.bat \"b & calc\""},
              {L"a.bat \"b\" | c > d", L"a.bat \"b\" ^| c ^> d"},
              {L"a.bat ^", L"a.bat ^^"}},
             Proteger_interprete);
}
