#include "fenetres/recherche.h"
#include "fenetres/systeme_hote.h"

#include <functional>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// The files of a search in the SOURCE pane: what leaves them, what counts them, what commands do with them.
class Resultats_D : public Recherche {
protected:
    static constexpr const wchar_t * trois_comptes =
        L"   3 fichiers sélectionnés, total = 1\u00A0230 octets.";

    Resultats_D() {
        Creer_d(L"un\\a.txt", 1000);
        Creer_d(L"un\\b.txt", 200);
        Creer_d(L"un\\dessous\\c.txt", 30);
        Creer_d(L"vers\\lisez.moi", 5);
    }
    const Textes trois = {L"d:\\un\\a.txt", L"d:\\un\\b.txt", L"d:\\un\\dessous\\c.txt"};

    void Porter(const std::wstring & modele, const Textes & attendus) {
        const auto resultats = Chercher(modele, attendus);
        Frapper_avec(VK_CONTROL, 'A');
        ATTENDRE(resultats.Choisies(L"Liste_sél") == attendus);
        resultats.Cliquer(L"OK");
        resultats.Attendre_fermee();
        Attendre_fin_commande();
        ATTENDRE(Se_voit(L"Fichier_sél"));
    }
    // Both panes on D:, the three files in SOURCE, D:\vers in DESTINATION.
    void Lancer_avec_trois() {
        Lancer_sur_d();
        Ouvrir(L"dest", L"d:\\vers");
        Porter(L".txt", trois);
        Verifier_resultats_dans_source(trois, trois_comptes);
    }
    void Restent(const Textes & entrees, const Textes & choisies, const std::wstring & ligne) {
        Attendre_fin_commande();
        EXPECT_TRUE(Se_voit(L"Fichier_sél"));
        EXPECT_FALSE(Se_voit(L"Fichier_srce"));
        EXPECT_EQ(Entrees(L"Fichier_sél"), entrees);
        EXPECT_EQ(Choisies(L"Fichier_sél"), choisies);
        EXPECT_EQ(Lire(L"Ligne_message"), ligne);
    }
    void Introuvable(const std::wstring & fichier_capitales) {
        Attendre_avertissement(L"Un nom de fichier comporte un caractère invalide ou bien le fichier " +
                               fichier_capitales +
                               L" est introuvable ou les attributs 'Système/Caché' sont présents.");
    }
    POINT Entree_resultat(int rang) const { return Point_entree(Controle(L"Fichier_sél"), rang); }
};

TEST_F(Resultats_D, copier_est_possible_meme_si_le_repertoire_source_n_a_pas_de_fichier) {
    Lancer_sur_d();
    ASSERT_FALSE(Est_actif(L"Copier"));
    Porter(L".txt", trois);
    Verifier_resultats_dans_source(trois, trois_comptes);
    EXPECT_TRUE(Est_actif(L"Copier"));
    Cliquer(L"Quitter");
    Verifier_sans_resultats();
    EXPECT_FALSE(Est_actif(L"Copier"));
}

TEST_F(Resultats_D, ce_qui_relit_la_source_quitte_les_resultats) {
    struct Cas {
        const char *          nom;
        std::function<void()> geste;
        std::function<bool()> attendu;
    };
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    const Cas cas[] = {
        {"Quitter", [&] { Cliquer(L"Quitter"); }, [&] { return Lire(L"Chemin_srce").size() == 3; }},
        {"la croix", [&] { PostMessageW(Principale(), WM_SYSCOMMAND, SC_CLOSE, 0); },
         [&] { return Lire(L"Chemin_srce").size() == 3; }},
        {"l'unité validée",
         [&] {
             Cliquer(L"Unité_srce");
             Frapper(VK_ESCAPE);
             Frapper(VK_RETURN);
         },
         [&] { return true; }},
        {"une autre unité", [&] { Choisir_unite(L"Unité_srce", L'c'); },
         [&] { return Lire(L"Unité_srce")[0] == L'c'; }},
        {"un chemin tapé",
         [&] {
             Remplacer_texte(L"Chemin_srce", L"d:\\un");
             Frapper(VK_RETURN);
         },
         [&] { return Lire(L"Unité_srce")[0] == L'd'; }},
        {"le modèle", [&] { Remplacer_texte(L"Sélection_fichiers", L"*.moi"); }, [&] { return true; }},
        {"permuter", [&] { Cliquer(L"Croiser"); },
         [&] { return Entrees(L"Fichier_srce") == Textes{L"lisez.moi"}; }},
        {"permuter encore", [&] { Cliquer(L"Croiser"); }, [&] { return Entrees(L"Fichier_srce").empty(); }},
        {"le mode", [&] { Cliquer(L"Mode"); }, [&] { return Lire(L"Mode") == L" &Mode fichier"; }},
    };
    for (const Cas & c : cas) {
        SCOPED_TRACE(c.nom);
        Porter(L".txt", trois);
        Verifier_resultats_dans_source(trois, trois_comptes);
        c.geste();
        ATTENDRE(Se_voit(L"Fichier_srce"));
        ATTENDRE(c.attendu());
        Verifier_sans_resultats();
        EXPECT_TRUE(Boite_absente());
        if (HasFailure()) return;  // the next ones begin where this one was to end
        if (Lire(L"Unité_srce")[0] == L'c') Choisir_unite(L"Unité_srce", L'd');
    }
}

TEST_F(Resultats_D, un_clic_sur_un_repertoire_source_quitte_les_resultats_et_choisit_son_premier_fichier) {
    Lancer_avec_trois();
    Cliquer_entree(L"Répertoire_srce", L"vers");
    ATTENDRE(Lire(L"Ligne_message") == L"   1 fichier sélectionné, total = 5 octets.");
    EXPECT_TRUE(Se_voit(L"Fichier_srce"));
    EXPECT_FALSE(Se_voit(L"Fichier_sél"));
    EXPECT_EQ(Choisies(), Textes{L"lisez.moi"});
    // The directory that is open is read again, and shows its files too.
    Porter(L".txt", trois);
    Cliquer_entree(L"Répertoire_srce", L"vers");
    ATTENDRE(Se_voit(L"Fichier_srce"));
    EXPECT_EQ(Entrees(L"Fichier_sél"), Textes{});
}

TEST_F(Resultats_D, choisir_une_destination_garde_les_resultats_et_leur_selection) {
    Lancer_avec_trois();
    Cliquer_entree(L"Répertoire_dest", L"d:\\");
    ATTENDRE(Lire(L"Chemin_dest").size() == 3);
    Verifier_resultats_dans_source(trois, trois_comptes);
    Cliquer_entree(L"Répertoire_dest", L"d:\\");
    Reposer(Principale());
    Verifier_resultats_dans_source(trois, trois_comptes);
    Choisir_unite(L"Unité_dest", L'c');
    ATTENDRE(Lire(L"Unité_dest")[0] == L'c');
    Verifier_resultats_dans_source(trois, trois_comptes);
}

TEST_F(Resultats_D, les_clics_choisissent_parmi_les_resultats_et_le_compte_suit) {
    Lancer_avec_trois();
    const HWND liste = Controle(L"Fichier_sél");
    Cliquer_entree(L"Fichier_sél", L"d:\\un\\b.txt");
    ATTENDRE(Lire(L"Ligne_message") == L"   1 fichier sélectionné, total = 200 octets.");
    Cliquer_avec(VK_CONTROL, Entree_resultat(2), liste);
    ATTENDRE(Lire(L"Ligne_message") == L"   2 fichiers sélectionnés, total = 230 octets.");
    Cliquer_avec(VK_CONTROL, Entree_resultat(1), liste);
    Cliquer_avec(VK_CONTROL, Entree_resultat(2), liste);
    ATTENDRE(Lire(L"Ligne_message").empty());
    // Nothing is selected: the command says so, and ends.
    Cliquer(L"Copier");
    Attendre_boite(L"COPIER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", avertissement, IDOK);
}

TEST_F(Resultats_D, selectionner_tout_porte_sur_les_resultats_et_un_clic_en_sort) {
    Lancer_avec_trois();
    Cliquer_entree(L"Fichier_sél", L"d:\\un\\b.txt");
    ATTENDRE(Choisies(L"Fichier_sél").size() == 1);
    Cliquer(L"Sélecte");
    ATTENDRE(Lire(L"Sélecte") == L"&Sélectionner un");
    Verifier_resultats_dans_source(trois, trois_comptes);
    Cliquer(L"Sélecte");
    ATTENDRE(Lire(L"Sélecte") == L"&Sélectionner tout");
    Restent(trois, {}, L"");
    Cliquer(L"Sélecte");
    ATTENDRE(Lire(L"Ligne_message") == trois_comptes);
    Cliquer_entree(L"Fichier_sél", L"d:\\un\\a.txt");
    ATTENDRE(Lire(L"Sélecte") == L"&Sélectionner tout");
    Restent(trois, {L"d:\\un\\a.txt"}, L"   1 fichier sélectionné, total = 1\u00A0000 octets.");
    // Left while it is on, the mode ends with the results.
    Cliquer(L"Sélecte");
    ATTENDRE(Lire(L"Sélecte") == L"&Sélectionner un");
    Cliquer(L"Quitter");
    Verifier_sans_resultats();
    EXPECT_EQ(Lire(L"Sélecte"), L"&Sélectionner tout");
}

// The search told their lengths: the disk is not asked again, whatever it has become. The command finds out.
TEST_F(Resultats_D, les_longueurs_viennent_de_la_recherche_et_un_fichier_disparu_se_signale_a_la_commande) {
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    const auto resultats = Chercher(L".txt", trois);
    Frapper_avec(VK_CONTROL, 'A');
    ATTENDRE(resultats.Choisies(L"Liste_sél") == trois);
    ASSERT_TRUE(Effacer(L"D:\\un\\b.txt"));
    Pilote::Cliquer(resultats.Controle(L"OK"));
    resultats.Attendre_fermee();
    Verifier_resultats_dans_source(trois, trois_comptes);
    EXPECT_TRUE(Boite_absente());
    Cliquer(L"Copier");
    Introuvable(L"B.TXT");
    Restent({L"d:\\un\\a.txt", L"d:\\un\\dessous\\c.txt"}, {L"d:\\un\\dessous\\c.txt"},
            L"   1 fichier sélectionné, total = 30 octets.");
    Cliquer_entree(L"Fichier_sél", L"d:\\un\\a.txt");
    ATTENDRE(Lire(L"Ligne_message") == L"   1 fichier sélectionné, total = 1\u00A0000 octets.");
    EXPECT_TRUE(Boite_absente());
}

// Two files that only their case tells apart, as some disks can hold.
TEST_F(Resultats_D, deux_noms_que_seule_la_casse_distingue_designent_chacun_leur_fichier) {
    ASSERT_TRUE(Sur_hote(L"D:\\", L"printf 1 > un/Note.doc && printf 22 > un/nOTE.doc"));
    const Textes deux = {L"d:\\un\\note.doc", L"d:\\un\\note.doc"};
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    std::size_t tailles = 0;
    for (const int rang : {0, 1}) {
        const auto resultats = Chercher(L".doc", deux);
        resultats.Choisir(L"Liste_sél", {rang});
        resultats.Cliquer(L"OK");
        resultats.Attendre_fermee();
        Attendre_fin_commande();
        const std::wstring ligne = Lire(L"Ligne_message");
        const auto         taille =
            ligne == L"   1 fichier sélectionné, total = 1 octets." ? std::size_t{1} : std::size_t{2};
        EXPECT_EQ(ligne, L"   1 fichier sélectionné, total = " + std::to_wstring(taille) + L" octets.");
        Cliquer(L"Copier");
        Verifier_sans_resultats();
        const std::wstring copie = taille == 1 ? L"Note.doc" : L"nOTE.doc";
        EXPECT_EQ(Noms(L"D:\\vers"), (Textes{L"lisez.moi", copie}));
        EXPECT_EQ(Lire_fichier(L"D:\\vers\\" + copie).size(), taille);
        ASSERT_TRUE(Effacer(L"D:\\vers\\" + copie));
        tailles += taille;
    }
    EXPECT_EQ(tailles, 3U);  // each of the two once
}

TEST_F(Resultats_D, un_fichier_de_plus_de_4_go_a_toute_sa_longueur) {
    ASSERT_TRUE(Sur_hote(L"D:\\", L"truncate -s 5G un/immense.bin"));
    Lancer_sur_d();
    Porter(L".bin", {L"d:\\un\\immense.bin"});
    ATTENDRE(Lire(L"Ligne_message") ==
             L"   1 fichier sélectionné, total = 5\u00A0368\u00A0709\u00A0120 octets.");
}

// The results before have left for the search: the pane is that of its directory, which has no file here.
TEST_F(Resultats_D, une_seconde_recherche_annulee_rend_le_volet_source_et_le_bouton) {
    Lancer_avec_trois();
    ASSERT_TRUE(Est_actif(L"Copier"));
    Annuler(Chercher(L".txt", trois));
    Verifier_sans_resultats();
    EXPECT_FALSE(Est_actif(L"Copier"));
    ATTENDRE(A_le_focus(L"Chercher"));
    EXPECT_TRUE(Est_actif(L"Chercher"));
}

TEST_F(Resultats_D, une_demande_annulee_laisse_les_resultats_tels_quels) {
    Lancer_avec_trois();
    Annuler(Ouvrir_demande());
    Verifier_resultats_dans_source(trois, trois_comptes);
    EXPECT_TRUE(Est_actif(L"Copier"));
    Cliquer(L"Copier");
    Verifier_sans_resultats();
    EXPECT_EQ(Noms(L"D:\\vers"), (Textes{L"a.txt", L"b.txt", L"c.txt", L"lisez.moi"}));
}

// Files on a drive that does not answer are not gone.
class Resultats_AD : public Resultats_D {
protected:
    ~Resultats_AD() override {
        Fermer();
        Unite::Inserer_disquette(1);
        Unite::Vider(L'A');
    }
};

TEST_F(Resultats_AD, une_disquette_retiree_avant_la_commande_laisse_ses_resultats_choisis) {
    Unite::Inserer_disquette(1);
    Unite::Vider(L'A');
    const Textes sur_a = {L"a:\\a.dat", L"a:\\sous\\b.dat"};
    Creer_fichier(L"A:\\a.dat", "1");
    Creer_fichier(L"A:\\sous\\b.dat", "22");
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    Choisir_unite(L"Unité_srce", L'a');
    Porter(L".dat", sur_a);
    Unite::Retirer_disquette();
    Cliquer(L"Copier");
    Attendre_avertissement(L"Support absent ou erreur d'accès sur A:");
    Restent(sur_a, sur_a, L"   2 fichiers sélectionnés, total = 3 octets.");
    Unite::Inserer_disquette(1);
    Cliquer(L"Copier");
    Verifier_sans_resultats();
    EXPECT_EQ(Noms(L"D:\\vers"), (Textes{L"a.dat", L"b.dat", L"lisez.moi"}));
}

TEST_F(Resultats_D, copier_prend_chaque_fichier_dans_son_repertoire_et_quitte_les_resultats) {
    Creer_d(L"un\\Grand Nom.TXT", 70000);
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    Porter(L".txt",
           {L"d:\\un\\a.txt", L"d:\\un\\b.txt", L"d:\\un\\grand nom.txt", L"d:\\un\\dessous\\c.txt"});
    Cliquer(L"Copier");
    Verifier_sans_resultats();
    // The copy is called as its source is on disk.
    EXPECT_EQ(Noms(L"D:\\vers"), (Textes{L"a.txt", L"b.txt", L"c.txt", L"Grand Nom.TXT", L"lisez.moi"}));
    EXPECT_EQ(Empreinte(L"D:\\vers\\c.txt"), Empreinte(L"D:\\un\\dessous\\c.txt"));
    EXPECT_EQ(Empreinte(L"D:\\vers\\Grand Nom.TXT"), Empreinte(L"D:\\un\\Grand Nom.TXT"));
}

TEST_F(Resultats_D, deux_fichiers_d_un_meme_nom_demandent_le_remplacement_et_non_ne_passe_que_le_second) {
    Creer_d(L"un\\dessous\\a.txt", 77);
    const Textes quatre = {L"d:\\un\\a.txt", L"d:\\un\\b.txt", L"d:\\un\\dessous\\a.txt",
                           L"d:\\un\\dessous\\c.txt"};
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    Porter(L".txt", quatre);
    Cliquer(L"Déplacer");
    Attendre_remplacement(L"DEPLACER", L"A.TXT", L"D:\\vers", IDNO);
    Verifier_sans_resultats();
    EXPECT_EQ(Noms(L"D:\\vers"), (Textes{L"a.txt", L"b.txt", L"c.txt", L"lisez.moi"}));
    EXPECT_EQ(Taille_fichier(L"D:\\vers\\a.txt"), 1000U);
    EXPECT_EQ(Noms(L"D:\\un\\dessous"), Textes{L"a.txt"});
    Porter(L"a.txt", {L"d:\\vers\\a.txt", L"d:\\un\\dessous\\a.txt"});
    Cliquer_entree(L"Fichier_sél", L"d:\\un\\dessous\\a.txt");
    Cliquer(L"Déplacer");
    Attendre_remplacement(L"DEPLACER", L"A.TXT", L"D:\\vers", IDYES);
    Verifier_sans_resultats();
    EXPECT_EQ(Taille_fichier(L"D:\\vers\\a.txt"), 77U);
    EXPECT_EQ(Noms(L"D:\\un\\dessous"), Textes{});
}

TEST_F(Resultats_D, copier_s_arrete_a_un_fichier_disparu_et_le_reste_demeure_choisi) {
    Lancer_avec_trois();
    ASSERT_TRUE(Effacer(L"D:\\un\\b.txt"));
    Cliquer(L"Copier");
    Introuvable(L"B.TXT");
    EXPECT_EQ(Noms(L"D:\\vers"), (Textes{L"a.txt", L"lisez.moi"}));
    Restent({L"d:\\un\\a.txt", L"d:\\un\\dessous\\c.txt"}, {L"d:\\un\\dessous\\c.txt"},
            L"   1 fichier sélectionné, total = 30 octets.");
    EXPECT_TRUE(Se_voit(L"Titre_dest"));
    EXPECT_FALSE(Se_voit(L"Arret"));
    // The same button goes on with what is left.
    Cliquer(L"Copier");
    Verifier_sans_resultats();
    EXPECT_EQ(Noms(L"D:\\vers"), (Textes{L"a.txt", L"c.txt", L"lisez.moi"}));
}

// The one that is gone stood above the first line shown: the same results are still before the user's eyes.
TEST_F(Resultats_D, une_longue_liste_reste_a_sa_place_apres_une_erreur) {
    constexpr int nombre = 100, disparu = 30, premier_montre = 50;
    Textes        noms;
    for (int i = 0; i < nombre; ++i) {
        noms.push_back(L"d:\\un\\r" + std::to_wstring(nombre + i) + L".dat");
        Creer_fichier(noms.back(), "x");
    }
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    Porter(L"r*", noms);
    const HWND liste = Controle(L"Fichier_sél");
    SendMessageW(liste, LB_SETTOPINDEX, premier_montre, 0);
    ASSERT_EQ(SendMessageW(liste, LB_GETTOPINDEX, 0, 0), premier_montre);
    ASSERT_TRUE(Effacer(noms[disparu]));
    Cliquer(L"Copier");
    Introuvable(L"R130.DAT");
    Attendre_fin_commande();
    EXPECT_EQ(SendMessageW(liste, LB_GETCOUNT, 0, 0), nombre - 1);
    EXPECT_EQ(SendMessageW(liste, LB_GETTOPINDEX, 0, 0), premier_montre - 1);
}

TEST_F(Resultats_D, deplacer_s_arrete_a_un_fichier_protege_qui_reste_choisi_avec_la_suite) {
    Lancer_sur_d();
    Choisir_unite(L"Unité_dest", L'c');
    Ouvrir(L"dest", destination);
    Porter(L".txt", trois);
    Attributs(L"D:\\un\\b.txt", FILE_ATTRIBUTE_READONLY);
    Cliquer(L"Déplacer");
    Attendre_protege(L"B.TXT");
    EXPECT_EQ(Noms(destination), Textes{L"a.txt"});
    // What was moved is no longer a result.
    Restent({L"d:\\un\\b.txt", L"d:\\un\\dessous\\c.txt"}, {L"d:\\un\\b.txt", L"d:\\un\\dessous\\c.txt"},
            L"   2 fichiers sélectionnés, total = 230 octets.");
    Attributs(L"D:\\un\\b.txt", FILE_ATTRIBUTE_ARCHIVE);
    Cliquer(L"Déplacer");
    Verifier_sans_resultats();
    EXPECT_EQ(Noms(destination), (Textes{L"a.txt", L"b.txt", L"c.txt"}));
    EXPECT_FALSE(Existe(L"D:\\un\\a.txt") || Existe(L"D:\\un\\b.txt") || Existe(L"D:\\un\\dessous\\c.txt"));
}

TEST_F(Resultats_D, le_seul_resultat_disparu_ramene_aux_fichiers_source) {
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    Porter(L"b.txt", {L"d:\\un\\b.txt"});
    ASSERT_TRUE(Effacer(L"D:\\un\\b.txt"));
    Cliquer(L"Déplacer");
    Introuvable(L"B.TXT");
    Verifier_sans_resultats();
    EXPECT_EQ(Noms(L"D:\\vers"), Textes{L"lisez.moi"});
}

TEST_F(Resultats_D,
       les_chemins_de_plus_de_260_caracteres_et_les_noms_de_tout_alphabet_se_copient_et_se_deplacent) {
    std::wstring fond = L"niveau";
    for (int i = 0; i < 30; ++i) fond += L"\\repertoire" + std::to_wstring(i);
    Creer_d(fond + L"\\profond.dat", 9000);
    Creer_d(L"Ωμέγα\\Жук.dat", 300);
    const Textes chemins = {L"d:\\ωμέγα\\жук.dat", L"d:\\" + fond + L"\\profond.dat"};
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    for (const wchar_t * bouton : {L"Copier", L"Déplacer"}) {
        SCOPED_TRACE(Utf8(bouton));
        Porter(L".dat", chemins);
        EXPECT_EQ(Lire(L"Ligne_message"), L"   2 fichiers sélectionnés, total = 9\u00A0300 octets.");
        Cliquer(bouton);
        Verifier_sans_resultats();
        EXPECT_EQ(Noms(L"D:\\vers"), (Textes{L"lisez.moi", L"profond.dat", L"Жук.dat"}));
        EXPECT_EQ(Taille_fichier(L"D:\\vers\\profond.dat"), 9000U);
        const bool copie = std::wstring(bouton) == L"Copier";
        EXPECT_EQ(Existe(L"D:\\Ωμέγα\\Жук.dat"), copie);
        EXPECT_EQ(Existe(L"D:\\" + fond + L"\\profond.dat"), copie);
        EXPECT_TRUE(Effacer(L"D:\\vers\\profond.dat") && Effacer(L"D:\\vers\\Жук.dat"));
    }
}

TEST_F(Resultats_D, lister_les_fichiers_caches_laisse_les_resultats_et_leur_choix) {
    Creer_d(L"un\\caché.txt", 1);
    Attributs(L"D:\\un\\caché.txt", FILE_ATTRIBUTE_HIDDEN);
    Lancer_avec_trois();
    Ranger_principale();
    Cliquer(L"Options");
    const auto options = Fille(L"Choix_Options");
    options.Attendre_ouverte();
    options.Cliquer(L"Cachés");
    options.Cliquer(L"OK");
    options.Attendre_fermee();
    Restent(trois, trois, trois_comptes);
    EXPECT_TRUE(Est_actif(L"Copier"));
}
