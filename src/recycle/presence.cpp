#include "recycle/presence.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/textes.h"
#include "platform/unites.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace {

// From so many records of one directory on, listing it costs less than asking for each.
constexpr std::size_t assez_pour_lister = 64;

using Noms    = std::unordered_set<std::wstring>;
using Tailles = std::unordered_map<std::wstring, std::uint64_t>;
using Lot     = std::vector<Ligne_index *>;

std::wstring Racine(const std::wstring & chemin) { return chemin.substr(0, 2) + L"\\"; }

bool Introuvable(const Erreur_execution & erreur) {
    return erreur.numero == Numero::fichier_introuvable || erreur.numero == Numero::chemin_introuvable;
}

// One look at the disk for the stored files.
class Constat {
public:
    void Regarder(const Lot & lot);

private:
    std::optional<Tailles> Presents(const std::wstring & repertoire);
    Presence               Presence_de(const Fiche & fiche);
    void                   Noter(const Erreur_execution & erreur, const std::wstring & chemin);

    std::set<std::wstring> muettes_;  // drives that did not answer: asked again, each record would wait
};

void Constat::Noter(const Erreur_execution & erreur, const std::wstring & chemin) {
    if (erreur.numero == Numero::unite_absente || erreur.numero == Numero::disque_non_pret)
        muettes_.insert(Sans_casse(Racine(chemin)));
}

// The folded names of the files that a directory holds, and their lengths; none when it cannot be listed.
std::optional<Tailles> Constat::Presents(const std::wstring & repertoire) {
    try {
        Tailles tailles;
        for (Entree_repertoire & entree : Lister(repertoire, false))
            tailles.emplace(Sans_casse(std::move(entree.nom)), entree.taille);
        return tailles;
    } catch (const Erreur_execution & erreur) {
        Noter(erreur, repertoire);
        return std::nullopt;
    }
}

// A stored file may have grown since, by a program that had it open, and is still read-only; one of another length that anybody
// may write is another program's.
Presence Constat::Presence_de(const Fiche & fiche) {
    if (muettes_.count(Sans_casse(Racine(fiche.repertoire))) != 0) return Presence::inaccessible;
    try {
        const Entree_repertoire etat = Lire_etat(fiche.Chemin_code());
        if ((etat.attributs & Attribut::repertoire) != 0) return Presence::absente;
        const bool notre = etat.taille == fiche.taille || (etat.attributs & Attribut::lecture) != 0;
        return notre ? Presence::la : Presence::autre_fichier;
    } catch (const Erreur_execution & erreur) {
        Noter(erreur, fiche.repertoire);
        return erreur.numero == Numero::fichier_introuvable && Repertoire_existe(fiche.repertoire)
                   ? Presence::absente
                   : Presence::inaccessible;
    }
}

void Constat::Regarder(const Lot & lot) {
    std::optional<Tailles> presents;
    if (lot.size() >= assez_pour_lister) presents = Presents(lot.front()->fiche->repertoire);
    for (Ligne_index * ligne : lot) {
        ligne->presence = Presence::absente;
        const auto vu   = presents ? presents->find(Sans_casse(ligne->fiche->code)) : Tailles::iterator();
        if (presents && vu == presents->end()) continue;
        // A directory may tell the length that a file had when it was last closed.
        ligne->presence =
            presents && vu->second == ligne->fiche->taille ? Presence::la : Presence_de(*ligne->fiche);
    }
}

// Another medium in the drive may have the same directories: what is not found there is not gone.
void Distinguer_supports(std::vector<Ligne_index> & lignes) {
    std::map<std::wstring, bool> fixes;
    for (Ligne_index & ligne : lignes) {
        if (!ligne.fiche || ligne.presence != Presence::absente) continue;
        const std::wstring racine = Sans_casse(Racine(ligne.fiche->repertoire));
        auto               connue = fixes.find(racine);
        if (connue == fixes.end()) connue = fixes.emplace(racine, Support_fixe(racine)).first;
        if (!connue->second) ligne.presence = Presence::autre_support;
    }
}

// Two lines for one file: the later one says what it is.
void Ecarter_doubles(std::vector<Ligne_index> & lignes) {
    Noms vus;
    std::for_each(lignes.rbegin(), lignes.rend(), [&](Ligne_index & ligne) {
        if (ligne.fiche && !vus.insert(Sans_casse(ligne.fiche->Chemin_code())).second)
            ligne.presence = Presence::absente;
    });
}

// What two lines have in common when one directory had two names: all but that name.
std::wstring Marque(const Fiche & fiche) {
    return Sans_casse(fiche.repertoire.substr(0, 1) + fiche.code + fiche.nom) + L'\\' +
           std::to_wstring(fiche.taille);
}

// The directory is gone, on a drive that answers.
bool Repertoire_disparu(const std::wstring & repertoire) {
    try {
        Lire_attributs(repertoire);
        return false;
    } catch (const Erreur_execution & erreur) {
        return Introuvable(erreur);
    }
}

bool N_est_plus_la(const Ligne_index & ligne) {
    if (ligne.presence == Presence::absente || ligne.presence == Presence::autre_support) return true;
    return ligne.presence == Presence::inaccessible && Repertoire_disparu(ligne.fiche->repertoire);
}

// Two directories whose paths differ by one name alone: those paths, folded, down to that name.
using Paire = std::pair<std::wstring, std::wstring>;

std::optional<Paire> Seul_ecart(const std::wstring & ancien, const std::wstring & nouveau) {
    const std::wstring a     = Sans_casse(ancien);
    const std::wstring b     = Sans_casse(nouveau);
    const auto         ecart = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
    if (ecart == 0 || a == b) return std::nullopt;
    const std::size_t debut = a.rfind(L'\\', static_cast<std::size_t>(ecart) - 1) + 1;
    const std::size_t fin_a = a.find(L'\\', debut);
    const std::size_t fin_b = b.find(L'\\', debut);
    if (debut == 0 || fin_a == std::wstring::npos || fin_b == std::wstring::npos) return std::nullopt;
    if (a.compare(fin_a, a.npos, b, fin_b, b.npos) != 0) return std::nullopt;
    return Paire{a.substr(0, fin_a + 1), b.substr(0, fin_b + 1)};
}

std::wstring Signature(const std::wstring & repertoire, const Fiche & fiche) {
    return repertoire + L'|' + Marque(fiche);
}

// Tells files of a directory that took another name from files of two directories that are alike by chance.
class Renommages {
public:
    explicit Renommages(std::vector<Ligne_index> & lignes);
    void Relier(const Lot & lot);
    void Relier_sans_fichier();

private:
    bool Tous_jumeaux(const Paire & paire) const;
    bool Possible(const std::optional<Paire> & paire);
    bool Fixe(const std::wstring & repertoire);
    void Suivre(Ligne_index & ligne, const std::wstring & ici);

    std::vector<Ligne_index> &   lignes_;
    Noms                         signatures_;
    std::map<Paire, bool>        possibles_;
    std::set<Paire>              reliees_;
    std::map<std::wstring, bool> fixes_;
};

Renommages::Renommages(std::vector<Ligne_index> & lignes) : lignes_(lignes) {
    for (const Ligne_index & ligne : lignes)
        if (ligne.fiche) signatures_.insert(Signature(Sans_casse(ligne.fiche->repertoire), *ligne.fiche));
}

// The whole directory was renamed: each of its records is there under the new name as well.
bool Renommages::Tous_jumeaux(const Paire & paire) const {
    const std::wstring & ancien  = paire.first;
    const std::wstring & nouveau = paire.second;
    return std::all_of(lignes_.begin(), lignes_.end(), [&](const Ligne_index & ligne) {
        if (!ligne.fiche) return true;
        const std::wstring ici = Sans_casse(ligne.fiche->repertoire);
        return !ici.starts_with(ancien) ||
               signatures_.count(Signature(nouveau + ici.substr(ancien.size()), *ligne.fiche)) != 0;
    });
}

bool Renommages::Possible(const std::optional<Paire> & paire) {
    if (!paire) return false;
    auto connue = possibles_.find(*paire);
    if (connue == possibles_.end()) connue = possibles_.emplace(*paire, Tous_jumeaux(*paire)).first;
    return connue->second;
}

bool Renommages::Fixe(const std::wstring & repertoire) {
    const std::wstring racine = Sans_casse(Racine(repertoire));
    auto               connue = fixes_.find(racine);
    if (connue == fixes_.end()) connue = fixes_.emplace(racine, Support_fixe(racine)).first;
    return connue->second;
}

// On a drive that may have another medium the former line is kept: that medium may have the file.
void Renommages::Suivre(Ligne_index & ligne, const std::wstring & ici) {
    ligne.presence = Fixe(ici) ? Presence::absente : Presence::autre_support;
    ligne.suivie   = ici;
}

// Lines of one mark. The only one whose file is there takes the place of the earliest of the others: the order is that of erasure.
void Renommages::Relier(const Lot & lot) {
    const auto est_la = [](const Ligne_index * ligne) { return ligne->presence == Presence::la; };
    const auto la     = std::find_if(lot.begin(), lot.end(), est_la);
    if (la == lot.end() || std::find_if(la + 1, lot.end(), est_la) != lot.end()) return;
    const std::wstring ici      = (*la)->fiche->repertoire;
    Ligne_index *      premiere = *la;
    for (Ligne_index * ligne : lot) {
        const std::optional<Paire> paire = Seul_ecart(ligne->fiche->repertoire, ici);
        if (!Possible(paire) || !N_est_plus_la(*ligne)) continue;
        reliees_.insert(*paire);
        Suivre(*ligne, ici);
        premiere = std::min(premiere, ligne);
    }
    if (premiere != *la && (*la)->Entiere()) std::swap(*premiere, **la);
}

// A record that had no file any more before its directory took another name has none under the former name either.
void Renommages::Relier_sans_fichier() {
    for (const auto & [ancien, nouveau] : reliees_) {
        // Some of the files under each name: neither is the former one.
        if (reliees_.count({nouveau, ancien}) != 0) continue;
        for (Ligne_index & ligne : lignes_) {
            if (!ligne.fiche || !ligne.suivie.empty()) continue;
            if (!Sans_casse(ligne.fiche->repertoire).starts_with(ancien) || !N_est_plus_la(ligne)) continue;
            // What it was in may be gone with it.
            Suivre(ligne, nouveau);
        }
    }
}

// Neither name of a directory can be looked for: what it holds is listed once.
void Lister_une_fois(const Lot & lot) {
    Lot listees;
    std::for_each(lot.rbegin(), lot.rend(), [&](Ligne_index * ligne) {
        if (ligne->presence != Presence::inaccessible) return;
        const bool double_nom = std::any_of(listees.begin(), listees.end(), [&](const Ligne_index * listee) {
            return Seul_ecart(ligne->fiche->repertoire, listee->fiche->repertoire).has_value();
        });
        if (double_nom)
            ligne->presence = Presence::autre_support;
        else
            listees.push_back(ligne);
    });
}

void Relier_renommees(std::vector<Ligne_index> & lignes) {
    const bool toutes = std::all_of(lignes.begin(), lignes.end(), [](const Ligne_index & ligne) {
        return !ligne.fiche || ligne.presence == Presence::la;
    });
    if (toutes) return;
    std::unordered_map<std::wstring, Lot> lots;
    for (Ligne_index & ligne : lignes)
        if (ligne.fiche) lots[Marque(*ligne.fiche)].push_back(&ligne);
    Renommages renommages(lignes);
    for (const auto & [marque, lot] : lots)
        if (lot.size() > 1) renommages.Relier(lot);
    renommages.Relier_sans_fichier();
    for (const auto & [marque, lot] : lots) {
        const bool aucune = std::none_of(lot.begin(), lot.end(), [](const Ligne_index * ligne) {
            return ligne->presence == Presence::la;
        });
        if (aucune) Lister_une_fois(lot);
    }
}

}  // namespace

std::wstring Sans_casse(std::wstring texte) {
    for (wchar_t & c : texte) c = Majuscule(c);
    return texte;
}

void Constater_presences(std::vector<Ligne_index> & lignes) {
    std::map<std::wstring, Lot> lots;
    for (Ligne_index & ligne : lignes) {
        ligne.suivie.clear();
        if (ligne.fiche) lots[Sans_casse(ligne.fiche->repertoire)].push_back(&ligne);
    }
    Constat constat;
    for (const auto & [repertoire, lot] : lots) constat.Regarder(lot);
    Distinguer_supports(lignes);
    Ecarter_doubles(lignes);
    Relier_renommees(lignes);
}

bool Peut_revenir(const std::wstring & chemin) {
    return !Repertoire_existe(Racine(chemin)) || !Support_fixe(Racine(chemin));
}
