#include "visionneuse/index_lignes.h"

Index_lignes::Index_lignes(Octets & octets, Decodeur decodeur, std::uint64_t debut)
    : octets_(octets), decodeur_(decodeur), debut_(debut), position_(debut) {}

bool Index_lignes::Avancer(std::uint64_t octets) {
    const unsigned unite = decodeur_.Unite();
    for (const std::uint64_t limite = position_ + octets; position_ < limite; position_ += unite) {
        if (complet_) return false;
        if ((position_ - debut_) % pas == 0 && reperes_.size() == (position_ - debut_) / pas)
            reperes_.push_back(fins_);
        const int lue = decodeur_.Lire_unite(octets_, position_);
        if (lue < 0) {
            complet_ = true;
            return false;
        }
        if (Fin_de_ligne(lue, precedente_)) ++fins_;
        precedente_ = lue;
    }
    return true;
}

// What follows the last line end is a line of its own, unless nothing does.
std::uint64_t Index_lignes::Nombre() const {
    const bool vide = position_ == debut_;
    return fins_ + (vide || precedente_ == L'\n' || precedente_ == L'\r' ? 0 : 1);
}

std::optional<std::uint64_t> Index_lignes::Ligne_de(std::uint64_t position) {
    if (position < debut_ || position > position_) return std::nullopt;
    const auto repere = static_cast<std::size_t>((position - debut_) / pas);
    if (repere >= reperes_.size()) return std::nullopt;
    const unsigned unite = decodeur_.Unite();
    std::uint64_t  p     = debut_ + repere * pas;
    std::uint64_t  fins  = reperes_[repere];
    int            avant = p >= debut_ + unite ? decodeur_.Lire_unite(octets_, p - unite) : -1;
    for (; p + unite <= position; p += unite) {
        const int lue = decodeur_.Lire_unite(octets_, p);
        if (Fin_de_ligne(lue, avant)) ++fins;
        avant = lue;
    }
    return fins + 1;
}
