#include "toolkit/ecran.h"

#include "platform/windows.h"
#include "toolkit/fenetre.h"
#include "toolkit/mesure.h"

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

Point_twips Pointeur(const Fenetre & fenetre) {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(fenetre.Poignee(), &point);
    return {Twips(point.x), Twips(point.y)};
}
