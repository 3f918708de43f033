#include "fenetres/recherche.h"

using namespace Pilote;

// The command on files that a search found.
class Infos_resultats_D : public Recherche {
protected:
    // These files of D: are chosen among the results.
    void Trouver(const std::vector<std::wstring> & chemins) {
        Lancer_sur_d();
        const auto resultats = Chercher(L"a", chemins);
        for (std::size_t i = 0; i < chemins.size(); ++i) rangs_.push_back(static_cast<int>(i));
        resultats.Choisir(L"Liste_sél", rangs_);
        resultats.Cliquer(L"OK");
        resultats.Attendre_fermee();
    }

private:
    std::vector<int> rangs_;
};

TEST_F(Infos_resultats_D, sans_resultat_choisi_c_est_le_repertoire_source_qui_est_resume) {
    Creer_d(L"un\\a.txt", 1000);
    Creer_d(L"b.txt", 30);
    Trouver({L"d:\\un\\a.txt"});
    const HWND liste = Controle(L"Fichier_sél");
    Cliquer_avec(VK_CONTROL, Point_entree(liste, 0), liste);
    ATTENDRE(Lire(L"Ligne_message").empty());
    Cliquer(L"Info");
    Attendre_boite(gestionnaire,
                   L"Le répertoire " + Lire(L"Chemin_srce") + L"\rcontient 1 fichier\rtotalisant  30 octets.",
                   MB_OK, IDOK);
    Attendre_fin_commande();
    EXPECT_TRUE(Se_voit(L"Fichier_sél"));
}

TEST_F(Infos_resultats_D, le_seul_resultat_disparu_est_signale_et_la_commande_finit) {
    Creer_d(L"un\\a.txt", 1000);
    Trouver({L"d:\\un\\a.txt"});
    ASSERT_TRUE(Effacer(L"D:\\un\\a.txt"));
    Commencer(L"Info");
    Attendre_avertissement(L"Un nom de fichier comporte un caractère invalide ou bien le fichier A.TXT est "
                           L"introuvable ou les attributs 'Système/Caché' sont présents.");
    Attendre_fin_commande();
    EXPECT_FALSE(Attendre([this] { return Fille(L"Info_Fichiers").Ouverte(); }, 500));
    Cliquer(L"Quitter");
    Verifier_sans_resultats();
}
