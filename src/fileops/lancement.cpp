#include "fileops/lancement.h"

#include "app/globals.h"
#include "app/lancement.h"
#include "app/lignes_commande.h"
#include "browser/selection.h"
#include "fileops/confirmations.h"
#include "forms/gestion_fichiers.h"
#include "platform/fichiers.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"

bool Preparer_lancement(const Gestion_Fichiers & f) {
    const std::wstring source = f.Répertoire_srce.Path();
    if (source.empty()) return false;
    if (f.Ligne_message.Caption().empty()) {
        Signaler_absence_selection();
        return false;
    }
    Changer_repertoire(source);
    return true;
}

bool Accepter_fichier(const Gestion_Fichiers & f, const std::wstring & repertoire) {
    if (!variables.Confirme_commande) return true;
    Confirmer_commande(f, repertoire);
    return variables.Reponse == Reponse_boite::oui;
}

void Lancer_par_listes(const Gestion_Fichiers & f, const std::wstring & programme,
                       const std::function<std::wstring(const std::wstring &)> & ligne) {
    Groupe_fichiers groupe(programme);
    Parcours        p(f);
    while (p.Suivant()) {
        if (!Accepter_fichier(f, p.Courant().repertoire)) return;
        const std::wstring chemin = Chemin_pour(programme, variables.Chemin_source);
        if (chemin.empty()) return;
        if (const auto pleine = groupe.Ajouter(chemin)) Lancer_installe(ligne(*pleine));
        Application::Laisser_passer();
    }
    if (!groupe.Liste().empty()) Lancer_installe(ligne(groupe.Liste()));
}
