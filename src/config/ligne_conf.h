#pragma once
#include <string>
#include <string_view>

// The lines of the configuration editor: a key, "=", a value that may itself hold "=".

enum class Section_conf { boutons, selections, associations };

struct Ligne_conf {
    std::wstring cle;     // empty when the line has no "=" or begins with it
    std::wstring valeur;  // what follows the first "="

    bool operator==(const Ligne_conf &) const = default;
};
Ligne_conf   Decouper_ligne(std::wstring_view ligne);
std::wstring Ecrire_ligne(const Ligne_conf & ligne);

// Which buttons a line being typed allows.
struct Boutons_permis {
    bool parcourir   = false;
    bool enregistrer = false;

    bool operator==(const Boutons_permis &) const = default;
};
Boutons_permis Permettre(std::wstring_view ligne, Section_conf section);

// The line once a file has been chosen for it: its key, "=", the file, and for an association the mark of its extension.
std::wstring Composer_ligne(std::wstring_view ligne, std::wstring_view fichier, Section_conf section);
