#include "toolkit/application.h"

#include "platform/bibliotheques.h"
#include "platform/systeme.h"
#include "platform/windows.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"
#include "toolkit/interne.h"

#include <algorithm>
#include <commctrl.h>
#include <utility>

namespace {
struct Etat_application {
    std::vector<Fenetre *> fenetres;
    std::wstring           titre   = L"KORVANE";
    Bouton_commande *      reserve = nullptr;
    std::function<void()>  defaire;
    std::uint64_t          dernier_regard = 0;  // Horloge_ms of the last look at the events
    int                    sabliers       = 0;
    bool                   terminee       = false;
};

Etat_application & Etat() {
    static Etat_application etat;
    return etat;
}

constexpr std::uint64_t intervalle_regards = 10;  // ms

void Distribuer(MSG & message) {
    if (Saisie_clavier::Traiter(message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

// Runs what is waiting. A quit request is put back for the loop that must see it.
void Vider_file() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_QUIT) {
            Application::Terminer();
            return;
        }
        Distribuer(message);
    }
}

void Montrer_pointeur() {
    POINT point{};
    if (GetCursorPos(&point) == FALSE) return;
    // The window under the pointer chooses it again.
    const HWND dessous = WindowFromPoint(point);
    if (dessous == nullptr || GetWindowThreadProcessId(dessous, nullptr) != GetCurrentThreadId()) return;
    SetCursor(LoadCursorW(nullptr, Pointeur_occupe(dessous) ? IDC_WAIT : IDC_ARROW));
}

void Changer_sablier(int variation) {
    Etat_application & etat  = Etat();
    const bool         avant = etat.sabliers > 0;
    etat.sabliers += variation;
    const bool apres = etat.sabliers > 0;
    if (avant == apres) return;
    for (Fenetre * fenetre : etat.fenetres) fenetre->Pointeur_sablier(apres);
    Montrer_pointeur();
}
}  // namespace

std::vector<Fenetre *> & Fenetres() { return Etat().fenetres; }

bool Pointeur_occupe(HWND poignee) {
    const Etat_application & etat = Etat();
    if (etat.sabliers == 0) return false;
    return etat.reserve == nullptr || etat.reserve->Poignee() != poignee;
}

Bouton_commande * Bouton_reserve() { return Etat().reserve; }

void Abandonner_pour_fin_de_session() {
    if (const auto defaire = std::exchange(Etat().defaire, nullptr)) defaire();
}

namespace Application {

void Initialiser() {
    Restreindre_bibliotheques();
    // Never the system's own box for a drive without medium: every failure is reported by the program.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classes);
}

int Boucler() {
    MSG message;
    while (!Etat().terminee && GetMessageW(&message, nullptr, 0, 0) > 0) Distribuer(message);
    return 0;
}

void Terminer() {
    Etat().terminee = true;
    PostQuitMessage(0);
}

bool Terminee() { return Etat().terminee; }

void Titre(const std::wstring & titre) { Etat().titre = titre; }

const std::wstring & Titre() { return Etat().titre; }

void Laisser_passer(bool toujours) {
    Etat_application &  etat       = Etat();
    const std::uint64_t maintenant = Horloge_ms();
    if (!toujours && maintenant - etat.dernier_regard < intervalle_regards) return;
    Vider_file();
    etat.dernier_regard = Horloge_ms();
}

void Patienter(unsigned millisecondes) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, millisecondes, QS_ALLINPUT);
    Laisser_passer(true);
}

Entree_reservee::Entree_reservee(Bouton_commande & bouton)
    : avant_(std::exchange(Etat().reserve, &bouton)), focus_(Controle_de_poignee(GetFocus())) {
    bouton.Parent().Refermer_listes();
}

Entree_reservee::~Entree_reservee() {
    Etat().reserve = avant_;
    // A click on the button took the focus, and hiding the button passed it on.
    if (focus_ != nullptr && focus_->Visible() && focus_->Enabled() && !focus_->A_le_focus())
        focus_->SetFocus();
}

Sablier::Sablier() { Changer_sablier(1); }

Sablier::~Sablier() { Changer_sablier(-1); }

Fenetre * Devant() {
    if (Fenetre * active = Fenetre_de_poignee(GetActiveWindow())) return active;
    const auto & toutes = Fenetres();
    const auto   devant = std::find_if(toutes.rbegin(), toutes.rend(), [](const Fenetre * fenetre) {
        return fenetre->Montree() && IsWindowEnabled(fenetre->Poignee()) != FALSE;
    });
    return devant == toutes.rend() ? nullptr : *devant;
}

void Fin_de_session(std::function<void()> defaire) { Etat().defaire = std::move(defaire); }

}  // namespace Application

void Fenetre::Show_modal(Fenetre & proprietaire) {
    proprietaire_ = &proprietaire;
    modale_       = true;
    SetWindowLongPtrW(poignee_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(proprietaire.poignee_));
    proprietaire_actif_ = IsWindowEnabled(proprietaire.poignee_) != FALSE;
    EnableWindow(proprietaire.poignee_, FALSE);
    Show();
    MSG message;
    while (montree_ && !Etat().terminee && GetMessageW(&message, nullptr, 0, 0) > 0) Distribuer(message);
    if (montree_) Hide();
}
