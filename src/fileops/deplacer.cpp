#include "app/garde.h"
#include "app/globals.h"
#include "browser/selection.h"
#include "fileops/commandes.h"
#include "fileops/confirmations.h"
#include "fileops/copie.h"
#include "fileops/curseur.h"
#include "fileops/destination.h"
#include "forms/gestion_fichiers.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "recycle/corbeille.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"

namespace {
enum class Suite { continuer, terminer };

struct Deplacement {
    Gestion_Fichiers & f;
    Parcours           parcours;
    Destination        destination;
    Curseur            curseur;
    bool               premier = true;  // free space is looked at before the first copy
};

void Refuser_meme_repertoire() {
    Bip();
    Message_boite(L"Le répertoire 'DESTINATION' est le même que le répertoire 'SOURCE' ; il est interdit de "
                  L"déplacer un "
                  L"fichier sur lui-même.",
                  Boite::ok | Boite::exclamation, variables.Commande_en_cours);
}

bool Meme_unite(const std::wstring & a, const std::wstring & b) {
    return Majuscules(a.substr(0, 1)) == Majuscules(b.substr(0, 1));
}

// Another drive: the source goes only once its copy is whole and on the disk.
Copie Transporter(Deplacement & d, Remplacement remplacement) {
    if (d.premier && !Verifier_espace(d.f, d.parcours.Total())) return Copie::arretee;
    d.premier = false;
    if ((Lire_attributs(variables.Chemin_source) & Attribut::lecture) != 0) {
        throw Erreur_execution(Numero::acces_fichier, 0, variables.Chemin_source);
    }
    const Copie copie = Copier_sur_disquettes(d.f, true, remplacement);
    if (copie == Copie::faite) Supprimer_fichier(variables.Chemin_source);
    return copie;
}

// A directory of that name, or a file protected against writing, is not replaced by a renaming either.
void Refuser_cible_protegee(bool fichier) {
    const bool protege = fichier && (Lire_attributs(variables.Chemin_cible) & Attribut::lecture) != 0;
    if (protege || Repertoire_existe(variables.Chemin_cible)) {
        throw Erreur_execution(Numero::acces_fichier, 0, variables.Chemin_cible);
    }
}

// False when one drive letter leads to two volumes, between which nothing is renamed.
bool Renommer(bool remplace) {
    try {
        if (remplace)
            Remplacer_fichier(variables.Chemin_source, variables.Chemin_cible);
        else
            Renommer_fichier(variables.Chemin_source, variables.Chemin_cible);
        return true;
    } catch (const Erreur_execution & erreur) {
        if (erreur.numero != Numero::autre_disque) throw;
        return false;
    }
}

// The same drive: one renaming. A file of that name is replaced when the user agrees.
Copie Renommer_vers_destination(Deplacement & d) {
    const bool existe = Fichier_existe(variables.Chemin_cible);
    variables.Reponse = Reponse_boite::oui;
    if (existe) {
        if (const auto copie = Traiter_cible_existante(d.f)) return *copie;
    }
    Refuser_cible_protegee(existe);
    if (!Renommer(existe)) {
        const Copie copie = Transporter(d, existe ? Remplacement::accorde : Remplacement::a_demander);
        if (copie != Copie::faite) return copie;
    }
    if (variables.Mode_resultats) return Copie::faite;
    if (!d.curseur.Retirer()) variables.Arret_demande = true;  // nothing left to move
    variables.Index_a_reprendre = d.curseur.Index();
    return Copie::faite;
}

Suite Deplacer_un_fichier(Deplacement & d) {
    const std::wstring & repertoire = d.parcours.Courant().repertoire;
    if (d.destination.Est(repertoire)) {
        Refuser_meme_repertoire();
        return Suite::terminer;
    }
    if (variables.Confirme_commande) {
        Confirmer_commande(d.f, repertoire);
        if (variables.Reponse == Reponse_boite::non) return Suite::continuer;
        if (variables.Reponse == Reponse_boite::annuler) return Suite::terminer;
    }
    Exiger_hors_corbeille(variables.Chemin_source);
    d.f.Arret.Visible(true);
    Application::Laisser_passer();
    const bool  meme  = Meme_unite(variables.Chemin_source, variables.Chemin_cible);
    const Copie copie = meme ? Renommer_vers_destination(d) : Transporter(d, Remplacement::a_demander);
    d.destination.Actualiser();
    return copie == Copie::arretee ? Suite::terminer : Suite::continuer;
}
}  // namespace

void Déplacer_Click() {
    Garder(L"DEPLACER", [](Gestion_Fichiers & f) {
        if (f.Ligne_message.Caption().empty()) return Signaler_absence_selection();
        Deplacement d{f, Parcours(f), Destination(f),
                      Curseur(f.Fichier_srce.ListCount(), f.Fichier_srce.ListIndex())};
        while (d.parcours.Suivant()) {
            if (Deplacer_un_fichier(d) == Suite::terminer || variables.Arret_demande) break;
        }
    });
}
