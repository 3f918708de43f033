#include "recycle/mouvements.h"

#include "platform/canal.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "recycle/presence.h"

namespace {
constexpr std::uint32_t protection = Attribut::lecture | Attribut::cache;
// What a restored file keeps.
constexpr std::uint32_t gardes = Attribut::modifie | Attribut::systeme;
}  // namespace

void Coder(const Fiche & fiche, bool & code) {
    const std::wstring  ancien    = fiche.Chemin_avant();
    const std::wstring  nouveau   = fiche.Chemin_code();
    const std::uint32_t attributs = Lire_attributs(ancien);
    code                          = false;
    if ((attributs & (Attribut::lecture | Attribut::repertoire)) != 0)
        throw Erreur_execution(Numero::acces_fichier, 0, ancien);
    Renommer_fichier(ancien, nouveau);
    try {
        Ecrire_attributs(nouveau, attributs | protection);
    } catch (const Erreur_execution &) {
        Tenter([&] { Ecrire_attributs(nouveau, attributs); });
        code = !Tenter([&] { Renommer_fichier(nouveau, ancien); });
        // The record is taken back next: the name must be back on the disk before.
        if (!code) Fixer_fichier(ancien);
        throw;
    }
    code = true;
}

void Decoder(const Fiche & fiche) {
    const std::wstring  code      = fiche.Chemin_code();
    const std::uint32_t attributs = Lire_attributs(code);
    Ecrire_attributs(code, attributs & gardes);
    try {
        Renommer_fichier(code, fiche.Chemin_avant());
    } catch (const Erreur_execution &) {
        Tenter([&] { Ecrire_attributs(code, attributs); });
        throw;
    }
}

void Detruire_code(const Fiche & fiche) {
    const std::wstring code = fiche.Chemin_code();
    try {
        Ecrire_attributs(code, 0);
        Supprimer_fichier(code);
    } catch (const Erreur_execution & erreur) {
        const bool introuvable =
            erreur.numero == Numero::fichier_introuvable || erreur.numero == Numero::chemin_introuvable;
        if (introuvable && !Peut_revenir(code)) return;
        Tenter([&] { Ecrire_attributs(code, Lire_attributs(code) | protection); });
        throw;
    }
}
