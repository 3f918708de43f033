// Tries the program where a package put it, in the directory named by the variable KORVANE_PAQUET, with the files and the settings
// that are there. One check a start, named by --gtest_filter.
#include "pilote/attente.h"
#include "pilote/boites.h"
#include "pilote/constat.h"
#include "pilote/entrees.h"
#include "pilote/fenetres.h"
#include "pilote/fichiers.h"
#include "pilote/fille.h"
#include "pilote/programme.h"

#include <gtest/gtest.h>

#include <memory>

using namespace Pilote;

namespace {

class Paquet : public testing::Test {
protected:
    const std::wstring gestionnaire = L"Gestionnaire de fichiers";
    const std::wstring dossier      = Environnement(L"KORVANE_PAQUET");

    void  Demarrer(const wchar_t * repertoire = L"C:\\");
    Fille Principale() const { return {programme->Numero(), L"Gestion_Fichiers"}; }
    void  Quitter();
    Fille Ouvrir(const wchar_t * commande, const wchar_t * fenetre);
    void  Verifier_refus(const Fille & fille, const wchar_t * valider, const wchar_t * champ,
                         const std::wstring & saisie);
    // Runs a program to its end; its exit status.
    static DWORD Executer(const std::wstring & executable, const std::wstring & arguments);

    std::unique_ptr<Programme> programme;
};

// The banner stays three seconds; an icon is restored.
void Paquet::Demarrer(const wchar_t * repertoire) {
    Ecarter_pointeur();
    programme = std::make_unique<Programme>(dossier + L"\\KORVANE.EXE", L"", repertoire);
    EXIGER(Principale().Ouverte() || !programme->Vivant() || Boite_visible(programme->Numero()));
    ASSERT_TRUE(programme->Vivant()) << "code " << programme->Code_de_fin();
    ASSERT_FALSE(Boite_visible(programme->Numero())) << Lire_boite(Boite_visible(programme->Numero()));
    const HWND principale = Principale().Fenetre();
    if (IsIconic(principale)) PostMessageW(principale, WM_SYSCOMMAND, SC_RESTORE, 0);
    EXIGER(!IsIconic(principale) && !Sablier(principale));
    EXIGER(!Fenetre_nommee(programme->Numero(), L"Apropos"));
    SetForegroundWindow(principale);
    Principale().Attendre_ouverte();
}

void Paquet::Quitter() {
    Principale().Cliquer(L"Quitter");
    const HWND boite = Attendre_boite_visible(programme->Numero(), 5000);
    ASSERT_NE(boite, nullptr);
    EXPECT_EQ(Utf8(Lire_boite(boite).texte), "Voulez-vous QUITTER\rle Gestionnaire de fichiers ?");
    EXPECT_TRUE(Repondre_boite(boite, IDYES));
    EXPECT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(programme->Code_de_fin(), 0u);
}

DWORD Paquet::Executer(const std::wstring & executable, const std::wstring & arguments) {
    const Programme lance(executable, arguments, L"C:\\");
    EXPECT_TRUE(lance.Attendre_fin(30000)) << Utf8(executable);
    return lance.Code_de_fin();
}

TEST_F(Paquet, parcourt_son_propre_repertoire_puis_quitte) {
    const auto avant = Lire_arbre(dossier);
    Demarrer();
    if (HasFatalFailure()) return;
    // Its directory is reached as a user would type it.
    Principale().Remplacer(L"Chemin_srce", dossier);
    Frapper(VK_RETURN);
    const auto contient = [this](const wchar_t * nom) {
        return Rang_entree(Principale().Controle(L"Fichier_srce"), nom) >= 0;
    };
    for (const wchar_t * nom : {L"KORVANE.EXE", L"KORVANE.HLP", L"KORVANE.CHM", L"LISEZMOI.TXT"})
        EXPECT_TRUE(Attendre([&] { return contient(nom); })) << Utf8(nom);
    Quitter();
    EXPECT_EQ(Differences(avant, Lire_arbre(dossier)), "");
}

// The text of the help window; empty while there is none.
std::wstring Texte_aide() {
    const HWND   fenetre = FindWindowW(L"MS_WINHELP", nullptr);
    std::wstring texte;
    Parcourir(fenetre, [&](HWND controle) {
        if (Classe(controle) == L"RichEdit20A") texte = Texte(controle);
    });
    return texte;
}

TEST_F(Paquet, ouvre_son_manuel) {
    Demarrer();
    if (HasFatalFailure()) return;
    Principale().Cliquer(L"Aide");
    EXPECT_TRUE(Attendre([] { return Texte_aide().find(L"Présentation") != std::wstring::npos; }, 15000))
        << Utf8(Texte_aide());
    EXPECT_EQ(Boite_visible(programme->Numero()), nullptr);
}

TEST_F(Paquet, ouvre_l_autre_manuel_sans_moteur_pour_le_premier) {
    Demarrer();
    if (HasFatalFailure()) return;
    Principale().Cliquer(L"Aide");
    const std::wstring trace = Environnement(L"KORVANE_ENREGISTREMENT");
    EXPECT_TRUE(Attendre([&] { return Existe(trace) && Taille_fichier(trace) > 0; }, 15000));
    EXPECT_NE(Lire_fichier(trace).find(Utf8(dossier + L"\\KORVANE.CHM")), std::string::npos)
        << Lire_fichier(trace);
    EXPECT_EQ(Boite_visible(programme->Numero()), nullptr);
}

// A window that saves says which file it could not write, stays open, and keeps what was typed.
void Paquet::Verifier_refus(const Fille & fille, const wchar_t * valider, const wchar_t * champ,
                            const std::wstring & saisie) {
    fille.Cliquer(valider);
    const HWND boite = Attendre_boite_visible(programme->Numero(), 5000);
    ASSERT_NE(boite, nullptr) << Utf8(fille.Nom_fenetre());
    EXPECT_NE(Lire_boite(boite).texte.find(L"KORVANE.INI"), std::wstring::npos) << Lire_boite(boite);
    EXPECT_TRUE(Repondre_boite(boite, IDOK));
    EXPECT_TRUE(fille.Ouverte());
    EXPECT_EQ(fille.Lire(champ), saisie);
    EXPECT_FALSE(Existe(dossier + L"\\KORVANE.INI"));
}

Fille Paquet::Ouvrir(const wchar_t * commande, const wchar_t * fenetre) {
    Principale().Cliquer(commande);
    Fille fille(programme->Numero(), fenetre);
    fille.Attendre_ouverte();
    return fille;
}

TEST_F(Paquet, travaille_sans_pouvoir_ecrire_ses_reglages_et_le_dit) {
    Demarrer();
    if (HasFatalFailure()) return;
    const Fille options = Ouvrir(L"Options", L"Choix_Options");
    options.Remplacer(L"Nom_éditeur", L"EDIT.EXE");
    Verifier_refus(options, L"OK", L"Nom_éditeur", L"EDIT.EXE");
    options.Cliquer(L"Annule");
    options.Attendre_fermee();
    const Fille configuration = Ouvrir(L"Configurer", L"Config_Korvane");
    configuration.Remplacer(L"Ligne_conf", L"Bloc=C:\\A.EXE");
    Verifier_refus(configuration, L"Enregistrer", L"Ligne_conf", L"Bloc=C:\\A.EXE");
    configuration.Cliquer(L"Fin");
    configuration.Attendre_fermee();
    const Fille corbeille = Ouvrir(L"Corbeille", L"Corbeille");
    corbeille.Remplacer(L"Taille", L"5000");
    Verifier_refus(corbeille, L"Fin", L"Taille", L"5000");
    Frapper(VK_ESCAPE);
    corbeille.Attendre_fermee();
    Quitter();
}

TEST_F(Paquet, son_visualiseur_montre_un_fichier) {
    const auto avant = Lire_arbre(dossier);
    programme = std::make_unique<Programme>(dossier + L"\\PELMIRA.EXE", L"\"" + dossier + L"\\LISEZMOI.TXT\"",
                                            L"C:\\");
    EXIGER(Fenetre_nommee(programme->Numero(), L"Visionneuse"));
    const HWND vue = Controle_nomme(Fenetre_nommee(programme->Numero(), L"Visionneuse"), L"Vue");
    ATTENDRE(Texte(vue).find(L"Gestionnaire de fichiers à deux cadres") != std::wstring::npos);
    EXPECT_EQ(Boite_visible(programme->Numero()), nullptr);
    EXPECT_EQ(Differences(avant, Lire_arbre(dossier)), "");
}

// What the variable KORVANE_ACTE says is run while the program is open, and must refuse.
TEST_F(Paquet, ouvert_ne_se_laisse_ni_remplacer_ni_retirer) {
    const auto avant = Lire_arbre(dossier);
    Demarrer();
    if (HasFatalFailure()) return;
    EXPECT_NE(Executer(Environnement(L"KORVANE_ACTE"), Environnement(L"KORVANE_ARGUMENTS")), 0u);
    EXPECT_EQ(Differences(avant, Lire_arbre(dossier)), "");
    EXPECT_TRUE(programme->Vivant());
    Quitter();
}

}  // namespace

int main(int nombre, char ** arguments) {
    testing::InitGoogleTest(&nombre, arguments);
    Preparer_essais();
    return RUN_ALL_TESTS();
}
