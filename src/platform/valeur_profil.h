#pragma once
#include <string>
#include <string_view>

// How values look in a profile file. The system's functions drop the blanks around a value, then one pair of quotes around it.

// What is written so that `valeur` is read back: itself, or between quotes when reading would take something off it.
std::wstring Valeur_protegee(std::wstring_view valeur);
// What the system's functions give for what was written.
std::wstring Valeur_lue(std::wstring_view ecrite);
// Without the blanks at both ends, as the system's functions see them.
std::wstring_view Sans_blancs(std::wstring_view texte);
