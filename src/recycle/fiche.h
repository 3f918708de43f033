#pragma once
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// How the index's 8-bit text becomes text and back.
struct Page_de_codes {
    std::function<std::wstring(std::string_view)> lire;
    std::function<std::string(std::wstring_view)> ecrire;
    std::function<bool(std::wstring_view)>        tient;  // the round trip is exact
};

// One line of the recycle bin index: the coded name of an erased file, its size, where it came from.
//
// A line is fixed columns followed by the file's name and directory; the directory starts at the drive letter, one
// character before the first ':'. Lines come from disk: nothing about them is trusted.
struct Fiche {
    std::wstring  code;        // "crb" + day serial + "." + three digits, 12 characters
    std::uint64_t taille = 0;  // bytes; eight digits at least, wider from 100 MB on
    std::wstring  nom;         // as it was before erasure, may hold blanks
    std::wstring  repertoire;  // ends with '\'

    bool         operator==(const Fiche &) const = default;
    std::wstring Chemin_avant() const { return repertoire + nom; }  // before erasure
    std::wstring Chemin_code() const { return repertoire + code; }  // where the file lies now
    std::int32_t Jour() const;                                      // of erasure, day serial number
};

std::wstring Nom_code(std::int32_t jour, int tirage);  // "crb35000.007"

// Empty for a line that is no record. The line comes without its line end.
std::optional<Fiche> Lire_fiche(std::string_view ligne, const Page_de_codes & page);
// With its line end. What the code page cannot hold is written in UTF-8; reading tells the two apart (bytes above 127 that
// form valid UTF-8 are UTF-8).
std::string Ecrire_fiche(const Fiche & fiche, const Page_de_codes & page);
