#include "pilote/imprimante.h"
#include "platform/imprimante.h"
#include "services/banc.h"

#include <gtest/gtest.h>

using Pilote::Imprimante_essai;
using Textes = std::vector<std::string>;

namespace {

const std::wstring titre = L"Korvane - ÉTÉ (1).TXT";

std::string Fois(std::size_t nombre, const std::string & texte) {
    std::string resultat;
    for (std::size_t i = 0; i < nombre; ++i) resultat += texte;
    return resultat;
}

Textes Premieres_lignes(const Textes & pages) {
    Textes lignes;
    for (const std::string & page : pages) lignes.push_back(page.substr(0, page.find('\n')));
    return lignes;
}

}  // namespace

TEST(Impression, un_document_est_un_travail_a_son_titre_avec_ses_lignes) {
    const Imprimante_essai essai;
    for (int i = 0; i < 2; ++i) {
        Imprimante imprimante(titre);
        EXPECT_GE(imprimante.Colonnes(), 80u);
        imprimante.Ligne(L"première ligne");
        imprimante.Ligne(L"");
        imprimante.Ligne(L"    € œuvre (\\) %");
        imprimante.Terminer();
    }
    const auto travaux = essai.Travaux();
    ASSERT_EQ(2u, travaux.size());
    for (const auto & travail : travaux) {
        EXPECT_EQ(titre, travail.titre);
        EXPECT_EQ((Textes{"première ligne\n\n    € œuvre (\\) %\n"}), travail.pages);
    }
}

TEST(Impression, une_page_pleine_ou_un_saut_commence_la_suivante_sans_page_blanche) {
    const Imprimante_essai essai;
    Imprimante             imprimante(titre);
    const std::size_t      lignes = imprimante.Lignes();
    imprimante.Page_suivante();
    for (std::size_t i = 0; i < lignes; ++i) imprimante.Ligne(L"un");
    imprimante.Page_suivante();
    imprimante.Ligne(L"deux");
    imprimante.Page_suivante();
    imprimante.Page_suivante();
    for (std::size_t i = 0; i < lignes + 1; ++i) imprimante.Ligne(L"trois");
    imprimante.Terminer();
    const Textes attendues = {Fois(lignes, "un\n"), "deux\n", Fois(lignes, "trois\n"), "trois\n"};
    EXPECT_EQ(attendues, essai.Travaux().at(0).pages);
}

TEST(Impression, rien_ne_passe_la_marge_et_rien_ne_manque_des_lignes_longues) {
    const Imprimante_essai essai;
    Imprimante             imprimante(titre);
    for (const std::size_t longueur : {80u, 86u, 87u, 160u, 333u}) {
        imprimante.Ligne(std::wstring(longueur, L'x'));
        imprimante.Ligne(L"court");
        imprimante.Page_suivante();
    }
    imprimante.Terminer();
    const auto travail = essai.Travaux().at(0);
    EXPECT_EQ((Textes{Fois(80, "x"), Fois(86, "x"), Fois(87, "x"), Fois(160, "x"), Fois(333, "x")}),
              Premieres_lignes(travail.pages));
    // 595 points wide, margins of 15 mm: 42.5 points.
    EXPECT_GE(travail.gauche, 42);
    EXPECT_LE(travail.droite, 595 - 42);
    EXPECT_GE(travail.haut, 42);
    EXPECT_LE(travail.bas, 842 - 42);
}

TEST(Impression, un_document_abandonne_ou_sans_ligne_ne_sort_pas) {
    const Imprimante_essai essai;
    {
        Imprimante sans_fin(titre);
        for (std::size_t i = 0; i < sans_fin.Lignes() + 1; ++i) sans_fin.Ligne(L"perdue");
    }
    Imprimante vide(titre);
    vide.Terminer();
    EXPECT_TRUE(vide.Abandonnee());
    vide.Ligne(L"après la fin");
    Imprimante repris(titre);
    repris.Abandonner();
    repris.Ligne(L"après l'abandon");
    repris.Terminer();
    EXPECT_EQ(0u, essai.Nombre());
}

TEST(Impression, sans_imprimante_ou_si_elle_refuse_c_est_l_erreur_57) {
    EXPECT_EQ(57, Numero_leve([] { const Imprimante imprimante(titre); }));
    Imprimante_essai essai;
    essai.Tomber_en_panne(true);
    Imprimante imprimante(titre);
    imprimante.Ligne(L"perdue");
    EXPECT_EQ(57, Numero_leve([&] { imprimante.Terminer(); }));
    EXPECT_TRUE(imprimante.Abandonnee());
    essai.Tomber_en_panne(false);
    Imprimante reparee(titre);
    reparee.Ligne(L"sortie");
    reparee.Terminer();
    EXPECT_EQ(1u, essai.Nombre());
}

TEST(Impression, l_absence_d_imprimante_se_dit_avec_les_mots_du_systeme) {
    try {
        const Imprimante imprimante(titre);
        FAIL();
    } catch (const Erreur_execution & erreur) {
        EXPECT_EQ(DWORD{ERROR_INVALID_PRINTER_NAME}, erreur.code_systeme);
        EXPECT_FALSE(erreur.Texte().starts_with(L"Erreur système"));
    }
}
