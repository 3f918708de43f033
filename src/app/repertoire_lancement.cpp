#include "app/repertoire_lancement.h"

#include "app/globals.h"
#include "platform/fichiers.h"
#include "platform/programmes.h"
#include "platform/systeme.h"
#include "toolkit/boites.h"

namespace {
bool Peut_etre_courant(const std::wstring & repertoire) {
    const std::wstring complet = Chemin_complet(repertoire);
    return Forme_longue(complet) == complet;
}
}  // namespace

std::wstring Repertoire_de_lancement(const std::wstring & repertoire) {
    if (Peut_etre_courant(repertoire)) return repertoire;
    std::wstring court = Chemin_court(repertoire);
    if (!court.empty() && Peut_etre_courant(court)) return court;
    Bip();
    Message_boite(L"Le chemin du répertoire de travail est trop long pour y lancer une commande.",
                  Boite::ok | Boite::exclamation, titre_gestionnaire);
    return {};
}
