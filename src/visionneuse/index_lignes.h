#pragma once
#include "visionneuse/decodage.h"

#include <optional>
#include <vector>

// Counts the lines of a file little by little; what was counted once is found again at once.
class Index_lignes {
public:
    // `octets` is best its own: it reads the file from one end to the other. `debut`: length of the byte order mark.
    Index_lignes(Octets & octets, Decodeur decodeur, std::uint64_t debut);

    // Goes on for that many bytes; false when the end is reached. Errors of reading: it can go on later.
    bool          Avancer(std::uint64_t octets);
    bool          Complet() const { return complet_; }
    std::uint64_t Nombre() const;  // lines, once complete
    std::uint64_t Position() const { return position_; }
    // The number of the line that holds `position`, from 1; nothing before the count has come so far.
    std::optional<std::uint64_t> Ligne_de(std::uint64_t position);

private:
    bool Fin_de_ligne(int unite, int precedente) const {
        return unite == L'\r' || (unite == L'\n' && precedente != L'\r');
    }

    static constexpr std::uint64_t pas = 262144;

    Octets &                   octets_;
    Decodeur                   decodeur_;
    std::uint64_t              debut_;
    std::uint64_t              position_;
    std::uint64_t              fins_       = 0;  // line ends before `position_`
    int                        precedente_ = -1;
    bool                       complet_    = false;
    std::vector<std::uint64_t> reperes_;  // line ends before each multiple of `pas`
};
