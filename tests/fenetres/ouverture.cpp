#include "fenetres/lancements.h"

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// A double-click on a file of the SOURCE pane.
class Double_clic : public Lancements {
protected:
    Double_clic() { Installer_a_cote({L"NOTEPAD.EXE"}); }
    ~Double_clic() override {
        for (const std::wstring & extension : associees)
            WriteProfileStringW(L"Extensions", extension.c_str(), nullptr);
    }
    void Associer(const std::wstring & extension, const std::wstring & valeur) {
        WriteProfileStringW(L"Extensions", extension.c_str(), valeur.c_str());
        associees.push_back(extension);
    }
    void Repondre(const std::wstring & fichier, int reponse) {
        Double_cliquer_entree(L"Fichier_srce", fichier);
        Attendre_dialogue(gestionnaire,
                          L"Voulez-vous EDITER ou EXECUTER le fichier '" + Capitales(fichier) + L"' ?",
                          {L"&EDITER", L"E&XECUTER", L"&ANNULER"}, reponse);
    }

    Textes associees;
};

TEST_F(Double_clic, un_programme_est_execute_avec_ses_parametres) {
    Installer_enregistreur(Source(L"x.exe"));
    Installer_enregistreur(Source(L"y.exe"));
    Lancer_dans_les_dossiers();
    Double_cliquer_entree(L"Fichier_srce", L"x.exe");
    Attendre_parametres(L"x.exe", L"/S");
    Verifier_repos(L"Fichier_srce");
    Double_cliquer_entree(L"Fichier_srce", L"x.exe");
    Attendre_parametres(L"x.exe", nullptr, L"Annuler");
    Verifier_repos(L"Fichier_srce");
    EXPECT_EQ(Lignes(1), Textes{L"\"" + Source(L"x.exe") + L"\"/S"});
}

TEST_F(Double_clic, un_document_va_au_programme_associe_a_son_extension) {
    Installer_enregistreur(dossier / L"mes outils\\ed.exe");
    Associer(L"kor", dossier / L"mes outils\\ed.exe ^.kor");
    Associer(L"kos", L"NOTEPAD.EXE /A ^.kos");
    Associer(L"kot", L"ABSENT.EXE ^.kot");
    for (const wchar_t * nom : {L"l'été.v2.KOR", L"un deux.kos", L"page.kosx", L"z.kot"})
        Creer_source(nom, 10);
    Lancer_dans_les_dossiers();
    for (const wchar_t * nom : {L"l'été.v2.KOR", L"un deux.kos", L"page.kosx"}) {
        Double_cliquer_entree(L"Fichier_srce", nom);
        Verifier_repos(L"Fichier_srce");
    }
    Double_cliquer_entree(L"Fichier_srce", L"z.kot");
    Attendre_introuvable(L"ABSENT.EXE");
    Verifier_repos(L"Fichier_srce");
    EXPECT_EQ(Lignes(3), (Textes{L"\"" + (dossier / L"mes outils\\ed.exe") + L"\" " + Source(L"l'été.v2.KOR"),
                                 L"NOTEPAD.EXE /A \"" + Source(L"un deux.kos") + L"\"",
                                 L"NOTEPAD.EXE /A " + Source(L"page.kosx")}));
}

TEST_F(Double_clic, un_document_sans_programme_est_edite_execute_ou_laisse_au_choix) {
    for (const wchar_t * nom : {L"a.kov", L"SANS"}) Creer_source(nom, 10);
    Lancer_dans_les_dossiers();
    for (const wchar_t * nom : {L"a.kov", L"SANS"}) {
        Repondre(nom, 3);
        Verifier_repos(L"Fichier_srce");
        Repondre(nom, 2);
        Attendre_avertissement(L"Fichier non exécutable.");
        Attendre_fin_commande();
        EXPECT_EQ(Attendre_lances(nom[0] == L'a' ? 0 : 1).size(), nom[0] == L'a' ? 0u : 1u);
        Repondre(nom, 1);
        Verifier_repos(L"Fichier_srce");
    }
    EXPECT_EQ(Lignes(2), (Textes{L"NOTEPAD.EXE a.kov", L"NOTEPAD.EXE SANS"}));
}

TEST_F(Double_clic, entree_ne_lance_rien_et_un_double_clic_dans_le_vide_non_plus) {
    Installer_enregistreur(Source(L"x.exe"));
    Lancer_dans_les_dossiers();
    Choisir_un(L"x.exe");
    Frapper(VK_RETURN);
    Reposer(Principale());
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(Fenetre(L"Saisie"), nullptr);
    const RECT liste = Place_ecran(Controle(L"Fichier_srce"));
    Double_cliquer({(liste.left + liste.right) / 2, liste.bottom - 10});
    Reposer(Principale());
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(Fenetre(L"Saisie"), nullptr);
    EXPECT_EQ(Lignes(0), Textes{});
}
