#include "browser/mode.h"

#include "app/fenetre_principale.h"
#include "app/fenetres.h"
#include "app/globals.h"
#include "browser/selection.h"
#include "forms/gestion_fichiers.h"

namespace {
void Mode_fichier(Gestion_Fichiers & f) {
    f.Mode.Caption(L" &Mode répertoire");
    f.Caption(L"Gestionnaire de fichiers  (Mode fichier)   ");
    f.Copier.Visible(true);
    f.Effacer.Visible(true);
    f.Créer.Visible(false);
    f.Supprimer.Visible(false);
}

void Mode_repertoire(Gestion_Fichiers & f) {
    f.Mode.Caption(L" &Mode fichier");
    f.Caption(L"Gestionnaire de fichiers  (Mode répertoire)");
    f.Créer.Visible(true);
    f.Supprimer.Visible(true);
    f.Copier.Visible(false);
    f.Effacer.Visible(false);
    f.Renommer.Enabled(true);
    Vider_selection(f);
}

void Mode_Click() {
    if (variables.Garde) return;
    Gestion_Fichiers & f      = Principale();
    variables.Mode_repertoire = !variables.Mode_repertoire;
    if (variables.Mode_repertoire)
        Mode_repertoire(f);
    else
        Mode_fichier(f);
    // The caption that the window takes again after having been an icon.
    f.Titre_sauve = f.Caption();
    for (Bouton_commande * bouton :
         {&f.Déplacer, &f.Imprimer, &f.Editer, &f.Exécuter, &f.Chercher, &f.Visualiser, &f.Sélecte}) {
        bouton->Enabled(!variables.Mode_repertoire);
    }
    Retablir_fenetre();
}
}  // namespace

void Brancher_mode(Gestion_Fichiers & f) { f.Mode.Brancher(Mode_Click); }
