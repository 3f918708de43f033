#include "search/arbre.h"

#include <limits>
#include <stdexcept>

namespace {

wchar_t capitale(wchar_t lettre) {
    return lettre >= L'a' && lettre <= L'z' ? static_cast<wchar_t>(lettre - L'a' + L'A') : lettre;
}

std::uint32_t rang(std::size_t valeur) {
    if (valeur > std::numeric_limits<std::uint32_t>::max()) throw std::length_error("disk tree");
    return static_cast<std::uint32_t>(valeur);
}

}  // namespace

void Arbre::Commencer(std::wstring_view racine) {
    noms_.clear();
    noeuds_.assign(1, {});
    racine_ = racine;
}

void Arbre::Vider() {
    racine_.clear();
    noms_.clear();
    noeuds_.clear();
}

bool Arbre::Est_de(std::wstring_view unite) const {
    if (noeuds_.empty() || racine_.size() < 2 || unite.size() < 2) return false;
    return capitale(racine_[0]) == capitale(unite[0]) && racine_[1] == unite[1];
}

void Arbre::Ajouter(std::size_t parent, std::wstring_view nom) {
    const Noeud noeud{rang(parent), rang(noms_.size()), rang(nom.size())};
    noms_ += nom;
    noeuds_.push_back(noeud);
}

std::wstring_view Arbre::Nom(std::size_t index) const {
    const Noeud & noeud = noeuds_[index];
    return std::wstring_view(noms_).substr(noeud.debut, noeud.longueur);
}

std::wstring Arbre::Chemin(std::size_t index) const {
    if (index == 0) return racine_;
    // The root's own "\" stands before the first name.
    std::size_t longueur = racine_.size() - 1;
    for (std::size_t i = index; i != 0; i = noeuds_[i].parent) longueur += noeuds_[i].longueur + 1;
    std::wstring chemin(longueur, L'\\');
    racine_.copy(chemin.data(), racine_.size());
    std::size_t fin = longueur;
    for (std::size_t i = index; i != 0; i = noeuds_[i].parent) {
        const std::wstring_view nom = Nom(i);
        fin -= nom.size();
        nom.copy(chemin.data() + fin, nom.size());
        --fin;
    }
    return chemin;
}
