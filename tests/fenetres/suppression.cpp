#include "fenetres/repertoires.h"

using namespace Pilote;

namespace {

const wchar_t * const contient_fichiers = L"Le répertoire contient des fichiers,\rvoulez-vous les effacer ?";

std::wstring Contient_repertoires(int nombre) {
    return L"Le répertoire contient  " + std::to_wstring(nombre) +
           L" sous-répertoire(s),\ril faut d'abord le(s) supprimer.";
}

}  // namespace

// Removing the SOURCE directory.
class Suppression : public Repertoires {
protected:
    void Supprimer(const std::wstring & chemin, int reponse = IDYES) {
        Cliquer(L"Supprimer");
        Attendre_question(L"SUPPRIMER", L"le répertoire ", chemin, reponse);
    }
    void Attendre_fichiers(int reponse) { Attendre_boite(gestionnaire, contient_fichiers, oui_non, reponse); }
};

TEST_F(Suppression, non_laisse_tout_en_place) {
    Creer_source(L"été\\a.txt", 10);
    const auto avant = Lire_arbre(source);
    Lancer_sur(Source(L"été"));
    Supprimer(Source(L"été"), IDNO);
    Verifier_volets(Source(L"été"), destination);
    Verifier_source_intacte(avant);
}

TEST_F(Suppression, un_repertoire_vide_part_et_la_source_montre_celui_qui_le_contenait) {
    Creer_dossier(Source(L"Été"));
    Creer_source(L"a.txt", 10);
    Creer_dossier(Source(L"voisin"));
    Lancer_sur(Source(L"Été"));
    Supprimer(Source(L"Été"));
    Verifier_volets(source, destination);
    EXPECT_EQ(Noms(source), (Textes{L"a.txt", L"voisin"}));
    EXPECT_EQ(Utf8(Nom_du_focus()), "Supprimer");
    // The one above in its turn, from where the pane now stands.
    Cliquer_entree(L"Répertoire_srce", L"voisin");
    Supprimer(Source(L"voisin"));
    Verifier_volets(source, destination);
    EXPECT_EQ(Noms(source), Textes{L"a.txt"});
}

TEST_F(Suppression, non_aux_fichiers_finit_la_commande) {
    Creer_source(L"plein\\a.txt", 10);
    Lancer_sur(Source(L"plein"));
    Supprimer(Source(L"plein"));
    Attendre_fichiers(IDNO);
    Verifier_volets(Source(L"plein"), destination);
    EXPECT_EQ(Noms(Source(L"plein")), Textes{L"a.txt"});
}

TEST_F(Suppression, oui_aux_fichiers_les_efface_pour_de_bon_meme_avec_la_corbeille) {
    Regler(L"Corbeille", L"Taille", L"9999");
    for (const wchar_t * nom : {L"plein\\a.txt", L"plein\\b", L"plein\\ été.c.d"}) Creer_source(nom, 10);
    Lancer_sur(Source(L"plein"));
    Supprimer(Source(L"plein"));
    Attendre_fichiers(IDYES);
    Verifier_volets(source, destination);
    EXPECT_TRUE(Noms(source).empty());
    EXPECT_TRUE(Corbeille::Lignes().empty());
}

// The pattern of the SOURCE list hides files; those that it hides go too.
TEST_F(Suppression, tous_les_fichiers_partent_quel_que_soit_le_motif) {
    Creer_source(L"plein\\a.txt", 10);
    Creer_source(L"plein\\b.dat", 10);
    Lancer_sur(Source(L"plein"));
    Remplacer_texte(L"Sélection_fichiers", L"*.txt");
    ATTENDRE(Entrees(L"Fichier_srce") == Textes{L"a.txt"});
    Supprimer(Source(L"plein"));
    Attendre_fichiers(IDYES);
    Attendre_fin_commande();
    EXPECT_FALSE(Existe(Source(L"plein")));
}

TEST_F(Suppression, des_sous_repertoires_la_refusent_et_rien_n_est_parcouru) {
    Creer_source(L"haut\\un\\a.txt", 10);
    Creer_dossier(Source(L"haut\\deux"));
    Lancer_sur(Source(L"haut"));
    Supprimer(Source(L"haut"));
    Attendre_arret(Contient_repertoires(2));
    Verifier_volets(Source(L"haut"), destination);
    EXPECT_EQ(Taille_fichier(Source(L"haut\\un\\a.txt")), 10u);
}

TEST_F(Suppression, les_fichiers_effaces_le_restent_quand_un_sous_repertoire_la_refuse) {
    Creer_source(L"haut\\un\\a.txt", 10);
    Creer_source(L"haut\\b.txt", 10);
    Lancer_sur(Source(L"haut"));
    Supprimer(Source(L"haut"));
    Attendre_fichiers(IDYES);
    Attendre_arret(Contient_repertoires(1));
    Verifier_volets(Source(L"haut"), destination);
    EXPECT_EQ(Noms(Source(L"haut")), Textes{L"un"});
}

TEST_F(Suppression, a_la_racine_ne_fait_et_ne_montre_rien) {
    Lancer();
    Cliquer(L"Mode");
    Ouvrir(L"srce", L"C:\\");
    const Textes avant = Noms(L"C:\\");
    Cliquer(L"Supprimer");
    Attendre_fin_commande();
    EXPECT_TRUE(Boite_absente());
    Cliquer_entree(L"Répertoire_srce", L"c:\\");
    Frapper(VK_DELETE);
    Attendre_fin_commande();
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(Noms(L"C:\\"), avant);
    EXPECT_EQ(Utf8(Lire(L"Chemin_srce")), "C:\\");
}

TEST_F(Suppression, la_touche_suppr_de_la_liste_des_repertoires_la_demande_dans_les_deux_modes) {
    Creer_dossier(Source(L"un"));
    Creer_dossier(Source(L"deux"));
    Lancer();
    Ouvrir(L"dest", destination);
    for (const wchar_t * nom : {L"un", L"deux"}) {
        Ouvrir(L"srce", Source(nom));
        Frapper(VK_DELETE);
        Attendre_question(L"SUPPRIMER", L"le répertoire ", Source(nom), IDNO);
        Attendre_fin_commande();
        EXPECT_TRUE(Existe(Source(nom)));
        EXPECT_EQ(Utf8(Nom_du_focus()), Utf8(L"Répertoire_srce"));
        Frapper(VK_DELETE);
        Attendre_question(L"SUPPRIMER", L"le répertoire ", Source(nom), IDYES);
        Verifier_volets(source, destination);
        EXPECT_FALSE(Existe(Source(nom)));
        Cliquer(L"Mode");
    }
}

TEST_F(Suppression, la_destination_qui_montrait_le_repertoire_remonte_aussi) {
    Creer_dossier(Source(L"partage"));
    Lancer_sur(Source(L"partage"));
    Ouvrir(L"dest", Source(L"partage"));
    Supprimer(Source(L"partage"));
    Verifier_volets(source, source);
}

TEST_F(Suppression, la_destination_qui_montrait_le_parent_ne_le_montre_plus) {
    Creer_dossier(Source(L"parti"));
    Lancer_sur(Source(L"parti"));
    Ouvrir(L"dest", source);
    Supprimer(Source(L"parti"));
    Verifier_volets(source, source);
}

TEST_F(Suppression, une_destination_plus_bas_reste_ou_elle_est_puisque_rien_ne_part) {
    Creer_dossier(Source(L"haut\\bas"));
    Lancer_sur(Source(L"haut"));
    Ouvrir(L"dest", Source(L"haut\\bas"));
    Supprimer(Source(L"haut"));
    Attendre_arret(Contient_repertoires(1));
    Verifier_volets(Source(L"haut"), Source(L"haut\\bas"));
    EXPECT_TRUE(Existe(Source(L"haut\\bas")));
}

TEST_F(Suppression, la_question_raccourcit_un_chemin_trop_long_par_repertoires_entiers) {
    const std::wstring long1   = L"un répertoire au nom assez long",
                       long2   = L"un autre répertoire encore plus long";
    const std::wstring profond = Source(long1 + L"\\" + long1 + L"\\" + long2);
    Creer_dossier(profond);
    Lancer_sur(profond);
    Supprimer(L"C:\\ . . .\\" + long2);
    Attendre_fin_commande();
    EXPECT_FALSE(Existe(profond));
    EXPECT_TRUE(Existe(Source(long1 + L"\\" + long1)));
}

TEST_F(Suppression, un_chemin_de_plus_de_260_caracteres_se_supprime) {
    std::wstring profond = source;
    for (int i = 0; i < 5; ++i) profond += L"\\" + std::to_wstring(i) + std::wstring(59, L'p');
    Creer_fichier_graine(profond + L"\\a.txt", 500, 3);
    Lancer_sur(profond);
    Cliquer(L"Supprimer");
    const HWND boite = Attendre_boite_visible(programme->Numero(), 5000);
    ASSERT_NE(boite, nullptr);
    EXPECT_TRUE(Repondre_boite(boite, IDYES));
    Attendre_fichiers(IDYES);
    Verifier_volets(profond.substr(0, profond.rfind(L'\\')), destination);
    EXPECT_FALSE(Existe(profond));
}
