#include "fenetres/mesures.h"
#include "pilote/korvane.h"

#include <algorithm>
#include <cwctype>
#include <map>
#include <tuple>

using namespace Pilote;

// What a person who reads, clicks and types finds in the main window, in both of its modes.
class Disposition_lisible : public Korvane {
protected:
    void SetUp() override {
        Creer_fichier(dossier / L"a.txt", "x");  // an empty list has no copy
        for (int i = 1; i <= 9; ++i) Regler(L"Boutons", L"Bouton " + std::to_wstring(i), L"PROG.EXE");
        Lancer();
    }
    std::vector<HWND> Boutons() const {
        std::vector<HWND> boutons;
        for (HWND controle : Controles(Principale())) {
            if (Visible(controle) && Classe(controle) == L"Button") boutons.push_back(controle);
        }
        return boutons;
    }
    static std::wstring Sans_marque(std::wstring caption) {
        std::erase(caption, L'&');
        return caption;
    }
    static wchar_t Lettre(const std::wstring & caption) {
        const std::size_t marque = caption.find(L'&');
        return marque == std::wstring::npos ? L'\0'
                                            : static_cast<wchar_t>(std::towlower(caption.at(marque + 1)));
    }
    void Dans_les_deux_modes(const std::function<void()> & verification) {
        verification();
        Cliquer(L"Mode");
        SCOPED_TRACE("mode répertoire");
        verification();
    }
};

TEST_F(Disposition_lisible, chaque_bouton_contient_son_texte) {
    constexpr int bords = 8;  // pixels that a button's own frame takes
    Dans_les_deux_modes([this] {
        for (HWND bouton : Boutons()) {
            const RECT place  = Place_client(bouton);
            const SIZE taille = Taille_texte(Sans_marque(Texte(bouton)));
            EXPECT_LE(taille.cx + bords, place.right - place.left) << Utf8(Texte(bouton));
            EXPECT_LE(taille.cy + bords / 2, place.bottom - place.top) << Utf8(Texte(bouton));
        }
    });
}

TEST_F(Disposition_lisible, deux_boutons_n_ont_jamais_la_meme_lettre_et_chacun_a_la_sienne) {
    Dans_les_deux_modes([this] {
        std::map<wchar_t, std::wstring> lettres;
        for (HWND bouton : Boutons()) {
            const std::wstring nom     = Nom(bouton);
            const std::wstring caption = Texte(bouton);
            if (nom.starts_with(L"Bouton(") || nom == L"Aide") continue;
            const wchar_t lettre = Lettre(caption);
            EXPECT_TRUE(lettre >= L'a' && lettre <= L'z') << Utf8(caption);
            EXPECT_TRUE(lettres.emplace(lettre, caption).second)
                << Utf8(caption) << " et " << Utf8(lettres[lettre]);
        }
        EXPECT_GE(lettres.size(), 15u);
    });
}

// SOURCE pane, commands, DESTINATION pane, then the rows below; from top to bottom and from left to right in each.
TEST_F(Disposition_lisible, la_touche_de_tabulation_suit_l_ordre_de_lecture) {
    const auto rang = [this](HWND controle) {
        const RECT place  = Place_ecran(controle);
        const RECT gauche = Place_ecran(Controle(L"Cadre_srce"));
        const RECT droite = Place_ecran(Controle(L"Cadre_dest"));
        const int  zone   = place.top >= gauche.bottom   ? 3
                            : place.left >= droite.left  ? 2
                            : place.left >= gauche.right ? 1
                                                         : 0;
        return std::make_tuple(zone, place.top, place.left);
    };
    Cliquer(L"Chemin_srce");
    ATTENDRE(A_le_focus(L"Chemin_srce"));
    std::vector<std::wstring> parcourus{L"Chemin_srce"};
    for (int pas = 0; pas < 40; ++pas) {
        const std::wstring avant = Nom_du_focus();
        Frapper(VK_TAB);
        ASSERT_TRUE(Attendre([&] { return Nom_du_focus() != avant; })) << Utf8(avant);
        const std::wstring apres = Nom_du_focus();
        if (apres == L"Chemin_srce") break;
        // The swap button stands in the title of its pane, a little above the row's other controls.
        EXPECT_LT(rang(Controle(avant)), rang(Controle(apres))) << Utf8(avant) << " puis " << Utf8(apres);
        parcourus.push_back(apres);
    }
    ATTENDRE(Nom_du_focus() == L"Chemin_srce");
    for (const wchar_t * attendu :
         {L"Unité_srce", L"Sélection_fichiers", L"Répertoire_srce", L"Fichier_srce", L"Copier", L"Déplacer",
          L"Sélecte", L"Mode", L"Croiser", L"Chemin_dest", L"Unité_dest", L"Répertoire_dest", L"Fichier_dest",
          L"A_propos", L"Aide", L"Quitter"}) {
        EXPECT_NE(std::find(parcourus.begin(), parcourus.end(), attendu), parcourus.end()) << Utf8(attendu);
    }
}

// Panels and what stands on them apart, nothing lies on anything else, with the help panel open too.
TEST_F(Disposition_lisible, rien_ne_se_recouvre_dans_aucun_mode_aide_ouverte) {
    Frapper(VK_F1);
    ATTENDRE(!Lire(L"Fenêtre").empty());
    Dans_les_deux_modes([this] {
        std::vector<HWND> montres;
        for (HWND controle : Controles(Principale())) {
            if (Visible(controle) && !Nom(controle).starts_with(L"Cadre")) montres.push_back(controle);
        }
        EXPECT_GT(montres.size(), 40u);
        RECT interieur{};
        GetClientRect(Principale(), &interieur);
        for (std::size_t i = 0; i < montres.size(); ++i) {
            const RECT a = Place_client(montres[i]);
            EXPECT_LE(a.bottom, interieur.bottom) << Utf8(Nom(montres[i]));
            EXPECT_LE(a.right, interieur.right) << Utf8(Nom(montres[i]));
            for (std::size_t j = i + 1; j < montres.size(); ++j) {
                const RECT b = Place_client(montres[j]);
                RECT       commun{};
                EXPECT_FALSE(IntersectRect(&commun, &a, &b))
                    << Utf8(Nom(montres[i])) << " / " << Utf8(Nom(montres[j]));
            }
        }
    });
}
