#pragma once
#include "visionneuse/decodage.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

// Looks for a text in a file without regard to case, in steps.
class Recherche {
public:
    struct Plage {
        std::uint64_t debut;
        std::uint64_t fin;

        bool operator==(const Plage &) const = default;
    };
    using Pliage = wchar_t (*)(wchar_t);

    // What begins at `depart` or after it and ends at `limite` or before. An empty text is found nowhere.
    Recherche(Octets & octets, Decodeur decodeur, std::wstring_view texte, Pliage pliage,
              std::uint64_t depart, std::uint64_t limite);

    // Goes on for about that many bytes; false when it is over, found or not. Errors of reading.
    bool                         Avancer(std::uint64_t octets);
    const std::optional<Plage> & Trouvee() const { return trouvee_; }
    std::uint64_t                Position() const { return position_; }

private:
    char32_t Plier(char32_t code) const;
    void     Preparer();
    void     Comparer(char32_t code);

    Octets &                   octets_;
    Decodeur                   decodeur_;
    Pliage                     pliage_;
    std::uint64_t              position_;
    std::uint64_t              limite_;
    std::vector<char32_t>      motif_;
    std::vector<std::size_t>   reprises_;   // how much of the text still matches after a difference
    std::vector<std::uint64_t> positions_;  // of the last characters read, in turn
    std::size_t                egaux_ = 0;  // characters that match so far
    std::uint64_t              lus_   = 0;
    std::optional<Plage>       trouvee_;
};
