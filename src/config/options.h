#pragma once

struct Gestion_Fichiers;

// The options window: what the user chose is shown, changed, saved and put in force.
void Brancher_options(Gestion_Fichiers & f);
