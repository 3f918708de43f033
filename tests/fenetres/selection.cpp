#include "pilote/korvane.h"

using Textes = std::vector<std::wstring>;

// Which files are selected, by mouse and keyboard, and the line that counts them.
class Selection : public Korvane {
protected:
    void Creer_cinq() {
        Creer_source(L"a.txt", 1);
        Creer_source(L"b.txt", 20);
        Creer_source(L"Maison.txt", 300);
        Creer_source(L"milieu.txt", 4000);
        Creer_source(L"z.txt", 50000);
    }
    void Lancer_avec_cinq() {
        Creer_cinq();
        Lancer_dans_les_dossiers();
    }
    void Compte(const Textes & choisies, const std::wstring & ligne) {
        EXPECT_TRUE(Pilote::Attendre([&] { return Lire(L"Ligne_message") == ligne; }))
            << Pilote::Utf8(Lire(L"Ligne_message")) << " au lieu de " << Pilote::Utf8(ligne);
        EXPECT_EQ(Choisies(), choisies);
    }
    POINT Entree_fichier(const std::wstring & nom) const {
        const HWND liste = Controle(L"Fichier_srce");
        return Pilote::Point_entree(liste, Pilote::Rang_entree(liste, nom));
    }
    void Frapper_et_attendre(WORD touche) {
        Pilote::Frapper(touche);
        Pilote::Reposer(Principale());
    }
};

TEST_F(Selection, les_clics_avec_ctrl_et_majuscule_choisissent_et_le_compte_suit) {
    Lancer_avec_cinq();
    const HWND liste = Controle(L"Fichier_srce");
    Cliquer_entree(L"Fichier_srce", L"b.txt");
    Compte({L"b.txt"}, L"   1 fichier sélectionné, total = 20 octets.");
    Pilote::Cliquer_avec(VK_CONTROL, Entree_fichier(L"milieu.txt"), liste);
    Compte({L"b.txt", L"milieu.txt"}, L"   2 fichiers sélectionnés, total = 4\u00A0020 octets.");
    Pilote::Cliquer_avec(VK_CONTROL, Entree_fichier(L"b.txt"), liste);
    Compte({L"milieu.txt"}, L"   1 fichier sélectionné, total = 4\u00A0000 octets.");
    Pilote::Cliquer_avec(VK_CONTROL, Entree_fichier(L"milieu.txt"), liste);
    Compte({}, L"");
    Cliquer_entree(L"Fichier_srce", L"b.txt");
    Pilote::Cliquer_avec(VK_SHIFT, Entree_fichier(L"z.txt"), liste);
    Compte({L"b.txt", L"Maison.txt", L"milieu.txt", L"z.txt"},
           L"   4 fichiers sélectionnés, total = 54\u00A0320 octets.");
}

TEST_F(Selection, glisser_choisit_tous_les_fichiers_traverses) {
    Lancer_avec_cinq();
    Pilote::Glisser(Entree_fichier(L"b.txt"), Entree_fichier(L"milieu.txt"), Controle(L"Fichier_srce"));
    Compte({L"b.txt", L"Maison.txt", L"milieu.txt"},
           L"   3 fichiers sélectionnés, total = 4\u00A0320 octets.");
}

TEST_F(Selection, le_clavier_choisit_avec_majuscule_ctrl_et_la_premiere_lettre) {
    Lancer_avec_cinq();
    Cliquer_entree(L"Fichier_srce", L"a.txt");
    Frapper_et_attendre(VK_DOWN);
    Compte({L"b.txt"}, L"   1 fichier sélectionné, total = 20 octets.");
    Pilote::Frapper_avec(VK_SHIFT, VK_DOWN);
    Compte({L"b.txt", L"Maison.txt"}, L"   2 fichiers sélectionnés, total = 320 octets.");
    Pilote::Frapper_avec(VK_CONTROL, 'A');
    Compte({L"a.txt", L"b.txt", L"Maison.txt", L"milieu.txt", L"z.txt"},
           L"   5 fichiers sélectionnés, total = 54\u00A0321 octets.");
    EXPECT_EQ(Lire(L"Sélecte"), L"&Sélectionner tout");
    Frapper_et_attendre(VK_HOME);
    Pilote::Taper(L"m");
    Compte({L"Maison.txt"}, L"   1 fichier sélectionné, total = 300 octets.");
    Pilote::Enfoncer(VK_CONTROL);
    Frapper_et_attendre(VK_DOWN);
    Frapper_et_attendre(VK_DOWN);
    Frapper_et_attendre(VK_SPACE);
    Pilote::Relever(VK_CONTROL);
    Compte({L"Maison.txt", L"z.txt"}, L"   2 fichiers sélectionnés, total = 50\u00A0300 octets.");
}

TEST_F(Selection, un_total_de_plus_de_quatre_gigaoctets_est_compte_juste) {
    for (const wchar_t * nom : {L"a.dat", L"b.dat"}) {
        const HANDLE fichier =
            CreateFileW(Source(nom).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
        LARGE_INTEGER longueur{};
        longueur.QuadPart = 3'000'000'123;
        SetFilePointerEx(fichier, longueur, nullptr, FILE_BEGIN);
        EXPECT_TRUE(SetEndOfFile(fichier));
        CloseHandle(fichier);
    }
    Lancer_dans_les_dossiers();
    Cliquer(L"Sélecte");
    Compte({L"a.dat", L"b.dat"}, L"   2 fichiers sélectionnés, total = 6\u00A0000\u00A0000\u00A0246 octets.");
}

TEST_F(Selection, selectionner_tout_choisit_tout_et_une_seconde_fois_plus_rien) {
    Lancer_avec_cinq();
    for (int i = 0; i < 2; ++i) {
        Cliquer(L"Sélecte");
        EXPECT_EQ(Lire(L"Sélecte"), L"&Sélectionner un");
        Compte(Entrees(L"Fichier_srce"), L"   5 fichiers sélectionnés, total = 54\u00A0321 octets.");
        EXPECT_FALSE(Sablier());
        Cliquer(L"Sélecte");
        EXPECT_EQ(Lire(L"Sélecte"), L"&Sélectionner tout");
        Compte({}, L"");
        ATTENDRE(Nom_du_focus() == L"Sélecte");
    }
}

// Whatever takes the list out of the select-all mode leaves the line in agreement with what is selected.
TEST_F(Selection, un_clic_un_autre_mode_un_autre_repertoire_ou_motif_finissent_le_mode_tout_selectionne) {
    struct Fin {
        const char *          nom;
        std::function<void()> acte;
        Textes                choisies;
        std::wstring          ligne;
    };
    const Fin fins[] = {
        {"clic",
         [this] { Cliquer_entree(L"Fichier_srce", L"b.txt"); },
         {L"b.txt"},
         L"   1 fichier sélectionné, total = 20 octets."},
        {"mode", [this] { Cliquer(L"Mode"); }, {}, L""},
        {"mode fichier",
         [this] {
             Cliquer(L"Mode");
             Cliquer(L"Sélecte");
             Cliquer(L"Sélecte");
         },
         {},
         L""},
        {"répertoire",
         [this] { Cliquer_entree(L"Répertoire_srce", L"sous"); },
         {L"c.txt"},
         L"   1 fichier sélectionné, total = 7 octets."},
        {"motif", [this] { Remplacer_texte(L"Sélection_fichiers", L"b*"); }, {}, L""},
    };
    Creer_source(L"sous\\c.txt", 7);
    Lancer_avec_cinq();
    for (const Fin & fin : fins) {
        SCOPED_TRACE(fin.nom);
        if (Est_actif(L"Sélecte")) Cliquer(L"Sélecte");
        fin.acte();
        ATTENDRE(Lire(L"Sélecte") == L"&Sélectionner tout");
        Compte(fin.choisies, fin.ligne);
    }
}

TEST_F(Selection, une_commande_sans_fichier_choisi_le_dit_et_rend_le_focus_a_son_bouton) {
    struct Commande {
        const wchar_t * bouton;
        const wchar_t * titre;
    };
    Lancer_avec_cinq();
    Compte({}, L"");
    for (const Commande & commande : {Commande{L"Copier", L"COPIER"}, Commande{L"Déplacer", L"DEPLACER"}}) {
        Cliquer(commande.bouton);
        Attendre_boite(commande.titre, L"Pas de fichier(s) 'SOURCE' sélectionné(s).",
                       MB_OK | MB_ICONEXCLAMATION, IDOK);
        Attendre_fin_commande();
        ATTENDRE(Nom_du_focus() == commande.bouton);
    }
    EXPECT_EQ(Pilote::Noms(destination), Textes{});
    EXPECT_EQ(Pilote::Noms(source).size(), 5u);
}

TEST_F(Selection, dans_un_repertoire_vide_tout_selectionner_ne_compte_rien) {
    Lancer_dans_les_dossiers();
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{});
    Cliquer(L"Sélecte");
    Compte({}, L"");
    Cliquer(L"Déplacer");
    Attendre_boite(L"DEPLACER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", MB_OK | MB_ICONEXCLAMATION,
                   IDOK);
    Attendre_fin_commande();
    Compte({}, L"");
}

class Ecran_selection : public Selection {};

TEST_F(Ecran_selection, les_couleurs_de_la_liste_changent_avec_le_mode_tout_selectionne) {
    Creer_source(L"a.txt", 1);
    Lancer_dans_les_dossiers();
    const RECT place = Pilote::Place_ecran(Controle(L"Fichier_srce"));
    const auto fond  = [&] { return Pilote::Point_ecran({place.right - 30, place.bottom - 10}); };
    EXPECT_EQ(fond(), GetSysColor(COLOR_WINDOW));
    Cliquer(L"Sélecte");
    ATTENDRE(fond() != GetSysColor(COLOR_WINDOW));
    Cliquer(L"Sélecte");
    ATTENDRE(fond() == GetSysColor(COLOR_WINDOW));
}
