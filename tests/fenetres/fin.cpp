#include "pilote/korvane.h"

using namespace Pilote;

// The ends of the program, and what it leaves.
class Fin : public Korvane {
protected:
    const Boite quitter{L"Gestionnaire de fichiers", L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                        MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2};

    void Attendre_fin() {
        EXPECT_TRUE(programme->Attendre_fin(5000));
        EXPECT_EQ(programme->Code_de_fin(), 0u);
    }
    LRESULT Envoyer(UINT message, WPARAM mot) const {
        DWORD_PTR resultat = 0;
        SendMessageTimeoutW(Principale(), message, mot, 0, SMTO_ABORTIFHUNG, 3000, &resultat);
        return static_cast<LRESULT>(resultat);
    }
};

TEST_F(Fin, la_croix_et_alt_f4_posent_la_question_et_non_garde_la_fenetre) {
    Lancer();
    Cliquer(L"Fichier_srce");
    PostMessageW(Principale(), WM_SYSCOMMAND, SC_CLOSE, 0);
    Attendre_boite(quitter, IDNO);
    ATTENDRE(GetForegroundWindow() == Principale() && A_le_focus(L"Fichier_srce"));
    Frapper_avec(VK_MENU, VK_F4);
    Attendre_boite(quitter, IDNO);
    ATTENDRE(GetForegroundWindow() == Principale() && A_le_focus(L"Fichier_srce"));
    EXPECT_TRUE(programme->Vivant());
    PostMessageW(Principale(), WM_CLOSE, 0, 0);
    Attendre_boite(quitter, IDYES);
    Attendre_fin();
}

TEST_F(Fin, le_clavier_repond_non_par_defaut) {
    Lancer();
    Alt(L'Q');
    ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
    Frapper(VK_RETURN);
    ATTENDRE(Boite_absente());
    Reposer(Principale());
    EXPECT_TRUE(programme->Vivant());
}

TEST_F(Fin, la_fin_de_la_session_termine_sans_rien_demander) {
    Lancer();
    EXPECT_EQ(Envoyer(WM_QUERYENDSESSION, 0), TRUE);
    EXPECT_TRUE(programme->Vivant());
    PostMessageW(Principale(), WM_ENDSESSION, TRUE, 0);
    Attendre_fin();
}

TEST_F(Fin, une_fin_de_session_abandonnee_ne_termine_rien) {
    Lancer();
    EXPECT_EQ(Envoyer(WM_QUERYENDSESSION, 0), TRUE);
    Envoyer(WM_ENDSESSION, FALSE);
    Reposer(Principale());
    EXPECT_TRUE(programme->Vivant());
    EXPECT_TRUE(Boite_absente());
    Cliquer(L"Quitter");
    Attendre_boite(quitter, IDYES);
    Attendre_fin();
}

TEST_F(Fin, rien_n_est_ecrit_dans_les_reglages) {
    Regler(L"Options", L"Confirme", L"Ouais");
    Regler(L"Corbeille", L"Taille", L"12345");
    Regler(L"Sélections", L"Été", L"*.txt");
    Lancer();
    const std::string avant = Lire_fichier(Fichier_ini());
    const auto        date  = Date(Fichier_ini());
    Cliquer(L"Mode");
    Cliquer(L"Croiser");
    Cliquer(L"Aide");
    Cliquer(L"Quitter");
    Attendre_boite(quitter, IDYES);
    Attendre_fin();
    EXPECT_EQ(Lire_fichier(Fichier_ini()), avant);
    EXPECT_EQ(Date(Fichier_ini()), date);
    EXPECT_EQ(Noms(dossier / L"programme"), (std::vector<std::wstring>{L"KORVANE.EXE", L"KORVANE.INI"}));
}

TEST_F(Fin, a_propos_est_une_fenetre_modale_que_ferment_ok_et_echappement) {
    Lancer();
    for (const bool par_bouton : {true, false}) {
        Cliquer(L"A_propos");
        EXIGER(Fenetre(L"Apropos") && GetForegroundWindow() == Fenetre(L"Apropos"));
        EXPECT_TRUE(Visible(Controle(L"Apropos", L"OK")));
        EXPECT_EQ(Texte(Controle(L"Apropos", L"Produit")), L"KORVANE");
        EXPECT_EQ(Texte(Controle(L"Apropos", L"Description")), L"Gestionnaire de fichiers");
        EXPECT_FALSE(Active(Principale()));
        // Over the middle of the main window, although the banner was an icon.
        const RECT devant = Place_ecran(Fenetre(L"Apropos")), derriere = Place_ecran(Principale());
        EXPECT_NEAR(devant.left + devant.right, derriere.left + derriere.right, 4);
        EXPECT_NEAR(devant.top + devant.bottom, derriere.top + derriere.bottom, 4);
        ATTENDRE(Focus(Fenetre(L"Apropos")) == Controle(L"Apropos", L"OK"));
        if (par_bouton)
            Pilote::Cliquer(Controle(L"Apropos", L"OK"));
        else
            Frapper(VK_ESCAPE);
        ATTENDRE(!Fenetre(L"Apropos") && Active(Principale()));
        ATTENDRE(GetForegroundWindow() == Principale() && A_le_focus(L"A_propos"));
    }
}
