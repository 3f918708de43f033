#include "fenetres/effacement.h"
#include "fenetres/systeme_hote.h"

using namespace Pilote;

// What becomes of the files that are erased into the bin, and what its limits do to those that were there.

TEST_F(Effacement, la_ligne_d_index_a_ses_colonnes_et_la_page_de_codes_du_systeme) {
    Activer();
    Creer_source(L"Été  à la mer.txt", 12345);
    Retenir();
    Lancer_dans_les_dossiers();
    Effacer_un(L"Été  à la mer.txt");
    Verifier_corbeille({L"Été  à la mer.txt"});
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 1u);
    EXPECT_EQ(lignes[0].octets,
              Utf8(lignes[0].code) + " 00012345 \xC9t\xE9  \xE0 la mer.txt " + Utf8(source) + "\\");
}

TEST_F(Effacement, les_noms_hors_de_la_page_de_codes_longs_ou_doubles_sont_gardes_entiers) {
    Activer();
    const Noms_fichiers noms{L" blanc  double.txt", std::wstring(251, L'w') + L".dat", L"sans extension",
                             L"θάλασσα\u3042.txt", L"€uro%1^&'.txt"};
    std::uint32_t       graine = 0;
    for (const std::wstring & nom : noms) Creer_source(nom, 1000, ++graine);
    Retenir();
    Lancer_dans_les_dossiers();
    const auto ordre = Entrees(L"Fichier_srce");
    ASSERT_EQ(ordre.size(), noms.size());
    Choisir_tout();
    Effacer_globalement();
    Verifier_repos(L"Effacer");
    Verifier_corbeille(ordre);
}

TEST_F(Effacement, dans_un_repertoire_plus_long_que_260_caracteres_le_fichier_va_a_la_corbeille) {
    Activer();
    std::wstring profond = source;
    for (int i = 0; i < 5; ++i) profond += L"\\" + std::to_wstring(i) + std::wstring(59, L'p');
    Creer_fichier_graine(profond + L"\\a.txt", 500, 3);
    const std::uint64_t empreinte = Empreinte(profond + L"\\a.txt");
    Lancer();
    Ouvrir(L"srce", profond);
    Choisir_un(L"a.txt");
    Cliquer(L"Effacer");
    Attendre_effacement(L"a.txt", oui_non, IDYES, gestionnaire, profond);
    Attendre_fin_commande();
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 1u);
    EXPECT_EQ(Utf8(lignes[0].repertoire), Utf8(profond + L"\\"));
    EXPECT_EQ(Noms(profond), Noms_fichiers{lignes[0].code});
    EXPECT_EQ(Empreinte(lignes[0].Chemin_code()), empreinte);
}

TEST_F(Effacement, un_meme_nom_efface_deux_fois_est_garde_deux_fois) {
    Activer();
    Creer_source(L"a.txt", 700, 1);
    Creer_source(L"b.txt", 50, 9);
    Lancer_dans_les_dossiers();
    const std::uint64_t premiere = Empreinte(Source(L"a.txt"));
    Effacer_un(L"a.txt");
    Creer_source(L"a.txt", 900, 2);
    const std::uint64_t seconde = Empreinte(Source(L"a.txt"));
    Relire_source();
    Effacer_un(L"a.txt");
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 2u);
    EXPECT_NE(lignes[0].code, lignes[1].code);
    EXPECT_EQ(Empreinte(lignes[0].Chemin_code()), premiere);
    EXPECT_EQ(Empreinte(lignes[1].Chemin_code()), seconde);
    EXPECT_EQ(Cle_corbeille("Total"), "1600");
}

TEST_F(Effacement, un_fichier_vide_va_a_la_corbeille) {
    Activer();
    Creer_source(L"vide.txt", 0);
    Retenir();
    Lancer_dans_les_dossiers();
    Effacer_un(L"vide.txt");
    Verifier_restants({});
    Verifier_corbeille({L"vide.txt"});
}

TEST_F(Effacement, plus_grand_que_la_corbeille_se_demande_et_oui_finit_la_commande) {
    Activer(L"10");
    Creer_source(L"a.txt", 100, 1);
    Creer_source(L"l'été.dat", 10241, 2);
    Creer_source(L"z.txt", 100, 3);
    Retenir();
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_mode(2);
    Attendre_trop_grand(L"L'ÉTÉ.DAT", IDYES);
    Verifier_repos(L"Effacer");
    Verifier_restants({L"l'été.dat", L"z.txt"});
    Verifier_corbeille({L"a.txt"});
}

TEST_F(Effacement, plus_grand_que_la_corbeille_et_non_le_garde_en_perdant_les_plus_anciens) {
    Activer(L"10");
    Creer_source(L"a.txt", 100, 1);
    Creer_source(L"b.dat", 10241, 2);
    Creer_source(L"c.txt", 100, 3);
    Retenir();
    Lancer_dans_les_dossiers();
    Effacer_un(L"a.txt");
    Choisir_un(L"b.dat");
    Cliquer(L"Effacer");
    Attendre_effacement(L"b.dat", oui_non, IDYES);
    Attendre_trop_grand(L"B.DAT", IDNO);
    Verifier_repos(L"Effacer");
    // The newest record survives although it alone is over the limit.
    Verifier_corbeille({L"b.dat"});
    Effacer_un(L"c.txt");
    Verifier_restants({});
    Verifier_corbeille({L"c.txt"});
}

TEST_F(Effacement, de_la_taille_exacte_de_la_corbeille_ne_se_demande_pas) {
    Activer(L"10");
    Creer_source(L"a.txt", 10240, 1);
    Retenir();
    Lancer_dans_les_dossiers();
    Effacer_un(L"a.txt");
    Verifier_restants({});
    Verifier_corbeille({L"a.txt"});
}

TEST_F(Effacement, a_la_fin_de_la_commande_les_plus_anciens_font_place) {
    Activer(L"10");
    for (const wchar_t * nom : {L"a.dat", L"b.dat", L"c.dat", L"d.dat"}) Creer_source(nom, 4096, *nom);
    Retenir();
    Lancer_dans_les_dossiers();
    Choisir({L"a.dat", L"b.dat"});
    Effacer_globalement();
    Verifier_corbeille({L"a.dat", L"b.dat"});
    Choisir({L"c.dat", L"d.dat"});
    Effacer_globalement();
    Verifier_restants({});
    Verifier_corbeille({L"c.dat", L"d.dat"});
}

TEST_F(Effacement, la_duree_passee_les_fichiers_quittent_la_corbeille_et_le_dernier_jour_ils_y_sont) {
    Regler(L"Corbeille", L"Temps", L"30");
    Deposer_jadis(L"perimé.txt", 100, 31, 1);
    Deposer_jadis(L"dernier jour.txt", 200, 30, 2);
    Creer_source(L"a.txt", 50);
    Retenir();
    Lancer_dans_les_dossiers();
    Effacer_un(L"a.txt");
    Noms_fichiers gardes;
    for (const auto & ligne : Corbeille::Lignes()) gardes.push_back(ligne.nom);
    EXPECT_EQ(gardes, (Noms_fichiers{L"dernier jour.txt", L"a.txt"}));
    EXPECT_EQ(Noms(source).size(), 2u);
    EXPECT_EQ(Cle_corbeille("Total"), "250");
}

TEST_F(Effacement, une_limite_qui_n_est_pas_un_nombre_permis_ne_detruit_rien) {
    struct Cas {
        const wchar_t * cle;
        const wchar_t * valeur;
    };
    for (const Cas & cas : {Cas{L"Taille", L"abc"}, Cas{L"Taille", L"0"}, Cas{L"Taille", L"-5"},
                            Cas{L"Taille", L"1 Ko"}, Cas{L"Temps", L"abc"}, Cas{L"Temps", L"0"}}) {
        SCOPED_TRACE(Utf8(cas.cle) + std::string("=") + Utf8(cas.valeur));
        Ne_pas_regler(L"Corbeille", L"Taille");
        Ne_pas_regler(L"Corbeille", L"Temps");
        Regler(L"Corbeille", cas.cle, cas.valeur);
        Deposer_jadis(L"ancien 1.txt", 100, 3000, 1);
        Deposer_jadis(L"ancien 2.txt", 20000, 2000, 2);
        Creer_source(L"a.txt", 20000);
        Lancer_vers(L"");
        Choisir_un(L"a.txt");
        Cliquer(L"Effacer");
        Attendre_effacement(L"a.txt", oui_non, IDYES);
        Attendre_fin_commande();
        EXPECT_EQ(Corbeille::Lignes().size(), 3u);
        EXPECT_EQ(Noms(source).size(), 3u);
        EXPECT_EQ(Cle_corbeille("Total"), "40100");
        Fermer();
        Corbeille::Vider();
        Effacer(source);
        Effacer(Fichier_ini());
    }
}

TEST_F(Effacement, un_total_qui_ne_tient_plus_arrete_la_commande_sans_rien_perdre) {
    Regler(L"Corbeille", L"Temps", L"10");
    Creer_longue(Source(L"b.dat"));
    Creer_source(L"a.txt", 100);
    Creer_source(L"c.txt", 100);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Effacer");
    Attendre_mode(2);
    Attendre_rapport(6, ERROR_ARITHMETIC_OVERFLOW, L"EFFACER", source, destination);
    Attendre_fin_commande();
    EXPECT_EQ(Entrees(L"Fichier_srce"), (Noms_fichiers{L"b.dat", L"c.txt"}));
    EXPECT_EQ(Taille_fichier(Source(L"b.dat")), std::uint64_t{8} << 30);
    EXPECT_EQ(Corbeille::Lignes().size(), 1u);
    EXPECT_EQ(Cle_corbeille("Total"), "100");
}

TEST_F(Effacement, les_fichiers_codes_d_un_autre_et_les_lignes_etrangeres_restent) {
    Activer(L"1");
    Deposer_jadis(L"ancien.txt", 2000, 5, 1);
    Creer_fichier(Corbeille::Index(), "note d'un autre\r\n" + Lire_fichier(Corbeille::Index()));
    Creer_source(L"crb46000.999", 70);
    Attributs(Source(L"crb46000.999"), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY);
    Creer_source(L"a.txt", 30);
    Creer_source(L"b.txt", 40);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"b.txt"});
    Effacer_globalement();
    const std::string index = Lire_fichier(Corbeille::Index());
    EXPECT_TRUE(index.starts_with("note d'un autre\r\ncrb")) << index;
    EXPECT_EQ(index.find("ancien.txt"), std::string::npos) << "le plus ancien a fait place";
    EXPECT_EQ(Taille_fichier(Source(L"crb46000.999")), 70u);
    EXPECT_EQ(Noms(source).size(), 3u);
    EXPECT_EQ(Cle_corbeille("Total"), "70");
}
