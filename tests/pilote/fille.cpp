#include "pilote/fille.h"

#include "pilote/attente.h"
#include "pilote/entrees.h"
#include "pilote/fenetres.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <map>
#include <sstream>
#include <utility>

namespace Pilote {

namespace {

constexpr std::size_t tour_maximal = 40;

wchar_t Lettre_acces(const std::wstring & legende) {
    const std::size_t place = legende.find(L'&');
    if (place == std::wstring::npos || place + 1 >= legende.size() || legende[place + 1] == L'&') return 0;
    return static_cast<wchar_t>(std::towupper(legende[place + 1]));
}

std::vector<HWND> Montres(HWND fenetre) {
    std::vector<HWND> montres;
    for (HWND controle : Controles(fenetre)) {
        if (Visible(controle)) montres.push_back(controle);
    }
    return montres;
}

bool Prend_le_focus(HWND controle) { return (GetWindowLongW(controle, GWL_STYLE) & WS_TABSTOP) != 0; }

void Decrire_places(HWND fenetre, std::ostream & defauts) {
    RECT client{};
    GetClientRect(fenetre, &client);
    const auto montres = Montres(fenetre);
    for (std::size_t i = 0; i < montres.size(); ++i) {
        const RECT a = Place_client(montres[i]);
        if (a.left < 0 || a.top < 0 || a.right > client.right || a.bottom > client.bottom)
            defauts << Utf8(Nom(montres[i])) << " sort de la fenêtre\n";
        for (std::size_t j = i + 1; j < montres.size(); ++j) {
            const RECT b = Place_client(montres[j]);
            RECT       commun{};
            if (Prend_le_focus(montres[i]) && Prend_le_focus(montres[j]) && IntersectRect(&commun, &a, &b))
                defauts << Utf8(Nom(montres[i])) << " recouvre " << Utf8(Nom(montres[j])) << "\n";
        }
    }
}

void Decrire_lettres(HWND fenetre, std::ostream & defauts) {
    std::map<wchar_t, std::wstring> prises;
    for (HWND controle : Montres(fenetre)) {
        const wchar_t lettre = Lettre_acces(Texte(controle));
        if (!lettre) continue;
        const auto [autre, libre] = prises.emplace(lettre, Nom(controle));
        if (!libre)
            defauts << "la lettre d'accès de " << Utf8(Nom(controle)) << " est celle de "
                    << Utf8(autre->second) << "\n";
    }
}

}  // namespace

Fille::Fille(DWORD processus, std::wstring nom) : processus_(processus), nom_(std::move(nom)) {}

HWND Fille::Fenetre() const { return Fenetre_nommee(processus_, nom_); }

void Fille::Attendre_ouverte(unsigned delai) const {
    const auto devant = [this] { return Fenetre() && GetForegroundWindow() == Fenetre(); };
    ASSERT_TRUE(Pilote::Attendre(devant, delai)) << Utf8(nom_) << " ne s'ouvre pas";
    ATTENDRE(Focus(Fenetre()) != nullptr);
    Reposer();
}

void Fille::Attendre_fermee(unsigned delai) const {
    EXPECT_TRUE(Pilote::Attendre([this] { return !Ouverte(); }, delai)) << Utf8(nom_) << " reste ouverte";
}

HWND Fille::Controle(const std::wstring & nom) const {
    const HWND controle = Controle_nomme(Fenetre(), nom);
    EXPECT_NE(controle, nullptr) << Utf8(nom_) << " n'a pas de contrôle " << Utf8(nom);
    return controle;
}

std::wstring Fille::Titre() const { return Texte(Fenetre()); }

std::wstring Fille::Lire(const std::wstring & nom) const { return Texte(Controle(nom)); }

bool Fille::Se_voit(const std::wstring & nom) const { return Visible(Controle(nom)); }

bool Fille::Est_actif(const std::wstring & nom) const { return Active(Controle(nom)); }

bool Fille::Est_coche(const std::wstring & nom) const { return Cochee(Controle(nom)); }

std::wstring Fille::Nom_du_focus() const { return Nom(Focus(Fenetre())); }

std::vector<std::wstring> Fille::Entrees(const std::wstring & liste) const {
    return Pilote::Entrees(Controle(liste));
}

std::vector<std::wstring> Fille::Choisies(const std::wstring & liste) const {
    return Selection(Controle(liste));
}

void Fille::Reposer() const { Pilote::Reposer(Fenetre()); }

void Fille::Cliquer(const std::wstring & nom) const {
    const HWND controle = Controle(nom);
    EXPECT_TRUE(Visible(controle) && Active(controle)) << Utf8(nom) << " ne peut être cliqué";
    Pilote::Cliquer(controle);
    Pilote::Reposer(controle);
}

void Fille::Remplacer(const std::wstring & champ, const std::wstring & texte) const {
    Vider(champ);
    Taper(texte);
    EXPECT_TRUE(Pilote::Attendre([&] { return Lire(champ) == texte; }))
        << Utf8(champ) << " : " << Utf8(Lire(champ)) << " au lieu de " << Utf8(texte);
}

void Fille::Vider(const std::wstring & champ) const {
    Cliquer(champ);
    ATTENDRE(Nom_du_focus() == champ);
    Frapper(VK_HOME);
    Enfoncer(VK_SHIFT);
    Frapper(VK_END);
    Relever(VK_SHIFT);
    Frapper(VK_DELETE);
    ATTENDRE(Lire(champ).empty());
}

void Fille::Choisir(const std::wstring & liste, const std::vector<int> & rangs) const {
    const HWND  fenetre = Controle(liste);
    std::size_t choisis = 0;
    for (int rang : rangs) {
        const POINT point = Point_entree(fenetre, rang);
        if (choisis == 0)
            Pilote::Cliquer(point);
        else
            Cliquer_avec(VK_CONTROL, point, fenetre);
        ++choisis;
        EXPECT_TRUE(
            Pilote::Attendre([&] { return static_cast<std::size_t>(Nombre_selection(fenetre)) == choisis; }));
    }
    EXPECT_EQ(Rangs_selection(fenetre), rangs);
}

void Fille::Double_cliquer(const std::wstring & liste, int rang) const {
    const HWND fenetre = Controle(liste);
    Pilote::Double_cliquer(Point_entree(fenetre, rang));
    Pilote::Reposer(fenetre);
}

void Fille::Fermer_par_la_croix() const { PostMessageW(Fenetre(), WM_SYSCOMMAND, SC_CLOSE, 0); }

std::vector<std::wstring> Fille::Tour_du_clavier(bool en_arriere) const {
    const std::wstring        depart = Nom_du_focus();
    std::vector<std::wstring> tour{depart};
    while (tour.size() < tour_maximal) {
        const HWND avant = Focus(Fenetre());
        if (en_arriere)
            Frapper_avec(VK_SHIFT, VK_TAB);
        else
            Frapper(VK_TAB);
        if (!Pilote::Attendre([&] { return Focus(Fenetre()) != avant; }, 2000) || Nom_du_focus() == depart)
            break;
        tour.push_back(Nom_du_focus());
    }
    return tour;
}

std::string Fille::Defauts() const {
    std::ostringstream defauts;
    Decrire_places(Fenetre(), defauts);
    Decrire_lettres(Fenetre(), defauts);
    return defauts.str();
}

}  // namespace Pilote
