#pragma once
#include <cstddef>
#include <string_view>

// How a text file is coded, which its byte order mark says. A file without a mark is in the system's ANSI code page.

enum class Codage { ansi, utf8, utf16_petit, utf16_grand };

struct Marque_codage {
    Codage      codage = Codage::ansi;
    std::size_t octets = 0;  // length of the mark

    bool operator==(const Marque_codage &) const = default;
};

// From the first bytes of a file; three are enough.
Marque_codage Reconnaitre_codage(std::string_view debut);
