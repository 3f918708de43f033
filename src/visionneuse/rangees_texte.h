#pragma once
#include "texte/rangees.h"
#include "visionneuse/decodage.h"

#include <optional>
#include <vector>

// A text file as rows: a line each, or several when lines are broken at the right edge.
//
// A line longer than `ligne_maximale` bytes is cut at the positions that are multiples of it: where a row begins never depends on
// reading more than that around it, and a file without any line end is shown as fast as another.
class Rangees_texte : public Contenu_rangees {
public:
    static constexpr std::uint64_t ligne_maximale = 65536;

    // `debut`: length of the byte order mark. `colonnes`: where lines are broken, at a blank if there is one; 0 for nowhere.
    Rangees_texte(Octets & octets, Decodeur decodeur, std::uint64_t debut, unsigned colonnes);

    std::uint64_t Debut() const override { return debut_; }
    std::uint64_t Longueur() const override { return octets_.Longueur(); }
    Rangee        Lire(std::uint64_t position) override;

private:
    // A line, or a piece of a long one.
    struct Ligne {
        std::uint64_t debut = 0;
        std::uint64_t fin   = 0;  // of what is shown
        std::uint64_t suite = 0;  // after the line end
    };
    bool                         Commence_ligne(std::uint64_t position) const;
    std::uint64_t                Normaliser(std::uint64_t position) const;
    std::optional<std::uint64_t> Debut_avant(std::uint64_t position) const;
    std::optional<Ligne>         Jusqu_a_la_fin(std::uint64_t debut, std::uint64_t limite) const;
    Ligne                        Morceau(std::optional<std::uint64_t> ligne, std::uint64_t position) const;
    Ligne                        Ligne_de(std::uint64_t position) const;
    void                         Couper(const Ligne & ligne);
    void                         Remplir(Rangee & rangee, std::uint64_t fin) const;
    unsigned                     Largeur(char32_t code, unsigned colonne) const;

    Octets &      octets_;
    Decodeur      decodeur_;
    std::uint64_t debut_;
    unsigned      colonnes_;
    // The line last looked at and where its rows begin.
    Ligne                      ligne_;
    std::vector<std::uint64_t> coupures_;
    unsigned                   version_ = 0;
};
