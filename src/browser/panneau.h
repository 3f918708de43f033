#pragma once
#include "forms/gestion_fichiers.h"

// The controls of one pane.
struct Panneau {
    Liste_unites &      unite;
    Liste_repertoires & repertoire;
    Liste_fichiers &    fichiers;
    Champ_texte &       chemin;
};

inline Panneau Source(Gestion_Fichiers & f) {
    return {f.Unité_srce, f.Répertoire_srce, f.Fichier_srce, f.Chemin_srce};
}

inline Panneau Destination(Gestion_Fichiers & f) {
    return {f.Unité_dest, f.Répertoire_dest, f.Fichier_dest, f.Chemin_dest};
}
