#pragma once
#include <optional>
#include <string>

class Liste_repertoires;
struct Gestion_Fichiers;

// What the commands on the SOURCE directory have in common.

// Its path for a question: shortened to the width of the prompts, in capitals.
std::wstring Source_montree(const Gestion_Fichiers & f);
// Asks whether to go on; `objet` stands before the path.
bool Confirmer_repertoire(const Gestion_Fichiers & f, const std::wstring & objet);
// Asks for a name under the command's title; empty ends the command. Error 64 for anything but a bare name:
// nothing is made outside the directory that was meant.
std::wstring Demander_nom(const std::wstring & invite, const std::wstring & defaut);
std::wstring Parent_source(const Gestion_Fichiers & f);  // empty for a root
// Directories are not what the lists and the tree of the search know.
void Perimer_repertoires();
// Takes a list to a directory by way of the one above: another case of the same name shows too.
void Aller(Liste_repertoires & liste, const std::wstring & parent, const std::wstring & chemin);

// While it lives the SOURCE directory is not the current one: a current directory can neither be renamed nor
// removed. Then what the SOURCE pane shows is current again, if it exists.
class Hors_de_source {
public:
    explicit Hors_de_source(Gestion_Fichiers & f);  // errors of the directory above
    ~Hors_de_source();
    Hors_de_source(const Hors_de_source &)             = delete;
    Hors_de_source & operator=(const Hors_de_source &) = delete;

private:
    Gestion_Fichiers & f_;
};

// The DESTINATION pane when it shows the SOURCE directory or something inside it, under whatever name; found
// while the directory is still there.
class Destination_incluse {
public:
    explicit Destination_incluse(Gestion_Fichiers & f);

    // What remains where it was shows the directory above, or the directory under its new name.
    void Remonter();
    void Suivre(const std::wstring & nom);

private:
    void Montrer(const std::wstring & chemin);

    Gestion_Fichiers &          f_;
    std::wstring                parent_;  // of the directory, as DESTINATION names it
    std::optional<std::wstring> reste_;   // from the directory on to what is shown; none when it is elsewhere
};
