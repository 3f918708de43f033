#include "app/garde.h"
#include "app/globals.h"
#include "browser/selection.h"
#include "fileops/commandes.h"
#include "fileops/confirmations.h"
#include "fileops/destination.h"
#include "fileops/questions.h"
#include "fileops/repertoires.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/fichiers.h"
#include "platform/textes.h"
#include "recycle/corbeille.h"
#include "toolkit/boites.h"

namespace {
// False when the command ends.
bool Renommer_un_fichier(Gestion_Fichiers & f, const std::wstring & repertoire, Destination & destination) {
    if (variables.Confirme_commande) {
        Confirmer_commande(f, repertoire);
        if (variables.Reponse != Reponse_boite::oui) return false;
    }
    Exiger_hors_corbeille(variables.Chemin_source);
    // Search results are not spelled as the disk spells them.
    const std::wstring actuel  = Lire_entree(variables.Chemin_source).nom;
    const std::wstring nouveau = Demander_nom(Question_nouveau_nom_fichier(Majuscules(actuel)), actuel);
    if (nouveau.empty()) return false;
    Renommer_fichier(variables.Chemin_source, Joindre(repertoire, nouveau));
    if (destination.Est(repertoire) || variables.Destination_perimee) {
        Tenter([&] { f.Fichier_dest.Refresh(); });
    }
    return true;
}

void Renommer_fichiers() {
    Garder(L"RENOMMER", [](Gestion_Fichiers & f) {
        if (f.Ligne_message.Caption().empty()) return Signaler_absence_selection();
        Parcours    p(f);
        Destination destination(f);
        while (p.Suivant() && Renommer_un_fichier(f, p.Courant().repertoire, destination)) {
        }
    });
}

void Renommer_repertoire() {
    Garder(L"RENOMMER", [](Gestion_Fichiers & f) {
        if (variables.Confirme_commande && !Confirmer_repertoire(f, L"le répertoire ")) return;
        const std::wstring repertoire = f.Répertoire_srce.Path();
        const std::wstring parent     = Parent_source(f);
        if (parent.empty()) return;
        const std::wstring nom = Demander_nom(Question_nouveau_nom_repertoire(Source_montree(f)),
                                              std::wstring(Nom_du_chemin(repertoire)));
        if (nom.empty()) return;
        const Hors_de_source ailleurs(f);
        Destination_incluse  destination(f);
        Perimer_repertoires();
        Renommer_repertoire_suivi(repertoire, Joindre(parent, nom));
        destination.Suivre(nom);
        Aller(f.Répertoire_srce, parent, Joindre(parent, nom));
    });
}
}  // namespace

void Renommer_Click() { variables.Mode_repertoire ? Renommer_repertoire() : Renommer_fichiers(); }
