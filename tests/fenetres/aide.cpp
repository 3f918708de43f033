#include "forms/aide_gestion_fichiers.h"
#include "pilote/korvane.h"

#include <set>

using namespace Pilote;

class Aide : public Korvane {
protected:
    const std::wstring introduction = L"  Vous avez activé l'aide du gestionnaire de fichiers en cliquant "
                                      L"sur le point d'interrogation ou par appui sur la "
                                      L"touche F1, il suffit de cliquer à nouveau sur ce point "
                                      L"d'interrogation ou appuyer sur la touche F1 pour arrêter "
                                      L"l'aide contextuelle. Les informations seront affichées en plaçant le "
                                      L"pointeur de souris sur la liste, le champ ou "
                                      L"le bouton dont vous désirez être informé.";

    int Hauteur() const {
        const RECT place = Place_ecran(Principale());
        return place.bottom - place.top;
    }
    bool Panneau_visible() const {
        RECT interieur{};
        GetClientRect(Principale(), &interieur);
        return Place_client(Controle(L"Fenêtre")).bottom <= interieur.bottom;
    }
    bool Panneau_cache() const {
        RECT interieur{};
        GetClientRect(Principale(), &interieur);
        return Place_client(Controle(L"Fenêtre")).top >= interieur.bottom - 1;
    }
    // The window itself, between the SOURCE frame and the commands.
    POINT Entre_les_elements() const {
        const RECT cadre  = Place_ecran(Controle(L"Cadre_srce"));
        const RECT copier = Place_ecran(Controle(L"Info"));
        return {(cadre.right + copier.left) / 2, copier.top};
    }
    int Hauteur_panneau() const {
        const RECT place = Place_client(Controle(L"Fenêtre"));
        return place.bottom - place.top;
    }
};

TEST_F(Aide, f1_puis_f1_agrandit_la_fenetre_du_panneau_puis_lui_rend_sa_hauteur) {
    Lancer();
    const int normale = Hauteur();
    EXPECT_TRUE(Panneau_cache());
    for (int fois = 0; fois < 2; ++fois) {
        Frapper(VK_F1);
        ATTENDRE(Hauteur() > normale);
        EXPECT_EQ(Hauteur(), normale + Hauteur_panneau());
        EXPECT_TRUE(Panneau_visible());
        ATTENDRE(Lire(L"Fenêtre") == introduction);
        Frapper(VK_F1);
        ATTENDRE(Hauteur() == normale);
        EXPECT_TRUE(Panneau_cache());
        ATTENDRE(Lire(L"Fenêtre").empty());
    }
}

TEST_F(Aide, le_point_d_interrogation_fait_comme_f1) {
    Lancer();
    const int normale = Hauteur();
    Cliquer(L"Aide");
    ATTENDRE(Hauteur() == normale + Hauteur_panneau());
    ATTENDRE(Lire(L"Fenêtre") == introduction);
    // The panel still shows after the window has been an icon.
    PostMessageW(Principale(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
    ATTENDRE(IsIconic(Principale()));
    PostMessageW(Principale(), WM_SYSCOMMAND, SC_RESTORE, 0);
    ATTENDRE(!IsIconic(Principale()) && Hauteur() == normale + Hauteur_panneau());
    SetForegroundWindow(Principale());
    Reposer(Principale());
    Cliquer(L"Aide");
    ATTENDRE(Hauteur() == normale && Lire(L"Fenêtre").empty());
}

// Lines only separate; the panel itself says nothing of itself.
TEST_F(Aide, chaque_element_visible_a_son_texte_qui_commence_par_deux_blancs) {
    for (int i = 0; i < 8; ++i) Regler(L"Boutons", L"Bouton " + std::to_wstring(i), L"PROG.EXE");
    Lancer();
    Frapper(VK_F1);
    ATTENDRE(Lire(L"Fenêtre") == introduction);
    for (const bool mode_repertoire : {false, true}) {
        if (mode_repertoire) Cliquer(L"Mode");
        for (HWND controle : Controles(Principale())) {
            const std::wstring nom = Nom(controle);
            if (!Visible(controle) || nom.starts_with(L"Ligne") || nom == L"Fenêtre" ||
                nom.starts_with(L"Cadre"))
                continue;
            Pointer(Entre_les_elements());
            EXIGER(Lire(L"Fenêtre") == aide_fenetre_principale);
            Pointer(controle);
            Reposer(Principale());
            const std::wstring texte = Lire(L"Fenêtre");
            EXPECT_EQ(Utf8(texte.substr(0, 2)), "  ") << Utf8(nom);
            EXPECT_GT(texte.size(), 30u) << Utf8(nom);
            EXPECT_NE(texte, aide_fenetre_principale) << Utf8(nom) << " n'a pas de texte";
        }
    }
}

TEST_F(Aide, chaque_texte_est_celui_de_son_element) {
    Regler(L"Boutons", L"Bloc", L"PROG.EXE");
    Lancer();
    Frapper(VK_F1);
    ATTENDRE(Lire(L"Fenêtre") == introduction);
    struct Cas {
        const wchar_t * controle;
        const wchar_t * texte;
    };
    for (const Cas & cas :
         {Cas{L"Bouton(0)",
              L"  Ces boutons exécutent les commandes indiquées sur ceux-ci avec une demande préalable de "
              L"confirmation si elle est paramètrée dans les options."},
          Cas{L"Espace_libre",
              L"  Ce nombre indique en temps réel la place restante (en Kilo-octets) sur l'unité "
              L"destinataire.Ceci permet de savoir, en le comparant avec le total affiché pour le(s) "
              L"fichier(s) sélectionné(s), si la copie du(des) fichier(s) sera acceptée."},
          Cas{L"Chemin_srce", aide_chemin_srce},
          Cas{L"Unité_srce", aide_unité_srce},
          Cas{L"Sélection_fichiers", aide_sélection_fichiers},
          Cas{L"Répertoire_srce", aide_répertoire_srce},
          Cas{L"Fichier_srce", aide_fichier_srce},
          Cas{L"Copier", aide_copier},
          Cas{L"Effacer", aide_effacer},
          Cas{L"Chemin_dest", aide_chemin_dest},
          Cas{L"Unité_dest", aide_unité_dest},
          Cas{L"Croiser", aide_croiser},
          Cas{L"Répertoire_dest", aide_répertoire_dest},
          Cas{L"Fichier_dest", aide_fichier_dest},
          Cas{L"Ligne_message", aide_ligne_message},
          Cas{L"Options", aide_options},
          Cas{L"Aide", introduction.c_str()},
          Cas{L"Quitter", aide_quitter},
          Cas{L"Titre_srce", aide_titre_srce},
          Cas{L"Titre_dest", aide_titre_dest}}) {
        Survoler(cas.controle);
        EXPECT_TRUE(Attendre([&] { return Lire(L"Fenêtre") == cas.texte; }, 1000))
            << Utf8(cas.controle) << " : " << Utf8(Lire(L"Fenêtre"));
    }
}

TEST_F(Aide, une_fenetre_qui_se_ferme_laisse_le_rappel_dans_le_panneau) {
    Lancer();
    Frapper(VK_F1);
    ATTENDRE(Lire(L"Fenêtre") == introduction);
    Pilote::Alt(L'k');
    EXIGER(Fenetre(L"Apropos") && GetForegroundWindow() == Fenetre(L"Apropos"));
    Frapper(VK_RETURN);
    ATTENDRE(!Fenetre(L"Apropos"));
    ATTENDRE(Lire(L"Fenêtre") ==
             L"  Cliquez sur un élément de la fenêtre de KORVANE ou bien cliquez sur le point "
             L"d'interrogation ou appuyez sur la touche F1 pour arrêter l'aide.");
}

TEST_F(Aide, sans_aide_le_pointeur_ne_change_rien) {
    Lancer();
    const int normale = Hauteur();
    for (const wchar_t * controle : {L"Copier", L"Fichier_srce", L"Espace_libre", L"Quitter"}) {
        Survoler(controle);
        EXPECT_TRUE(Lire(L"Fenêtre").empty()) << Utf8(controle);
    }
    EXPECT_EQ(Hauteur(), normale);
}

TEST_F(Aide, avec_le_fichier_d_aide_f1_et_le_bouton_l_ouvrent_au_lieu_du_panneau) {
    Regler(L"Options", L"Aide en ligne", L"OUI.");
    Lancer();
    const int   normale = Hauteur();
    const Boite absent{L"Gestionnaire de fichiers", L"Le fichier d'aide KORVANE.HLP est introuvable.",
                       MB_OK | MB_ICONINFORMATION};
    Cliquer(L"Aide");
    Attendre_boite(absent, IDOK);
    ATTENDRE(GetForegroundWindow() == Principale() && A_le_focus(L"Aide"));
    Frapper(VK_F1);
    Attendre_boite(absent, IDOK);
    EXPECT_EQ(Hauteur(), normale);
    Survoler(L"Copier");
    EXPECT_TRUE(Lire(L"Fenêtre").empty());
}

// The manual itself, opened in place of the panel.
class Aide_fichier : public Korvane {
protected:
    Aide_fichier() { Regler(L"Options", L"Aide en ligne", L"Oui"); }
    explicit Aide_fichier(const std::wstring & chemin) : Korvane(chemin) {
        Regler(L"Options", L"Aide en ligne", L"Oui");
    }
    ~Aide_fichier() override {
        Korvane::Fermer();
        Fermer_manuel();
        DeleteFileW(souche);
    }
    void Fournir(const std::wstring & nom) const {
        Creer_dossier(dossier / L"programme");
        ASSERT_TRUE(CopyFileW((Repertoire_essais() + L"\\" + nom).c_str(),
                              (dossier / (L"programme\\" + nom)).c_str(), TRUE))
            << Utf8(nom);
    }
    // Some ten kilobytes under the engine's name, found before it, as on recent systems.
    static void Remplacer_moteur() { Creer_fichier(souche, Contenu(11000, 1)); }

    static HWND Manuel() { return FindWindowW(L"MS_WINHELP", nullptr); }
    static bool Manuel_dit(const std::wstring & mots) {
        bool dit = false;
        Parcourir(Manuel(), [&](HWND controle) {
            dit = dit ||
                  (Classe(controle) == L"RichEdit20A" && Texte(controle).find(mots) != std::wstring::npos);
        });
        return dit;
    }
    static void Fermer_manuel() {
        if (Manuel()) PostMessageW(Manuel(), WM_CLOSE, 0, 0);
        ATTENDRE(!Manuel());
    }
    // Another program of the user's own for the other manual.
    class Lecteur_chm {
    public:
        explicit Lecteur_chm(const std::wstring & trace) {
            DWORD octets = sizeof avant_;
            RegGetValueW(HKEY_LOCAL_MACHINE, cle_chm, nullptr, RRF_RT_REG_SZ, nullptr, avant_, &octets);
            Ecrire(L"\"" + Repertoire_essais() + L"\\enregistreur.exe\" \"%1\"");
            SetEnvironmentVariableW(L"KORVANE_ENREGISTREMENT", trace.c_str());
        }
        ~Lecteur_chm() {
            Ecrire(avant_);
            SetEnvironmentVariableW(L"KORVANE_ENREGISTREMENT", nullptr);
        }
        Lecteur_chm(const Lecteur_chm &)             = delete;
        Lecteur_chm & operator=(const Lecteur_chm &) = delete;

    private:
        static void Ecrire(const std::wstring & commande) {
            RegSetKeyValueW(HKEY_LOCAL_MACHINE, cle_chm, nullptr, REG_SZ, commande.c_str(),
                            static_cast<DWORD>((commande.size() + 1) * sizeof(wchar_t)));
        }
        static constexpr const wchar_t * cle_chm = L"Software\\Classes\\chm.file\\shell\\open\\command";

        wchar_t avant_[1024]{};
    };
    // The line that the recorder wrote, once; nothing else was opened.
    void Attendre_chm(const std::wstring & trace) {
        EXIGER(Existe(trace) && Taille_fichier(trace) > 0);
        const std::wstring chemin = dossier / L"programme\\KORVANE.CHM";
        EXPECT_NE(Large(Lire_fichier(trace)).find(L"\"" + chemin + L"\""), std::wstring::npos)
            << Lire_fichier(trace);
        EXPECT_EQ(Manuel(), nullptr);
        EXPECT_TRUE(Boite_absente());
        Pilote::Effacer(trace);
    }

    static constexpr const wchar_t * souche       = L"C:\\windows\\winhlp32.exe";
    const std::wstring               gestionnaire = L"Gestionnaire de fichiers";
};

TEST_F(Aide_fichier, le_manuel_s_ouvre_au_sommaire_par_le_bouton_et_par_f1_et_se_ferme_avec_le_programme) {
    Fournir(L"KORVANE.HLP");
    Lancer();
    Cliquer(L"Aide");
    EXIGER(Manuel_dit(L"Présentation") && Manuel_dit(L"La corbeille"));
    Fermer_manuel();
    SetForegroundWindow(Principale());
    ATTENDRE(GetForegroundWindow() == Principale());
    Frapper(VK_F1);
    EXIGER(Manuel_dit(L"Présentation"));
    Fermer_manuel();
    // From a child window too; the manual stays when that window closes.
    SetForegroundWindow(Principale());
    Cliquer(L"Corbeille");
    EXIGER(Fenetre(L"Corbeille") && GetForegroundWindow() == Fenetre(L"Corbeille"));
    Frapper(VK_F1);
    EXIGER(Manuel_dit(L"Présentation"));
    SetForegroundWindow(Fenetre(L"Corbeille"));
    ATTENDRE(GetForegroundWindow() == Fenetre(L"Corbeille"));
    Frapper(VK_ESCAPE);
    ATTENDRE(!Fenetre(L"Corbeille"));
    EXPECT_TRUE(Manuel());
    SetForegroundWindow(Principale());
    Reposer(Principale());
    EXPECT_TRUE(Boite_absente());
    Cliquer(L"Quitter");
    Attendre_boite(gestionnaire, L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                   MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDYES);
    EXPECT_TRUE(programme->Attendre_fin(5000));
    ATTENDRE(!Manuel());
}

TEST_F(Aide_fichier, sans_moteur_pour_le_premier_ou_sans_lui_l_autre_manuel_s_ouvre) {
    const std::wstring trace = dossier / L"trace.txt";
    const Lecteur_chm  lecteur(trace);
    Fournir(L"KORVANE.HLP");
    Fournir(L"KORVANE.CHM");
    Remplacer_moteur();
    Lancer();
    Cliquer(L"Aide");
    Attendre_chm(trace);
    Frapper(VK_F1);
    Attendre_chm(trace);
    // The engine is there, its file is not.
    DeleteFileW(souche);
    Pilote::Effacer(dossier / L"programme\\KORVANE.HLP");
    Frapper(VK_F1);
    Attendre_chm(trace);
}

TEST_F(Aide_fichier, sans_moteur_et_sans_l_autre_manuel_un_message_le_dit) {
    Fournir(L"KORVANE.HLP");
    Remplacer_moteur();
    Lancer();
    Cliquer(L"Aide");
    Attendre_boite(gestionnaire, L"Le fichier d'aide KORVANE.HLP ne peut pas être ouvert sur ce système.",
                   MB_OK | MB_ICONINFORMATION, IDOK);
    ATTENDRE(GetForegroundWindow() == Principale() && A_le_focus(L"Aide"));
}

// A directory whose name the system's code page cannot hold.
class Aide_fichier_ailleurs : public Aide_fichier {
protected:
    Aide_fichier_ailleurs() : Aide_fichier(L"C:\\essais\\\u041A\u043B\u044E\u0447") {}
};

TEST_F(Aide_fichier_ailleurs, le_manuel_s_ouvre_dans_un_repertoire_au_nom_d_un_autre_alphabet) {
    Fournir(L"KORVANE.HLP");
    Ne_pas_regler(L"Options", L"Répertoire");
    Lancer();
    Cliquer(L"Aide");
    EXIGER(Manuel_dit(L"Présentation"));
    EXPECT_TRUE(Boite_absente());
}

// Names too long for their list.
class Astuce : public Korvane {
protected:
    const std::wstring nom_long =
        L"Un nom de fichier bien trop long pour tenir dans la largeur de la liste des fichiers.txt";
};

TEST_F(Astuce, le_nom_entier_d_une_entree_trop_longue_se_montre_sous_le_pointeur) {
    Creer_fichier(Source(nom_long), "x");
    Creer_source(L"court.txt", 1);
    Creer_dossier(Source(L"répertoire " + nom_long));
    Lancer_dans_les_dossiers();
    Ouvrir(L"dest", source);
    const auto pointer = [this](const wchar_t * liste, const std::wstring & entree) {
        const HWND fenetre = Controle(liste);
        Pointer(Point_entree(fenetre, Rang_entree(fenetre, entree)));
        Reposer(Principale());
    };
    for (const wchar_t * liste : {L"Fichier_srce", L"Fichier_dest"}) {
        EXPECT_FALSE(Se_voit(L"Tip"));
        pointer(liste, nom_long);
        ATTENDRE(Se_voit(L"Tip"));
        EXPECT_EQ(Utf8(Lire(L"Tip")), Utf8(L" " + nom_long));
        const RECT boite = Place_ecran(Controle(L"Tip"));
        POINT      point{};
        GetCursorPos(&point);
        EXPECT_GT(boite.top, point.y);
        pointer(liste, L"court.txt");
        ATTENDRE(!Se_voit(L"Tip"));
    }
    for (const wchar_t * liste : {L"Répertoire_srce", L"Répertoire_dest"}) {
        pointer(liste, L"répertoire " + nom_long);
        ATTENDRE(Se_voit(L"Tip"));
        EXPECT_EQ(Utf8(Lire(L"Tip")), Utf8(L" répertoire " + nom_long));
        Survoler(L"Copier");
        ATTENDRE(!Se_voit(L"Tip"));
    }
}

TEST_F(Astuce, elle_disparait_quand_la_liste_defile_et_ne_gene_pas_le_clic) {
    for (int i = 10; i < 60; ++i) Creer_fichier(Source(std::to_wstring(i) + nom_long), "x");
    Lancer_dans_les_dossiers();
    const HWND liste = Controle(L"Fichier_srce");
    Pointer(Point_entree(liste, 3));
    Reposer(Principale());
    ATTENDRE(Se_voit(L"Tip"));
    Tourner_molette(liste, -1);
    Reposer(Principale());
    ATTENDRE(Premiere_visible(liste) > 0);
    const int rang = Premiere_visible(liste) + 2;
    Pilote::Cliquer(Point_entree(liste, rang));
    ATTENDRE(Choisies() == std::vector<std::wstring>{Entree(liste, rang)});
    PostMessageW(liste, WM_VSCROLL, SB_PAGEDOWN, 0);
    ATTENDRE(!Se_voit(L"Tip"));
}
