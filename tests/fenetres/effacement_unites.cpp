#include "fenetres/effacement.h"
#include "fenetres/systeme_hote.h"

using namespace Pilote;

namespace {

// The program's directory in the user's own data is the diskette.
class Donnees_sur_disquette {
public:
    Donnees_sur_disquette() {
        EXPECT_TRUE(Sur_hote(donnees_, L"ln -s \"$WINEPREFIX/dosdevices/a:\" KORVANE"));
    }
    ~Donnees_sur_disquette() { EXPECT_TRUE(Sur_hote(donnees_, L"rm KORVANE")); }
    Donnees_sur_disquette(const Donnees_sur_disquette &)             = delete;
    Donnees_sur_disquette & operator=(const Donnees_sur_disquette &) = delete;

private:
    const std::wstring donnees_ = Environnement(L"LOCALAPPDATA");
};

}  // namespace

// A diskette's files never go to the bin.
class Effacement_A : public Effacement {
protected:
    Effacement_A() {
        Unite::Inserer_disquette(1);
        Unite::Proteger(L'A', false);
        Unite::Vider(L'A');
        Activer();
    }
    ~Effacement_A() override { Unite::Vider(L'A'); }

    void Creer_disquette() {
        for (const wchar_t * nom : {L"a.dat", L"b.dat", L"c.dat"}) {
            Creer_fichier_graine(std::wstring(L"A:\\") + nom, 102400, *nom);
        }
        Lancer();
        Ouvrir(L"srce", L"A:\\");
    }
};

TEST_F(Effacement_A, les_questions_portent_le_titre_de_la_corbeille_absente_et_rien_n_est_garde) {
    Creer_disquette();
    Choisir_un(L"a.dat");
    Cliquer(L"Effacer");
    Attendre_effacement(L"a.dat", oui_non, IDYES, absente, L"A:\\");
    Attendre_fin_commande();
    EXPECT_EQ(Noms(L"A:\\"), (Noms_fichiers{L"b.dat", L"c.dat"}));
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_mode(1, absente);
    Attendre_effacement(L"b.dat", oui_non_annuler, IDNO, absente, L"A:\\");
    Attendre_effacement(L"c.dat", oui_non_annuler, IDYES, absente, L"A:\\");
    Verifier_repos(L"Effacer");
    EXPECT_EQ(Noms(L"A:\\"), Noms_fichiers{L"b.dat"});
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_effacement(L"b.dat", oui_non, IDYES, absente, L"A:\\");
    Verifier_repos(L"Effacer");
    EXPECT_TRUE(Noms(L"A:\\").empty());
    EXPECT_TRUE(Corbeille::Lignes().empty());
}

TEST_F(Effacement_A, un_fichier_plus_grand_que_la_corbeille_ne_s_y_demande_pas) {
    Activer(L"1");
    Creer_disquette();
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_mode(2, absente);
    Verifier_repos(L"Effacer");
    EXPECT_TRUE(Noms(L"A:\\").empty());
}

TEST_F(Effacement_A, la_place_rendue_se_voit_quand_les_deux_volets_sont_sur_la_disquette) {
    Creer_disquette();
    Ouvrir(L"dest", L"A:\\");
    const std::wstring avant_effacement = Lire(L"Espace_libre");
    EXPECT_EQ(Utf8(avant_effacement), Utf8(L"1\u00A0167 Ko libres "));
    Choisir({L"a.dat", L"b.dat"});
    Cliquer(L"Effacer");
    Attendre_mode(2, absente);
    Verifier_repos(L"Effacer");
    EXPECT_EQ(Utf8(Lire(L"Espace_libre")), Utf8(L"1\u00A0372 Ko libres "));
    EXPECT_EQ(Entrees(L"Fichier_dest"), Noms_fichiers{L"c.dat"});
}

TEST_F(Effacement_A, une_disquette_protegee_garde_ses_fichiers) {
    Creer_disquette();
    Unite::Proteger(L'A', true);
    Choisir_un(L"b.dat");
    Cliquer(L"Effacer");
    Attendre_effacement(L"b.dat", oui_non, IDYES, absente, L"A:\\");
    Attendre_avertissement(L"Disquette protégée en écriture\rou fichier verrouillé.");
    Verifier_repos(L"Effacer");
    Unite::Proteger(L'A', false);
    EXPECT_EQ(Noms(L"A:\\").size(), 3u);
}

TEST_F(Effacement_A, une_disquette_retiree_est_signalee) {
    Creer_disquette();
    Choisir_un(L"b.dat");
    Cliquer(L"Effacer");
    ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
    Unite::Retirer_disquette();
    Attendre_effacement(L"b.dat", oui_non, IDYES, absente, L"A:\\");
    Attendre_avertissement(L"Support absent ou erreur d'accès sur A:");
    Attendre_fin_commande();
    Unite::Inserer_disquette(1);
    EXPECT_EQ(Noms(L"A:\\").size(), 3u);
}

// The user's own data may be on a disk that is full.
TEST_F(Effacement_A, un_index_sur_un_disque_plein_ne_prend_ni_ligne_ni_fichier) {
    Creer_cinq();
    Corbeille::Condamner(Corbeille::Index());
    const Donnees_sur_disquette donnees;
    Lancer_dans_les_dossiers();
    EXPECT_TRUE(Existe(L"A:\\KORVANE.CRB"));
    Unite::Remplir(L'A', 0);
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_mode(2);
    Attendre_avertissement(L"Disque C: plein :\ropération abandonnée.");
    Verifier_repos(L"Effacer");
    Verifier_source_intacte(avant);
    EXPECT_EQ(Lire_fichier(L"A:\\KORVANE.CRB"), "");
    // With room again the same command succeeds.
    ASSERT_TRUE(Effacer(L"A:\\.occupe"));
    Choisir_tout();
    Effacer_globalement();
    Verifier_corbeille({L"a.txt", L"b.txt", L"c.txt", L"d.txt", L"e.txt"}, L"A:\\KORVANE.CRB");
}

class Effacement_E : public Effacement {};

TEST_F(Effacement_E, un_support_en_lecture_seule_garde_ses_fichiers_et_l_index_reste_vide) {
    const auto support = Lire_arbre(L"E:");
    Activer();
    Lancer();
    Ouvrir(L"srce", L"E:\\");
    Choisir({L"gros.dat", L"lisez.txt"});
    Cliquer(L"Effacer");
    Attendre_mode(2);
    Attendre_avertissement(L"Disquette protégée en écriture\rou fichier verrouillé.");
    Verifier_repos(L"Effacer");
    EXPECT_EQ(Differences(support, Lire_arbre(L"E:")), "");
    EXPECT_TRUE(Corbeille::Lignes().empty());
}
