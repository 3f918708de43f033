// A newcomer with nothing but the package and its manual: opens the configuration window, programs a button, a selection and an
// association with the keyboard, starts the program again and uses the three. The package's directory is named by the variable
// KORVANE_PAQUET; numbered pictures and an account go to the one named by KORVANE_DEMONSTRATION. Exit status other than 0 when
// anything differs from what the manual promises.
#include "pilote/constat.h"
#include "pilote/korvane.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cwchar>

using namespace Pilote;

namespace {

constexpr const wchar_t * fenetre_config = L"Config_Korvane";
constexpr const wchar_t * bloc_notes     = L"C:\\windows\\notepad.exe";

// The open window of that class whose title holds a text, or null.
HWND Fenetre_etrangere(const wchar_t * classe, const std::wstring & titre) {
    for (HWND fenetre = nullptr; (fenetre = FindWindowExW(nullptr, fenetre, classe, nullptr)) != nullptr;) {
        if (IsWindowVisible(fenetre) && Texte(fenetre).find(titre) != std::wstring::npos) return fenetre;
    }
    return nullptr;
}

class Nouveau_venu : public Korvane {
public:
    Nouveau_venu() : Korvane(L"C:\\Nouveau venu") {
        for (const wchar_t * nom :
             {L"KORVANE.EXE", L"PELMIRA.EXE", L"KORVANE.HLP", L"KORVANE.CHM", L"LISEZMOI.TXT"})
            Deballer(nom);
        Ne_pas_regler(L"Options", L"Iconisé");
        Creer_fichier(Source(L"lettre.txt"), "Chère amie,\r\n");
        Creer_fichier(Source(L"notes.md"), "# Notes\r\n");
        Creer_fichier(Source(L"image.bmp"), "BM");
    }

    void Photo(const wchar_t * sujet) {
        wchar_t nom[100];
        std::swprintf(nom, 100, L"%02d-%ls.bmp", ++photos_, sujet);
        Dormir(300);  // drawing goes on after the last event
        EXPECT_TRUE(Photographier(Environnement(L"KORVANE_DEMONSTRATION") + L"\\" + nom)) << Utf8(nom);
    }
    void Raconter(const std::string & ligne) { compte_rendu_ += ligne + "\r\n"; }
    void TearDown() override {
        Raconter(HasFailure() ? "La séance a échoué." : "Tout est comme le manuel le dit.");
        Creer_fichier(Environnement(L"KORVANE_DEMONSTRATION") + L"\\compte-rendu.txt", compte_rendu_);
    }

    void Decouvrir();
    void Programmer_un_bouton();
    void Enregistrer_une_selection();
    void Associer_un_programme();
    void Relancer();
    void Servir_le_bouton();
    void Servir_la_selection();
    void Servir_l_association();

private:
    void Deballer(const std::wstring & nom) const {
        const std::wstring cible = dossier / (L"programme\\" + nom);
        Creer_dossier(dossier / L"programme");
        EXPECT_TRUE(CopyFileW((Environnement(L"KORVANE_PAQUET") + L"\\" + nom).c_str(), cible.c_str(), FALSE))
            << Utf8(nom);
    }
    // The underlined letter of a control, with Alt.
    void Raccourci(const wchar_t * fenetre, const wchar_t * controle) {
        const std::wstring titre = Texte(Controle(fenetre, controle));
        const std::size_t  place = titre.find(L'&');
        ASSERT_LT(place + 1, titre.size()) << Utf8(titre);
        Alt(titre[place + 1]);
    }
    void Saisir_ligne(const std::wstring & ligne) {
        const HWND champ = Controle(fenetre_config, L"Ligne_conf");
        EXIGER(Focus(champ) == champ);
        Taper(ligne);
        ATTENDRE(Texte(champ) == ligne);
    }
    void Choisir_programme(const std::wstring & chemin);
    void Enregistrer_ligne(const std::wstring & ligne);
    void Attendre_bloc_notes(const wchar_t * sujet, const std::wstring & titre);

    int         photos_ = 0;
    std::string compte_rendu_;
};

void Nouveau_venu::Choisir_programme(const std::wstring & chemin) {
    Raccourci(fenetre_config, L"Parcourir");
    HWND dialogue = nullptr;
    EXIGER((dialogue = Fenetre_etrangere(L"#32770", L"Parcourir pour ")) != nullptr);
    Reposer(dialogue);
    Photo(L"parcourir");
    Taper(chemin);
    Frapper(VK_RETURN);
    ATTENDRE(!IsWindow(dialogue));
}

void Nouveau_venu::Enregistrer_ligne(const std::wstring & ligne) {
    ATTENDRE(Texte(Controle(fenetre_config, L"Ligne_conf")) == ligne);
    Photo(L"ligne-composee");
    Raccourci(fenetre_config, L"Enregistrer");
    const HWND liste = Controle(fenetre_config, L"Liste_conf");
    ATTENDRE(Rang_entree(liste, ligne) >= 0);
    Raconter("  enregistré : " + Utf8(ligne));
    Photo(L"ligne-enregistree");
}

void Nouveau_venu::Decouvrir() {
    Lancer_dans_les_dossiers();
    Photo(L"premier-demarrage");
    Raccourci(L"Gestion_Fichiers", L"Configurer");
    EXIGER(Fenetre(fenetre_config) != nullptr);
    EXPECT_EQ(Texte(Fenetre(fenetre_config)), L"Liste des Boutons");
    Raconter("Configurer, au clavier :");
}

void Nouveau_venu::Programmer_un_bouton() {
    Saisir_ligne(L"Bloc-notes=");
    Choisir_programme(bloc_notes);
    Enregistrer_ligne(L"Bloc-notes=C:\\windows\\notepad.exe");
}

void Nouveau_venu::Enregistrer_une_selection() {
    Raccourci(fenetre_config, L"Sélections");
    ATTENDRE(Texte(Fenetre(fenetre_config)) == L"Liste des Sélections");
    Saisir_ligne(L"Textes=*.txt; *.md");
    Enregistrer_ligne(L"Textes=*.txt; *.md");
}

void Nouveau_venu::Associer_un_programme() {
    Raccourci(fenetre_config, L"Associer");
    ATTENDRE(Texte(Fenetre(fenetre_config)) == L"Liste des Associations");
    Saisir_ligne(L"txt=");
    Choisir_programme(bloc_notes);
    Enregistrer_ligne(L"txt=C:\\windows\\notepad.exe ^.txt");
    Raccourci(fenetre_config, L"Fin");
    Attendre_boite(L"Gestionnaire de fichiers",
                   L"KORVANE doit être relancé pour prendre en compte les modifications effectuées.",
                   MB_OK | MB_ICONINFORMATION, IDOK);
    ATTENDRE(Fenetre(fenetre_config) == nullptr);
}

void Nouveau_venu::Relancer() {
    const std::string reglages = Lire_fichier(Fichier_ini());
    Raccourci(L"Gestion_Fichiers", L"Quitter");
    Attendre_boite(L"Gestionnaire de fichiers", L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                   MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDYES);
    ASSERT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(Lire_fichier(Fichier_ini()), reglages);
    programme = std::make_unique<Programme>(dossier / L"programme\\KORVANE.EXE", L"", dossier / L"programme");
    Attendre_pret();
    if (HasFatalFailure()) return;
    Ouvrir(L"srce", source);
    Photo(L"relance");
    Raconter("Relancé.");
}

void Nouveau_venu::Attendre_bloc_notes(const wchar_t * sujet, const std::wstring & titre) {
    HWND fenetre = nullptr;
    EXIGER((fenetre = Fenetre_etrangere(L"Notepad", titre)) != nullptr);
    Photo(sujet);
    PostMessageW(fenetre, WM_CLOSE, 0, 0);
    ATTENDRE(!IsWindow(fenetre));
    SetForegroundWindow(Principale());
    ATTENDRE(GetForegroundWindow() == Principale());
}

void Nouveau_venu::Servir_le_bouton() {
    EXPECT_EQ(Lire(L"Bouton(0)"), L"Bloc-notes");
    EXPECT_FALSE(Se_voit(L"Bouton(1)"));
    Cliquer(L"Bouton(0)");
    Attendre_bloc_notes(L"bouton", L"");
    Raconter("Le bouton Bloc-notes ouvre le bloc-notes.");
}

void Nouveau_venu::Servir_la_selection() {
    EXPECT_EQ(Entrees(L"Fichier_srce").size(), 3u);
    const HWND liste = Controle(L"Sélection_fichiers");
    const int  rang  = Rang_entree(liste, L"Textes");
    ASSERT_GE(rang, 0);
    Pilote::Cliquer(liste);
    Frapper(VK_DOWN);
    EXIGER(Deroulee(liste));
    for (int i = 0; i <= rang; ++i) Frapper(VK_DOWN);
    Frapper(VK_RETURN);
    ATTENDRE(Entrees(L"Fichier_srce").size() == 2);
    Photo(L"selection");
    Raconter("La sélection Textes ne montre que les textes.");
}

void Nouveau_venu::Servir_l_association() {
    Double_cliquer_entree(L"Fichier_srce", L"lettre.txt");
    Attendre_bloc_notes(L"association", L"lettre.txt");
    Raconter("Un double clic sur lettre.txt l'ouvre dans le bloc-notes.");
}

TEST_F(Nouveau_venu, programme_un_bouton_une_selection_et_une_association_puis_s_en_sert) {
    void (Nouveau_venu::*const etapes[])() = {&Nouveau_venu::Decouvrir,
                                              &Nouveau_venu::Programmer_un_bouton,
                                              &Nouveau_venu::Enregistrer_une_selection,
                                              &Nouveau_venu::Associer_un_programme,
                                              &Nouveau_venu::Relancer,
                                              &Nouveau_venu::Servir_le_bouton,
                                              &Nouveau_venu::Servir_la_selection,
                                              &Nouveau_venu::Servir_l_association};
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
