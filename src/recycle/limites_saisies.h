#pragma once
#include <string>

struct Corbeille;

// The two limits of the recycle bin as its window edits them.

void Brancher_champs_limites(Corbeille & w);  // digits alone can be typed or pasted
void Montrer_limites(Corbeille & w);          // those in force
// Whether what the fields hold can be saved; otherwise the user is told what is allowed and the field takes the focus.
bool Verifier_limites(Corbeille & w);
// Writes one limit, or none, to the settings and puts it in force; the size is kept when both fields are filled. Error 75: what is
// in force is what the settings file says.
void Enregistrer_limites(Corbeille & w);
// Undoes Enregistrer_limites for a bin that was to be destroyed and was not.
void Rendre_limites(Corbeille & w);
// Puts in force what the settings file says. One that cannot be read says nothing: those in force stay, and its error is raised.
void Relire_limites();
