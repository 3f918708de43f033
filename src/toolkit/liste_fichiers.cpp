#include "platform/erreur.h"
#include "platform/motifs.h"
#include "platform/textes.h"
#include "platform/windows.h"
#include "toolkit/listes_disque.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>

namespace {
constexpr std::uint32_t attributs_montrables =
    Attribut::cache | Attribut::systeme | Attribut::modifie | Attribut::lecture;

// Sorts by name without regard to case; names that differ by their case alone keep an order of their own. The folded names
// stand in one block: folding two names at each comparison costs more than all the rest of the listing.
void Trier(std::vector<Entree_repertoire> & entrees) {
    std::wstring             bloc;
    std::vector<std::size_t> debuts(entrees.size() + 1);
    for (std::size_t i = 0; i < entrees.size(); ++i) {
        bloc += entrees[i].nom;
        debuts[i + 1] = bloc.size();
    }
    Plier_pour_ordre(bloc);
    const auto plie = [&](std::size_t i) {
        return std::wstring_view(bloc).substr(debuts[i], debuts[i + 1] - debuts[i]);
    };
    std::vector<std::size_t> ordre(entrees.size());
    std::iota(ordre.begin(), ordre.end(), std::size_t{0});
    std::sort(ordre.begin(), ordre.end(), [&](std::size_t a, std::size_t b) {
        if (const int sens = plie(a).compare(plie(b)); sens != 0) return sens < 0;
        const int sens = Comparer_sans_casse(entrees[a].nom, entrees[b].nom);
        return sens != 0 ? sens < 0 : entrees[a].nom < entrees[b].nom;
    });
    std::vector<Entree_repertoire> triees;
    triees.reserve(entrees.size());
    for (const std::size_t i : ordre) triees.push_back(std::move(entrees[i]));
    entrees = std::move(triees);
}

bool Memes_noms(const std::vector<Entree_repertoire> & a, const std::vector<Entree_repertoire> & b) {
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(),
        [](const Entree_repertoire & x, const Entree_repertoire & y) { return x.nom == y.nom; });
}
}  // namespace

Liste_fichiers::Liste_fichiers(Fenetre & fenetre, const Place & place) : Liste(fenetre, place, true) {}

std::vector<Entree_repertoire> Liste_fichiers::Filtrer(std::vector<Entree_repertoire> entrees,
                                                       const std::wstring &           motif) const {
    const Motifs motifs(motif, Majuscule);
    std::erase_if(entrees, [&](const Entree_repertoire & entree) {
        if ((entree.attributs & exclus_) != 0 ||
            (!normaux_ && (entree.attributs & attributs_montrables) == 0))
            return true;
        return !motifs.Tout() && !motifs.Accepte(entree.nom);
    });
    Trier(entrees);
    return entrees;
}

std::vector<Entree_repertoire> Liste_fichiers::Lire(const std::wstring & chemin,
                                                    const std::wstring & motif) const {
    if (!Motifs::Valide(motif)) throw Erreur_execution(Numero::valeur_incorrecte, 0, motif);
    return Filtrer(Lister(chemin, false), motif);
}

void Liste_fichiers::Suivre(const std::wstring & chemin, std::vector<Entree_repertoire> fichiers) {
    if (Comparer_sans_casse(chemin, path_) == 0) return;
    path_ = chemin;
    Montrer(Filtrer(std::move(fichiers), pattern_));
    if (PathChange) PathChange();
}

void Liste_fichiers::Montrer(std::vector<Entree_repertoire> entrees) {
    entrees_ = std::move(entrees);
    std::vector<const wchar_t *> textes;
    textes.reserve(entrees_.size());
    for (const Entree_repertoire & entree : entrees_) textes.push_back(entree.nom.c_str());
    Remplir(textes);
}

void Liste_fichiers::Relire(const std::wstring & chemin, const std::wstring & motif) {
    std::vector<Entree_repertoire> entrees = Lire(chemin, motif);
    const bool                     change  = Comparer_sans_casse(chemin, path_) != 0;
    path_                                  = chemin;
    pattern_                               = motif;
    Montrer(std::move(entrees));
    if (change && PathChange) PathChange();
}

void Liste_fichiers::Path(const std::wstring & chemin) {
    const std::wstring complet = Chemin_complet(chemin);
    if (Comparer_sans_casse(complet, path_) == 0) return;
    Relire(complet, pattern_);
}

void Liste_fichiers::Pattern(const std::wstring & motif) { Relire(path_, motif); }

void Liste_fichiers::Montrer_attribut(std::uint32_t attribut, bool montrer) {
    const std::uint32_t voulus = montrer ? exclus_ & ~attribut : exclus_ | attribut;
    if (std::exchange(exclus_, voulus) != voulus) Refresh();
}

void Liste_fichiers::Normal(bool montrer) {
    if (std::exchange(normaux_, montrer) != montrer) Refresh();
}

void Liste_fichiers::Refresh() {
    if (path_.empty()) return;
    std::vector<Entree_repertoire> entrees = Lire(path_, pattern_);
    if (Memes_noms(entrees, entrees_)) {
        entrees_ = std::move(entrees);
        return;
    }
    std::vector<std::wstring> choisis;
    for (const int index : Selection()) choisis.push_back(entrees_[static_cast<std::size_t>(index)].nom);
    const int          courant = ListIndex();
    const std::wstring nom  = courant >= 0 ? entrees_[static_cast<std::size_t>(courant)].nom : std::wstring();
    const int          haut = TopIndex();
    Montrer(std::move(entrees));
    // Both are in the same order: one walk finds the names that are still there.
    std::size_t suivant = 0;
    for (std::size_t i = 0; i < entrees_.size(); ++i) {
        const auto ligne = static_cast<WPARAM>(i);
        if (!nom.empty() && entrees_[i].nom == nom) {
            Envoyer(LB_SETCARETINDEX, ligne, FALSE);
            touche_ = true;
        }
        while (suivant < choisis.size() && Comparer_sans_casse(choisis[suivant], entrees_[i].nom) < 0)
            ++suivant;
        if (suivant < choisis.size() && choisis[suivant] == entrees_[i].nom) {
            Envoyer(LB_SETSEL, TRUE, static_cast<LPARAM>(i));
            ++suivant;
        }
    }
    TopIndex(haut);
}
