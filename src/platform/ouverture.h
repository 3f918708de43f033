#pragma once
#include <string>

// What opening a file for its content has of its own.

// The path in the form that the system opens. Error 52 for a device: it opens like a file and never ends.
std::wstring Forme_de_fichier(const std::wstring & chemin);

// Throws for the system's last error: 75 when the path is a directory's.
[[noreturn]] void Lever_ouverture(const std::wstring & chemin);
