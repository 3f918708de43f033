#pragma once
#include "platform/proprietaire.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// Hands a date (FILETIME, 0 for none) and attributes to `poser`, which answers false when the medium refuses them. What
// is refused is left out: the years before 1980 first, then the date, then everything.
void Poser_au_mieux(std::int64_t date, std::uint32_t attributs,
                    const std::function<bool(std::int64_t, std::uint32_t)> & poser);

// Bytes to write before the next flush of a durable copy, after one that took `duree` seconds.
std::uint64_t Intervalle_suivant(std::uint64_t intervalle, double duree);

// Copies one file by blocks of 8,192 bytes as its caller sees it; reads and writes underneath are larger, sized so that one of
// them stays short on a slow medium. Nothing is visible of a copy that did not end: destroying an unfinished transfer
// closes both files and deletes the target.
class Transfert {
public:
    static constexpr std::size_t taille_bloc = 8192;

    // Opens the source. Errors 53, 70, 75, 76, 68, 71.
    explicit Transfert(const std::wstring & source);
    ~Transfert();
    Transfert(const Transfert &)             = delete;
    Transfert & operator=(const Transfert &) = delete;

    std::uint64_t Longueur() const { return longueur_; }  // of the source, when it was opened

    // Creates the target, which must not exist (58; 75 when it is a directory).
    // `durable`: what is written goes to the disk little by little, so that the end has not all of it left to wait for.
    void Creer_cible(const std::wstring & cible, bool durable = false);
    // Moves one block on; false when the source was at its end. Errors 61 (disk full), 57, 70, 71: the target is removed
    // and both files are closed before they are thrown.
    bool Bloc();
    // Copies what is left, gives the target the source's date of last change and attributes plus archive as far as its
    // medium takes them, closes both and checks the length. A source that ended before the length first seen is error 57.
    // With `durable` the data is on the disk when it returns, and a source changed since it was opened is error 57 too.
    // After it the target stays. An error removes the target.
    void Terminer(bool durable);
    // Closes both files and deletes what was made of the target; never throws.
    void Abandonner() noexcept;

private:
    void Avancer();  // one read, one write, then the size of the next
    void Remplir();
    void Vider();
    void Fixer();  // what is written reaches the disk
    void Achever(bool durable);
    void Verifier_source(bool durable) const;
    void Reprendre_reglages() const;

    std::wstring           source_;
    std::wstring           cible_;
    Poignee_fichier        lecture_;
    Poignee_fichier        ecriture_;
    std::uint64_t          longueur_ = 0;
    std::int64_t           date_     = 0;  // of the source's last change, when it was opened
    std::uint64_t          ecrits_   = 0;
    std::vector<std::byte> tampon_;
    std::size_t            presents_  = 0;  // bytes in the buffer
    std::size_t            remis_     = 0;  // bytes of the buffer already counted as blocks
    std::size_t            transfert_ = 0;  // bytes asked for at a time
    std::uint64_t          fixes_     = 0;  // bytes written that are on the disk
    std::uint64_t          intervalle_;     // bytes between two flushes
    bool                   fin_     = false;
    bool                   durable_ = false;
    bool                   cree_    = false;
};
