#pragma once

struct Gestion_Fichiers;

// The main window's search command: asks for the patterns, shows the results, hands the chosen ones back.
void Brancher_chercher(Gestion_Fichiers & f);
