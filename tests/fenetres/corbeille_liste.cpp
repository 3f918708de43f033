#include "fenetres/corbeille.h"
#include "fenetres/systeme_hote.h"

using namespace Pilote;
using Textes = std::vector<std::wstring>;

TEST_F(Corbeille,
       la_fenetre_s_ouvre_a_sa_place_et_montre_les_fichiers_du_plus_ancien_au_plus_recent_et_les_limites) {
    Mettre(Source(L"z dernier lundi.txt"), 10, 1, 45000, 1);
    Mettre(Destination(L"été.doc"), 20, 2, 45001, 0);
    Mettre(Source(L"sous\\a.txt"), 30, 3, 45001, 999);
    const auto fille = Ouvrir_corbeille();
    Verifier_place(fille, 1500, 440);
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"),
              (Textes{Source(L"z dernier lundi.txt"), Destination(L"été.doc"), Source(L"sous\\a.txt")}));
    EXPECT_EQ(fille.Choisies(L"Fichier_effacé"), Textes{});
    EXPECT_EQ(fille.Lire(L"Taille"), L"9999");
    EXPECT_EQ(fille.Lire(L"Temps"), L"");
    EXPECT_FALSE(Sablier());
    EXPECT_FALSE(Active(Principale()));
    Terminer(fille);
    EXPECT_EQ(Lignes_index(), Lignes());
    ATTENDRE(Nom_du_focus() == L"Corbeille");
    Verifier_principale_utilisable();
}

TEST_F(Corbeille, deux_fichiers_du_meme_nom_et_du_meme_repertoire_sont_montres_tous_les_deux) {
    Mettre(Source(L"a.txt"), 10, 1, 45000, 1);
    Mettre(Source(L"a.txt"), 20, 2, 45000, 2);
    const auto fille = Ouvrir_corbeille();
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), (Textes{Source(L"a.txt"), Source(L"a.txt")}));
    fille.Choisir(L"Fichier_effacé", {1});
    Recuperer(fille, 1);
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), Textes{Source(L"a.txt")});
    Verifier_recupere(Source(L"a.txt"), 20, 2);
    EXPECT_TRUE(En_corbeille(source, 45000, 1));
}

TEST_F(Corbeille, une_corbeille_non_utilisee_s_ouvre_vide_et_sans_limite) {
    Ne_pas_regler(L"Corbeille", L"Taille");
    Mettre(Source(L"a.txt"), 10, 1, 45000, 1);
    const auto fille = Ouvrir_corbeille();
    for (const wchar_t * vide : {L"Taille", L"Temps"}) EXPECT_EQ(fille.Lire(vide), L"") << Utf8(vide);
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), Textes{});
    Terminer(fille);
    EXPECT_EQ(Lignes_index(), Lignes());
    EXPECT_TRUE(En_corbeille(source, 45000, 1));
}

TEST_F(Corbeille, les_lignes_etrangeres_ne_sont_pas_montrees_et_restent_dans_l_index) {
    Ajouter_ligne("; écrit par un autre programme");
    Mettre(Source(L"a.txt"), 10, 1, 45000, 1);
    Ajouter_ligne("crb45000.00 trop court");
    Ajouter_ligne("");
    Mettre(Source(L"b.txt"), 20, 2, 45001, 2);
    Ajouter_ligne("crb45000.003 0000000x c.txt C:\\");
    const auto fille = Ouvrir_corbeille();
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), (Textes{Source(L"a.txt"), Source(L"b.txt")}));
    fille.Choisir(L"Fichier_effacé", {0});
    Recuperer(fille, 1);
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), Textes{Source(L"b.txt")});
    Verifier_recupere(Source(L"a.txt"), 10, 1);
    Terminer(fille);
    auto attendues = Lignes();
    attendues.erase(attendues.begin() + 1);
    EXPECT_EQ(Lignes_index(), attendues);
    EXPECT_TRUE(Attributs(index) & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(Corbeille, la_fenetre_se_parcourt_au_clavier_et_chaque_bouton_a_sa_lettre) {
    Mettre(Source(L"a.txt"), 10, 1, 45000, 1);
    const auto fille = Ouvrir_corbeille();
    fille.Choisir(L"Fichier_effacé", {0});
    Verifier_clavier_et_disposition(fille, {L"Fichier_effacé", L"Récupérer", L"Taille", L"Temps", L"Fin"});
    for (const wchar_t * bouton : {L"Récupérer", L"Fin"})
        EXPECT_NE(fille.Lire(bouton).find(L'&'), std::wstring::npos) << Utf8(bouton);
}

TEST_F(Corbeille, la_lettre_du_bouton_l_ouvre_et_trois_gestes_la_ferment) {
    const std::function<void(const Pilote::Fille &)> gestes[] = {
        [](const Pilote::Fille & fille) { fille.Cliquer(L"Fin"); },
        [](const Pilote::Fille &) { Frapper(VK_ESCAPE); },
        [](const Pilote::Fille & fille) { fille.Fermer_par_la_croix(); },
    };
    Ecrire_index();
    Lancer_dans_les_dossiers();
    for (const auto & geste : gestes) {
        Alt(L'b');
        const auto fille = Fenetre_corbeille();
        fille.Attendre_ouverte();
        geste(fille);
        fille.Attendre_fermee();
        ATTENDRE(Active(Principale()) && GetForegroundWindow() == Principale());
        EXPECT_EQ(Cle(L"Taille"), L"9999");
    }
    Verifier_principale_utilisable();
}

TEST_F(Corbeille, l_aide_dit_l_usage_de_chaque_element_et_se_rappelle_a_la_fermeture) {
    Mettre(Source(L"a.txt"), 10, 1, 45000, 1);
    Ecrire_index();
    Lancer_dans_les_dossiers();
    Activer_aide();
    const auto fille = Rouvrir_corbeille();
    fille.Choisir(L"Fichier_effacé", {0});
    Verifier_aide(fille, {});
    const std::pair<const wchar_t *, const wchar_t *> extraits[] = {
        {L"Taille", L"1 à 9999, exprimée en Kilo-octets de 1024 caractères"},
        {L"Temps", L"nombre de jours calendaires (1 à 999)"},
        {L"Fichier_effacé", L"Un double clic sur un fichier équivaut à l'appui du bouton 'Récupérer'."},
    };
    for (const auto & [controle, extrait] : extraits) {
        Pointer(fille.Controle(controle));
        EXPECT_TRUE(Attendre([&] { return Lire(L"Fenêtre").find(extrait) != std::wstring::npos; }))
            << Utf8(Lire(L"Fenêtre"));
    }
    Frapper(VK_ESCAPE);
    fille.Attendre_fermee();
    Attendre_rappel_aide();
}

TEST_F(Corbeille, f1_dans_la_fenetre_met_l_aide_et_l_arrete) {
    const auto fille   = Ouvrir_corbeille();
    const LONG normale = Hauteur_principale();
    Activer_aide();
    Frapper(VK_F1);
    ATTENDRE(Hauteur_principale() == normale && Lire(L"Fenêtre").empty());
    Terminer(fille);
}

TEST_F(Corbeille, cinq_mille_fichiers_sont_tous_montres_et_une_moitie_se_recupere_d_un_coup) {
    ASSERT_TRUE(Sur_hote(source,
                         L"for r in 0 1 2 3 4 5 6 7 8 9; do mkdir $r; (cd $r && seq -f crb45000.%03g 0 499 | "
                         L"xargs touch); done"));
    const auto nom = [this](int i) {
        return Source(std::to_wstring(i / 500)) + L"\\f" + std::to_wstring(i) + L".txt";
    };
    for (int i = 0; i < 5000; ++i) {
        const std::string ordre = std::to_string(1000 + i % 500).substr(1);
        Ajouter_ligne("crb45000." + ordre + " 00000000 f" + std::to_string(i) + ".txt " + Utf8(source) +
                      "\\" + std::to_string(i / 500) + "\\");
    }
    const auto fille = Ouvrir_corbeille();
    const HWND liste = fille.Controle(L"Fichier_effacé");
    EXPECT_EQ(Nombre_entrees(liste), 5000);
    EXPECT_EQ(Entree(liste, 4999), nom(4999));
    Pilote::Cliquer(Point_entree(liste, 2500));
    Frapper_avec(VK_SHIFT, VK_END);
    ATTENDRE(Nombre_selection(liste) == 2500);
    Recuperer(fille, 2500);
    EXPECT_EQ(Entree(liste, 2499), nom(2499));
    const auto toutes = Lignes();
    EXPECT_EQ(Lignes_index(), std::vector<std::string>(toutes.begin(), toutes.begin() + 2500));
    for (int rang = 5; rang < 10; ++rang) {
        const Textes revenus = Noms(Source(std::to_wstring(rang)));
        EXPECT_EQ(revenus.size(), 500u);
        EXPECT_EQ(revenus.front().front(), L'f');
    }
    EXPECT_FALSE(Existe(nom(2499)));
}

// The list is narrower than the path: the whole of it shows under the pointer, and is gone when the window comes back.
TEST_F(Corbeille, le_chemin_entier_d_une_entree_trop_longue_se_montre_sous_le_pointeur) {
    const std::wstring longue = Source(std::wstring(120, L'w') + L".txt");
    Mettre(longue, 10, 1, 45000, 1);
    Mettre(Source(L"a.txt"), 10, 1, 45000, 2);
    const auto fille = Ouvrir_corbeille();
    const HWND liste = fille.Controle(L"Fichier_effacé");
    Pointer(Point_entree(liste, 1));
    fille.Reposer();
    EXPECT_FALSE(fille.Se_voit(L"Tip"));
    Pointer(Point_entree(liste, 0));
    ATTENDRE(fille.Se_voit(L"Tip"));
    EXPECT_EQ(fille.Lire(L"Tip"), longue);
    const RECT tip = Place_client(fille.Controle(L"Tip"));
    RECT       client{};
    GetClientRect(fille.Fenetre(), &client);
    EXPECT_GE(tip.left, 0);
    EXPECT_LE(tip.right, client.right);
    Frapper(VK_ESCAPE);
    fille.Attendre_fermee();
    Ecarter_pointeur();
    const auto encore = Rouvrir_corbeille();
    EXPECT_FALSE(encore.Se_voit(L"Tip"));
    Terminer(encore);
}

TEST_F(Corbeille, avec_le_fichier_d_aide_f1_le_demande_et_la_fenetre_sert_encore) {
    Regler(L"Options", L"Aide en ligne", L"Oui");
    Mettre(Source(L"a.txt"), 10, 1, 45000, 1);
    const auto fille   = Ouvrir_corbeille();
    const LONG normale = Hauteur_principale();
    Frapper(VK_F1);
    Attendre_boite(gestionnaire, L"Le fichier d'aide KORVANE.HLP est introuvable.",
                   MB_OK | MB_ICONINFORMATION, IDOK);
    EXPECT_EQ(Hauteur_principale(), normale);
    EXPECT_TRUE(fille.Ouverte());
    EXPECT_TRUE(Active(fille.Fenetre()));
    EXPECT_FALSE(Active(Principale()));
    fille.Double_cliquer(L"Fichier_effacé", 0);
    Attendre_restants(fille, 0);
    Terminer(fille);
}

// At the lower right of the screen there is no room 1500 twips further.
TEST_F(Corbeille, pres_du_bord_de_l_ecran_la_fenetre_est_entiere_dans_la_zone_de_travail) {
    Ecrire_index();
    Lancer_dans_les_dossiers();
    MONITORINFO ecran{};
    ecran.cbSize = sizeof ecran;
    ASSERT_TRUE(GetMonitorInfoW(MonitorFromWindow(Principale(), MONITOR_DEFAULTTONEAREST), &ecran));
    const RECT zone = ecran.rcWork;
    for (const bool bas : {true, false}) {
        SCOPED_TRACE(bas);
        const RECT mere = Place_ecran(Principale());
        const int  x    = bas ? zone.right - 60 : zone.left - (mere.right - mere.left) + 60;
        const int  y    = bas ? zone.bottom - 60 : zone.top - 20;
        SetWindowPos(Principale(), nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        Reposer(Principale());
        Alt(L'b');
        const auto fille = Fenetre_corbeille();
        fille.Attendre_ouverte();
        const RECT place = Place_ecran(fille.Fenetre());
        EXPECT_GE(place.left, zone.left);
        EXPECT_GE(place.top, zone.top);
        EXPECT_LE(place.right, zone.right);
        EXPECT_LE(place.bottom, zone.bottom);
        Frapper(VK_ESCAPE);
        fille.Attendre_fermee();
    }
}
