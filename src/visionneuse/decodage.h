#pragma once
#include "texte/codage.h"
#include "visionneuse/octets.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// Characters of a file, whatever its coding. What is no character in that coding reads as U+FFFD, one byte (or pair) at a time:
// every byte of every file can be shown.

// The system's 8-bit code page.
struct Page_ansi {
    std::array<wchar_t, 256>                                        seuls{};  // what a byte alone is
    std::array<bool, 256>                                           tetes{};  // it begins a pair
    std::function<wchar_t(unsigned char tete, unsigned char suite)> paire;
    bool                                                            utf8 = false;  // it is UTF-8
};

struct Caractere {
    char32_t code   = 0;
    unsigned octets = 0;  // 0 at the end

    bool operator==(const Caractere &) const = default;
};

class Decodeur {
public:
    // The page must outlive it.
    Decodeur(Codage codage, const Page_ansi & page);

    Codage   Nom() const { return codage_; }
    unsigned Unite() const { return unite_; }  // bytes of what line ends are looked for in: 1 or 2
    // The unit there, -1 at the end.
    int       Lire_unite(Octets & octets, std::uint64_t position) const;
    Caractere Lire(Octets & octets, std::uint64_t position) const;
    // The first position from there on where a character can begin.
    std::uint64_t Aligner(Octets & octets, std::uint64_t position) const;

private:
    Caractere Lire_utf8(Octets & octets, std::uint64_t position) const;
    Caractere Lire_utf16(Octets & octets, std::uint64_t position) const;

    Codage            codage_;
    unsigned          unite_;
    const Page_ansi * page_;
};

// How a file is shown at first.
enum class Nature { texte, binaire };

struct Apparence {
    Nature        nature = Nature::texte;
    Marque_codage marque;  // without a mark, UTF-8 is recognised by what it is

    bool operator==(const Apparence &) const = default;
};

// From the first bytes of a file, more of which may follow. A null byte in what is not UTF-16 makes it binary. Bytes above 127 that
// are UTF-8 throughout are: text in an 8-bit code page is so by chance never.
Apparence Reconnaitre(std::string_view debut, bool entier);

// What stands between two positions as plain text, line ends as CR LF; a null, which would end a text, as a middle dot.
std::wstring Texte_entre(Octets & octets, const Decodeur & decodeur, std::uint64_t debut, std::uint64_t fin);

// A character as the elements of a text: UTF-16 on every system.
void Ajouter_caractere(std::wstring & texte, char32_t code);
