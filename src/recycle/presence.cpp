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

// Stored files are read-only: one of another length is another program's.
Presence Constat::Presence_de(const Fiche & fiche) {
    if (muettes_.count(Sans_casse(Racine(fiche.repertoire))) != 0) return Presence::inaccessible;
    try {
        const Entree_repertoire etat = Lire_etat(fiche.Chemin_code());
        if ((etat.attributs & Attribut::repertoire) != 0) return Presence::absente;
        return etat.taille == fiche.taille ? Presence::la : Presence::autre_fichier;
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

// Lines of one mark. The only one whose file is there takes the place of the earliest of the others: the order is that of erasure.
void Relier(const Lot & lot) {
    const auto est_la = [](const Ligne_index * ligne) { return ligne->presence == Presence::la; };
    const auto la     = std::find_if(lot.begin(), lot.end(), est_la);
    if (la == lot.end() || std::find_if(la + 1, lot.end(), est_la) != lot.end()) return;
    const std::wstring ici      = (*la)->fiche->repertoire;
    Ligne_index *      premiere = *la;
    for (Ligne_index * ligne : lot) {
        if (Comparer_sans_casse(ligne->fiche->repertoire, ici) == 0 || !N_est_plus_la(*ligne)) continue;
        ligne->presence = Presence::absente;
        ligne->suivie   = ici;
        premiere        = std::min(premiere, ligne);
    }
    if (premiere != *la && (*la)->Entiere()) std::swap(*premiere, **la);
}

void Relier_renommees(std::vector<Ligne_index> & lignes) {
    const bool toutes = std::all_of(lignes.begin(), lignes.end(), [](const Ligne_index & ligne) {
        return !ligne.fiche || ligne.presence == Presence::la;
    });
    if (toutes) return;
    std::unordered_map<std::wstring, Lot> lots;
    for (Ligne_index & ligne : lignes)
        if (ligne.fiche) lots[Marque(*ligne.fiche)].push_back(&ligne);
    for (const auto & [marque, lot] : lots)
        if (lot.size() > 1) Relier(lot);
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
