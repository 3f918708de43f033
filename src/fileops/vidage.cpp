#include "fileops/vidage.h"

#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"

namespace {
void Supprimer_ou_constater(const std::wstring & chemin) {
    try {
        Supprimer_fichier(chemin);
    } catch (const Erreur_execution & erreur) {
        // Another program deleted it first.
        if (erreur.numero != Numero::fichier_introuvable) throw;
    }
}
}  // namespace

bool Vider_repertoire(const std::wstring &                              repertoire,
                      const std::function<bool(const std::wstring &)> & continuer) {
    for (const Entree_repertoire & fichier : Lister(repertoire, false)) {
        if ((fichier.attributs & (Attribut::cache | Attribut::systeme)) != 0) continue;
        if (!continuer(fichier.nom)) return false;
        Supprimer_ou_constater(Joindre(repertoire, fichier.nom));
    }
    return true;
}
