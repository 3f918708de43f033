#include "app/garde.h"
#include "app/globals.h"
#include "app/lignes_commande.h"
#include "fileops/commandes.h"
#include "fileops/lancement.h"
#include "platform/programmes.h"

void Visualiser_Click() {
    Garder(L"VISUALISER", [](const Gestion_Fichiers & f) {
        if (!Preparer_lancement(f)) return;
        const std::wstring visualiseur = variables.Visualiseur;
        Lancer_par_listes(f, Citer_programme(visualiseur, Programme_existe), [&](const std::wstring & liste) {
            return Ligne_visualiseur(visualiseur, liste, Programme_existe);
        });
    });
}
