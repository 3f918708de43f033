#include "fileops/jauge.h"

Avance::Avance(std::uint64_t longueur) : pas_(100.0 / static_cast<double>(longueur)) {}

void Avance::Ajouter(std::uint64_t octets) {
    pourcentage_ += pas_ * static_cast<double>(octets);
    // Thousands of additions may end a hair below the whole.
    constexpr double presque_tout = 100.0 - 1e-7;
    if (pourcentage_ > presque_tout) pourcentage_ = 100.0;
}

std::wstring Avance::Texte() const { return std::to_wstring(static_cast<int>(pourcentage_)) + L"%"; }
