#include "recycle/codes.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "recycle/presence.h"

namespace {

void Noter(Numeros_pris & pris, const std::wstring & nom, std::int32_t jour) {
    if (const auto numero = Numero_du_jour(nom, jour)) pris.Prendre(*numero);
}

Numeros_pris Relever(const std::wstring & repertoire, std::int32_t jour,
                     const std::vector<Ligne_index> & lignes) {
    Numeros_pris       pris;
    const std::wstring voulu = Sans_casse(repertoire);
    for (const Ligne_index & ligne : lignes)
        if (ligne.fiche && Sans_casse(ligne.fiche->repertoire) == voulu) Noter(pris, ligne.fiche->code, jour);
    try {
        const Contenu_repertoire contenu = Lire_repertoire(repertoire);
        for (const Entree_repertoire & entree : contenu.fichiers) Noter(pris, entree.nom, jour);
        for (const Entree_repertoire & entree : contenu.repertoires) Noter(pris, entree.nom, jour);
    } catch (const Erreur_execution &) {
        // Files can be renamed where names cannot be listed: the renaming then says which are taken.
    }
    return pris;
}

}  // namespace

std::wstring Codes_libres::Choisir(const Fiche & fiche, std::int32_t jour,
                                   const std::vector<Ligne_index> & lignes) {
    if (jour != jour_) Oublier();
    jour_                   = jour;
    const std::wstring cle  = Sans_casse(fiche.repertoire);
    auto               lieu = pris_.find(cle);
    // Names come free again without this being told.
    if (lieu == pris_.end() || lieu->second.Tous())
        lieu = pris_.insert_or_assign(cle, Relever(fiche.repertoire, jour, lignes)).first;
    const auto numero = lieu->second.Tirer(hasard_);
    if (!numero) throw Erreur_execution(Numero::fichier_existe, 0, fiche.Chemin_avant());
    lieu->second.Prendre(*numero);
    return Nom_code(jour, *numero);
}
