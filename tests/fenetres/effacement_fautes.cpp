#include "fenetres/effacement.h"
#include "fenetres/obstacles.h"
#include "fenetres/systeme_hote.h"

#include <algorithm>

using namespace Pilote;

// What goes wrong in the middle of an erase: what was stored is in the bin, all the rest is where it was.

namespace {

const wchar_t * const verrouille = L"Disquette protégée en écriture\rou fichier verrouillé.";

std::wstring Introuvable(const std::wstring & fichier_capitales) {
    return L"Un nom de fichier comporte un caractère invalide ou bien le fichier " + fichier_capitales +
           L" est introuvable ou les attributs 'Système/Caché' sont présents.";
}

}  // namespace

TEST_F(Effacement, un_fichier_en_lecture_seule_est_refuse_et_finit_la_commande) {
    for (const bool active : {true, false}) {
        if (active) Activer();
        if (!active) Ne_pas_regler(L"Corbeille", L"Taille");
        Creer_cinq();
        Attributs(Source(L"c.txt"), FILE_ATTRIBUTE_READONLY);
        Retenir();
        Lancer_dans_les_dossiers();
        Choisir_tout();
        Cliquer(L"Effacer");
        Attendre_mode(2, active ? gestionnaire : absente);
        Attendre_protege(L"C.TXT");
        Verifier_repos(L"Effacer");
        Verifier_restants({L"c.txt", L"d.txt", L"e.txt"});
        if (active) Verifier_corbeille({L"a.txt", L"b.txt"});
        Fermer();
        Corbeille::Vider();
        Effacer(source);
        Effacer(Fichier_ini());
    }
}

TEST_F(Effacement, un_fichier_disparu_entre_le_choix_et_la_commande_est_signale) {
    for (const bool active : {true, false}) {
        if (active) Activer();
        if (!active) Ne_pas_regler(L"Corbeille", L"Taille");
        Creer_cinq();
        Lancer_dans_les_dossiers();
        Choisir_tout();
        Effacer(Source(L"b.txt"));
        Cliquer(L"Effacer");
        Attendre_mode(2, active ? gestionnaire : absente);
        Attendre_avertissement(Introuvable(L"B.TXT"));
        Attendre_fin_commande();
        Verifier_restants({L"c.txt", L"d.txt", L"e.txt"});
        if (active) Verifier_corbeille({L"a.txt"});
        Verifier_repos(L"Effacer");
        Fermer();
        Corbeille::Vider();
        Effacer(source);
        Effacer(Fichier_ini());
    }
}

TEST_F(Effacement, un_fichier_pris_par_un_autre_programme_reste_sans_laisser_de_ligne) {
    for (const bool active : {true, false}) {
        if (active) Activer();
        if (!active) Ne_pas_regler(L"Corbeille", L"Taille");
        Creer_cinq();
        Lancer_dans_les_dossiers();
        Choisir({L"a.txt", L"b.txt", L"c.txt"});
        {
            const Verrou verrou(Source(L"b.txt"));
            ASSERT_TRUE(verrou.Tient());
            Cliquer(L"Effacer");
            Attendre_mode(2, active ? gestionnaire : absente);
            Attendre_avertissement(verrouille);
            Attendre_fin_commande();
        }
        Verifier_restants({L"b.txt", L"c.txt", L"d.txt", L"e.txt"});
        if (active) Verifier_corbeille({L"a.txt"});
        Verifier_repos(L"Effacer");
        Fermer();
        Corbeille::Vider();
        Effacer(source);
        Effacer(Fichier_ini());
    }
}

// A file that grew since it was listed is recorded as long as it is: otherwise its line would name another file.
TEST_F(Effacement, un_fichier_qui_a_grandi_depuis_la_liste_est_efface_globalement_a_sa_taille) {
    Activer();
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Creer_source(L"b.txt", 70000, 5);
    Retenir();
    Choisir({L"a.txt", L"b.txt", L"c.txt"});
    Effacer_globalement();
    Verifier_restants({L"d.txt", L"e.txt"});
    Verifier_corbeille({L"a.txt", L"b.txt", L"c.txt"});
}

TEST_F(Effacement, sans_index_dans_le_systeme_il_est_dans_les_donnees_de_l_utilisateur) {
    Activer();
    Creer_cinq();
    Corbeille::Condamner(Corbeille::Index());
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"b.txt"});
    Effacer_globalement();
    Verifier_restants({L"c.txt", L"d.txt", L"e.txt"});
    Verifier_corbeille({L"a.txt", L"b.txt"}, Corbeille::Index_secours());
    // The next run finds it again.
    Fermer();
    Lancer_dans_les_dossiers();
    Effacer_un(L"c.txt");
    Verifier_corbeille({L"a.txt", L"b.txt", L"c.txt"}, Corbeille::Index_secours());
}

TEST_F(Effacement, sans_index_nulle_part_l_effacement_est_refuse_et_rien_n_est_perdu) {
    Activer();
    Creer_cinq();
    Corbeille::Condamner(Corbeille::Index());
    Corbeille::Condamner(Corbeille::Index_secours());
    Lancer_dans_les_dossiers();
    Choisir_un(L"a.txt");
    Cliquer(L"Effacer");
    Attendre_effacement(L"a.txt", oui_non, IDYES);
    Attendre_protege(L"KORVANE.CRB");
    Verifier_repos(L"Effacer");
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_mode(2);
    Attendre_protege(L"KORVANE.CRB");
    Verifier_repos(L"Effacer");
    Verifier_source_intacte(avant);
    // Once a place is free again, the same command succeeds.
    Corbeille::Vider();
    Effacer_un(L"a.txt");
    Verifier_corbeille({L"a.txt"});
}

TEST_F(Effacement, l_arret_laisse_en_place_ce_qui_n_est_pas_encore_traite) {
    Activer();
    constexpr std::size_t nombre = 400;
    ASSERT_TRUE(Sur_hote(source, L"for i in $(seq -w 1 400); do echo \"fichier $i\" >\"f$i.txt\"; done"));
    Retenir();
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Effacer");
    EXIGER(Fenetre(L"Dialogue") != nullptr && GetForegroundWindow() == Fenetre(L"Dialogue"));
    Pilote::Cliquer(Controle(L"Dialogue", L"Bouton2"));
    EXIGER(!Corbeille::Lignes().empty());
    {
        // The click waits in the program's queue whatever the speed of the machine.
        const Suspension suspension(programme->Poignee());
        Pilote::Cliquer(Controle(L"Arret"));
    }
    Verifier_repos(L"Effacer");
    const Noms_fichiers restants = Entrees(L"Fichier_srce");
    EXPECT_GT(restants.size(), 0u);
    EXPECT_LT(restants.size(), nombre);
    Noms_fichiers effaces;
    for (const auto & [chemin, fiche] : avant) {
        const std::wstring nom = chemin.substr(1);
        if (std::find(restants.begin(), restants.end(), nom) == restants.end()) effaces.push_back(nom);
    }
    Verifier_restants(restants);
    Verifier_corbeille(effaces);
}

class Effacement_D : public Effacement {
protected:
    Effacement_D() { Unite::Vider(L'D'); }
    ~Effacement_D() override {
        Fermer();
        Unite::Vider(L'D');
    }
    // Not one more block fits.
    static void Combler() {
        Unite::Remplir(L'D', 20000);
        Sur_hote(L"D:\\", L"for i in 1 2 3 4; do cat /dev/zero >.reste$i 2>/dev/null; sync -f .; done");
    }
};

TEST_F(Effacement_D, un_disque_plein_n_empeche_pas_d_effacer_ses_fichiers) {
    Activer();
    Creer_fichier_graine(L"D:\\a.dat", 50000, 1);
    Creer_fichier_graine(L"D:\\b.dat", 50000, 2);
    const std::uint64_t empreinte = Empreinte(L"D:\\a.dat");
    Combler();
    Lancer_vers(L"D:\\");
    Cliquer(L"Croiser");
    Choisir_un(L"a.dat");
    Cliquer(L"Effacer");
    Attendre_effacement(L"a.dat", oui_non, IDYES, gestionnaire, L"D:\\");
    Verifier_repos(L"Effacer");
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 1u);
    EXPECT_EQ(Utf8(lignes[0].repertoire), "D:\\");
    EXPECT_EQ(Empreinte(lignes[0].Chemin_code()), empreinte);
}

TEST_F(Effacement_D, sur_un_disque_protege_rien_ne_change) {
    Activer();
    Creer_fichier_graine(L"D:\\a.dat", 5000, 1);
    Creer_fichier_graine(L"D:\\b.dat", 5000, 2);
    const auto contenu = Lire_arbre(L"D:");
    Lancer_vers(L"D:\\");
    Cliquer(L"Croiser");
    Unite::Proteger(L'D', true);
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_mode(2);
    // Nothing tells such a disk from a file that may not be renamed.
    Attendre_protege(L"A.DAT");
    Verifier_repos(L"Effacer");
    Unite::Proteger(L'D', false);
    EXPECT_EQ(Differences(contenu, Lire_arbre(L"D:")), "");
    EXPECT_TRUE(Corbeille::Lignes().empty());
}

TEST_F(Effacement_D, un_disque_arrache_est_nomme_et_tout_y_est_a_son_retour) {
    Activer();
    Creer_fichier_graine(L"D:\\a.dat", 5000, 1);
    Creer_fichier_graine(L"D:\\b.dat", 5000, 2);
    const auto contenu = Lire_arbre(L"D:");
    Lancer_vers(L"D:\\");
    Cliquer(L"Croiser");
    Choisir_tout();
    Cliquer(L"Effacer");
    EXIGER(Fenetre(L"Dialogue") != nullptr);
    Unite::Arracher_disque();
    Attendre_mode(2);
    Attendre_rapport(57, ERROR_NOACCESS, L"EFFACER", L"D:\\", source);
    Attendre_fin_commande();
    EXPECT_TRUE(Corbeille::Lignes().empty());
    Fermer();
    Unite::Remettre_disque();
    EXPECT_EQ(Differences(contenu, Lire_arbre(L"D:")), "");
}
