#include "recycle/lignes.h"

#include <algorithm>

namespace {
std::string_view Sans_fin(std::string_view ligne) {
    if (ligne.ends_with('\n')) ligne.remove_suffix(1);
    if (ligne.ends_with('\r')) ligne.remove_suffix(1);
    return ligne;
}
}  // namespace

std::vector<Ligne_index> Decouper_index(std::string_view octets, const Page_de_codes & page) {
    std::vector<Ligne_index> lignes;
    while (!octets.empty()) {
        const std::size_t      fin   = octets.find('\n');
        const std::string_view ligne = octets.substr(0, fin == octets.npos ? fin : fin + 1);
        lignes.push_back({std::string(ligne), Lire_fiche(Sans_fin(ligne), page)});
        octets.remove_prefix(ligne.size());
    }
    return lignes;
}

bool Debut_de_fiche(std::string_view octets) {
    constexpr std::string_view debut = "crb";
    return octets.starts_with(debut) || debut.starts_with(octets) ||
           std::all_of(octets.begin(), octets.end(), [](char c) { return c == '\0'; });
}
