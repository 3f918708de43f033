#include "app/garde.h"
#include "app/globals.h"
#include "fileops/commandes.h"
#include "fileops/confirmations.h"
#include "fileops/questions.h"
#include "fileops/repertoires.h"
#include "fileops/vidage.h"
#include "forms/gestion_fichiers.h"
#include "platform/fichiers.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"

namespace {
// False for one that is gone: reading it says so.
bool Est_lien(const std::wstring & repertoire) {
    return Repertoire_existe(repertoire) && (Lire_attributs(repertoire) & Attribut::lien) != 0;
}

// Deletes the files for good, if the user agrees; false when the command ends.
bool Effacer_contenu(Gestion_Fichiers & f) {
    const std::wstring question = L"Le répertoire contient des fichiers,\rvoulez-vous les effacer ?";
    variables.Reponse           = Demander(question, Boite::oui_non, titre_gestionnaire);
    if (variables.Reponse != Reponse_boite::oui) return false;
    f.Arret.Visible(true);
    const bool vide = Vider_repertoire(f.Répertoire_srce.Path(), [](const std::wstring & nom) {
        variables.Fichier_courant = nom;
        Application::Laisser_passer();
        return !variables.Arret_demande;
    });
    // A removal that is refused from here on is not this file's doing.
    variables.Fichier_courant.clear();
    return vide;
}

// Whether nothing that the user sees is left in the SOURCE directory.
bool Vider_source(Gestion_Fichiers & f) {
    f.Fichier_srce.Refresh();
    f.Répertoire_srce.Refresh();
    if (f.Fichier_srce.ListCount() > 0 && !Effacer_contenu(f)) return false;
    const int sous_repertoires = f.Répertoire_srce.ListCount();
    if (sous_repertoires == 0) return true;
    Message_boite(Refus_sous_repertoires(sous_repertoires), Boite::ok | Boite::arret, titre_gestionnaire);
    return false;
}
}  // namespace

void Supprimer_Click() {
    Garder(L"SUPPRIMER", [](Gestion_Fichiers & f) {
        const std::wstring repertoire = f.Répertoire_srce.Path();
        const std::wstring parent     = Parent_source(f);
        if (parent.empty() || !Confirmer_repertoire(f, L"le répertoire ")) return;
        const Hors_de_source ailleurs(f);
        // What a link leads to belongs to another directory: the link alone goes.
        if (!Est_lien(repertoire) && !Vider_source(f)) return;
        Destination_incluse destination(f);
        Retirer_repertoire(repertoire);
        Perimer_repertoires();
        destination.Remonter();
        f.Répertoire_srce.Path(parent);
    });
}
