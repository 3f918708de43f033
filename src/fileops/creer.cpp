#include "app/garde.h"
#include "app/globals.h"
#include "fileops/commandes.h"
#include "fileops/questions.h"
#include "fileops/repertoires.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/fichiers.h"

void Créer_Click() {
    Garder(L"CREER", [](Gestion_Fichiers & f) {
        if (variables.Confirme_commande && !Confirmer_repertoire(f, L"un répertoire sous ")) return;
        const std::wstring nom = Demander_nom(Question_nom_cree(Source_montree(f)), L"");
        if (nom.empty()) return;
        Creer_repertoire(Joindre(f.Répertoire_srce.Path(), nom));
        Perimer_repertoires();
    });
}
