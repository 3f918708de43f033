#include "search/arborescence.h"

#include "app/globals.h"
#include "platform/erreur.h"
#include "platform/parcours.h"
#include "platform/textes.h"
#include "platform/unites.h"

#include <algorithm>

namespace {
constexpr std::size_t entre_deux_regards = 256;  // entries of one directory between two calls of the watcher

struct Memoire {
    Arbre        arbre;
    std::wstring support;  // medium that was walked
    bool         racine_lue = false;
    std::size_t  sautes     = 0;
};

Memoire & Memorisee() {
    static Memoire memoire;
    return memoire;
}

// The names of one directory's subdirectories, in one block that every directory of a walk uses again.
class Noms {
public:
    void Vider() {
        texte_.clear();
        places_.clear();
    }
    void Ajouter(std::wstring_view nom) {
        places_.push_back({texte_.size(), nom.size()});
        texte_ += nom;
    }
    std::size_t       Nombre() const { return places_.size(); }
    std::wstring_view Nom(std::size_t rang) const { return Nom(places_[rang]); }

    // As the directory lists have them; names that differ by their case alone keep an order of their own.
    void Trier() {
        std::sort(places_.begin(), places_.end(), [this](const Place & a, const Place & b) {
            const int sens = Comparer_sans_casse(Nom(a), Nom(b));
            return sens != 0 ? sens < 0 : Nom(a) < Nom(b);
        });
    }

private:
    struct Place {
        std::size_t debut, longueur;
    };
    std::wstring_view Nom(const Place & place) const {
        return std::wstring_view(texte_).substr(place.debut, place.longueur);
    }

    std::wstring       texte_;
    std::vector<Place> places_;
};

enum class Lecture { faite, arretee, refusee };

// The root's failure is the drive's own and is thrown.
Lecture Lire_sous_repertoires(const Arbre & arbre, std::size_t index, const Suivi_parcours & suivi,
                              Noms & noms) {
    noms.Vider();
    std::size_t vus     = 0;
    const auto  visiter = [&](const Entree_vue & entree) {
        if (entree.repertoire && !entree.lien) noms.Ajouter(entree.nom);
        return ++vus % entre_deux_regards != 0 || suivi(arbre, index);
    };
    try {
        if (!Enumerer(arbre.Chemin(index), visiter)) return Lecture::arretee;
    } catch (const Erreur_execution &) {
        if (index == 0) throw;
        // What was listed before the failure is part of the disk all the same.
        noms.Trier();
        return Lecture::refusee;
    }
    noms.Trier();
    return Lecture::faite;
}

bool Relever(Memoire & m, const Suivi_parcours & suivi) {
    Noms noms;
    // The tree grows during the walk: this is what makes it go level by level.
    for (std::size_t i = 0; i < m.arbre.Nombre(); ++i) {
        if (!suivi(m.arbre, i)) return false;
        const Lecture lecture = Lire_sous_repertoires(m.arbre, i, suivi, noms);
        if (lecture == Lecture::arretee) return false;
        if (lecture == Lecture::refusee) ++m.sautes;
        for (std::size_t rang = 0; rang < noms.Nombre(); ++rang) m.arbre.Ajouter(i, noms.Nom(rang));
        m.racine_lue = true;
    }
    return true;
}

// Two diskettes of one make may have the same number and no label: their first level tells them apart.
bool Meme_premier_niveau(const Memoire & m) {
    Noms noms;
    try {
        const Suivi_parcours sans_arret = [](const Arbre &, std::size_t) { return true; };
        Lire_sous_repertoires(m.arbre, 0, sans_arret, noms);
    } catch (const Erreur_execution &) {
        return false;
    }
    for (std::size_t rang = 0; rang < noms.Nombre(); ++rang) {
        const std::size_t index = rang + 1;
        if (index >= m.arbre.Nombre() || m.arbre.Parent(index) != 0 || m.arbre.Nom(index) != noms.Nom(rang))
            return false;
    }
    const std::size_t suivant = noms.Nombre() + 1;
    return suivant >= m.arbre.Nombre() || m.arbre.Parent(suivant) != 0;
}
}  // namespace

const Arbre & Arborescence() { return Memorisee().arbre; }

bool Arborescence_valide(const std::wstring & unite) {
    const Memoire & m = Memorisee();
    if (variables.Arborescence_perimee || !m.arbre.Est_de(unite)) return false;
    if (m.support != Identite_support(unite)) return false;
    return !m.racine_lue || !Support_amovible(unite.substr(0, 2) + L"\\") || Meme_premier_niveau(m);
}

bool Relever_arborescence(const std::wstring & unite, const Suivi_parcours & suivi) {
    Memoire & m  = Memorisee();
    m.support    = Identite_support(unite);
    m.racine_lue = false;
    m.sautes     = 0;
    m.arbre.Commencer(unite.substr(0, 2) + L"\\");
    bool entier = false;
    try {
        entier = Relever(m, suivi);
    } catch (...) {
        m.arbre.Vider();
        throw;
    }
    variables.Arborescence_perimee = false;
    return entier;
}

std::size_t Repertoires_sautes() { return Memorisee().sautes; }
