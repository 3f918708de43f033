#include "recycle/purge.h"

bool Limites_corbeille::Respectee(std::uint64_t octets) const {
    return taille > 0 && octets <= static_cast<std::uint64_t>(taille) * 1024;
}

std::vector<bool> A_detruire(const std::vector<Fiche> & fiches, const Limites_corbeille & limites,
                             std::int32_t aujourd_hui) {
    std::vector<bool> partent(fiches.size(), false);
    if (limites.Aucune()) return partent;
    std::uint64_t total = Somme_des_tailles(fiches);
    for (std::size_t i = 0; i + 1 < fiches.size() && !limites.Respectee(total); ++i) {
        const std::int64_t expiration = std::int64_t{fiches[i].Jour()} + limites.temps;
        if (limites.temps > 0 && expiration >= aujourd_hui) continue;
        partent[i] = true;
        total -= fiches[i].taille < total ? fiches[i].taille : total;
    }
    return partent;
}

std::uint64_t Somme_des_tailles(const std::vector<Fiche> & fiches) {
    std::uint64_t total = 0;
    for (const Fiche & fiche : fiches)
        total = fiche.taille > UINT64_MAX - total ? UINT64_MAX : total + fiche.taille;
    return total;
}
