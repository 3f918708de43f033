#include "app/garde.h"
#include "app/globals.h"
#include "app/lancement.h"
#include "app/lignes_commande.h"
#include "app/repertoire_lancement.h"
#include "browser/selection.h"
#include "fileops/commandes.h"
#include "fileops/lancement.h"
#include "fileops/questions.h"
#include "fileops/repertoires.h"
#include "forms/gestion_fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

namespace {
void Signaler_non_executable() {
    Bip();
    Message_boite(L"Fichier non exécutable.", Boite::ok | Boite::exclamation, titre_gestionnaire);
}
}  // namespace

void Executer(const Gestion_Fichiers & f) {
    if (!Preparer_lancement(f)) return;
    Parcours p(f);
    if (!p.Suivant() || !Accepter_fichier(f, p.Courant().repertoire)) return;
    if (!Est_executable(p.Courant().nom)) return Signaler_non_executable();
    const std::wstring chemin = Chemin_a_lancer(variables.Chemin_source);
    if (chemin.empty()) return;
    // A program may write or erase where it is started: nowhere but there.
    const std::wstring repertoire = Repertoire_de_lancement(f.Répertoire_srce.Path());
    if (repertoire.empty()) return;
    const std::wstring invite = Question_parametres(Majuscules(variables.Fichier_courant), Source_montree(f));
    // A blank stands for no parameter: an empty answer is that of a prompt given up.
    const std::wstring parametres = Demander_texte(invite, variables.Commande_en_cours, L" ");
    if (parametres.empty()) return;
    Lancer(Ligne_execution(chemin, parametres), repertoire);
}

void Exécuter_Click() { Garder(L"EXECUTER", Executer); }
