#pragma once
#include "texte/codage.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Text that arrives in blocks of any length, cut into lines. Carriage return, line feed, or one after the other end a line.
// Of a line only its first bytes are kept: it may be as long as its file.
class Coupe_lignes {
public:
    // `retenus`: bytes kept of a line.
    Coupe_lignes(Codage codage, std::size_t retenus);

    // Takes bytes from the front of the block, up to the end of the line or all of them; how many it took.
    std::size_t      Prendre(std::string_view bloc);
    bool             Complete() const { return complete_; }  // the line's end was met
    bool             Entamee() const { return entamee_; }    // the text that ends here ends with a line
    std::string_view Octets() const { return octets_; }      // the line's first bytes
    std::uint64_t    Longueur() const { return longueur_; }  // of the whole line in bytes, without its end
    std::size_t      Unite() const { return unite_; }        // bytes of the smallest character
    void             Suivante();                             // the next bytes belong to the next line

private:
    void Ranger(std::string_view unite);

    std::string   octets_;
    std::string   partielle_;  // first byte of a character of two
    std::size_t   retenus_;
    std::size_t   unite_;
    bool          grand_;  // the high byte comes first
    std::uint64_t longueur_     = 0;
    bool          entamee_      = false;
    bool          complete_     = false;
    bool          apres_retour_ = false;  // a line feed would still belong to the former line's end
};

// What is printed of one line of text.
struct Morceau {
    bool                        nouvelle_page = false;  // comes first
    std::optional<std::wstring> ligne;

    bool operator==(const Morceau &) const = default;
};

// The first 160 characters of a line as they are printed: tabs spread to every eighth column, form feeds as new pages, the other
// control characters as blanks, blanks at the end left out.
std::vector<Morceau>         Morceaux_imprimables(std::wstring_view ligne);
inline constexpr std::size_t caracteres_imprimes = 160;
