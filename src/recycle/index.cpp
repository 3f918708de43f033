#include "recycle/index.h"

#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/textes.h"
#include "recycle/presence.h"

#include <algorithm>
#include <set>
#include <utility>

namespace {

void Cacher(const std::wstring & chemin) {
    if (Lire_attributs(chemin) != Attribut::cache) Ecrire_attributs(chemin, Attribut::cache);
}

// Only a clear answer counts: an index that is taken for missing is made anew, and what was left of it removed.
bool Est_la(const std::wstring & chemin) {
    try {
        return (Lire_attributs(chemin) & Attribut::repertoire) == 0;
    } catch (const Erreur_execution & erreur) {
        if (erreur.numero != Numero::fichier_introuvable && erreur.numero != Numero::chemin_introuvable)
            throw;
        return false;
    }
}

void Oter(const std::wstring & chemin) {
    Ecrire_attributs(chemin, 0);
    Supprimer_fichier(chemin);
}

// An unfinished rewrite that stays is replaced by the next one, which says so if it cannot.
void Oter_sans_erreur(const std::wstring & chemin) {
    try {
        Oter(chemin);
    } catch (const Erreur_execution &) {
        return;
    }
}

std::uint64_t Longueur(const std::vector<Ligne_index> & lignes) {
    std::uint64_t longueur = 0;
    for (const Ligne_index & ligne : lignes) longueur += ligne.octets.size();
    return longueur;
}

std::string Octets(const std::vector<Ligne_index> & lignes) {
    std::string octets;
    for (const Ligne_index & ligne : lignes) octets += ligne.octets;
    return octets;
}

// One look at the disk takes all that was done before on its volume along.
bool Renommages_fixes(const std::vector<Ligne_index> & lignes) {
    std::set<std::wstring> repertoires;
    for (const Ligne_index & ligne : lignes)
        if (!ligne.suivie.empty()) repertoires.insert(Sans_casse(ligne.suivie));
    return std::all_of(repertoires.begin(), repertoires.end(), Fixer_repertoire);
}

}  // namespace

const Page_de_codes & Page_du_systeme() {
    static const Page_de_codes page{De_ansi, En_ansi, Tient_en_ansi};
    return page;
}

std::wstring Index_corbeille::Chemin(const wchar_t * extension) const {
    return Joindre(repertoire_, std::wstring(L"KORVANE.") + extension);
}

void Index_corbeille::Ouvrir(const std::wstring & repertoire) {
    Fermer();
    repertoire_ = repertoire;
    try {
        Recuperer_reecriture();
        Ouvrir_canal();
        Relire();
        Completer_derniere();
        Achever_renommages();
    } catch (const Erreur_execution &) {
        Fermer();
        throw;
    }
}

void Index_corbeille::Fermer() noexcept {
    canal_.Fermer();
    repertoire_.clear();
    lignes_.clear();
    longueur_ = 0;
}

void Index_corbeille::Ouvrir_canal() {
    const std::wstring chemin = Chemin(L"CRB");
    // A read-only index refuses to be opened, a hidden one does not.
    if (Est_la(chemin)) Cacher(chemin);
    canal_.Ouvrir(chemin, Attribut::cache);
}

// The rewritten index replaces the old one in one step: when both are there the new one was not finished.
void Index_corbeille::Recuperer_reecriture() {
    const std::wstring nouveau = Chemin(L"NEW");
    if (!Est_la(nouveau)) return;
    if (!Est_la(Chemin(L"CRB"))) return Renommer_fichier(nouveau, Chemin(L"CRB"));
    Oter_sans_erreur(nouveau);
}

void Index_corbeille::Relire() {
    lignes_   = Decouper_index(canal_.Lire_tout(), Page_du_systeme());
    longueur_ = Longueur(lignes_);
    Constater();
}

void Index_corbeille::Constater() { Constater_presences(lignes_); }

// The room made for the line end of a record, cut before that end was written.
void Index_corbeille::Oter_zeros_de_fin() {
    const std::string & octets = lignes_.back().octets;
    const std::size_t   utiles = octets.find_last_not_of('\0') + 1;
    if (utiles == octets.size() || !octets.starts_with("crb")) return;
    canal_.Tronquer(longueur_ - (octets.size() - utiles));
    Relire();
}

// A file takes its coded name after its line is whole: the beginning of a line has no file.
void Index_corbeille::Completer_derniere() {
    if (lignes_.empty() || lignes_.back().Entiere()) return;
    Oter_zeros_de_fin();
    Ligne_index & derniere = lignes_.back();
    const bool    fiche    = derniere.fiche && derniere.presence != Presence::absente;
    if (!fiche && Debut_de_fiche(derniere.octets)) {
        canal_.Tronquer(longueur_ - derniere.octets.size());
        lignes_.pop_back();
    } else {
        const std::string fin = derniere.octets.ends_with('\r') ? "\n" : "\r\n";
        canal_.Ajouter(fin);
        derniere.octets += fin;
    }
    longueur_ = Longueur(lignes_);
}

// A directory took another name, and what was running was cut before its files had one line each.
void Index_corbeille::Achever_renommages() {
    const bool deux = std::any_of(lignes_.begin(), lignes_.end(),
                                  [](const Ligne_index & ligne) { return !ligne.suivie.empty(); });
    if (!deux || Tenter([&] { Reecrire({}); })) return;
    Ouvrir_canal();
    Relire();
}

// What a cut leaves twice is told apart by what this index has already.
void Index_corbeille::Absorber(const std::wstring & repertoire) {
    if (!Est_la(Joindre(repertoire, L"KORVANE.CRB")) && !Est_la(Joindre(repertoire, L"KORVANE.NEW"))) return;
    Index_corbeille       autre;
    std::set<std::string> connues;
    std::string           octets;
    for (const Ligne_index & ligne : lignes_) connues.insert(ligne.octets);
    autre.Ouvrir(repertoire);
    for (const Ligne_index & ligne : autre.Lignes())
        if (connues.count(ligne.octets) == 0) octets += ligne.octets;
    if (!octets.empty()) {
        canal_.Ajouter(octets);
        Relire();
    }
    autre.Supprimer();
}

bool Index_corbeille::Synchroniser() {
    if (repertoire_.empty()) throw Erreur_execution(Numero::canal_incorrect, 0, {});
    const std::string octets = Octets(lignes_);
    // Another program may have put other bytes in as much room.
    if (Ouvert() && canal_.A_sa_place() && canal_.Longueur() == longueur_ && canal_.Lire_tout() == octets)
        return false;
    const bool disparu = !Est_la(Chemin(L"CRB"));
    canal_.Fermer();
    if (disparu && !octets.empty()) return Remplacer(octets), true;
    Ouvrir_canal();
    Relire();
    Completer_derniere();
    return true;
}

void Index_corbeille::Inscrire(const std::vector<Fiche> & fiches, std::size_t premiere) {
    inscrites_.clear();
    debuts_.clear();
    premiere_              = premiere;
    std::uint64_t longueur = canal_.Longueur();
    std::string   octets;
    for (std::size_t i = premiere; i < fiches.size(); ++i) {
        inscrites_.push_back(Ecrire_fiche(fiches[i], Page_du_systeme()));
        debuts_.push_back(longueur);
        longueur += inscrites_.back().size();
        octets += inscrites_.back();
    }
    canal_.Ajouter(octets);
}

bool Index_corbeille::Retirer(std::size_t premiere) noexcept {
    const std::size_t rang = premiere - premiere_;
    if (rang >= debuts_.size()) return true;
    try {
        // What another program appended behind is not cut away.
        if (canal_.Longueur() != debuts_.back() + inscrites_.back().size()) return false;
        canal_.Tronquer(debuts_[rang]);
        debuts_.resize(rang);
        inscrites_.resize(rang);
        return true;
    } catch (const Erreur_execution &) {
        return false;
    }
}

void Index_corbeille::Confirmer(const std::vector<Fiche> & fiches, std::size_t fin) {
    const std::size_t nombre = std::min(fin - premiere_, inscrites_.size());
    for (std::size_t i = 0; i < nombre; ++i) {
        lignes_.push_back({std::move(inscrites_[i]), fiches[premiere_ + i], Presence::la});
        longueur_ += lignes_.back().octets.size();
    }
    const auto confirmees = static_cast<std::ptrdiff_t>(nombre);
    inscrites_.erase(inscrites_.begin(), inscrites_.begin() + confirmees);
    debuts_.erase(debuts_.begin(), debuts_.begin() + confirmees);
    premiere_ += nombre;
}

// A file that left under its directory's new name has left under the former one: once it is gone the disk no longer tells.
Chemins_codes Index_corbeille::Avec_anciens(const Chemins_codes & partis) const {
    Chemins_codes tous = partis;
    for (const Ligne_index & ligne : lignes_)
        if (!ligne.suivie.empty() && partis.count(Sans_casse(ligne.suivie + ligne.fiche->code)) != 0)
            tous.insert(Sans_casse(ligne.fiche->Chemin_code()));
    return tous;
}

void Index_corbeille::Reecrire(const Chemins_codes & demandes) {
    const Chemins_codes partis = Avec_anciens(demandes);
    if (!Synchroniser()) Constater();
    const bool  fixes = Renommages_fixes(lignes_);
    std::string octets;
    for (const Ligne_index & ligne : lignes_) {
        const bool absente = ligne.presence == Presence::absente && (fixes || ligne.suivie.empty());
        const bool part =
            ligne.fiche && (absente || partis.count(Sans_casse(ligne.fiche->Chemin_code())) != 0);
        if (!part) octets += ligne.octets;
    }
    // The lines of a renamed directory may only have changed places.
    if (octets.size() != longueur_ || octets != canal_.Lire_tout()) Remplacer(octets);
}

void Index_corbeille::Remplacer(const std::string & octets) {
    Ecrire_fichier(Chemin(L"NEW"), octets, Attribut::cache);
    // A file that is open here cannot be replaced everywhere.
    canal_.Fermer();
    try {
        Remplacer_fichier(Chemin(L"NEW"), Chemin(L"CRB"));
    } catch (const Erreur_execution &) {
        Oter_sans_erreur(Chemin(L"NEW"));
        Ouvrir_canal();
        throw;
    }
    Ouvrir_canal();
    Relire();
}

void Index_corbeille::Supprimer() {
    canal_.Fermer();
    if (Est_la(Chemin(L"CRB"))) Oter(Chemin(L"CRB"));
    Fermer();
}
