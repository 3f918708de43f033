#include "fenetres/lancements.h"

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// Handing the selected files to the editor.
class Edition : public Lancements {
protected:
    Edition() { Installer_a_cote({L"NOTEPAD.EXE", L"PELMIRA.EXE"}); }
};

TEST_F(Edition, sans_selection_le_dit_et_ne_lance_rien) {
    Regler(L"Options", L"Confirme", L"Oui");
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Cliquer(L"Editer");
    Attendre_boite(L"EDITER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", avertissement, IDOK);
    Verifier_repos(L"Editer");
    EXPECT_EQ(Lignes(0), Textes{});
}

TEST_F(Edition, chaque_fichier_a_son_editeur_et_un_nom_relatif_entre_guillemets_s_il_a_un_blanc) {
    for (const wchar_t * nom : {L"a.txt", L"l'été à Noël.txt", L"x&y.txt"}) Creer_source(nom, 10);
    Lancer_dans_les_dossiers();
    Commander(L"Editer", {L"a.txt", L"l'été à Noël.txt", L"x&y.txt"});
    Verifier_repos(L"Editer");
    EXPECT_EQ(Lignes(3),
              (Textes{L"NOTEPAD.EXE a.txt", L"NOTEPAD.EXE \"l'été à Noël.txt\"", L"NOTEPAD.EXE x&y.txt"}));
}

TEST_F(Edition, l_editeur_compagnon_recoit_les_fichiers_ensemble_sans_ovl) {
    Regler(L"Options", L"Editeur", L"PELMIRA.EXE");
    Creer_source(L"a.txt", 10);
    Creer_source(L"b c.txt", 10);
    Lancer_dans_les_dossiers();
    Commander(L"Editer", {L"a.txt", L"b c.txt"});
    Verifier_repos(L"Editer");
    EXPECT_EQ(Lignes(1), Textes{L"PELMIRA.EXE " + Source(L"a.txt") + L" \"" + Source(L"b c.txt") + L"\""});
}

TEST_F(Edition, confirme_non_ou_annuler_finit_la_commande_et_les_premiers_sont_edites) {
    Regler(L"Options", L"Confirme", L"Oui");
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    for (const int refus : {IDNO, IDCANCEL}) {
        Commander(L"Editer", {L"a.txt", L"b.txt"});
        Confirmer(L"EDITER", L"a.txt", oui_non_annuler, IDYES);
        Confirmer(L"EDITER", L"b.txt", oui_non_annuler, refus);
        Verifier_repos(L"Editer");
    }
    EXPECT_EQ(Lignes(2), (Textes{L"NOTEPAD.EXE a.txt", L"NOTEPAD.EXE a.txt"}));
}

TEST_F(Edition, un_editeur_absent_ou_qui_n_est_pas_un_programme_est_nomme_et_rien_d_autre_n_est_lance) {
    Regler(L"Options", L"Editeur", dossier / L"mes outils\\absent.exe");
    Installer_enregistreur(dossier / L"mes.exe");
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Commander(L"Editer", {L"a.txt", L"b.txt"});
    const HWND boite = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(boite, nullptr);
    // A missing directory is told as such by some systems.
    const std::wstring texte = Lire_boite(boite).texte;
    EXPECT_TRUE(texte.find(L"le fichier ABSENT.EXE est introuvable") != texte.npos ||
                texte.starts_with(L"Chemin d'accès introuvable"))
        << Utf8(texte);
    Repondre_boite(boite, IDOK);
    Verifier_repos(L"Editer");
    Creer_fichier(dossier / L"mes outils\\absent.exe", "rien de bon");
    Commander(L"Editer", {L"b.txt"});
    Attendre_avertissement(
        L"Fichier non exécutable :ABSENT.EXE\rseuls les programmes avec les extensions COM, EXE, "
        L"BAT ou PIF sont exécutables.");
    Verifier_repos(L"Editer");
    EXPECT_EQ(Lignes(0), Textes{});
}

TEST_F(Edition, un_fichier_du_repertoire_qui_porte_le_nom_de_l_editeur_n_est_pas_pris_pour_lui) {
    const std::wstring installe = L"C:\\windows\\EDITESS.EXE";
    Regler(L"Options", L"Editeur", L"EDITESS.EXE");
    Installer_enregistreur(Source(L"EDITESS.EXE"));
    Installer_enregistreur(installe);
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Commander(L"Editer", {L"a.txt"});
    Verifier_repos(L"Editer");
    EXPECT_EQ(Lignes(1), Textes{installe + L" a.txt"});
    EXPECT_TRUE(Effacer(installe));
    // Where no such program is installed there is nothing to mistake.
    Commander(L"Editer", {L"a.txt"});
    Verifier_repos(L"Editer");
    EXPECT_EQ(Lignes(2).back(), L"EDITESS.EXE a.txt");
}

TEST_F(Edition, un_nom_hors_de_la_page_de_codes_passe_sous_son_nom_court) {
    Creer_source(L"θάλασσα.txt", 10);
    Lancer_dans_les_dossiers();
    Commander(L"Editer", {L"θάλασσα.txt"});
    Verifier_repos(L"Editer");
    wchar_t court[1024] = L"";
    GetShortPathNameW(Source(L"θάλασσα.txt").c_str(), court, 1024);
    EXPECT_EQ(Lignes(1), Textes{L"NOTEPAD.EXE " + std::wstring(court).substr(source.size() + 1)});
}

TEST_F(Edition, dans_un_repertoire_trop_profond_pour_etre_courant_l_editeur_recoit_le_bon_fichier) {
    std::wstring profond = source;
    for (int i = 0; i < 3; ++i) profond += L"\\" + std::wstring(90, static_cast<wchar_t>(L'a' + i));
    Creer_fichier(profond + L"\\a.txt", "celui-ci");
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Ouvrir(L"srce", profond);
    for (const wchar_t * bouton : {L"Editer", L"Visualiser"}) {
        Commander(bouton, {L"a.txt"});
        Verifier_repos(bouton);
    }
    for (const Lance & lance : Attendre_lances(2)) {
        const std::wstring chemin = lance.ligne.substr(lance.ligne.find(L"C:\\"));
        EXPECT_LT(chemin.size(), 260u);
        EXPECT_EQ(Lire_fichier(chemin), "celui-ci");
    }
}

TEST_F(Edition, un_editeur_fichier_de_commandes_n_en_lance_jamais_deux) {
    Regler(L"Options", L"Editeur", dossier / L"mes outils\\ed.bat");
    Creer_fichier(dossier / L"mes outils\\ed.bat", "@echo [%1] [%2]>>trace.txt\r\n");
    Installer_enregistreur(Source(L"calc.exe"));
    Creer_source(L"a&calc.exe.txt", 10);
    Creer_source(L"un,deux.txt", 10);
    Creer_source(L"%PATH%.txt", 10);
    Lancer_dans_les_dossiers();
    Commander(L"Editer", {L"a&calc.exe.txt"});
    Verifier_repos(L"Editer");
    EXPECT_EQ(Attendre_trace(Source(L"trace.txt")), "[\"a&calc.exe.txt\"] []\r\n");
    ASSERT_TRUE(Effacer(Source(L"trace.txt")));
    Commander(L"Editer", {L"un,deux.txt"});
    Verifier_repos(L"Editer");
    EXPECT_EQ(Attendre_trace(Source(L"trace.txt")), "[\"un,deux.txt\"] []\r\n");
    ASSERT_TRUE(Effacer(Source(L"trace.txt")));
    Commander(L"Editer", {L"%PATH%.txt"});
    Attendre_avertissement(
        L"Le chemin du fichier %PATH%.TXT comporte des '%' que l'interpréteur de commandes "
        L"remplacerait :\rrenommez celui-ci et relancez l'opération.");
    Verifier_repos(L"Editer");
    EXPECT_FALSE(Existe(Source(L"trace.txt")));
    EXPECT_EQ(Lignes(0), Textes{});
}
