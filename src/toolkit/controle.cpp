#include "toolkit/controle.h"

#include "platform/windows.h"
#include "toolkit/fenetre.h"
#include "toolkit/interne.h"
#include "toolkit/mesure.h"

#include <commctrl.h>

namespace {
SIZE Taille(int left, int top, int width, int height) {
    return {Pixels(left + width) - Pixels(left), Pixels(top + height) - Pixels(top)};
}
}  // namespace

Controle * Controle_de_poignee(HWND poignee) {
    // The edit of a combo box is a window of the system's inside the control.
    for (int niveau = 0; poignee != nullptr && niveau < 2; ++niveau) {
        for (const Fenetre * fenetre : Fenetres()) {
            if (Controle * controle = fenetre->Controle_de(poignee)) return controle;
        }
        poignee = GetAncestor(poignee, GA_PARENT);
    }
    return nullptr;
}

void Nommer(HWND poignee, const std::wstring & nom) {
    const ATOM atome = GlobalAddAtomW(nom.c_str());
    SetPropW(poignee, L"nom", reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atome)));
}

COLORREF Rouge_vert_bleu(Couleur couleur) {
    return (couleur & 0x80000000U) != 0 ? GetSysColor(static_cast<int>(couleur & 0xFFU)) : couleur;
}

Controle::Controle(Fenetre & fenetre, const Place & place, const Genre & genre)
    : fenetre_(fenetre), nom_(place.nom), aide_(place.aide), left_(place.left), top_(place.top),
      width_(place.width), height_(place.height), fond_(couleur_face), encre_(couleur_texte_bouton) {
    const unsigned id     = fenetre.Ajouter(*this);
    const SIZE     taille = Taille(left_, top_, width_, height_);
    const DWORD    style =
        WS_CHILD | WS_CLIPSIBLINGS | genre.style | (genre.tabulation ? static_cast<DWORD>(WS_TABSTOP) : 0U);
    poignee_ = CreateWindowExW(genre.style_etendu, genre.classe, place.caption, style, Pixels(left_),
                               Pixels(top_), taille.cx, taille.cy, fenetre.Poignee(),
                               reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), Module(), nullptr);
    Nommer(poignee_, nom_);
    SendMessageW(poignee_, WM_SETFONT, reinterpret_cast<WPARAM>(fenetre.police_), FALSE);
    Marquer_visible(true);
    SetWindowLongPtrW(poignee_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    d_origine_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(poignee_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Controle::Procedure)));
}

Controle::~Controle() {
    fenetre_.Retirer(*this);
    if (IsWindow(poignee_) == FALSE) return;
    SetWindowLongPtrW(poignee_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(d_origine_));
    GlobalDeleteAtom(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(RemovePropW(poignee_, L"nom"))));
    DestroyWindow(poignee_);
}

void Controle::Placer(int left, int top, int width, int height) {
    left_ = left, top_ = top, width_ = width, height_ = height;
    const SIZE taille = Taille(left, top, width, height);
    SetWindowPos(poignee_, nullptr, Pixels(left), Pixels(top), taille.cx, taille.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

bool Controle::Visible() const { return (GetWindowLongPtrW(poignee_, GWL_STYLE) & WS_VISIBLE) != 0; }

void Controle::Visible(bool visible) {
    if (visible == Visible()) return;
    if (!visible && A_le_focus()) fenetre_.Passer_focus();
    // Only what is never reached by Tab may come to the front: the order of windows is the tab order.
    if (visible && (GetWindowLongPtrW(poignee_, GWL_STYLE) & WS_TABSTOP) == 0) {
        SetWindowPos(poignee_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    if (fenetre_.Montree())
        ShowWindow(poignee_, visible ? SW_SHOWNA : SW_HIDE);
    else
        Marquer_visible(visible);
}

// While its window is not shown, the mark is enough: the system need not place the control once more.
void Controle::Marquer_visible(bool visible) {
    const LONG_PTR style  = GetWindowLongPtrW(poignee_, GWL_STYLE);
    const LONG_PTR marque = WS_VISIBLE;
    SetWindowLongPtrW(poignee_, GWL_STYLE, visible ? style | marque : style & ~marque);
}

void Controle::Enabled(bool actif) {
    if (actif == actif_) return;
    actif_ = actif;
    if (!actif && A_le_focus()) fenetre_.Passer_focus();
    EnableWindow(poignee_, actif ? TRUE : FALSE);
}

void Controle::SetFocus() {
    fenetre_.actif_ = this;
    // In a window that is not in front, the control gets the focus when the window is activated.
    if (GetActiveWindow() == fenetre_.Poignee()) ::SetFocus(poignee_);
}

void Controle::Reprendre_focus() { ::SetFocus(poignee_); }

void Controle::Focus_pris() {
    fenetre_.actif_ = this;
    fenetre_.Marquer_defaut();
}

bool Controle::A_le_focus() const {
    const HWND focus = GetFocus();
    return focus != nullptr && (focus == poignee_ || IsChild(poignee_, focus) != FALSE);
}

void Controle::BackColor(Couleur couleur) {
    if (couleur == fond_) return;
    fond_ = couleur;
    Controle::Refresh();  // repaints: the lists of the disk would read it again
}

void Controle::ForeColor(Couleur couleur) {
    if (couleur == encre_) return;
    encre_ = couleur;
    Controle::Refresh();
}

void Controle::Refresh() {
    if (fenetre_.Montree()) InvalidateRect(poignee_, nullptr, TRUE);
}

bool Controle::Message(unsigned, std::uintptr_t, std::intptr_t, std::intptr_t &) { return false; }

void Controle::Apres_message(unsigned, std::uintptr_t, std::intptr_t) {}

std::intptr_t Controle::Envoyer(unsigned message, std::uintptr_t mot, std::intptr_t large) const {
    return SendMessageW(poignee_, message, mot, large);
}

void * Controle::Police_grasse() const { return fenetre_.police_grasse_; }

std::wstring Controle::Texte_fenetre() const {
    std::wstring texte(static_cast<std::size_t>(GetWindowTextLengthW(poignee_)) + 1, L'\0');
    texte.resize(
        static_cast<std::size_t>(GetWindowTextW(poignee_, texte.data(), static_cast<int>(texte.size()))));
    return texte;
}

void Controle::Texte_fenetre(const std::wstring & texte) { SetWindowTextW(poignee_, texte.c_str()); }

std::intptr_t __stdcall Controle::Procedure(Poignee_fenetre poignee, unsigned message, std::uintptr_t mot,
                                            std::intptr_t large) {
    return reinterpret_cast<Controle *>(GetWindowLongPtrW(poignee, GWLP_USERDATA))
        ->Recevoir(message, mot, large);
}

void Controle::Quitter_focus(Poignee_fenetre vers) {
    if (!LostFocus) return;
    // A combo box passes the focus on to the edit inside it.
    if (vers == poignee_ || IsChild(poignee_, vers) != FALSE) return;
    // A box, or another program, takes the focus for a while: it is not another control's.
    if (GetAncestor(vers, GA_ROOT) == fenetre_.Poignee()) LostFocus();
}

std::intptr_t Controle::Recevoir(unsigned message, std::uintptr_t mot, std::intptr_t large) {
    switch (message) {
    case WM_SETCURSOR:
        if (Pointeur_occupe(poignee_)) {
            SetCursor(LoadCursorW(nullptr, IDC_WAIT));
            return TRUE;
        }
        break;
    case WM_MOUSEMOVE:
        if (!fenetre_.Pointeur_bouge()) break;
        if (MouseMove) MouseMove();
        if (fenetre_.MouseMove) fenetre_.MouseMove(this);
        break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (MouseDown) {
            bool finie = false;
            MouseDown(finie);
            if (finie) return 0;
        }
        break;
    case WM_SETFOCUS:
        Focus_pris();
        if (!GotFocus) break;
        GotFocus();
        // A handler may pass the focus on: the control must not show a caret that it has lost already.
        if (!A_le_focus()) return 0;
        break;
    case WM_KILLFOCUS: Quitter_focus(reinterpret_cast<HWND>(mot)); break;
    default: break;
    }
    std::intptr_t resultat = 0;
    if (Message(message, mot, large, resultat)) return resultat;
    resultat = CallWindowProcW(d_origine_, poignee_, message, mot, large);
    Apres_message(message, mot, large);
    return resultat;
}
