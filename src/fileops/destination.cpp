#include "fileops/destination.h"

#include "app/garde.h"
#include "app/routines.h"
#include "forms/gestion_fichiers.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"

#include <algorithm>

namespace {
constexpr std::uint64_t intervalle = 250;  // ms
constexpr std::uint64_t repos      = 10;   // times as long as a refresh took
}  // namespace

bool Destination::Est(const std::wstring & repertoire) {
    if (repertoire != examine_) {
        examine_   = repertoire;
        identique_ = Meme_repertoire(repertoire, f_.Répertoire_dest.Path());
    }
    return identique_;
}

void Destination::Actualiser() {
    const std::uint64_t debut = Horloge_ms();
    if (debut < prochaine_) return;
    Tenter([&] { f_.Fichier_dest.Refresh(); });
    Afficher_espace_libre();
    const std::uint64_t fin = Horloge_ms();
    prochaine_              = fin + std::max(intervalle, repos * (fin - debut));
}
