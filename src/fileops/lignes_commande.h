#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The lines by which programs are started. Nothing is started here.
//
// A program whose path holds blanks is put in quotes, so that it is started as itself and never as what stands before
// the first blank. Parameters that hold a quote are passed as typed.

bool         Est_executable(std::wstring_view nom);  // extension EXE, COM, BAT or PIF, any case
std::wstring Extension_capitales(
    std::wstring_view nom);                            // of a file, without the point; empty when it has none
std::wstring Citer_fichier(std::wstring_view chemin);  // in quotes when it holds a blank
// A program, perhaps followed by parameters of its own ("C:\My tools\ED.EXE /N"), with quotes round a path with blanks.
std::wstring Citer_programme(std::wstring_view programme);
std::wstring Citer_parametres(std::wstring_view parametres);  // in quotes when they hold a blank and no quote

// File arguments gathered for one start, each after a blank; a list that would reach 126 characters is closed before.
class Groupe_fichiers {
public:
    static constexpr std::size_t limite = 126;

    // The list that is full and has to be started before this file, if any.
    std::optional<std::wstring> Ajouter(std::wstring_view chemin);
    const std::wstring &        Liste() const { return liste_; }

private:
    std::wstring liste_;
};

std::wstring Ligne_visualiseur(std::wstring_view visualiseur, std::wstring_view liste);
// An editor that is the companion viewer takes a list, any other one file.
bool         Editeur_groupe(std::wstring_view editeur);
std::wstring Ligne_editeur(std::wstring_view editeur, std::wstring_view liste_ou_fichier);
// The parameters come trimmed: in one piece they follow the program without a blank, so that switches attach to it.
std::wstring Ligne_execution(std::wstring_view chemin, std::wstring_view parametres);

// The value of an association, "C:\WINDOWS\NOTEPAD.EXE ^.txt": the program is what stands before the first " ^".
std::wstring Programme_associe(std::wstring_view valeur);
std::wstring Ligne_association(std::wstring_view programme, std::wstring_view fichier);

// What a programmed button starts.
struct Commande_bouton {
    std::wstring cible;               // program or document as written, without the mark
    std::wstring extension;           // first three characters, capitals; empty when there is no point
    std::wstring repertoire;          // to work in; empty: the SOURCE directory
    bool         parametres = false;  // asks for them

    bool operator==(const Commande_bouton &) const = default;
};
Commande_bouton Lire_bouton(std::wstring_view valeur);

// The command line: what stands after the first ">", without the blanks around it; empty without one.
std::wstring Commande_saisie(std::wstring_view texte);
std::wstring Ligne_saisie(std::wstring_view commande);  // its arguments in quotes
std::wstring Avec_com(std::wstring_view ligne);         // the same with ".COM" after the program

// A batch file's line goes through the command interpreter: what would end the command there is escaped.
std::wstring Proteger_interprete(std::wstring_view ligne);
