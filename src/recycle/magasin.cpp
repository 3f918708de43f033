#include "recycle/magasin.h"

#include "platform/canal.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "recycle/mouvements.h"
#include "recycle/presence.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <map>
#include <memory>
#include <random>
#include <utility>

namespace {

// Of the system.
constexpr std::uint32_t acces_refuse = 5;
constexpr std::uint32_t protege      = 19;

Hasard Hasard_de_l_horloge() {
    const auto instant    = std::chrono::system_clock::now().time_since_epoch().count();
    const auto generateur = std::make_shared<std::mt19937_64>(static_cast<std::uint64_t>(instant));
    return [generateur] { return std::uniform_real_distribution<double>()(*generateur); };
}

// Where files have their names back, those names reach the disk before their records leave it. One file takes all
// that was done before on its volume along: the next one is tried when another program holds it. False when none would do.
bool Fixer_repertoires(const std::vector<Fiche> & restaurees) {
    std::map<std::wstring, bool> fixes;
    for (const Fiche & fiche : restaurees) {
        bool & fixe = fixes[Sans_casse(fiche.repertoire)];
        if (!fixe) fixe = Fixer_fichier(fiche.Chemin_avant());
    }
    return std::all_of(fixes.begin(), fixes.end(), [](const auto & repertoire) { return repertoire.second; });
}

// The drive does not answer or has another medium: the file may come back.
bool Est_ailleurs(const Erreur_execution & erreur, const Fiche & fiche) {
    constexpr std::array absences{Numero::fichier_introuvable, Numero::chemin_introuvable,
                                  Numero::unite_absente, Numero::disque_non_pret};
    return std::find(absences.begin(), absences.end(), erreur.numero) != absences.end() &&
           Peut_revenir(fiche.Chemin_code());
}

bool Sans_fiche(const std::vector<Ligne_index> & lignes) {
    return std::none_of(lignes.begin(), lignes.end(),
                        [](const Ligne_index & ligne) { return ligne.fiche.has_value(); });
}

// The directory takes no index, and will not in a moment: another place is not a second index beside one that is only busy.
bool Interdit_d_ecrire(const Erreur_execution & erreur) {
    switch (erreur.numero) {
    case Numero::acces_fichier:
    case Numero::chemin_introuvable:
    case Numero::fichier_introuvable:
    case Numero::unite_absente:
    case Numero::disque_non_pret: return true;
    default: return erreur.code_systeme == acces_refuse || erreur.code_systeme == protege;
    }
}

}  // namespace

Magasin::Magasin(std::function<void()> entretemps)
    : entretemps_(std::move(entretemps)), codes_(Hasard_de_l_horloge()) {}

void Magasin::Ouvrir(const std::vector<std::wstring> & repertoires) {
    Fermer();
    std::exception_ptr erreur = std::make_exception_ptr(Erreur_execution(Numero::canal_incorrect, 0, {}));
    const Exclusivite  tour(tour_de_la_corbeille, attente_du_tour, entretemps_);
    for (auto place = repertoires.begin(); place != repertoires.end(); ++place) {
        if (!Ouvert())
            Ouvrir_dans(*place, place == repertoires.begin(), erreur);
        else
            // What cannot join now can at the next start.
            Tenter([&] { index_.Absorber(*place); });
    }
    if (!Ouvert()) std::rethrow_exception(erreur);
    Actualiser();
}

void Magasin::Ouvrir_dans(const std::wstring & repertoire, bool premier, std::exception_ptr & erreur) {
    try {
        if (!premier && !Repertoire_existe(repertoire)) Creer_repertoire(repertoire);
        index_.Ouvrir(repertoire);
    } catch (const Erreur_execution & refus) {
        if (!Interdit_d_ecrire(refus)) throw;
        erreur = std::current_exception();
    }
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
    const Exclusivite tour(tour_de_la_corbeille, attente_du_tour, entretemps_);
    if (!index_.Synchroniser()) index_.Relire();
    Actualiser();
}

void Magasin::Reecrire(const std::vector<Fiche> & parties, std::exception_ptr premiere_erreur,
                       bool vide_aussi) {
    Chemins_codes partis;
    for (const Fiche & fiche : parties) partis.insert(Sans_casse(fiche.Chemin_code()));
    try {
        const Exclusivite tour(tour_de_la_corbeille, attente_du_tour, entretemps_);
        // A file that is gone leaves the list, whatever the error was.
        partis.empty() && !vide_aussi ? index_.Constater() : index_.Reecrire(partis);
        if (vide_aussi && Sans_fiche(index_.Lignes())) index_.Supprimer();
    } catch (const Erreur_execution &) {
        // The records that could not leave have no file: they are not listed. Without the turn the file is not read: another
        // program may be writing it.
        index_.Constater();
        if (!premiere_erreur) premiere_erreur = std::current_exception();
    }
    Actualiser();
    if (premiere_erreur) std::rethrow_exception(premiere_erreur);
}

void Magasin::Purger(const Limites_corbeille & limites, std::int32_t jour,
                     const std::function<bool()> & continuer) {
    {
        const Exclusivite tour(tour_de_la_corbeille, attente_du_tour, entretemps_);
        Accorder();
        const auto partent = A_detruire(fiches_, limites, jour);
        if (std::find(partent.begin(), partent.end(), true) == partent.end()) return;
        // Only what is there now counts.
        index_.Relire();
        Actualiser();
    }
    std::vector<Fiche> detruites;
    const auto         partent  = A_detruire(fiches_, limites, jour);
    bool               premiere = true;
    for (std::size_t i = 0; i < fiches_.size(); ++i) {
        if (!partent[i]) continue;
        if (!std::exchange(premiere, false) && continuer && !continuer()) break;
        if (Tenter([&] { Detruire_code(fiches_[i]); })) detruites.push_back(fiches_[i]);
    }
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
    // Until their names are on the disk the records stay; without their files they are not listed, and leave later.
    if (!Fixer_repertoires(restaurees)) restaurees.clear();
    Reecrire(restaurees, erreur);
}

bool Magasin::Detruire_fiches(const std::function<bool()> & continuer, std::vector<Fiche> & detruites,
                              std::exception_ptr & erreur) {
    for (std::size_t i = 0; i < fiches_.size(); ++i) {
        if (i > 0 && continuer && !continuer()) return false;
        try {
            Detruire_code(fiches_[i]);
            detruites.push_back(fiches_[i]);
        } catch (const Erreur_execution & cause) {
            // The file is told by its own name.
            if (!erreur && !Est_ailleurs(cause, fiches_[i]))
                erreur = std::make_exception_ptr(
                    Erreur_execution(cause.numero, cause.code_systeme, fiches_[i].Chemin_avant()));
        }
    }
    return true;
}

bool Magasin::Detruire(const std::function<bool()> & continuer) {
    std::exception_ptr erreur;
    std::vector<Fiche> detruites;
    Relire();
    const bool finie = Detruire_fiches(continuer, detruites, erreur);
    Reecrire(detruites, erreur, finie);
    if (finie) Fermer();
    return finie;
}
