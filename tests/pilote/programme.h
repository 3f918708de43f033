#pragma once
#include "platform/windows.h"

#include <string>

// One started program.
namespace Pilote {

class Programme {
public:
    // Starts it; `etat` is how its first window shows. Throws std::runtime_error when it cannot be started.
    Programme(const std::wstring & executable, const std::wstring & arguments,
              const std::wstring & repertoire, int etat = SW_SHOWNORMAL);
    // Killed when it still runs.
    ~Programme();
    Programme(const Programme &)             = delete;
    Programme & operator=(const Programme &) = delete;

    DWORD  Numero() const { return processus_.dwProcessId; }
    HANDLE Poignee() const { return processus_.hProcess; }
    bool   Vivant() const { return WaitForSingleObject(processus_.hProcess, 0) == WAIT_TIMEOUT; }
    bool   Attendre_fin(unsigned delai) const {
          return WaitForSingleObject(processus_.hProcess, delai) == WAIT_OBJECT_0;
    }
    DWORD Code_de_fin() const;
    void  Tuer() const;

private:
    PROCESS_INFORMATION processus_{};
};

// Where this test program is.
std::wstring Repertoire_essais();

}  // namespace Pilote
