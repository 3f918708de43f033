#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "recycle/magasin.h"

#include <map>
#include <optional>
#include <utility>

namespace {

// A stored file's directory, which ends with "\", once `ancien` is called `nouveau`; none when it is elsewhere.
// `present` lets the disk tell that it is the same directory under another name.
std::optional<std::wstring> Apres_renommage(const std::wstring & repertoire, const std::wstring & ancien,
                                            const std::wstring & nouveau, bool present) {
    for (std::size_t barre = repertoire.rfind(L'\\'); barre != std::wstring::npos && barre >= 2;
         barre             = repertoire.rfind(L'\\', barre - 1)) {
        const std::wstring haut = repertoire.substr(0, barre == 2 ? 3 : barre);
        if (Comparer_sans_casse(haut, ancien) == 0 || (present && Meme_repertoire(haut, ancien)))
            return nouveau + repertoire.substr(barre);
    }
    return std::nullopt;
}

void Verifier(const Fiche & fiche) {
    std::string ligne = Ecrire_fiche(fiche, Page_du_systeme());
    ligne.resize(ligne.size() - 2);
    if (Lire_fiche(ligne, Page_du_systeme()) != fiche)
        throw Erreur_execution(Numero::nom_incorrect, 0, fiche.repertoire);
}

// Nothing is written for a renaming that cannot be.
void Refuser_nom_pris(const std::wstring & ancien, const std::wstring & nouveau) {
    if ((Fichier_existe(nouveau) || Repertoire_existe(nouveau)) && !Meme_repertoire(ancien, nouveau))
        throw Erreur_execution(Numero::fichier_existe, 0, nouveau);
}

}  // namespace

// The records without a file follow too: it is by all of its records that a directory under another name is known.
std::vector<Fiche> Magasin::Fiches_suivies(const std::wstring & ancien, const std::wstring & nouveau) const {
    std::vector<Fiche>                                                   suivies;
    bool                                                                 listees = false;
    std::map<std::pair<std::wstring, bool>, std::optional<std::wstring>> connus;
    for (const Ligne_index & ligne : index_.Lignes()) {
        if (!ligne.fiche) continue;
        const bool inaccessible = ligne.presence == Presence::inaccessible;
        // A drive that may not answer is not asked.
        const bool           present    = !inaccessible && ligne.presence != Presence::autre_support;
        const std::wstring & repertoire = ligne.fiche->repertoire;
        auto                 connu      = connus.find({repertoire, present});
        if (connu == connus.end())
            connu =
                connus
                    .try_emplace({repertoire, present}, Apres_renommage(repertoire, ancien, nouveau, present))
                    .first;
        if (!connu->second) continue;
        listees = listees || inaccessible || ligne.presence == Presence::la;
        suivies.push_back(*ligne.fiche);
        suivies.back().repertoire = *connu->second;
        Verifier(suivies.back());
    }
    if (!listees) suivies.clear();
    return suivies;
}

void Magasin::Suivre_repertoire(const std::wstring & ancien, const std::wstring & nouveau,
                                const std::function<void()> & renommer) {
    // Records do not tell one case from another.
    if (Comparer_sans_casse(ancien, nouveau) == 0) return renommer();
    const Exclusivite tour(tour_de_la_corbeille, attente_du_tour, entretemps_);
    if (!index_.Synchroniser()) index_.Constater();
    Actualiser();
    const std::vector<Fiche> suivies = Fiches_suivies(ancien, nouveau);
    if (suivies.empty()) return renommer();
    Refuser_nom_pris(ancien, nouveau);
    index_.Inscrire(suivies, 0);
    try {
        renommer();
    } catch (...) {
        index_.Retirer(0);
        throw;
    }
    index_.Confirmer(suivies, suivies.size());
    // The directory has its name. The lines of the former one go, and those of the new one take their places; until that can be
    // written the disk has both, and tells which are right.
    if (!Tenter([&] { index_.Reecrire({}); }) && !Tenter([&] { index_.Relire(); })) index_.Constater();
    Actualiser();
}
