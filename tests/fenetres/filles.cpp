#include "fenetres/filles.h"

#include <algorithm>
#include <set>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

namespace {

// A point of the window that no control covers, or its caption bar.
POINT Point_nu(HWND fenetre) {
    RECT client{};
    GetClientRect(fenetre, &client);
    for (LONG y = client.bottom - 3; y > 0; y -= 3) {
        for (LONG x = 3; x < client.right; x += 3) {
            bool nu = true;
            for (HWND controle : Controles(fenetre)) {
                const RECT place = Place_client(controle);
                nu               = nu && !(Visible(controle) && PtInRect(&place, POINT{x, y}));
            }
            if (!nu) continue;
            POINT point{x, y};
            ClientToScreen(fenetre, &point);
            return point;
        }
    }
    return Centre(fenetre);
}

bool Explicable(HWND controle) {
    const std::wstring nom = Nom(controle);
    return Visible(controle) && !nom.starts_with(L"Ligne") && !nom.starts_with(L"Cadre") &&
           !nom.starts_with(L"Tip") && !nom.starts_with(L"Icone");
}

}  // namespace

void Filles::Ranger_principale() const {
    SetWindowPos(Principale(), nullptr, 20, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    Reposer(Principale());
}

Pilote::Fille Filles::Ouvrir_par(const std::wstring & bouton, Pilote::Fille fille) {
    Ranger_principale();
    Commencer(bouton);
    fille.Attendre_ouverte();
    return fille;
}

void Filles::Verifier_place(const Pilote::Fille & fille, int droite, int bas) const {
    HDC       ecran = GetDC(nullptr);
    const int ppp   = GetDeviceCaps(ecran, LOGPIXELSX);
    ReleaseDC(nullptr, ecran);
    const RECT mere = Place_ecran(Principale()), place = Place_ecran(fille.Fenetre());
    EXPECT_NEAR(place.left - mere.left, MulDiv(droite, ppp, 1440), 1);
    EXPECT_NEAR(place.top - mere.top, MulDiv(bas, ppp, 1440), 1);
}

void Filles::Verifier_clavier_et_disposition(const Pilote::Fille & fille, const Textes & attendus) const {
    EXPECT_EQ(fille.Defauts(), "");
    EXPECT_EQ(fille.Tour_du_clavier(false), attendus);
    Textes inverse = attendus;
    std::reverse(inverse.begin() + 1, inverse.end());
    EXPECT_EQ(fille.Tour_du_clavier(true), inverse);
    ATTENDRE(fille.Nom_du_focus() == attendus.front());
    EXPECT_FALSE(Active(Principale()));
}

LONG Filles::Hauteur_principale() const {
    const RECT place = Place_ecran(Principale());
    return place.bottom - place.top;
}

void Filles::Activer_aide() {
    const LONG avant = Hauteur_principale();
    Frapper(VK_F1);
    ATTENDRE(Hauteur_principale() > avant && Lire(L"Fenêtre").starts_with(L"  Vous avez activé"));
}

void Filles::Pointer_et_attendre(HWND controle, const std::wstring & texte) {
    Pointer(controle);
    EXPECT_TRUE(Attendre([&] { return Lire(L"Fenêtre") == texte; }, 1500))
        << Utf8(Nom(controle)) << " : " << Utf8(Lire(L"Fenêtre"));
}

void Filles::Verifier_aide(const Pilote::Fille & fille, const std::vector<Texte_aide> & attendus) {
    const POINT nu = Point_nu(fille.Fenetre());
    Pointer(nu);
    fille.Reposer();
    const std::wstring texte_fenetre = Lire(L"Fenêtre");
    EXPECT_EQ(Utf8(texte_fenetre.substr(0, 2)), "  ") << "la fenêtre elle-même";
    std::set<std::wstring> verifies;
    for (const Texte_aide & attendu : attendus) {
        if (attendu.controle[0])
            Pointer_et_attendre(fille.Controle(attendu.controle), attendu.texte);
        else
            EXPECT_EQ(Utf8(texte_fenetre), Utf8(attendu.texte));
        verifies.insert(attendu.controle);
    }
    for (HWND controle : Controles(fille.Fenetre())) {
        if (!Explicable(controle) || verifies.contains(Nom(controle))) continue;
        Pointer(nu);
        EXPECT_TRUE(Attendre([&] { return Lire(L"Fenêtre") == texte_fenetre; }, 1500));
        Pointer(controle);
        EXPECT_TRUE(Attendre([&] { return Lire(L"Fenêtre") != texte_fenetre; }, 1500))
            << Utf8(Nom(controle)) << " n'a pas de texte";
        EXPECT_EQ(Utf8(Lire(L"Fenêtre").substr(0, 2)), "  ") << Utf8(Nom(controle));
    }
}

void Filles::Attendre_rappel_aide() {
    ATTENDRE(Lire(L"Fenêtre") ==
             L"  Cliquez sur un élément de la fenêtre de KORVANE ou bien cliquez sur le point "
             L"d'interrogation ou appuyez sur la touche F1 pour arrêter l'aide.");
}

void Filles::Attendre_rapport(const std::wstring & commande, int code) {
    const HWND boite = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(boite, nullptr) << "aucun rapport pour " << Utf8(commande);
    const Boite        lue   = Lire_boite(boite);
    const std::wstring debut = L"Veuillez noter et transmettre à l'auteur. Merci\r\r";
    const std::wstring fin   = L" (code = " + std::to_wstring(code) + L")\rCommande: " + commande +
                             L" (fichier)\rSource: " + Lire(L"Chemin_srce") + L"\rDestination: " +
                             Lire(L"Chemin_dest") + L"\rEditeur: NOTEPAD.EXE\rVisualiseur: PELMIRA.EXE";
    EXPECT_EQ(Utf8(lue.titre), Utf8(L"Erreur détectée par KORVANE"));
    EXPECT_EQ(lue.style, rapport);
    EXPECT_TRUE(lue.texte.starts_with(debut)) << lue;
    EXPECT_TRUE(lue.texte.ends_with(fin)) << lue << "\n" << Utf8(fin);
    EXPECT_GT(lue.texte.size(), debut.size() + fin.size());
    EXPECT_TRUE(Repondre_boite(boite, IDOK));
}

void Filles::Verifier_principale_utilisable() {
    ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
    Attendre_fin_commande();
    Cliquer(L"Quitter");
    Attendre_boite(gestionnaire, L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?", oui_non, IDNO);
}
