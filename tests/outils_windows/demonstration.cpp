// Plays a visit of the program with a real mouse and real keys: start with the banner, two directories opened, files copied, moved,
// viewed, erased and taken back, the windows of settings, a search of the whole disk. Leaves numbered pictures of the screen and
// an account in the directory named by the variable KORVANE_DEMONSTRATION. Exit status other than 0 when anything differs from
// what is expected.
#include "pilote/constat.h"
#include "pilote/corbeille.h"
#include "pilote/fille.h"
#include "pilote/korvane.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cwchar>

using namespace Pilote;

namespace {

constexpr const wchar_t * lettre =
    L"Chère Hélène,\r\n\r\nVoici le budget de l'été et le rapport de septembre. Les croquis suivront\r\n"
    L"dès que possible : il me reste à dessiner la façade côté forêt.\r\n\r\nÀ bientôt,\r\nNoël\r\n";

class Visite : public Korvane {
public:
    Visite() : Korvane(L"C:\\Demonstration") {
        // As on a first start: no options at all.
        Ne_pas_regler(L"Options", L"Iconisé");
        Ne_pas_regler(L"Options", L"Répertoire");
        Regler(L"Corbeille", L"Taille", L"9999");
        Regler(L"Boutons", L"Bloc-notes", L"NOTEPAD.EXE");
        Regler(L"Boutons", L"Registre", L"REGEDIT.EXE");
        Corbeille::Vider();
    }
    ~Visite() override {
        Fermer();
        Corbeille::Vider();
    }

    void Photo(const wchar_t * sujet) {
        wchar_t nom[100];
        std::swprintf(nom, 100, L"%02d-%ls.bmp", ++photos_, sujet);
        Dormir(300);  // drawing goes on after the last event
        EXPECT_TRUE(Photographier(Environnement(L"KORVANE_DEMONSTRATION") + L"\\" + nom)) << Utf8(nom);
    }
    void Installer_visionneuse() {
        Creer_dossier(dossier / L"programme");
        EXPECT_TRUE(CopyFileW((Repertoire_essais() + L"\\PELMIRA.EXE").c_str(),
                              (dossier / L"programme\\PELMIRA.EXE").c_str(), FALSE));
    }
    void Raconter(const std::string & ligne) { compte_rendu_ += ligne + "\r\n"; }
    void Raconter_copie(const std::wstring & nom, std::uint64_t attendue) {
        const std::wstring copie  = Destination(nom);
        const bool         fidele = Existe(copie) && Empreinte(copie) == attendue;
        EXPECT_TRUE(fidele) << Utf8(nom);
        const std::string taille =
            fidele ? std::to_string(Taille_fichier(copie)) + " octets, contenu identique" : "DIFFERENT";
        Raconter("  " + Utf8(copie) + " : " + taille);
    }
    void TearDown() override {
        Raconter(HasFailure() ? "La visite a échoué." : "Tout est comme attendu.");
        Creer_fichier(Environnement(L"KORVANE_DEMONSTRATION") + L"\\compte-rendu.txt", compte_rendu_);
    }

    void Montrer_la_banniere();
    void Ouvrir_les_repertoires();
    void Copier_trois_fichiers();
    void Deplacer_un_fichier();
    void Montrer_l_aide();
    void Visualiser_un_fichier();
    void Effacer_un_fichier();
    void Montrer_la_corbeille();
    void Montrer_la_configuration();
    void Montrer_les_options();
    void Chercher_un_fichier();
    void Quitter();

private:
    Fille Ouvrir_fille(const std::wstring & bouton, const std::wstring & nom);
    void  Fermer_fille(const Fille & fille, const std::wstring & bouton);

    int         photos_ = 0;
    std::string compte_rendu_;
};

void Visite::Montrer_la_banniere() {
    const ULONGLONG debut = GetTickCount64();
    Demarrer();
    EXIGER(Fenetre(L"Apropos") != nullptr);
    Photo(L"banniere");
    Attendre_pret();
    EXPECT_GE(GetTickCount64() - debut, 2500u);
    Raconter("Démarrage : bannière, puis la fenêtre « " + Utf8(Texte(Principale())) + " ».");
    Photo(L"demarrage");
}

void Visite::Ouvrir_les_repertoires() {
    Ouvrir(L"srce", source);
    Ouvrir(L"dest", destination);
    EXPECT_EQ(Entrees(L"Fichier_srce").size(), 6u);
    EXPECT_TRUE(Entrees(L"Fichier_dest").empty());
    Raconter("SOURCE : " + Utf8(Lire(L"Chemin_srce")) + " ; DESTINATION : " + Utf8(Lire(L"Chemin_dest")));
    Photo(L"repertoires");
}

void Visite::Copier_trois_fichiers() {
    const auto avant = Lire_arbre(source);
    Choisir({L"budget.csv", L"croquis.dat", L"été à la mer.txt"});
    EXPECT_FALSE(Lire(L"Ligne_message").empty());
    Raconter("Choisis :" + Utf8(Lire(L"Ligne_message")));
    Photo(L"selection");
    Cliquer(L"Copier");
    Attendre_fin_commande();
    Photo(L"copies");
    Raconter("Copiés :");
    for (const wchar_t * nom : {L"budget.csv", L"croquis.dat", L"été à la mer.txt"})
        Raconter_copie(nom, Empreinte(Source(nom)));
    EXPECT_EQ(Differences(avant, Lire_arbre(source)), "");
    EXPECT_EQ(Noms(destination).size(), 3u);
    ATTENDRE(Entrees(L"Fichier_dest").size() == 3);
}

void Visite::Deplacer_un_fichier() {
    const auto empreinte = Empreinte(Source(L"rapport.txt"));
    Choisir({L"rapport.txt"});
    Cliquer(L"Déplacer");
    Attendre_fin_commande();
    Photo(L"deplace");
    Raconter("Déplacé :");
    Raconter_copie(L"rapport.txt", empreinte);
    EXPECT_FALSE(Existe(Source(L"rapport.txt")));
    ATTENDRE(Entrees(L"Fichier_srce").size() == 5);
    ATTENDRE(Entrees(L"Fichier_dest").size() == 4);
}

void Visite::Montrer_l_aide() {
    const LONG hauteur = Place_ecran(Principale()).bottom;
    Frapper(VK_F1);
    ATTENDRE(Place_ecran(Principale()).bottom > hauteur);
    Survoler(L"Copier");
    EXPECT_FALSE(Lire(L"Fenêtre").empty());
    Photo(L"aide");
    Frapper(VK_F1);
    ATTENDRE(Place_ecran(Principale()).bottom == hauteur);
}

Fille Visite::Ouvrir_fille(const std::wstring & bouton, const std::wstring & nom) {
    Pilote::Cliquer(Controle(bouton));
    Fille fille{programme->Numero(), nom};
    fille.Attendre_ouverte();
    Ecarter_pointeur();
    return fille;
}

void Visite::Fermer_fille(const Fille & fille, const std::wstring & bouton) {
    fille.Cliquer(bouton);
    fille.Attendre_fermee();
    ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
}

// The viewer is a program of its own: it is known by its title.
void Visite::Visualiser_un_fichier() {
    Choisir({L"lettre.txt"});
    Cliquer(L"Visualiser");
    const auto visionneuse = [] { return FindWindowW(nullptr, L"lettre.txt - Visionneuse"); };
    EXIGER(Visible(visionneuse()) && GetForegroundWindow() == visionneuse());
    EXIGER(Texte(Controle_nomme(visionneuse(), L"Vue")).find(L"Chère Hélène,") != std::wstring::npos);
    Raconter("Visualisé : " + Utf8(Texte(visionneuse())) + ".");
    Photo(L"visionneuse");
    PostMessageW(visionneuse(), WM_CLOSE, 0, 0);
    EXIGER(visionneuse() == nullptr);
    SetForegroundWindow(Principale());
    ATTENDRE(GetForegroundWindow() == Principale());
    Attendre_fin_commande();
}

void Visite::Effacer_un_fichier() {
    Choisir({L"notes.txt"});
    Cliquer(L"Effacer");
    ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
    Photo(L"effacer");
    Attendre_boite(L"Gestionnaire de fichiers",
                   L"Vous allez EFFACER le fichier 'notes.txt' du répertoire\r" + source +
                       L"\rConfirmez-vous cette commande ?",
                   MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDYES);
    Attendre_fin_commande();
    EXPECT_FALSE(Existe(Source(L"notes.txt")));
    Raconter("Effacé : notes.txt, gardé dans la corbeille.");
}

void Visite::Montrer_la_corbeille() {
    const Fille corbeille = Ouvrir_fille(L"Corbeille", L"Corbeille");
    ATTENDRE(corbeille.Entrees(L"Fichier_effacé").size() == 1);
    corbeille.Choisir(L"Fichier_effacé", {0});
    Photo(L"corbeille");
    corbeille.Cliquer(L"Récupérer");
    ATTENDRE(corbeille.Entrees(L"Fichier_effacé").empty());
    Fermer_fille(corbeille, L"Fin");
    EXPECT_EQ(Taille_fichier(Source(L"notes.txt")), 321u);
    Raconter("Récupéré : notes.txt.");
}

void Visite::Montrer_la_configuration() {
    const Fille editeur = Ouvrir_fille(L"Configurer", L"Config_Korvane");
    EXPECT_EQ(editeur.Entrees(L"Liste_conf").size(), 2u);
    Photo(L"configuration");
    Fermer_fille(editeur, L"Fin");
}

void Visite::Montrer_les_options() {
    const Fille options = Ouvrir_fille(L"Options", L"Choix_Options");
    EXPECT_EQ(options.Lire(L"Nom_visualiseur"), L"PELMIRA.EXE");
    Photo(L"options");
    Fermer_fille(options, L"Annule");
}

void Visite::Chercher_un_fichier() {
    const Fille demande = Ouvrir_fille(L"Chercher", L"Cde_Chercher");
    demande.Remplacer(L"Fichiers_cherchés", L"budget");
    Photo(L"chercher");
    Pilote::Cliquer(demande.Controle(L"OK"));
    const Fille resultats{programme->Numero(), L"Cherche_Fichier"};
    EXIGER(resultats.Titre() == L"Sélectionnez le(s) fichier(s)");
    const std::vector<std::wstring> attendus{L"c:\\demonstration\\destination\\budget.csv",
                                             L"c:\\demonstration\\source\\budget.csv"};
    EXPECT_EQ(resultats.Entrees(L"Liste_sél"), attendus);
    EXPECT_EQ(resultats.Lire(L"Mess_infos"), L"2 fichiers trouvés");
    resultats.Choisir(L"Liste_sél", {0, 1});
    Photo(L"resultats");
    Fermer_fille(resultats, L"OK");
    ATTENDRE(Se_voit(L"Fichier_sél") && Entrees(L"Fichier_sél") == attendus);
    Photo(L"trouves");
    // What leaves the program leaves the files found first.
    Cliquer(L"Quitter");
    ATTENDRE(Se_voit(L"Fichier_srce") && Boite_absente());
    Raconter("Trouvés : " + Utf8(attendus[0]) + " et " + Utf8(attendus[1]) + ".");
}

void Visite::Quitter() {
    Cliquer(L"Quitter");
    ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
    Photo(L"quitter");
    Attendre_boite(L"Gestionnaire de fichiers", L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                   MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDYES);
    EXPECT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(programme->Code_de_fin(), 0u);
}

TEST_F(Visite, chaque_commande_fait_ce_qu_elle_dit_et_chaque_fenetre_se_montre) {
    Installer_visionneuse();
    Creer_source(L"budget.csv", 12345, 1);
    Creer_source(L"croquis.dat", 3000000, 2);
    Creer_source(L"été à la mer.txt", 800, 3);
    Creer_fichier(Source(L"lettre.txt"), Utf8(lettre));
    Creer_source(L"notes.txt", 321, 5);
    Creer_source(L"rapport.txt", 65536, 6);
    void (Visite::*const etapes[])() = {
        &Visite::Montrer_la_banniere, &Visite::Ouvrir_les_repertoires, &Visite::Copier_trois_fichiers,
        &Visite::Deplacer_un_fichier, &Visite::Montrer_l_aide,         &Visite::Visualiser_un_fichier,
        &Visite::Effacer_un_fichier,  &Visite::Montrer_la_corbeille,   &Visite::Montrer_la_configuration,
        &Visite::Montrer_les_options, &Visite::Chercher_un_fichier,    &Visite::Quitter};
    for (const auto etape : etapes) {
        (this->*etape)();
        if (HasFatalFailure()) return;
    }
}

}  // namespace

int main(int nombre, char ** arguments) {
    testing::InitGoogleTest(&nombre, arguments);
    Preparer_essais();
    return RUN_ALL_TESTS();
}
