#include "fileops/commandes.h"

#include "app/globals.h"
#include "forms/gestion_fichiers.h"

namespace {
std::function<void(int &, int)> Sur_suppr(void (*commande)()) {
    return [commande](int & touche, int) {
        if (touche != Touche::suppr) return;
        touche = 0;
        commande();
    };
}

// In directory mode files are not selected, and the key has nothing to say about that.
void Effacer_du_clavier() {
    if (!variables.Mode_repertoire) Effacer_Click();
}
}  // namespace

void Brancher_commandes(Gestion_Fichiers & f) {
    f.Copier.Brancher(Copier_Click);
    f.Déplacer.Brancher(Déplacer_Click);
    f.Effacer.Brancher(Effacer_Click);
    f.Supprimer.Brancher(Supprimer_Click);
    f.Renommer.Brancher(Renommer_Click);
    f.Créer.Brancher(Créer_Click);
    f.Editer.Brancher(Editer_Click);
    f.Visualiser.Brancher(Visualiser_Click);
    f.Exécuter.Brancher(Exécuter_Click);
    f.Imprimer.Brancher(Imprimer_Click);
    f.Répertoire_srce.KeyDown = Sur_suppr(Supprimer_Click);
    f.Fichier_srce.KeyDown    = Sur_suppr(Effacer_du_clavier);
    f.Fichier_sél.KeyDown     = Sur_suppr(Effacer_du_clavier);
}
