#pragma once
#include <functional>
#include <string>
#include <string_view>

// Paths as texts; nothing here looks at the disk.

std::wstring      Joindre(std::wstring_view repertoire, std::wstring_view nom);  // no doubled "\" at a root
std::wstring_view Nom_du_chemin(std::wstring_view chemin);                       // after the last "\"
std::wstring_view Repertoire_du_chemin(std::wstring_view chemin);   // before the last "\"; "c:\" at the root
std::wstring_view Extension_du_nom(std::wstring_view nom);          // after the last ".", empty without one
std::wstring      Sans_barre_finale(std::wstring_view repertoire);  // a root keeps its "\"

// A bare name that a file can be given: not empty, none of \ / : * ? " < > | nor a control character, neither "." nor "..",
// no trailing blank or dot, no device name (CON, NUL, COM1 ...).
bool Nom_simple(std::wstring_view nom);

// Drops whole leading directories until the path fits: C:\ . . .\COLOR\LONGNAME.TXT. `mesure` gives a text's width in the unit
// of `largeur`. A path without a drive letter takes the two characters of `unite`.
std::wstring Raccourcir(std::wstring_view chemin, double largeur,
                        const std::function<double(std::wstring_view)> & mesure, std::wstring_view unite);
