#pragma once

struct Gestion_Fichiers;

// Typed paths: Enter in a pane's path field takes the pane there, with a whole-drive lookup of a bare
// directory name.
void Brancher_saisie_chemin(Gestion_Fichiers & f);
