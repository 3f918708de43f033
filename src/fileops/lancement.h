#pragma once
#include <functional>
#include <string>

struct Gestion_Fichiers;

// What the commands that hand the selected files to programs have in common. Each body runs inside a command.

// False with no file selected, which the user is told. Otherwise the SOURCE directory is the current one. Errors of
// Changer_repertoire.
bool Preparer_lancement(const Gestion_Fichiers & f);
// Asks about the current file, of that directory, when commands are to be confirmed. False ends the command.
bool Accepter_fichier(const Gestion_Fichiers & f, const std::wstring & repertoire);
// Hands the selected files to a program by lists; `ligne` makes a start line of a list. What is gathered when the command ends early
// is not started.
void Lancer_par_listes(const Gestion_Fichiers & f, const std::wstring & programme,
                       const std::function<std::wstring(const std::wstring &)> & ligne);

void Editer(const Gestion_Fichiers & f);    // the selected files, with the editor
void Executer(const Gestion_Fichiers & f);  // the first selected file, with parameters that are asked for
