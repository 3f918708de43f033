#include "search/modeles.h"

#include <gtest/gtest.h>

#include <chrono>
#include <vector>

namespace {

wchar_t plier(wchar_t c) {
    if (c >= L'a' && c <= L'z') return static_cast<wchar_t>(c - L'a' + L'A');
    return c == L'é' ? L'É' : c;
}

bool exclut(std::wstring_view modele, std::wstring_view nom) { return Exclusion(modele, plier).Exclut(nom); }

struct Rangee {
    std::wstring saisi, complet;
    bool         correct;
};

struct Cas {
    std::wstring modele, texte;
    bool         attendu;
};

}  // namespace

TEST(Modeles, un_modele_saisi_est_complete_puis_accepte_ou_refuse) {
    const std::vector<Rangee> table{
        {L".bat", L"*.bat", true},
        {L"*.BAT", L"*.BAT", true},
        {L"ms*", L"ms*.*", true},
        {L".", L"*.", true},
        {L"*.", L"*.", true},
        {L"*.*", L"*.*", false},
        {L"*", L"*.*", false},
        {L"?.?", L"?.?", true},
        {L"?", L"?.*", true},
        {L"lisezmoi", L"lisezmoi.*", true},
        {L"lisezmoi.txt", L"lisezmoi.txt", true},
        {L"a.b.c", L"a.b.c", true},
        {L".tar.gz", L"*.tar.gz", true},
        {L"..", L"*..", false},
        {L".*", L"*.*", false},
        {L"**", L"**.*", false},
        {L"*.**", L"*.**", false},
        {L"**.", L"**.", false},
        {L"m*.", L"m*.", true},
        {L" ", L"*.*", false},
        {L"*.* ", L"*.*", false},
        {L" a", L"a.*", true},
        {L"  *.bat ", L"*.bat", true},
        {L" .bat", L"*.bat", true},
        {L"ms* ", L"ms*.*", true},
        {L" . ", L"*.", true},
        {L" a b ", L"a b.*", true},
        {L"日本", L"日本.*", true},
        {L"a\\b.txt", L"a\\b.txt", false},
        {L"c:a.txt", L"c:a.txt", false},
        {L"a<b.txt", L"a<b.txt", false},
        {L"\"a.txt\"", L"\"a.txt\"", false},
    };
    for (const Rangee & rangee : table) {
        EXPECT_EQ(Completer_modele(rangee.saisi), rangee.complet) << testing::PrintToString(rangee.saisi);
        EXPECT_EQ(Modele_correct(rangee.complet), rangee.correct) << testing::PrintToString(rangee.saisi);
    }
}

TEST(Modeles, completer_un_modele_complet_ne_le_change_plus) {
    for (const wchar_t * saisi : {L".bat", L"ms*", L".", L"a.b", L"*", L"..", L"?"}) {
        const std::wstring complet = Completer_modele(saisi);
        EXPECT_EQ(Completer_modele(complet), complet) << testing::PrintToString(std::wstring(saisi));
    }
}

TEST(Modeles, une_exclusion_annule_la_recherche_du_meme_texte_casse_comprise) {
    const std::vector<Cas> table{
        {L"*.bat", L"*.bat", true},   {L"*.bat", L"*.BAT", false},
        {L"*.BAT", L"*.bat", false},  {L"*.doc", L"*.bat", false},
        {L"*.b*", L"*.bat", true},    {L"*.?at", L"*.bat", true},
        {L"?.bat", L"*.bat", true},   {L"?.bat", L"ab.bat", false},
        {L"*.", L"*.", true},         {L"*.", L"ms*.*", false},
        {L"ms*.*", L"ms*.*", true},   {L"ms*.*", L"msdos.sys", true},
        {L"m*s*.*", L"ms.txt", true}, {L"*a*b*", L"xxaxxb", true},
        {L"*a*b", L"xxbxxa", false},  {L"**.c", L"a.c", true},
        {L"a?", L"a", false},         {L"", L"", true},
        {L"", L"a", false},           {L"*", L"", true},
    };
    for (const Cas & cas : table) {
        EXPECT_EQ(Texte_conforme(cas.texte, cas.modele), cas.attendu)
            << testing::PrintToString(cas.texte) << " / " << testing::PrintToString(cas.modele);
    }
}

TEST(Modeles, une_exclusion_laisse_de_cote_les_noms_qui_lui_repondent_sans_regarder_la_casse) {
    const std::vector<Cas> table{
        {L"*.bat", L"AUTOEXEC.BAT", true},
        {L"*.BAT", L"autoexec.bat", true},
        {L"*.bat", L"a.bat.old", false},
        {L"été.*", L"ÉTÉ.doc", true},
        {L"été.*", L"ete.doc", false},
        {L"?.txt", L"a.txt", true},
        {L"?.txt", L"ab.txt", false},
        {L"?.txt", L".txt", false},
        {L"*.", L"makefile", true},
        {L"*.", L"lisez.moi", false},
        {L"m*.", L"makefile", true},
        {L"m*.", L"lisezmoi", false},
        {L"m*.", L"makefile.old", false},
        {L"ms*.*", L"msdos.sys", true},
        {L"ms*.*", L"msdos", false},
        {L"", L"", false},
        {L"", L"a.txt", false},
        {L"日*.txt", L"日本.txt", true},
    };
    for (const Cas & cas : table) {
        EXPECT_EQ(exclut(cas.modele, cas.texte), cas.attendu)
            << testing::PrintToString(cas.modele) << ", " << testing::PrintToString(cas.texte);
    }
}

TEST(Modeles, des_etoiles_nombreuses_ne_font_pas_attendre) {
    std::wstring modele;
    for (int i = 0; i < 60; ++i) modele += L"*a";
    const auto debut = std::chrono::steady_clock::now();
    EXPECT_FALSE(exclut(modele + L"b", std::wstring(255, L'a')));
    EXPECT_LT(std::chrono::steady_clock::now() - debut, std::chrono::seconds(2));
}

TEST(Modeles, le_nombre_de_fichiers_trouves_est_au_pluriel_a_partir_de_deux) {
    EXPECT_EQ(Libelle_trouves(0), L"0 fichier trouvé");
    EXPECT_EQ(Libelle_trouves(1), L"1 fichier trouvé");
    EXPECT_EQ(Libelle_trouves(2), L"2 fichiers trouvés");
    EXPECT_EQ(Libelle_trouves(70000), L"70000 fichiers trouvés");
}

TEST(Modeles, les_repertoires_qui_n_ont_pas_pu_etre_lus_sont_comptes) {
    EXPECT_EQ(Libelle_sautes(0), L"");
    EXPECT_EQ(Libelle_sautes(1), L"1 répertoire n'a pas pu être lu.");
    EXPECT_EQ(Libelle_sautes(40000), L"40000 répertoires n'ont pas pu être lus.");
}

TEST(Modeles, une_recherche_vaine_nomme_le_modele_et_le_disque) {
    EXPECT_EQ(Libelle_rien(L"*.xyz", L"C:"),
              L"Pas de fichier correspondant à '*.xyz'\r                  sur le disque C:");
}
