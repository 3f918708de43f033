#include "fenetres/obstacles.h"
#include "fenetres/repertoires.h"
#include "fenetres/systeme_hote.h"

using namespace Pilote;

// What keeps a directory from being removed.
class Suppression_refusee : public Repertoires {
protected:
    void Supprimer(const std::wstring & chemin) {
        Cliquer(L"Supprimer");
        Attendre_question(L"SUPPRIMER", L"le répertoire ", chemin, IDYES);
    }
    void Attendre_fichiers(int reponse) {
        Attendre_boite(gestionnaire, L"Le répertoire contient des fichiers,\rvoulez-vous les effacer ?",
                       oui_non, reponse);
    }
};

TEST_F(Suppression_refusee, les_fichiers_de_la_corbeille_sont_annonces_et_restent) {
    Regler(L"Corbeille", L"Taille", L"9999");
    Creer_source(L"haut\\a.txt", 10);
    Creer_source(L"haut\\b.txt", 10);
    Lancer();
    Ouvrir(L"dest", destination);
    Ouvrir(L"srce", Source(L"haut"));
    Choisir({L"a.txt"});
    Cliquer(L"Effacer");
    Attendre_boite(gestionnaire,
                   L"Vous allez EFFACER le fichier 'a.txt' du répertoire\r" + Source(L"haut") +
                       L"\rConfirmez-vous cette commande ?",
                   oui_non, IDYES);
    Attendre_fin_commande();
    Cliquer(L"Mode");
    Supprimer(Source(L"haut"));
    Attendre_fichiers(IDYES);
    Attendre_avertissement(caches);
    Verifier_volets(Source(L"haut"), destination);
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 1u);
    EXPECT_EQ(Noms(Source(L"haut")), Textes{lignes[0].code});
}

TEST_F(Suppression_refusee, des_fichiers_caches_ou_systeme_seuls_sont_annonces_sans_question) {
    for (const std::uint32_t attribut : {FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_SYSTEM}) {
        Creer_source(L"haut\\a.txt", 10);
        Attributs(Source(L"haut\\a.txt"), attribut);
        Lancer_sur(Source(L"haut"));
        Supprimer(Source(L"haut"));
        Attendre_avertissement(caches);
        Verifier_volets(Source(L"haut"), destination);
        EXPECT_EQ(Taille_fichier(Source(L"haut\\a.txt")), 10u);
        Fermer();
        Effacer(source);
    }
}

TEST_F(Suppression_refusee, un_fichier_en_lecture_seule_est_nomme_et_reste_avec_les_suivants) {
    for (const wchar_t * nom : {L"haut\\a.txt", L"haut\\b.txt", L"haut\\c.txt"}) Creer_source(nom, 10);
    Attributs(Source(L"haut\\b.txt"), FILE_ATTRIBUTE_READONLY);
    Lancer_sur(Source(L"haut"));
    Supprimer(Source(L"haut"));
    Attendre_fichiers(IDYES);
    Attendre_protege(L"B.TXT");
    Verifier_volets(Source(L"haut"), destination);
    EXPECT_TRUE(Existe(Source(L"haut\\b.txt")));
    EXPECT_FALSE(Existe(Source(L"haut\\a.txt")));
}

TEST_F(Suppression_refusee, un_fichier_pris_par_un_autre_programme_reste) {
    Creer_source(L"haut\\a.txt", 10);
    Lancer_sur(Source(L"haut"));
    const Verrou verrou(Source(L"haut\\a.txt"));
    ASSERT_TRUE(verrou.Tient());
    Supprimer(Source(L"haut"));
    Attendre_fichiers(IDYES);
    Attendre_avertissement(protege);
    Verifier_volets(Source(L"haut"), destination);
    EXPECT_TRUE(Existe(Source(L"haut\\a.txt")));
}

TEST_F(Suppression_refusee, un_repertoire_pris_par_un_autre_programme_reste_et_part_ensuite) {
    Creer_dossier(Source(L"haut"));
    Lancer_sur(Source(L"haut"));
    {
        const Verrou verrou(Source(L"haut"), repertoire_ouvert);
        ASSERT_TRUE(verrou.Tient());
        Supprimer(Source(L"haut"));
        Attendre_avertissement(caches);
        Verifier_volets(Source(L"haut"), destination);
        EXPECT_TRUE(Existe(Source(L"haut")));
    }
    Supprimer(Source(L"haut"));
    Verifier_volets(source, destination);
    EXPECT_FALSE(Existe(Source(L"haut")));
}

TEST_F(Suppression_refusee, le_repertoire_courant_d_un_autre_programme_reste) {
    Creer_dossier(Source(L"haut"));
    Lancer_sur(Source(L"haut"));
    wchar_t ancien[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, ancien);
    ASSERT_TRUE(SetCurrentDirectoryW(Source(L"haut").c_str()));
    Supprimer(Source(L"haut"));
    Attendre_avertissement(caches);
    SetCurrentDirectoryW(ancien);
    Verifier_volets(Source(L"haut"), destination);
    EXPECT_TRUE(Existe(Source(L"haut")));
}

TEST_F(Suppression_refusee, un_repertoire_deja_disparu_est_introuvable) {
    Creer_dossier(Source(L"haut"));
    Lancer_sur(Source(L"haut"));
    Cliquer(L"Supprimer");
    ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
    ASSERT_TRUE(Sur_hote(source, L"rmdir haut"));
    Attendre_question(L"SUPPRIMER", L"le répertoire ", Source(L"haut"), IDYES);
    Attendre_avertissement(introuvable);
    Attendre_fin_commande();
    // The pane finds its way from there.
    Cliquer_entree(L"Répertoire_srce", L"source");
    EXPECT_EQ(Utf8(Lire(L"Chemin_srce")), Utf8(source));
}

TEST_F(Suppression_refusee, un_lien_dans_le_repertoire_compte_comme_sous_repertoire_et_n_est_pas_suivi) {
    Creer_destination(L"a.txt", 10);
    Creer_dossier(Source(L"haut"));
    ASSERT_TRUE(Sur_hote(source, L"ln -s ../../destination haut/lien"));
    Lancer_sur(Source(L"haut"));
    Supprimer(Source(L"haut"));
    Attendre_arret(L"Le répertoire contient  1 sous-répertoire(s),\ril faut d'abord le(s) supprimer.");
    Attendre_fin_commande();
    EXPECT_EQ(Noms(destination), Textes{L"a.txt"});
    EXPECT_EQ(Noms(Source(L"haut")), Textes{L"lien"});
    Fermer();
    EXPECT_TRUE(Sur_hote(source, L"rm haut/lien"));
}

TEST_F(Suppression_refusee, un_lien_ouvert_dans_la_source_ne_coute_rien_a_ce_qu_il_montre) {
    Creer_destination(L"a.txt", 10);
    ASSERT_TRUE(Sur_hote(source, L"ln -s ../destination lien"));
    Lancer();
    Ouvrir(L"srce", Source(L"lien"));
    Cliquer(L"Mode");
    Supprimer(Source(L"lien"));
    // A system that takes the link for what it shows refuses to remove it, full as it is.
    if (HWND boite = Attendre_boite_visible(programme->Numero(), 500)) {
        EXPECT_EQ(Lire_boite(boite), (Boite{gestionnaire, caches, avertissement}));
        EXPECT_TRUE(Repondre_boite(boite, IDOK));
    }
    Attendre_fin_commande();
    EXPECT_EQ(Noms(destination), Textes{L"a.txt"}) << "ce que le lien montre reste";
    Fermer();
    EXPECT_TRUE(Sur_hote(source, L"test -d ../destination && rm -f lien"));
}

TEST_F(Suppression_refusee, l_arret_laisse_les_fichiers_qui_ne_sont_pas_encore_effaces) {
    Creer_dossier(Source(L"haut"));
    ASSERT_TRUE(Sur_hote(Source(L"haut"), L"for i in $(seq -w 1 800); do echo $i >f$i.txt; done"));
    Lancer_sur(Source(L"haut"));
    Supprimer(Source(L"haut"));
    Attendre_fichiers(IDYES);
    EXIGER(!Existe(Source(L"haut\\f001.txt")));
    {
        // The click waits in the program's queue whatever the speed of the machine.
        const Suspension suspension(programme->Poignee());
        Pilote::Cliquer(Controle(L"Arret"));
    }
    Attendre_fin_commande();
    EXPECT_FALSE(Noms(Source(L"haut")).empty());
    Verifier_volets(Source(L"haut"), destination);
}

class Suppression_refusee_E : public Suppression_refusee {};

TEST_F(Suppression_refusee_E, un_support_en_lecture_seule_garde_ses_repertoires) {
    const auto support = Lire_arbre(L"E:");
    Lancer_sur(L"E:\\sous");
    Supprimer(L"E:\\sous");
    Attendre_avertissement(protege);
    Verifier_volets(L"E:\\sous", destination);
    EXPECT_EQ(Differences(support, Lire_arbre(L"E:")), "");
}

class Suppression_refusee_A : public Suppression_refusee {
protected:
    Suppression_refusee_A() {
        Unite::Inserer_disquette(1);
        Unite::Proteger(L'A', false);
        Unite::Vider(L'A');
    }
    ~Suppression_refusee_A() override { Unite::Vider(L'A'); }
};

TEST_F(Suppression_refusee_A, une_disquette_protegee_garde_ses_fichiers_et_une_disquette_retiree_est_nommee) {
    Creer_fichier_graine(L"A:\\sous\\a.txt", 10, 1);
    Lancer_sur(L"A:\\sous");
    Unite::Proteger(L'A', true);
    Supprimer(L"A:\\sous");
    Attendre_fichiers(IDYES);
    Attendre_avertissement(protege);
    Verifier_volets(L"A:\\sous", destination);
    Unite::Proteger(L'A', false);
    Unite::Retirer_disquette();
    Supprimer(L"A:\\sous");
    Attendre_avertissement(L"Support absent ou erreur d'accès sur A:");
    Attendre_fin_commande();
    Unite::Inserer_disquette(1);
    EXPECT_TRUE(Existe(L"A:\\sous\\a.txt"));
}

TEST_F(Suppression_refusee_A, la_place_rendue_se_voit) {
    Creer_fichier_graine(L"A:\\sous\\a.dat", 102400, 1);
    Lancer_sur(L"A:\\sous");
    Ouvrir(L"dest", L"A:\\");
    EXPECT_EQ(Utf8(Lire(L"Espace_libre")), Utf8(L"1\u00A0372 Ko libres "));
    Supprimer(L"A:\\sous");
    Attendre_fichiers(IDYES);
    Verifier_volets(L"A:\\", L"A:\\");
    EXPECT_EQ(Utf8(Lire(L"Espace_libre")), Utf8(L"1\u00A0475 Ko libres "));
}
