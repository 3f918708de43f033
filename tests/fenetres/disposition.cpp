#include "pilote/korvane.h"

#include <cmath>
#include <vector>

using namespace Pilote;

// The help panel stands below the window until help is on.
constexpr const wchar_t * panneau_aide = L"Fenêtre";

// The main window's layout, run at several resolutions of the screen. Places are compared in pixels at 96
// points by inch.
class Disposition : public Korvane {
protected:
    static double Echelle() {
        HDC       ecran = GetDC(nullptr);
        const int ppp   = GetDeviceCaps(ecran, LOGPIXELSX);
        ReleaseDC(nullptr, ecran);
        return ppp / 96.0;
    }
    RECT Client() const {
        RECT client{};
        GetClientRect(Principale(), &client);
        return client;
    }
    std::vector<HWND> Montres() const {
        std::vector<HWND> controles;
        for (HWND controle : Controles(Principale())) {
            if (Visible(controle) && Nom(controle) != panneau_aide) controles.push_back(controle);
        }
        return controles;
    }
};

TEST_F(Disposition, la_fenetre_a_la_taille_du_dessin_a_toute_resolution) {
    Lancer();
    EXPECT_NEAR(Client().right / Echelle(), 770, 2);
    EXPECT_NEAR(Client().bottom / Echelle(), 457, 2);
    const RECT copier = Place_client(Controle(L"Copier"));
    EXPECT_NEAR((copier.bottom - copier.top) / Echelle(), 24, 1);
    EXPECT_NEAR((copier.right - copier.left) / Echelle(), 138, 1);
}

TEST_F(Disposition, aucun_controle_visible_ne_sort_de_la_fenetre) {
    Lancer();
    const RECT client = Client();
    EXPECT_GT(Montres().size(), 30u);
    for (HWND controle : Montres()) {
        const RECT place = Place_client(controle);
        const bool dans =
            place.left >= 0 && place.top >= 0 && place.right <= client.right && place.bottom <= client.bottom;
        EXPECT_TRUE(dans) << Utf8(Nom(controle)) << " " << place.left << "," << place.top << " "
                          << place.right << "," << place.bottom;
    }
}

TEST_F(Disposition, deux_controles_que_l_on_peut_atteindre_ne_se_recouvrent_pas) {
    Lancer();
    std::vector<HWND> atteints;
    for (HWND controle : Montres()) {
        if (GetWindowLongW(controle, GWL_STYLE) & WS_TABSTOP) atteints.push_back(controle);
    }
    EXPECT_GT(atteints.size(), 20u);
    for (std::size_t i = 0; i < atteints.size(); ++i) {
        for (std::size_t j = i + 1; j < atteints.size(); ++j) {
            const RECT a = Place_ecran(atteints[i]), b = Place_ecran(atteints[j]);
            RECT       commun{};
            EXPECT_FALSE(IntersectRect(&commun, &a, &b))
                << Utf8(Nom(atteints[i])) << " / " << Utf8(Nom(atteints[j]));
        }
    }
}

TEST_F(Disposition, la_fenetre_et_son_panneau_d_aide_tiennent_dans_800_par_600) {
    Lancer();
    const LONG hauteur = Client().bottom;
    Frapper(VK_F1);
    ATTENDRE(Client().bottom > hauteur);
    const RECT cadre = Place_ecran(Principale());
    EXPECT_LE((cadre.right - cadre.left) / Echelle(), 800);
    EXPECT_LE(cadre.bottom / Echelle(), 600);
}
