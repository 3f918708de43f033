#pragma once

struct Gestion_Fichiers;

// The row of buttons that the user has programmed in the settings file, and the button that shows the next ones.

void Brancher_boutons(Gestion_Fichiers & f);
// Shows the first group; places without an entry stay hidden, and so does Bouton_suite when one group is all there is.
void Charger_boutons(Gestion_Fichiers & f);
