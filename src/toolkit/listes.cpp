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

Liste::Liste(Fenetre & fenetre, const Place & place, bool multiple)
    : Liste(fenetre, place, multiple, false) {}

Liste::Liste(Fenetre & fenetre, const Place & place, bool multiple, bool dessinee)
    : Controle(fenetre, place, {WC_LISTBOXW, Style_liste(multiple, dessinee), WS_EX_CLIENTEDGE, true}),
      multiple_(multiple) {
    BackColor(couleur_fond_fenetre);
    ForeColor(couleur_texte_fenetre);
}

int Liste::ListCount() const { return static_cast<int>(Envoyer(LB_GETCOUNT)); }

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

bool Liste::Selected(int index) const { return Envoyer(LB_GETSEL, static_cast<WPARAM>(index)) > 0; }

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

void Liste::Selectionner(const std::vector<int> & indices) {
    Envoyer(WM_SETREDRAW, FALSE);
    Envoyer(LB_SETSEL, FALSE, -1);
    for (const int index : indices) Envoyer(LB_SETSEL, TRUE, index);
    Envoyer(WM_SETREDRAW, TRUE);
    Controle::Refresh();  // repaints: the lists of the disk would read it again
}

std::vector<int> Liste::Selection() const {
    if (!multiple_) return ListIndex() >= 0 ? std::vector<int>{ListIndex()} : std::vector<int>{};
    const std::intptr_t nombre = Envoyer(LB_GETSELCOUNT);
    std::vector<int>    indices(nombre > 0 ? static_cast<std::size_t>(nombre) : 0U);
    if (!indices.empty()) Envoyer(LB_GETSELITEMS, indices.size(), reinterpret_cast<LPARAM>(indices.data()));
    return indices;
}

void Liste::Tout_selectionner(bool choisi) {
    if (multiple_)
        Envoyer(LB_SETSEL, choisi ? TRUE : FALSE, -1);
    else if (!choisi)
        Envoyer(LB_SETCURSEL, static_cast<WPARAM>(-1));
}

int Liste::TopIndex() const { return static_cast<int>(Envoyer(LB_GETTOPINDEX)); }

void Liste::TopIndex(int index) { Envoyer(LB_SETTOPINDEX, static_cast<WPARAM>(index)); }

void Liste::AddItem(const std::wstring & texte) {
    Envoyer(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(texte.c_str()));
}

void Liste::RemoveItem(int index) { Envoyer(LB_DELETESTRING, static_cast<WPARAM>(index)); }

void Liste::Clear() {
    touche_    = false;
    reservees_ = 0;
    Envoyer(LB_RESETCONTENT);
}

void Liste::Remplir(const std::vector<const wchar_t *> & textes) {
    Envoyer(WM_SETREDRAW, FALSE);
    Clear();
    Ajouter_sans_dessin(textes);
}

void Liste::Ajouter(const std::vector<std::wstring> & textes) {
    if (textes.empty()) return;
    std::vector<const wchar_t *> adresses;
    adresses.reserve(textes.size());
    for (const std::wstring & texte : textes) adresses.push_back(texte.c_str());
    Envoyer(WM_SETREDRAW, FALSE);
    Ajouter_sans_dessin(adresses);
}

// Adds entries to a list that has been told not to redraw, and shows it again.
void Liste::Ajouter_sans_dessin(const std::vector<const wchar_t *> & textes) {
    const std::size_t voulues = static_cast<std::size_t>(ListCount()) + textes.size();
    if (voulues > reservees_) {
        // A list that grows by itself moves all its entries every few dozen. 32 bytes a name is what most need.
        const std::size_t place = std::max(textes.size(), reservees_);
        Envoyer(LB_INITSTORAGE, place, static_cast<LPARAM>(place * 32));
        reservees_ = static_cast<std::size_t>(ListCount()) + place;
    }
    // Each entry moves the scroll bar, which is drawn at once unless the list passes for hidden: eight times slower.
    const LONG_PTR style = GetWindowLongPtrW(Poignee(), GWL_STYLE);
    SetWindowLongPtrW(Poignee(), GWL_STYLE, style & ~static_cast<LONG_PTR>(WS_VISIBLE));
    for (const wchar_t * texte : textes) Envoyer(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(texte));
    Envoyer(WM_SETREDRAW, TRUE);
    if ((style & WS_VISIBLE) == 0) return;
    SetWindowLongPtrW(Poignee(), GWL_STYLE, GetWindowLongPtrW(Poignee(), GWL_STYLE) | WS_VISIBLE);
    RedrawWindow(Poignee(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
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
    const int ligne = TopIndex() + static_cast<int>((point.y - interieur.top) /
                                                    std::max<std::intptr_t>(1, Envoyer(LB_GETITEMHEIGHT)));
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
    // A drag that ends outside the list is told as cancelled, although what it marked stays marked.
    if (code == LBN_SELCHANGE || code == LBN_SELCANCEL) {
        touche_ = true;
        if (Click) Click();
    } else if (code == LBN_DBLCLK && DblClick) {
        DblClick();
    }
}

bool Liste::Message(unsigned message, std::uintptr_t mot, std::intptr_t, std::intptr_t & resultat) {
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) souris_ = true;
    if (message == WM_KEYDOWN) souris_ = false;
    resultat = 0;
    // The state of a key is a question to the system's server: asked for keys alone, not for each entry added.
    if (message != WM_KEYDOWN && message != WM_CHAR) return false;
    // With Alt as well, Ctrl makes letters of some keyboards.
    const bool ctrl = GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0;
    if (multiple_ && message == WM_KEYDOWN && ctrl) return Prendre_ctrl(static_cast<int>(mot));
    if (message != WM_CHAR) return false;
    if (multiple_ && mot > L' ' && !ctrl) {
        Aller_a_initiale(static_cast<wchar_t>(mot));
        return true;
    }
    // Ctrl+A would go on as a first-letter search.
    return ctrl || mot < L' ';
}

// Where a key moves the focus entry, -1 when it does not.
int Liste::Arrivee(int touche) const {
    RECT interieur{};
    GetClientRect(Poignee(), &interieur);
    const int page =
        static_cast<int>(interieur.bottom / std::max<std::intptr_t>(1, Envoyer(LB_GETITEMHEIGHT)));
    const int courant = static_cast<int>(Envoyer(LB_GETCARETINDEX));
    const int dernier = ListCount() - 1;
    switch (touche) {
    case VK_UP: return std::max(courant - 1, 0);
    case VK_DOWN: return std::min(courant + 1, dernier);
    case VK_PRIOR: return std::max(courant - page, 0);
    case VK_NEXT: return std::min(courant + page, dernier);
    case VK_HOME: return 0;
    case VK_END: return dernier;
    default: return -1;
    }
}

// Ctrl and a moving key take the focus entry along and leave the selection; Ctrl and the space bar select that entry or not: so
// the keyboard chooses files that do not stand together. System list boxes differ in it.
bool Liste::Prendre_ctrl(int touche) {
    if (ListCount() == 0 || GetKeyState(VK_SHIFT) < 0) return false;
    const int arrivee = Arrivee(touche);
    if (arrivee >= 0) {
        Envoyer(LB_SETCARETINDEX, static_cast<WPARAM>(arrivee), FALSE);
        touche_ = true;
        return true;
    }
    if (touche != 'A' && touche != VK_SPACE) return false;
    const auto courant = static_cast<int>(Envoyer(LB_GETCARETINDEX));
    if (touche == 'A') {
        Tout_selectionner(true);
    } else {
        Envoyer(LB_SETSEL, Selected(courant) ? FALSE : TRUE, courant);
        Envoyer(LB_SETANCHORINDEX, static_cast<WPARAM>(courant));
    }
    touche_ = true;
    if (Click) Click();
    return true;
}

// The next entry that begins with the letter is selected, alone; some systems' list boxes would add those on the way.
void Liste::Aller_a_initiale(wchar_t lettre) {
    const wchar_t       debut[] = {lettre, L'\0'};
    const std::intptr_t rang =
        Envoyer(LB_FINDSTRING, static_cast<WPARAM>(ListIndex()), reinterpret_cast<LPARAM>(debut));
    if (rang == LB_ERR) return;
    Tout_selectionner(false);
    Envoyer(LB_SETSEL, TRUE, rang);
    Envoyer(LB_SETANCHORINDEX, static_cast<WPARAM>(rang));
    Envoyer(LB_SETCARETINDEX, static_cast<WPARAM>(rang), FALSE);
    touche_ = true;
    if (Click) Click();
}

void Liste::Apres_message(unsigned message, std::uintptr_t, std::intptr_t) {
    if ((message == WM_VSCROLL || message == WM_MOUSEWHEEL) && Scroll) Scroll();
}
