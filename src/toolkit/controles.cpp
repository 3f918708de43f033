#include "toolkit/controles.h"

#include "platform/windows.h"
#include "toolkit/fenetre.h"
#include "toolkit/interne.h"
#include "toolkit/mesure.h"

#include <algorithm>
#include <commctrl.h>

// --- label

namespace {
DWORD Style_etiquette(Alignement alignement, bool plusieurs_lignes) {
    DWORD style = SS_NOPREFIX | SS_NOTIFY;
    // Wrapped as an edit field does it: a name longer than a line is broken instead of cut.
    style |= plusieurs_lignes ? SS_EDITCONTROL : SS_ENDELLIPSIS | SS_CENTERIMAGE;
    switch (alignement) {
    case Alignement::gauche: return style | SS_LEFT;
    case Alignement::centre: return style | SS_CENTER;
    case Alignement::droite: return style | SS_RIGHT;
    }
    return style;
}
}  // namespace

Etiquette::Etiquette(Fenetre & fenetre, const Place & place, Alignement alignement, bool grasse,
                     bool plusieurs_lignes)
    : Controle(fenetre, place, {WC_STATICW, Style_etiquette(alignement, plusieurs_lignes), 0, false}),
      caption_(place.caption) {
    if (grasse) Envoyer(WM_SETFONT, reinterpret_cast<WPARAM>(Police_grasse()), TRUE);
}

void Etiquette::Caption(const std::wstring & texte) {
    if (texte == caption_) return;
    caption_ = texte;
    Texte_fenetre(texte);
}

void Etiquette::Notification(unsigned code) {
    if (code == STN_CLICKED && Click) Click();
}

// --- push button

namespace {
constexpr int marge_bouton = 45;  // twips between the frame and the text
}  // namespace

Bouton_commande::Bouton_commande(Fenetre & fenetre, const Place & place)
    : Controle(fenetre, place, {WC_BUTTONW, BS_PUSHBUTTON | BS_NOTIFY, 0, true}) {
    Controle::Enabled(false);
}

void Bouton_commande::Caption(const std::wstring & texte) {
    std::wstring montre = texte;
    std::erase(montre, L'&');
    const bool     trop_long = Parent().Largeur_texte(montre) > Width() - 2 * marge_bouton;
    const LONG_PTR style     = GetWindowLongPtrW(Poignee(), GWL_STYLE);
    const LONG_PTR a_gauche  = BS_LEFT;
    SetWindowLongPtrW(Poignee(), GWL_STYLE, trop_long ? style | a_gauche : style & ~a_gauche);
    Texte_fenetre(texte);
}

void Bouton_commande::Enabled(bool actif) {
    voulu_ = actif;
    Controle::Enabled(actif && static_cast<bool>(click_));
}

void Bouton_commande::Brancher(std::function<void()> click) {
    click_ = std::move(click);
    Enabled(voulu_);
}

void Bouton_commande::Cliquer() {
    if (!Visible() || !Enabled()) return;
    // The handler may bind another one or outlive this window.
    const auto click = click_;
    click();
}

void Bouton_commande::Notification(unsigned code) {
    if (code == BN_CLICKED || (code == BN_DBLCLK && chaque_clic_)) Cliquer();
}

bool Bouton_commande::Enfoncer() {
    Cliquer();
    return true;
}

// --- text field

Champ_texte::Champ_texte(Fenetre & fenetre, const Place & place)
    : Controle(fenetre, place, {WC_EDITW, ES_AUTOHSCROLL | ES_LEFT, WS_EX_CLIENTEDGE, true}) {
    BackColor(couleur_fond_fenetre);
    ForeColor(couleur_texte_fenetre);
    Limite(32767);
}

void Champ_texte::Text(const std::wstring & texte) {
    if (texte == Text()) return;
    assigne_ = true;  // the edit tells of its own change too
    Texte_fenetre(texte);
    assigne_ = false;
    if (Change) Change();
}

void Champ_texte::Selectionner(int debut, int longueur) {
    Envoyer(EM_SETSEL, static_cast<WPARAM>(debut), longueur < 0 ? -1 : static_cast<LPARAM>(debut) + longueur);
}

void Champ_texte::Limite(int caracteres) { Envoyer(EM_SETLIMITTEXT, static_cast<WPARAM>(caracteres)); }

void Champ_texte::Montrer_seulement() {
    Envoyer(EM_SETREADONLY, TRUE);
    const LONG_PTR tabulation = WS_TABSTOP;
    SetWindowLongPtrW(Poignee(), GWL_STYLE, GetWindowLongPtrW(Poignee(), GWL_STYLE) & ~tabulation);
    BackColor(couleur_face);
}

void Champ_texte::Notification(unsigned code) {
    if (code == EN_CHANGE && !assigne_ && Change) Change();
}

// --- check box and options

Case_a_cocher::Case_a_cocher(Fenetre & fenetre, const Place & place)
    : Controle(fenetre, place, {WC_BUTTONW, BS_AUTOCHECKBOX, 0, true}) {}

bool Case_a_cocher::Value() const { return Envoyer(BM_GETCHECK) == BST_CHECKED; }

void Case_a_cocher::Value(bool coche) {
    if (coche == Value()) return;
    Envoyer(BM_SETCHECK, coche ? BST_CHECKED : BST_UNCHECKED);
    if (Click) Click();
}

void Case_a_cocher::Notification(unsigned code) {
    if (code == BN_CLICKED && Click) Click();
}

bool Case_a_cocher::Acces() {
    SetFocus();
    Value(!Value());
    return true;
}

Bouton_option::Bouton_option(Fenetre & fenetre, const Place & place, bool premiere)
    : Controle(
          fenetre, place,
          {WC_BUTTONW, BS_AUTORADIOBUTTON | (premiere ? static_cast<DWORD>(WS_GROUP) : 0U), 0, premiere}) {}

bool Bouton_option::Value() const { return Envoyer(BM_GETCHECK) == BST_CHECKED; }

// Those that are disabled or do not show are unchosen too.
void Bouton_option::Quitter_les_autres() {
    const auto debute = [](HWND controle) {
        return (GetWindowLongPtrW(controle, GWL_STYLE) & WS_GROUP) != 0;
    };
    HWND premier = Poignee();
    for (HWND avant = premier; avant != nullptr && !debute(premier); avant = GetWindow(premier, GW_HWNDPREV))
        premier = avant;
    for (HWND autre = premier; autre != nullptr && (autre == premier || !debute(autre));
         autre      = GetWindow(autre, GW_HWNDNEXT)) {
        if (autre != Poignee() && dynamic_cast<Bouton_option *>(Controle_de_poignee(autre)) != nullptr)
            SendMessageW(autre, BM_SETCHECK, BST_UNCHECKED, 0);
    }
}

void Bouton_option::Value(bool choisi) {
    if (choisi == Value()) return;
    // A click sent by the program would take the focus, even in a window that does not show yet.
    if (choisi) Quitter_les_autres();
    Envoyer(BM_SETCHECK, choisi ? BST_CHECKED : BST_UNCHECKED);
    if (choisi && Click) Click();
}

void Bouton_option::Notification(unsigned code) {
    if (code == BN_CLICKED && Click) Click();
}

bool Bouton_option::Acces() {
    SetFocus();
    Value(true);
    return true;
}

// --- panel and line

Cadre::Cadre(Fenetre & fenetre, const Place & place)
    : Controle(fenetre, place, {WC_STATICW, SS_OWNERDRAW | SS_NOTIFY, 0, false}), bord_(couleur_face) {}

void Cadre::BorderColor(Couleur couleur) {
    if (couleur == bord_) return;
    bord_ = couleur;
    Refresh();
}

void Cadre::Dessiner(const void * dessin) {
    const auto & demande = *static_cast<const DRAWITEMSTRUCT *>(dessin);
    RECT         place   = demande.rcItem;
    SetDCBrushColor(demande.hDC, Rouge_vert_bleu(bord_));
    auto * pinceau = static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
    FillRect(demande.hDC, &place, pinceau);
    const int epaisseur = std::max(1, Pixels(15));
    InflateRect(&place, -epaisseur, -epaisseur);
    SetDCBrushColor(demande.hDC, Rouge_vert_bleu(BackColor()));
    FillRect(demande.hDC, &place, pinceau);
}

Ligne::Ligne(Fenetre & fenetre, const Place & place)
    : Controle(fenetre, place, {WC_STATICW, SS_LEFT | SS_NOPREFIX, 0, false}) {}

void Ligne::BorderWidth(int epaisseur) {
    epaisseur_      = epaisseur;
    const int twips = epaisseur * 15;
    if (Width() >= Height())
        Placer(Left(), Top(), Width(), twips);
    else
        Placer(Left(), Top(), twips, Height());
}

// --- picture

Image::Image(Fenetre & fenetre, const Place & place)
    : Controle(fenetre, place, {WC_STATICW, SS_ICON | SS_CENTERIMAGE, 0, false}) {}

void Image::Picture(Icone icone) {
    const auto systeme = [&]() -> LPCWSTR {
        switch (icone) {
        case Icone::arret: return IDI_ERROR;
        case Icone::question: return IDI_QUESTION;
        case Icone::exclamation: return IDI_WARNING;
        case Icone::information: return IDI_INFORMATION;
        default: return nullptr;
        }
    }();
    HICON dessin = nullptr;
    if (icone == Icone::programme)
        dessin = LoadIconW(Module(), MAKEINTRESOURCEW(1));
    else if (systeme != nullptr)
        dessin = LoadIconW(nullptr, systeme);
    Envoyer(STM_SETICON, reinterpret_cast<WPARAM>(dessin));
}

// --- gauge

Jauge_progression::Jauge_progression(Fenetre & fenetre, const Place & place)
    : Controle(fenetre, place, {WC_STATICW, SS_OWNERDRAW | SS_NOTIFY, 0, false}) {
    BackColor(couleur_fond_fenetre);
    ForeColor(0x8000000D);
}

void Jauge_progression::Value(double pour_cent) {
    const double borne   = std::clamp(pour_cent, 0.0, 100.0);
    const int    largeur = Pixels(Width());
    // Redrawn when a pixel changes, not at each of the thousands of blocks.
    const bool change = static_cast<int>(borne * largeur / 100) != static_cast<int>(valeur_ * largeur / 100);
    valeur_           = borne;
    if (change) InvalidateRect(Poignee(), nullptr, FALSE);
}

void Jauge_progression::Caption(const std::wstring & texte) {
    if (texte == caption_) return;
    caption_ = texte;
    Texte_fenetre(texte);
    InvalidateRect(Poignee(), nullptr, FALSE);
}

void Jauge_progression::Dessiner(const void * dessin) {
    const auto &  demande = *static_cast<const DRAWITEMSTRUCT *>(dessin);
    HDC           hdc     = demande.hDC;
    const RECT    place   = demande.rcItem;
    const LONG    limite  = place.left + static_cast<LONG>(valeur_ * (place.right - place.left) / 100);
    const RECT    faite{place.left, place.top, limite, place.bottom};
    const RECT    reste{limite, place.top, place.right, place.bottom};
    const HGDIOBJ avant = SelectObject(hdc, reinterpret_cast<HGDIOBJ>(Envoyer(WM_GETFONT)));
    SIZE          taille{};
    GetTextExtentPoint32W(hdc, caption_.c_str(), static_cast<int>(caption_.size()), &taille);
    const int  x      = (place.left + place.right - taille.cx) / 2;
    const int  y      = (place.top + place.bottom - taille.cy) / 2;
    const auto partie = [&](const RECT & zone, Couleur fond, Couleur encre) {
        SetBkColor(hdc, Rouge_vert_bleu(fond));
        SetTextColor(hdc, Rouge_vert_bleu(encre));
        ExtTextOutW(hdc, x, y, ETO_OPAQUE | ETO_CLIPPED, &zone, caption_.c_str(),
                    static_cast<UINT>(caption_.size()), nullptr);
    };
    partie(faite, ForeColor(), 0x8000000E);
    partie(reste, BackColor(), couleur_texte_fenetre);
    SelectObject(hdc, avant);
}

// --- scroll bar

Barre_defilement::Barre_defilement(Fenetre & fenetre, const Place & place)
    : Controle(fenetre, place, {WC_SCROLLBARW, SBS_HORZ, 0, true}) {
    Bornes(minimum_, maximum_);
}

void Barre_defilement::Bornes(int minimum, int maximum) {
    minimum_ = minimum, maximum_ = maximum;
    SCROLLINFO bornes{sizeof bornes, SIF_RANGE | SIF_PAGE, minimum, maximum, 1, 0, 0};
    SetScrollInfo(Poignee(), SB_CTL, &bornes, TRUE);
}

// The mark of the focus blinks over the slider: not every system moves it along.
void Barre_defilement::Montrer_place() {
    const bool marquee = A_le_focus();
    if (marquee) HideCaret(Poignee());
    SetScrollPos(Poignee(), SB_CTL, valeur_, TRUE);
    if (!marquee) return;
    SCROLLBARINFO place{};
    place.cbSize = sizeof place;
    if (GetScrollBarInfo(Poignee(), OBJID_CLIENT, &place) != FALSE) SetCaretPos(place.xyThumbTop + 1, 1);
    ShowCaret(Poignee());
}

void Barre_defilement::Value(int valeur) {
    const int borne = std::clamp(valeur, minimum_, maximum_);
    if (borne == valeur_) return;
    valeur_ = borne;
    Montrer_place();
    if (Change) Change();
}

void Barre_defilement::Notification(unsigned code) {
    switch (LOWORD(code)) {
    case SB_LINELEFT:
    case SB_PAGELEFT: return Value(valeur_ - 1);
    case SB_LINERIGHT:
    case SB_PAGERIGHT: return Value(valeur_ + 1);
    case SB_LEFT: return Value(minimum_);
    case SB_RIGHT: return Value(maximum_);
    case SB_THUMBTRACK:
        Value(static_cast<short>(HIWORD(code)));
        if (Scroll) Scroll();
        return;
    case SB_THUMBPOSITION: return Value(static_cast<short>(HIWORD(code)));
    default: return;
    }
}

bool Barre_defilement::Message(unsigned message, std::uintptr_t mot, std::intptr_t,
                               std::intptr_t & resultat) {
    if (message != WM_MOUSEWHEEL) return false;
    molette_ += GET_WHEEL_DELTA_WPARAM(mot);
    const int crans = molette_ / WHEEL_DELTA;
    molette_ -= crans * WHEEL_DELTA;
    Value(valeur_ - crans);
    resultat = 0;
    return true;
}
