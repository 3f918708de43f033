#pragma once
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// One entry of a directory while the directory is enumerated.
struct Entree_vue {
    std::wstring_view nom;             // as spelled on disk; gone after the visit
    std::uint64_t     taille     = 0;  // bytes
    std::uint64_t     moment     = 0;  // last change, FILETIME
    std::uint32_t     attributs  = 0;
    bool              repertoire = false;
    bool              lien       = false;  // leads elsewhere: a walk of the tree does not go into it
};

// A file that a walk found.
struct Fichier_trouve {
    std::wstring                 chemin;  // as spelled on disk
    std::optional<std::uint64_t> taille;  // bytes; none for a link, whose own length says nothing
};

// Visits what one directory holds, "." and ".." left out, in the order of the system, and keeps nothing of it:
// what a walk of a whole disk costs beyond the system's own work is what its visits do. False from a visit ends
// the enumeration; returns false then. Errors 76 (no such directory), 70 (cannot be read), 71, 68.
bool Enumerer(const std::wstring & repertoire, const std::function<bool(const Entree_vue &)> & visite);

// What tells the medium in a drive ("C:") from another one: its serial number and its label. Empty without a medium.
std::wstring Identite_support(const std::wstring & unite);
