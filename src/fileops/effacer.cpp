#include "app/garde.h"
#include "app/globals.h"
#include "app/routines.h"
#include "browser/selection.h"
#include "fileops/commandes.h"
#include "fileops/confirmations.h"
#include "fileops/curseur.h"
#include "fileops/questions.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "recycle/corbeille.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace {
// Files stored together: their records go to the disk by one flush.
constexpr std::size_t   taille_lot = 128;
constexpr std::uint64_t intervalle = 250;  // ms between two displays of the free space

const std::wstring nom_index      = L"KORVANE.CRB";
const std::wstring nom_reecriture = L"KORVANE.NEW";

// The limits of the bin are enforced when the command ends, however it does: what is stored is stored.
class Purge_finale {
public:
    Purge_finale() = default;
    ~Purge_finale() {
        // Stopped, the command still does it; a further stop ends this.
        variables.Arret_demande = false;
        if (variables.Corbeille_active) Tenter(Purger_corbeille);
    }
    Purge_finale(const Purge_finale &)             = delete;
    Purge_finale & operator=(const Purge_finale &) = delete;
};

class Effacement {
public:
    explicit Effacement(Gestion_Fichiers & f)
        : f_(f), parcours_(f), curseur_(f.Fichier_srce.ListCount(), f.Fichier_srce.ListIndex()),
          meme_unite_(f.Unité_srce.Drive().front() == f.Unité_dest.Drive().front()) {}

    void Executer();

private:
    // Each is false when the command ends.
    bool Suivant();
    bool Effacer_courant();
    bool Detruire_courant();
    bool Deposer_courant();
    bool Taille_acceptee(const Depot & depot);
    bool Deposer_lot();

    void        Avec_les_precedents(const std::function<void()> & lecture);
    Depot       Depot_courant(bool demande) const;
    std::size_t Deposer_un_a_un();
    std::size_t Rang(const std::wstring & chemin) const;
    void        Retirer_de_la_liste();

    Gestion_Fichiers & f_;
    Parcours           parcours_;
    Curseur            curseur_;
    bool               meme_unite_;  // both panes: what is erased may change the space shown
    bool               exigee_ = false;
    std::vector<Depot> lot_;
    std::uint64_t      prochaine_ = 0;  // Horloge_ms of the next display of the free space
};

// Without its index the bin takes nothing: the report names the index, not the file that was to be erased.
void Exiger_index() {
    const std::wstring fichier = std::exchange(variables.Fichier_courant, nom_index);
    Exiger_corbeille();
    variables.Fichier_courant = fichier;
}

bool Est_index(const std::wstring & chemin) {
    const std::wstring nom = Majuscules(Nom_du_chemin(chemin));
    return nom == nom_index || nom == nom_reecriture;
}

void Effacement::Executer() {
    while (Suivant()) {
        if (!Effacer_courant()) return;
    }
    Deposer_lot();
}

bool Effacement::Suivant() {
    bool suivant = false;
    Avec_les_precedents([&] { suivant = parcours_.Suivant(); });
    return suivant;
}

// What was gathered before a file that is gone by now is stored all the same.
void Effacement::Avec_les_precedents(const std::function<void()> & lecture) {
    try {
        lecture();
    } catch (const Erreur_execution &) {
        const std::wstring fichier = variables.Fichier_courant;
        Deposer_lot();
        variables.Fichier_courant = fichier;
        throw;
    }
}

bool Effacement::Effacer_courant() {
    const std::wstring & repertoire = parcours_.Courant().repertoire;
    Confirmer_commande(f_, repertoire);
    if (variables.Reponse == Reponse_boite::non) return true;
    if (variables.Reponse != Reponse_boite::oui) return false;
    if (variables.Mode_effacement != 0) f_.Arret.Visible(true);
    return Va_a_la_corbeille(repertoire) ? Deposer_courant() : Detruire_courant();
}

void Effacement::Retirer_de_la_liste() {
    if (!variables.Mode_resultats) {
        curseur_.Retirer();
        variables.Index_a_reprendre = curseur_.Index();
    }
    if (!meme_unite_ || Horloge_ms() < prochaine_) return;
    Afficher_espace_libre();
    prochaine_ = Horloge_ms() + intervalle;
}

bool Effacement::Detruire_courant() {
    Application::Laisser_passer();
    Supprimer_fichier(variables.Chemin_source);
    Retirer_de_la_liste();
    return !variables.Arret_demande;
}

// A file may have grown since it was listed. Whoever answers questions gives it the time to change, and search results are not
// spelled as the disk spells them.
Depot Effacement::Depot_courant(bool demande) const {
    const Fichier_choisi & fichier = parcours_.Courant();
    const std::uint64_t    taille  = Lire_etat(variables.Chemin_source).taille;
    if (!demande && !variables.Mode_resultats) return {fichier.nom, fichier.repertoire, taille};
    return {Lire_entree(variables.Chemin_source).nom, fichier.repertoire, taille};
}

bool Effacement::Deposer_courant() {
    const bool demande = variables.Mode_effacement >= 0;
    Depot      depot;
    Avec_les_precedents([&] { depot = Depot_courant(demande); });
    if (lot_.size() >= taille_lot && !Deposer_lot()) return false;
    if (Plus_grand_que_corbeille(depot.taille) && !Taille_acceptee(depot)) return false;
    lot_.push_back(std::move(depot));
    return !demande || Deposer_lot();
}

bool Effacement::Taille_acceptee(const Depot & depot) {
    if (!Deposer_lot()) return false;
    const std::wstring chemin = Joindre(depot.repertoire, depot.nom);
    variables.Fichier_courant = depot.nom;  // storing the lot took it
    if ((Lire_attributs(chemin) & Attribut::lecture) != 0) {
        throw Erreur_execution(Numero::acces_fichier, 0, chemin);
    }
    Bip();
    variables.Reponse = Message_boite(Question_trop_grand(Majuscules(depot.nom)),
                                      Boite::oui_non | Boite::question, variables.Commande_en_cours);
    return variables.Reponse == Reponse_boite::non;
}

bool Effacement::Deposer_lot() {
    if (lot_.empty()) return true;
    Application::Laisser_passer();
    if (!exigee_) Exiger_index();
    exigee_                   = true;
    const std::size_t deposes = Deposer_un_a_un();
    const bool        tous    = deposes == lot_.size();
    lot_.clear();
    return tous && !variables.Arret_demande;
}

// Stores the lot. The current file and the list's cursor follow: they are right when one of them fails.
std::size_t Effacement::Deposer_un_a_un() {
    std::size_t rang          = 0;
    variables.Fichier_courant = lot_.front().nom;
    const auto suivant        = [&] {
        Retirer_de_la_liste();
        Application::Laisser_passer();
        if (variables.Arret_demande) return false;
        variables.Fichier_courant = lot_[++rang].nom;
        return true;
    };
    try {
        const std::size_t deposes = Deposer_fichiers(lot_, suivant);
        if (deposes == lot_.size()) Retirer_de_la_liste();
        return deposes;
    } catch (const Erreur_execution & erreur) {
        // A file refused before any is treated is told when those before it are stored.
        for (const std::size_t fautif = Rang(erreur.chemin); rang < fautif; ++rang) Retirer_de_la_liste();
        variables.Fichier_courant = Est_index(erreur.chemin) ? nom_index : lot_[rang].nom;
        throw;
    }
}

// The file of the lot that has this path, 0 for none.
std::size_t Effacement::Rang(const std::wstring & chemin) const {
    const auto trouve = std::find_if(lot_.begin(), lot_.end(), [&](const Depot & depot) {
        return Joindre(depot.repertoire, depot.nom) == chemin;
    });
    return trouve == lot_.end() ? 0 : static_cast<std::size_t>(trouve - lot_.begin());
}
}  // namespace

void Effacer_Click() {
    Garder(L"EFFACER", [](Gestion_Fichiers & f) {
        if (f.Ligne_message.Caption().empty()) return Signaler_absence_selection();
        Exiger_limites();
        variables.Mode_effacement = 0;
        const Purge_finale purge;
        Effacement(f).Executer();
    });
}
