#include "app/lancement.h"

#include "app/fenetres.h"
#include "app/globals.h"
#include "forms/gestion_fichiers.h"
#include "platform/programmes.h"

void Lancer(const std::wstring & ligne, const std::wstring & repertoire) {
    const Repertoire_de_travail travail(repertoire.empty() ? Principale().Répertoire_srce.Path()
                                                           : repertoire);
    variables.Tache = Demarrer(ligne);
}
