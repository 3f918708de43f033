#include "fenetres/effacement.h"

using namespace Pilote;

// What is asked before files are erased, and what each answer does.

TEST_F(Effacement, sans_selection_le_dit_et_ne_fait_rien) {
    Activer();
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Cliquer(L"Effacer");
    Attendre_boite(L"EFFACER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", avertissement, IDOK);
    Verifier_repos(L"Effacer");
    Verifier_source_intacte(avant);
    Verifier_corbeille({});
}

TEST_F(Effacement, un_seul_fichier_se_confirme_par_oui_ou_non_quelle_que_soit_l_option) {
    Activer();
    for (const wchar_t * option : {L"Non", L"Oui"}) {
        Regler(L"Options", L"Confirme", option);
        Creer_cinq();
        Lancer_dans_les_dossiers();
        Choisir_un(L"b.txt");
        Cliquer(L"Effacer");
        Attendre_effacement(L"b.txt", oui_non, IDNO);
        Verifier_repos(L"Effacer");
        Verifier_restants({L"a.txt", L"b.txt", L"c.txt", L"d.txt", L"e.txt"});
        Verifier_corbeille({});
        Effacer_un(L"b.txt");
        Verifier_reprise(L"c.txt", L"300");
        Verifier_restants({L"a.txt", L"c.txt", L"d.txt", L"e.txt"});
        Verifier_corbeille({L"b.txt"});
        Fermer();
        Corbeille::Vider();
        Effacer(source);
        Effacer(Fichier_ini());
    }
}

TEST_F(Effacement, selectivement_chaque_reponse_vaut_pour_son_fichier_et_annuler_finit_la_commande) {
    Activer();
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_mode(1);
    Attendre_effacement(L"a.txt", oui_non_annuler, IDYES);
    Attendre_effacement(L"b.txt", oui_non_annuler, IDNO);
    Attendre_effacement(L"c.txt", oui_non_annuler, IDYES);
    Attendre_effacement(L"d.txt", oui_non_annuler, IDCANCEL);
    Verifier_repos(L"Effacer");
    Verifier_restants({L"b.txt", L"d.txt", L"e.txt"});
    Verifier_corbeille({L"a.txt", L"c.txt"});
}

TEST_F(Effacement, le_mode_se_demande_une_fois_par_commande) {
    Activer();
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"b.txt"});
    Effacer_globalement();
    Choisir({L"c.txt", L"d.txt"});
    Cliquer(L"Effacer");
    Attendre_mode(1);
    Attendre_effacement(L"c.txt", oui_non_annuler, IDNO);
    Attendre_effacement(L"d.txt", oui_non_annuler, IDYES);
    Attendre_fin_commande();
    // A single file is asked about again after a command without questions.
    Effacer_un(L"e.txt");
    Verifier_restants({L"c.txt"});
    Verifier_corbeille({L"a.txt", L"b.txt", L"d.txt", L"e.txt"});
}

TEST_F(Effacement, globalement_tout_part_sans_autre_question_quelle_que_soit_l_option) {
    Activer();
    for (const wchar_t * option : {L"Non", L"Oui"}) {
        Regler(L"Options", L"Confirme", option);
        Creer_cinq();
        Lancer_dans_les_dossiers();
        Choisir_tout();
        Effacer_globalement();
        EXPECT_TRUE(Lire(L"Ligne_message").empty());
        EXPECT_EQ(Utf8(Lire(L"Sélecte")), "&Sélectionner tout");
        Verifier_repos(L"Effacer");
        Verifier_restants({});
        Verifier_corbeille({L"a.txt", L"b.txt", L"c.txt", L"d.txt", L"e.txt"});
        Fermer();
        Corbeille::Vider();
        Effacer(source);
        Effacer(Fichier_ini());
    }
}

TEST_F(Effacement, annuler_le_choix_du_mode_n_efface_rien) {
    Activer();
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_mode(3);
    Verifier_repos(L"Effacer");
    Choisir({L"a.txt", L"b.txt"});
    Cliquer(L"Effacer");
    EXIGER(Fenetre(L"Dialogue") && GetForegroundWindow() == Fenetre(L"Dialogue"));
    Frapper(VK_ESCAPE);
    ATTENDRE(!Fenetre(L"Dialogue"));
    Verifier_repos(L"Effacer");
    Verifier_source_intacte(avant);
    Verifier_corbeille({});
}

TEST_F(Effacement, le_choix_du_mode_porte_l_icone_de_question_et_se_repond_au_clavier) {
    Activer();
    Creer_cinq();
    Lancer_dans_les_dossiers();
    for (const wchar_t lettre : {L'A', L'S', L'G'}) {
        Choisir({L"a.txt", L"b.txt"});
        Cliquer(L"Effacer");
        EXIGER(Fenetre(L"Dialogue") && GetForegroundWindow() == Fenetre(L"Dialogue"));
        EXPECT_TRUE(Visible(Controle(L"Dialogue", L"Icone")));
        EXPECT_EQ(Utf8(Nom(Focus(Fenetre(L"Dialogue")))), "Bouton1");
        Alt(lettre);
        ATTENDRE(!Fenetre(L"Dialogue"));
        if (lettre == L'S') Attendre_effacement(L"a.txt", oui_non_annuler, IDCANCEL);
        Attendre_fin_commande();
    }
    Verifier_corbeille({L"a.txt", L"b.txt"});
}

TEST_F(Effacement, corbeille_absente_les_questions_en_portent_le_titre_et_rien_n_est_garde) {
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Choisir_un(L"a.txt");
    Cliquer(L"Effacer");
    Attendre_effacement(L"a.txt", oui_non, IDYES, absente);
    Attendre_fin_commande();
    Choisir({L"b.txt", L"c.txt"});
    Cliquer(L"Effacer");
    Attendre_mode(1, absente);
    Attendre_effacement(L"b.txt", oui_non_annuler, IDNO, absente);
    Attendre_effacement(L"c.txt", oui_non_annuler, IDYES, absente);
    Attendre_fin_commande();
    Choisir({L"d.txt", L"e.txt"});
    Cliquer(L"Effacer");
    Attendre_mode(2, absente);
    Verifier_repos(L"Effacer");
    EXPECT_EQ(Noms(source), Noms_fichiers{L"b.txt"});
    Verifier_restants({L"b.txt"});
    EXPECT_FALSE(Existe(Corbeille::Index()) || Existe(Corbeille::Index_secours()));
    EXPECT_EQ(Cle_corbeille("Total"), "<absente>");
}

TEST_F(Effacement, la_touche_suppr_efface_en_mode_fichier_et_non_en_mode_repertoire) {
    Activer();
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Choisir_un(L"c.txt");
    Frapper(VK_DELETE);
    Attendre_effacement(L"c.txt", oui_non, IDYES);
    Attendre_fin_commande();
    Verifier_reprise(L"d.txt", L"400");
    ATTENDRE(A_le_focus(L"Fichier_srce"));
    Cliquer(L"Mode");
    SetForegroundWindow(Principale());
    for (int i = 0; i < 40 && !A_le_focus(L"Fichier_srce"); ++i) {
        Frapper(VK_TAB);
        Reposer(Principale());
    }
    EXIGER(A_le_focus(L"Fichier_srce"));
    Frapper(VK_HOME);
    Frapper(VK_DELETE);
    Attendre_fin_commande();
    EXPECT_TRUE(Boite_absente());
    Verifier_restants({L"a.txt", L"b.txt", L"d.txt", L"e.txt"});
}

TEST_F(Effacement, le_curseur_reste_en_place_et_apres_le_dernier_c_est_le_precedent_qui_est_repris) {
    Activer();
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Effacer_un(L"b.txt");
    Verifier_reprise(L"c.txt", L"300");
    // The keyboard alone goes on from there.
    EXPECT_EQ(Utf8(Nom_du_focus()), "Effacer");
    Frapper(VK_RETURN);
    Attendre_effacement(L"c.txt", oui_non, IDYES);
    Attendre_fin_commande();
    Verifier_reprise(L"d.txt", L"400");
    Effacer_un(L"e.txt");
    Verifier_reprise(L"d.txt", L"400");
    Choisir({L"a.txt", L"d.txt"});
    Effacer_globalement();
    EXPECT_TRUE(Choisies().empty());
    Verifier_restants({});
}
