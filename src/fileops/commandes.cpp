#include "fileops/commandes.h"

#include "forms/gestion_fichiers.h"

void Brancher_commandes(Gestion_Fichiers & f) {
    f.Copier.Brancher(Copier_Click);
    f.Déplacer.Brancher(Déplacer_Click);
}
