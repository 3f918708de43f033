#include "fenetres/montre.h"

#include <algorithm>

using namespace Pilote;

// The plain controls, under real mouse and keys.
class Controles_simples : public Montre {
protected:
    void Ouvrir_controles() {
        Lancer_vitrine();
        Cliquer(L"Info");
        ATTENDRE(Fenetre(L"Vitrine") && GetForegroundWindow() == Fenetre(L"Vitrine"));
        Reposer(Fenetre(L"Vitrine"));
    }
    HWND C(const std::wstring & nom) const { return Controle(L"Vitrine", nom); }
    void Cliquer_sur(const std::wstring & nom) const { Pilote::Cliquer(C(nom)); }
    void Aller_sur(const std::wstring & nom) const {
        const auto arrive = [&] { return Nom(Focus(Fenetre(L"Vitrine"))) == nom; };
        for (int pas = 0; pas < 12 && !arrive(); ++pas) {
            Frapper(VK_TAB);
            Reposer(Fenetre(L"Vitrine"));
        }
        ASSERT_TRUE(arrive());
    }
    std::vector<std::wstring> Cochees() const {
        std::vector<std::wstring> noms;
        for (const wchar_t * nom :
             {L"Case", L"Option(0)", L"Option(1)", L"Option(2)", L"Autre(0)", L"Autre(1)"}) {
            if (Cochee(C(nom))) noms.push_back(nom);
        }
        return noms;
    }
    using Noms = std::vector<std::wstring>;
    // The buttons with the border of the one that Enter presses.
    Noms Bordes() const {
        Noms noms;
        for (const wchar_t * nom : {L"OK", L"Annuler"}) {
            if ((GetWindowLongW(C(nom), GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON) noms.push_back(nom);
        }
        return noms;
    }
};

TEST_F(Controles_simples, la_case_change_par_clic_par_espace_et_par_sa_lettre) {
    Ouvrir_controles();
    Cliquer_sur(L"Case");
    Attendre_ligne(L"case oui");
    ATTENDRE(Focus(Fenetre(L"Vitrine")) == C(L"Case"));
    Frapper(VK_SPACE);
    Attendre_ligne(L"case non");
    Cliquer_sur(L"Champ");
    Alt(L'E');
    Attendre_ligne(L"case oui");
    ATTENDRE(Focus(Fenetre(L"Vitrine")) == C(L"Case"));
    EXPECT_EQ(Cochees(), Noms{L"Case"});
}

TEST_F(Controles_simples, une_seule_option_d_un_groupe_est_choisie_et_l_autre_groupe_reste) {
    Ouvrir_controles();
    Cliquer_sur(L"Autre(1)");
    ATTENDRE(Cochees() == Noms{L"Autre(1)"});
    for (int i : {0, 2, 1}) {
        const std::wstring nom = L"Option(" + std::to_wstring(i) + L")";
        Cliquer_sur(nom);
        ATTENDRE((Cochees() == Noms{nom, L"Autre(1)"}));
    }
    Attendre_ligne(L"Option(1) oui");
    Frapper(VK_DOWN);
    ATTENDRE((Cochees() == Noms{L"Option(2)", L"Autre(1)"}));
    Frapper(VK_DOWN);
    ATTENDRE((Cochees() == Noms{L"Option(0)", L"Autre(1)"}));
    Alt(L'D');
    ATTENDRE((Cochees() == Noms{L"Option(1)", L"Autre(1)"}));
    Attendre_ligne(L"Option(1) oui");
}

TEST_F(Controles_simples, la_barre_avance_par_ses_fleches_par_sa_glissiere_et_par_les_touches) {
    Ouvrir_controles();
    const RECT  barre  = Place_ecran(C(L"Barre"));
    const int   milieu = (barre.top + barre.bottom) / 2;
    const POINT droite{barre.right - 4, milieu};
    const POINT gauche{barre.left + 4, milieu};
    Pilote::Cliquer(droite);
    Attendre_ligne(L"barre 1");
    Pilote::Cliquer(gauche);
    Attendre_ligne(L"barre 0");
    Pilote::Cliquer(gauche);
    Reposer(Fenetre(L"Vitrine"));
    Attendre_ligne(L"barre 0");
    Pilote::Cliquer(POINT{barre.right - 60, milieu});
    Attendre_ligne(L"barre 1");
    Aller_sur(L"Barre");
    Frapper(VK_END);
    Attendre_ligne(L"barre 15");
    Frapper(VK_LEFT);
    Attendre_ligne(L"barre 14");
    Frapper(VK_HOME);
    Attendre_ligne(L"barre 0");
}

TEST_F(Controles_simples, la_barre_suit_le_curseur_que_l_on_tire) {
    Ouvrir_controles();
    const HWND fenetre = C(L"Barre");
    const RECT barre   = Place_ecran(fenetre);
    const int  milieu  = (barre.top + barre.bottom) / 2;
    const int  fleche  = barre.bottom - barre.top;
    Glisser(POINT{barre.left + fleche + 6, milieu}, POINT{barre.right - fleche - 4, milieu},
            Fenetre(L"Vitrine"));
    Attendre_ligne(L"defilement");
    const auto journal = Journal();
    EXPECT_NE(std::find(journal.begin(), journal.end(), L"barre 15"), journal.end());
    ATTENDRE(Texte(C(L"Jauge")) == L"15");
}

TEST_F(Controles_simples, le_champ_dit_chaque_changement_et_son_focus) {
    Ouvrir_controles();
    Cliquer_sur(L"Champ");
    Attendre_ligne(L"champ entre");
    Taper(L"àé");
    Attendre_ligne(L"champ àé");
    Frapper(VK_TAB);
    Attendre_ligne(L"champ sort");
    EXPECT_EQ(Journal(), (Noms{L"champ entre", L"champ à", L"champ àé", L"champ sort"}));
}

TEST_F(Controles_simples, la_minuterie_bat_jusqu_a_ce_qu_on_l_arrete) {
    Ouvrir_controles();
    ATTENDRE(Texte(C(L"Compteur")) == L"5");
    Dormir(350);
    EXPECT_EQ(Texte(C(L"Compteur")), L"5");
}

TEST_F(Controles_simples, un_bouton_sans_action_reste_inactif_et_tabulation_le_saute) {
    Ouvrir_controles();
    EXPECT_FALSE(Active(C(L"Inactif")));
    Cliquer_sur(L"Champ");
    for (const wchar_t * suivant : {L"OK", L"Annuler", L"Case"}) {
        Frapper(VK_TAB);
        ATTENDRE(Nom(Focus(Fenetre(L"Vitrine"))) == suivant);
    }
    Frapper_avec(VK_SHIFT, VK_TAB);
    ATTENDRE(Nom(Focus(Fenetre(L"Vitrine"))) == L"Annuler");
}

TEST_F(Controles_simples, entree_et_echappement_valent_les_boutons_ok_et_annuler) {
    Ouvrir_controles();
    Cliquer_sur(L"Champ");
    Frapper(VK_RETURN);
    Attendre_ligne(L"ok");
    ATTENDRE(!Fenetre(L"Vitrine") && Active(Principale()) && A_le_focus(L"Info"));
    Frapper(VK_RETURN);
    ATTENDRE(Fenetre(L"Vitrine") && GetForegroundWindow() == Fenetre(L"Vitrine"));
    Reposer(Fenetre(L"Vitrine"));
    Frapper(VK_ESCAPE);
    Attendre_ligne(L"annuler");
}

TEST_F(Controles_simples, le_bord_montre_le_bouton_qu_entree_presse_d_ou_que_vienne_le_focus) {
    Ouvrir_controles();
    Cliquer_sur(L"Champ");
    ATTENDRE(Bordes() == Noms{L"OK"});
    for (const wchar_t * suivant : {L"OK", L"Annuler", L"OK"}) {
        Frapper(VK_TAB);
        ATTENDRE(Bordes() == Noms{suivant});
    }
    EXPECT_EQ(Nom(Focus(Fenetre(L"Vitrine"))), L"Case");
    Frapper_avec(VK_SHIFT, VK_TAB);
    ATTENDRE(Bordes() == Noms{L"Annuler"});
    Cliquer_sur(L"Champ");
    ATTENDRE(Bordes() == Noms{L"OK"});
}

TEST_F(Controles_simples, le_programme_arrete_avec_une_fenetre_modale_finit_sans_attendre) {
    Ouvrir_controles();
    PostMessageW(Principale(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(programme->Attendre_fin(3000));
}
