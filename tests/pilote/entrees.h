#pragma once
#include "platform/windows.h"

#include <string>

// Real mouse and keyboard: what is sent goes to whatever lies under the pointer, or has the focus, as a
// user's would.
namespace Pilote {

POINT Centre(HWND fenetre);
// Middle of an entry of a list box, near its left side; the list is scrolled so that the entry shows.
POINT Point_entree(HWND liste, int rang);

void Pointer(POINT point);   // moves the mouse
void Pointer(HWND fenetre);  // to its centre
void Ecarter_pointeur();     // to the last corner of the screen
void Presser(POINT point);   // left button down
void Lacher(POINT point);
void Cliquer(POINT point);
void Cliquer(HWND fenetre);
void Cliquer_droit(POINT point);
void Double_cliquer(POINT point);
// With Ctrl (VK_CONTROL) or Shift (VK_SHIFT) held; `fenetre` is the one under the point.
void Cliquer_avec(WORD touche, POINT point, HWND fenetre);
void Glisser(POINT de, POINT a, HWND fenetre);
void Tourner_molette(HWND fenetre, int crans);  // away from the user when positive

void Enfoncer(WORD touche);
void Relever(WORD touche);
void Frapper(WORD touche);
void Frapper_avec(WORD modificatrice, WORD touche);
void Alt(wchar_t lettre);                // a plain letter
void Taper(const std::wstring & texte);  // any character
// The pointer and the keys settle: every event sent so far was treated by the window's thread.
void Reposer(HWND fenetre);

}  // namespace Pilote
