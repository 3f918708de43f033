#include "fenetres/montre.h"

using namespace Pilote;

// The text prompt and the file-open dialog.
class Saisie : public Montre {
protected:
    void Ouvrir_saisie() {
        Cliquer(L"Déplacer");
        ATTENDRE(Fenetre(L"Saisie") && GetForegroundWindow() == Fenetre(L"Saisie"));
        ATTENDRE(Focus(Fenetre(L"Saisie")) == Controle(L"Saisie", L"Texte"));
    }
};

TEST_F(Saisie, montre_l_invite_et_le_texte_propose_et_rend_ce_qui_est_tape) {
    Lancer_vitrine({L"titre=COPIER", L"invite=Nom de la copie :\rdeuxième ligne", L"saisie=été.txt"});
    Cliquer(L"Déplacer");
    Attendre_saisie(L"COPIER", L"Nom de la copie :\rdeuxième ligne", L"été.txt", L"Œuvre n°2 €.txt");
    Attendre_ligne(L"saisie [Œuvre n°2 €.txt]");
    Cliquer(L"Déplacer");
    Attendre_saisie(L"COPIER", L"Nom de la copie :\rdeuxième ligne", L"été.txt", nullptr);
    Attendre_ligne(L"saisie [été.txt]");
    ATTENDRE(A_le_focus(L"Déplacer") && Active(Principale()));
}

TEST_F(Saisie, annuler_et_echappement_rendent_le_texte_vide_et_entree_vaut_ok) {
    Lancer_vitrine({L"titre=T", L"invite=I", L"saisie=abc"});
    Cliquer(L"Déplacer");
    Attendre_saisie(L"T", L"I", L"abc", L"xyz", L"Annuler");
    Attendre_ligne(L"saisie []");
    Ouvrir_saisie();
    EXPECT_FALSE(Active(Principale()));
    Frapper(VK_END);
    Taper(L"d");
    Frapper(VK_RETURN);
    Attendre_ligne(L"saisie [abcd]");
    Ouvrir_saisie();
    Frapper(VK_ESCAPE);
    Attendre_ligne(L"saisie []");
    EXPECT_EQ(Journal().size(), 3u);
}

TEST_F(Saisie, la_touche_de_tabulation_va_du_champ_aux_deux_boutons) {
    Lancer_vitrine({L"titre=T", L"invite=I", L"saisie=abc"});
    Ouvrir_saisie();
    for (const wchar_t * suivant : {L"OK", L"Annuler", L"Texte"}) {
        Frapper(VK_TAB);
        ATTENDRE(Nom(Focus(Fenetre(L"Saisie"))) == suivant);
    }
    Frapper(VK_TAB);
    Frapper(VK_TAB);
    Frapper(VK_RETURN);
    Attendre_ligne(L"saisie []");
}

class Ouverture : public Montre {
protected:
    static constexpr int champ_nom  = 1148;
    static constexpr int liste_type = 1136;

    HWND Dialogue_systeme() const {
        for (HWND fenetre : Pilote::Fenetres(programme->Numero())) {
            if (Classe(fenetre) == L"#32770" && GetDlgItem(fenetre, liste_type)) return fenetre;
        }
        return nullptr;
    }
    HWND Ouvrir_dialogue() {
        Cliquer(L"Renommer");
        ATTENDRE(Dialogue_systeme() != nullptr);
        ATTENDRE(GetForegroundWindow() == Dialogue_systeme());
        Reposer(Dialogue_systeme());
        return Dialogue_systeme();
    }
    void Valider(HWND dialogue, const std::wstring & chemin) {
        HWND champ = GetDlgItem(dialogue, champ_nom);
        while (HWND enfant = FindWindowExW(champ, nullptr, nullptr, nullptr)) champ = enfant;
        SendMessageW(champ, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(chemin.c_str()));
        PostMessageW(dialogue, WM_COMMAND, IDOK, 0);
    }
};

TEST_F(Ouverture, rend_le_fichier_choisi_et_laisse_le_repertoire_courant) {
    Creer_source(L"été prog.exe", 10);
    Lancer_vitrine({L"titre=Choix du programme", L"filtre=Programmes|*.exe;*.com|Tous les fichiers|*.*"});
    const HWND dialogue = Ouvrir_dialogue();
    EXPECT_EQ(Utf8(Texte(dialogue)), Utf8(L"Choix du programme"));
    EXPECT_EQ(Pilote::Entrees(GetDlgItem(dialogue, liste_type)),
              (std::vector<std::wstring>{L"Programmes", L"Tous les fichiers"}));
    EXPECT_FALSE(Active(Principale()));
    // Walking through directories in the dialog is no change of the program's own.
    Valider(dialogue, source);
    Reposer(dialogue);
    EXPECT_EQ(Dialogue_systeme(), dialogue);
    Valider(dialogue, L"été prog.exe");
    Attendre_ligne(L"repertoire " + dossier.Chemin());
    EXPECT_EQ(Utf8(Journal().front()), Utf8(L"fichier [" + Source(L"été prog.exe") + L"]"));
    ATTENDRE(Active(Principale()));
}

TEST_F(Ouverture, annulee_rend_le_texte_vide) {
    Lancer_vitrine({L"titre=T", L"filtre=Tous les fichiers|*.*"});
    PostMessageW(Ouvrir_dialogue(), WM_COMMAND, IDCANCEL, 0);
    Attendre_ligne(L"repertoire " + dossier.Chemin());
    EXPECT_EQ(Journal().front(), L"fichier []");
}
