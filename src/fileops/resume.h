#pragma once
#include <cstddef>
#include <string>
#include <string_view>

// What the files of a directory add up to: "Le répertoire C:\DOCS", "contient 2 fichiers", "totalisant  3 345 octets." on three
// lines joined by character 13. `total` is already formatted.
std::wstring Resume_repertoire(const std::wstring & repertoire, std::size_t nombre, std::wstring_view total);
