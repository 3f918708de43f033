#include "coupures/interception.h"
#include "pilote/imprimante.h"
#include "platform/imprimante.h"
#include "services/banc.h"

#include <gtest/gtest.h>

using Interception::Detournement;
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

// Calls that fail, with that code or none.
DWORD code_panne = 0;

template <class Resultat, Resultat echec, class... A> Resultat WINAPI Echouer(A...) {
    if (code_panne != 0) SetLastError(code_panne);
    return echec;
}
template <auto echec, class... A> void * En_panne(decltype(echec)(WINAPI *)(A...)) {
    return reinterpret_cast<void *>(&Echouer<decltype(echec), echec, A...>);
}
HFONT WINAPI Sans_police(int, int, int, int, int, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                         LPCWSTR) {
    return Echouer<HFONT, nullptr>();
}
// A success may leave a code too.
BOOL WINAPI Mesurer_avec_un_code(HDC, LPCWSTR, int, SIZE * etendue) {
    *etendue = {};
    SetLastError(ERROR_FILE_NOT_FOUND);
    return TRUE;
}
HFONT WINAPI Police_unique(int, int, int, int, int, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                           LPCWSTR) {
    LOGFONTW police{};
    police.lfHeight         = -41;
    police.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    return CreateFontIndirectW(&police);
}

// The system's code of the printer's failure, 0 when it does not fail.
DWORD Code_leve(const std::function<void()> & acte) {
    try {
        acte();
    } catch (const Erreur_execution & erreur) {
        EXPECT_EQ(57, erreur.numero);
        return erreur.code_systeme;
    }
    return 0;
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

TEST(Impression, un_appel_qui_echoue_est_l_erreur_57_a_son_propre_code_et_rien_ne_sort) {
    const struct {
        const char * nom;
        void *       autre;
    } appels[] = {{"StartDocW", En_panne<0>(&StartDocW)},
                  {"StartPage", En_panne<-1>(&StartPage)},
                  {"CreateFontW", reinterpret_cast<void *>(&Sans_police)},
                  {"ExtTextOutW", En_panne<FALSE>(&ExtTextOutW)},
                  {"EndPage", En_panne<0>(&EndPage)},
                  {"EndDoc", En_panne<0>(&EndDoc)}};
    const Imprimante_essai essai;
    const Detournement     mesure("GetTextExtentPoint32W", &Mesurer_avec_un_code);
    const auto             imprimer = [] {
        Imprimante imprimante(titre);
        imprimante.Ligne(L"texte");
        imprimante.Terminer();
    };
    for (const auto & appel : appels) {
        const Detournement panne(appel.nom, appel.autre);
        for (const DWORD code : {ERROR_DISK_FULL, ERROR_INVALID_HANDLE, ERROR_SUCCESS}) {
            code_panne          = code;
            const DWORD attendu = code == ERROR_DISK_FULL ? code : ERROR_WRITE_FAULT;
            EXPECT_EQ(attendu, Code_leve(imprimer)) << appel.nom << " " << code;
        }
    }
    EXPECT_EQ(0u, essai.Nombre());
    EXPECT_EQ(DWORD{0}, Code_leve(imprimer));
    EXPECT_EQ(1u, essai.Nombre());
}

TEST(Impression, un_document_refuse_par_l_utilisateur_n_est_pas_une_erreur) {
    const Imprimante_essai essai;
    const Detournement     refus("StartDocW", En_panne<0>(&StartDocW));
    for (const DWORD code : {ERROR_CANCELLED, ERROR_PRINT_CANCELLED}) {
        code_panne = code;
        Imprimante imprimante(titre);
        EXPECT_TRUE(imprimante.Abandonnee());
        imprimante.Ligne(L"perdue");
        imprimante.Terminer();
    }
    EXPECT_EQ(0u, essai.Nombre());
}

TEST(Impression, une_imprimante_a_une_seule_police_perd_sa_marge_avant_son_texte) {
    const Imprimante_essai essai;
    const Detournement     seule("CreateFontW", &Police_unique);
    Imprimante             imprimante(titre);
    imprimante.Ligne(std::wstring(98, L'x'));
    imprimante.Terminer();
    const auto travail = essai.Travaux().at(0);
    EXPECT_EQ((Textes{std::string(98, 'x') + "\n"}), travail.pages);
    EXPECT_LE(travail.gauche, 1);
    EXPECT_LE(travail.droite, 595);
}
