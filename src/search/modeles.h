#pragma once
#include "platform/motifs.h"

#include <string>
#include <string_view>

// The patterns of a search: completed as they are typed, checked, matched with names.

// What a typed pattern stands for: ".bat" is "*.bat", "ms*" is "ms*.*", "." is "*.". No blank at either end, where a
// name's own would not be seen. Not for an empty text.
std::wstring Completer_modele(std::wstring_view saisi);
// A completed pattern that names something: more than "*", points and blanks ("?" counts), or "*.", the files
// without extension; no character that a name cannot hold.
bool Modele_correct(std::wstring_view modele);
// "*" any run, "?" one character, anything else itself, case included: a text as any other, not a file name.
bool Texte_conforme(std::wstring_view texte, std::wstring_view modele);

// The files that a search leaves out. Case does not count. A pattern that ends with a point means names without
// extension; no name ends with one.
class Exclusion {
public:
    Exclusion(std::wstring_view modele, Motifs::Plier plier);
    bool Exclut(std::wstring_view nom) const;

private:
    std::wstring  modele_;  // folded, without the final point
    Motifs::Plier plier_;
    bool          sans_extension_ = false;
    bool          aucune_         = false;
};

// The progress line of a search.
std::wstring Libelle_trouves(std::size_t nombre);
// The help of the progress line after a walk that could not read everything; empty for none.
std::wstring Libelle_sautes(std::size_t nombre);
// The notice of a search that found nothing, `unite` in capitals.
std::wstring Libelle_rien(std::wstring_view modele, std::wstring_view unite);
