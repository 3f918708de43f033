#pragma once
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The lines by which programs are started. Nothing is started here.
//
// A program whose path holds blanks is put in quotes, so that it is started as itself and never as what stands before
// the first blank. Parameters that hold a quote are passed as typed.

// Whether a start finds a file under that text: a path, or a name that is looked for where the system looks for programs.
using Existe = std::function<bool(std::wstring_view)>;

bool         Est_executable(std::wstring_view nom);  // extension EXE, COM, BAT or PIF, any case
std::wstring Extension_capitales(
    std::wstring_view nom);                            // of a file, without the point; empty when it has none
std::wstring Citer_fichier(std::wstring_view chemin);  // in quotes when it holds a blank
// A program, perhaps followed by parameters of its own ("C:\My tools\ED.EXE /N"), with quotes round a path with blanks. The disk
// decides where its path ends ("C:\my.bat old\ed.exe"); when it knows none of the possible ends, the whole text is the path.
std::wstring Citer_programme(std::wstring_view programme, const Existe & existe);
std::wstring Citer_parametres(std::wstring_view parametres);  // in quotes when they hold a blank and no quote

std::wstring_view Programme_de_la_ligne(std::wstring_view ligne);  // its first word, without quotes

// The command interpreter runs batch files (BAT, CMD): it has signs of its own, which a line that starts one must not give away.

// True for a line, or a program alone, that starts a batch file.
bool Lance_interprete(std::wstring_view ligne);
// A file's path for that program. In a batch file it is quoted as soon as the interpreter could cut it or act on it, there and
// in the commands that the batch file makes of it.
std::wstring Citer_argument(std::wstring_view programme, std::wstring_view chemin);
// True when the interpreter may take part of the line for a variable and put another text in its place; quotes do not help.
bool Serait_developpe(std::wstring_view ligne);
// What would end the command, or cut the program's name, is escaped or quoted; "%" keeps its meaning. For a line that starts a
// batch file, once.
std::wstring Proteger_interprete(std::wstring_view ligne);
// A line as it can be handed to the system: protected when it starts a batch file, itself otherwise.
std::wstring Ligne_sure(std::wstring_view ligne);

// File arguments gathered for one start, each after a blank. A list is closed before it would be longer than 125 characters,
// quotes and separating blanks counted, the blank that opens it not; a longer path goes alone.
class Groupe_fichiers {
public:
    static constexpr std::size_t limite = 126;

    explicit Groupe_fichiers(std::wstring_view programme = {}) : programme_(programme) {}

    // The list that is full and has to be started before this file, if any.
    std::optional<std::wstring> Ajouter(std::wstring_view chemin);
    const std::wstring &        Liste() const { return liste_; }

private:
    std::wstring programme_;
    std::wstring liste_;
};

std::wstring Ligne_visualiseur(std::wstring_view visualiseur, std::wstring_view liste, const Existe & existe);
// An editor that is the companion viewer takes a list, any other one file.
bool         Editeur_groupe(std::wstring_view editeur);
std::wstring Ligne_editeur(std::wstring_view editeur, std::wstring_view liste_ou_fichier,
                           const Existe & existe);
// The parameters as they were typed, blanks around them apart. In one piece they follow the program without a blank, so that
// switches attach to it; the program is in quotes then, which show the system where its name ends.
std::wstring Ligne_execution(std::wstring_view chemin, std::wstring_view parametres);

// The value of an association, "C:\WINDOWS\NOTEPAD.EXE ^.txt": the program is what stands before the first " ^".
std::wstring Programme_associe(std::wstring_view valeur);
std::wstring Ligne_association(std::wstring_view programme, std::wstring_view fichier, const Existe & existe);

// What a programmed button starts.
struct Commande_bouton {
    std::wstring
        cible;  // program or document as written, without the mark, and without quotes round all of it
    std::wstring extension;           // first three characters, capitals; empty when there is no point
    std::wstring repertoire;          // to work in; empty: the SOURCE directory
    bool         parametres = false;  // asks for them

    bool operator==(const Commande_bouton &) const = default;
};
// The extension is that of the file that the disk knows under this text, or under its beginning when parameters follow; without
// such a file, what follows the first point that is not in a directory's name.
Commande_bouton Lire_bouton(std::wstring_view valeur, const Existe & existe);

// The command line: what stands after the first ">", without the blanks around it; empty without one. Tabs are blanks.
std::wstring Commande_saisie(std::wstring_view texte);
// Its arguments in quotes. The program ends at the first blank; one that is typed with its directory goes on behind it when the
// disk knows it, and is put in quotes.
std::wstring Ligne_saisie(std::wstring_view commande, const Existe & existe);
std::wstring Avec_com(std::wstring_view ligne);  // the same with ".COM" after the program
