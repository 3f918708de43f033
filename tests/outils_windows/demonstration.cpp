// Plays a visit of the program with a real mouse and real keys: start with the banner, two directories
// opened, three files copied, one moved. Leaves numbered pictures of the screen and an account in the
// directory named by the variable KORVANE_DEMONSTRATION. Exit status other than 0 when anything differs from
// what is expected.
#include "pilote/constat.h"
#include "pilote/korvane.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cwchar>

using namespace Pilote;

namespace {

class Visite : public Korvane {
public:
    Visite() : Korvane(L"C:\\Demonstration") {
        // As on a first start: no settings at all.
        Ne_pas_regler(L"Options", L"Iconisé");
        Ne_pas_regler(L"Options", L"Répertoire");
    }

    void Photo(const wchar_t * sujet) {
        wchar_t nom[100];
        std::swprintf(nom, 100, L"%02d-%ls.bmp", ++photos_, sujet);
        Dormir(300);  // drawing goes on after the last event
        EXPECT_TRUE(Photographier(Environnement(L"KORVANE_DEMONSTRATION") + L"\\" + nom)) << Utf8(nom);
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
    void Quitter();

private:
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

void Visite::Quitter() {
    Cliquer(L"Quitter");
    ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
    Photo(L"quitter");
    Attendre_boite(L"Gestionnaire de fichiers", L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                   MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDYES);
    EXPECT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(programme->Code_de_fin(), 0u);
}

TEST_F(Visite, demarrer_choisir_copier_deplacer_quitter) {
    Creer_source(L"budget.csv", 12345, 1);
    Creer_source(L"croquis.dat", 3000000, 2);
    Creer_source(L"été à la mer.txt", 800, 3);
    Creer_source(L"lettre.txt", 2048, 4);
    Creer_source(L"notes.txt", 321, 5);
    Creer_source(L"rapport.txt", 65536, 6);
    void (Visite::*const etapes[])() = {&Visite::Montrer_la_banniere,   &Visite::Ouvrir_les_repertoires,
                                        &Visite::Copier_trois_fichiers, &Visite::Deplacer_un_fichier,
                                        &Visite::Montrer_l_aide,        &Visite::Quitter};
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
