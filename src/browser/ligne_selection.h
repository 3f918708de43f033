#pragma once
#include <cstddef>
#include <string>
#include <string_view>

// The message line for a selection: "   2 fichiers sélectionnés, total = 1 234 octets."; empty for no file.
// `total` is already formatted.
std::wstring Ligne_selection(std::size_t nombre, std::wstring_view total);
