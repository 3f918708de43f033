#pragma once
#include <optional>
#include <string>
#include <vector>

struct Gestion_Fichiers;

// Looks a directory up by its name, or by the end of its path, on a whole drive ("C:"): the paths of all those that the disk
// tree holds, the nearest to the root first; some may be gone by now. The tree in memory is used while it is valid and whole;
// otherwise the drive is walked, with the progress label and the stop button in use. Nothing when the user stopped the walk. Errors
// of the drive: 68, 70, 71, 76.
std::optional<std::vector<std::wstring>> Chercher_repertoire(Gestion_Fichiers & f, const std::wstring & unite,
                                                             const std::wstring & nom);
