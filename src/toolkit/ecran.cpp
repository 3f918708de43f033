#include "toolkit/ecran.h"

#include "platform/windows.h"
#include "toolkit/fenetre.h"
#include "toolkit/mesure.h"

#include <algorithm>

int Largeur_ecran() { return Twips(GetSystemMetrics(SM_CXSCREEN)); }

int Hauteur_ecran() { return Twips(GetSystemMetrics(SM_CYSCREEN)); }

Rectangle_twips Zone_de_travail(const Fenetre & fenetre) {
    MONITORINFO ecran{};
    ecran.cbSize = sizeof ecran;
    if (!GetMonitorInfoW(MonitorFromWindow(fenetre.Poignee(), MONITOR_DEFAULTTONEAREST), &ecran))
        return {0, 0, Largeur_ecran(), Hauteur_ecran()};
    const RECT & zone = ecran.rcWork;
    return {Twips(zone.left), Twips(zone.top), Twips(zone.right), Twips(zone.bottom)};
}

void Placer_a_l_ecran(Fenetre & fenetre, int left, int top, const Fenetre & autour) {
    const Rectangle_twips zone    = Zone_de_travail(autour);
    const int             gauche  = std::min(left, zone.droite - fenetre.Width());
    const int             en_haut = std::min(top, zone.bas - fenetre.Height());
    fenetre.Move(std::max(zone.gauche, gauche), std::max(zone.haut, en_haut));
}

Point_twips Pointeur(const Fenetre & fenetre) {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(fenetre.Poignee(), &point);
    return {Twips(point.x), Twips(point.y)};
}
