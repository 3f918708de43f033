#pragma once
#include <string>
#include <string_view>

// Starting other programs. Services raise Erreur_execution.

// Starts a command line in a normal window that takes the focus, in the current directory, through the system's WinExec: the
// program is looked for beside ours, then in the current directory, the system directory, the Windows directory and PATH. Returns
// the identifier of what was started. Errors 53 (no such program), 76, 5 (no program), 7; 64 when the system's code page cannot
// hold the line: another file would be named. Nothing is started after an error.
unsigned Demarrer(const std::wstring & ligne);

// A path as a command line can carry it: itself, or the disk's short name for it when the code page cannot hold it. Error 64 when
// the disk keeps no short name.
std::wstring Chemin_transmissible(const std::wstring & chemin);
// The disk's short name for an existing path, absolute or relative as the path is; empty when there is none.
std::wstring Chemin_court(const std::wstring & chemin);

// Whether a start finds a file under that text: a path, or a name that is looked for where programs are. Nothing is raised.
bool Programme_existe(std::wstring_view programme);

// The installed program (system directory, Windows directory, PATH) that a bare name stands for, where a file of the current
// directory would be started in its place: what lies among the user's files must not pass for a program of the machine. Empty when
// the name leads to the right program by itself. Nothing is raised.
std::wstring Programme_masque(std::wstring_view nom);

// A directory that is the current one while this lives; the former one comes back. An empty path changes nothing. Errors of
// Changer_repertoire: 76, 68, 71, 70.
class Repertoire_de_travail {
public:
    explicit Repertoire_de_travail(const std::wstring & repertoire);
    ~Repertoire_de_travail();
    Repertoire_de_travail(const Repertoire_de_travail &)             = delete;
    Repertoire_de_travail & operator=(const Repertoire_de_travail &) = delete;

private:
    std::wstring avant_;
};
