#include "platform/windows.h"
#include "toolkit/fenetre.h"
#include "toolkit/interne.h"
#include "toolkit/listes.h"
#include "toolkit/mesure.h"

#include <commctrl.h>
#include <utility>

namespace {
// Posted to oneself: the choice is reported once the combo box has finished with it.
constexpr UINT message_choix = WM_APP + 1;
constexpr int  rangees       = 12;  // of the drop-down list

// The edit field inside takes the mouse moves that the combo box would have explained itself by.
LRESULT CALLBACK Procedure_champ(HWND champ, UINT message, WPARAM mot, LPARAM large, UINT_PTR, DWORD_PTR) {
    if (message == WM_MOUSEMOVE) SendMessageW(GetParent(champ), message, mot, large);
    return DefSubclassProc(champ, message, mot, large);
}
}  // namespace

Liste_combinee::Liste_combinee(Fenetre & fenetre, const Place & place, bool editable)
    : Controle(fenetre, place,
               {WC_COMBOBOXW,
                WS_VSCROLL | CBS_AUTOHSCROLL |
                    (editable ? static_cast<DWORD>(CBS_DROPDOWN) : static_cast<DWORD>(CBS_DROPDOWNLIST)),
                0, true}),
      editable_(editable) {
    BackColor(couleur_fond_fenetre);
    ForeColor(couleur_texte_fenetre);
    // The frame around the text takes six pixels of the height that the layout gives.
    Envoyer(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), Pixels(Height()) - 6);
    const auto rangee = static_cast<int>(Envoyer(CB_GETITEMHEIGHT));
    SetWindowPos(Poignee(), nullptr, 0, 0, Pixels(Left() + Width()) - Pixels(Left()),
                 Pixels(Height()) + rangee * rangees + 2, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Envoyer(CB_LIMITTEXT, 32767);
    if (editable_) SetWindowSubclass(GetWindow(Poignee(), GW_CHILD), Procedure_champ, 1, 0);
}

std::wstring Liste_combinee::Text() const { return Texte_fenetre(); }

void Liste_combinee::Text(const std::wstring & texte) {
    if (texte == texte_ && texte == Texte_fenetre()) return;
    texte_ = texte;
    Texte_fenetre(texte);
    if (Change) Change();
}

int Liste_combinee::ListCount() const { return static_cast<int>(Envoyer(CB_GETCOUNT)); }

std::wstring Liste_combinee::List(int index) const {
    const std::intptr_t longueur = Envoyer(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
    if (longueur == CB_ERR) return {};
    std::wstring texte(static_cast<std::size_t>(longueur) + 1, L'\0');
    Envoyer(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(texte.data()));
    texte.resize(static_cast<std::size_t>(longueur));
    return texte;
}

int Liste_combinee::ListIndex() const { return static_cast<int>(Envoyer(CB_GETCURSEL)); }

void Liste_combinee::ListIndex(int index) {
    if (index == ListIndex()) return;
    Choisir_en_silence(index);
    Choix_fait();
}

void Liste_combinee::Choisir_en_silence(int index) {
    Envoyer(CB_SETCURSEL, static_cast<WPARAM>(index));
    dernier_ = index;
}

void Liste_combinee::AddItem(const std::wstring & texte) {
    Envoyer(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(texte.c_str()));
}

void Liste_combinee::RemoveItem(int index) { Envoyer(CB_DELETESTRING, static_cast<WPARAM>(index)); }

void Liste_combinee::Clear() {
    Envoyer(CB_RESETCONTENT);
    dernier_ = -1;
}

bool Liste_combinee::Deroule() const { return Envoyer(CB_GETDROPPEDSTATE) != 0; }

void Liste_combinee::Refermer() {
    if (!Deroule()) return;
    annule_ = true;
    Envoyer(CB_SHOWDROPDOWN, FALSE);
}

void Liste_combinee::Caret_a_la_fin() {
    const auto fin = static_cast<WORD>(Texte_fenetre().size());
    Envoyer(CB_SETEDITSEL, 0, MAKELPARAM(fin, fin));
}

void Liste_combinee::Selectionner(int debut) {
    const auto fin = static_cast<WORD>(Texte_fenetre().size());
    Envoyer(CB_SETEDITSEL, 0, MAKELPARAM(static_cast<WORD>(debut), fin));
}

void Liste_combinee::Choix_fait() {
    if (Click) Click();
}

bool Liste_combinee::Prendre_touche(int touche) {
    // In the closed list an arrow opens it: walking through drives must not read each of them on the way.
    if ((touche != VK_UP && touche != VK_DOWN) || Deroule()) return false;
    Envoyer(CB_SHOWDROPDOWN, TRUE);
    return true;
}

// The system marks the whole text of a combo box that gets the focus: the next key would replace it.
void Liste_combinee::Reprendre_focus() {
    const std::intptr_t marque = Envoyer(CB_GETEDITSEL);
    Controle::Reprendre_focus();
    if (editable_) Envoyer(CB_SETEDITSEL, 0, marque);
}

void Liste_combinee::Notification(unsigned code) {
    switch (code) {
    case CBN_SETFOCUS:
        // A click gives the focus to the edit field inside, and nothing to the combo box itself.
        Focus_pris();
        if (marque_ != 0) Envoyer(CB_SETEDITSEL, 0, std::exchange(marque_, 0));
        if (GotFocus) GotFocus();
        break;
    case CBN_KILLFOCUS:
        // The edit inside had the focus, and by now another window has it. A text left marked looks as if it still had it.
        if (editable_ && GetAncestor(GetFocus(), GA_ROOT) == Parent().Poignee()) {
            marque_ = Envoyer(CB_GETEDITSEL);
            Envoyer(CB_SETEDITSEL, 0, 0);
        }
        Quitter_focus(GetFocus());
        break;
    case CBN_DROPDOWN:
        dernier_ = ListIndex();
        annule_  = false;
        break;
    case CBN_SELENDCANCEL: annule_ = true; break;
    case CBN_CLOSEUP: PostMessageW(Poignee(), message_choix, annule_ ? 1 : 0, 0); break;
    case CBN_SELCHANGE:
        if (!Deroule()) PostMessageW(Poignee(), message_choix, 0, 0);
        break;
    case CBN_EDITCHANGE:
        texte_ = Texte_fenetre();
        if (Change) Change();
        break;
    default: break;
    }
}

// The text no longer comes from an entry, and stays as the handler left it.
void Liste_combinee::Oublier_choix() {
    const std::wstring texte = Texte_fenetre();
    Envoyer(CB_SETCURSEL, static_cast<WPARAM>(-1));
    Texte_fenetre(texte);
    Caret_a_la_fin();
}

// The arrows of the open list wrote its entries over the text.
void Liste_combinee::Renoncer_au_choix() {
    if (!editable_) {
        Envoyer(CB_SETCURSEL, static_cast<WPARAM>(dernier_));
    } else if (Texte_fenetre() != texte_) {
        Texte_fenetre(texte_);
        Oublier_choix();
    }
}

bool Liste_combinee::Message(unsigned message, std::uintptr_t mot, std::intptr_t, std::intptr_t & resultat) {
    resultat = 0;
    // In the closed list the wheel would walk through drives, reading each of them.
    if (message == WM_MOUSEWHEEL && !Deroule()) return true;
    if (message != message_choix) return false;
    // Whatever way it came by, a choice made while a command runs is none.
    if (mot != 0 || Bouton_reserve() != nullptr) {
        Renoncer_au_choix();
    } else if (ListIndex() >= 0 && (ListIndex() != dernier_ || editable_)) {
        // Choosing the same predefined entry again gives its text again.
        dernier_ = ListIndex();
        texte_   = Texte_fenetre();
        Choix_fait();
        if (editable_) Oublier_choix();
    }
    return true;
}
