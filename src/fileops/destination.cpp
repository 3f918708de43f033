#include "fileops/destination.h"

#include "app/garde.h"
#include "app/routines.h"
#include "forms/gestion_fichiers.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"

#include <algorithm>

namespace {
constexpr std::uint64_t intervalle = 250;  // ms
constexpr std::uint64_t repos      = 10;   // times as long as a refresh took
}  // namespace

bool Destination::Est(const std::wstring & repertoire) {
    if (repertoire != examine_) {
        const std::wstring destination = f_.Répertoire_dest.Path();
        examine_                       = repertoire;
        // The name alone settles it for a directory that cannot be opened.
        identique_ =
            Comparer_sans_casse(repertoire, destination) == 0 || Meme_repertoire(repertoire, destination);
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
