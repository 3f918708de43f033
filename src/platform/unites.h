#pragma once
#include <cstdint>
#include <string>
#include <vector>

enum class Genre_unite { amovible, fixe, reseau };

struct Unite {
    wchar_t      lettre;  // lower case
    Genre_unite  genre;
    std::wstring texte;  // "a:", "c: [LABEL]", "c:", "x: \\server\share"
};

// The drives present, in letter order. Never touches a removable medium.
std::vector<Unite> Unites_presentes();

// Free bytes of a drive's root ("c:\"), by GetDiskFreeSpaceA; 0 when the drive is not ready.
std::uint64_t Octets_libres(const std::wstring & racine);

// Whether the medium of that drive ("c:\") can be another one tomorrow. Never touches it.
bool Support_amovible(const std::wstring & racine);
// Whether that drive is sure to be the same one tomorrow: a disk of this machine that cannot be pulled out, under its own letter.
bool Support_fixe(const std::wstring & racine);
