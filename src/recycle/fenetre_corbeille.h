#pragma once

struct Gestion_Fichiers;

// The window of the recycle bin: what it holds, restoring, its two limits.
void Brancher_corbeille(Gestion_Fichiers & f);
