#pragma once
#include <cstdint>
#include <string>
#include <vector>

// What the kill and fault tests do to files: each act works on the directory `racine`, as laid out by its test, and raises what
// the services raise.
//
//   racine\index        KORVANE.CRB
//   racine\un, \deux    files
namespace Coupures {

inline constexpr std::int32_t aujourdhui = 45000;

struct Acte {
    const wchar_t * nom;
    void (*faire)(const std::wstring & racine);
};

const std::vector<Acte> & Actes();
const Acte &              Trouver_acte(const std::wstring & nom);  // throws std::out_of_range

}  // namespace Coupures
