#pragma once
#include <string>

// Opens a help file at its contents, with the system's help viewer. False when it could not be started.
bool Ouvrir_aide(const std::wstring & fichier);
