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
// Error when the file is there and cannot be read (70 when another program has locked it): reads would give defaults without a
// word. A file that does not exist is an empty one.
void Exiger_lisible(const std::wstring & fichier);

// Characters of a value, at most, that the system's functions write whole; they read longer ones.
inline constexpr std::size_t plus_longue_valeur = 32000;

struct Changement_profil {
    std::wstring                cle;
    std::optional<std::wstring> valeur;  // none removes the key
};
// Changes a section in that order, all or nothing: the changed file takes the place of the former one in one step, so that a full
// disk or a power cut leaves the former. WIN.INI, which the system may keep elsewhere, and a file in a directory that takes no
// other are changed in place; a key changed before a failure is given its value back. What Lire_profil gives afterwards is what
// was written, outer blanks and quotes included. Programs that change files by it take turns, and what others write meanwhile is
// kept. Errors: 61 disk full; 70 when the turn does not come, or when another program has locked the file that a key is to leave;
// 75 when the file cannot be written, or when the code page cannot hold a key or a value: a "?" in their place would be another
// key, another program; 6 when a value is too long.
void Changer_profil(const std::wstring & fichier, const wchar_t * section,
                    const std::vector<Changement_profil> & changements);
// The same for one key.
void Ecrire_profil(const std::wstring & fichier, const wchar_t * section, const std::wstring & cle,
                   const std::optional<std::wstring> & valeur);
