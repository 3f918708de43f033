#pragma once
#include <optional>

struct Gestion_Fichiers;

// What became of one file.
enum class Copie {
    faite,
    vide,     // nothing to copy: no target was made
    ignoree,  // the user said no, or the target is the file itself
    arretee,  // cancelled or stopped: the command ends
};

// Whether the user is still to be asked before an existing target goes.
enum class Remplacement { a_demander, accorde };

// What an existing target makes of the file: `ignoree` or `arretee`, nothing when it is to be replaced. A
// target that is the source itself under another name is refused. Reponse as below.
std::optional<Copie> Traiter_cible_existante(const Gestion_Fichiers & f);

// Copies Chemin_source to Chemin_cible by blocks, with the stop button, the progress label and the gauge.
// Reponse: 6 go on, 7 file skipped, 2 the command ends. With `durable` the copy is on the disk when it
// returns `faite`. An existing target is replaced when the user agrees. An error leaves no partial target.
Copie Copier_fichier(Gestion_Fichiers & f, bool durable, Remplacement remplacement);

// The same, and a full diskette asks for the next one, on which the file is tried again: what was agreed for the
// first does not hold for it.
Copie Copier_sur_disquettes(Gestion_Fichiers & f, bool durable,
                            Remplacement remplacement = Remplacement::a_demander);
