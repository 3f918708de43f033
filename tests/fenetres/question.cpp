#include "fenetres/mesures.h"
#include "fenetres/montre.h"

using namespace Pilote;

// The three-button question.
class Question : public Montre {
protected:
    void Lancer_question(const std::wstring & defaut = L"1", const std::wstring & icone = L"32") {
        Lancer_vitrine({L"message=Voulez-vous EDITER ou EXECUTER le fichier 'ETE.TXT' ?", L"bouton1=&EDITER",
                        L"bouton2=E&XECUTER", L"bouton3=&ANNULER", L"icone=" + icone,
                        L"titre=Gestionnaire de fichiers", L"defaut=" + defaut});
    }
    HWND Ouvrir_question() {
        Cliquer(L"Copier");
        ATTENDRE(Fenetre(L"Dialogue") && GetForegroundWindow() == Fenetre(L"Dialogue"));
        const HWND dialogue = Fenetre(L"Dialogue");
        Reposer(dialogue);
        return dialogue;
    }
    HWND Bouton(int numero) const { return Controle(L"Dialogue", L"Bouton" + std::to_wstring(numero)); }
    void Attendre_reponse(int numero) {
        Attendre_ligne(L"choix " + std::to_wstring(numero));
        ATTENDRE(Fenetre(L"Dialogue") == nullptr && GetForegroundWindow() == Principale());
        Reposer(Principale());
    }
};

TEST_F(Question, montre_titre_message_et_trois_boutons_et_rend_le_numero_du_bouton_clique) {
    Lancer_question();
    for (int reponse : {1, 2, 3}) {
        Cliquer(L"Copier");
        Attendre_dialogue(L"Gestionnaire de fichiers",
                          L"Voulez-vous EDITER ou EXECUTER le fichier 'ETE.TXT' ?",
                          {L"&EDITER", L"E&XECUTER", L"&ANNULER"}, reponse);
        Attendre_reponse(reponse);
        ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
        ATTENDRE(A_le_focus(L"Copier"));
    }
}

TEST_F(Question, le_bouton_par_defaut_a_le_focus_et_un_clic_sur_un_autre_rend_l_autre) {
    for (int defaut : {1, 2, 3}) {
        Lancer_question(std::to_wstring(defaut));
        ATTENDRE(Focus(Ouvrir_question()) == Bouton(defaut));
        EXPECT_FALSE(Active(Principale()));
        const int autre = defaut % 3 + 1;
        Pilote::Cliquer(Bouton(autre));
        Attendre_reponse(autre);
        Fermer();
        Effacer(dossier / L"journal.txt");
    }
}

TEST_F(Question, le_clavier_repond_entree_au_bouton_courant_lettre_et_echappement_qui_annule) {
    Lancer_question(L"2");
    Ouvrir_question();
    Frapper(VK_RETURN);
    Attendre_reponse(2);
    Ouvrir_question();
    Frapper(VK_TAB);
    ATTENDRE(Focus(Fenetre(L"Dialogue")) == Bouton(3));
    Frapper(VK_TAB);
    ATTENDRE(Focus(Fenetre(L"Dialogue")) == Bouton(1));
    Frapper(VK_SPACE);
    Attendre_reponse(1);
    Ouvrir_question();
    Frapper(VK_ESCAPE);
    Attendre_reponse(3);
    Ouvrir_question();
    Alt(L'X');
    Attendre_reponse(2);
    EXPECT_EQ(Journal(), (std::vector<std::wstring>{L"choix 2", L"choix 1", L"choix 3", L"choix 2"}));
}

TEST_F(Question, fermer_la_fenetre_est_la_reponse_qui_annule) {
    Lancer_question(L"1");
    PostMessageW(Ouvrir_question(), WM_SYSCOMMAND, SC_CLOSE, 0);
    Attendre_reponse(3);
    EXPECT_TRUE(programme->Vivant());
}

TEST_F(Question, se_place_par_rapport_a_la_fenetre_principale_et_la_suit) {
    for (const wchar_t * bordure : {L"3", L"9"}) {
        WriteProfileStringW(L"Windows", L"BorderWidth", bordure);
        Lancer_question();
        WriteProfileStringW(L"Windows", L"BorderWidth", nullptr);
        const int largeur_bordure = bordure[0] - L'0';
        for (int decalage : {0, 37}) {
            const RECT avant = Place_ecran(Principale());
            SetWindowPos(Principale(), nullptr, avant.left + decalage, avant.top + decalage, 0, 0,
                         SWP_NOSIZE | SWP_NOZORDER);
            const RECT principale = Place_ecran(Principale());
            const RECT dialogue   = Place_ecran(Ouvrir_question());
            EXPECT_NEAR(dialogue.left - principale.left, En_pixels(1300 + 15 * largeur_bordure), 1);
            EXPECT_NEAR(dialogue.top - principale.top, En_pixels(1900 + 15 * largeur_bordure), 1);
            Frapper(VK_ESCAPE);
            Attendre_reponse(3);
        }
        Fermer();
        Effacer(dossier / L"journal.txt");
    }
}

TEST_F(Question, montre_l_image_du_code_ou_aucune) {
    struct Cas {
        const wchar_t * code;
        unsigned        icone;
    };
    for (const Cas & cas : {Cas{L"16", MB_ICONHAND}, Cas{L"32", MB_ICONQUESTION},
                            Cas{L"48", MB_ICONEXCLAMATION}, Cas{L"64", MB_ICONASTERISK}, Cas{L"", 0}}) {
        Lancer_question(L"1", cas.code);
        const HWND dialogue = Ouvrir_question();
        EXPECT_EQ(Lire_boite(dialogue).style & MB_ICONMASK, cas.icone) << Utf8(cas.code);
        EXPECT_EQ(Visible(Controle(L"Dialogue", L"Icone")), cas.icone != 0) << Utf8(cas.code);
        Fermer();
    }
}

TEST_F(Question, un_bouton_sans_texte_ne_se_montre_pas_et_sans_aucun_texte_un_seul_bouton_ferme) {
    Lancer_vitrine({L"message=Un", L"bouton1=&Oui", L"bouton3=&Non", L"titre=Attention !  Corbeille absente",
                    L"defaut=3"});
    const HWND dialogue = Ouvrir_question();
    EXPECT_EQ(Texte(dialogue), L"Attention !  Corbeille absente");
    EXPECT_TRUE(Visible(Bouton(1)) && !Visible(Bouton(2)) && Visible(Bouton(3)));
    Frapper(VK_ESCAPE);
    Attendre_reponse(3);
    Fermer();
    Effacer(dossier / L"journal.txt");
    Lancer_vitrine({L"message=Terminé.", L"titre=T"});
    Ouvrir_question();
    EXPECT_TRUE(!Visible(Bouton(1)) && !Visible(Bouton(2)) && Visible(Bouton(3)));
    EXPECT_EQ(Texte(Bouton(3)), L"    OK   ");
    Frapper(VK_RETURN);
    Attendre_reponse(3);
}

// Texts of every length, with captions of every length.
TEST_F(Question, montre_tout_le_message_et_les_boutons_en_une_rangee_sous_lui) {
    const std::wstring long_message =
        L"Une première ligne assez longue pour être coupée en deux par la largeur de la fenêtre, puis "
        L"encore quelques mots\rune deuxième\r\rune quatrième ligne.";
    for (const std::wstring & message :
         {std::wstring(L"Bref."), long_message, long_message + L"\r" + long_message}) {
        for (const wchar_t * caption : {L"&OK", L"&Un bouton dont le texte est bien plus large que lui"}) {
            Lancer_vitrine({L"message=" + message, std::wstring(L"bouton1=") + caption, L"bouton2=&Global",
                            std::wstring(L"bouton3=") + caption, L"icone=48", L"titre=T", L"defaut=1"});
            const HWND dialogue = Ouvrir_question();
            const RECT texte    = Place_client(Controle(L"Dialogue", L"Texte"));
            EXPECT_GE(texte.bottom - texte.top, Taille_texte(message, texte.right - texte.left).cy)
                << Utf8(message);
            RECT interieur{};
            GetClientRect(dialogue, &interieur);
            int gauche = 0;
            for (int numero : {1, 2, 3}) {
                const RECT bouton = Place_client(Bouton(numero));
                EXPECT_GE(bouton.right - bouton.left, Taille_texte(Texte(Bouton(numero)) + L" ").cx);
                EXPECT_GE(bouton.top, texte.bottom);
                EXPECT_EQ(bouton.top, Place_client(Bouton(1)).top);
                EXPECT_GE(bouton.left, gauche) << numero << " " << Utf8(caption);
                EXPECT_LE(bouton.right, interieur.right) << numero << " " << Utf8(caption);
                EXPECT_LE(bouton.bottom, interieur.bottom) << numero << " " << Utf8(message);
                gauche = bouton.right;
            }
            const RECT image = Place_client(Controle(L"Dialogue", L"Icone"));
            EXPECT_LE(image.right, texte.left);
            Fermer();
            Effacer(dossier / L"journal.txt");
        }
    }
}
