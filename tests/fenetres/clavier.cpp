#include "pilote/korvane.h"

#include <cwchar>
#include <cwctype>

using Textes = std::vector<std::wstring>;

// The keyboard alone: no test here touches the mouse once the program runs.
class Clavier : public Korvane {
protected:
    Clavier() { Regler(L"Options", L"Répertoire", source); }

    void Touche(WORD touche) {
        Pilote::Frapper(touche);
        Pilote::Reposer(Principale());
    }
    void Touche_avec(WORD modificatrice, WORD touche) {
        Pilote::Frapper_avec(modificatrice, touche);
        Pilote::Reposer(Principale());
    }
    void Lettre_acces(wchar_t lettre) {
        Pilote::Alt(lettre);
        Pilote::Reposer(Principale());
    }
    // Tab, or Shift+Tab, until the control has the focus.
    void Aller_a(const std::wstring & controle, bool retour = false) {
        for (int i = 0; i < 60 && !A_le_focus(controle); ++i) {
            if (retour)
                Touche_avec(VK_SHIFT, VK_TAB);
            else
                Touche(VK_TAB);
        }
        ASSERT_EQ(Nom_du_focus(), controle);
    }
    // The names that Tab or Shift+Tab goes through, from where the focus is until it comes back there.
    Textes Tour(bool retour) {
        Textes       tour;
        const Textes depart{Nom_du_focus()};
        do {
            tour.push_back(Nom_du_focus());
            if (retour)
                Touche_avec(VK_SHIFT, VK_TAB);
            else
                Touche(VK_TAB);
        } while (Nom_du_focus() != depart.front() && tour.size() < 60);
        return tour;
    }
    // An entry of a list box, by its arrows.
    void Fleches_jusqu_a(const std::wstring & liste, const std::wstring & entree) {
        const HWND fenetre = Controle(liste);
        const int  rang    = Pilote::Rang_entree(fenetre, entree);
        ASSERT_GE(rang, 0) << Pilote::Utf8(entree);
        for (int i = 0; i < 100 && Pilote::Entree_courante(fenetre) != rang; ++i) {
            Touche(Pilote::Entree_courante(fenetre) < rang ? VK_DOWN : VK_UP);
        }
        ASSERT_EQ(Pilote::Entree_courante(fenetre), rang);
    }
    void Ouvrir_au_clavier(const std::wstring & cote, const std::wstring & entree) {
        Aller_a(L"Répertoire_" + cote);
        Fleches_jusqu_a(L"Répertoire_" + cote, entree);
        Touche(VK_RETURN);
        ATTENDRE(Lire(L"Chemin_" + cote).ends_with(entree));
        ATTENDRE(Nom_du_focus() == L"Répertoire_" + cote);
    }
    // Compares the box, then presses keys in it: the arrows go from the default button to another, Enter presses.
    void Repondre_au_clavier(const Pilote::Boite & attendue, std::initializer_list<WORD> touches) {
        const HWND boite = Pilote::Attendre_boite_visible(programme->Numero(), 10000);
        ASSERT_NE(boite, nullptr) << "aucune boîte ; attendue : " << attendue;
        EXPECT_EQ(Pilote::Lire_boite(boite), attendue);
        for (const WORD touche : touches) {
            Pilote::Frapper(touche);
            Pilote::Reposer(boite);
        }
        ATTENDRE(!Pilote::Visible(boite));
    }
    Pilote::Boite Confirmation(const std::wstring & commande, const std::wstring & fichier,
                               const std::wstring & vers, unsigned boutons) const {
        return {L"Gestionnaire de fichiers",
                L"Vous allez " + commande + L" le fichier '" + fichier + L"' du répertoire\r" +
                    Lire(L"Chemin_srce") + L"\rvers le répertoire\r" + vers +
                    L"\rConfirmez-vous cette commande ?",
                boutons | MB_ICONQUESTION | MB_DEFBUTTON2};
    }
};

TEST_F(Clavier, tab_fait_le_tour_de_la_fenetre_et_majuscule_tab_le_tour_inverse) {
    Creer_source(L"a.txt", 10);
    Lancer();
    const Textes avant  = Tour(false);
    Textes       retour = Tour(true);
    ASSERT_GT(avant.size(), 15u);
    std::reverse(retour.begin() + 1, retour.end());
    EXPECT_EQ(avant, retour);
    for (const wchar_t * nom :
         {L"Chemin_srce", L"Unité_srce", L"Sélection_fichiers", L"Répertoire_srce", L"Fichier_srce",
          L"Copier", L"Déplacer", L"Sélecte", L"Mode", L"Croiser", L"Chemin_dest", L"Unité_dest",
          L"Répertoire_dest", L"Fichier_dest", L"A_propos", L"Aide", L"Quitter"}) {
        EXPECT_NE(std::find(avant.begin(), avant.end(), nom), avant.end()) << Pilote::Utf8(nom);
    }
}

TEST_F(Clavier, echap_referme_une_liste_d_unites_sans_rien_changer_et_ne_fait_rien_ailleurs) {
    Creer_source(L"a.txt", 10);
    Lancer();
    Aller_a(L"Unité_srce");
    const HWND combinee = Controle(L"Unité_srce");
    Touche(VK_DOWN);
    EXIGER(Pilote::Deroulee(combinee));
    Touche(VK_DOWN);
    Touche(VK_ESCAPE);
    ATTENDRE(!Pilote::Deroulee(combinee));
    EXPECT_EQ(Lire(L"Unité_srce"), L"c:");
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{L"a.txt"});
    Touche(VK_ESCAPE);
    EXPECT_TRUE(Boite_absente());
    EXPECT_TRUE(programme->Vivant());
    ATTENDRE(Nom_du_focus() == L"Unité_srce");
}

TEST_F(Clavier, le_champ_de_selection_n_a_son_texte_marque_que_tant_qu_il_a_le_focus) {
    Lancer();
    const auto marque = [&] {
        const auto bornes =
            static_cast<DWORD>(SendMessageW(Controle(L"Sélection_fichiers"), CB_GETEDITSEL, 0, 0));
        return HIWORD(bornes) - LOWORD(bornes);
    };
    Aller_a(L"Sélection_fichiers");
    ATTENDRE(marque() == 3);
    Touche(VK_TAB);
    ATTENDRE(marque() == 0);
    Touche_avec(VK_SHIFT, VK_TAB);
    ATTENDRE(marque() == 3);
}

TEST_F(Clavier, les_lettres_d_acces_agissent_dans_les_deux_modes) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Pilote::Creer_dossier(Source(L"sous"));
    Lancer();
    Lettre_acces(L'S');
    ATTENDRE(Choisies().size() == 2);
    EXPECT_EQ(Lire(L"Sélecte"), L"&Sélectionner un");
    Lettre_acces(L'S');
    ATTENDRE(Choisies().empty());
    Lettre_acces(L'C');
    Repondre_au_clavier(
        {L"COPIER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", MB_OK | MB_ICONEXCLAMATION}, {VK_RETURN});
    Lettre_acces(L'D');
    Repondre_au_clavier(
        {L"DEPLACER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", MB_OK | MB_ICONEXCLAMATION},
        {VK_ESCAPE});
    Lettre_acces(L'M');
    ATTENDRE(Lire(L"Mode") == L" &Mode fichier");
    // What is disabled or hidden in this mode does not answer.
    for (const wchar_t lettre : {L'S', L'D'}) Lettre_acces(lettre);
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(Choisies(), Textes{});
    Lettre_acces(L'M');
    ATTENDRE(Lire(L"Mode") == L" &Mode répertoire");
    Ouvrir_au_clavier(L"dest", L"sous");
    Lettre_acces(L'U');
    ATTENDRE(Lire(L"Chemin_srce").ends_with(L"\\sous"));
    EXPECT_EQ(Entrees(L"Fichier_dest"), (Textes{L"a.txt", L"b.txt"}));
    Lettre_acces(L'Q');
    Repondre_au_clavier({L"Gestionnaire de fichiers", L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                         MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2},
                        {VK_RETURN});
    EXPECT_TRUE(programme->Vivant());
}

TEST_F(Clavier, le_focus_revient_apres_une_boite_et_apres_une_commande) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer();
    Aller_a(L"Fichier_srce");
    Lettre_acces(L'Q');
    Repondre_au_clavier({L"Gestionnaire de fichiers", L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                         MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2},
                        {VK_ESCAPE, VK_RETURN});
    ATTENDRE(GetForegroundWindow() == Principale());
    ATTENDRE(Nom_du_focus() == L"Fichier_srce");
    Aller_a(L"Sélection_fichiers");
    Pilote::Taper(L"<");
    Repondre_au_clavier(
        {L"Gestionnaire de fichiers", L"Caractère de sélection invalide.", MB_OK | MB_ICONEXCLAMATION},
        {VK_RETURN});
    ATTENDRE(A_le_focus(L"Sélection_fichiers"));
}

class Clavier_D : public Clavier {
protected:
    Clavier_D() {
        Pilote::Unite::Vider(L'D');
        Pilote::Creer_dossier(L"D:\\travail\\fond");
        Pilote::Creer_fichier(L"D:\\travail\\fond\\b.txt", "ancien");
        Regler(L"Options", L"Confirme", L"Oui");
    }
};

TEST_F(Clavier_D, une_seance_entiere_choisit_une_unite_parcourt_copie_et_deplace_sans_souris) {
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt", L"d.txt", L"e.txt"}) {
        Creer_source(std::wstring(L"sous\\") + nom, 40000, static_cast<std::uint32_t>(nom[0]));
    }
    Creer_source(L"sous\\a.txt", 300, 1);
    const auto avant = Pilote::Lire_arbre(Source(L"sous"));
    Lancer();
    Aller_a(L"Unité_dest");
    Touche(VK_DOWN);
    EXIGER(Pilote::Deroulee(Controle(L"Unité_dest")));
    Pilote::Taper(L"d");
    Touche(VK_RETURN);
    ATTENDRE(_wcsicmp(Lire(L"Chemin_dest").c_str(), L"d:\\") == 0);
    ATTENDRE(Nom_du_focus() == L"Unité_dest");
    Ouvrir_au_clavier(L"dest", L"travail");
    Ouvrir_au_clavier(L"dest", L"fond");
    Ouvrir_au_clavier(L"srce", L"sous");
    EXPECT_EQ(Choisies(), Textes{L"a.txt"});

    // Three files that do not stand together.
    Aller_a(L"Fichier_srce");
    Touche(VK_HOME);
    Pilote::Enfoncer(VK_CONTROL);
    for (const WORD touche : {WORD{VK_DOWN}, WORD{VK_SPACE}, WORD{VK_END}, WORD{VK_SPACE}}) Touche(touche);
    Pilote::Relever(VK_CONTROL);
    ASSERT_EQ(Choisies(), (Textes{L"a.txt", L"b.txt", L"e.txt"}));

    const std::wstring vers = Lire(L"Chemin_dest");
    Lettre_acces(L'C');
    Repondre_au_clavier(Confirmation(L"COPIER", L"a.txt", vers, MB_YESNOCANCEL), {VK_LEFT, VK_RETURN});
    Repondre_au_clavier(Confirmation(L"COPIER", L"b.txt", vers, MB_YESNOCANCEL), {VK_LEFT, VK_RETURN});
    Repondre_au_clavier(
        {L"COPIER",
         L"Le fichier B.TXT\rexiste déjà dans le répertoire\rD:\\TRAVAIL\\FOND\rvoulez-vous le remplacer ?",
         MB_YESNOCANCEL | MB_ICONQUESTION | MB_DEFBUTTON2},
        {VK_LEFT, VK_RETURN});
    Repondre_au_clavier(Confirmation(L"COPIER", L"e.txt", vers, MB_YESNOCANCEL), {VK_RETURN});
    Attendre_fin_commande();
    EXPECT_EQ(Pilote::Noms(L"D:\\travail\\fond"), (Textes{L"a.txt", L"b.txt"}));
    EXPECT_EQ(Pilote::Empreinte(L"D:\\travail\\fond\\b.txt"), Pilote::Empreinte(Source(L"sous\\b.txt")));
    EXPECT_EQ(Pilote::Differences(avant, Pilote::Lire_arbre(Source(L"sous"))), "");
    ATTENDRE(Nom_du_focus() == L"Fichier_srce");

    Pilote::Taper(L"d");
    ATTENDRE(Choisies() == Textes{L"d.txt"});
    const auto empreinte = Pilote::Empreinte(Source(L"sous\\d.txt"));
    Lettre_acces(L'D');
    Repondre_au_clavier(Confirmation(L"DEPLACER", L"d.txt", vers, MB_YESNO), {VK_LEFT, VK_RETURN});
    Attendre_fin_commande();
    EXPECT_FALSE(Pilote::Existe(Source(L"sous\\d.txt")));
    EXPECT_EQ(Pilote::Empreinte(L"D:\\travail\\fond\\d.txt"), empreinte);
    ATTENDRE(Nom_du_focus() == L"Fichier_srce");
}
