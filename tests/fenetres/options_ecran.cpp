#include "fenetres/options.h"

using namespace Pilote;

namespace {

struct Cas {
    int      rang;
    COLORREF fond, ligne;
};

constexpr COLORREF gris_fonce = RGB(128, 128, 128), gris_clair = RGB(192, 192, 192);
constexpr Cas      couleurs[] = {
         {0, gris_fonce, gris_clair},
         {1, RGB(0, 0, 128), RGB(0, 0, 255)},
         {4, RGB(128, 0, 0), RGB(255, 0, 0)},
         {7, gris_clair, RGB(255, 255, 255)},
};

}  // namespace

// The colours, on a drawn screen.
class Ecran_options : public Options {
protected:
    // Just inside the lines of the sample, and on the one at its left.
    COLORREF Fond_exemple(const Pilote::Fille & fille) const {
        const RECT place = Place_ecran(fille.Controle(L"Exemple_fond"));
        return Point_ecran({place.left + 4, place.bottom - 5});
    }
    COLORREF Ligne_exemple(const Pilote::Fille & fille, int rang) const {
        return Point_ecran(Centre(fille.Controle(L"Ligne_exemple(" + std::to_wstring(rang) + L")")));
    }
    COLORREF Fond_cadre() const {
        const RECT place = Place_ecran(Controle(L"Cadre_srce"));
        return Point_ecran({place.left + 4, place.bottom - 4});
    }
    COLORREF Bord_cadre() const {
        const RECT place = Place_ecran(Controle(L"Cadre_srce"));
        return Point_ecran({place.left, place.bottom - 4});
    }
    void Aller_a(const Pilote::Fille & fille, int couleur) const {
        fille.Cliquer(L"Choix_couleur");
        Frapper(VK_HOME);
        for (int pas = 0; pas < couleur; ++pas) Frapper(VK_RIGHT);
        ATTENDRE(Couleur(fille) == couleur);
        fille.Reposer();
    }
};

TEST_F(Ecran_options, l_exemple_suit_la_barre_et_ok_donne_sa_couleur_a_la_fenetre_principale) {
    Lancer_dans_les_dossiers();
    for (const Cas & cas : couleurs) {
        SCOPED_TRACE(cas.rang);
        const auto fille = Rouvrir_options();
        Aller_a(fille, cas.rang);
        EXPECT_TRUE(Attendre([&] { return Fond_exemple(fille) == cas.fond; }))
            << std::hex << Fond_exemple(fille);
        for (int rang = 0; rang < 4; ++rang)
            EXPECT_TRUE(Attendre([&] { return Ligne_exemple(fille, rang) == cas.ligne; })) << rang;
        Accepter(fille);
        EXPECT_TRUE(Attendre([&] { return Fond_cadre() == cas.fond; })) << std::hex << Fond_cadre();
        EXPECT_TRUE(Attendre([&] { return Bord_cadre() == cas.ligne; })) << std::hex << Bord_cadre();
        EXPECT_TRUE(Attendre([&] { return Point_ecran(Centre(Controle(L"Ligne2"))) == cas.ligne; }));
        EXPECT_EQ(Cle(L"Couleur"), std::to_wstring(cas.rang));
    }
    // Given up: the window keeps the colour that it has.
    const auto fille = Rouvrir_options();
    Aller_a(fille, 2);
    Renoncer(fille);
    ATTENDRE(Fond_cadre() == gris_clair);
    // Settings that cannot be written: neither does the colour change.
    Attributs(Fichier_ini(), FILE_ATTRIBUTE_READONLY);
    const auto encore = Rouvrir_options();
    Aller_a(encore, 2);
    encore.Cliquer(L"OK");
    Attendre_protege(L"KORVANE.INI");
    EXPECT_EQ(Couleur(encore), 2);
    Renoncer(encore);
    ATTENDRE(Fond_cadre() == gris_clair);
    Attributs(Fichier_ini(), FILE_ATTRIBUTE_ARCHIVE);
}

TEST_F(Ecran_options, une_couleur_hors_de_la_barre_est_le_gris_au_demarrage_comme_dans_les_options) {
    for (const wchar_t * valeur : {L"8", L"9"}) {
        SCOPED_TRACE(Utf8(valeur));
        Regler(L"Options", L"Couleur", valeur);
        const auto fille = Ouvrir_options();
        EXPECT_EQ(Couleur(fille), 0);
        EXPECT_EQ(Fond_exemple(fille), gris_fonce);
        Renoncer(fille);
        EXPECT_TRUE(Attendre([&] { return Fond_cadre() == gris_fonce; })) << std::hex << Fond_cadre();
        Fermer();
    }
}
