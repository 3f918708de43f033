#include "search/recherche.h"

#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/parcours.h"
#include "platform/textes.h"
#include "search/arborescence.h"
#include "search/modeles.h"

namespace {
constexpr std::size_t entre_deux_regards = 256;  // entries of one directory between two questions

// Which names are looked for.
class Filtre {
public:
    explicit Filtre(const Demande_recherche & demande)
        : motifs_(Motifs::Un_seul(demande.modele, Majuscule)), exclusion_(demande.exclus, Majuscule),
          attributs_exclus_(demande.caches ? 0 : Attribut::cache) {}

    bool Retient(const Entree_vue & entree) const {
        return !entree.repertoire && (entree.attributs & attributs_exclus_) == 0 &&
               motifs_.Accepte(entree.nom) && !exclusion_.Exclut(entree.nom);
    }

private:
    Motifs        motifs_;
    Exclusion     exclusion_;
    std::uint32_t attributs_exclus_;
};

Fichier_trouve Trouve(const std::wstring & repertoire, const Entree_vue & entree) {
    Fichier_trouve fichier{Joindre(repertoire, entree.nom), {}};
    if (!entree.lien) fichier.taille = entree.taille;
    return fichier;
}
}  // namespace

Bilan_recherche Rechercher(const Demande_recherche & demande, const Reception & trouver,
                           const std::function<bool()> & continuer) {
    const Arbre &   arbre = Arborescence();
    const Filtre    filtre(demande);
    Bilan_recherche bilan;
    std::wstring    repertoire;
    std::size_t     vus     = 0;
    const auto      visiter = [&](const Entree_vue & entree) {
        if (filtre.Retient(entree)) trouver(Trouve(repertoire, entree));
        return ++vus % entre_deux_regards != 0 || continuer();
    };
    for (std::size_t i = 0; i < arbre.Nombre(); ++i) {
        if (!continuer()) return bilan;
        repertoire = arbre.Chemin(i);
        try {
            // All names are asked for: to a directory or a server that tells case apart, a pattern would mean fewer of them.
            if (!Enumerer(repertoire, visiter)) return bilan;
        } catch (const Erreur_execution & erreur) {
            if (Repertoire_saute(erreur, i)) ++bilan.sautes;
        }
    }
    bilan.entiere = true;
    return bilan;
}

Bilan_recherche Relever_et_rechercher(const std::wstring & unite, const Demande_recherche & demande,
                                      const Reception & trouver, const Suivi_parcours & suivi) {
    const Filtre filtre(demande);
    const auto   visiter = [&](const std::wstring & repertoire, const Entree_vue & entree) {
        if (filtre.Retient(entree)) trouver(Trouve(repertoire, entree));
    };
    Bilan_recherche bilan;
    bilan.entiere = Relever_arborescence(unite, suivi, visiter);
    bilan.sautes  = Repertoires_sautes();
    return bilan;
}
