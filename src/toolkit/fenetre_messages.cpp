#include "platform/windows.h"
#include "toolkit/application.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"
#include "toolkit/interne.h"
#include "toolkit/mesure.h"

#include <dbt.h>
#include <utility>

namespace {
constexpr UINT message_suite = WM_APP;

bool Utilisable(const Controle * controle) {
    return controle != nullptr && controle->Visible() && IsWindowEnabled(controle->Poignee()) != FALSE;
}

int Hauteur_ligne(HWND fenetre, HGDIOBJ police) {
    HDC           dessin = GetDC(fenetre);
    const HGDIOBJ avant  = SelectObject(dessin, police);
    TEXTMETRICW   mesures{};
    GetTextMetricsW(dessin, &mesures);
    SelectObject(dessin, avant);
    ReleaseDC(fenetre, dessin);
    return mesures.tmHeight + Pixels(15);
}
}  // namespace

std::intptr_t Fenetre::Colorer(void * dessin, Poignee_fenetre poignee) {
    const Controle * controle = Controle_de(poignee);
    auto *           hdc      = static_cast<HDC>(dessin);
    if (controle == nullptr) return 0;
    SetTextColor(hdc, Rouge_vert_bleu(controle->encre_));
    SetBkColor(hdc, Rouge_vert_bleu(controle->fond_));
    SetDCBrushColor(hdc, Rouge_vert_bleu(controle->fond_));
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

void Fenetre::Activer(bool active) {
    if (!active) return;
    if (Utilisable(actif_))
        actif_->Reprendre_focus();
    else
        Premier_focus();
    if (Activate) Activate();
}

// The system tells of a move when a window changes under a pointer that rests.
bool Fenetre::Pointeur_bouge() {
    POINT point{};
    GetCursorPos(&point);
    if (point.x == dernier_x_ && point.y == dernier_y_) return false;
    dernier_x_ = point.x, dernier_y_ = point.y;
    return true;
}

void Fenetre::Survoler() {
    if (!MouseMove || !Pointeur_bouge()) return;
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(poignee_, &point);
    // A disabled control leaves its mouse messages to its window.
    const HWND dessous = ChildWindowFromPointEx(poignee_, point, CWP_SKIPINVISIBLE);
    MouseMove(Controle_de(dessous));
}

void Fenetre::Demande_fermeture() {
    bool refus = false;
    if (QueryUnload) {
        QueryUnload(refus, Fermeture::utilisateur);
        if (!refus) Application::Terminer();
    } else if (annulation_ != nullptr && annulation_->Visible()) {
        annulation_->Cliquer();
    } else {
        Hide();
    }
}

void Fenetre::Finir_session() {
    bool refus = false;
    if (QueryUnload) QueryUnload(refus, Fermeture::systeme);
    // The system may end the process as soon as the message is treated.
    Abandonner_pour_fin_de_session();
    ExitProcess(0);
}

void Fenetre::Peripherique_change() {
    for (Controle * controle : controles_) {
        if (controle != nullptr) controle->Peripherique_change();
    }
    if (Unites_changees) Unites_changees();
}

void Fenetre::Notifier(Poignee_fenetre poignee, unsigned code) {
    if (Controle * controle = Controle_de(poignee)) controle->Notification(code);
}

void Fenetre::Apres_evenement(std::function<void()> suite) {
    suite_ = std::move(suite);
    PostMessageW(poignee_, message_suite, 0, 0);
}

void Fenetre::Poursuivre() {
    if (const auto suite = std::exchange(suite_, nullptr)) suite();
}

std::intptr_t Fenetre::Traiter(unsigned message, std::uintptr_t mot, std::intptr_t large) {
    switch (message) {
    case WM_COMMAND: Notifier(reinterpret_cast<HWND>(large), HIWORD(mot)); return 0;
    case WM_HSCROLL: Notifier(reinterpret_cast<HWND>(large), static_cast<unsigned>(mot)); return 0;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
        if (const std::intptr_t pinceau =
                Colorer(reinterpret_cast<void *>(mot), reinterpret_cast<HWND>(large));
            pinceau != 0) {
            return pinceau;
        }
        break;
    case WM_DRAWITEM: {
        const auto * dessin = reinterpret_cast<const DRAWITEMSTRUCT *>(large);
        if (Controle * controle = Controle_de(dessin->hwndItem)) controle->Dessiner(dessin);
        return TRUE;
    }
    case WM_MEASUREITEM:
        reinterpret_cast<MEASUREITEMSTRUCT *>(large)->itemHeight =
            static_cast<UINT>(Hauteur_ligne(poignee_, police_));
        return TRUE;
    case WM_SIZE:
    case WM_EXITSIZEMOVE:
        if (montree_ && Resize) Resize();
        return 0;
    case WM_PAINT:
        if (Paint) Paint();
        break;
    case WM_ACTIVATE: Activer(LOWORD(mot) != WA_INACTIVE && HIWORD(mot) == 0); return 0;
    case WM_SETFOCUS:
        if (Utilisable(actif_))
            actif_->Reprendre_focus();
        else
            Premier_focus();
        return 0;
    case WM_MOUSEMOVE: Survoler(); break;
    case WM_SETCURSOR:
        if (Pointeur_occupe(poignee_) && LOWORD(large) == HTCLIENT) {
            SetCursor(LoadCursorW(nullptr, IDC_WAIT));
            return TRUE;
        }
        break;
    case message_suite: Poursuivre(); return 0;
    case WM_CLOSE: Demande_fermeture(); return 0;
    case WM_QUERYENDSESSION: return TRUE;
    case WM_ENDSESSION:
        if (mot != 0) Finir_session();
        return 0;
    case WM_DEVICECHANGE:
        if (mot == DBT_DEVICEARRIVAL || mot == DBT_DEVICEREMOVECOMPLETE) Peripherique_change();
        return TRUE;
    default: break;
    }
    return DefWindowProcW(poignee_, message, mot, large);
}
