#include "fenetres/configuration.h"

#include <algorithm>
#include <memory>

using namespace Pilote;

namespace {

struct Fermer_poignee {
    void operator()(void * poignee) const { CloseHandle(poignee); }
};
using Verrou = std::unique_ptr<void, Fermer_poignee>;

// The file as another program has it open.
Verrou Tenir_ouvert(const std::wstring & fichier, DWORD partage) {
    const HANDLE poignee =
        CreateFileW(fichier.c_str(), GENERIC_READ, partage, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(poignee, INVALID_HANDLE_VALUE) << GetLastError();
    return Verrou(poignee);
}

}  // namespace

class Configuration_pannes : public Configuration {
protected:
    void Attendre_protege() {
        Attendre_avertissement(L"Le fichier KORVANE.INIest protégé contre l'écriture :\r"
                               L"modifiez son attribut et relancez l'opération.");
    }
    // The line is still there to be saved, and the one chosen still to be replaced or erased.
    void Verifier_en_attente(const Pilote::Fille & editeur, const std::wstring & ligne,
                             const Textes & lignes) {
        EXPECT_EQ(Utf8(editeur.Lire(L"Ligne_conf")), Utf8(ligne));
        ATTENDRE(editeur.Nom_du_focus() == L"Ligne_conf");
        EXPECT_TRUE(editeur.Est_actif(L"Enregistrer"));
        Attendre_lignes(editeur, lignes);
    }
};

TEST_F(Configuration_pannes, un_fichier_protege_est_dit_et_rien_ne_se_perd_ni_ne_change) {
    for (const wchar_t * cle : {L"Un", L"Deux"}) Regler(L"Boutons", cle, L"C:\\A.EXE");
    const Textes      avant{L"Un=C:\\A.EXE", L"Deux=C:\\A.EXE"};
    const auto        editeur = Lancer_et_ouvrir();
    const std::string contenu = Lire_fichier(Fichier_ini());
    Attributs(Fichier_ini(), FILE_ATTRIBUTE_READONLY);
    Choisir_ligne(editeur, 0);
    editeur.Remplacer(L"Ligne_conf", L"Neuf=C:\\N.EXE");
    editeur.Cliquer(L"Enregistrer");
    Attendre_protege();
    Verifier_en_attente(editeur, L"Neuf=C:\\N.EXE", avant);
    EXPECT_TRUE(editeur.Est_actif(L"Effacer"));
    editeur.Cliquer(L"Effacer");
    Attendre_protege();
    Verifier_en_attente(editeur, L"Neuf=C:\\N.EXE", avant);
    EXPECT_EQ(Lire_fichier(Fichier_ini()), contenu);
    // Nothing was written: nothing to start again for.
    Fermer_editeur(editeur, false);
    Ouvrir_editeur();
    Choisir_ligne(editeur, 0);
    editeur.Remplacer(L"Ligne_conf", L"Neuf=C:\\N.EXE");
    editeur.Cliquer(L"Enregistrer");
    Attendre_protege();
    Attributs(Fichier_ini(), FILE_ATTRIBUTE_ARCHIVE);
    editeur.Cliquer(L"Enregistrer");
    Attendre_lignes(editeur, {L"Deux=C:\\A.EXE", L"Neuf=C:\\N.EXE"});
    EXPECT_EQ(Section_du_fichier("Boutons"), (Textes{L"Deux=C:\\A.EXE", L"Neuf=C:\\N.EXE"}));
    Fermer_editeur(editeur, true);
    Verifier_principale_utilisable();
}

TEST_F(Configuration_pannes, un_caractere_hors_de_la_page_de_codes_est_nomme_et_la_ligne_reste) {
    Regler(L"Boutons", L"Un", L"C:\\A.EXE");
    const auto        editeur = Lancer_et_ouvrir();
    const std::string contenu = Lire_fichier(Fichier_ini());
    struct Cas {
        const wchar_t *option, *ligne, *caractere, *fichier;
    };
    const Cas cas[] = {{L"Boutons", L"Ω=C:\\A.EXE", L"Ω", L"KORVANE.INI"},
                       {L"Boutons", L"é=C:\\日.EXE", L"日", L"KORVANE.INI"},
                       {L"Associer", L"a=C:\\x\U0001F600.EXE", L"\U0001F600", L"WIN.INI"}};
    for (const Cas & c : cas) {
        Montrer(editeur, c.option);
        if (c.option[0] == L'B') Choisir_ligne(editeur, 0);
        Coller(editeur, c.ligne);
        editeur.Cliquer(L"Enregistrer");
        Attendre_avertissement(std::wstring(L"Le caractère '") + c.caractere +
                               L"' ne peut pas être enregistré dans " + c.fichier +
                               L" :\rremplacez-le et relancez l'opération.");
        Verifier_en_attente(editeur, c.ligne, c.option[0] == L'B' ? Textes{L"Un=C:\\A.EXE"} : Textes{});
    }
    EXPECT_EQ(Lire_fichier(Fichier_ini()), contenu);
    Fermer_editeur(editeur, false);
}

TEST_F(Configuration_pannes, un_fichier_qu_un_autre_programme_verrouille_est_dit_et_se_lit_une_fois_libre) {
    Regler(L"Boutons", L"Un", L"C:\\A.EXE");
    Lancer();
    Ranger_principale();
    const std::wstring verrouille = L"Disquette protégée en écriture\rou fichier verrouillé.";
    {
        const Verrou verrou = Tenir_ouvert(Fichier_ini(), 0);
        Commencer(L"Configurer");
        Attendre_avertissement(verrouille);
        Editeur().Attendre_ouverte();
        Attendre_lignes(Editeur(), {});
        Coller(Editeur(), L"Deux=C:\\B.EXE");
        Editeur().Cliquer(L"Enregistrer");
        const HWND boite = Attendre_boite_visible(programme->Numero(), 5000);
        EXPECT_TRUE(boite && Repondre_boite(boite, IDOK));
        EXPECT_EQ(Editeur().Lire(L"Ligne_conf"), L"Deux=C:\\B.EXE");
    }
    const auto editeur = Editeur();
    Montrer(editeur, L"Sélections");
    Montrer(editeur, L"Boutons");
    Attendre_lignes(editeur, {L"Un=C:\\A.EXE"});
    // Open elsewhere, for reading alone, the file can still be written.
    const Verrou ouvert = Tenir_ouvert(Fichier_ini(), FILE_SHARE_READ | FILE_SHARE_WRITE);
    Enregistrer(editeur, L"Deux=C:\\B.EXE");
    Attendre_lignes(editeur, {L"Un=C:\\A.EXE", L"Deux=C:\\B.EXE"});
    Fermer_editeur(editeur, true);
}

TEST_F(Configuration_pannes, ce_qu_un_autre_programme_change_entre_temps_n_est_pas_perdu) {
    Regler(L"Boutons", L"Un", L"C:\\A.EXE");
    Regler(L"Options", L"Editeur", L"NOTEPAD.EXE");
    const auto  editeur = Lancer_et_ouvrir();
    std::string contenu = Lire_fichier(Fichier_ini());
    contenu.insert(contenu.find("Editeur=") + 8, "AUTRE");
    contenu.insert(contenu.find("Un=C:"), "; remarque\r\nZéro=Z.EXE\r\n");
    Creer_fichier(Fichier_ini(), contenu + "[Ailleurs]\r\nCl\xE9=1\r\n");
    Choisir_ligne(editeur, 0);
    Enregistrer(editeur, L"Un=C:\\U.EXE");
    const Textes boutons = Section_du_fichier("Boutons");
    ASSERT_EQ(boutons.size(), 3u);
    EXPECT_EQ(boutons[0], L"; remarque");
    EXPECT_EQ(boutons[2], L"Un=C:\\U.EXE");
    EXPECT_EQ(editeur.Entrees(L"Liste_conf").size(), 2u);
    const Textes options = Section_du_fichier("Options");
    EXPECT_NE(std::find(options.begin(), options.end(), L"Editeur=AUTRENOTEPAD.EXE"), options.end());
    EXPECT_EQ(Section_du_fichier("Ailleurs"), Textes{L"Clé=1"});
    // The settings file gone altogether: the line makes a new one.
    EXPECT_TRUE(Effacer(Fichier_ini()));
    Montrer(editeur, L"Sélections");
    Montrer(editeur, L"Boutons");
    Attendre_lignes(editeur, {});
    Enregistrer(editeur, L"Un=C:\\U.EXE");
    EXPECT_EQ(Section_du_fichier("Boutons"), Textes{L"Un=C:\\U.EXE"});
    Fermer_editeur(editeur, true);
}
