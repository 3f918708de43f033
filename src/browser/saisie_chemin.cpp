#include "browser/saisie_chemin.h"

void Brancher_saisie_chemin(Gestion_Fichiers & f) { (void)f; }
