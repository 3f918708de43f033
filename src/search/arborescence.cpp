#include "search/arborescence.h"

#include "app/globals.h"
#include "platform/erreur.h"
#include "platform/parcours.h"
#include "platform/textes.h"
#include "platform/unites.h"

#include <algorithm>
#include <array>

namespace {
constexpr std::size_t entre_deux_regards = 256;   // entries of one directory between two calls of the watcher
constexpr std::size_t entre_deux_ajouts  = 4096;  // the same for names added to the tree
constexpr std::size_t entre_deux_rangements = 65536;  // and for comparisons of a sort

struct Memoire {
    Arbre        arbre;
    std::wstring support;  // medium that was walked
    bool         racine_lue = false;
    bool         entiere    = false;  // walked to its end
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

    // As the directory lists have them; names that differ by their case alone keep an order of their own. They are
    // folded once: a directory may hold hundreds of thousands. False when `poursuivre` ended it, the order is any then.
    bool Trier(const std::function<bool()> & poursuivre) {
        plie_ = texte_;
        Plier_pour_ordre(plie_);
        std::size_t comparaisons = 0;
        try {
            std::sort(places_.begin(), places_.end(), [&](const Place & a, const Place & b) {
                if (++comparaisons % entre_deux_rangements == 0 && !poursuivre()) throw Arret();
                return Avant(a, b);
            });
        } catch (const Arret &) {
            return false;
        }
        return true;
    }

private:
    struct Place {
        std::size_t debut, longueur;
    };
    struct Arret {};  // leaves a sort

    std::wstring_view        Nom(const Place & place) const { return Partie(texte_, place); }
    static std::wstring_view Partie(std::wstring_view texte, const Place & place) {
        return texte.substr(place.debut, place.longueur);
    }
    bool Avant(const Place & a, const Place & b) const {
        if (const int sens = Partie(plie_, a).compare(Partie(plie_, b)); sens != 0) return sens < 0;
        const int sens = Comparer_sans_casse(Nom(a), Nom(b));
        return sens != 0 ? sens < 0 : Nom(a) < Nom(b);
    }

    std::wstring       texte_;
    std::wstring       plie_;
    std::vector<Place> places_;
};

// Who follows a walk.
struct Temoins {
    const Suivi_parcours &  suivi;
    const Visite_parcours & visite;
};

// False when the watcher ended it.
bool Lire_sous_repertoires(const Arbre & arbre, std::size_t index, const Temoins & temoins, Noms & noms) {
    noms.Vider();
    const std::wstring repertoire = arbre.Chemin(index);
    std::size_t        vus        = 0;
    const auto         visiter    = [&](const Entree_vue & entree) {
        if (entree.repertoire && !entree.lien) noms.Ajouter(entree.nom);
        if (temoins.visite) temoins.visite(repertoire, entree);
        return ++vus % entre_deux_regards != 0 || temoins.suivi(arbre, index);
    };
    return Enumerer(repertoire, visiter) && noms.Trier([&] { return temoins.suivi(arbre, index); });
}

// The same within a walk, which goes on behind a directory that cannot be read.
bool Lire_ou_sauter(Memoire & m, std::size_t index, const Temoins & temoins, Noms & noms) {
    try {
        return Lire_sous_repertoires(m.arbre, index, temoins, noms);
    } catch (const Erreur_execution & erreur) {
        if (Repertoire_saute(erreur, index)) ++m.sautes;
        // What was listed before the failure is part of the disk all the same.
        return noms.Trier([&] { return temoins.suivi(m.arbre, index); });
    }
}

bool Ajouter_noms(Memoire & m, std::size_t index, const Suivi_parcours & suivi, const Noms & noms) {
    for (std::size_t rang = 0; rang < noms.Nombre(); ++rang) {
        if (rang % entre_deux_ajouts == entre_deux_ajouts - 1 && !suivi(m.arbre, index)) return false;
        m.arbre.Ajouter(index, noms.Nom(rang));
    }
    return true;
}

bool Relever(Memoire & m, const Temoins & temoins) {
    Noms noms;
    // The tree grows during the walk: this is what makes it go level by level.
    for (std::size_t i = 0; i < m.arbre.Nombre(); ++i) {
        if (!temoins.suivi(m.arbre, i) || !Lire_ou_sauter(m, i, temoins, noms)) return false;
        if (!Ajouter_noms(m, i, temoins.suivi, noms)) return false;
        m.racine_lue = true;
    }
    return true;
}

// The drive still holds the medium that was walked, and can be read.
bool Repond_encore(const Memoire & m) {
    const std::wstring racine     = m.arbre.Chemin(0);
    const auto         une_entree = [](const Entree_vue &) { return false; };
    return Identite_support(racine) == m.support && Tenter([&] { Enumerer(racine, une_entree); });
}

// Two diskettes of one make may have the same number and no label: their first level tells them apart.
bool Meme_premier_niveau(const Memoire & m) {
    Noms noms;
    try {
        const Suivi_parcours  sans_arret = [](const Arbre &, std::size_t) { return true; };
        const Visite_parcours sans_visite;
        Lire_sous_repertoires(m.arbre, 0, {sans_arret, sans_visite}, noms);
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

bool Relever_arborescence(const std::wstring & unite, const Suivi_parcours & suivi,
                          const Visite_parcours & visite) {
    Memoire & m  = Memorisee();
    m.support    = Identite_support(unite);
    m.racine_lue = false;
    m.entiere    = false;
    m.sautes     = 0;
    m.arbre.Commencer(unite.substr(0, 2) + L"\\");
    try {
        m.entiere = Relever(m, {suivi, visite});
    } catch (...) {
        m.arbre.Vider();
        throw;
    }
    variables.Arborescence_perimee = false;
    return m.entiere;
}

bool Arborescence_entiere() { return Memorisee().entiere; }

bool Repertoire_saute(const Erreur_execution & erreur, std::size_t index) {
    constexpr std::array sautables{Numero::permission_refusee, Numero::acces_fichier, Numero::nom_incorrect,
                                   Numero::entree_sortie, Numero::chemin_introuvable};
    Memoire &            m = Memorisee();
    const bool sautable    = std::find(sautables.begin(), sautables.end(), erreur.numero) != sautables.end();
    if (index != 0 && sautable && Repond_encore(m)) return erreur.numero != Numero::chemin_introuvable;
    const std::wstring racine = m.arbre.Nombre() == 0 ? erreur.chemin : m.arbre.Chemin(0);
    m.arbre.Vider();
    // On a drive that has lost its medium each directory fails in its own way.
    if (index == 0 || !sautable) throw erreur;
    throw Erreur_execution(Numero::disque_non_pret, erreur.code_systeme, racine);
}

std::size_t Repertoires_sautes() { return Memorisee().sautes; }
