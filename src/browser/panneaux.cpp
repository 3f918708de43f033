#include "browser/panneaux.h"

#include "app/fenetre_principale.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/routines.h"
#include "browser/motif.h"
#include "browser/panneau.h"
#include "browser/selection.h"
#include "forms/gestion_fichiers.h"
#include "platform/fichiers.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"

#include <utility>

namespace {
// The drive list back on the drive of what its pane still shows.
void Remettre_unite(const Panneau & p) { p.unite.Drive_sans_evenement(p.repertoire.Path()); }

void Suivre_repertoire(const Panneau & p) {
    p.fichiers.Suivre(p.repertoire.Path(), p.repertoire.Prendre_fichiers());
    p.chemin.Text(p.repertoire.Path());
}

// Opens the current entry of a directory list. The pane is read from disk even when it stays where it was:
// that is how a changed diskette is seen. Both file lists lose their selection; search results keep theirs, on which
// a command is still to work, while a DESTINATION is looked for.
void Ouvrir_entree(const Panneau & p, const Panneau & autre) {
    const std::wstring avant = p.repertoire.Path();
    p.repertoire.Path(p.repertoire.List(p.repertoire.ListIndex()));
    if (p.repertoire.Path() == avant) {
        p.repertoire.ListIndex(-1);
        p.repertoire.Refresh();
        Appliquer_motif(p.fichiers);
        Tenter([&] { Appliquer_motif(autre.fichiers); });
    }
    p.chemin.Text(p.repertoire.Path());
    if (variables.Mode_resultats && &p.repertoire == &Principale().Répertoire_dest) return;
    Fichier_srce_PathChange();
}

// Runs a directory click unless it is one already; the flag is down again on every way out.
void Une_fois(bool & en_cours, const std::function<void()> & corps) {
    if (std::exchange(en_cours, true)) return;
    corps();
    en_cours = false;
}

void Selectionner_premier(Gestion_Fichiers & f) {
    if (f.Fichier_srce.ListCount() >= 1 && !variables.Mode_repertoire) f.Fichier_srce.Selected(0, true);
}

void Unité_dest_Change() {
    const Panneau p = Destination(Principale());
    Pieger(
        L"UNITE DESTINATION",
        [&] {
            p.repertoire.Path(p.unite.Drive());
            Afficher_espace_libre();
        },
        [&] { Remettre_unite(p); });
}

// Enter in a drive list forces the change to be treated, even of the drive chosen already.
void Valider_unite(const Panneau & p, const std::wstring & commande, wchar_t & caractere,
                   void (*changement)()) {
    if (caractere != Touche::entree) return;
    caractere = 0;
    Pieger(
        commande,
        [&] {
            const std::wstring avant = p.unite.Drive();
            p.unite.Drive(p.unite.List(p.unite.ListIndex()));
            // A drive that really changed has told so already. The same one is read again, another medium included.
            if (p.unite.Drive() != avant) return;
            p.repertoire.Path(p.unite.Drive());
            p.repertoire.Refresh();
            Appliquer_motif(p.fichiers);
            changement();
        },
        [&] { Remettre_unite(p); });
}

void Unité_srce_KeyPress(wchar_t & caractere) {
    Valider_unite(Source(Principale()), L"UNITE SOURCE", caractere, Unité_srce_Change);
}

void Unité_dest_KeyPress(wchar_t & caractere) {
    Valider_unite(Destination(Principale()), L"UNITE DESTINATION", caractere, Unité_dest_Change);
}

void Répertoire_dest_Click() {
    static bool en_cours = false;
    Une_fois(en_cours, [] {
        Gestion_Fichiers & f = Principale();
        Pieger(
            L"REPERT. DESTINATION", [&] { Ouvrir_entree(Destination(f), Source(f)); },
            [&] { f.Répertoire_dest.ListIndex(-1); });
    });
}

void Répertoire_srce_Change() {
    Gestion_Fichiers & f = Principale();
    if (f.Tip.Visible()) {
        f.Tip.Visible(false);
        Répertoire_srce_Click();
    }
    Suivre_repertoire(Source(f));
    Changer_repertoire(f.Répertoire_srce.Path());
}

void Répertoire_dest_Change() {
    Gestion_Fichiers & f = Principale();
    if (f.Tip.Visible()) {
        f.Tip.Visible(false);
        Répertoire_dest_Click();
    }
    Suivre_repertoire(Destination(f));
}

void Fichier_dest_Click() {
    if (variables.Garde) return;
    Gestion_Fichiers & f = Principale();
    f.Fichier_dest.Tout_selectionner(false);
    if (!f.Fichier_dest.Souris()) return;
    Message_boite(L"Sélectionnez le fichier dans la liste 'SOURCE'\r"
                  L"ou bien cliquez sur le bouton de permutation :\r"
                  L"cette liste sert uniquement de contrôle visuel.",
                  Boite::ok | Boite::information, titre_gestionnaire);
}

void Fichier_srce_MouseDown(bool & fini) {
    if (!variables.Mode_repertoire) return;
    fini = true;
    Message_boite(L"Sélection non autorisée en mode répertoire :\rcliquez sur le bouton 'Mode fichier'.",
                  Boite::ok | Boite::information, titre_gestionnaire);
}

// The pane's part of opening a file: which one it is and where.
void Retrouver_fichier_choisi() {
    Pieger(L"FICHIER SOURCE", [] {
        variables.Index_courant = 0;
        Selection_suivante(1);
        if (!variables.Fichier_trouve) return;
        if (variables.Mode_resultats)
            Chemin_destination();
        else
            Chemins_fichier();
        // Nothing is under way: a later report must not name this file.
        variables.Fichier_courant.clear();
    });
}

void Fichier_srce_KeyPress(wchar_t & caractere) {
    if (caractere == Touche::entree && Principale().Fichier_srce.ListIndex() >= 0) Retrouver_fichier_choisi();
}

void Permuter(Gestion_Fichiers & f) {
    const std::wstring source      = f.Répertoire_srce.Path();
    const std::wstring destination = f.Répertoire_dest.Path();
    f.Répertoire_srce.Path(destination);
    f.Unité_srce.Drive(destination);
    f.Répertoire_dest.Path(source);
    f.Unité_dest.Drive(source);
    // A drive's change opens its current directory, which a path too long to be current is not.
    f.Répertoire_srce.Path(destination);
    f.Répertoire_dest.Path(source);
    variables.Commande_en_cours = L"CROISER";
    if (f.Unité_srce.Drive().front() != f.Unité_dest.Drive().front()) return;
    Retablir_fenetre();
}

void Croiser_Click() {
    if (variables.Garde) return;
    Gestion_Fichiers & f      = Principale();
    const std::wstring source = f.Répertoire_srce.Path();
    Pieger(
        L"CROISER",
        [&] {
            // The free space is shown on the way, which lets events run: nothing may begin between the two panes.
            const Garde                garde;
            const Application::Sablier sablier;
            Permuter(f);
        },
        [&] {
            // Half a swap would show one directory twice.
            Tenter([&] { f.Répertoire_srce.Path(source); });
            Remettre_unite(Source(f));
            Remettre_unite(Destination(f));
        });
}

// The list tells a double-click on its empty part too, and what is selected was not meant there.
std::function<void()> Sur_un_fichier(const Liste & liste, void (*action)()) {
    return [&liste, action] {
        bool coupee = false;
        if (liste.Entree_survolee(coupee) >= 0) action();
    };
}

std::function<void(wchar_t &)> Sur_entree(void (*action)()) {
    return [action](wchar_t & caractere) {
        if (caractere == Touche::entree) action();
    };
}
}  // namespace

void Unité_srce_Change() {
    const Panneau p = Source(Principale());
    Pieger(
        L"UNITE SOURCE",
        [&] {
            p.repertoire.Path(p.unite.Drive());
            Retablir_fenetre();
        },
        [&] { Remettre_unite(p); });
}

void Répertoire_srce_Click() {
    static bool en_cours = false;
    Une_fois(en_cours, [] {
        Gestion_Fichiers & f = Principale();
        Pieger(
            L"REPERT. SOURCE",
            [&] {
                Ouvrir_entree(Source(f), Destination(f));
                Selectionner_premier(f);
            },
            [&] { f.Répertoire_srce.ListIndex(-1); });
    });
}

void Fichier_srce_PathChange() {
    Gestion_Fichiers & f = Principale();
    Quitter_resultats(f);
    f.Copier.Enabled(f.Fichier_srce.ListCount() >= 1 && !variables.Mode_repertoire);
    Vider_selection(f);
    f.Fichier_srce.BackColor(couleur_fond_fenetre);
    f.Fichier_srce.ForeColor(couleur_texte_fenetre);
}

void Brancher_panneaux(Gestion_Fichiers & f, void (*ouvrir)()) {
    f.Unité_srce.Change        = Unité_srce_Change;
    f.Unité_srce.KeyPress      = Unité_srce_KeyPress;
    f.Unité_dest.Change        = Unité_dest_Change;
    f.Unité_dest.KeyPress      = Unité_dest_KeyPress;
    f.Répertoire_srce.Change   = Répertoire_srce_Change;
    f.Répertoire_srce.Click    = Répertoire_srce_Click;
    f.Répertoire_srce.KeyPress = Sur_entree(Répertoire_srce_Click);
    f.Répertoire_dest.Change   = Répertoire_dest_Change;
    f.Répertoire_dest.Click    = Répertoire_dest_Click;
    f.Répertoire_dest.KeyPress = Sur_entree(Répertoire_dest_Click);
    f.Fichier_srce.DblClick    = Sur_un_fichier(f.Fichier_srce, ouvrir);
    f.Fichier_srce.KeyPress    = Fichier_srce_KeyPress;
    f.Fichier_srce.MouseDown   = Fichier_srce_MouseDown;
    f.Fichier_srce.PathChange  = Fichier_srce_PathChange;
    f.Fichier_sél.DblClick     = Sur_un_fichier(f.Fichier_sél, ouvrir);
    f.Fichier_dest.Click       = Fichier_dest_Click;
    f.Croiser.Brancher(Croiser_Click);
}
