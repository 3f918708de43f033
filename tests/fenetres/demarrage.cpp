#include "fenetres/mesures.h"
#include "fenetres/systeme_hote.h"
#include "pilote/korvane.h"

#include <cstdlib>
#include <cwctype>
#include <set>

#include <tlhelp32.h>

using namespace Pilote;

namespace {

const std::wstring titre         = L"Gestionnaire de fichiers";
const std::wstring titre_fichier = L"Gestionnaire de fichiers  (Mode fichier)   ";

std::wstring Minuscules(std::wstring texte) {
    for (wchar_t & lettre : texte) lettre = static_cast<wchar_t>(std::towlower(lettre));
    return texte;
}

std::set<std::wstring> Bibliotheques_chargees(DWORD processus) {
    std::set<std::wstring> noms;
    const HANDLE           photo  = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, processus);
    MODULEENTRY32W         module = {};
    module.dwSize                 = sizeof module;
    for (BOOL encore = Module32FirstW(photo, &module); encore != FALSE;
         encore      = Module32NextW(photo, &module))
        noms.insert(Minuscules(module.szModule));
    CloseHandle(photo);
    return noms;
}

}  // namespace

class Demarrage : public Korvane {
protected:
    const Boite absent{titre, L"Chemin d'accès introuvable\rou support absent.", MB_OK | MB_ICONEXCLAMATION};

    // The box that a failing start shows before the window; then waits for the window.
    void Lancer_avec_erreur(const Boite & boite) {
        Demarrer();
        Attendre_boite(boite, IDOK);
        Attendre_pret();
    }
    void Verifier_volets(const std::wstring & repertoire) {
        for (const wchar_t * champ : {L"Chemin_srce", L"Chemin_dest"}) {
            EXPECT_EQ(Utf8(Minuscules(Lire(champ))), Utf8(Minuscules(repertoire))) << Utf8(champ);
        }
    }
    void Verifier_unites(wchar_t lettre) {
        for (const wchar_t * liste : {L"Unité_srce", L"Unité_dest"}) {
            EXPECT_EQ(Lire(liste).substr(0, 2), std::wstring(1, lettre) + L":") << Utf8(liste);
        }
    }
};

// One start with its three seconds for all that can be seen during them.
TEST_F(Demarrage,
       sans_fichier_de_reglages_la_banniere_reste_trois_secondes_et_un_second_exemplaire_est_refuse) {
    Lancer();
    Fermer();
    Effacer(Fichier_ini());
    const std::wstring executable = dossier / L"programme\\KORVANE.EXE";
    const ULONGLONG    debut      = GetTickCount64();
    programme                     = std::make_unique<Programme>(executable, L"", dossier / L"programme");
    EXIGER(Fenetre(L"Apropos") != nullptr);
    EXPECT_FALSE(IsIconic(Fenetre(L"Apropos")));
    EXPECT_FALSE(Visible(Controle(L"Apropos", L"OK")));
    EXPECT_EQ(Texte(Controle(L"Apropos", L"Produit")), L"KORVANE");
    ATTENDRE(Pilote::Sablier(Fenetre(L"Apropos")));
    {
        Programme  second(executable, L"", dossier / L"programme");
        const HWND boite = Attendre_boite_visible(second.Numero(), 5000);
        ASSERT_NE(boite, nullptr);
        EXPECT_EQ(Lire_boite(boite), (Boite{titre, L"Le gestionnaire de fichiers est déjà chargé.", MB_OK}));
        EXPECT_TRUE(Repondre_boite(boite, IDOK));
        EXPECT_TRUE(second.Attendre_fin(3000));
    }
    EXPECT_TRUE(programme->Vivant());
    Attendre_pret();
    EXPECT_GE(GetTickCount64() - debut, 3000u);
    EXPECT_EQ(Texte(Principale()), titre_fichier);
    Verifier_volets(L"c:\\");
    EXPECT_FALSE(Se_voit(L"Bouton(0)"));
    EXPECT_TRUE(Entrees(L"Sélection_fichiers").empty());
    EXPECT_FALSE(Existe(Fichier_ini()));
}

TEST_F(Demarrage, iconise_demarre_en_icone_sans_attendre_et_rend_son_titre_a_la_fenetre) {
    Regler(L"Options", L"Iconisé", L"oui, merci");
    const ULONGLONG debut = GetTickCount64();
    Demarrer();
    EXIGER(Principale() && !Fenetre(L"Apropos") && !Sablier());
    EXPECT_LT(GetTickCount64() - debut, 3000u);
    EXPECT_TRUE(IsIconic(Principale()));
    EXPECT_EQ(Texte(Principale()), L"KORVANE");
    Attendre_pret();
    ATTENDRE(Texte(Principale()) == titre_fichier);
}

TEST_F(Demarrage, un_second_exemplaire_laisse_le_premier_comme_il_est) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    const std::wstring message = Lire(L"Ligne_message");
    Programme          second(dossier / L"programme\\KORVANE.EXE", L"", dossier / L"programme");
    const HWND         boite = Attendre_boite_visible(second.Numero(), 5000);
    ASSERT_NE(boite, nullptr);
    EXPECT_TRUE(Repondre_boite(boite, IDOK));
    EXPECT_TRUE(second.Attendre_fin(3000));
    EXPECT_TRUE(programme->Vivant());
    EXPECT_EQ(Choisies(), std::vector<std::wstring>{L"a.txt"});
    EXPECT_EQ(Lire(L"Ligne_message"), message);
}

TEST_F(Demarrage, un_exemplaire_peut_etre_lance_apres_la_fin_du_premier) {
    Lancer();
    Fermer();
    Lancer();
    EXPECT_EQ(Texte(Principale()), titre_fichier);
}

// The spooler brings several megabytes of libraries along; a session that prints nothing and chooses no file has none of them.
TEST_F(Demarrage, au_repos_ni_l_impression_ni_les_boites_communes_ne_sont_chargees) {
    Lancer();
    const std::set<std::wstring> bibliotheques = Bibliotheques_chargees(programme->Numero());
    EXPECT_TRUE(bibliotheques.contains(L"comctl32.dll"));
    for (const wchar_t * nom : {L"winspool.drv", L"comdlg32.dll"})
        EXPECT_FALSE(bibliotheques.contains(nom)) << Utf8(nom);
}

TEST_F(Demarrage, les_deux_volets_s_ouvrent_sur_le_repertoire_demande) {
    struct Cas {
        const wchar_t * valeur;
        std::wstring    ouvert;
    };
    const std::wstring courant    = dossier / L"programme";
    const std::wstring sans_unite = dossier.Chemin().substr(2);
    for (const Cas & cas : {Cas{L"courant", courant}, Cas{L"COURANT", courant}, Cas{L"Courant", courant},
                            Cas{L"racine", L"c:\\"}, Cas{L"RACINE", L"c:\\"}, Cas{source.c_str(), source},
                            Cas{sans_unite.c_str(), dossier.Chemin()}}) {
        SCOPED_TRACE(Utf8(cas.valeur));
        Regler(L"Options", L"Répertoire", cas.valeur);
        Lancer();
        Verifier_volets(cas.ouvert);
        Verifier_unites(L'c');
        Fermer();
    }
}

TEST_F(Demarrage, courant_montre_le_repertoire_du_processus_en_minuscules) {
    Regler(L"Options", L"Répertoire", L"Courant");
    Lancer();
    const std::wstring courant = Minuscules(dossier / L"programme");
    EXPECT_EQ(Utf8(Lire(L"Chemin_srce")), Utf8(courant));
    EXPECT_EQ(Utf8(Lire(L"Chemin_dest")), Utf8(courant));
    EXPECT_EQ(Entrees(L"Fichier_srce"), Entrees(L"Fichier_dest"));
    EXPECT_NE(Rang_entree(Controle(L"Fichier_srce"), L"KORVANE.EXE"), -1);
}

TEST_F(Demarrage, un_repertoire_absent_est_signale_puis_les_deux_volets_sont_sur_la_racine) {
    Regler(L"Options", L"Répertoire", dossier / L"absent");
    Regler(L"Boutons", L"Bloc", L"NOTEPAD.EXE");
    Regler(L"Sélections", L"Textes", L"*.txt");
    Lancer_avec_erreur(absent);
    Verifier_volets(L"c:\\");
    Verifier_unites(L'c');
    EXPECT_TRUE(Se_voit(L"Bouton(0)"));
    EXPECT_EQ(Entrees(L"Sélection_fichiers"), std::vector<std::wstring>{L"Textes"});
    EXPECT_NE(Lire(L"Espace_libre").find(L" Ko libres "), std::wstring::npos);
    Cliquer(L"Quitter");
    Attendre_boite(titre, L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                   MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDYES);
    EXPECT_TRUE(programme->Attendre_fin(5000));
}

TEST_F(Demarrage, une_unite_absente_est_signalee_puis_les_deux_volets_sont_sur_la_racine) {
    Regler(L"Options", L"Répertoire", L"q:\\travail");
    Demarrer();
    const HWND boite = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(boite, nullptr);
    EXPECT_EQ(Texte(boite), titre);
    EXPECT_TRUE(Repondre_boite(boite, IDOK));
    Attendre_pret();
    Verifier_volets(L"c:\\");
    Verifier_unites(L'c');
}

TEST_F(Demarrage, des_reglages_verrouilles_sont_signales_puis_lus_une_fois_libres) {
    Regler(L"Boutons", L"Bloc", L"NOTEPAD.EXE");
    Lancer();
    Fermer();
    HANDLE verrou = CreateFileW(Fichier_ini().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(verrou, INVALID_HANDLE_VALUE);
    programme = std::make_unique<Programme>(dossier / L"programme\\KORVANE.EXE", L"", dossier.Chemin());
    const HWND boite = Attendre_boite_visible(programme->Numero(), 5000);
    CloseHandle(verrou);
    ASSERT_NE(boite, nullptr);
    EXPECT_EQ(Texte(boite), titre);
    EXPECT_TRUE(Repondre_boite(boite, IDOK));
    Attendre_pret();
    EXPECT_TRUE(Se_voit(L"Bouton(0)"));
}

class Demarrage_D : public Demarrage {};

TEST_F(Demarrage_D, un_repertoire_d_une_autre_unite_choisit_cette_unite_dans_les_deux_volets) {
    Creer_dossier(L"d:\\travail");
    Regler(L"Options", L"Répertoire", L"D:\\Travail");
    Lancer();
    Effacer(L"d:\\travail");
    Verifier_volets(L"d:\\travail");
    Verifier_unites(L'd');
}

TEST_F(Demarrage,
       les_cles_de_boutons_deviennent_des_boutons_et_au_dela_de_sept_le_bouton_suivants_se_montre) {
    for (int cles : {0, 1, 7, 8, 9}) {
        SCOPED_TRACE(cles);
        for (int i = 1; i <= cles; ++i)
            Regler(L"Boutons", L"Bouton n° " + std::to_wstring(10 - i), L"PROG.EXE");
        Lancer();
        for (int i = 1; i <= 7; ++i) {
            const std::wstring nom = L"Bouton(" + std::to_wstring(i - 1) + L")";
            EXPECT_EQ(Se_voit(nom), i <= cles) << Utf8(nom);
            if (i > cles) continue;
            EXPECT_EQ(Lire(nom), L"Bouton n° " + std::to_wstring(10 - i));
        }
        EXPECT_EQ(Se_voit(L"Bouton_suite"), cles > 7);
        Fermer();
    }
}

TEST_F(Demarrage, les_selections_sont_dans_l_ordre_du_fichier_et_leurs_modeles_au_meme_rang) {
    Regler(L"Sélections", L"Textes", L"*.txt");
    Regler(L"Sélections", L"Été et images", L"*.bmp;*.ico");
    Regler(L"Sélections", L"Archives", L"");
    Lancer();
    EXPECT_EQ(Entrees(L"Sélection_fichiers"),
              (std::vector<std::wstring>{L"Textes", L"Été et images", L"Archives"}));
    EXPECT_EQ(Entrees(L"Liste_sel"), (std::vector<std::wstring>{L"*.txt", L"*.bmp;*.ico", L""}));
    EXPECT_FALSE(Se_voit(L"Liste_sel"));
}

// A root has its own "\": the path of the settings file has two of them.
TEST_F(Demarrage, un_programme_a_la_racine_d_une_unite_lit_ses_reglages) {
    Regler(L"Boutons", L"Vu", L"PROG.EXE");
    Lancer();
    Fermer();
    ASSERT_TRUE(Sur_hote(dossier / L"programme", L"ln -sfn \"$(pwd -P)\" \"$WINEPREFIX/dosdevices/y:\""));
    programme = std::make_unique<Programme>(L"Y:\\KORVANE.EXE", L"", dossier.Chemin());
    Attendre_pret();
    EXPECT_TRUE(Se_voit(L"Bouton(0)"));
    EXPECT_EQ(Lire(L"Bouton(0)"), L"Vu");
    Fermer();
    EXPECT_TRUE(Sur_hote(dossier.Chemin(), L"rm \"$WINEPREFIX/dosdevices/y:\""));
}

class Place_fenetre : public Korvane {
protected:
    // Where the held size and place put the window: 8 twips right of the middle, 100 twips from the top.
    void Attendre_place() {
        const RECT depart = Place_ecran(Principale());
        const int  gauche =
            (En_twips(GetSystemMetrics(SM_CXSCREEN)) - En_twips(depart.right - depart.left)) / 2 + 8;
        ATTENDRE(std::abs(En_twips(Place_ecran(Principale()).left) - gauche) <= 15);
        ATTENDRE(std::abs(En_twips(Place_ecran(Principale()).top) - 100) <= 8);
    }
};

TEST_F(Place_fenetre, la_fenetre_est_a_cent_twips_du_haut_et_centree) {
    Lancer();
    Attendre_place();
}

TEST_F(Place_fenetre, la_bordure_de_win_ini_agrandit_la_fenetre) {
    Lancer();
    const RECT avant = Place_ecran(Principale());
    Fermer();
    // Three characters with their end: two digits.
    WriteProfileStringW(L"Windows", L"BorderWidth", L"603");
    Lancer();
    WriteProfileStringW(L"Windows", L"BorderWidth", nullptr);
    const RECT apres = Place_ecran(Principale());
    EXPECT_NEAR(En_twips(apres.right - apres.left) - En_twips(avant.right - avant.left), 57, 15);
    EXPECT_NEAR(En_twips(apres.bottom - apres.top) - En_twips(avant.bottom - avant.top), 57, 15);
}

TEST_F(Place_fenetre, deplacer_agrandir_ou_etirer_la_fenetre_la_laisse_a_sa_place) {
    Lancer();
    const RECT place   = Place_ecran(Principale());
    const auto a_place = [&] {
        const RECT actuelle = Place_ecran(Principale());
        return EqualRect(&place, &actuelle) && !IsZoomed(Principale());
    };
    Reposer(Principale());
    PostMessageW(Principale(), WM_SYSCOMMAND, SC_MAXIMIZE, 0);
    Reposer(Principale());
    ATTENDRE(a_place());
    SetWindowPos(Principale(), nullptr, 0, 0, 300, 200, SWP_NOZORDER | SWP_NOMOVE);
    ATTENDRE(a_place());
    const POINT titre_barre{place.left + 200, place.top + 12};
    Glisser(titre_barre, POINT{titre_barre.x + 60, titre_barre.y + 40}, Principale());
    ATTENDRE(a_place());
    const POINT coin{place.right - 2, place.bottom - 2};
    Glisser(coin, POINT{coin.x - 80, coin.y - 60}, Principale());
    ATTENDRE(a_place());
}

TEST_F(Place_fenetre, en_icone_elle_s_appelle_korvane_et_reprend_son_titre_et_sa_place) {
    Lancer();
    const RECT place = Place_ecran(Principale());
    for (const std::wstring & attendu :
         {titre_fichier, std::wstring(L"Gestionnaire de fichiers  (Mode répertoire)")}) {
        ATTENDRE(Texte(Principale()) == attendu);
        PostMessageW(Principale(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
        ATTENDRE(IsIconic(Principale()) && Texte(Principale()) == L"KORVANE");
        PostMessageW(Principale(), WM_SYSCOMMAND, SC_RESTORE, 0);
        ATTENDRE(!IsIconic(Principale()) && Texte(Principale()) == attendu);
        const RECT apres = Place_ecran(Principale());
        EXPECT_TRUE(EqualRect(&place, &apres));
        SetForegroundWindow(Principale());
        Reposer(Principale());
        Cliquer(L"Mode");
    }
}
