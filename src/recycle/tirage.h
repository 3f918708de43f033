#pragma once
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

// A number drawn at random, 0 <= n < 1.
using Hasard = std::function<double()>;

// The numbers that the coded names of one day already have in one directory.
class Numeros_pris {
public:
    static constexpr int nombre = 1000;

    void Prendre(int numero);
    bool Pris(int numero) const;
    bool Tous() const { return pris_.all(); }
    // A free number, none when all are taken. Ends whatever the generator gives.
    std::optional<int> Tirer(const Hasard & hasard) const;

private:
    std::bitset<static_cast<std::size_t>(nombre)> pris_;
};

// The number in a coded name of that day, in any case; none for another name.
std::optional<int> Numero_du_jour(std::wstring_view nom, std::int32_t jour);
