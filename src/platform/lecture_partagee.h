#pragma once
#include "platform/proprietaire.h"

#include <cstddef>
#include <cstdint>
#include <string>

// A file that is only looked at: open for reading alone, and every other program may go on writing, renaming or deleting it.
class Lecture_partagee {
public:
    // Errors 53, 76, 68, 70, 71; 75 for a directory, 52 for what is no file on a disk, 64.
    explicit Lecture_partagee(const std::wstring & chemin);

    const std::wstring & Chemin() const { return chemin_; }
    std::uint64_t        Longueur() const;  // now
    // Reads up to `longueur` bytes at `position` and tells how many: fewer only at the end. Errors 57, 70, 71.
    std::size_t Lire(std::uint64_t position, char * tampon, std::size_t longueur) const;

private:
    std::wstring    chemin_;
    Poignee_fichier fichier_;
};
