#pragma once
#include "visionneuse/decodage.h"
#include "visionneuse/octets.h"

#include <algorithm>
#include <cstdint>
#include <string>

// A file in memory, whose reads are counted.
struct Fichier_essai {
    explicit Fichier_essai(std::string octets, std::size_t blocs = 4)
        : contenu(std::move(octets)),
          lecteur(
              [this](std::uint64_t position, char * tampon, std::size_t longueur) {
                  ++lectures;
                  const auto debut = std::min<std::size_t>(position, contenu.size());
                  return contenu.copy(tampon, longueur, debut);
              },
              contenu.size(), blocs) {}
    Fichier_essai(const Fichier_essai &)             = delete;
    Fichier_essai & operator=(const Fichier_essai &) = delete;

    std::string contenu;
    int         lectures = 0;
    Octets      lecteur;
};

// One byte a character, the same on every machine.
inline const Page_ansi & Page_latine() {
    static const Page_ansi page = [] {
        Page_ansi latine;
        for (std::size_t i = 0; i < 256; ++i) latine.seuls[i] = static_cast<wchar_t>(i);
        return latine;
    }();
    return page;
}
