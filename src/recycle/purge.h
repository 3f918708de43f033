#pragma once
#include "recycle/fiche.h"

#include <cstdint>
#include <vector>

// The two limits of the bin; with neither, nothing is purged.
struct Limites_corbeille {
    int taille = 0;  // kilobytes of 1024 bytes, 0 for none
    int temps  = 0;  // days, 0 for none

    bool Aucune() const { return taille <= 0 && temps <= 0; }
    // The size limit is there and so many bytes are within it.
    bool Respectee(std::uint64_t octets) const;
};

// The records, oldest first, whose files the limits no longer allow: true for those that go. With a size limit the oldest go
// until the rest is within it; with a time limit those past it go; with both, those past the time limit go until the rest is
// within the size. The newest never goes.
std::vector<bool> A_detruire(const std::vector<Fiche> & fiches, const Limites_corbeille & limites,
                             std::int32_t aujourd_hui);

// Of all of them; what is read from a file may be too much for the type, which then holds the most it can.
std::uint64_t Somme_des_tailles(const std::vector<Fiche> & fiches);
