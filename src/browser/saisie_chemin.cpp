#include "browser/saisie_chemin.h"

#include "app/fenetre_principale.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/routines.h"
#include "browser/panneau.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "search/nom_repertoire.h"
#include "search/recherche_repertoire.h"
#include "toolkit/boites.h"

namespace {
enum class Arrivee { faite, introuvable, abandonnee };

bool Relatif(const std::wstring & chemin) {
    if (chemin.empty() || chemin.front() == L'\\' || chemin.front() == L'/') return false;
    return chemin.size() < 2 || chemin[1] != L':';
}

// The path that the text means: what stands on the disk under that very spelling, or what is left without the quotes and
// blanks of a pasted text. A relative one starts from the SOURCE directory, even where that is too long to be current.
std::wstring Chemin_voulu(const Gestion_Fichiers & f, const std::wstring & texte) {
    const std::wstring chemin = Repertoire_existe(texte) ? texte : Chemin_saisi(texte);
    return Relatif(chemin) && !chemin.empty() ? Joindre(f.Répertoire_srce.Path(), chemin) : chemin;
}

// False when there is no such path.
bool Ouvrir_chemin(const Panneau & p, const std::wstring & chemin) {
    try {
        p.repertoire.Path(chemin);
        return true;
    } catch (const Erreur_execution & erreur) {
        if (erreur.numero != Numero::chemin_introuvable) throw;
        return false;
    }
}

int Demander_confirmation(const std::wstring & chemin) {
    Bip();
    return Message_boite(Majuscules(chemin) + L"\r\rEst-ce le chemin que vous désirez ?",
                         Boite::oui_non_annuler | Boite::question, titre_gestionnaire);
}

// Offers the directories of that name one after the other.
Arrivee Proposer(Gestion_Fichiers & f, const Panneau & p) {
    const std::wstring unite   = p.unite.Drive().substr(0, 2);
    const auto         trouves = Chercher_repertoire(f, unite, variables.Nom_cherche);
    if (!trouves) return Arrivee::abandonnee;
    Arrivee arrivee = Arrivee::introuvable;
    for (const std::wstring & chemin : *trouves) {
        // Removed since the disk was walked. Asked for each in its turn: a drive may take its time over each answer.
        if (!Repertoire_existe(chemin)) continue;
        arrivee           = Arrivee::abandonnee;
        variables.Reponse = Demander_confirmation(chemin);
        if (variables.Reponse == Reponse_boite::annuler) break;
        if (variables.Reponse != Reponse_boite::oui) continue;
        p.repertoire.Path(chemin);
        return Arrivee::faite;
    }
    return arrivee;
}

void Suivre_unite(const Panneau & p) {
    const std::wstring & chemin = p.repertoire.Path();
    if (Majuscule(p.unite.Drive().front()) == Majuscule(chemin.front())) return;
    p.unite.Refresh();  // the drive may have come since the list was read
    p.unite.Drive_sans_evenement(chemin);
}

void Remettre_chemin(const Panneau & p) { p.chemin.Text(p.repertoire.Path()); }

// The pane is where the user wanted it.
void Terminer(const Panneau & p) {
    // Showing the free space lets events run: nothing may begin before the focus is where it goes.
    const Garde garde;
    Suivre_unite(p);
    Remettre_chemin(p);  // a path that is open already changes nothing
    Retablir_fenetre();
    Afficher_espace_libre();
    p.fichiers.SetFocus();
}

void Aller(Gestion_Fichiers & f, const Panneau & p) {
    variables.Nom_cherche = p.chemin.Text();
    const Arrivee arrivee =
        Ouvrir_chemin(p, Chemin_voulu(f, variables.Nom_cherche)) ? Arrivee::faite : Proposer(f, p);
    if (arrivee == Arrivee::faite) return Terminer(p);
    Remettre_chemin(p);
    if (arrivee == Arrivee::abandonnee) return;
    Bip();
    Message_boite(L"Chemin ou nom de répertoire incorrect.", Boite::ok | Boite::exclamation,
                  titre_gestionnaire);
}

void Valider(const Panneau & p, const std::wstring & commande, wchar_t & caractere) {
    if (caractere != Touche::entree || variables.Garde) return;
    caractere = 0;
    Pieger(
        commande, [&] { Aller(Principale(), p); }, [&] { Remettre_chemin(p); });
}

void Chemin_srce_KeyPress(wchar_t & caractere) { Valider(Source(Principale()), L"CHEMIN SOURCE", caractere); }

void Chemin_dest_KeyPress(wchar_t & caractere) {
    Valider(Destination(Principale()), L"CHEMIN DESTINATION", caractere);
}

// What was typed and not confirmed would pass for the path of what the pane shows.
void Oublier_saisie(const Panneau & p) {
    if (Comparer_sans_casse(p.chemin.Text(), p.repertoire.Path()) != 0) Remettre_chemin(p);
}
}  // namespace

void Brancher_saisie_chemin(Gestion_Fichiers & f) {
    f.Chemin_srce.KeyPress  = Chemin_srce_KeyPress;
    f.Chemin_srce.LostFocus = [&f] { Oublier_saisie(Source(f)); };
    f.Chemin_dest.KeyPress  = Chemin_dest_KeyPress;
    f.Chemin_dest.LostFocus = [&f] { Oublier_saisie(Destination(f)); };
}
