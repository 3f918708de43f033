#pragma once
#include "search/arbre.h"

#include <optional>
#include <string>
#include <string_view>

// The name of a directory typed in the place of its path: "SYSTEM", or the end of its path, "SYSTEM\COLOR".

// What the user typed or pasted: blanks and quotes around it left out.
std::wstring Chemin_saisi(std::wstring_view saisie);
// The same as the end of a path: "/" is "\", no bar at either end. Empty when no directory of the drive can be called so.
std::wstring Nom_saisi(std::wstring_view saisie);

using Plier_lettre = wchar_t (*)(wchar_t);

// The first directory of the tree from `debut` on whose path ends with that name, whatever the case. The tree goes level by
// level: the nearest to the root comes first.
std::optional<std::size_t> Prochain_repertoire(const Arbre & arbre, std::wstring_view nom, std::size_t debut,
                                               Plier_lettre plier);
