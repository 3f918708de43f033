#include "app/lancement.h"

#include "app/fenetres.h"
#include "app/globals.h"
#include "fileops/lignes_commande.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/programmes.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

void Lancer(const std::wstring & ligne, const std::wstring & repertoire) {
    try {
        const Repertoire_de_travail travail(repertoire.empty() ? Principale().Répertoire_srce.Path()
                                                               : repertoire);
        variables.Tache = Demarrer(Ligne_sure(ligne));
    } catch (const Erreur_execution &) {
        // What could not be started is the program, whatever file it was to be given.
        variables.Fichier_courant = Nom_du_chemin(Programme_de_la_ligne(ligne));
        throw;
    }
}

std::wstring Chemin_pour(const std::wstring & programme, const std::wstring & chemin) {
    const auto convient = [&](const std::wstring & nom) {
        return !nom.empty() && Tient_en_ansi(nom) && !Serait_developpe(programme, nom);
    };
    if (convient(chemin)) return chemin;
    const std::wstring court = Chemin_court(chemin);
    if (convient(court)) return court;
    const std::wstring motif = Tient_en_ansi(chemin)
                                   ? L"des '%' que l'interpréteur de commandes remplacerait"
                                   : L"des caractères qui ne peuvent pas être transmis à un programme";
    Bip();
    Message_boite(L"Le chemin du fichier " + Majuscules(Nom_du_chemin(chemin)) + L" comporte " + motif +
                      L" :\rrenommez celui-ci et relancez l'opération.",
                  Boite::ok | Boite::exclamation, titre_gestionnaire);
    return {};
}
