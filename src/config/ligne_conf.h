#pragma once
#include <string>
#include <string_view>

// The lines of the configuration editor: a key, "=", a value that may itself hold "=".

enum class Section_conf { boutons, selections, associations };

struct Ligne_conf {
    std::wstring cle;     // without the blanks around it; empty when the line has no "=" or begins with it
    std::wstring valeur;  // what follows the first "="

    bool operator==(const Ligne_conf &) const = default;
};
Ligne_conf   Decouper_ligne(std::wstring_view ligne);
std::wstring Ecrire_ligne(const Ligne_conf & ligne);
// Whether both name one key, in every system: the case of plain letters does not count, and some systems tell an accented capital
// from its small letter.
bool Meme_cle(std::wstring_view a, std::wstring_view b);

// Which buttons a line being typed allows. A key that a profile file cannot hold (it begins with ";" or "[", or is nothing but
// blanks) allows none, a value of nothing but blanks is none.
struct Boutons_permis {
    bool parcourir   = false;
    bool enregistrer = false;

    bool operator==(const Boutons_permis &) const = default;
};
Boutons_permis Permettre(std::wstring_view ligne, Section_conf section);

// The line once a file has been chosen for it: its key, "=", the file, and for an association the mark of its extension.
std::wstring Composer_ligne(std::wstring_view ligne, std::wstring_view fichier, Section_conf section);
