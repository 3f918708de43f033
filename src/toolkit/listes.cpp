#include "toolkit/listes.h"

#include "platform/windows.h"
#include "toolkit/interne.h"
#include "toolkit/mesure.h"

#include <algorithm>
#include <commctrl.h>

namespace {
DWORD Style_liste(bool multiple, bool dessinee) {
    DWORD style = WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
    if (multiple) style |= LBS_EXTENDEDSEL;
    if (dessinee) style |= LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
    return style;
}
}  // namespace

Liste::Liste(Fenetre & fenetre, const Place & place, bool multiple) : Liste(fenetre, place, multiple, false) {}

Liste::Liste(Fenetre & fenetre, const Place & place, bool multiple, bool dessinee)
    : Controle(fenetre, place, {WC_LISTBOXW, Style_liste(multiple, dessinee), WS_EX_CLIENTEDGE, true}),
      multiple_(multiple) {
    BackColor(couleur_fond_fenetre);
    ForeColor(couleur_texte_fenetre);
}

int Liste::ListCount() const {
    return static_cast<int>(Envoyer(LB_GETCOUNT));
}

std::wstring Liste::List(int index) const {
    const std::intptr_t longueur = Envoyer(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    if (longueur == LB_ERR) return {};
    std::wstring texte(static_cast<std::size_t>(longueur) + 1, L'\0');
    Envoyer(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(texte.data()));
    texte.resize(static_cast<std::size_t>(longueur));
    return texte;
}

int Liste::ListIndex() const {
    if (!multiple_) return static_cast<int>(Envoyer(LB_GETCURSEL));
    // The system gives a list just filled a focus entry that nobody chose.
    return touche_ ? static_cast<int>(Envoyer(LB_GETCARETINDEX)) : -1;
}

void Liste::ListIndex(int index) {
    if (index == ListIndex()) return;
    if (!multiple_) {
        Envoyer(LB_SETCURSEL, static_cast<WPARAM>(index));
    } else {
        touche_ = index >= 0;
        if (touche_) Envoyer(LB_SETCARETINDEX, static_cast<WPARAM>(index), FALSE);
    }
    if (Click) Click();
}

bool Liste::Selected(int index) const {
    return Envoyer(LB_GETSEL, static_cast<WPARAM>(index)) > 0;
}

void Liste::Selected(int index, bool choisi) {
    if (index < 0 || index >= ListCount() || Selected(index) == choisi) return;
    if (multiple_) {
        Envoyer(LB_SETSEL, choisi ? TRUE : FALSE, index);
        if (choisi) {
            touche_ = true;
            Envoyer(LB_SETCARETINDEX, static_cast<WPARAM>(index), FALSE);
        }
    } else {
        Envoyer(LB_SETCURSEL, choisi ? static_cast<WPARAM>(index) : static_cast<WPARAM>(-1));
    }
    if (Click) Click();
}

std::vector<int> Liste::Selection() const {
    if (!multiple_) return ListIndex() >= 0 ? std::vector<int>{ListIndex()} : std::vector<int>{};
    const std::intptr_t nombre = Envoyer(LB_GETSELCOUNT);
    std::vector<int>    indices(nombre > 0 ? static_cast<std::size_t>(nombre) : 0U);
    if (!indices.empty()) Envoyer(LB_GETSELITEMS, indices.size(), reinterpret_cast<LPARAM>(indices.data()));
    return indices;
}

void Liste::Tout_selectionner(bool choisi) {
    if (multiple_) Envoyer(LB_SETSEL, choisi ? TRUE : FALSE, -1);
    else if (!choisi) Envoyer(LB_SETCURSEL, static_cast<WPARAM>(-1));
}

int Liste::TopIndex() const {
    return static_cast<int>(Envoyer(LB_GETTOPINDEX));
}

void Liste::TopIndex(int index) {
    Envoyer(LB_SETTOPINDEX, static_cast<WPARAM>(index));
}

void Liste::AddItem(const std::wstring & texte) {
    Envoyer(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(texte.c_str()));
}

void Liste::RemoveItem(int index) {
    Envoyer(LB_DELETESTRING, static_cast<WPARAM>(index));
}

void Liste::Clear() {
    touche_ = false;
    Envoyer(LB_RESETCONTENT);
}

void Liste::Remplir(const std::vector<const wchar_t *> & textes) {
    Envoyer(WM_SETREDRAW, FALSE);
    Clear();
    // 32 bytes a name is what most need; the list grows by itself beyond.
    Envoyer(LB_INITSTORAGE, textes.size(), static_cast<LPARAM>(textes.size() * 32));
    for (const wchar_t * texte : textes) Envoyer(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(texte));
    Envoyer(WM_SETREDRAW, TRUE);
    Refresh();
}

int Liste::Entree_survolee(bool & coupee) const {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(Poignee(), &point);
    RECT interieur{};
    GetClientRect(Poignee(), &interieur);
    if (PtInRect(&interieur, point) == FALSE) return -1;
    const auto trouve = static_cast<DWORD>(Envoyer(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y)));
    if (HIWORD(trouve) != 0) return -1;
    // The message holds 16 bits of an index: long lists are counted from their first visible entry.
    const int ligne = TopIndex() + static_cast<int>((point.y - interieur.top) / std::max<std::intptr_t>(1, Envoyer(LB_GETITEMHEIGHT)));
    if (ligne >= static_cast<int>(Envoyer(LB_GETCOUNT))) return -1;
    HDC                dessin = GetDC(Poignee());
    const HGDIOBJ      avant  = SelectObject(dessin, reinterpret_cast<HGDIOBJ>(Envoyer(WM_GETFONT)));
    const std::wstring texte  = Liste::List(ligne);
    SIZE               taille{};
    GetTextExtentPoint32W(dessin, texte.c_str(), static_cast<int>(texte.size()), &taille);
    SelectObject(dessin, avant);
    ReleaseDC(Poignee(), dessin);
    coupee = Retrait(ligne) + taille.cx + Pixels(45) > interieur.right;
    return ligne;
}

void Liste::Notification(unsigned code) {
    if (code == LBN_SELCHANGE) {
        touche_ = true;
        if (Click) Click();
    } else if (code == LBN_DBLCLK && DblClick) {
        DblClick();
    }
}

bool Liste::Message(unsigned message, std::uintptr_t mot, std::intptr_t, std::intptr_t & resultat) {
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) souris_ = true;
    if (message == WM_KEYDOWN) souris_ = false;
    if (message == WM_KEYDOWN && mot == 'A' && GetKeyState(VK_CONTROL) < 0 && multiple_) {
        Tout_selectionner(true);
        touche_ = true;
        if (Click) Click();
        resultat = 0;
        return true;
    }
    // Ctrl+A would go on as a first-letter search.
    return message == WM_CHAR && mot < L' ';
}

void Liste::Apres_message(unsigned message, std::uintptr_t, std::intptr_t) {
    if ((message == WM_VSCROLL || message == WM_MOUSEWHEEL) && Scroll) Scroll();
}
