#include "toolkit/fenetre.h"

#include "platform/windows.h"
#include "toolkit/application.h"
#include "toolkit/controles.h"
#include "toolkit/interne.h"
#include "toolkit/mesure.h"

#include <algorithm>
#include <commctrl.h>
#include <cwctype>

namespace {
constexpr unsigned premier_id = 100;

struct Style {
    DWORD normal;
    DWORD etendu;
};

Style Style_de(Bordure bordure) {
    switch (bordure) {
    case Bordure::principale: return {WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
    case Bordure::dialogue:
        return {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT};
    case Bordure::banniere: return {WS_POPUP | WS_DLGFRAME | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
    }
    return {};
}

HFONT Police(bool grasse) {
    // 8.25 points: the size for which the layouts are drawn.
    const int hauteur = -MulDiv(825, Resolution(), 7200);
    return CreateFontW(hauteur, 0, 0, 0, grasse ? FW_BOLD : FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                       DEFAULT_QUALITY, 0, L"MS Shell Dlg 2");
}

RECT Cadre_exterieur(const Fenetre & fenetre) {
    // An icon stands far outside the screen: what counts is where the window comes back.
    if (IsIconic(fenetre.Poignee()) != FALSE) {
        WINDOWPLACEMENT place{};
        place.length = sizeof place;
        if (GetWindowPlacement(fenetre.Poignee(), &place) != FALSE) return place.rcNormalPosition;
    }
    RECT cadre{};
    GetWindowRect(fenetre.Poignee(), &cadre);
    return cadre;
}

// The letter after "&" in a caption, lower case; 0 when there is none.
wchar_t Lettre_acces(const std::wstring & caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != L'&') continue;
        if (caption[i + 1] == L'&') {
            ++i;
            continue;
        }
        return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(caption[i + 1])));
    }
    return 0;
}
}  // namespace

struct Rappels_fenetre {
    static LRESULT CALLBACK Procedure(HWND poignee, UINT message, WPARAM mot, LPARAM large) {
        auto * fenetre = reinterpret_cast<Fenetre *>(GetWindowLongPtrW(poignee, GWLP_USERDATA));
        if (message == WM_GETMINMAXINFO) {
            // A layout keeps its size on a screen smaller than it, where the system would cut the window down.
            constexpr LONG sans_limite = 32767;
            auto *         limites     = reinterpret_cast<MINMAXINFO *>(large);
            limites->ptMaxTrackSize    = {sans_limite, sans_limite};
            if (fenetre != nullptr && fenetre->largeur_min_ > 0)
                limites->ptMinTrackSize = {fenetre->largeur_min_, fenetre->hauteur_min_};
            return 0;
        }
        if (fenetre == nullptr) return DefWindowProcW(poignee, message, mot, large);
        return fenetre->Traiter(message, mot, large);
    }

    static const wchar_t * Classe() {
        static const wchar_t * nom = [] {
            WNDCLASSEXW classe{};
            classe.cbSize        = sizeof classe;
            classe.lpfnWndProc   = Procedure;
            classe.hInstance     = Module();
            classe.hIcon         = LoadIconW(Module(), MAKEINTRESOURCEW(1));
            classe.hCursor       = LoadCursorW(nullptr, IDC_ARROW);
            classe.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_BTNFACE + 1));
            classe.lpszClassName = L"Korvane_Fenetre";
            RegisterClassExW(&classe);
            return classe.lpszClassName;
        }();
        return nom;
    }
};

Fenetre * Fenetre_de_poignee(HWND poignee) {
    for (Fenetre * fenetre : Fenetres()) {
        if (fenetre->Poignee() == poignee) return fenetre;
    }
    return nullptr;
}

Fenetre::Fenetre(const wchar_t * nom, const wchar_t * caption, int width, int height, Bordure bordure)
    : nom_(nom) {
    const Style style = Style_de(bordure);
    RECT        cadre{0, 0, Pixels(width), Pixels(height)};
    AdjustWindowRectEx(&cadre, style.normal, FALSE, style.etendu);
    poignee_ = CreateWindowExW(style.etendu, Rappels_fenetre::Classe(), caption, style.normal, 0, 0,
                               cadre.right - cadre.left, cadre.bottom - cadre.top, nullptr, nullptr, Module(),
                               nullptr);
    SetWindowLongPtrW(poignee_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    police_        = Police(false);
    police_grasse_ = Police(true);
    Nommer(poignee_, nom_);
    Fenetres().push_back(this);
}

Fenetre::~Fenetre() {
    SetWindowLongPtrW(poignee_, GWLP_USERDATA, 0);
    std::erase(Fenetres(), this);
    GlobalDeleteAtom(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(RemovePropW(poignee_, L"nom"))));
    DestroyWindow(poignee_);
    DeleteObject(police_);
    DeleteObject(police_grasse_);
}

unsigned Fenetre::Ajouter(Controle & controle) {
    controles_.push_back(&controle);
    return premier_id + static_cast<unsigned>(controles_.size()) - 1;
}

void Fenetre::Retirer(Controle & controle) {
    std::replace(controles_.begin(), controles_.end(), &controle, static_cast<Controle *>(nullptr));
    if (actif_ == &controle) actif_ = nullptr;
}

Controle * Fenetre::Controle_de(Poignee_fenetre poignee) const {
    const auto trouve = std::find_if(controles_.begin(), controles_.end(), [&](const Controle * c) {
        return c != nullptr && c->Poignee() == poignee;
    });
    return trouve == controles_.end() ? nullptr : *trouve;
}

Controle * Fenetre::Trouver(std::wstring_view nom) const {
    const auto trouve = std::find_if(controles_.begin(), controles_.end(),
                                     [&](const Controle * c) { return c != nullptr && c->Nom() == nom; });
    return trouve == controles_.end() ? nullptr : *trouve;
}

std::wstring Fenetre::Caption() const {
    std::wstring texte(static_cast<std::size_t>(GetWindowTextLengthW(poignee_)) + 1, L'\0');
    texte.resize(
        static_cast<std::size_t>(GetWindowTextW(poignee_, texte.data(), static_cast<int>(texte.size()))));
    return texte;
}

void Fenetre::Caption(const std::wstring & texte) { SetWindowTextW(poignee_, texte.c_str()); }

int Fenetre::Left() const { return Twips(Cadre_exterieur(*this).left); }

int Fenetre::Top() const { return Twips(Cadre_exterieur(*this).top); }

int Fenetre::Width() const {
    const RECT cadre = Cadre_exterieur(*this);
    return Twips(cadre.right - cadre.left);
}

int Fenetre::Height() const {
    const RECT cadre = Cadre_exterieur(*this);
    return Twips(cadre.bottom - cadre.top);
}

int Fenetre::Largeur_interieure() const {
    RECT interieur{};
    GetClientRect(poignee_, &interieur);
    return Twips(interieur.right);
}

int Fenetre::Hauteur_interieure() const {
    RECT interieur{};
    GetClientRect(poignee_, &interieur);
    return Twips(interieur.bottom);
}

void Fenetre::Taille_minimale(int width, int height) {
    RECT cadre{0, 0, Pixels(width), Pixels(height)};
    AdjustWindowRectEx(&cadre, static_cast<DWORD>(GetWindowLongPtrW(poignee_, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrW(poignee_, GWL_EXSTYLE)));
    largeur_min_ = cadre.right - cadre.left;
    hauteur_min_ = cadre.bottom - cadre.top;
}

void Fenetre::Move(int left, int top, int width, int height) {
    if (IsZoomed(poignee_) != FALSE) ShowWindow(poignee_, SW_SHOWNORMAL);
    Placer(Pixels(left), Pixels(top), Pixels(width), Pixels(height));
}

void Fenetre::Move(int left, int top) {
    const RECT cadre = Cadre_exterieur(*this);
    Placer(Pixels(left), Pixels(top), cadre.right - cadre.left, cadre.bottom - cadre.top);
}

void Fenetre::Placer(int x, int y, int largeur, int hauteur) {
    if (IsIconic(poignee_) == FALSE) {
        SetWindowPos(poignee_, nullptr, x, y, largeur, hauteur, SWP_NOZORDER | SWP_NOACTIVATE);
        return;
    }
    // An icon stays one; the window comes back at this place.
    WINDOWPLACEMENT place{};
    place.length           = sizeof place;
    place.showCmd          = montree_ ? SW_SHOWMINNOACTIVE : SW_HIDE;
    place.rcNormalPosition = {x, y, x + largeur, y + hauteur};
    SetWindowPlacement(poignee_, &place);
}

Etat_fenetre Fenetre::WindowState() const {
    if (!montree_) return etat_voulu_;
    if (IsIconic(poignee_) != FALSE) return Etat_fenetre::reduite;
    return IsZoomed(poignee_) != FALSE ? Etat_fenetre::agrandie : Etat_fenetre::normale;
}

void Fenetre::WindowState(Etat_fenetre etat) {
    etat_voulu_ = etat;
    if (!montree_) return;
    const int commande = etat == Etat_fenetre::reduite    ? SW_MINIMIZE
                         : etat == Etat_fenetre::agrandie ? SW_MAXIMIZE
                                                          : SW_RESTORE;
    ShowWindow(poignee_, commande);
}

void Fenetre::Show() {
    // Panels go behind the controls that stand on them, wherever they come in the tab order.
    for (Controle * controle : controles_) {
        if (dynamic_cast<Cadre *>(controle) == nullptr) continue;
        SetWindowPos(controle->Poignee(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    montree_           = true;
    const int commande = etat_voulu_ == Etat_fenetre::reduite    ? SW_SHOWMINIMIZED
                         : etat_voulu_ == Etat_fenetre::agrandie ? SW_SHOWMAXIMIZED
                                                                 : SW_SHOWNORMAL;
    ShowWindow(poignee_, commande);
    if (etat_voulu_ == Etat_fenetre::normale) UpdateWindow(poignee_);
}

void Fenetre::Hide() {
    montree_ = false;
    // The owner must be usable before this window goes, or another program comes to the front.
    if (modale_ && proprietaire_ != nullptr)
        EnableWindow(proprietaire_->poignee_, proprietaire_actif_ ? TRUE : FALSE);
    // The owner under the pointer is told of a move when this window goes: the pointer has not moved.
    if (modale_ && proprietaire_ != nullptr) proprietaire_->Pointeur_bouge();
    ShowWindow(poignee_, SW_HIDE);
    if (modale_ && proprietaire_ != nullptr) SetActiveWindow(proprietaire_->poignee_);
    modale_ = false;
}

bool Fenetre::Montree() const { return montree_; }

void Fenetre::Refermer_listes() {
    for (Controle * controle : controles_) {
        if (controle != nullptr) controle->Refermer();
    }
}

void Fenetre::Redessiner() {
    RedrawWindow(poignee_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void Fenetre::Pointeur_sablier(bool sablier) {
    if (sablier)
        SetPropW(poignee_, L"sablier", reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(1)));
    else
        RemovePropW(poignee_, L"sablier");
}

double Fenetre::Largeur_texte(std::wstring_view texte) const {
    HDC           dessin = GetDC(poignee_);
    const HGDIOBJ avant  = SelectObject(dessin, police_);
    SIZE          taille{};
    GetTextExtentPoint32W(dessin, texte.data(), static_cast<int>(texte.size()), &taille);
    SelectObject(dessin, avant);
    ReleaseDC(poignee_, dessin);
    return taille.cx * 1440.0 / Resolution();
}

double Fenetre::Hauteur_texte(std::wstring_view texte, int largeur) const {
    HDC           dessin = GetDC(poignee_);
    const HGDIOBJ avant  = SelectObject(dessin, police_);
    RECT          place{0, 0, Pixels(largeur), 0};
    DrawTextW(dessin, texte.data(), static_cast<int>(texte.size()), &place,
              DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL);
    SelectObject(dessin, avant);
    ReleaseDC(poignee_, dessin);
    return place.bottom * 1440.0 / Resolution();
}

bool Fenetre::Touche_acces(wchar_t lettre) {
    const auto cherchee = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(lettre)));
    for (Controle * controle : controles_) {
        if (controle == nullptr || !controle->Visible() || IsWindowEnabled(controle->Poignee()) == FALSE)
            continue;
        if (Lettre_acces(controle->Texte_fenetre()) != cherchee) continue;
        if (controle->Acces()) return true;
    }
    return false;
}

void Fenetre::Passer_focus() {
    const HWND suivant = GetNextDlgTabItem(poignee_, GetFocus(), FALSE);
    ::SetFocus(suivant != nullptr ? suivant : poignee_);
}

void Fenetre::Marquer_defaut() {
    const Controle * sous_entree = dynamic_cast<Bouton_commande *>(actif_) != nullptr ? actif_ : defaut_;
    for (Controle * controle : controles_) {
        if (dynamic_cast<Bouton_commande *>(controle) == nullptr) continue;
        const auto     style  = static_cast<DWORD>(GetWindowLongW(controle->Poignee(), GWL_STYLE)) & 0xFFFFU;
        const unsigned nature = controle == sous_entree ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        const WPARAM   voulu  = (style & ~static_cast<DWORD>(BS_TYPEMASK)) | nature;
        if (voulu != style) SendMessageW(controle->Poignee(), BM_SETSTYLE, voulu, TRUE);
    }
}

void Fenetre::Premier_focus() {
    const HWND premier = GetNextDlgTabItem(poignee_, nullptr, FALSE);
    if (premier != nullptr) ::SetFocus(premier);
}
