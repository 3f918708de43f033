#include "fenetres/montre.h"

#include <set>

using namespace Pilote;

namespace {

// Distinct colours met on a grid of points of a window.
std::size_t Nombre_couleurs(HWND fenetre) {
    const RECT         place = Place_ecran(fenetre);
    std::set<COLORREF> couleurs;
    for (LONG y = place.top + 1; y < place.bottom; y += 3) {
        for (LONG x = place.left + 1; x < place.right; x += 3) couleurs.insert(Point_ecran({x, y}));
    }
    return couleurs.size();
}

POINT Dans(HWND fenetre, int pour_mille) {
    const RECT place = Place_ecran(fenetre);
    return {place.left + (place.right - place.left) * pour_mille / 1000, place.top + 3};
}

}  // namespace

// On a drawn screen.
class Ecran : public Montre {
protected:
    // Just inside the border of the SOURCE panel, where nothing stands on it.
    COLORREF Couleur_cadre() const {
        const RECT place = Place_ecran(Controle(L"Cadre_srce"));
        return Point_ecran({place.left + 4, place.bottom - 4});
    }
};

TEST_F(Ecran, la_fenetre_principale_est_dessinee_avec_ce_qu_elle_contient) {
    Creer_source(L"a.txt", 1);
    Lancer_dans_les_dossiers();
    EXPECT_GE(Nombre_couleurs(Principale()), 8u);
    for (const wchar_t * controle :
         {L"Copier", L"Fichier_srce", L"Répertoire_srce", L"Chemin_srce", L"Quitter"}) {
        EXPECT_GE(Nombre_couleurs(Controle(controle)), 2u) << Utf8(controle);
    }
}

TEST_F(Ecran, la_couleur_choisie_est_celle_des_cadres) {
    struct Cas {
        const wchar_t * valeur;
        COLORREF        couleur;
    };
    for (const Cas & cas :
         {Cas{L"0", RGB(128, 128, 128)}, Cas{L"1", RGB(0, 0, 128)}, Cas{L"12", RGB(0, 0, 128)},
          Cas{L"2", RGB(0, 128, 0)}, Cas{L"x", RGB(128, 128, 128)}}) {
        Regler(L"Options", L"Couleur", cas.valeur);
        Lancer();
        EXPECT_TRUE(Attendre([&] { return Couleur_cadre() == cas.couleur; }))
            << Utf8(cas.valeur) << " : " << std::hex << Couleur_cadre();
        Fermer();
    }
}

TEST_F(Ecran, la_jauge_est_remplie_en_proportion) {
    Lancer_vitrine();
    Cliquer(L"Info");
    EXIGER(Fenetre(L"Vitrine") && GetForegroundWindow() == Fenetre(L"Vitrine"));
    Reposer(Fenetre(L"Vitrine"));
    const HWND barre = Controle(L"Vitrine", L"Barre");
    const HWND jauge = Controle(L"Vitrine", L"Jauge");
    const RECT place = Place_ecran(barre);
    for (int valeur = 1; valeur <= 5; ++valeur) {
        Pilote::Cliquer(POINT{place.right - 4, (place.top + place.bottom) / 2});
        Attendre_ligne(L"barre " + std::to_wstring(valeur));
    }
    const COLORREF remplie = GetSysColor(COLOR_HIGHLIGHT);
    const COLORREF vide    = GetSysColor(COLOR_WINDOW);
    // Five fifteenths: a third.
    ATTENDRE(Point_ecran(Dans(jauge, 310)) == remplie);
    EXPECT_EQ(Point_ecran(Dans(jauge, 20)), remplie);
    EXPECT_EQ(Point_ecran(Dans(jauge, 360)), vide);
    EXPECT_EQ(Point_ecran(Dans(jauge, 980)), vide);
}

TEST_F(Ecran, l_astuce_et_le_panneau_d_aide_se_dessinent_au_passage_du_pointeur) {
    const std::wstring nom =
        L"Un nom de fichier bien trop long pour tenir dans la largeur de la liste des fichiers.txt";
    Creer_fichier(Source(nom), "x");
    Lancer_dans_les_dossiers();
    Frapper(VK_F1);
    ATTENDRE(!Lire(L"Fenêtre").empty());
    Pointer(Point_entree(Controle(L"Fichier_srce"), 0));
    EXIGER(Se_voit(L"Tip"));
    const RECT  astuce = Place_ecran(Controle(L"Tip"));
    const POINT coin{astuce.left + 2, astuce.top + 2};
    // Neither the list behind it nor the window.
    ATTENDRE(Point_ecran(coin) != GetSysColor(COLOR_WINDOW) &&
             Point_ecran(coin) != GetSysColor(COLOR_BTNFACE));
    EXPECT_GE(Nombre_couleurs(Controle(L"Tip")), 2u);
    EXPECT_GE(Nombre_couleurs(Controle(L"Fenêtre")), 2u);
}
