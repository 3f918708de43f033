#include "browser/selection.h"

#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "browser/ligne_selection.h"
#include "browser/panneaux.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"

#include <algorithm>

namespace {
// Not the colours of tips: some desktops draw those as white as a window.
constexpr Couleur fond_tout_selectionne  = 0x00A0F0FF;
constexpr Couleur encre_tout_selectionne = 0x00000000;

// Counts the files selected in the SOURCE list, from its listing.
void Compter_liste(Gestion_Fichiers & f) {
    const auto &  entrees   = f.Fichier_srce.Entrees();
    const auto    selection = f.Fichier_srce.Selection();
    std::uint64_t total     = 0;
    for (const int index : selection) total += entrees[static_cast<std::size_t>(index)].taille;
    const std::wstring premier =
        selection.empty() ? std::wstring() : entrees[static_cast<std::size_t>(selection.front())].nom;
    Afficher_compte(f, selection.size(), total, premier);
}

// The list that commands work on.
Liste & Liste_montree(Gestion_Fichiers & f) {
    return variables.Mode_resultats ? f.Fichier_sél : static_cast<Liste &>(f.Fichier_srce);
}

Fichier_choisi Resultat(const Gestion_Fichiers & f, int index) {
    const Fichier_trouve & trouve = f.Resultats[static_cast<std::size_t>(index)];
    return {std::wstring(Nom_du_chemin(trouve.chemin)), std::wstring(Repertoire_du_chemin(trouve.chemin)),
            trouve.taille.value_or(0), index};
}

void Boutons_un_fichier(Gestion_Fichiers & f, bool actifs) {
    f.Editer.Enabled(actifs);
    f.Renommer.Enabled(actifs);
    f.Exécuter.Enabled(actifs);
}

void Commencer_tout_selectionne(Gestion_Fichiers & f) {
    const Garde                garde;
    const Application::Sablier sablier;
    Liste &                    liste = Liste_montree(f);
    variables.Tout_selectionne       = true;
    f.Sélecte.Caption(L"&Sélectionner un");
    liste.BackColor(fond_tout_selectionne);
    liste.ForeColor(encre_tout_selectionne);
    liste.Tout_selectionner(true);
    Boutons_un_fichier(f, false);
    if (variables.Mode_resultats)
        Compter_resultats(f);
    else
        Compter_liste(f);
}

void Sélecte_Click() {
    if (variables.Garde) return;
    Pieger(L"SELECTE", [] {
        Gestion_Fichiers & f = Principale();
        if (variables.Tout_selectionne)
            Vider_selection(f);
        else
            Commencer_tout_selectionne(f);
    });
    // A result whose length could not be read was named in the report, and is under way no longer.
    variables.Fichier_courant.clear();
}

// The entry that a walk examines next, -1 when the cursor is out of the list or nothing is left.
int Prochaine(const Liste & liste, int debut, bool avant) {
    const int nombre = liste.ListCount();
    for (int i = debut; i >= 0 && i < nombre; i += avant ? 1 : -1) {
        if (liste.Selected(i)) return i;
    }
    return -1;
}

// A result as it is now: its length, and its name as spelled on disk.
void Relire(Fichier_choisi & fichier, const std::wstring & chemin) {
    const Entree_repertoire entree = Lire_entree(chemin);
    if ((entree.attributs & Attribut::repertoire) != 0) {
        throw Erreur_execution(Numero::fichier_introuvable, 0, chemin);
    }
    const bool lien = (entree.attributs & Attribut::lien) != 0;
    fichier.nom     = entree.nom;
    fichier.taille  = lien ? Longueur_fichier(chemin) : entree.taille;
}
}  // namespace

void Afficher_compte(Gestion_Fichiers & f, std::size_t nombre, std::uint64_t total,
                     const std::wstring & premier) {
    variables.Nombre_selection = nombre;
    f.Total_selection          = total;
    f.Premier_fichier          = premier;
    f.Ligne_message.Caption(Ligne_selection(nombre, Format_milliers(total)));
}

void Fichier_srce_Click() {
    if (variables.Garde) return;
    Pieger(L"FICHIER SOURCE", [] {
        Gestion_Fichiers & f = Principale();
        // In directory mode files are not selected: what the keyboard did is undone.
        if (variables.Mode_repertoire) return Vider_selection(f);
        variables.Index_courant = 0;
        Terminer_tout_selectionne(f);
        Compter_liste(f);
    });
}

void Selection_suivante(int direction) {
    variables.Fichier_trouve = false;
    Gestion_Fichiers & f     = Principale();
    const Liste &      liste = Liste_montree(f);
    variables.Liste_courante = &liste;
    if (variables.Index_courant > liste.ListCount() - 1) return;
    const bool avant = direction == 1;
    const int  index = Prochaine(liste, variables.Index_courant, avant);
    variables.Fichier_courant.clear();
    if (index < 0) return;
    variables.Index_courant   = index + (avant ? 1 : -1);
    variables.Fichier_trouve  = true;
    variables.Chemin_source   = variables.Mode_resultats ? f.Resultats[static_cast<std::size_t>(index)].chemin
                                                         : Joindre(f.Fichier_srce.Path(), liste.List(index));
    variables.Fichier_courant = Nom_du_chemin(variables.Chemin_source);
}

void Chemins_fichier() {
    variables.Chemin_source = Joindre(Principale().Fichier_srce.Path(), variables.Fichier_courant);
    Chemin_destination();
}

void Chemin_destination() {
    variables.Chemin_cible = Joindre(Principale().Répertoire_dest.Path(), variables.Fichier_courant);
}

Parcours::Parcours(const Gestion_Fichiers & f) : destination_(f.Répertoire_dest.Path()) {
    if (variables.Mode_resultats) {
        for (const int index : f.Fichier_sél.Selection()) fichiers_.push_back(Resultat(f, index));
    } else {
        const auto & entrees = f.Fichier_srce.Entrees();
        for (const int index : f.Fichier_srce.Selection()) {
            const Entree_repertoire & entree = entrees[static_cast<std::size_t>(index)];
            fichiers_.push_back({entree.nom, f.Fichier_srce.Path(), entree.taille, index});
        }
    }
    for (const Fichier_choisi & fichier : fichiers_) total_ += fichier.taille;
}

bool Parcours::Suivant() {
    variables.Fichier_trouve = suivant_ < fichiers_.size();
    variables.Fichier_courant.clear();
    if (!variables.Fichier_trouve) return false;
    Fichier_choisi & fichier  = fichiers_[suivant_++];
    variables.Index_courant   = fichier.index + 1;
    variables.Fichier_courant = fichier.nom;
    variables.Chemin_source   = Joindre(fichier.repertoire, fichier.nom);
    // The list is as old as the search.
    if (variables.Mode_resultats) Relire(fichier, variables.Chemin_source);
    variables.Chemin_cible = Joindre(destination_, fichier.nom);
    return true;
}

void Signaler_absence_selection() {
    Bip();
    Message_boite(L"Pas de fichier(s) 'SOURCE' sélectionné(s).", Boite::ok | Boite::exclamation,
                  variables.Commande_en_cours);
}

void Terminer_tout_selectionne(Gestion_Fichiers & f) {
    if (!variables.Tout_selectionne) return;
    variables.Tout_selectionne = false;
    f.Sélecte.Caption(L"&Sélectionner tout");
    for (Liste * liste : {static_cast<Liste *>(&f.Fichier_srce), &f.Fichier_sél}) {
        liste->BackColor(couleur_fond_fenetre);
        liste->ForeColor(couleur_texte_fenetre);
    }
    Boutons_un_fichier(f, true);
}

void Vider_selection(Gestion_Fichiers & f) {
    const Garde garde;
    Terminer_tout_selectionne(f);
    f.Fichier_srce.Tout_selectionner(false);
    f.Fichier_sél.Tout_selectionner(false);
    Afficher_compte(f, 0, 0, {});
}

void Reprendre_entree(Gestion_Fichiers & f) {
    const int index             = variables.Index_a_reprendre;
    variables.Index_a_reprendre = -1;
    if (index < 0 || index >= f.Fichier_srce.ListCount()) return;
    const Garde garde;
    f.Fichier_srce.Selected(index, true);
    Compter_liste(f);
}

void Recompter_selection(Gestion_Fichiers & f) { Compter_liste(f); }

void Brancher_selection(Gestion_Fichiers & f) {
    f.Fichier_srce.Click = Fichier_srce_Click;
    f.Fichier_sél.Click  = Fichier_sél_Click;
    f.Sélecte.Brancher(Sélecte_Click);
}
