#include "platform/motifs.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

wchar_t plier(wchar_t c) {
    if (c >= L'a' && c <= L'z') return static_cast<wchar_t>(c - L'a' + L'A');
    return c == L'é' ? L'É' : c;
}

bool accepte(std::wstring_view motif, std::wstring_view nom) { return Motifs(motif, plier).Accepte(nom); }

struct Cas {
    std::wstring motif, nom;
    bool         attendu;
};

void verifier(const std::vector<Cas> & table) {
    for (const Cas & cas : table) {
        EXPECT_EQ(accepte(cas.motif, cas.nom), cas.attendu) << "pattern " << testing::PrintToString(cas.motif)
                                                            << ", name " << testing::PrintToString(cas.nom);
    }
}

}  // namespace

TEST(Motifs, etoile_point_etoile_accepte_tous_les_noms) {
    verifier({
        {L"*.*", L"LISEZMOI.TXT", true},
        {L"*.*", L"makefile", true},
        {L"*.*", L".profil", true},
        {L"*.*.", L"makefile", true},
        {L"*", L"a.b.c", true},
    });
    EXPECT_TRUE(Motifs(L"*.*", plier).Tout());
    EXPECT_TRUE(Motifs(L"*", plier).Tout());
    EXPECT_FALSE(Motifs(L"*.txt", plier).Tout());
}

TEST(Motifs, etoile_point_accepte_les_noms_sans_extension) {
    verifier({
        {L"*.", L"makefile", true},
        {L"*.", L"lisezmoi.txt", false},
        {L"*.", L".profil", false},
        {L"*.", L"a.b.c", false},
        {L"m*.", L"makefile", true},
        {L"m*.", L"lisezmoi", false},
        {L"m*.", L"makefile.old", false},
        {L"makefile.", L"makefile", true},
        {L"makefile.", L"makefile.old", false},
    });
}

TEST(Motifs, un_motif_d_extension_porte_sur_la_fin_du_nom) {
    verifier({
        {L"*.txt", L"lisezmoi.txt", true}, {L"*.txt", L"a.b.txt", true},
        {L"*.txt", L"a.txt.bak", false},   {L"*.txt", L"lisezmoi.txt2", false},
        {L"*.txt", L"txt", false},         {L"*.txt", L".txt", true},
        {L"*.b*", L"a.b.c", true},         {L"*.b*", L"a.bak", true},
        {L"a*.c", L"abc.c", true},         {L"*.a.*", L"x.a.b", true},
        {L"x*.*y", L"x.1.y", true},        {L"*a*b*", L"xxaxxbxx", true},
        {L"*a*b*", L"xxbxxaxx", false},    {L"*a*.b", L"aa.ab", false},
        {L"*a*.b", L"a.xa.b", true},       {L"nom.*", L"nom", true},
        {L"nom.*", L"nom.", true},         {L"nom.*", L"noms", false},
        {L"nom.*", L"nom.a.b", true},
    });
}

TEST(Motifs, un_point_d_interrogation_vaut_un_caractere_ou_aucun_en_fin_de_nom) {
    verifier({
        {L"?", L"a", true},
        {L"?", L"ab", false},
        {L"???", L"a", true},
        {L"???", L"abc", true},
        {L"???", L"abcd", false},
        {L"a?c", L"abc", true},
        {L"a?c", L"ac", false},
        {L"a?b", L"a.b", false},
        {L"????.txt", L"a.txt", true},
        {L"????.txt", L"abcde.txt", false},
        {L"a.???", L"a", true},
        {L"a.???", L"a.b", true},
        {L"a.???", L"a.bcde", false},
        {L"*.?", L"a.b", true},
        {L"*.?", L"abc", true},
        {L"*.?", L"a.bc", false},
        {L"a*.?", L"a.b.cd", false},
        {L"?.?", L"a", true},
        {L"?.?", L"a.b", true},
        {L"?.?", L"a.b.c", false},
    });
}

TEST(Motifs, la_casse_ne_compte_pas) {
    verifier({
        {L"*.TXT", L"a.txt", true},
        {L"été.*", L"ÉTÉ.doc", true},
        {L"été.*", L"ete.doc", false},
    });
}

TEST(Motifs, plusieurs_motifs_sont_separes_par_des_points_virgules) {
    verifier({
        {L"*.c;*.h", L"a.c", true},
        {L"*.c;*.h", L"a.h", true},
        {L"*.c;*.h", L"a.o", false},
        {L" *.c ; *.h ", L"a.h", true},
        {L"*.c;", L"a.h", false},
        {L";;*.c", L"a.c", true},
        {L";;*.c", L"a.h", false},
        {L"a b.c", L"a b.c", true},
    });
}

TEST(Motifs, un_texte_sans_motif_accepte_tout) {
    for (const wchar_t * texte : {L"", L"   ", L";", L" ; ; "}) EXPECT_TRUE(accepte(texte, L"a.b")) << texte;
}

TEST(Motifs, un_point_seul_n_est_le_nom_d_aucun_fichier) {
    verifier({{L".", L"a", false}, {L".", L"a.b", false}, {L"..", L"a", false}});
}

TEST(Motifs, un_nom_hors_de_la_page_de_codes_est_un_nom_comme_un_autre) {
    verifier({
        {L"*.txt", L"日本.txt", true},
        {L"??.txt", L"日本.txt", true},
        {L"日*", L"日本.txt", true},
        {L"本*", L"日本.txt", false},
    });
}

TEST(Motifs, des_etoiles_nombreuses_ne_font_pas_attendre) {
    std::wstring motif;
    for (int i = 0; i < 60; ++i) motif += L"*a";
    const Motifs motifs(motif + L"b", plier);
    const auto   debut = std::chrono::steady_clock::now();
    EXPECT_FALSE(motifs.Accepte(std::wstring(255, L'a')));
    EXPECT_LT(std::chrono::steady_clock::now() - debut, std::chrono::seconds(2));
}

TEST(Motifs, un_caractere_qu_aucun_nom_ne_porte_est_refuse) {
    for (const wchar_t c : std::wstring(L"\\/:\"<>|\t\r\n\x01\x1F")) {
        EXPECT_FALSE(Motifs::Valide(std::wstring(L"*.") + c)) << static_cast<unsigned>(c);
    }
    EXPECT_FALSE(Motifs::Valide(std::wstring_view(L"a\0b", 3)));
    for (const wchar_t * texte : {L"*.*", L"", L"*.c;*.h", L" é?.txt", L"[a] {b} 'c' +=,"}) {
        EXPECT_TRUE(Motifs::Valide(texte)) << texte;
    }
}
