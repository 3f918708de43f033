#pragma once
#include <string>

// Starts a command line in that directory, the SOURCE directory for an empty one; the program's own current directory is the same
// afterwards. Tache keeps the identifier. A batch file goes through the command interpreter: what would end the command there is
// escaped here and nowhere else (Ligne_sure), so that one start never becomes two. Errors 53, 76, 5, 7, 64, 68, 71, 70: nothing
// was started, and Fichier_courant names the program that was not.
void Lancer(const std::wstring & ligne, const std::wstring & repertoire = {});
// The same for a program of the settings: one that is installed on the machine is not mistaken for a file of that name in the
// directory.
void Lancer_installe(const std::wstring & ligne, const std::wstring & repertoire = {});

// The program that WIN.INI associates with an extension, perhaps with parameters of its own; empty without one.
std::wstring Programme_de_l_extension(const std::wstring & extension);

// A file's path, or its name in the current directory, as a line can carry it to that program: itself, or the disk's short name
// where the code page cannot hold it, where the command interpreter would take part of it for a variable, or where it is too long
// for most programs. Empty when there is none: the user has been told, and nothing may be started under another name.
std::wstring Chemin_pour(const std::wstring & programme, const std::wstring & chemin);
// The same for the path of the program that is to be started.
std::wstring Chemin_a_lancer(const std::wstring & chemin);
