#pragma once
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

// The bytes of a file, read by blocks when they are asked for; the blocks used last are kept.
//
// The file is never mapped into memory: the page of a medium that was taken out, or of a file that was cut short, would end the
// program instead of giving an error.
class Octets {
public:
    static constexpr std::size_t taille_bloc = 65536;

    // Reads up to `longueur` bytes at `position` and tells how many: fewer only at the end. May throw: nothing is changed then.
    using Lecture = std::function<std::size_t(std::uint64_t position, char * tampon, std::size_t longueur)>;

    Octets(Lecture lecture, std::uint64_t longueur, std::size_t blocs = 32);

    std::uint64_t Longueur() const { return longueur_; }
    // The file has become longer or shorter: everything is read again.
    void Changer_longueur(std::uint64_t longueur);
    // Counts the changes of length, those met while reading too.
    unsigned Version() const { return version_; }

    // 0 to 255; -1 at the end and beyond. A file found shorter than it was ends where it ends now. Errors of the reading.
    int Octet(std::uint64_t position) {
        if (position - debut_ < taille_) return static_cast<unsigned char>(courant_[position - debut_]);
        return Charger(position);
    }

private:
    struct Bloc {
        std::uint64_t     rang;
        std::uint64_t     usage;
        std::vector<char> octets;
    };
    int    Charger(std::uint64_t position);
    Bloc & Trouver(std::uint64_t rang);
    void   Oublier();

    Lecture           lecture_;
    std::uint64_t     longueur_;
    std::size_t       maximum_;
    unsigned          version_ = 0;
    std::uint64_t     usage_   = 0;
    std::vector<Bloc> blocs_;
    // The block in hand.
    const char *  courant_ = nullptr;
    std::uint64_t debut_   = 0;
    std::uint64_t taille_  = 0;
};
