#include "app/lignes_commande.h"

#include "logique/interprete.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {
struct Cas {
    std::wstring entree;
    std::wstring attendu;
};

// The disk: what it holds.
Existe Disque(std::vector<std::wstring> chemins) {
    return [chemins = std::move(chemins)](std::wstring_view chemin) {
        return std::find(chemins.begin(), chemins.end(), chemin) != chemins.end();
    };
}
const Existe rien = Disque({});

void Verifier(const std::vector<Cas> & cas, std::wstring (*fonction)(std::wstring_view)) {
    for (const Cas & c : cas) EXPECT_EQ(fonction(c.entree), c.attendu) << testing::PrintToString(c.entree);
}

struct Cas_bouton {
    std::wstring    valeur;
    Commande_bouton attendu;
};
void Verifier_boutons(const Existe & existe, const std::vector<Cas_bouton> & cas) {
    for (const Cas_bouton & c : cas)
        EXPECT_EQ(Lire_bouton(c.valeur, existe), c.attendu) << testing::PrintToString(c.valeur);
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
}

TEST(Programmes, le_disque_dit_ou_finit_leur_nom) {
    const Existe disque =
        Disque({L"NOTEPAD.EXE", L"ED.EXE", L"C:\\Program Files\\Ed\\ED.EXE", L"C:\\mes.bat vieux\\x.exe",
                L"C:\\deux.bat", L"C:\\deux.bat vieux\\x.exe", L"edit", L"C:\\Program Files\\Ed\\ED"});
    const std::vector<Cas> cas{
        {L"NOTEPAD.EXE", L"NOTEPAD.EXE"},
        {L"ED.EXE /N", L"ED.EXE /N"},
        {L"C:\\Program Files\\Ed\\ED.EXE", L"\"C:\\Program Files\\Ed\\ED.EXE\""},
        {L"C:\\Program Files\\Ed\\ED.EXE /N x", L"\"C:\\Program Files\\Ed\\ED.EXE\" /N x"},
        {L"C:\\Mes outils\\ed", L"\"C:\\Mes outils\\ed\""},
        {L"edit /N", L"edit /N"},
        {L"C:\\Program Files\\Ed\\ED /N", L"\"C:\\Program Files\\Ed\\ED\" /N"},
        {L"absent /N", L"\"absent /N\""},
        {L"\"C:\\Mes outils\\ed.exe\" /N", L"\"C:\\Mes outils\\ed.exe\" /N"},
        {L"C:\\mes.bat vieux\\x.exe", L"\"C:\\mes.bat vieux\\x.exe\""},
        {L"C:\\mes.bat vieux\\x.exe /N", L"\"C:\\mes.bat vieux\\x.exe\" /N"},
        {L"C:\\deux.bat vieux\\x.exe /N", L"\"C:\\deux.bat vieux\\x.exe\" /N"},
        {L"C:\\deux.bat vieux\\y.exe", L"C:\\deux.bat vieux\\y.exe"},
        // One possible end alone, and the disk does not know it.
        {L"C:\\mes.bat vieux\\lettre.txt", L"\"C:\\mes.bat vieux\\lettre.txt\""},
        {L"", L""}};
    for (const Cas & c : cas)
        EXPECT_EQ(Citer_programme(c.entree, disque), c.attendu) << testing::PrintToString(c.entree);
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
    EXPECT_EQ(Ligne_visualiseur(L"PELMIRA.EXE", L" C:\\A", rien), L"PELMIRA.EXE ovl C:\\A");
    EXPECT_EQ(Ligne_visualiseur(L"pelmira.exe", L" C:\\A", rien), L"pelmira.exe  C:\\A");
    EXPECT_EQ(Ligne_visualiseur(L"VOIR.EXE", L" C:\\A", rien), L"VOIR.EXE  C:\\A");
    EXPECT_TRUE(Editeur_groupe(L"PELMIRA.EXE"));
    EXPECT_EQ(Ligne_editeur(L"PELMIRA.EXE", L" C:\\A C:\\B", rien), L"PELMIRA.EXE C:\\A C:\\B");
    EXPECT_EQ(Ligne_editeur(L"NOTEPAD.EXE", L"lettre à léa.txt", rien), L"NOTEPAD.EXE \"lettre à léa.txt\"");
    EXPECT_EQ(Ligne_editeur(L"NOTEPAD.EXE", L"a.txt", rien), L"NOTEPAD.EXE a.txt");
}

TEST(Lignes, execution_avec_et_sans_parametres) {
    EXPECT_EQ(Ligne_execution(L"C:\\A.EXE", L""), L"C:\\A.EXE");
    EXPECT_EQ(Ligne_execution(L"C:\\A.EXE", L"/S"), L"\"C:\\A.EXE\"/S");
    EXPECT_EQ(Ligne_execution(L"C:\\A.EXE", L"un deux"), L"C:\\A.EXE \"un deux\"");
    EXPECT_EQ(Ligne_execution(L"C:\\A.EXE", L"\"un deux\" trois"), L"C:\\A.EXE \"un deux\" trois");
    EXPECT_EQ(Ligne_execution(L"C:\\B C\\A.EXE", L"/S"), L"\"C:\\B C\\A.EXE\"/S");
}

TEST(Associations, le_programme_est_ce_qui_precede_la_marque) {
    EXPECT_EQ(Programme_associe(L"C:\\WINDOWS\\NOTEPAD.EXE ^.txt"), L"C:\\WINDOWS\\NOTEPAD.EXE");
    EXPECT_EQ(Programme_associe(L"C:\\WINDOWS\\NOTEPAD.EXE"), L"C:\\WINDOWS\\NOTEPAD.EXE");
    EXPECT_EQ(Programme_associe(L" ^.txt"), L"");
    EXPECT_EQ(Ligne_association(L"C:\\Mes outils\\ED.EXE", L"C:\\un deux.txt", rien),
              L"\"C:\\Mes outils\\ED.EXE\" \"C:\\un deux.txt\"");
}

TEST(Boutons, sans_le_fichier_l_extension_suit_le_premier_point_hors_d_un_repertoire) {
    const std::vector<Cas_bouton> cas = {
        {L"C:\\APPS\\ED.EXE", {L"C:\\APPS\\ED.EXE", L"EXE", L"C:\\APPS", false}},
        {L"C:\\APPS\\ED.exe ?", {L"C:\\APPS\\ED.exe", L"EXE", L"C:\\APPS", true}},
        {L"C:\\ED.COM", {L"C:\\ED.COM", L"COM", L"C:\\", false}},
        {L"ED.EXE", {L"ED.EXE", L"EXE", L"", false}},
        {L"\\ED.EXE", {L"\\ED.EXE", L"EXE", L"\\", false}},
        {L"C:\\APPS\\ED", {L"C:\\APPS\\ED", L"", L"C:\\APPS", false}},
        {L"C:\\jean.dupont\\ED.EXE", {L"C:\\jean.dupont\\ED.EXE", L"EXE", L"C:\\jean.dupont", false}},
        {L"C:\\D\\ED.EXE /F:C:\\Y\\Z.TXT", {L"C:\\D\\ED.EXE /F:C:\\Y\\Z.TXT", L"EXE", L"C:\\D", false}},
        {L"C:\\D\\page.html", {L"C:\\D\\page.html", L"HTM", L"C:\\D", false}},
        {L"C:\\D\\a.b.txt", {L"C:\\D\\a.b.txt", L"B.T", L"C:\\D", false}},
        {L"", {L"", L"", L"", false}},
    };
    Verifier_boutons(rien, cas);
}

TEST(Boutons, le_fichier_que_le_disque_connait_donne_l_extension_et_le_repertoire) {
    const Existe disque = Disque({L"C:\\mes.bat vieux\\lettre.txt", L"C:\\mes.bat vieux\\a.v2.exe",
                                  L"C:\\D\\a.b c.txt", L"C:\\d.x\\sans", L"C:\\D\\ED.EXE"});
    const std::vector<Cas_bouton> cas = {
        {L"C:\\mes.bat vieux\\lettre.txt",
         {L"C:\\mes.bat vieux\\lettre.txt", L"TXT", L"C:\\mes.bat vieux", false}},
        {L"C:\\mes.bat vieux\\a.v2.exe /N ?",
         {L"C:\\mes.bat vieux\\a.v2.exe /N", L"EXE", L"C:\\mes.bat vieux", true}},
        {L"C:\\D\\a.b c.txt", {L"C:\\D\\a.b c.txt", L"TXT", L"C:\\D", false}},
        {L"C:\\d.x\\sans", {L"C:\\d.x\\sans", L"", L"C:\\d.x", false}},
        {L"C:\\D\\ED.EXE C:\\x.y\\z.txt", {L"C:\\D\\ED.EXE C:\\x.y\\z.txt", L"EXE", L"C:\\D", false}},
    };
    Verifier_boutons(disque, cas);
}

TEST(Boutons, un_document_entre_guillemets_se_lit_sans_eux) {
    const std::vector<Cas_bouton> cas = {
        {L"\"C:\\un deux.txt\"", {L"C:\\un deux.txt", L"TXT", L"C:\\", false}},
        {L" \"C:\\D E\\un.txt\" ?", {L"C:\\D E\\un.txt", L"TXT", L"C:\\D E", true}},
        {L"\"C:\\D E\\un.txt", {L"C:\\D E\\un.txt", L"TXT", L"C:\\D E", false}},
        {L"\"C:\\D E\\ed.exe\" /N", {L"\"C:\\D E\\ed.exe\" /N", L"EXE", L"C:\\D E", false}},
        {L"\"\"", {L"", L"", L"", false}},
        {L"\"", {L"", L"", L"", false}},
    };
    Verifier_boutons(rien, cas);
}

TEST(Ligne_de_commande, la_commande_suit_l_invite) {
    Verifier({{L"C:\\>dir", L"dir"},
              {L"C:\\>  dir /w  ", L"dir /w"},
              {L"C:\\>a > b", L"a > b"},
              {L"C:\\>\ta\tb\r\nc\t", L"a b  c"},
              {L"dir", L""},
              {L"C:\\>", L""},
              {L"C:\\>   ", L""}},
             Commande_saisie);
}

TEST(Ligne_de_commande, les_arguments_sont_entre_guillemets) {
    const std::vector<Cas> cas{{L"edit", L"edit"},
                               {L"edit a.txt", L"edit \"a.txt\""},
                               {L"edit a.txt b", L"edit \"a.txt b\""},
                               {L"edit \"a b.txt\"", L"edit \"a b.txt\""},
                               {L"\"C:\\Mes outils\\ed.exe\" a b", L"\"C:\\Mes outils\\ed.exe\" \"a b\""},
                               {L"\"C:\\Mes outils\\ed.exe\"\"a b\"", L"\"C:\\Mes outils\\ed.exe\" \"a b\""},
                               {L"\"C:\\ed.exe\"/N", L"\"C:\\ed.exe\"/N"}};
    for (const Cas & c : cas)
        EXPECT_EQ(Ligne_saisie(c.entree, rien), c.attendu) << testing::PrintToString(c.entree);
    Verifier({{L"edit", L"edit.COM"},
              {L"edit \"a.txt\"", L"edit.COM \"a.txt\""},
              {L"\"C:\\Mes outils\\ed\" x", L"\"C:\\Mes outils\\ed.COM\" x"}},
             Avec_com);
}

TEST(Ligne_de_commande, un_programme_tape_avec_son_repertoire_est_lance_lui_meme_malgre_les_blancs) {
    const Existe disque = Disque({L"C:\\Mes", L"C:\\Mes outils\\ed.exe", L"C:\\Mes outils\\ed", L"a b.exe",
                                  L"C:\\ed", L"C:\\ed a.txt"});
    const std::vector<Cas> cas{
        {L"C:\\Mes outils\\ed.exe", L"\"C:\\Mes outils\\ed.exe\""},
        {L"C:\\Mes outils\\ed.exe a b", L"\"C:\\Mes outils\\ed.exe\" \"a b\""},
        {L"C:\\Mes outils\\ed.exe \"a b\" c", L"\"C:\\Mes outils\\ed.exe\" \"a b\" c"},
        {L"C:\\Mes outils\\ed", L"\"C:\\Mes outils\\ed\""},
        {L"C:\\Mes outils\\ed /N", L"\"C:\\Mes outils\\ed\" \"/N\""},
        // Not a program that the disk knows, or a name alone: the first blank is the end.
        {L"C:\\Mes outils\\autre.exe", L"C:\\Mes \"outils\\autre.exe\""},
        {L"C:\\ed a.txt", L"C:\\ed \"a.txt\""},
        {L"a b.exe", L"a \"b.exe\""},
    };
    for (const Cas & c : cas)
        EXPECT_EQ(Ligne_saisie(c.entree, disque), c.attendu) << testing::PrintToString(c.entree);
}

TEST(Interprete, une_ligne_le_lance_quand_son_programme_est_un_fichier_de_commandes) {
    for (const wchar_t * ligne : {L"a.bat", L"A.BAT x", L"\"C:\\B C\\a.Bat\" x", L"\"C:\\B C\\a.cmd",
                                  L"a.bat. & x", L"\"a.bat . \"/S", L"a.bat\t& x", L"  a.bat & x"})
        EXPECT_TRUE(Lance_interprete(ligne)) << ligne;
    for (const wchar_t * ligne :
         {L"a.exe a.bat", L"bat", L"a.bat.exe", L"C:\\D.BAT\\x y.bat", L"", L"\"", L"\"a b\" .bat"})
        EXPECT_FALSE(Lance_interprete(ligne)) << ligne;
}

TEST(Interprete, rien_ne_termine_la_commande) {
    Verifier({{L"a.bat b & calc", L"a.bat b ^& calc"},
              {L"a.bat \"b & calc\"", L"a.bat \"b & calc\""},
              {L"a.bat \"b\" | c > d", L"a.bat \"b\" ^| c ^> d"},
              {L"a.bat \"b & c", L"a.bat \"b & c"},  // open to the end of the line
              {L"a.bat \"b\" c\" & d\" & e", L"a.bat \"b\" c\" & d\" ^& e"},
              {L"a.bat ^", L"a.bat ^^"},
              {L"a.bat b^\"c & d", L"a.bat b^^\"c & d"},
              {L"a.bat b\r\ncalc", L"a.bat b  calc"},
              {L"\"a.bat\"&calc", L"\"a.bat\" ^&calc"},
              {L"\"a.bat\"/S", L"\"a.bat\" /S"},
              {L"\"C:\\b & c\\a.bat\" d & e", L"\"C:\\b & c\\a.bat\" d ^& e"},
              {L"C:\\b&c\\a.bat d&e", L"\"C:\\b&c\\a.bat\" d^&e"},
              {L"C:\\b,c\\a.bat", L"\"C:\\b,c\\a.bat\""},
              {L"a.bat %PATH%", L"a.bat %PATH%"}},
             Proteger_interprete);
}

TEST(Interprete, seule_la_ligne_d_un_fichier_de_commandes_est_protegee) {
    Verifier({{L"a.bat b & c", L"a.bat b ^& c"},
              {L"a.exe b & c", L"a.exe b & c"},
              {L"\"C:\\D E\\a.exe\" ^", L"\"C:\\D E\\a.exe\" ^"}},
             Ligne_sure);
}

TEST(Interprete, une_commande_saisie_n_en_lance_jamais_deux) {
    for (const wchar_t * saisie : {L">\"a.bat\" & calc", L">\"a.bat\"&calc", L">a.bat\t& calc",
                                   L">a.bat \"x\" & calc", L">a.bat x\" & calc \"y", L">a.bat ^\" & calc",
                                   L">\"C:\\b c\\a.bat\"\" & calc", L">a.cmd. & calc", L">a&b.bat x|y"}) {
        const std::wstring ligne = Ligne_sure(Ligne_saisie(Commande_saisie(saisie), rien));
        EXPECT_FALSE(se_termine(ligne)) << testing::PrintToString(ligne);
    }
    EXPECT_TRUE(se_termine(L"a.bat & calc"));
    EXPECT_TRUE(se_termine(L"a.bat \"x\" | calc"));
    EXPECT_TRUE(se_termine(L"a.bat ^^& calc"));
}

TEST(Interprete, un_fichier_est_cite_pour_lui_des_qu_il_pourrait_le_couper) {
    EXPECT_EQ(Citer_argument(L"a.bat", L"C:\\b&c.txt"), L"\"C:\\b&c.txt\"");
    EXPECT_EQ(Citer_argument(L"\"C:\\d e\\a.bat\" /N", L"C:\\b,c.txt"), L"\"C:\\b,c.txt\"");
    EXPECT_EQ(Citer_argument(L"a.bat", L"C:\\b.txt"), L"C:\\b.txt");
    EXPECT_EQ(Citer_argument(L"a.exe", L"C:\\b&c.txt"), L"C:\\b&c.txt");
    EXPECT_EQ(Ligne_association(L"a.bat", L"b&c.txt", rien), L"a.bat \"b&c.txt\"");
    EXPECT_EQ(Ligne_editeur(L"a.bat", L"b&c.txt", rien), L"a.bat \"b&c.txt\"");
    Groupe_fichiers groupe(L"a.bat");
    groupe.Ajouter(L"b&c.txt");
    EXPECT_EQ(groupe.Liste(), L" \"b&c.txt\"");
}

TEST(Interprete, deux_signes_pour_cent_peuvent_nommer_une_variable) {
    EXPECT_TRUE(Serait_developpe(L"a.bat C:\\%TEMP%.txt"));
    EXPECT_TRUE(Serait_developpe(L"\"C:\\100 %\\a.bat\" C:\\100%.txt"));
    EXPECT_FALSE(Serait_developpe(L"a.bat C:\\100% coton.txt"));
    EXPECT_FALSE(Serait_developpe(L"a.exe C:\\%TEMP%.txt"));
}
