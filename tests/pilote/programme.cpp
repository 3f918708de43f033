#include "pilote/programme.h"

#include "pilote/attente.h"

#include <stdexcept>

namespace Pilote {

Programme::Programme(const std::wstring & executable, const std::wstring & arguments,
                     const std::wstring & repertoire, int etat) {
    STARTUPINFOW depart{};
    depart.cb          = sizeof depart;
    depart.dwFlags     = STARTF_USESHOWWINDOW;
    depart.wShowWindow = static_cast<WORD>(etat);
    std::wstring ligne = L"\"" + executable + L"\" " + arguments;
    // A start is now and then refused with 1359 under Wine, and succeeds the next time.
    for (int essai = 0; essai < 3; ++essai) {
        if (CreateProcessW(executable.c_str(), ligne.data(), nullptr, nullptr, FALSE, 0, nullptr,
                           repertoire.c_str(), &depart, &processus_)) {
            return;
        }
        Sleep(50);
    }
    throw std::runtime_error("démarrer " + Utf8(executable) + " : " + std::to_string(GetLastError()));
}

Programme::~Programme() {
    if (Vivant()) Tuer();
    CloseHandle(processus_.hThread);
    CloseHandle(processus_.hProcess);
}

DWORD Programme::Code_de_fin() const {
    DWORD code = 0;
    GetExitCodeProcess(processus_.hProcess, &code);
    return code;
}

void Programme::Tuer() const {
    TerminateProcess(processus_.hProcess, 99);
    WaitForSingleObject(processus_.hProcess, 3000);
}

std::wstring Repertoire_essais() {
    std::wstring chemin(32768, L'\0');
    chemin.resize(GetModuleFileNameW(nullptr, chemin.data(), static_cast<DWORD>(chemin.size())));
    return chemin.substr(0, chemin.rfind(L'\\'));
}

}  // namespace Pilote
