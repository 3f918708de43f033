#pragma once
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The programmed buttons by the names of their entries, in the order of the settings file. A button's caption is its entry's
// name as written.

// The caption as messages quote it: without the "&" that marks the access key; "&&", which shows one "&", gives one.
std::wstring Nom_bouton(std::wstring_view caption);

// Each name once: an entry written twice is one entry, that of the first line.
std::vector<std::wstring> Noms_distincts(const std::vector<std::wstring> & noms);

// The names that the row of buttons shows after `montres`: those that follow the last caption that is still a name, the first
// ones after the last name. At most `places`, none twice; the first group when no caption is a name any more. `noms` are distinct.
std::vector<std::wstring> Groupe_suivant(const std::vector<std::wstring> & noms,
                                         const std::vector<std::wstring> & montres, std::size_t places);
