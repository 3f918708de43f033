#pragma once
#include "platform/windows.h"

#include <iosfwd>
#include <string>

// The system's message boxes of another process.
namespace Pilote {

// What a message box was asked to show: `style` is the sum of its buttons (MB_YESNO ...), its icon
// (MB_ICONQUESTION ...) and its default button (MB_DEFBUTTON2 ...), as the function that shows it takes them.
struct Boite {
    std::wstring titre;
    std::wstring texte;  // whole, line breaks as given
    unsigned     style = 0;

    bool operator==(const Boite &) const = default;
};

std::ostream & operator<<(std::ostream & sortie, const Boite & boite);

// The visible message box of a process, or null. Waits for one.
HWND Boite_visible(DWORD processus);
HWND Attendre_boite_visible(DWORD processus, unsigned delai);

// The icon is told by comparing the box's picture with the process's own system icons, which a short-lived
// thread of that process looks up: handles of pictures mean nothing in another process.
Boite Lire_boite(HWND boite);

// Presses a button (IDYES ...) with the mouse; false when the box has no such button, or stays.
bool Repondre_boite(HWND boite, int bouton);

}  // namespace Pilote
