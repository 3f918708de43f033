#include "platform/fichiers.h"
#include "services/banc.h"

namespace {

class Chemins : public Banc {};

TEST(Forme, le_prefixe_n_est_mis_que_la_ou_le_chemin_le_demande) {
    const std::wstring long_nom(250, L'x');
    const struct {
        std::wstring chemin, forme;
    } lignes[] = {
        {L"c:\\a\\b.txt", L"c:\\a\\b.txt"},
        {L"c:\\", L"c:\\"},
        {L"c:\\" + long_nom, L"\\\\?\\c:\\" + long_nom},
        {L"c:/a/./b/../" + long_nom, L"\\\\?\\c:\\a\\" + long_nom},
        {L"c:\\..\\" + long_nom, L"\\\\?\\c:\\" + long_nom},
        {L"\\\\serveur\\partage\\" + long_nom, L"\\\\?\\UNC\\serveur\\partage\\" + long_nom},
        {L"\\\\?\\c:\\a.", L"\\\\?\\c:\\a."},
        {L"c:\\a.", L"\\\\?\\c:\\a."},
        {L"c:\\a \\b", L"\\\\?\\c:\\a \\b"},
        {L"c:\\nul", L"\\\\?\\c:\\nul"},
        {L"c:\\aux.txt", L"\\\\?\\c:\\aux.txt"},
        {L"c:\\com1.tar.gz", L"\\\\?\\c:\\com1.tar.gz"},
        {L"c:\\com0x", L"c:\\com0x"},
        {L"c:\\nulle", L"c:\\nulle"},
        {L"c:\\.", L"c:\\."},
        {L"", L""},
    };
    for (const auto & ligne : lignes) EXPECT_EQ(ligne.forme, Forme_longue(ligne.chemin));
}

TEST_F(Chemins, un_chemin_relatif_part_du_repertoire_courant) {
    Repertoire(L"ici");
    Changer_repertoire(Chemin(L"ici"));
    EXPECT_EQ(Chemin(L"ici"), Repertoire_courant());
    EXPECT_EQ(Chemin(L"ici\\la.txt"), Chemin_complet(L"la.txt"));
    EXPECT_EQ(Chemin(L"autre"), Chemin_complet(L"..\\autre"));
    EXPECT_EQ(Chemin(L"ici"), Chemin_complet(Racine().substr(0, 2)));
}

TEST_F(Chemins, chaque_unite_garde_son_repertoire_courant) {
    Repertoire(L"garde");
    Changer_repertoire(Chemin(L"garde"));
    Changer_repertoire(L"z:\\");
    EXPECT_EQ(L"z:\\", Repertoire_courant());
    EXPECT_EQ(Chemin(L"garde"), Chemin_complet(Racine().substr(0, 2)));
    EXPECT_EQ(Chemin(L"garde\\x"), Chemin_complet(Racine().substr(0, 2) + L"x"));
}

TEST_F(Chemins, un_repertoire_absent_ne_devient_pas_courant) {
    const std::wstring avant = Repertoire_courant();
    EXPECT_EQ(76, Numero_leve([&] { Changer_repertoire(Chemin(L"absent")); }));
    EXPECT_EQ(68, Numero_leve([&] { Changer_repertoire(L"q:\\"); }));
    EXPECT_EQ(avant, Repertoire_courant());
}

TEST_F(Chemins, un_repertoire_trop_long_pour_etre_courant_est_laisse) {
    const std::wstring avant = Repertoire_courant();
    Changer_repertoire(Profond());
    EXPECT_EQ(avant, Repertoire_courant());
}

TEST_F(Chemins, un_repertoire_reprend_l_orthographe_du_disque) {
    Repertoire(L"Été Ωmega");
    Repertoire(L"Été Ωmega\\SouS");
    std::wstring attendu = Chemin(L"Été Ωmega\\SouS");
    attendu[0]           = L'C';
    EXPECT_EQ(attendu, Nom_sur_disque(Chemin(L"éTÉ ωMEGA\\sous\\")).substr(0));
    EXPECT_EQ(L"C:\\", Nom_sur_disque(L"c:\\"));
    EXPECT_EQ(76, Numero_leve([&] { Nom_sur_disque(Chemin(L"rien")); }));
    Fichier(L"fichier");
    EXPECT_EQ(76, Numero_leve([&] { Nom_sur_disque(Chemin(L"fichier")); }));
}

TEST_F(Chemins, l_existence_distingue_fichier_et_repertoire_et_n_interprete_aucun_joker) {
    const std::wstring fichier = Fichier(L"abc");
    EXPECT_TRUE(Fichier_existe(fichier));
    EXPECT_FALSE(Repertoire_existe(fichier));
    EXPECT_TRUE(Repertoire_existe(Racine()));
    EXPECT_FALSE(Fichier_existe(Racine()));
    EXPECT_FALSE(Fichier_existe(Chemin(L"a?c")));
    EXPECT_FALSE(Fichier_existe(Chemin(L"*")));
    EXPECT_FALSE(Fichier_existe(L""));
}

TEST_F(Chemins, la_longueur_et_les_attributs_d_un_fichier) {
    const std::wstring fichier = Fichier(L"long", std::string(70000, 'x'));
    EXPECT_EQ(70000u, Longueur_fichier(fichier));
    EXPECT_EQ(53, Numero_leve([&] { Longueur_fichier(Chemin(L"absent")); }));
    EXPECT_EQ(76, Numero_leve([&] { Longueur_fichier(Chemin(L"absent\\x")); }));
    EXPECT_EQ(75, Numero_leve([&] { Longueur_fichier(Racine()); }));
    Ecrire_attributs(fichier, Attribut::lecture | Attribut::cache);
    EXPECT_EQ(Attribut::lecture | Attribut::cache, Lire_attributs(fichier) & 7u);
    Ecrire_attributs(fichier, 0);
    EXPECT_EQ(0u, Lire_attributs(fichier) & 7u);
    EXPECT_EQ(53, Numero_leve([&] { Lire_attributs(Chemin(L"absent")); }));
    EXPECT_EQ(53, Numero_leve([&] { Ecrire_attributs(Chemin(L"absent"), 0); }));
}

}  // namespace
