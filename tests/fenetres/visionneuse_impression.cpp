#include "fenetres/visionneuse.h"
#include "pilote/imprimante.h"

using namespace Pilote;

TEST_F(Visionneuse, un_texte_s_imprime_comme_il_est_montre_et_l_hexadecimal_de_meme) {
    const Imprimante_essai imprimante;
    Creer(L"a b.txt", "\xC3\xA9t\xC3\xA9\r\n\r\nfin sans retour");
    Creer(L"b.bin", std::string("MZ\0", 3));
    Lancer_fichiers({L"a b.txt", L"b.bin"});
    Fenetre().Cliquer(L"Imprimer");
    ATTENDRE(Etat() == L"Impression terminée.");
    Choisir(L"Fichiers", 1);
    Frapper_ctrl('P');
    ATTENDRE(imprimante.Nombre() == 2);
    const auto travaux = imprimante.Travaux();
    ASSERT_EQ(travaux.size(), 2u);
    EXPECT_EQ(Utf8(travaux[0].titre), "Visionneuse - a b.txt");
    EXPECT_EQ(travaux[0].pages, std::vector<std::string>{"\xC3\xA9t\xC3\xA9\n\nfin sans retour\n"});
    ASSERT_EQ(travaux[1].pages.size(), 1u);
    // The blanks between the columns come back as wide as they are on paper.
    EXPECT_TRUE(travaux[1].pages[0].starts_with("00000000 ")) << travaux[1].pages[0];
    EXPECT_NE(travaux[1].pages[0].find(" 4D 5A 00 "), std::string::npos) << travaux[1].pages[0];
}

TEST_F(Visionneuse, la_fin_de_session_pendant_une_impression_ne_laisse_sortir_aucune_page) {
    const Imprimante_essai imprimante;
    std::string            texte;
    for (int i = 0; i < 60000; ++i) texte += "ligne " + std::to_string(i) + "\r\n";
    Creer(L"long.txt", texte);
    Lancer_fichiers({L"long.txt"});
    Pilote::Cliquer(Fenetre().Controle(L"Imprimer"));
    const HWND boite = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(boite, nullptr);
    EXPECT_TRUE(Repondre_boite(boite, IDYES));
    ATTENDRE(Etat().starts_with(L"Impression - ") && Etat() != L"Impression - 0 %");
    PostMessageW(Fenetre().Fenetre(), WM_ENDSESSION, TRUE, 0);
    EXPECT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(imprimante.Nombre(), 0u);
}

TEST_F(Visionneuse, une_impression_peut_etre_arretee_et_son_echec_est_dit) {
    Imprimante_essai imprimante;
    std::string      texte;
    for (int i = 0; i < 60000; ++i) texte += "ligne " + std::to_string(i) + "\r\n";
    Creer(L"long.txt", texte);
    Creer(L"court.txt", "x");
    Lancer_fichiers({L"long.txt", L"court.txt"});
    Pilote::Cliquer(Fenetre().Controle(L"Imprimer"));
    const HWND boite = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(boite, nullptr);
    EXPECT_TRUE(Repondre_boite(boite, IDYES));
    EXIGER(Sablier(Fenetre().Fenetre()));
    EXPECT_TRUE(Etat().starts_with(L"Impression - "));
    EXPECT_TRUE(Fenetre().Est_actif(L"Arrêter"));
    Fenetre().Cliquer(L"Arrêter");
    ATTENDRE(Etat() == L"Impression arrêtée.");
    EXPECT_EQ(imprimante.Nombre(), 0u);
    imprimante.Tomber_en_panne(true);
    Choisir(L"Fichiers", 1);
    Pilote::Cliquer(Fenetre().Controle(L"Imprimer"));
    const HWND echec = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(echec, nullptr);
    EXPECT_TRUE(Lire_boite(echec).texte.starts_with(L"L'impression a échoué.\r("));
    EXPECT_TRUE(Repondre_boite(echec, IDOK));
    EXPECT_EQ(Lu(), L"x\r\n");
    EXPECT_TRUE(Fenetre().Est_actif(L"Imprimer"));
}
