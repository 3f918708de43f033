#include "fenetres/corbeille.h"

using namespace Pilote;
using Textes = std::vector<std::wstring>;

class Corbeille_recuperation : public Corbeille {
protected:
    void Mettre_trois() {
        Mettre(Source(L"un.txt"), 1000, 1, 45000, 1);
        Mettre(Source(L"deux.txt"), 200, 2, 45000, 2);
        Mettre(Source(L"trois.txt"), 30, 3, 45000, 3);
    }
    // Nothing of the bin has changed.
    void Verifier_trois_en_corbeille() {
        for (int tirage : {1, 2, 3}) EXPECT_TRUE(En_corbeille(source, 45000, tirage)) << tirage;
        EXPECT_EQ(Lignes_index(), Lignes());
    }
};

TEST_F(Corbeille_recuperation, le_bouton_remet_le_fichier_choisi_avec_sa_date_et_ses_attributs_et_tout_suit) {
    Mettre_trois();
    const std::wstring code = Source(L"crb45000.002");
    Attributs(code, FILE_ATTRIBUTE_NORMAL);
    Date(code, 0x01C0000000000000);
    Attributs(code, FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_READONLY |
                        FILE_ATTRIBUTE_HIDDEN);
    Regler(L"Corbeille", L"Total", L"77");  // it disagrees with the index
    const auto fille = Ouvrir_corbeille();
    fille.Choisir(L"Fichier_effacé", {1});
    Recuperer(fille, 2);
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), (Textes{Source(L"un.txt"), Source(L"trois.txt")}));
    Verifier_recupere(Source(L"deux.txt"), 200, 2, FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE);
    EXPECT_EQ(Date(Source(L"deux.txt")), 0x01C0000000000000u);
    EXPECT_FALSE(Existe(code));
    EXPECT_EQ(Lignes_index(), (std::vector<std::string>{Lignes()[0], Lignes()[2]}));
    EXPECT_TRUE(Attributs(index) & FILE_ATTRIBUTE_HIDDEN);
    EXPECT_FALSE(Existe(nouvel_index));
    EXPECT_EQ(Cle(L"Total"), L"1030");
}

// The main window shows the file while the bin's window is still open.
TEST_F(Corbeille_recuperation, un_double_clic_recupere_et_les_listes_de_la_fenetre_principale_le_montrent) {
    Creer_source(L"autre.txt", 5);
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{L"autre.txt"});
    fille.Double_cliquer(L"Fichier_effacé", 0);
    Attendre_restants(fille, 2);
    Verifier_recupere(Source(L"un.txt"), 1000, 1);
    ATTENDRE((Entrees(L"Fichier_srce") == Textes{L"autre.txt", L"un.txt"}));
    EXPECT_TRUE(fille.Ouverte());
    Terminer(fille);
    Choisir({L"un.txt"});
    EXPECT_EQ(Lire(L"Ligne_message"), L"   1 fichier sélectionné, total = 1\u00A0000 octets.");
}

TEST_F(Corbeille_recuperation, plusieurs_fichiers_choisis_reviennent_et_les_autres_restent) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    fille.Choisir(L"Fichier_effacé", {0, 2});
    Frapper(VK_RETURN);
    Attendre_restants(fille, 1);
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), Textes{Source(L"deux.txt")});
    Verifier_recupere(Source(L"un.txt"), 1000, 1);
    Verifier_recupere(Source(L"trois.txt"), 30, 3);
    EXPECT_TRUE(En_corbeille(source, 45000, 2));
    EXPECT_EQ(Lignes_index(), std::vector<std::string>{Lignes()[1]});
    EXPECT_EQ(Cle(L"Total"), L"200");
    fille.Choisir(L"Fichier_effacé", {0});
    Recuperer(fille, 0);
    EXPECT_EQ(Cle(L"Total"), L"0");
    EXPECT_TRUE(Lignes_index().empty());
    Terminer(fille);
}

TEST_F(Corbeille_recuperation, sans_choix_rien_ne_change) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    Pilote::Cliquer(fille.Controle(L"Récupérer"));
    fille.Reposer();
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé").size(), 3u);
    Verifier_trois_en_corbeille();
    Terminer(fille);
}

// Those before it have come back and left the list; it and those after it stay, and can be restored later.
TEST_F(Corbeille_recuperation,
       un_fichier_dont_le_nom_existe_de_nouveau_arrete_la_recuperation_et_le_rapport_le_dit) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    Creer_source(L"deux.txt", 7, 9);
    fille.Choisir(L"Fichier_effacé", {0, 1, 2});
    fille.Cliquer(L"Récupérer");
    Attendre_rapport(L"RECUPERER", 58);
    Attendre_restants(fille, 2);
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), (Textes{Source(L"deux.txt"), Source(L"trois.txt")}));
    Verifier_recupere(Source(L"un.txt"), 1000, 1);
    EXPECT_EQ(Lire_fichier(Source(L"deux.txt")), Contenu(7, 9));
    for (int tirage : {2, 3}) EXPECT_TRUE(En_corbeille(source, 45000, tirage)) << tirage;
    EXPECT_EQ(Lignes_index(), (std::vector<std::string>{Lignes()[1], Lignes()[2]}));
    EXPECT_EQ(Cle(L"Total"), L"230");
    Effacer(Source(L"deux.txt"));
    fille.Choisir(L"Fichier_effacé", {0, 1});
    Recuperer(fille, 0);
    Verifier_recupere(Source(L"deux.txt"), 200, 2);
    Verifier_recupere(Source(L"trois.txt"), 30, 3);
    Terminer(fille);
    Verifier_principale_utilisable();
}

TEST_F(Corbeille_recuperation, un_repertoire_disparu_est_signale_et_le_fichier_reste_dans_la_liste) {
    Mettre(dossier / L"parti\\a.txt", 10, 1, 45000, 1);
    Mettre(Source(L"b.txt"), 20, 2, 45000, 2);
    const auto fille = Ouvrir_corbeille();
    ASSERT_TRUE(Effacer(dossier / L"parti"));
    fille.Choisir(L"Fichier_effacé", {0});
    fille.Cliquer(L"Récupérer");
    Attendre_avertissement(L"Chemin d'accès introuvable\rou support absent.");
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), (Textes{dossier / L"parti\\a.txt", Source(L"b.txt")}));
    fille.Choisir(L"Fichier_effacé", {1});
    Recuperer(fille, 1);
    Verifier_recupere(Source(L"b.txt"), 20, 2);
    Terminer(fille);
}

TEST_F(Corbeille_recuperation,
       des_noms_accentues_a_blancs_tres_longs_et_des_repertoires_a_blancs_reviennent) {
    const Textes noms{L"œuf à la coque €.txt", L"deux  blancs de suite .x", std::wstring(230, L'l') + L".dat",
                      L"crb45000.777"};
    int          tirage = 0;
    for (const std::wstring & nom : noms) {
        Mettre(dossier / L"avec des blancs\\" + nom, 100, static_cast<std::uint32_t>(tirage + 1), 45000,
               tirage);
        ++tirage;
    }
    const auto fille = Ouvrir_corbeille();
    const HWND liste = fille.Controle(L"Fichier_effacé");
    Pilote::Cliquer(Point_entree(liste, 0));
    Frapper_avec(VK_CONTROL, 'A');
    ATTENDRE(Nombre_selection(liste) == 4);
    Recuperer(fille, 0);
    for (std::size_t i = 0; i < noms.size(); ++i)
        Verifier_recupere(dossier / L"avec des blancs\\" + noms[i], 100, static_cast<std::uint32_t>(i + 1));
}

// Its size takes more than the eight columns of the others.
TEST_F(Corbeille_recuperation,
       un_fichier_de_plus_de_cent_millions_d_octets_compte_pour_toute_sa_taille_et_revient) {
    const int jour = Aujourd_hui();
    Ne_pas_regler(L"Corbeille", L"Taille");
    Regler(L"Corbeille", L"Temps", L"999");
    Mettre(Source(L"petit.txt"), 10, 1, jour, 1);
    Mettre(Source(L"gros à blancs.dat"), 1'234'567'890, 0, jour, 2);
    Mettre(Source(L"moyen.dat"), 123'456'789, 0, jour, 3);
    const auto fille = Ouvrir_corbeille();
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"),
              (Textes{Source(L"petit.txt"), Source(L"gros à blancs.dat"), Source(L"moyen.dat")}));
    fille.Choisir(L"Fichier_effacé", {0});
    Recuperer(fille, 2);
    EXPECT_EQ(Cle(L"Total"), L"1358024679");
    EXPECT_EQ(Lignes_index(), (std::vector<std::string>{Lignes()[1], Lignes()[2]}));
    fille.Choisir(L"Fichier_effacé", {0});
    Recuperer(fille, 1);
    EXPECT_EQ(Taille_fichier(Source(L"gros à blancs.dat")), 1'234'567'890u);
    EXPECT_EQ(Cle(L"Total"), L"123456789");
    Terminer(fille);
}

// Erased by the program, restored by the program.
TEST_F(Corbeille_recuperation, ce_que_le_programme_a_efface_revient_octet_pour_octet) {
    const Textes noms{L"Ж лес.txt", L"a b.txt", L"été.txt", L"日本語.dat", std::wstring(255, L'q')};
    for (std::size_t i = 0; i < noms.size(); ++i)
        Creer_source(noms[i], 1000 + i, static_cast<std::uint32_t>(i + 1));
    const auto avant = Lire_arbre(source);
    Lancer_dans_les_dossiers();
    Ranger_principale();
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_dialogue(gestionnaire,
                      L"Voulez-vous EFFACER sélectivement ou globalement les fichiers sélectionnés ?",
                      {L"&SELECTIF", L"&GLOBAL", L"&ANNULER"}, 2);
    Attendre_fin_commande();
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{});
    EXPECT_EQ(Cle(L"Total"), L"5010");
    const auto fille = Rouvrir_corbeille();
    const HWND liste = fille.Controle(L"Fichier_effacé");
    EXPECT_EQ(Nombre_entrees(liste), 5);
    Pilote::Cliquer(Point_entree(liste, 0));
    Frapper_avec(VK_CONTROL, 'A');
    ATTENDRE(Nombre_selection(liste) == 5);
    Recuperer(fille, 0);
    EXPECT_EQ(Differences(avant, Lire_arbre(source)), "");
    EXPECT_EQ(Entrees(L"Fichier_srce").size(), 5u);
    Terminer(fille);
}

// A directory stands in the place of the index: the user's own data take it.
TEST_F(Corbeille_recuperation,
       sans_acces_au_repertoire_du_systeme_l_index_est_dans_les_donnees_de_l_utilisateur) {
    Creer_dossier(index);
    Creer_source(L"a.txt", 300, 4);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    Cliquer(L"Effacer");
    Attendre_boite(gestionnaire,
                   L"Vous allez EFFACER le fichier 'a.txt' du répertoire\r" + source +
                       L"\rConfirmez-vous cette commande ?",
                   oui_non, IDYES);
    Attendre_fin_commande();
    EXPECT_TRUE(Existe(Donnees_locales() + L"\\KORVANE.CRB"));
    Activer_aide();
    const auto fille = Rouvrir_corbeille();
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), Textes{Source(L"a.txt")});
    const RECT place = Place_ecran(fille.Fenetre());
    Pointer(POINT{place.left + 3 + 5, place.bottom - 3 - 5});
    EXPECT_TRUE(Attendre([&] { return Lire(L"Fenêtre").ends_with(L" " + Donnees_locales() + L"."); }))
        << Utf8(Lire(L"Fenêtre"));
    fille.Double_cliquer(L"Fichier_effacé", 0);
    Attendre_restants(fille, 0);
    Verifier_recupere(Source(L"a.txt"), 300, 4);
    Terminer(fille);
}

TEST_F(Corbeille_recuperation, un_index_que_rien_ne_peut_lire_est_signale_et_la_fenetre_s_ouvre_vide) {
    Creer_dossier(index);
    Creer_fichier(Donnees_locales(), "");
    Lancer_dans_les_dossiers();
    Commencer(L"Corbeille");
    Attendre_protege(L"KORVANE.CRB");
    const auto fille = Fenetre_corbeille();
    fille.Attendre_ouverte();
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), Textes{});
    EXPECT_EQ(fille.Lire(L"Taille"), L"9999");
    Terminer(fille);
    Verifier_principale_utilisable();
}

TEST_F(Corbeille_recuperation, un_fichier_retire_par_un_autre_programme_est_signale_et_quitte_la_liste) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    ASSERT_TRUE(Effacer(Source(L"crb45000.002")));
    fille.Choisir(L"Fichier_effacé", {0, 1, 2});
    fille.Cliquer(L"Récupérer");
    Attendre_avertissement(
        L"Un nom de fichier comporte un caractère invalide ou bien le fichier DEUX.TXT est "
        L"introuvable ou les attributs 'Système/Caché' sont présents.");
    Attendre_restants(fille, 1);
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), Textes{Source(L"trois.txt")});
    Verifier_recupere(Source(L"un.txt"), 1000, 1);
    EXPECT_EQ(Cle(L"Total"), L"30");
    fille.Choisir(L"Fichier_effacé", {0});
    Recuperer(fille, 0);
    Verifier_recupere(Source(L"trois.txt"), 30, 3);
    EXPECT_TRUE(Lignes_index().empty());
    Terminer(fille);
}

// The first of those chosen is the one that is gone: no file comes back, and it leaves the list all the same.
TEST_F(Corbeille_recuperation, le_seul_choisi_retire_par_un_autre_programme_quitte_la_liste_et_le_total) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    ASSERT_TRUE(Effacer(Source(L"crb45000.002")));
    fille.Double_cliquer(L"Fichier_effacé", 1);
    Attendre_avertissement(
        L"Un nom de fichier comporte un caractère invalide ou bien le fichier DEUX.TXT est "
        L"introuvable ou les attributs 'Système/Caché' sont présents.");
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), (Textes{Source(L"un.txt"), Source(L"trois.txt")}));
    EXPECT_EQ(Cle(L"Total"), L"1030");
    Terminer(fille);
}

TEST_F(Corbeille_recuperation, un_double_clic_sous_la_derniere_entree_ne_recupere_rien) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    fille.Choisir(L"Fichier_effacé", {0});
    const RECT liste = Place_ecran(fille.Controle(L"Fichier_effacé"));
    Pilote::Double_cliquer(POINT{liste.left + 30, liste.bottom - 20});
    fille.Reposer();
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé").size(), 3u);
    Verifier_trois_en_corbeille();
    fille.Double_cliquer(L"Fichier_effacé", 2);
    Attendre_restants(fille, 2);
    Verifier_recupere(Source(L"trois.txt"), 30, 3);
    Terminer(fille);
}

class Corbeille_recuperation_D : public Corbeille_recuperation {
protected:
    Corbeille_recuperation_D() { Unite::Vider(L'D'); }
    ~Corbeille_recuperation_D() override {
        Fermer();
        Unite::Vider(L'D');
    }
};

TEST_F(Corbeille_recuperation_D, un_fichier_a_la_racine_d_une_autre_unite_revient) {
    Mettre(L"D:\\racine.txt", 500, 4, 45000, 5);
    const auto fille = Ouvrir_corbeille();
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), Textes{L"D:\\racine.txt"});
    fille.Double_cliquer(L"Fichier_effacé", 0);
    Attendre_restants(fille, 0);
    Verifier_recupere(L"D:\\racine.txt", 500, 4);
    Terminer(fille);
}
