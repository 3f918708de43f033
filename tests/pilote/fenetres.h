#pragma once
#include "platform/windows.h"

#include <functional>
#include <string>
#include <vector>

// Reading the windows of another process. A null window gives empty texts, empty lists and false.
namespace Pilote {

std::wstring Nom(HWND fenetre);  // form or control name
std::wstring Classe(HWND fenetre);
std::wstring Texte(HWND fenetre);  // whole; "<sans réponse>" when the process does not answer for 3 s

bool     Visible(HWND fenetre);  // and so are its parents
bool     Active(HWND fenetre);   // enabled
bool     Cochee(HWND bouton);
RECT     Place_ecran(HWND fenetre);    // screen pixels
COLORREF Point_ecran(POINT point);     // what a drawn screen shows there
RECT     Place_client(HWND controle);  // pixels of its window's client area
bool     Sablier(HWND principale);     // the program shows the hourglass
// The queue of the window's thread was emptied within `delai` milliseconds.
bool Repond(HWND fenetre, unsigned delai = 5000);

// Visible top-level windows of a process, topmost first.
std::vector<HWND> Fenetres(DWORD processus);
// The visible top-level window with a form name, or null.
HWND Fenetre_nommee(DWORD processus, const std::wstring & nom);
// A control of a window, at any depth, or null.
HWND Controle_nomme(HWND fenetre, const std::wstring & nom);
// Every control that carries a name, in tab order.
std::vector<HWND> Controles(HWND fenetre);
void              Parcourir(HWND fenetre, const std::function<void(HWND)> & visite);
HWND              Focus(HWND fenetre);  // window with the focus of the thread that owns `fenetre`

// List boxes and combo boxes alike.
int                       Nombre_entrees(HWND liste);
std::wstring              Entree(HWND liste, int rang);
std::vector<std::wstring> Entrees(HWND liste);
int                       Rang_entree(HWND liste, const std::wstring & texte);  // without regard to case; -1
int                       Entree_courante(HWND liste);                          // with the focus, -1 for none
bool                      Deroulee(HWND combinee);
HWND                      Liste_deroulee(HWND combinee);  // the open list of a combo box, or null

// List boxes with extended selection.
int                       Nombre_selection(HWND liste);
std::vector<int>          Rangs_selection(HWND liste);
std::vector<std::wstring> Selection(HWND liste);
int                       Premiere_visible(HWND liste);

}  // namespace Pilote
