#include "visionneuse/octets.h"

#include <algorithm>
#include <utility>

Octets::Octets(Lecture lecture, std::uint64_t longueur, std::size_t blocs)
    : lecture_(std::move(lecture)), longueur_(longueur), maximum_(std::max<std::size_t>(blocs, 1)) {}

void Octets::Oublier() {
    blocs_.clear();
    courant_ = nullptr;
    debut_ = taille_ = 0;
}

void Octets::Changer_longueur(std::uint64_t longueur) {
    Oublier();
    longueur_ = longueur;
    ++version_;
}

Octets::Bloc & Octets::Trouver(std::uint64_t rang) {
    for (Bloc & bloc : blocs_) {
        if (bloc.rang == rang) return bloc;
    }
    const std::uint64_t debut = rang * taille_bloc;
    Bloc              lu{rang, 0, std::vector<char>(std::min<std::uint64_t>(taille_bloc, longueur_ - debut))};
    const std::size_t lus = lecture_(debut, lu.octets.data(), lu.octets.size());
    if (lus < lu.octets.size()) {
        lu.octets.resize(lus);
        Changer_longueur(debut + lus);
    }
    if (blocs_.size() == maximum_) {
        courant_ = nullptr, taille_ = 0;
        blocs_.erase(std::min_element(blocs_.begin(), blocs_.end(),
                                      [](const Bloc & a, const Bloc & b) { return a.usage < b.usage; }));
    }
    return blocs_.emplace_back(std::move(lu));
}

int Octets::Charger(std::uint64_t position) {
    if (position >= longueur_) return -1;
    Bloc & bloc = Trouver(position / taille_bloc);
    bloc.usage  = ++usage_;
    courant_    = bloc.octets.data();
    debut_      = bloc.rang * taille_bloc;
    taille_     = bloc.octets.size();
    if (position - debut_ >= taille_) return -1;
    return static_cast<unsigned char>(courant_[position - debut_]);
}
