#include "toolkit/remise.h"

#include "platform/windows.h"
#include "toolkit/application.h"
#include "toolkit/fenetre.h"
#include "toolkit/interne.h"

#include <new>
#include <utility>

namespace {
constexpr UINT      message_suite   = WM_APP;
constexpr ULONG_PTR marque          = 0x4B52564E;  // what comes from a copy of the program, and nothing else
constexpr UINT      attente_reponse = 3000;        // ms
constexpr UINT      attente_debut   = 2000;        // ms that a copy may take to start
constexpr DWORD     longueur_max    = 1U << 20;    // bytes
}  // namespace

struct Rappels_remise {
    static LRESULT CALLBACK Procedure(HWND poignee, UINT message, WPARAM mot, LPARAM large) {
        auto * remise = reinterpret_cast<Remise *>(GetWindowLongPtrW(poignee, GWLP_USERDATA));
        if (remise != nullptr && message == WM_COPYDATA)
            return remise->Recevoir(reinterpret_cast<const void *>(large)) ? TRUE : FALSE;
        if (remise != nullptr && message == message_suite) {
            remise->Transmettre();
            return 0;
        }
        return DefWindowProcW(poignee, message, mot, large);
    }
};

Remise::Remise(const wchar_t * nom) : nom_(std::wstring(nom) + L"_Remise"), annonce_(nom) {
    WNDCLASSEXW classe{};
    classe.cbSize        = sizeof classe;
    classe.lpfnWndProc   = Rappels_remise::Procedure;
    classe.hInstance     = Module();
    classe.lpszClassName = nom_.c_str();
    RegisterClassExW(&classe);
}

Remise::~Remise() {
    if (poignee_ == nullptr) return;
    SetWindowLongPtrW(static_cast<HWND>(poignee_), GWLP_USERDATA, 0);
    DestroyWindow(static_cast<HWND>(poignee_));
}

// A copy announces itself before it takes texts: between the two it is waited for.
void * Remise::Autre_copie() const {
    if (!annonce_.Deja_lancee()) return nullptr;
    for (const std::uint64_t fin = Horloge_ms() + attente_debut;; Sleep(20)) {
        if (const HWND trouvee = FindWindowExW(HWND_MESSAGE, nullptr, nom_.c_str(), nullptr)) return trouvee;
        if (Horloge_ms() >= fin) return nullptr;
    }
}

bool Remise::Confier(const std::wstring & texte) const {
    const auto autre = static_cast<HWND>(Autre_copie());
    if (autre == nullptr) return false;
    DWORD processus = 0;
    GetWindowThreadProcessId(autre, &processus);
    // The program just started by the user has the right to the front, and passes it on.
    AllowSetForegroundWindow(processus);
    COPYDATASTRUCT donnees{};
    donnees.dwData = marque;
    donnees.cbData = static_cast<DWORD>(texte.size() * sizeof(wchar_t));
    donnees.lpData = const_cast<wchar_t *>(texte.data());
    DWORD_PTR pris = FALSE;
    return SendMessageTimeoutW(autre, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&donnees), SMTO_ABORTIFHUNG,
                               attente_reponse, &pris) != 0 &&
           pris == TRUE;
}

void Remise::Accepter(Fenetre & fenetre, std::function<void(const std::wstring &)> suite) {
    fenetre_ = &fenetre;
    suite_   = std::move(suite);
    HWND creee =
        CreateWindowExW(0, nom_.c_str(), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, Module(), nullptr);
    SetWindowLongPtrW(creee, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    poignee_ = creee;
}

// Any program can send such a message: only its length is trusted.
bool Remise::Recevoir(const void * donnees) {
    const auto * recues = static_cast<const COPYDATASTRUCT *>(donnees);
    if (recues->dwData != marque || recues->cbData > longueur_max || recues->cbData % sizeof(wchar_t) != 0)
        return false;
    // What follows would never be run: the sender opens a window of its own.
    if (Application::Terminee()) return false;
    const auto * texte = static_cast<const wchar_t *>(recues->lpData);
    try {
        recus_.emplace_back(texte, recues->cbData / sizeof(wchar_t));
    } catch (const std::bad_alloc &) {
        return false;  // the sender keeps it
    }
    // The sender waits for the answer: what the text leads to comes after it.
    if (PostMessageW(static_cast<HWND>(poignee_), message_suite, 0, 0) != FALSE) return true;
    recus_.pop_back();
    return false;
}

void Remise::Transmettre() {
    const HWND devant = GetLastActivePopup(fenetre_->Poignee());
    if (IsIconic(fenetre_->Poignee()) != FALSE) ShowWindow(fenetre_->Poignee(), SW_RESTORE);
    SetForegroundWindow(devant);
    for (const std::wstring & texte : std::exchange(recus_, {})) suite_(texte);
}
