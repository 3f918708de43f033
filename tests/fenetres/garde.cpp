#include "fenetres/commandes.h"

using namespace Pilote;

// While a command runs the stop button alone answers.
class Gardes : public Commandes {
protected:
    void Lancer_copie_longue() {
        Creer_longue(Source(L"longue.dat"));
        Creer_source(L"a.txt", 10);
        Creer_source(L"sous\\b.txt", 10);
        Creer_destination(L"sous\\c.txt", 10);
        Lancer_dans_les_dossiers();
        Choisir_un(L"longue.dat");
        message = Lire(L"Ligne_message");
        Commencer(L"Copier");
        Attendre_commencee();
    }
    // The copy goes on and nothing else shows.
    void Verifier_sourde(const std::wstring & geste) {
        ASSERT_TRUE(Repond(Principale(), 2000)) << Utf8(geste);
        ASSERT_TRUE(programme->Vivant()) << Utf8(geste);
        EXPECT_TRUE(Sablier() && Se_voit(L"En_cours") && Se_voit(L"Arret")) << Utf8(geste);
        EXPECT_TRUE(Boite_absente()) << Utf8(geste);
        EXPECT_EQ(Fenetre(L"Apropos"), nullptr) << Utf8(geste);
        EXPECT_TRUE(Active(Principale())) << Utf8(geste);
    }
    void Verifier_volets() {
        EXPECT_EQ(Utf8(Lire(L"Chemin_srce")), Utf8(source));
        EXPECT_EQ(Utf8(Lire(L"Chemin_dest")), Utf8(destination));
        EXPECT_EQ(Utf8(Lire(L"Mode")), " &Mode répertoire");
    }
    void Arreter() {
        Commencer(L"Arret");
        Verifier_repos(L"Copier");
        EXPECT_EQ(Noms(destination), std::vector<std::wstring>{L"sous"});
        Verifier_volets();
        EXPECT_TRUE(programme->Vivant());
    }

    std::wstring message;
};

TEST_F(Gardes, les_boutons_cliques_ou_commandes_restent_sans_effet) {
    Lancer_copie_longue();
    for (const wchar_t * bouton : {L"Quitter", L"A_propos", L"Copier", L"Déplacer", L"Sélecte", L"Mode",
                                   L"Croiser", L"Effacer", L"Options"}) {
        const HWND fenetre = Controle(bouton);
        PostMessageW(fenetre, BM_CLICK, 0, 0);
        Pilote::Cliquer(fenetre);
        Verifier_sourde(bouton);
    }
    Verifier_volets();
    EXPECT_EQ(Utf8(Lire(L"Ligne_message")), Utf8(message));
    Arreter();
}

TEST_F(Gardes, les_listes_ne_bougent_pas) {
    Lancer_copie_longue();
    for (const wchar_t * liste : {L"Fichier_srce", L"Fichier_dest", L"Répertoire_srce", L"Répertoire_dest"}) {
        const HWND fenetre = Controle(liste);
        if (Nombre_entrees(fenetre) == 0) continue;
        Double_cliquer(Point_entree(fenetre, Nombre_entrees(fenetre) - 1));
        Pilote::Cliquer(Point_entree(fenetre, 0));
        Verifier_sourde(liste);
    }
    for (const wchar_t * combinee : {L"Unité_srce", L"Unité_dest", L"Sélection_fichiers"}) {
        Pilote::Cliquer(Controle(combinee));
        Verifier_sourde(combinee);
        EXPECT_FALSE(Deroulee(Controle(combinee))) << Utf8(combinee);
    }
    EXPECT_EQ(Choisies(), std::vector<std::wstring>{L"longue.dat"});
    EXPECT_EQ(Utf8(Lire(L"Ligne_message")), Utf8(message));
    Verifier_volets();
    Arreter();
}

TEST_F(Gardes, la_molette_ne_change_ni_unite_ni_repertoire) {
    Lancer_copie_longue();
    for (const wchar_t * liste : {L"Unité_dest", L"Unité_srce", L"Sélection_fichiers", L"Répertoire_dest"}) {
        const std::wstring avant = Lire(liste);
        Pilote::Tourner_molette(Controle(liste), -2);
        Pilote::Tourner_molette(Controle(liste), 2);
        Verifier_sourde(liste);
        EXPECT_EQ(Utf8(Lire(liste)), Utf8(avant));
    }
    Verifier_volets();
    Arreter();
}

TEST_F(Gardes, une_liste_d_unites_deroulee_se_referme_quand_la_commande_part) {
    Creer_longue(Source(L"longue.dat"));
    Lancer_dans_les_dossiers();
    Choisir_un(L"longue.dat");
    const std::wstring avant = Lire(L"Unité_dest");
    Cliquer(L"Unité_dest");
    EXIGER(Deroulee(Controle(L"Unité_dest")));
    Frapper(VK_DOWN);
    Pilote::Alt(L'c');
    Attendre_commencee();
    EXPECT_FALSE(Deroulee(Controle(L"Unité_dest")));
    EXPECT_EQ(Utf8(Lire(L"Chemin_dest")), Utf8(destination));
    Commencer(L"Arret");
    Attendre_fin_commande();
    EXPECT_EQ(Utf8(Lire(L"Unité_dest")), Utf8(avant));
    EXPECT_EQ(Utf8(Lire(L"Chemin_dest")), Utf8(destination));
    EXPECT_EQ(Noms(destination), std::vector<std::wstring>());
}

TEST_F(Gardes, le_clavier_n_atteint_que_l_arret) {
    Lancer_copie_longue();
    for (wchar_t lettre : {L'q', L'k', L'c', L'd', L's', L'm', L'u'}) {
        Alt(lettre);
        Verifier_sourde(std::wstring(L"Alt+") + lettre);
    }
    for (WORD touche : {WORD{VK_TAB}, WORD{VK_RETURN}, WORD{VK_SPACE}, WORD{VK_DELETE}, WORD{VK_DOWN}}) {
        Frapper(touche);
        Verifier_sourde(std::to_wstring(touche));
    }
    Taper(L"abc");
    Verifier_sourde(L"texte");
    EXPECT_EQ(Choisies(), std::vector<std::wstring>{L"longue.dat"});
    Frapper(VK_ESCAPE);
    Verifier_repos(L"Copier");
    Verifier_volets();
    EXPECT_EQ(Noms(destination), std::vector<std::wstring>{L"sous"});
}

TEST_F(Gardes, la_fenetre_ne_se_ferme_pas) {
    Lancer_copie_longue();
    PostMessageW(Principale(), WM_CLOSE, 0, 0);
    Verifier_sourde(L"WM_CLOSE");
    PostMessageW(Principale(), WM_SYSCOMMAND, SC_CLOSE, 0);
    Verifier_sourde(L"SC_CLOSE");
    Frapper_avec(VK_MENU, VK_F4);
    Verifier_sourde(L"Alt+F4");
    Arreter();
}

TEST_F(Gardes, windows_qui_s_arrete_finit_le_programme_sans_copie_entamee) {
    Lancer_copie_longue();
    const HWND principale = Principale();
    DWORD_PTR  accord     = 0;
    ASSERT_TRUE(SendMessageTimeoutW(principale, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, 5000, &accord));
    EXPECT_TRUE(accord) << "Windows peut s'arrêter";
    EXPECT_TRUE(programme->Vivant());
    SendMessageTimeoutW(principale, WM_ENDSESSION, TRUE, 0, SMTO_NORMAL, 10000, &accord);
    EXPECT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(Noms(destination), std::vector<std::wstring>{L"sous"});
    EXPECT_EQ(Taille_fichier(Source(L"longue.dat")), std::uint64_t{8} << 30);
    EXPECT_EQ(Taille_fichier(Source(L"a.txt")), 10u);
}
