#include "fileops/copie.h"

#include "app/errors.h"
#include "app/globals.h"
#include "app/routines.h"
#include "fileops/confirmations.h"
#include "fileops/jauge.h"
#include "fileops/jauge_montree.h"
#include "forms/gestion_fichiers.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "platform/transfert.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"
#include "toolkit/fin_de_session.h"

namespace {
Copie Conclure(Copie copie, int reponse) {
    variables.Reponse = reponse;
    return copie;
}

void Refuser_copie_sur_soi() {
    const bool deplace = variables.Commande_en_cours == L"DEPLACER";
    Bip();
    Message_boite(L"Le fichier " + Majuscules(variables.Fichier_courant) + L"\rne peut être " +
                      (deplace ? L"déplacé" : L"copié") + L" sur lui-même.",
                  Boite::ok | Boite::exclamation, variables.Commande_en_cours);
}

// Moves the file block by block; false when the user stopped it.
bool Transferer(Gestion_Fichiers & f, Transfert & transfert) {
    Avance avance(transfert.Longueur());
    Montrer_jauge(f, avance, avance.Visible());
    for (;;) {
        if (variables.Arret_demande) return false;
        if (!transfert.Bloc()) return true;
        if (avance.Visible()) Avancer_jauge(f, avance, Transfert::taille_bloc);
        Application::Laisser_passer();
    }
}
}  // namespace

std::optional<Copie> Traiter_cible_existante(const Gestion_Fichiers & f) {
    if (Meme_fichier(variables.Chemin_source, variables.Chemin_cible)) {
        Refuser_copie_sur_soi();
        return Conclure(Copie::ignoree, Reponse_boite::non);
    }
    Confirmer_remplacement(f);
    if (variables.Reponse == Reponse_boite::non) return Copie::ignoree;
    if (variables.Reponse == Reponse_boite::annuler) return Copie::arretee;
    return std::nullopt;
}

Copie Copier_fichier(Gestion_Fichiers & f, bool durable, Remplacement remplacement) {
    variables.Reponse   = Reponse_boite::oui;
    const bool existait = Fichier_existe(variables.Chemin_cible);
    if (existait && remplacement == Remplacement::a_demander) {
        if (const auto copie = Traiter_cible_existante(f)) return *copie;
    }
    // A source that cannot be read must not cost the target that it was to replace.
    Transfert                       transfert(variables.Chemin_source);
    const Abandon_en_fin_de_session abandon([&transfert] { transfert.Abandonner(); });
    if (existait) Supprimer_fichier(variables.Chemin_cible);
    if (transfert.Longueur() == 0) return Copie::vide;
    f.Arret.Visible(true);
    Afficher_en_cours(f);
    transfert.Creer_cible(variables.Chemin_cible, durable);
    if (!Transferer(f, transfert)) {
        transfert.Abandonner();
        return Conclure(Copie::arretee, Reponse_boite::annuler);
    }
    transfert.Terminer(durable);
    return Copie::faite;
}

Copie Copier_sur_disquettes(Gestion_Fichiers & f, bool durable, Remplacement remplacement) {
    for (;;) {
        std::optional<Erreur_execution> pleine;
        try {
            return Copier_fichier(f, durable, remplacement);
        } catch (const Erreur_execution & erreur) {
            if (erreur.numero != Numero::disque_plein || !Est_disquette(f.Unité_dest.Drive())) throw;
            pleine = erreur;
        }
        remplacement = Remplacement::a_demander;
        Signaler_erreur(*pleine);
        if (variables.Reponse != Reponse_boite::oui) return Copie::arretee;
    }
}
