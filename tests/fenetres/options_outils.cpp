#include "fenetres/options.h"

using namespace Pilote;

Pilote::Fille Options::Ouvrir_options() {
    Lancer_dans_les_dossiers();
    return Rouvrir_options();
}

Pilote::Fille Options::Rouvrir_options() { return Ouvrir_par(L"Options", Fenetre_options()); }

void Options::Accepter(const Pilote::Fille & fille) {
    fille.Cliquer(L"OK");
    fille.Attendre_fermee();
    EXPECT_TRUE(Boite_absente());
    ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
}

void Options::Renoncer(const Pilote::Fille & fille) {
    fille.Cliquer(L"Annule");
    fille.Attendre_fermee();
    ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
}

std::string Options::Contenu_ini() const { return Lire_fichier(Fichier_ini()); }

std::string Options::Section_options(const Cles & cles) const {
    std::wstring texte = L"[Options]\r\n";
    for (const auto & [cle, valeur] : cles) texte += cle + L"=" + valeur + L"\r\n";
    return Page_systeme(texte);
}

void Options::Ecrire_cle(const wchar_t * cle, const std::wstring & valeur, const wchar_t * section) const {
    EXPECT_TRUE(WritePrivateProfileStringA(Page_systeme(section).c_str(), Page_systeme(cle).c_str(),
                                           Page_systeme(valeur).c_str(),
                                           Page_systeme(Fichier_ini()).c_str()));
}

std::wstring Options::Cle(const std::wstring & nom) const {
    wchar_t     valeur[300];
    const DWORD lus =
        GetPrivateProfileStringW(L"Options", nom.c_str(), L"absente", valeur, 300, Fichier_ini().c_str());
    return {valeur, lus};
}

std::wstring Options::Depart(const Pilote::Fille & fille) const {
    std::wstring noms;
    for (const wchar_t * nom : {L"Racine", L"Courant", L"Choisi"}) {
        if (fille.Est_coche(nom)) noms += nom;
    }
    return noms;
}

int Options::Couleur(const Pilote::Fille & fille) const {
    return GetScrollPos(fille.Controle(L"Choix_couleur"), SB_CTL);
}

void Options::Cocher(const Pilote::Fille & fille, const std::wstring & nom, bool voulue) const {
    if (fille.Est_coche(nom) != voulue) fille.Cliquer(nom);
    ATTENDRE(fille.Est_coche(nom) == voulue);
}

void Options::Verifier_programmes(const std::wstring & editeur, const std::wstring & visualiseur) {
    // A name that is taken: the error has no message of its own.
    Choisir({L"a.txt"});
    Cliquer(L"Renommer");
    Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du fichier A.TXT", L"a.txt", L"b.txt");
    const HWND boite = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(boite, nullptr);
    const Boite lue = Lire_boite(boite);
    EXPECT_TRUE(lue.texte.ends_with(L"\rEditeur: " + editeur + L"\rVisualiseur: " + visualiseur)) << lue;
    EXPECT_TRUE(Repondre_boite(boite, IDOK));
    Attendre_fin_commande();
}
