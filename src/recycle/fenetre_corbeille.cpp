#include "recycle/fenetre_corbeille.h"

void Brancher_corbeille(Gestion_Fichiers & f) { (void)f; }
