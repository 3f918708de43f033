#include "app/errors.h"

#include "app/fenetres.h"
#include "app/globals.h"
#include "app/libelles_erreur.h"
#include "app/routines.h"
#include "forms/gestion_fichiers.h"
#include "platform/erreur.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

namespace {
// The network place that a path is on: its server and its share.
std::wstring Partage(const std::wstring & chemin) {
    const std::size_t serveur = chemin.find(L'\\', 2);
    return chemin.substr(0, serveur == std::wstring::npos ? serveur : chemin.find(L'\\', serveur + 1));
}

// Copies fill the DESTINATION disk; the other commands write elsewhere.
bool Ecrit_en_destination() {
    return variables.Commande_en_cours == L"COPIER" || variables.Commande_en_cours == L"DEPLACER";
}

// The drive that a message names: that of the path that failed, but for a copy that fills its disk.
std::wstring Unite_en_cause(const Erreur_execution & erreur, const Gestion_Fichiers & f) {
    if (erreur.numero == Numero::disque_plein && Ecrit_en_destination())
        return Majuscules(f.Unité_dest.Drive().substr(0, 2));
    if (erreur.chemin.starts_with(L"\\\\")) return Majuscules(Partage(erreur.chemin));
    if (erreur.chemin.size() >= 2 && erreur.chemin[1] == L':') return Majuscules(erreur.chemin.substr(0, 2));
    return Majuscules(f.Unité_srce.Drive().substr(0, 2));
}

Contexte_erreur Contexte(const Erreur_execution & erreur, const Gestion_Fichiers & f) {
    Contexte_erreur contexte;
    contexte.numero          = erreur.numero;
    contexte.texte           = erreur.Texte();
    contexte.commande        = variables.Commande_en_cours;
    contexte.fichier         = Majuscules(variables.Fichier_courant);
    contexte.source          = f.Répertoire_srce.Path();
    contexte.destination     = f.Répertoire_dest.Path();
    contexte.editeur         = variables.Editeur;
    contexte.visualiseur     = variables.Visualiseur;
    contexte.unite           = Unite_en_cause(erreur, f);
    contexte.disquette       = Ecrit_en_destination() && Est_disquette(f.Unité_dest.Drive());
    contexte.mode_repertoire = variables.Mode_repertoire;
    return contexte;
}
}  // namespace

void Signaler_erreur(const Erreur_execution & erreur) {
    const Message_erreur message = Libelle_erreur(Contexte(erreur, Principale()));
    Bip();
    switch (message.genre) {
    case Genre_message::avertissement:
        Message_boite(message.texte, Boite::ok | Boite::exclamation, message.titre);
        break;
    case Genre_message::question_disquette: {
        const int choix = Message_boite(message.texte, Boite::ok_annuler | Boite::exclamation, message.titre);
        variables.Reponse = choix == Reponse_boite::ok ? Reponse_boite::oui : Reponse_boite::annuler;
        break;
    }
    case Genre_message::rapport: Message_boite(message.texte, Boite::ok | Boite::arret, message.titre); break;
    }
}
