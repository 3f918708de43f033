#include "pilote/corbeille.h"
#include "pilote/fille.h"
#include "pilote/korvane.h"

using namespace Pilote;

// The program on a medium that cannot be written, its settings with it: a protected USB stick.
class Lecture_seule_D : public Korvane {
protected:
    Lecture_seule_D() : Korvane(L"D:\\essai") {
        Pilote::Corbeille::Vider();
        Regler(L"Corbeille", L"Taille", L"5000");
    }
    ~Lecture_seule_D() override {
        Fermer();
        Unite::Proteger(L'D', false);
        Pilote::Corbeille::Vider();
    }
    // Protected once the program and its settings are there; started a second time then.
    void Lancer_protege() {
        Lancer();
        Fermer();
        Unite::Proteger(L'D', true);
        programme = std::make_unique<Programme>(dossier / L"programme\\KORVANE.EXE", L"", L"C:\\");
        Attendre_pret();
    }
    // The settings could not be written.
    void Attendre_refus() {
        Attendre_boite(L"Gestionnaire de fichiers",
                       L"Le fichier KORVANE.INIest protégé contre l'écriture :\rmodifiez son attribut et "
                       L"relancez l'opération.",
                       MB_OK | MB_ICONEXCLAMATION, IDOK);
    }

    Dossier_temporaire travail;  // on another disk
};

TEST_F(Lecture_seule_D,
       le_programme_copie_efface_et_recupere_et_la_corbeille_dit_qu_elle_n_a_pu_enregistrer) {
    Creer_fichier_graine(travail / L"a\\lettre.txt", 3000, 1);
    Creer_dossier(travail / L"b");
    Lancer_protege();
    const std::string reglages = Lire_fichier(Fichier_ini());
    Ouvrir(L"srce", travail / L"a");
    Ouvrir(L"dest", travail / L"b");
    Choisir({L"lettre.txt"});
    Cliquer(L"Copier");
    Attendre_fin_commande();
    EXPECT_EQ(Empreinte(travail / L"b\\lettre.txt"), Empreinte(travail / L"a\\lettre.txt"));
    // The bin works; that its total is not kept disturbs nobody.
    Choisir({L"lettre.txt"});
    Cliquer(L"Effacer");
    ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
    EXPECT_TRUE(Repondre_boite(Attendre_boite_visible(programme->Numero(), 5000), IDYES));
    Attendre_fin_commande();
    EXPECT_FALSE(Existe(travail / L"a\\lettre.txt"));
    Cliquer(L"Corbeille");
    const Fille corbeille(programme->Numero(), L"Corbeille");
    corbeille.Attendre_ouverte();
    EXPECT_EQ(corbeille.Lire(L"Taille"), L"5000");
    corbeille.Choisir(L"Fichier_effacé", {0});
    corbeille.Cliquer(L"Récupérer");
    ATTENDRE(corbeille.Entrees(L"Fichier_effacé").empty());
    // The bin is as empty as its settings say.
    Reposer(Principale());
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(Empreinte(travail / L"a\\lettre.txt"), Empreinte(travail / L"b\\lettre.txt"));
    corbeille.Remplacer(L"Taille", L"6000");
    corbeille.Cliquer(L"Fin");
    Attendre_refus();
    EXPECT_TRUE(corbeille.Ouverte());
    EXPECT_EQ(corbeille.Lire(L"Taille"), L"6000");
    Frapper(VK_ESCAPE);
    corbeille.Attendre_fermee();
    EXPECT_EQ(Lire_fichier(Fichier_ini()), reglages);
}
