#include "pilote/entrees.h"

#include "pilote/fenetres.h"

#include <cstdlib>
#include <cwctype>

namespace Pilote {

namespace {

constexpr int marge_entree = 20;  // pixels from the left side of a list, past the picture of an entry

INPUT Evenement_souris(POINT point, DWORD action, int donnee = 0) {
    const LONG largeur = GetSystemMetrics(SM_CXSCREEN);
    const LONG hauteur = GetSystemMetrics(SM_CYSCREEN);
    INPUT      evenement{};
    evenement.type = INPUT_MOUSE;
    // Rounded upwards: the system's own division gives the very same pixel back.
    evenement.mi.dx        = (point.x * 65536L + largeur - 1) / largeur;
    evenement.mi.dy        = (point.y * 65536L + hauteur - 1) / hauteur;
    evenement.mi.dwFlags   = action | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    evenement.mi.mouseData = static_cast<DWORD>(donnee);
    return evenement;
}

void Souris(POINT point, DWORD action) {
    INPUT evenement = Evenement_souris(point, action);
    SendInput(1, &evenement, sizeof evenement);
}

bool Touche_etendue(WORD touche) {
    switch (touche) {
    case VK_DELETE:
    case VK_INSERT:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_UP:
    case VK_DOWN:
    case VK_LEFT:
    case VK_RIGHT: return true;
    default: return false;
    }
}

void Clavier(WORD touche, DWORD action) {
    INPUT evenement{};
    evenement.type       = INPUT_KEYBOARD;
    evenement.ki.wVk     = touche;
    evenement.ki.wScan   = static_cast<WORD>(MapVirtualKeyW(touche, MAPVK_VK_TO_VSC));
    evenement.ki.dwFlags = action | (Touche_etendue(touche) ? KEYEVENTF_EXTENDEDKEY : 0);
    SendInput(1, &evenement, sizeof evenement);
}

// Two clicks on one place are a double click when the second follows soon: it waits.
void Separer_des_clics_precedents(POINT point) {
    static POINT     dernier_point{-100, -100};
    static ULONGLONG dernier_clic = 0;
    const ULONGLONG  passe        = GetTickCount64() - dernier_clic;
    const UINT       delai        = GetDoubleClickTime();
    if (std::abs(point.x - dernier_point.x) < 8 && std::abs(point.y - dernier_point.y) < 8 &&
        passe <= delai) {
        Sleep(delai + 20 - static_cast<DWORD>(passe));
    }
    dernier_point = point;
    dernier_clic  = GetTickCount64();
}

}  // namespace

POINT Centre(HWND fenetre) {
    const RECT place = Place_ecran(fenetre);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

POINT Point_entree(HWND liste, int rang) {
    RECT entree{};
    RECT client{};
    GetClientRect(liste, &client);
    SendMessageW(liste, LB_GETITEMRECT, static_cast<WPARAM>(rang), reinterpret_cast<LPARAM>(&entree));
    if (entree.top < 0 || entree.bottom > client.bottom) {
        SendMessageW(liste, LB_SETTOPINDEX, static_cast<WPARAM>(rang), 0);
        SendMessageW(liste, LB_GETITEMRECT, static_cast<WPARAM>(rang), reinterpret_cast<LPARAM>(&entree));
    }
    POINT point{entree.left + marge_entree, (entree.top + entree.bottom) / 2};
    MapWindowPoints(liste, nullptr, &point, 1);
    return point;
}

void Pointer(POINT point) { Souris(point, 0); }

void Pointer(HWND fenetre) { Pointer(Centre(fenetre)); }

void Ecarter_pointeur() {
    Pointer(POINT{GetSystemMetrics(SM_CXSCREEN) - 2, GetSystemMetrics(SM_CYSCREEN) - 2});
}

void Presser(POINT point) { Souris(point, MOUSEEVENTF_LEFTDOWN); }

void Lacher(POINT point) { Souris(point, MOUSEEVENTF_LEFTUP); }

void Cliquer(POINT point) {
    Separer_des_clics_precedents(point);
    Pointer(point);
    Presser(point);
    Lacher(point);
}

void Cliquer(HWND fenetre) { Cliquer(Centre(fenetre)); }

void Cliquer_droit(POINT point) {
    Pointer(point);
    Souris(point, MOUSEEVENTF_RIGHTDOWN);
    Souris(point, MOUSEEVENTF_RIGHTUP);
}

void Double_cliquer(POINT point) {
    Cliquer(point);
    Presser(point);
    Lacher(point);
}

// The pointer goes there first: its jump on a drawn screen puts the modifier keys up again.
void Cliquer_avec(WORD touche, POINT point, HWND fenetre) {
    Pointer(point);
    Reposer(fenetre);
    Enfoncer(touche);
    Cliquer(point);
    Relever(touche);
}

void Glisser(POINT de, POINT a, HWND fenetre) {
    constexpr int pas = 4;
    Pointer(de);
    Reposer(fenetre);
    Presser(de);
    Reposer(fenetre);
    for (int i = 1; i <= pas; ++i) {
        Pointer(POINT{de.x + (a.x - de.x) * i / pas, de.y + (a.y - de.y) * i / pas});
        Reposer(fenetre);
    }
    Lacher(a);
    Reposer(fenetre);
}

void Tourner_molette(HWND fenetre, int crans) {
    Pointer(fenetre);
    Reposer(fenetre);
    INPUT evenement = Evenement_souris(Centre(fenetre), MOUSEEVENTF_WHEEL, crans * WHEEL_DELTA);
    SendInput(1, &evenement, sizeof evenement);
}

void Enfoncer(WORD touche) { Clavier(touche, 0); }

void Relever(WORD touche) { Clavier(touche, KEYEVENTF_KEYUP); }

void Frapper(WORD touche) {
    Enfoncer(touche);
    Relever(touche);
}

void Frapper_avec(WORD modificatrice, WORD touche) {
    Enfoncer(modificatrice);
    Frapper(touche);
    Relever(modificatrice);
}

void Alt(wchar_t lettre) { Frapper_avec(VK_MENU, static_cast<WORD>(std::towupper(lettre))); }

void Taper(const std::wstring & texte) {
    for (wchar_t caractere : texte) {
        INPUT evenements[2]{};
        for (INPUT & evenement : evenements) {
            evenement.type       = INPUT_KEYBOARD;
            evenement.ki.wScan   = caractere;
            evenement.ki.dwFlags = KEYEVENTF_UNICODE;
        }
        evenements[1].ki.dwFlags |= KEYEVENTF_KEYUP;
        SendInput(2, evenements, sizeof(INPUT));
    }
}

void Reposer(HWND fenetre) {
    Sleep(30);
    Repond(fenetre, 2000);
}

}  // namespace Pilote
