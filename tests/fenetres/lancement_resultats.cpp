#include "fenetres/lancements.h"
#include "pilote/fille.h"

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// The files of a search, each in its own directory, handed to programs while D:\ is the SOURCE directory.
class Lancement_resultats_D : public Lancements {
protected:
    Lancement_resultats_D() {
        Unite::Vider(L'D');
        Installer_a_cote({L"NOTEPAD.EXE", L"PELMIRA.EXE"});
        Regler(L"Options", L"Répertoire", L"d:\\");
        for (const wchar_t * nom : {L"D:\\a.kor", L"D:\\Un Été\\b.kor"}) Creer_fichier(nom, "texte");
        Installer_enregistreur(L"D:\\Un Été\\c.exe");
    }
    ~Lancement_resultats_D() override {
        Fermer();
        Unite::Vider(L'D');
    }
    // All that is found shows in the SOURCE pane, selected.
    void Chercher(const std::wstring & modele, std::size_t nombre) {
        Commencer(L"Chercher");
        const Fille demande(programme->Numero(), L"Cde_Chercher");
        demande.Attendre_ouverte();
        demande.Remplacer(L"Fichiers_cherchés", modele);
        Pilote::Cliquer(demande.Controle(L"OK"));
        const Fille resultats(programme->Numero(), L"Cherche_Fichier");
        EXIGER(resultats.Ouverte() && resultats.Se_voit(L"OK"));
        resultats.Attendre_ouverte();
        Frapper_avec(VK_CONTROL, 'A');
        ATTENDRE(resultats.Choisies(L"Liste_sél").size() == nombre);
        resultats.Cliquer(L"OK");
        resultats.Attendre_fermee();
        Attendre_fin_commande();
        EXIGER(Se_voit(L"Fichier_sél"));
    }
    // One more start, of this line, from the root.
    void Verifier_lance(const std::wstring & ligne) {
        Attendre_fin_commande();
        EXPECT_FALSE(Se_voit(L"Fichier_sél"));
        Attendre_lance(ligne, L"D:\\");
    }
};

TEST_F(Lancement_resultats_D, voir_donne_les_chemins_et_editer_le_nom_seul_de_ce_qui_est_dans_source) {
    Lancer();
    Chercher(L".kor", 2);
    Cliquer(L"Visualiser");
    Verifier_lance(L"PELMIRA.EXE ovl d:\\a.kor \"d:\\Un Été\\b.kor\"");
    Chercher(L".kor", 2);
    Cliquer(L"Editer");
    Attendre_fin_commande();
    const auto lances = Attendre_lances(3);
    ASSERT_EQ(lances.size(), 3u);
    EXPECT_EQ(Utf8(lances[1].ligne), "NOTEPAD.EXE a.kor");
    EXPECT_EQ(Utf8(lances[2].ligne), "NOTEPAD.EXE \"d:\\Un Été\\b.kor\"");
}

TEST_F(Lancement_resultats_D, executer_et_le_double_clic_lancent_le_fichier_trouve) {
    Lancer();
    Chercher(L"c.exe", 1);
    Cliquer(L"Exécuter");
    const std::wstring invite =
        L"Entrez le(s) paramètre(s) (si nécessaire) pour C.EXE\r\rRépertoire actuel :\rD:\\";
    Attendre_saisie(L"EXECUTER", invite, L" ", nullptr);
    Verifier_lance(L"\"d:\\Un Été\\c.exe\"");
    Chercher(L"c.exe", 1);
    Double_cliquer_entree(L"Fichier_sél", L"d:\\un été\\c.exe");
    Attendre_saisie(L"EXECUTER", invite, L" ", L"a b");
    Verifier_lance(L"\"d:\\Un Été\\c.exe\" \"a b\"");
}

TEST_F(Lancement_resultats_D, un_resultat_disparu_est_signale_et_rien_n_est_lance) {
    Lancer();
    Chercher(L".kor", 2);
    ASSERT_TRUE(Effacer(L"D:\\a.kor"));
    Cliquer(L"Visualiser");
    Attendre_introuvable(L"A.KOR");
    Attendre_fin_commande();
    EXPECT_EQ(Entrees(L"Fichier_sél"), Textes{L"d:\\un été\\b.kor"});
    EXPECT_EQ(Attendre_lances(0).size(), 0u);
}
