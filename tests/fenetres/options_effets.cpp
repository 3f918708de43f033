#include "forms/aide_choix_options.h"

#include "fenetres/options.h"
#include "pilote/corbeille.h"

#include <algorithm>
#include <sstream>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// What the options window does at once, and how it is used.
class Options_effets : public Options {
protected:
    void Creer_caches() {
        for (const wchar_t * nom : {L"a.txt", L"caché.txt", L"z.txt"}) {
            Creer_source(nom, 100);
            Creer_destination(nom, 100);
        }
        Attributs(Source(L"caché.txt"), FILE_ATTRIBUTE_HIDDEN);
        Attributs(Destination(L"caché.txt"), FILE_ATTRIBUTE_HIDDEN);
    }
    void Verifier_listes(const Textes & attendues) {
        for (const wchar_t * liste : {L"Fichier_srce", L"Fichier_dest"})
            EXPECT_TRUE(Attendre([&] { return Entrees(liste) == attendues; })) << Utf8(liste);
    }
    const Textes visibles{L"a.txt", L"z.txt"};
    const Textes tous{L"a.txt", L"caché.txt", L"z.txt"};
};

TEST_F(Options_effets,
       les_fichiers_caches_se_montrent_au_clic_et_restent_montres_jusqu_au_prochain_demarrage) {
    Creer_caches();
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"z.txt"});
    auto fille = Rouvrir_options();
    EXPECT_FALSE(fille.Est_coche(L"Cachés"));
    Verifier_listes(visibles);
    fille.Cliquer(L"Cachés");
    Verifier_listes(tous);
    EXPECT_EQ(Choisies(), visibles);
    EXPECT_EQ(Lire(L"Ligne_message"), L"   2 fichiers sélectionnés, total = 200 octets.");
    Renoncer(fille);
    Verifier_listes(tous);
    // What leaves the list leaves the count.
    Choisir({L"a.txt", L"caché.txt"});
    fille = Rouvrir_options();
    EXPECT_TRUE(fille.Est_coche(L"Cachés"));
    fille.Cliquer(L"Cachés");
    Verifier_listes(visibles);
    EXPECT_EQ(Choisies(), Textes{L"a.txt"});
    EXPECT_EQ(Lire(L"Ligne_message"), L"   1 fichier sélectionné, total = 100 octets.");
    fille.Cliquer(L"Cachés");
    Accepter(fille);
    Verifier_listes(tous);
    Fermer();
    Lancer_dans_les_dossiers();
    Verifier_listes(visibles);
    EXPECT_FALSE(Rouvrir_options().Est_coche(L"Cachés"));
}

TEST_F(Options_effets, un_fichier_cache_que_la_liste_montre_se_copie_et_s_efface_comme_un_autre) {
    Creer_source(L"caché.txt", 100);
    Creer_source(L"lecture.txt", 100);
    Attributs(Source(L"caché.txt"), FILE_ATTRIBUTE_HIDDEN);
    Attributs(Source(L"lecture.txt"), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY);
    const auto fille = Ouvrir_options();
    fille.Cliquer(L"Cachés");
    Accepter(fille);
    Choisir({L"caché.txt"});
    Cliquer(L"Copier");
    Attendre_fin_commande();
    EXPECT_EQ(Taille_fichier(Destination(L"caché.txt")), 100u);
    ATTENDRE(Entrees(L"Fichier_dest") == Textes{L"caché.txt"});
    const auto effacer = [this](const std::wstring & nom) {
        Choisir({nom});
        Cliquer(L"Effacer");
        Attendre_boite(L"Attention !  Corbeille absente",
                       L"Vous allez EFFACER le fichier '" + nom + L"' du répertoire\r" + source +
                           L"\rConfirmez-vous cette commande ?",
                       oui_non, IDYES);
    };
    effacer(L"caché.txt");
    Attendre_fin_commande();
    EXPECT_EQ(Noms(source), Textes{L"lecture.txt"});
    effacer(L"lecture.txt");
    Attendre_protege(L"LECTURE.TXT");
    Attendre_fin_commande();
    EXPECT_EQ(Noms(source), Textes{L"lecture.txt"});
    ATTENDRE(Entrees(L"Fichier_srce") == Textes{L"lecture.txt"});
}

TEST_F(Options_effets, la_barre_obeit_a_la_souris_aux_touches_et_aux_places_demandees) {
    const auto fille    = Ouvrir_options();
    const HWND barre    = fille.Controle(L"Choix_couleur");
    const RECT place    = Place_ecran(barre);
    const int  milieu   = (place.top + place.bottom) / 2;
    const auto attendre = [&](int couleur) {
        fille.Reposer();
        EXPECT_TRUE(Attendre([&] { return Couleur(fille) == couleur; }))
            << Couleur(fille) << " / " << couleur;
    };
    Pilote::Cliquer(POINT{place.right - 4, milieu});
    attendre(1);
    Pilote::Cliquer(POINT{place.right - 40, milieu});
    attendre(2);
    Pilote::Cliquer(POINT{place.left + 4, milieu});
    attendre(1);
    ATTENDRE(fille.Nom_du_focus() == L"Choix_couleur");
    const std::pair<WORD, int> touches[] = {{VK_RIGHT, 2}, {VK_DOWN, 3}, {VK_NEXT, 4},
                                            {VK_PRIOR, 3}, {VK_LEFT, 2}, {VK_END, 7},
                                            {VK_RIGHT, 7}, {VK_HOME, 0}, {VK_LEFT, 0}};
    for (const auto & [touche, couleur] : touches) {
        Frapper(touche);
        attendre(couleur);
    }
    Tourner_molette(barre, -2);
    attendre(2);
    Tourner_molette(barre, 1);
    attendre(1);
    for (const auto & [code, couleur] :
         {std::pair{SB_THUMBPOSITION, 5}, {SB_THUMBTRACK, 6}, {SB_THUMBPOSITION, 99}, {SB_THUMBTRACK, 0}}) {
        SendMessageW(fille.Fenetre(), WM_HSCROLL, static_cast<WPARAM>(MAKELONG(code, couleur)),
                     reinterpret_cast<LPARAM>(barre));
        attendre((std::min)(couleur, 7));
    }
    const int fleche = place.bottom - place.top;
    Glisser(POINT{place.left + fleche + 4, milieu}, POINT{place.right - fleche - 2, milieu}, fille.Fenetre());
    attendre(7);
    Accepter(fille);
    EXPECT_EQ(Cle(L"Couleur"), L"7");
}

TEST_F(Options_effets, le_clavier_parcourt_la_fenetre_dans_l_ordre_et_l_exemple_ne_garde_pas_le_focus) {
    const auto fille = Ouvrir_options();
    Verifier_place(fille, 1450 + 3, 1450 + 3);
    Verifier_clavier_et_disposition(fille, {L"Nom_éditeur", L"Nom_visualiseur", L"Confirmation",
                                            L"Remplacement", L"Iconisé", L"Aide", L"Cachés", L"Choisi",
                                            L"Répert_choisi", L"Choix_couleur", L"Bureau", L"Couleurs",
                                            L"DateHeure", L"Imprimantes", L"OK", L"Annule"});
    Pilote::Cliquer(fille.Controle(L"Exemple"));
    ATTENDRE(fille.Nom_du_focus() == L"Choix_couleur");
    Taper(L"x");
    EXPECT_EQ(fille.Lire(L"Exemple"), L"Exemple");
    // Options by their letters and by the arrows.
    Alt(L'u');
    ATTENDRE(Depart(fille) == L"Courant" && fille.Nom_du_focus() == L"Courant");
    Frapper(VK_UP);
    ATTENDRE(Depart(fille) == L"Racine");
    Alt(L'h');
    ATTENDRE(Depart(fille) == L"Choisi");
    for (const auto & [lettre, nom] : {std::pair{L'f', L"Confirmation"},
                                       {L'r', L"Remplacement"},
                                       {L'i', L"Iconisé"},
                                       {L'e', L"Aide"},
                                       {L'l', L"Cachés"}}) {
        const bool avant = fille.Est_coche(nom);
        Alt(lettre);
        EXPECT_TRUE(Attendre([&] { return fille.Est_coche(nom) != avant; })) << Utf8(nom);
    }
    Alt(L'a');
    fille.Attendre_fermee();
}

TEST_F(Options_effets, chaque_element_a_son_texte_d_aide_et_le_titre_du_repertoire_explique_les_trois_choix) {
    Lancer_dans_les_dossiers();
    Activer_aide();
    const auto fille = Rouvrir_options();
    Verifier_aide(fille, {{L"", aide_fenetre_options},
                          {L"Nom_éditeur", aide_options_éditeur},
                          {L"Cachés", aide_options_cachés},
                          {L"Choisi", aide_options_choisi},
                          {L"Choix_couleur", aide_options_choix_couleur},
                          {L"Imprimantes", aide_options_imprimantes},
                          {L"OK", aide_options_ok}});
    // A click explains again, without a move of the pointer.
    const POINT titre = Centre(fille.Controle(L"Label_répertoire"));
    Pointer(titre);
    ATTENDRE(Lire(L"Fenêtre") == aide_options_répertoire);
    Frapper(VK_F1);
    ATTENDRE(Lire(L"Fenêtre").empty());
    Frapper(VK_F1);
    ATTENDRE(Lire(L"Fenêtre").starts_with(L"  Vous avez activé"));
    Pilote::Cliquer(titre);
    ATTENDRE(Lire(L"Fenêtre") == aide_options_répertoire);
    const std::wstring quatre_lignes = aide_options_répertoire;
    EXPECT_EQ(std::count(quatre_lignes.begin(), quatre_lignes.end(), L'\n'), 3);
    Renoncer(fille);
    Attendre_rappel_aide();
}

// Under the name of the control panel, beside the program and in the SOURCE directory.
class Options_applets : public Options {
protected:
    const std::wstring journal = dossier / L"journal.txt";

    Options_applets() { SetEnvironmentVariableW(L"KORVANE_ENREGISTREMENT", journal.c_str()); }
    ~Options_applets() override { SetEnvironmentVariableW(L"KORVANE_ENREGISTREMENT", nullptr); }

    void Installer_sous(const std::wstring & chemin) const {
        Creer_dossier(chemin.substr(0, chemin.rfind(L'\\')));
        ASSERT_TRUE(CopyFileW((Repertoire_essais() + L"\\enregistreur.exe").c_str(), chemin.c_str(), TRUE))
            << Utf8(chemin);
    }
    // Path, command line, current directory, state of each start.
    std::vector<Textes> Demarrages() const {
        std::vector<Textes> lignes;
        std::istringstream  contenu(Existe(journal) ? Lire_fichier(journal) : std::string());
        for (std::string ligne; std::getline(contenu, ligne);) {
            lignes.emplace_back();
            std::istringstream champs(ligne);
            for (std::string champ; std::getline(champs, champ, '\t');) lignes.back().push_back(Large(champ));
        }
        return lignes;
    }
};

TEST_F(Options_applets,
       les_quatre_boutons_ouvrent_le_panneau_de_configuration_et_jamais_un_fichier_de_source) {
    Installer_sous(Source(L"CONTROL.EXE"));
    const auto fille = Ouvrir_options();
    // That of the system, which leaves no trace in the account.
    fille.Cliquer(L"Bureau");
    fille.Reposer();
    Installer_sous(dossier / L"programme\\CONTROL.EXE");
    std::size_t nombre = 0;
    for (const auto & [bouton, applet] : {std::pair{L"Bureau", L"Desktop"},
                                          {L"Couleurs", L"Color"},
                                          {L"DateHeure", L"Date/Time"},
                                          {L"Imprimantes", L"Printers"}}) {
        fille.Cliquer(bouton);
        ++nombre;
        ASSERT_TRUE(Attendre([&] { return Demarrages().size() == nombre; }, 10000)) << Utf8(bouton);
        const Textes ligne = Demarrages().back();
        ASSERT_EQ(ligne.size(), 4u);
        EXPECT_EQ(Capitales(ligne[0]), Capitales(dossier / L"programme\\CONTROL.EXE"));
        EXPECT_EQ(ligne[1], std::wstring(L"Control.exe ") + applet);
        // A directory where nobody puts programs: that of SOURCE is not looked through.
        EXPECT_EQ(Capitales(ligne[2]), L"C:\\WINDOWS\\SYSTEM32");
        EXPECT_TRUE(fille.Ouverte());
    }
    EXPECT_TRUE(Boite_absente());
    Renoncer(fille);
}

TEST_F(Options_applets, un_panneau_de_configuration_qui_n_est_pas_un_programme_est_signale) {
    Creer_fichier(dossier / L"programme\\CONTROL.EXE", "rien d'un programme");
    const auto fille = Ouvrir_options();
    fille.Cliquer(L"DateHeure");
    Attendre_avertissement(
        L"Fichier non exécutable :CONTROL.EXE\rseuls les programmes avec les extensions COM, EXE, BAT ou PIF "
        L"sont exécutables.");
    EXPECT_TRUE(fille.Ouverte());
    Renoncer(fille);
    Verifier_principale_utilisable();
}

// The bin's own files show too: their names are its codes.
class Options_corbeille : public Options {
protected:
    Options_corbeille() { Corbeille::Vider(); }
    ~Options_corbeille() override {
        Fermer();
        Corbeille::Vider();
    }
    void Effacer_un(const std::wstring & nom) {
        Choisir({nom});
        Cliquer(L"Effacer");
        Attendre_boite(gestionnaire,
                       L"Vous allez EFFACER le fichier '" + nom + L"' du répertoire\r" + source +
                           L"\rConfirmez-vous cette commande ?",
                       oui_non, IDYES);
    }
};

TEST_F(Options_corbeille, un_fichier_cache_se_depose_et_un_fichier_deja_depose_reste_protege) {
    Regler(L"Corbeille", L"Taille", L"9999");
    Creer_source(L"caché.txt", 100);
    Attributs(Source(L"caché.txt"), FILE_ATTRIBUTE_HIDDEN);
    const auto fille = Ouvrir_options();
    fille.Cliquer(L"Cachés");
    Accepter(fille);
    Effacer_un(L"caché.txt");
    Attendre_fin_commande();
    const Textes restants = Noms(source);
    ASSERT_EQ(restants.size(), 1u);
    EXPECT_TRUE(restants[0].starts_with(L"crb"));
    ATTENDRE(Entrees(L"Fichier_srce") == restants);
    Effacer_un(restants[0]);
    Attendre_protege(Capitales(restants[0]));
    Attendre_fin_commande();
    EXPECT_EQ(Noms(source), restants);
    EXPECT_EQ(Corbeille::Lignes().size(), 1u);
}

// The index knows them by that name and in that place alone.
TEST_F(Options_corbeille, un_fichier_depose_ne_change_ni_de_nom_ni_de_place_et_se_recupere) {
    Regler(L"Corbeille", L"Taille", L"9999");
    Creer_source(L"a.txt", 100);
    Creer_source(L"crb35000.007", 50);  // a file of the user's, under a name that looks like one of the bin's
    const auto fille = Ouvrir_options();
    fille.Cliquer(L"Cachés");
    Accepter(fille);
    Effacer_un(L"a.txt");
    Attendre_fin_commande();
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 1u);
    ATTENDRE(Entrees(L"Fichier_srce").size() == 2u);
    for (const DWORD attributs : {FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY, FILE_ATTRIBUTE_ARCHIVE}) {
        Attributs(lignes[0].Chemin_code(), attributs);
        for (const wchar_t * commande : {L"Renommer", L"Déplacer"}) {
            Choisir({lignes[0].code});
            Cliquer(commande);
            Attendre_avertissement(
                L"Un ou plusieurs fichiers cachés et protégés contre l'effacement existent dans ce "
                L"répertoire et "
                L"appartiennent peut-être à la corbeille :\rrécupérez ceux-ci et relancez l'opération.");
            Attendre_fin_commande();
            EXPECT_TRUE(Existe(lignes[0].Chemin_code())) << Utf8(commande);
        }
    }
    Choisir({L"crb35000.007"});
    Cliquer(L"Déplacer");
    Attendre_fin_commande();
    EXPECT_TRUE(Existe(Destination(L"crb35000.007")) && Boite_absente());
    EXPECT_EQ(Corbeille::Lignes().size(), 1u);
}
