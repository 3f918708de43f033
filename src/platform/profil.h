#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Profile files, through the system's own functions (ANSI code page). An empty file name means WIN.INI. A file
// whose path the code page cannot hold is reached by its short path where the disk keeps one; where it does not, reads give
// the default and writes error 75.

// One value, cut to `tampon` characters including the terminator.
std::wstring Lire_profil(const std::wstring & fichier, const wchar_t * section, const std::wstring & cle,
                         const std::wstring & defaut, unsigned tampon);
// The raw key list of a section: names each followed by NUL, one more NUL at the end. Grown until the whole list fits.
std::wstring Lire_cles(const std::wstring & fichier, const wchar_t * section);
// Writes a value; no value removes the key. Error 75 when the file cannot be written, or when the code page cannot hold
// the key or the value: a "?" in their place would be another key, another program.
void Ecrire_profil(const std::wstring & fichier, const wchar_t * section, const std::wstring & cle,
                   const std::optional<std::wstring> & valeur);
