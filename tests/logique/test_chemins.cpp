#include "platform/chemins.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

// One unit a character: widths are lengths.
double longueur(std::wstring_view texte) { return static_cast<double>(texte.size()); }

std::wstring raccourcir(std::wstring_view chemin, double largeur) {
    return Raccourcir(chemin, largeur, longueur, L"d:");
}

constexpr std::wstring_view long_nom = L"C:\\WINDOWS\\SYSTEM\\COLOR\\LONGNAME.TXT";

}  // namespace

TEST(Chemins, joindre_ne_double_pas_la_barre_d_une_racine) {
    EXPECT_EQ(Joindre(L"c:\\travail", L"a.txt"), L"c:\\travail\\a.txt");
    EXPECT_EQ(Joindre(L"c:\\", L"a.txt"), L"c:\\a.txt");
    EXPECT_EQ(Joindre(L"\\\\serveur\\partage", L"a"), L"\\\\serveur\\partage\\a");
    EXPECT_EQ(Joindre(L"", L"a.txt"), L"a.txt");
}

TEST(Chemins, un_chemin_se_separe_en_repertoire_et_nom) {
    struct Cas {
        std::wstring chemin, repertoire, nom;
    };
    const std::vector<Cas> table = {
        {L"c:\\travail\\a.txt", L"c:\\travail", L"a.txt"},
        {L"c:\\a.txt", L"c:\\", L"a.txt"},
        {L"c:\\", L"c:\\", L""},
        {L"c:\\travail\\", L"c:\\travail", L""},
        {L"\\a.txt", L"\\", L"a.txt"},
        {L"\\\\serveur\\partage\\a", L"\\\\serveur\\partage", L"a"},
        {L"\\\\?\\c:\\a.txt", L"\\\\?\\c:\\", L"a.txt"},
        {L"a.txt", L"", L"a.txt"},
        {L"", L"", L""},
    };
    for (const Cas & cas : table) {
        EXPECT_EQ(Repertoire_du_chemin(cas.chemin), cas.repertoire) << testing::PrintToString(cas.chemin);
        EXPECT_EQ(Nom_du_chemin(cas.chemin), cas.nom) << testing::PrintToString(cas.chemin);
    }
}

TEST(Chemins, l_extension_suit_le_dernier_point_du_nom) {
    struct Cas {
        std::wstring nom, extension;
    };
    const std::vector<Cas> table = {
        {L"a.txt", L"txt"},          {L"a.b.c", L"c"},        {L"a.", L""},
        {L"makefile", L""},          {L".profil", L"profil"}, {L"", L""},
        {L"c:\\a.b\\makefile", L""},
    };
    for (const Cas & cas : table)
        EXPECT_EQ(Extension_du_nom(cas.nom), cas.extension) << testing::PrintToString(cas.nom);
}

TEST(Chemins, seule_une_racine_garde_sa_barre_finale) {
    EXPECT_EQ(Sans_barre_finale(L"c:\\travail\\"), L"c:\\travail");
    EXPECT_EQ(Sans_barre_finale(L"c:\\travail"), L"c:\\travail");
    EXPECT_EQ(Sans_barre_finale(L"c:\\travail\\\\"), L"c:\\travail");
    EXPECT_EQ(Sans_barre_finale(L"c:\\"), L"c:\\");
    EXPECT_EQ(Sans_barre_finale(L"c:\\\\"), L"c:\\");
    EXPECT_EQ(Sans_barre_finale(L"\\"), L"\\");
    EXPECT_EQ(Sans_barre_finale(L""), L"");
}

TEST(Nom_simple, un_nom_de_fichier_ordinaire_est_accepte) {
    for (const wchar_t * nom : {L"a", L"a.txt", L"A B.txt", L" a", L".profil", L"été.doc", L"日本.txt",
                                L"a.b.c", L"CONTE.TXT", L"NULLE", L"COM", L"COM0", L"COM10", L"LPT", L"AUXI",
                                L"a.con", L"KCON", L"[a]{b}'c'+=,;%", L"CONIN"}) {
        EXPECT_TRUE(Nom_simple(nom)) << testing::PrintToString(std::wstring(nom));
    }
}

TEST(Nom_simple, un_chemin_un_motif_ou_un_caractere_de_controle_est_refuse) {
    for (const wchar_t * nom :
         {L"",   L".",  L"..",  L"...",  L"a\\b", L"a/b",  L"c:a",   L"a:flux", L"*",  L"a?.txt", L"a\"b",
          L"<a", L"a>", L"a|b", L"a\rb", L"a\tb", L"\x01", L"a\x7F", L"a ",     L"a.", L"a. ",    L" "}) {
        EXPECT_FALSE(Nom_simple(nom)) << testing::PrintToString(std::wstring(nom));
    }
    EXPECT_FALSE(Nom_simple(std::wstring_view(L"a\0b", 3)));
}

TEST(Nom_simple, un_nom_de_peripherique_est_refuse_avec_ou_sans_extension) {
    for (const wchar_t * nom :
         {L"CON", L"con", L"Prn", L"AUX.txt", L"nul.tar.gz", L"NUL .txt", L"COM1", L"com9.log", L"LPT1",
          L"lpt9.", L"COM\u00B9", L"LPT\u00B2.txt", L"com\u00B3", L"CONIN$", L"conout$.x"}) {
        EXPECT_FALSE(Nom_simple(nom)) << testing::PrintToString(std::wstring(nom));
    }
}

TEST(Raccourcir, un_chemin_qui_tient_est_inchange) {
    EXPECT_EQ(raccourcir(long_nom, longueur(long_nom)), long_nom);
    EXPECT_EQ(raccourcir(L"", 0), L"");
}

TEST(Raccourcir, des_repertoires_entiers_tombent_en_tete_jusqu_a_ce_que_le_reste_tienne) {
    const double prefixe = longueur(L"W:\\ . . .\\");
    struct Cas {
        std::wstring reste;
        double       largeur;
    };
    const std::vector<Cas> table = {
        {L"C:\\ . . .\\SYSTEM\\COLOR\\LONGNAME.TXT", prefixe + 25},
        {L"C:\\ . . .\\COLOR\\LONGNAME.TXT", prefixe + 24},
        {L"C:\\ . . .\\COLOR\\LONGNAME.TXT", prefixe + 18},
        {L"C:\\ . . .\\LONGNAME.TXT", prefixe + 17},
        {L"C:\\ . . .\\LONGNAME.TXT", prefixe + 12},
    };
    for (const Cas & cas : table) EXPECT_EQ(raccourcir(long_nom, cas.largeur), cas.reste) << cas.largeur;
}

TEST(Raccourcir, un_nom_n_est_jamais_coupe_meme_s_il_ne_tient_pas) {
    EXPECT_EQ(raccourcir(long_nom, 1), L"C:\\ . . .\\LONGNAME.TXT");
    EXPECT_EQ(raccourcir(L"C:\\LONGNAME.TXT", 5), L"C:\\ . . .\\LONGNAME.TXT");
    EXPECT_EQ(raccourcir(long_nom, -100), L"C:\\ . . .\\LONGNAME.TXT");
}

TEST(Raccourcir, un_chemin_sans_lettre_prend_l_unite_donnee) {
    EXPECT_EQ(raccourcir(L"\\\\serveur\\partage\\rapports\\a.txt", 20), L"d:\\ . . .\\a.txt");
    EXPECT_EQ(raccourcir(L"UNLONGNOMSANSBARRE.TXT", 5), L"d:\\ . . .\\UNLONGNOMSANSBARRE.TXT");
    EXPECT_EQ(Raccourcir(L"\\\\s\\p\\nom", 1, longueur, L"e: [DONNEES]"), L"e:\\ . . .\\nom");
}

TEST(Raccourcir, la_place_du_prefixe_est_celle_de_la_lettre_la_plus_large) {
    const auto mesure = [](std::wstring_view texte) {
        double somme = 0;
        for (const wchar_t c : texte) somme += c == L'W' ? 3 : 1;
        return somme;
    };
    // Twelve units for the prefix with W, ten with C: at 23 only eleven are left for a rest of twelve.
    EXPECT_EQ(Raccourcir(L"C:\\AAAAAAAAAA\\B\\LONGNAME.TX", 23, mesure, L"d:"), L"C:\\ . . .\\LONGNAME.TX");
}
