#include "toolkit/ecran.h"

#include "platform/windows.h"
#include "toolkit/fenetre.h"
#include "toolkit/mesure.h"

int Largeur_ecran() { return Twips(GetSystemMetrics(SM_CXSCREEN)); }

int Hauteur_ecran() { return Twips(GetSystemMetrics(SM_CYSCREEN)); }

Point_twips Pointeur(const Fenetre & fenetre) {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(fenetre.Poignee(), &point);
    return {Twips(point.x), Twips(point.y)};
}
