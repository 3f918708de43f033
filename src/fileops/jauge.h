#pragma once
#include <cstdint>
#include <string>

// Gauge arithmetic of a file treated by 8,192-byte blocks.
class Avance {
public:
    explicit Avance(std::uint64_t longueur);  // bytes, not 0

    bool         Visible() const { return pas_ * 8192.0 <= 25.0; }  // four blocks or more
    void         Ajouter(std::uint64_t octets);                     // capped at 100
    double       Pourcentage() const { return pourcentage_; }
    std::wstring Texte() const;  // integer part followed by "%"

private:
    double pas_;  // percent per byte
    double pourcentage_ = 0;
};
