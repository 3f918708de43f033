#include "recycle/presence.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/textes.h"
#include "platform/unites.h"

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_set>

namespace {

// From so many records of one directory on, listing it costs less than asking for each.
constexpr std::size_t assez_pour_lister = 64;

using Noms = std::unordered_set<std::wstring>;
using Lot  = std::vector<Ligne_index *>;

// The folded names that a directory holds; none when it cannot be listed.
std::optional<Noms> Noms_presents(const std::wstring & repertoire) {
    try {
        Noms noms;
        for (Entree_repertoire & entree : Lister(repertoire, false))
            noms.insert(Sans_casse(std::move(entree.nom)));
        return noms;
    } catch (const Erreur_execution &) {
        return std::nullopt;
    }
}

Presence Presence_de(const Fiche & fiche) {
    try {
        const std::uint32_t attributs = Lire_attributs(fiche.Chemin_code());
        return (attributs & Attribut::repertoire) == 0 ? Presence::la : Presence::absente;
    } catch (const Erreur_execution & erreur) {
        return erreur.numero == Numero::fichier_introuvable && Repertoire_existe(fiche.repertoire)
                   ? Presence::absente
                   : Presence::inaccessible;
    }
}

void Constater_lot(const Lot & lot) {
    std::optional<Noms> noms;
    if (lot.size() >= assez_pour_lister) noms = Noms_presents(lot.front()->fiche->repertoire);
    for (Ligne_index * ligne : lot) {
        if (!noms)
            ligne->presence = Presence_de(*ligne->fiche);
        else
            ligne->presence =
                noms->count(Sans_casse(ligne->fiche->code)) != 0 ? Presence::la : Presence::absente;
    }
}

std::wstring Racine(const std::wstring & chemin) { return chemin.substr(0, 2) + L"\\"; }

// Another medium in the drive may have the same directories: what is not found there is not gone.
void Distinguer_supports(std::vector<Ligne_index> & lignes) {
    for (Ligne_index & ligne : lignes)
        if (ligne.fiche && ligne.presence == Presence::absente &&
            Support_amovible(Racine(ligne.fiche->repertoire)))
            ligne.presence = Presence::autre_support;
}

// Two lines for one file: the later one says what it is.
void Ecarter_doubles(std::vector<Ligne_index> & lignes) {
    Noms vus;
    std::for_each(lignes.rbegin(), lignes.rend(), [&](Ligne_index & ligne) {
        if (ligne.fiche && !vus.insert(Sans_casse(ligne.fiche->Chemin_code())).second)
            ligne.presence = Presence::absente;
    });
}

}  // namespace

std::wstring Sans_casse(std::wstring texte) {
    for (wchar_t & c : texte) c = Majuscule(c);
    return texte;
}

void Constater_presences(std::vector<Ligne_index> & lignes) {
    std::map<std::wstring, Lot> lots;
    for (Ligne_index & ligne : lignes)
        if (ligne.fiche) lots[Sans_casse(ligne.fiche->repertoire)].push_back(&ligne);
    for (const auto & [repertoire, lot] : lots) Constater_lot(lot);
    Distinguer_supports(lignes);
    Ecarter_doubles(lignes);
}

bool Peut_revenir(const std::wstring & chemin) {
    return !Repertoire_existe(Racine(chemin)) || Support_amovible(Racine(chemin));
}
