#include "fenetres/lancements.h"

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// Executing the selected file.
class Execution : public Lancements {
protected:
    void Executer(const std::wstring & fichier, const wchar_t * parametres) {
        Commander(L"Exécuter", {fichier});
        Attendre_parametres(fichier, parametres);
        Attendre_fin_commande();
    }
};

TEST_F(Execution, sans_selection_le_dit_et_ne_demande_rien) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Cliquer(L"Exécuter");
    Attendre_boite(L"EXECUTER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", avertissement, IDOK);
    Verifier_repos(L"Exécuter");
    EXPECT_EQ(Lignes(0), Textes{});
}

TEST_F(Execution, un_fichier_d_une_autre_extension_n_est_pas_executable) {
    for (const wchar_t * nom : {L"README.TXT", L"EXE", L"un.exe.bak"}) Installer_enregistreur(Source(nom));
    Lancer_dans_les_dossiers();
    for (const wchar_t * nom : {L"README.TXT", L"EXE", L"un.exe.bak"}) {
        Commander(L"Exécuter", {nom});
        Attendre_avertissement(L"Fichier non exécutable.");
        Attendre_fin_commande();
    }
    Verifier_repos(L"Exécuter");
    EXPECT_EQ(Lignes(0), Textes{});
}

TEST_F(Execution, les_parametres_suivent_le_programme_selon_ce_qu_ils_contiennent) {
    Installer_enregistreur(Source(L"x.exe"));
    Lancer_dans_les_dossiers();
    const std::wstring x = Source(L"x.exe"), cite = L"\"" + x + L"\"";
    Executer(L"x.exe", nullptr);  // the single blank of the prompt
    Executer(L"x.exe", L"/S");
    Executer(L"x.exe", L"  un deux ");
    Executer(L"x.exe", L"\"un deux\" trois & quatre");
    Executer(L"x.exe", L"été%PATH%");
    EXPECT_EQ(Lignes(5), (Textes{x, cite + L"/S", x + L" \"un deux\"", x + L" \"un deux\" trois & quatre",
                                 cite + L"été%PATH%"}));
    for (const wchar_t * reponse : {L"/S", L"un deux"}) {
        Commander(L"Exécuter", {L"x.exe"});
        Attendre_parametres(L"x.exe", reponse, L"Annuler");
        Attendre_fin_commande();
    }
    Commander(L"Exécuter", {L"x.exe"});
    EXIGER(Fenetre(L"Saisie") && GetForegroundWindow() == Fenetre(L"Saisie"));
    Frapper(VK_DELETE);
    Frapper(VK_RETURN);
    Verifier_repos(L"Exécuter");
    EXPECT_EQ(Lignes(5).size(), 5u);
}

TEST_F(Execution, un_programme_au_nom_avec_blancs_et_accents_est_lance_lui_meme) {
    Installer_enregistreur(Source(L"été à.exe"));
    Installer_enregistreur(Source(L"été.exe"));
    Installer_enregistreur(Source(L"ωμέγα.exe"));
    Lancer_dans_les_dossiers();
    Executer(L"été à.exe", nullptr);
    Executer(L"ωμέγα.exe", nullptr);
    const auto lances = Attendre_lances(2);
    ASSERT_EQ(lances.size(), 2u);
    EXPECT_EQ(Utf8(lances[0].ligne), Utf8(L"\"" + Source(L"été à.exe") + L"\""));
    EXPECT_EQ(Utf8(Capitales(lances[0].programme)), Utf8(Capitales(Source(L"été à.exe"))));
    wchar_t court[1024] = L"";
    GetShortPathNameW(Source(L"ωμέγα.exe").c_str(), court, 1024);
    EXPECT_EQ(Utf8(lances[1].ligne), Utf8(court));
}

TEST_F(Execution, le_premier_fichier_choisi_est_execute_apres_confirmation) {
    Regler(L"Options", L"Confirme", L"Oui");
    Installer_enregistreur(Source(L"a.exe"));
    Installer_enregistreur(Source(L"b.exe"));
    Lancer_dans_les_dossiers();
    for (const int refus : {IDNO, IDCANCEL}) {
        Commander(L"Exécuter", {L"b.exe", L"a.exe"});
        Confirmer(L"EXECUTER", L"a.exe", oui_non_annuler, refus);
        Verifier_repos(L"Exécuter");
    }
    Commander(L"Exécuter", {L"b.exe", L"a.exe"});
    Confirmer(L"EXECUTER", L"a.exe", oui_non_annuler, IDYES);
    Attendre_parametres(L"a.exe", nullptr);
    Verifier_repos(L"Exécuter");
    EXPECT_EQ(Lignes(1), Textes{Source(L"a.exe")});
}

TEST_F(Execution, un_fichier_de_commandes_recoit_ses_parametres_et_n_en_lance_jamais_deux) {
    Creer_fichier(Source(L"l ot.bat"), "@echo %*>trace.txt\r\n");
    Installer_enregistreur(Source(L"calc.exe"));
    Lancer_dans_les_dossiers();
    const struct {
        const wchar_t * saisi;
        const char *    recu;
    } cas[] = {{L"/S", "/S\r\n"}, {L"un deux & calc.exe", "\"un deux & calc.exe\"\r\n"}};
    for (const auto & c : cas) {
        Executer(L"l ot.bat", c.saisi);
        EXPECT_EQ(Attendre_trace(Source(L"trace.txt")), c.recu) << Utf8(c.saisi);
        ASSERT_TRUE(Effacer(Source(L"trace.txt")));
    }
    EXPECT_EQ(Lignes(0), Textes{});
}

TEST_F(Execution, un_fichier_de_commandes_au_nom_plein_de_signes_est_lance_lui_meme) {
    Creer_fichier(Source(L"a&calc.bat"), "@echo lui>trace.txt\r\n");
    Creer_fichier(Source(L"%PATH%.bat"), "@echo lui>trace.txt\r\n");
    Installer_enregistreur(Source(L"calc.exe"));
    Lancer_dans_les_dossiers();
    Executer(L"a&calc.bat", nullptr);
    EXPECT_EQ(Attendre_trace(Source(L"trace.txt")), "lui\r\n");
    ASSERT_TRUE(Effacer(Source(L"trace.txt")));
    Commander(L"Exécuter", {L"%PATH%.bat"});
    Attendre_avertissement(
        L"Le chemin du fichier %PATH%.BAT comporte des '%' que l'interpréteur de commandes "
        L"remplacerait :\rrenommez celui-ci et relancez l'opération.");
    Verifier_repos(L"Exécuter");
    EXPECT_FALSE(Existe(Source(L"trace.txt")));
    EXPECT_EQ(Lignes(0), Textes{});
}

TEST_F(Execution, un_programme_qui_n_en_est_pas_un_ou_qui_a_disparu_est_signale) {
    Creer_source(L"faux.exe", 100);
    Installer_enregistreur(Source(L"x.exe"));
    Lancer_dans_les_dossiers();
    Commander(L"Exécuter", {L"faux.exe"});
    Attendre_parametres(L"faux.exe", nullptr);
    Attendre_avertissement(
        L"Fichier non exécutable :FAUX.EXE\rseuls les programmes avec les extensions COM, EXE, BAT "
        L"ou PIF sont exécutables.");
    Verifier_repos(L"Exécuter");
    Commander(L"Exécuter", {L"x.exe"});
    EXIGER(Fenetre(L"Saisie") != nullptr);
    ASSERT_TRUE(Effacer(Source(L"x.exe")));
    Attendre_parametres(L"x.exe", nullptr);
    Attendre_introuvable(L"X.EXE");
    Verifier_repos(L"Exécuter");
    EXPECT_EQ(Lignes(0), Textes{});
}

TEST_F(Execution, dans_un_repertoire_trop_profond_le_programme_part_de_celui_ci_ou_ne_part_pas) {
    std::wstring profond = source;
    for (int i = 0; i < 3; ++i) profond += L"\\" + std::wstring(90, static_cast<wchar_t>(L'a' + i));
    std::wstring fond = source;
    for (int i = 0; i < 30; ++i) fond += L"\\répertoire" + std::to_wstring(i);
    const std::string programme_lance = Lire_fichier(Repertoire_essais() + L"\\enregistreur.exe");
    for (const std::wstring & repertoire : {profond, fond})
        Creer_fichier(repertoire + L"\\x.exe", programme_lance);
    Lancer_dans_les_dossiers();
    Ouvrir(L"srce", profond);
    Commander(L"Exécuter", {L"x.exe"});
    EXIGER(Fenetre(L"Saisie") && GetForegroundWindow() == Fenetre(L"Saisie"));
    Frapper(VK_RETURN);
    Attendre_fin_commande();
    const auto lances = Attendre_lances(1);
    ASSERT_EQ(lances.size(), 1u);
    wchar_t court[1024] = L"";
    GetShortPathNameW((L"\\\\?\\" + profond).c_str(), court, 1024);
    EXPECT_EQ(Utf8(Capitales(lances[0].repertoire)), Utf8(Capitales(court + 4)));
    Remplacer_texte(L"Chemin_srce", fond);
    Frapper(VK_RETURN);
    ATTENDRE(A_le_focus(L"Fichier_srce"));
    Commander(L"Exécuter", {L"x.exe"});
    Attendre_avertissement(L"Le chemin du répertoire de travail est trop long pour y lancer une commande.");
    Verifier_repos(L"Exécuter");
    EXPECT_EQ(Attendre_lances(1).size(), 1u);
}
