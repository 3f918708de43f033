#include "app/garde.h"
#include "app/globals.h"
#include "browser/selection.h"
#include "fileops/commandes.h"
#include "fileops/confirmations.h"
#include "fileops/copie.h"
#include "fileops/destination.h"
#include "fileops/questions.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

namespace {
enum class Suite { continuer, terminer };

// A name for the copy of a file in its own directory; an answer that names the file itself is asked for
// again. False when the user gives none. Error 64 for anything but a bare name.
bool Demander_nom_copie(const Gestion_Fichiers & f) {
    const std::wstring original = variables.Chemin_source;
    const std::wstring invite   = Question_nom_copie(Majuscules(variables.Fichier_courant));
    for (;;) {
        Bip();
        const std::wstring nom = Demander_texte(invite, variables.Commande_en_cours, L"");
        if (nom.empty()) return false;
        if (!Nom_simple(nom)) throw Erreur_execution(Numero::nom_incorrect, 0, nom);
        const std::wstring cible = Joindre(f.Répertoire_dest.Path(), nom);
        if (Meme_fichier(original, cible)) continue;
        variables.Fichier_courant = nom;
        variables.Chemin_cible    = cible;
        return true;
    }
}

Suite Copier_un_fichier(Gestion_Fichiers & f, const Parcours & p, Destination & destination) {
    const std::wstring & repertoire = p.Courant().repertoire;
    if (destination.Est(repertoire) && !Demander_nom_copie(f)) return Suite::terminer;
    if (variables.Confirme_commande) {
        Confirmer_commande(f, repertoire);
        if (variables.Reponse == Reponse_boite::non) return Suite::continuer;
        if (variables.Reponse == Reponse_boite::annuler) return Suite::terminer;
    }
    Copier_sur_disquettes(f, false);
    destination.Actualiser();
    if (variables.Arret_demande) variables.Reponse = Reponse_boite::annuler;
    return variables.Reponse == Reponse_boite::annuler ? Suite::terminer : Suite::continuer;
}
}  // namespace

void Copier_Click() {
    Garder(L"COPIER", [](Gestion_Fichiers & f) {
        if (f.Ligne_message.Caption().empty()) return Signaler_absence_selection();
        Parcours    p(f);
        Destination destination(f);
        if (!Verifier_espace(f, p.Total())) return;
        while (p.Suivant()) {
            if (Copier_un_fichier(f, p, destination) == Suite::terminer) break;
        }
    });
}
