#include "fenetres/lancements.h"

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// Handing the selected files to the viewer.
class Visualisation : public Lancements {
protected:
    Visualisation() { Installer_a_cote({L"PELMIRA.EXE", L"VOIR.EXE"}); }
};

TEST_F(Visualisation, sans_selection_le_dit_et_ne_lance_rien) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Cliquer(L"Visualiser");
    Attendre_boite(L"VISUALISER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", avertissement, IDOK);
    Verifier_repos(L"Visualiser");
    EXPECT_EQ(Lignes(0), Textes{});
}

TEST_F(Visualisation,
       le_visualiseur_compagnon_recoit_ovl_et_les_chemins_entre_guillemets_s_ils_ont_un_blanc) {
    for (const wchar_t * nom : {L"a.txt", L"l'été à Noël.txt", L"z&b,c.txt"}) Creer_source(nom, 10);
    Lancer_dans_les_dossiers();
    Commander(L"Visualiser", {L"a.txt"});
    Verifier_repos(L"Visualiser");
    Choisir_tout();
    Cliquer(L"Visualiser");
    Verifier_repos(L"Visualiser");
    const std::wstring blancs = L" \"" + Source(L"l'été à Noël.txt") + L"\"";
    EXPECT_EQ(Lignes(2),
              (Textes{L"PELMIRA.EXE ovl " + Source(L"a.txt"),
                      L"PELMIRA.EXE ovl " + Source(L"a.txt") + blancs + L" " + Source(L"z&b,c.txt")}));
}

TEST_F(Visualisation, un_autre_visualiseur_ne_recoit_que_les_fichiers) {
    Regler(L"Options", L"Visualiseur", L"VOIR.EXE");
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Commander(L"Visualiser", {L"a.txt"});
    Verifier_repos(L"Visualiser");
    EXPECT_EQ(Lignes(1), Textes{L"VOIR.EXE  " + Source(L"a.txt")});
}

TEST_F(Visualisation, vingt_longs_chemins_vont_a_plusieurs_visualiseurs_sans_liste_de_126_caracteres) {
    // Quotes included a path has some 60 characters: two go into one list.
    Textes attendus;
    for (int i = 10; i < 30; ++i) {
        const std::wstring nom = L"un fichier au nom assez long " + std::to_wstring(i) + L".txt";
        Creer_source(nom, 10);
        attendus.push_back(L"\"" + Source(nom) + L"\"");
    }
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Visualiser");
    Attendre_fin_commande();
    const std::wstring debut = L"PELMIRA.EXE ovl ";
    Textes             recus;
    for (const std::wstring & ligne : Lignes(10)) {
        ASSERT_TRUE(ligne.starts_with(debut)) << Utf8(ligne);
        std::wstring liste = ligne.substr(debut.size());
        EXPECT_LT(liste.size(), 126u) << Utf8(liste);
        for (std::size_t fin; !liste.empty(); liste.erase(0, fin + 2)) {
            fin = liste.find(L"\" \"");
            if (fin == liste.npos) fin = liste.size() - 1;
            recus.push_back(liste.substr(0, fin + 1));
        }
    }
    EXPECT_EQ(recus, attendus);
}

TEST_F(Visualisation, confirme_oui_lance_non_ou_annuler_ne_lance_rien_meme_de_ce_qui_etait_accepte) {
    Regler(L"Options", L"Confirme", L"Oui");
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    for (const int refus : {IDNO, IDCANCEL}) {
        Commander(L"Visualiser", {L"a.txt", L"b.txt"});
        Confirmer(L"VISUALISER", L"a.txt", oui_non_annuler, IDYES);
        Confirmer(L"VISUALISER", L"b.txt", oui_non_annuler, refus);
        Verifier_repos(L"Visualiser");
        EXPECT_EQ(Lignes(0), Textes{});
    }
    Commander(L"Visualiser", {L"a.txt", L"b.txt"});
    Confirmer(L"VISUALISER", L"a.txt", oui_non_annuler, IDYES);
    Confirmer(L"VISUALISER", L"b.txt", oui_non_annuler, IDYES);
    Verifier_repos(L"Visualiser");
    Commander(L"Visualiser", {L"b.txt"});
    Confirmer(L"VISUALISER", L"b.txt", oui_non, IDYES);
    Verifier_repos(L"Visualiser");
    EXPECT_EQ(Lignes(2), (Textes{L"PELMIRA.EXE ovl " + Source(L"a.txt") + L" " + Source(L"b.txt"),
                                 L"PELMIRA.EXE ovl " + Source(L"b.txt")}));
}

TEST_F(Visualisation, un_visualiseur_dans_un_repertoire_avec_des_blancs_est_lance_lui_meme) {
    // What stands before the blank is a program too.
    const std::wstring outils = dossier / L"mes outils";
    Installer_enregistreur(outils + L"\\voir.exe");
    Installer_enregistreur(dossier / L"mes.exe");
    Regler(L"Options", L"Visualiseur", outils + L"\\voir.exe");
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Commander(L"Visualiser", {L"a.txt"});
    Verifier_repos(L"Visualiser");
    EXPECT_EQ(Lignes(1), Textes{L"\"" + Capitales(outils) + L"\\VOIR.EXE\"  " + Source(L"a.txt")});
}

TEST_F(Visualisation, un_nom_hors_de_la_page_de_codes_passe_sous_son_nom_court) {
    Creer_source(L"θάλασσα.txt", 10);
    Lancer_dans_les_dossiers();
    Commander(L"Visualiser", {L"θάλασσα.txt"});
    Verifier_repos(L"Visualiser");
    wchar_t court[1024] = L"";
    GetShortPathNameW(Source(L"θάλασσα.txt").c_str(), court, 1024);
    EXPECT_EQ(Lignes(1), Textes{std::wstring(L"PELMIRA.EXE ovl ") + court});
}

TEST_F(Visualisation, un_visualiseur_absent_est_nomme_et_la_fenetre_reprend) {
    Regler(L"Options", L"Visualiseur", L"ABSENT.EXE");
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Commander(L"Visualiser", {L"a.txt"});
    Attendre_introuvable(L"ABSENT.EXE");
    Verifier_repos(L"Visualiser");
    EXPECT_EQ(Attendre_lances(0).size(), 0u);
}
