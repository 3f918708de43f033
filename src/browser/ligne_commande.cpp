#include "browser/ligne_commande.h"

#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/lancement.h"
#include "app/lignes_commande.h"
#include "app/repertoire_lancement.h"
#include "forms/gestion_fichiers.h"
#include "platform/erreur.h"
#include "platform/programmes.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

#include <algorithm>

namespace {
constexpr int max_historique = 30;

// The entry of the history that the arrows gave last; the number of entries stands for the bare prompt after the newest.
int rappel = 0;

std::wstring Invite(const Gestion_Fichiers & f) { return f.Répertoire_srce.Path() + L">"; }

void Ecrire(Gestion_Fichiers & f, const std::wstring & commande) {
    f.Ligne_commande.Text(Invite(f) + commande);
    f.Ligne_commande.Caret_a_la_fin();
}

void Memoriser(Liste_combinee & ligne, const std::wstring & commande) {
    while (ligne.ListCount() >= max_historique) ligne.RemoveItem(0);
    ligne.AddItem(commande);
    rappel = ligne.ListCount();
}

void Rappeler(Gestion_Fichiers & f, int pas) {
    const int nombre = f.Ligne_commande.ListCount();
    const int rang   = std::clamp(rappel + pas, 0, nombre);
    if (rang == rappel) return;
    rappel = rang;
    Ecrire(f, rang == nombre ? std::wstring() : f.Ligne_commande.List(rang));
}

// False when there is no such program.
bool Lancer_si_present(const std::wstring & ligne, const std::wstring & repertoire) {
    try {
        Lancer(ligne, repertoire);
        return true;
    } catch (const Erreur_execution & erreur) {
        if (erreur.numero != Numero::fichier_introuvable) throw;
        return false;
    }
}

void Signaler_introuvable(const Gestion_Fichiers & f, const std::wstring & commande) {
    Bip();
    Message_boite(L"Fichier " + Majuscules(commande) + L" ou .EXE introuvable dans le répertoire :\r" +
                      Majuscules(f.Répertoire_srce.Path()),
                  Boite::ok | Boite::exclamation, titre_gestionnaire);
}

void Executer(Gestion_Fichiers & f, const std::wstring & commande) {
    Memoriser(f.Ligne_commande, commande);
    const std::wstring repertoire = Repertoire_de_lancement(f.Répertoire_srce.Path());
    if (repertoire.empty()) return;
    const std::wstring ligne = Ligne_saisie(commande, Programme_existe);
    if (!Lancer_si_present(ligne, repertoire) && !Lancer_si_present(Avec_com(ligne), repertoire))
        return Signaler_introuvable(f, commande);
    // What is typed next takes the command's place, and Enter runs it again.
    f.Ligne_commande.Selectionner(static_cast<int>(f.Ligne_commande.Text().find(L'>') + 1));
}

void Valider() {
    Gestion_Fichiers & f        = Principale();
    const std::wstring commande = Commande_saisie(f.Ligne_commande.Text());
    if (variables.Garde || commande.empty()) return;
    const auto rendre = [&f] { f.Croiser.Enabled(true); };
    Pieger(
        commande,
        [&] {
            Executer(f, commande);
            rendre();
        },
        rendre);
    variables.Fichier_courant.clear();
}

void Prompt_Click() {
    Gestion_Fichiers & f = Principale();
    if (variables.Garde || f.Ligne_commande.Visible()) return;
    rappel = f.Ligne_commande.ListCount();
    f.Ligne_commande.Visible(true);
    f.Ligne_commande.SetFocus();
    Ecrire(f, {});
}

void Ligne_commande_KeyDown(int & touche, int majuscules) {
    Gestion_Fichiers & f = Principale();
    if (f.Ligne_commande.Deroule()) return;
    const bool fleche = touche == Touche::haut || touche == Touche::bas;
    if (fleche && majuscules != 0) return;
    switch (touche) {
    case Touche::entree: Valider(); break;
    case Touche::haut: Rappeler(f, -1); break;
    case Touche::bas: Rappeler(f, 1); break;
    // Losing the focus hides the line.
    case Touche::echap: f.Répertoire_srce.SetFocus(); break;
    default: return;
    }
    touche = 0;
}

// The entries are commands alone: without the prompt, the chosen one would not run.
void Ligne_commande_Click() {
    Gestion_Fichiers & f = Principale();
    rappel               = f.Ligne_commande.ListIndex();
    Ecrire(f, f.Ligne_commande.List(rappel));
}

void Ligne_commande_LostFocus() { Principale().Ligne_commande.Visible(false); }
}  // namespace

void Brancher_ligne_commande(Gestion_Fichiers & f) {
    f.Prompt.Brancher(Prompt_Click);
    f.Ligne_commande.KeyDown   = Ligne_commande_KeyDown;
    f.Ligne_commande.Click     = Ligne_commande_Click;
    f.Ligne_commande.LostFocus = Ligne_commande_LostFocus;
}
