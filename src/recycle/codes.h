#pragma once
#include "recycle/lignes.h"
#include "recycle/tirage.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// Coded names for files to be stored: none that their directory or the index has already.
class Codes_libres {
public:
    explicit Codes_libres(Hasard hasard) : hasard_(std::move(hasard)) {}

    // A name for that file, in its directory. It is taken from then on. Error 58, of that file, when all are.
    std::wstring Choisir(const Fiche & fiche, std::int32_t jour, const std::vector<Ligne_index> & lignes);
    // What is known of the directories is looked at again.
    void Oublier() { pris_.clear(); }

private:
    Hasard                               hasard_;
    std::int32_t                         jour_ = 0;
    std::map<std::wstring, Numeros_pris> pris_;  // by directory, without regard to case
};
