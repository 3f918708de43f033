#include "pilote/korvane.h"

#include <cwctype>

using namespace Pilote;

// Run-time errors as the user meets them: the message to the letter, then a window that works on.
class Erreurs : public Korvane {
protected:
    void Attendre_avertissement(const std::wstring & texte) {
        Attendre_boite(L"Gestionnaire de fichiers", texte, MB_OK | MB_ICONEXCLAMATION, IDOK);
    }
    void Verifier_utilisable() {
        Attendre_fin_commande();
        ATTENDRE(GetForegroundWindow() == Principale());
        EXPECT_TRUE(Se_voit(L"Titre_dest"));
        EXPECT_FALSE(Se_voit(L"Arret"));
        EXPECT_FALSE(Se_voit(L"Jauge"));
        Cliquer(L"Quitter");
        Attendre_boite(L"Gestionnaire de fichiers", L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                       MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDNO);
    }
    static std::wstring Capitales(std::wstring texte) {
        CharUpperW(texte.data());
        return texte;
    }
};

TEST_F(Erreurs, un_repertoire_disparu_est_introuvable_et_les_listes_restent) {
    Creer_dossier(Source(L"parti"));
    Creer_source(L"a.txt", 1);
    Lancer_dans_les_dossiers();
    Effacer(Source(L"parti"));
    Cliquer_entree(L"Répertoire_srce", L"parti");
    Attendre_avertissement(L"Chemin d'accès introuvable\rou support absent.");
    EXPECT_EQ(Lire(L"Chemin_srce"), source);
    EXPECT_EQ(Entrees(L"Fichier_srce"), std::vector<std::wstring>{L"a.txt"});
    Verifier_utilisable();
}

TEST_F(Erreurs, un_motif_impossible_est_refuse) {
    Creer_source(L"a.txt", 1);
    Lancer_dans_les_dossiers();
    Cliquer(L"Sélection_fichiers");
    ATTENDRE(A_le_focus(L"Sélection_fichiers"));
    Frapper(VK_END);
    Taper(L"|");
    Attendre_avertissement(L"Caractère de sélection invalide.");
    EXPECT_EQ(Entrees(L"Fichier_srce"), std::vector<std::wstring>{L"a.txt"});
    ATTENDRE(A_le_focus(L"Sélection_fichiers"));
    Verifier_utilisable();
}

TEST_F(Erreurs, un_fichier_disparu_est_introuvable) {
    Creer_source(L"été.txt", 1);
    Lancer_dans_les_dossiers();
    Choisir({L"été.txt"});
    Effacer(Source(L"été.txt"));
    Cliquer(L"Copier");
    Attendre_avertissement(
        L"Un nom de fichier comporte un caractère invalide ou bien le fichier ÉTÉ.TXT est introuvable ou "
        L"les attributs 'Système/Caché' sont présents.");
    EXPECT_TRUE(Noms(destination).empty());
    Verifier_utilisable();
}

TEST_F(Erreurs, un_fichier_verrouille_est_signale) {
    Creer_source(L"pris.txt", 100);
    Lancer_dans_les_dossiers();
    Choisir({L"pris.txt"});
    HANDLE verrou =
        CreateFileW(Source(L"pris.txt").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(verrou, INVALID_HANDLE_VALUE);
    Cliquer(L"Copier");
    Attendre_avertissement(L"Disquette protégée en écriture\rou fichier verrouillé.");
    CloseHandle(verrou);
    EXPECT_TRUE(Noms(destination).empty());
    Verifier_utilisable();
    Choisir({L"pris.txt"});
    Cliquer(L"Copier");
    Attendre_fin_commande();
    EXPECT_EQ(Noms(destination), std::vector<std::wstring>{L"pris.txt"});
}

TEST_F(Erreurs, un_nom_de_copie_incorrect_est_refuse) {
    Creer_source(L"a.txt", 1);
    Lancer_dans_les_dossiers();
    Ouvrir(L"dest", source);
    Choisir({L"a.txt"});
    Cliquer(L"Copier");
    Attendre_saisie(
        L"COPIER",
        L"Vous allez copier un fichier dans son propre répertoire,\rentrez le nom de copie du fichier "
        L"A.TXT",
        L"", L"b?.txt");
    Attendre_avertissement(L"Nom incorrect.");
    EXPECT_EQ(Noms(source), std::vector<std::wstring>{L"a.txt"});
    Verifier_utilisable();
}

TEST_F(Erreurs, un_repertoire_a_la_place_du_fichier_cible_est_protege) {
    Creer_source(L"double", 10);
    Creer_dossier(Destination(L"double"));
    Lancer_dans_les_dossiers();
    Choisir({L"double"});
    Cliquer(L"Copier");
    Attendre_avertissement(
        L"Le fichier DOUBLEest protégé contre l'écriture :\rmodifiez son attribut et relancez l'opération.");
    Verifier_utilisable();
    EXPECT_EQ(Attributs(Destination(L"double")) & FILE_ATTRIBUTE_DIRECTORY, FILE_ATTRIBUTE_DIRECTORY);
}

TEST_F(Erreurs, une_unite_absente_au_demarrage_est_nommee) {
    Regler(L"Options", L"Répertoire", L"q:\\travail");
    Demarrer();
    Attendre_avertissement(L"Support absent ou erreur d'accès sur Q:");
    Attendre_pret();
    Verifier_utilisable();
}

// A disk that fails in the middle of things gives an error that nobody expects: the report names all there is to know.
class Erreurs_D : public Erreurs {};

TEST_F(Erreurs_D, une_erreur_inattendue_donne_le_rapport_entier) {
    Regler(L"Options", L"Editeur", L"éditeur.exe");
    Creer_fichier_graine(L"d:\\source\\a.dat", 200000, 1);
    Lancer();
    Ouvrir(L"srce", L"d:\\source");
    Ouvrir(L"dest", destination);
    Choisir({L"a.dat"});
    Unite::Arracher_disque();
    Cliquer(L"Copier");
    const HWND  boite = Attendre_boite_visible(programme->Numero(), 10000);
    const Boite lue   = Lire_boite(boite);
    // The system's own wording stands in the middle.
    const std::wstring debut = L"Veuillez noter et transmettre à l'auteur. Merci\r\r";
    const std::wstring fin = L" (code = 57)\rCommande: COPIER (fichier)\rSource: D:\\source\rDestination: " +
                             destination + L"\rEditeur: ÉDITEUR.EXE\rVisualiseur: PELMIRA.EXE";
    EXPECT_EQ(lue.titre, L"Erreur détectée par KORVANE");
    EXPECT_EQ(lue.style, static_cast<unsigned>(MB_OK | MB_ICONHAND));
    EXPECT_EQ(Utf8(lue.texte.substr(0, debut.size())), Utf8(debut));
    EXPECT_GT(lue.texte.size(), debut.size() + fin.size());
    EXPECT_TRUE(lue.texte.ends_with(fin)) << lue;
    EXPECT_TRUE(Repondre_boite(boite, IDOK));
    EXPECT_TRUE(Noms(destination).empty());
    Verifier_utilisable();
    // The disk is there again once nobody holds it any more.
    Fermer();
    Unite::Remettre_disque();
    Unite::Vider(L'd');
}

class Erreurs_F : public Erreurs {};

TEST_F(Erreurs_F, un_lecteur_sans_support_est_nomme_et_le_volet_reste) {
    Lancer_dans_les_dossiers();
    for (const wchar_t * cote : {L"dest", L"srce"}) {
        const std::wstring unite = std::wstring(L"Unité_") + cote;
        Choisir_unite(unite, L'f');
        Attendre_avertissement(L"Support absent ou erreur d'accès sur F:");
        ATTENDRE(Lire(unite).substr(0, 2) == L"c:");
    }
    EXPECT_EQ(Lire(L"Chemin_srce"), source);
    EXPECT_EQ(Lire(L"Chemin_dest"), destination);
    Verifier_utilisable();
}
