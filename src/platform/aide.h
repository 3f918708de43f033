#pragma once
#include <string>

enum class Ouverture_aide { ouverte, absente, refusee };

// Opens a help file at its contents in the system's help viewer, for the program's main window: the named .HLP where the system
// has an engine for it, the .CHM of the same name where it has none or cannot open the first. Each is looked for beside the
// program, then where the system keeps its help. `absente`: neither is there; `refusee`: one is, and nothing opens it.
Ouverture_aide Ouvrir_aide(const std::wstring & nom);
// The help viewer is no longer needed by the program: it closes, unless another program uses it. Nothing when it was never opened.
void Fermer_aide();
