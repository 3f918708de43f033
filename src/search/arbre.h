#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The directories of one disk: the root first, then each level in the order of the directory lists. A directory
// is its name and the index of its parent, so that 300,000 of them stay small.
class Arbre {
public:
    void        Commencer(std::wstring_view racine);  // "C:\"; nothing else is left in it
    void        Vider();
    std::size_t Nombre() const { return noeuds_.size(); }
    bool        Est_de(
               std::wstring_view unite) const;  // first two characters of the root, any case; false when empty
    void         Ajouter(std::size_t parent, std::wstring_view nom);  // `nom` is no part of the tree itself
    std::wstring Chemin(std::size_t index) const;                     // no final "\" but for the root
    std::wstring_view Nom(std::size_t index) const;  // empty for the root; valid until the tree changes
    std::size_t Parent(std::size_t index) const { return noeuds_[index].parent; }  // the root's own is itself

private:
    struct Noeud {
        std::uint32_t parent   = 0;
        std::uint32_t debut    = 0;  // of the name in noms_
        std::uint32_t longueur = 0;
    };
    std::wstring       racine_;
    std::wstring       noms_;
    std::vector<Noeud> noeuds_;
};
