#include "fenetres/options.h"
#include "fenetres/obstacles.h"
#include "fenetres/systeme_hote.h"

using namespace Pilote;
using Textes = std::vector<std::wstring>;

namespace {

constexpr const wchar_t * cases[] = {L"Confirmation", L"Remplacement", L"Iconisé", L"Aide", L"Cachés"};

}  // namespace

TEST_F(Options, sans_fichier_de_reglages_les_valeurs_par_defaut_sont_montrees_et_ok_les_ecrit) {
    Lancer();
    ASSERT_TRUE(Effacer(Fichier_ini()));
    const auto fille = Rouvrir_options();
    EXPECT_EQ(fille.Titre(), L"Options");
    EXPECT_EQ(fille.Lire(L"Nom_éditeur"), L"NOTEPAD.EXE");
    EXPECT_EQ(fille.Lire(L"Nom_visualiseur"), L"PELMIRA.EXE");
    for (const wchar_t * nom : cases)
        EXPECT_EQ(fille.Est_coche(nom), nom == std::wstring(L"Remplacement")) << Utf8(nom);
    EXPECT_EQ(Depart(fille), L"Racine");
    EXPECT_EQ(fille.Lire(L"Répert_choisi"), L"");
    EXPECT_EQ(Couleur(fille), 0);
    EXPECT_FALSE(Existe(Fichier_ini()));
    Accepter(fille);
    EXPECT_EQ(Contenu_ini(), Section_options({{L"Editeur", L"NOTEPAD.EXE"},
                                              {L"Visualiseur", L"PELMIRA.EXE"},
                                              {L"Iconisé", L"Non"},
                                              {L"Aide en ligne", L"Non"},
                                              {L"Confirme", L"Non"},
                                              {L"Remplace", L"Oui"},
                                              {L"Couleur", L"0"},
                                              {L"Répertoire", L"Racine"}}));
}

TEST_F(Options, chaque_ouverture_montre_ce_que_le_fichier_contient) {
    struct Cas {
        const wchar_t *repertoire, *depart, *chemin;
        const wchar_t *oui_non, *couleur;
        bool           coche;
        int            rang;
    };
    const Cas cas[] = {
        {L"courant", L"Courant", L"", L"oui", L"5", true, 5},
        {L"D:\\DATA", L"Choisi", L"D:\\DATA", L"O", L"7", false, 7},
        {L"RACINE", L"Racine", L"", L"Ouais", L"8", false, 0},
        {L"COURANT", L"Courant", L"", L"OUI, merci", L"12", true, 1},
        {L"c:\\été à la mer", L"Choisi", L"c:\\été à la mer", L"Non", L"x", false, 0},
        {L"racine", L"Racine", L"", L"ouI", L"9", true, 0},
    };
    Lancer_dans_les_dossiers();
    for (const Cas & c : cas) {
        SCOPED_TRACE(Utf8(c.repertoire));
        Ecrire_cle(L"Répertoire", c.repertoire);
        for (const wchar_t * cle : {L"Confirme", L"Remplace", L"Iconisé", L"Aide en ligne"})
            Ecrire_cle(cle, c.oui_non);
        Ecrire_cle(L"Couleur", c.couleur);
        Ecrire_cle(L"Editeur", L"  Éd 2.exe  ");
        Ecrire_cle(L"Visualiseur", std::wstring(L"c:\\outils\\") + c.depart);
        const std::string avant = Contenu_ini();
        const auto        fille = Rouvrir_options();
        EXPECT_EQ(Utf8(Depart(fille)), Utf8(c.depart));
        EXPECT_EQ(Utf8(fille.Lire(L"Répert_choisi")), Utf8(c.chemin));
        for (const wchar_t * nom : {L"Confirmation", L"Remplacement", L"Iconisé", L"Aide"})
            EXPECT_EQ(fille.Est_coche(nom), c.coche) << Utf8(nom);
        EXPECT_EQ(Couleur(fille), c.rang);
        EXPECT_EQ(Utf8(fille.Lire(L"Nom_éditeur")), "Éd 2.exe");
        EXPECT_EQ(fille.Lire(L"Nom_visualiseur"), std::wstring(L"c:\\outils\\") + c.depart);
        Renoncer(fille);
        EXPECT_EQ(Contenu_ini(), avant);
    }
}

TEST_F(Options, ok_ecrit_chaque_cle_et_ne_perd_rien_de_ce_qu_un_autre_a_ajoute_entre_temps) {
    Regler(L"Sélections", L"Textes", L"*.txt; *.doc");
    const auto fille = Ouvrir_options();
    fille.Remplacer(L"Nom_éditeur", L"  Éd 2.exe /x ");
    fille.Remplacer(L"Nom_visualiseur", L"d:\\vue.exe");
    for (const wchar_t * nom : {L"Confirmation", L"Iconisé", L"Aide"}) Cocher(fille, nom, true);
    fille.Cliquer(L"Remplacement");
    Cocher(fille, L"Choisi", true);
    fille.Remplacer(L"Répert_choisi", L"D:\\Mes données");
    fille.Cliquer(L"Choix_couleur");
    ATTENDRE(fille.Nom_du_focus() == L"Choix_couleur");
    for (int pas = 0; pas < 4; ++pas) Frapper(VK_RIGHT);
    ATTENDRE(Couleur(fille) >= 4);
    while (Couleur(fille) > 4) {
        Frapper(VK_LEFT);
        fille.Reposer();
    }
    Ecrire_cle(L"Étrangère", L"à garder");
    Ecrire_cle(L"&Lettre", L"c:\\lettre.txt", L"Boutons");
    Accepter(fille);
    const std::string attendu = Section_options({{L"Iconisé", L"Oui"},
                                                 {L"Répertoire", L"D:\\Mes données"},
                                                 {L"Étrangère", L"à garder"},
                                                 {L"Editeur", L"Éd 2.exe /x"},
                                                 {L"Visualiseur", L"d:\\vue.exe"},
                                                 {L"Aide en ligne", L"Oui"},
                                                 {L"Confirme", L"Oui"},
                                                 {L"Remplace", L"Non"},
                                                 {L"Couleur", L"4"}});
    EXPECT_EQ(Contenu_ini(),
              attendu + "[S\xE9lections]\r\nTextes=*.txt; *.doc\r\n[Boutons]\r\n&Lettre=c:\\lettre.txt\r\n");
    // What was written is what the next opening shows.
    const auto encore = Rouvrir_options();
    EXPECT_EQ(Utf8(encore.Lire(L"Nom_éditeur")), "Éd 2.exe /x");
    EXPECT_EQ(Depart(encore), L"Choisi");
    EXPECT_EQ(Couleur(encore), 4);
    EXPECT_FALSE(encore.Est_coche(L"Remplacement"));
}

TEST_F(Options, renoncer_par_le_bouton_par_echap_ou_par_la_croix_n_ecrit_et_ne_change_rien) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    const std::string avant = Contenu_ini();
    for (const int maniere : {0, 1, 2}) {
        const auto fille = Rouvrir_options();
        EXPECT_EQ(fille.Lire(L"Nom_éditeur"), L"NOTEPAD.EXE");
        EXPECT_FALSE(fille.Est_coche(L"Confirmation"));
        EXPECT_EQ(Couleur(fille), 0);
        fille.Remplacer(L"Nom_éditeur", L"autre.exe");
        fille.Remplacer(L"Nom_visualiseur", L"autre.exe");
        Cocher(fille, L"Confirmation", true);
        fille.Cliquer(L"Choix_couleur");
        Frapper(VK_END);
        if (maniere == 0) fille.Cliquer(L"Annule");
        if (maniere == 1) Frapper(VK_ESCAPE);
        if (maniere == 2) fille.Fermer_par_la_croix();
        fille.Attendre_fermee();
        EXPECT_EQ(Contenu_ini(), avant);
    }
    Verifier_programmes(L"NOTEPAD.EXE", L"PELMIRA.EXE");
}

TEST_F(Options, choisi_sans_chemin_ecrit_courant_et_un_programme_blanc_redevient_celui_par_defaut) {
    struct Cas {
        std::wstring champ, repertoire;
    };
    Lancer_dans_les_dossiers();
    for (const Cas & cas : {Cas{L"", L""}, Cas{L"   ", L"  "}, Cas{std::wstring(12, L' ') + L"x", L""}}) {
        Ecrire_cle(L"Editeur", L"autre.exe");
        Ecrire_cle(L"Visualiseur", L"autre.exe");
        Ecrire_cle(L"Répertoire", L"Racine");
        const auto fille = Rouvrir_options();
        for (const wchar_t * champ : {L"Nom_éditeur", L"Nom_visualiseur"}) {
            fille.Vider(champ);
            Taper(cas.champ);
        }
        fille.Cliquer(L"Choisi");
        // The field waits for the path.
        ATTENDRE(fille.Nom_du_focus() == L"Répert_choisi");
        Taper(cas.repertoire);
        Frapper(VK_RETURN);
        fille.Attendre_fermee();
        EXPECT_EQ(Cle(L"Editeur"), L"NOTEPAD.EXE");
        EXPECT_EQ(Cle(L"Visualiseur"), L"PELMIRA.EXE");
        EXPECT_EQ(Cle(L"Répertoire"), L"Courant");
    }
    // A path that is there already keeps the focus where it is.
    Ecrire_cle(L"Répertoire", L"D:\\DATA");
    const auto fille = Rouvrir_options();
    fille.Cliquer(L"Racine");
    fille.Cliquer(L"Choisi");
    ATTENDRE(fille.Nom_du_focus() == L"Choisi");
    // What is typed counts for nothing while another choice is made.
    fille.Cliquer(L"Courant");
    Accepter(fille);
    EXPECT_EQ(Cle(L"Répertoire"), L"Courant");
}

TEST_F(Options, ce_qui_est_enregistre_est_aussitot_en_vigueur) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Creer_destination(L"b.txt", 20);
    auto fille = Ouvrir_options();
    fille.Remplacer(L"Nom_éditeur", L"éd.exe");
    fille.Remplacer(L"Nom_visualiseur", L"vue.exe");
    Cocher(fille, L"Confirmation", true);
    Accepter(fille);
    Choisir({L"a.txt"});
    Cliquer(L"Copier");
    Attendre_confirmation(L"COPIER", L"a.txt", destination, oui_non, IDNO);
    Attendre_fin_commande();
    fille = Rouvrir_options();
    Cocher(fille, L"Confirmation", false);
    Cocher(fille, L"Remplacement", false);
    Accepter(fille);
    Choisir({L"b.txt"});
    Cliquer(L"Copier");
    Attendre_fin_commande();
    EXPECT_EQ(Taille_fichier(Destination(L"b.txt")), 10u);
    Verifier_programmes(L"ÉD.EXE", L"VUE.EXE");
}

TEST_F(Options, l_aide_par_fichier_choisie_pendant_l_aide_contextuelle_remplace_celle_ci) {
    Lancer_dans_les_dossiers();
    const LONG normale = Hauteur_principale();
    Activer_aide();
    const auto fille = Rouvrir_options();
    Cocher(fille, L"Aide", true);
    Accepter(fille);
    // What the system tells the window that comes to lie under a pointer at rest.
    PostMessageW(Controle(L"Copier"), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    Reposer(Principale());
    Attendre_rappel_aide();
    Cliquer(L"Aide");
    Attendre_boite(gestionnaire, L"Le fichier d'aide KORVANE.HLP est introuvable.",
                   MB_OK | MB_ICONINFORMATION, IDOK);
    ATTENDRE(Hauteur_principale() == normale);
    EXPECT_EQ(Lire(L"Fenêtre"), L"");
    // And back.
    const auto encore = Rouvrir_options();
    Cocher(encore, L"Aide", false);
    Accepter(encore);
    Activer_aide();
    EXPECT_TRUE(Boite_absente());
}

TEST_F(Options, des_reglages_proteges_sont_signales_et_la_fenetre_reste_avec_la_saisie) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    const auto fille = Ouvrir_options();
    Attributs(Fichier_ini(), FILE_ATTRIBUTE_READONLY);
    const std::string avant = Contenu_ini();
    fille.Remplacer(L"Nom_éditeur", L"ed.exe");
    Cocher(fille, L"Confirmation", true);
    Cocher(fille, L"Aide", true);
    fille.Cliquer(L"OK");
    Attendre_protege(L"KORVANE.INI");
    EXPECT_TRUE(fille.Ouverte());
    EXPECT_EQ(fille.Lire(L"Nom_éditeur"), L"ed.exe");
    EXPECT_TRUE(fille.Est_coche(L"Confirmation"));
    EXPECT_EQ(Contenu_ini(), avant);
    Renoncer(fille);
    Verifier_programmes(L"NOTEPAD.EXE", L"PELMIRA.EXE");
    const auto encore = Rouvrir_options();
    EXPECT_FALSE(encore.Est_coche(L"Confirmation"));
    encore.Remplacer(L"Nom_éditeur", L"ed.exe");
    Frapper(VK_RETURN);
    Attendre_protege(L"KORVANE.INI");
    Attributs(Fichier_ini(), FILE_ATTRIBUTE_ARCHIVE);
    Accepter(encore);
    EXPECT_EQ(Cle(L"Editeur"), L"ed.exe");
    Verifier_programmes(L"ED.EXE", L"PELMIRA.EXE");
}

TEST_F(Options, un_texte_que_le_fichier_ne_peut_contenir_est_refuse_avant_toute_ecriture) {
    Lancer_dans_les_dossiers();
    const std::string avant = Contenu_ini();
    for (const wchar_t * champ : {L"Nom_éditeur", L"Nom_visualiseur", L"Répert_choisi"}) {
        SCOPED_TRACE(Utf8(champ));
        const auto fille = Rouvrir_options();
        fille.Cliquer(L"Confirmation");
        fille.Cliquer(L"Choisi");
        fille.Remplacer(champ, L"d:\\ł\u4e2d");
        fille.Cliquer(L"OK");
        Attendre_avertissement(L"Nom incorrect.");
        EXPECT_TRUE(fille.Ouverte());
        ATTENDRE(fille.Nom_du_focus() == champ);
        EXPECT_EQ(fille.Lire(champ), L"d:\\ł\u4e2d");
        EXPECT_EQ(Contenu_ini(), avant);
        // The text is selected: the next one takes its place.
        Taper(L"d:\\l");
        ATTENDRE(fille.Lire(champ) == L"d:\\l");
        Renoncer(fille);
    }
    // A path that is not the choice is not written.
    const auto fille = Rouvrir_options();
    fille.Remplacer(L"Répert_choisi", L"\u4e2d");
    fille.Cliquer(L"Courant");
    Accepter(fille);
    EXPECT_EQ(Cle(L"Répertoire"), L"Courant");
}

// Defaults shown in the place of what cannot be read would be saved by OK.
TEST_F(Options, des_reglages_verrouilles_par_un_autre_programme_ne_sont_ni_montres_ni_changes) {
    Regler(L"Options", L"Confirme", L"Oui");
    Regler(L"Options", L"Editeur", L"ed.exe");
    Creer_source(L"a.txt", 10);
    const auto        fille = Ouvrir_options();
    const std::string avant = Contenu_ini();
    fille.Remplacer(L"Nom_visualiseur", L"vue.exe");
    {
        const Verrou verrou(Fichier_ini());
        fille.Cliquer(L"OK");
        Attendre_protege(L"KORVANE.INI");
        EXPECT_EQ(fille.Lire(L"Nom_visualiseur"), L"vue.exe");
        Renoncer(fille);
        Cliquer(L"Options");
        Attendre_avertissement(L"Disquette protégée en écriture\rou fichier verrouillé.");
        EXPECT_FALSE(fille.Ouverte());
    }
    EXPECT_EQ(Contenu_ini(), avant);
    // What is in force is what it was.
    Choisir({L"a.txt"});
    Cliquer(L"Copier");
    Attendre_confirmation(L"COPIER", L"a.txt", destination, oui_non, IDNO);
    Attendre_fin_commande();
    EXPECT_EQ(Rouvrir_options().Lire(L"Nom_éditeur"), L"ed.exe");
}

TEST_F(Options, des_reglages_qui_ne_peuvent_etre_crees_sont_signales) {
    Lancer();
    ASSERT_TRUE(Effacer(Fichier_ini()));
    ASSERT_TRUE(Sur_hote(dossier / L"programme", L"chmod 555 ."));
    const auto fille = Rouvrir_options();
    Cocher(fille, L"Confirmation", true);
    fille.Cliquer(L"OK");
    Attendre_protege(L"KORVANE.INI");
    EXPECT_TRUE(fille.Ouverte() && fille.Est_coche(L"Confirmation"));
    EXPECT_FALSE(Existe(Fichier_ini()));
    ASSERT_TRUE(Sur_hote(dossier / L"programme", L"chmod 755 ."));
    Accepter(fille);
    EXPECT_EQ(Cle(L"Confirme"), L"Oui");
}
