#include "recycle/magasin.h"

#include "platform/canal.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "recycle/mouvements.h"
#include "recycle/presence.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <random>

namespace {

Hasard Hasard_de_l_horloge() {
    const auto instant    = std::chrono::system_clock::now().time_since_epoch().count();
    const auto generateur = std::make_shared<std::mt19937_64>(static_cast<std::uint64_t>(instant));
    return [generateur] { return std::uniform_real_distribution<double>()(*generateur); };
}

// Where files have their names back, those names reach the disk before their records leave it. One file takes all
// that was done before on its volume along.
void Fixer_repertoires(const std::vector<Fiche> & restaurees) {
    std::map<std::wstring, std::wstring> derniers;
    for (const Fiche & fiche : restaurees) derniers[Sans_casse(fiche.repertoire)] = fiche.Chemin_avant();
    for (const auto & [repertoire, fichier] : derniers) Fixer_fichier(fichier);
}

}  // namespace

Magasin::Magasin() : codes_(Hasard_de_l_horloge()) {}

void Magasin::Ouvrir(const std::vector<std::wstring> & repertoires) {
    Fermer();
    std::exception_ptr erreur = std::make_exception_ptr(Erreur_execution(Numero::canal_incorrect, 0, {}));
    for (std::size_t i = 0; i < repertoires.size() && !Ouvert(); ++i) {
        try {
            const Exclusivite tour(tour_de_la_corbeille);
            if (i > 0 && !Repertoire_existe(repertoires[i])) Creer_repertoire(repertoires[i]);
            index_.Ouvrir(repertoires[i]);
        } catch (const Erreur_execution &) {
            erreur = std::current_exception();
        }
    }
    if (!Ouvert()) std::rethrow_exception(erreur);
    Actualiser();
}

void Magasin::Fermer() noexcept {
    index_.Fermer();
    codes_.Oublier();
    fiches_.clear();
}

std::uint64_t Magasin::Total() const { return Somme_des_tailles(fiches_); }

void Magasin::Actualiser() {
    codes_.Oublier();
    fiches_.clear();
    for (const Ligne_index & ligne : index_.Lignes()) {
        const bool listee = ligne.presence == Presence::la || ligne.presence == Presence::inaccessible;
        if (ligne.fiche && listee) fiches_.push_back(*ligne.fiche);
    }
}

void Magasin::Accorder() {
    if (index_.Synchroniser()) Actualiser();
}

void Magasin::Relire() {
    const Exclusivite tour(tour_de_la_corbeille);
    if (!index_.Synchroniser()) index_.Relire();
    Actualiser();
}

void Magasin::Reecrire(const std::vector<Fiche> & parties, std::exception_ptr premiere_erreur) {
    Chemins_codes partis;
    for (const Fiche & fiche : parties) partis.insert(Sans_casse(fiche.Chemin_code()));
    try {
        const Exclusivite tour(tour_de_la_corbeille);
        if (!partis.empty()) index_.Reecrire(partis);
    } catch (const Erreur_execution &) {
        // The records that could not leave have no file: they are not listed.
        if (!Tenter([&] { index_.Relire(); })) index_.Constater();
        if (!premiere_erreur) premiere_erreur = std::current_exception();
    }
    Actualiser();
    if (premiere_erreur) std::rethrow_exception(premiere_erreur);
}

void Magasin::Purger(const Limites_corbeille & limites, std::int32_t jour) {
    {
        const Exclusivite tour(tour_de_la_corbeille);
        Accorder();
        const auto partent = A_detruire(fiches_, limites, jour);
        if (std::find(partent.begin(), partent.end(), true) == partent.end()) return;
        // Only what is there now counts.
        index_.Relire();
        Actualiser();
    }
    std::vector<Fiche> detruites;
    const auto         partent = A_detruire(fiches_, limites, jour);
    for (std::size_t i = 0; i < fiches_.size(); ++i)
        if (partent[i] && Tenter([&] { Detruire_code(fiches_[i]); })) detruites.push_back(fiches_[i]);
    Reecrire(detruites, nullptr);
}

void Magasin::Restaurer(const std::vector<std::size_t> & choix, const std::function<bool()> & continuer) {
    std::exception_ptr erreur;
    std::vector<Fiche> restaurees;
    try {
        for (std::size_t i = 0; i < choix.size(); ++i) {
            if (i > 0 && continuer && !continuer()) break;
            const Fiche fiche = fiches_.at(choix[i]);
            Decoder(fiche);
            restaurees.push_back(fiche);
        }
    } catch (...) {
        erreur = std::current_exception();
    }
    Fixer_repertoires(restaurees);
    Reecrire(restaurees, erreur);
}

void Magasin::Detruire() {
    std::exception_ptr erreur;
    std::vector<Fiche> detruites;
    Relire();
    for (const Fiche & fiche : fiches_) {
        try {
            Detruire_code(fiche);
            detruites.push_back(fiche);
        } catch (const Erreur_execution &) {
            if (!erreur) erreur = std::current_exception();
        }
    }
    const auto & lignes   = index_.Lignes();
    const bool   ailleurs = std::any_of(lignes.begin(), lignes.end(), [](const Ligne_index & ligne) {
        return ligne.presence == Presence::autre_support;
    });
    if (erreur || ailleurs) Reecrire(detruites, erreur);
    if (!ailleurs) {
        const Exclusivite tour(tour_de_la_corbeille);
        index_.Supprimer();
    }
    Fermer();
}
