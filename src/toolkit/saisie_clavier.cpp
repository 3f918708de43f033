#include "toolkit/controles.h"
#include "toolkit/fenetre.h"
#include "toolkit/interne.h"

namespace {
bool Est_enfoncee(int touche) { return GetKeyState(touche) < 0; }

int Etat_majuscules() {
    return (Est_enfoncee(VK_SHIFT) ? 1 : 0) + (Est_enfoncee(VK_CONTROL) ? 2 : 0) +
           (Est_enfoncee(VK_MENU) ? 4 : 0);
}

// Buttons and wheel: the wheel over a closed drop-down list chooses another entry.
bool Est_souris(UINT message) { return message >= WM_LBUTTONDOWN && message <= WM_MOUSELAST; }

bool Est_souris_cadre(UINT message) { return message >= WM_NCLBUTTONDOWN && message <= WM_NCXBUTTONDBLCLK; }
}  // namespace

bool Saisie_clavier::Entree(Fenetre & fenetre, Controle * controle) {
    const HWND poignee = fenetre.Poignee();
    if (controle != nullptr && controle->Deroule()) return false;
    if (controle != nullptr && controle->Enfoncer()) return true;
    if (controle != nullptr && controle->Prendre_entree()) {
        auto caractere = static_cast<wchar_t>(Touche::entree);
        controle->KeyPress(caractere);
        // Taken by the handler, which may have closed the window; left to the window otherwise.
        if (caractere == 0 || Fenetre_de_poignee(poignee) == nullptr) return true;
    }
    if (fenetre.defaut_ != nullptr) fenetre.defaut_->Cliquer();
    return true;
}

bool Saisie_clavier::Echappement(Fenetre & fenetre, Controle * controle) {
    if (controle != nullptr && controle->Deroule()) return false;
    if (fenetre.annulation_ != nullptr) fenetre.annulation_->Cliquer();
    return true;
}

// The system moves the focus, and then takes the border from every button that has not the focus, the default one too.
bool Saisie_clavier::Parcourir(MSG & message, Fenetre & fenetre) {
    const HWND poignee = fenetre.Poignee();
    const bool finie   = IsDialogMessageW(poignee, &message) != FALSE;
    if (Fenetre_de_poignee(poignee) != nullptr) fenetre.Marquer_defaut();
    return finie;
}

bool Saisie_clavier::Touche_enfoncee(MSG & message, Fenetre & fenetre, Controle * controle) {
    auto      touche     = static_cast<int>(message.wParam);
    const int majuscules = Etat_majuscules();
    if (fenetre.KeyDown) fenetre.KeyDown(touche, majuscules);
    if (touche != 0 && controle != nullptr && controle->KeyDown) controle->KeyDown(touche, majuscules);
    if (touche == 0) return true;
    message.wParam = static_cast<WPARAM>(touche);
    // What a handler did may have closed the window or moved the focus away.
    if (Fenetre_de_poignee(fenetre.Poignee()) == nullptr || IsWindow(message.hwnd) == FALSE) return true;
    if (controle != nullptr && controle->Prendre_touche(touche)) return true;
    switch (touche) {
    case VK_RETURN: return Entree(fenetre, controle);
    case VK_ESCAPE: return Echappement(fenetre, controle);
    case VK_TAB: return Parcourir(message, fenetre);
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN: return controle != nullptr && controle->Veut_fleches() && Parcourir(message, fenetre);
    default: return false;
    }
}

bool Saisie_clavier::Caractere(MSG & message, Controle * controle) {
    if (controle == nullptr || !controle->KeyPress) return false;
    auto caractere = static_cast<wchar_t>(message.wParam);
    if (caractere == Touche::entree) return false;
    controle->KeyPress(caractere);
    message.wParam = caractere;
    return caractere == 0;
}

bool Saisie_clavier::Reservee(const MSG & message, Bouton_commande & bouton) {
    if (Est_souris(message.message)) return message.hwnd != bouton.Poignee();
    if (Est_souris_cadre(message.message)) {
        // The frame's own loops (dragging, menu, a button held down) would hold the command up as long as they last.
        if (message.message == WM_NCLBUTTONDOWN && message.wParam == HTMINBUTTON) {
            PostMessageW(message.hwnd, WM_SYSCOMMAND, SC_MINIMIZE, 0);
        }
        return true;
    }
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
    if (message.message == WM_KEYDOWN) {
        const bool sur_bouton =
            bouton.A_le_focus() && (message.wParam == VK_RETURN || message.wParam == VK_SPACE);
        if (message.wParam == VK_ESCAPE || sur_bouton) bouton.Cliquer();
    }
    if (message.message == WM_SYSKEYDOWN) {
        const std::wstring caption = bouton.Caption();
        const std::size_t  acces   = caption.find(L'&');
        if (acces + 1 < caption.size() && VkKeyScanW(caption[acces + 1]) != -1 &&
            LOBYTE(VkKeyScanW(caption[acces + 1])) == message.wParam) {
            bouton.Cliquer();
        }
        return message.wParam != VK_F4;
    }
    return true;
}

bool Saisie_clavier::Traiter(MSG & message) {
    const HWND racine  = GetAncestor(message.hwnd, GA_ROOT);
    Fenetre *  fenetre = Fenetre_de_poignee(racine);
    if (fenetre == nullptr) return false;
    if (Bouton_commande * bouton = Bouton_reserve(); bouton != nullptr && &bouton->Parent() == fenetre) {
        return Reservee(message, *bouton);
    }
    switch (message.message) {
    case WM_KEYDOWN: return Touche_enfoncee(message, *fenetre, Controle_de_poignee(message.hwnd));
    case WM_CHAR: return Caractere(message, Controle_de_poignee(message.hwnd));
    case WM_SYSCHAR: return fenetre->Touche_acces(static_cast<wchar_t>(message.wParam));
    default: return false;
    }
}
