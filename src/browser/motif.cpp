#include "browser/motif.h"

#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "browser/panneaux.h"
#include "browser/selection.h"
#include "forms/gestion_fichiers.h"
#include "platform/erreur.h"
#include "platform/motifs.h"

namespace {
constexpr const wchar_t * tous_les_fichiers = L"*.*";

void Relire_liste(Liste_fichiers & liste, const std::wstring & motif) {
    // Before the panes have a directory there is nothing to read.
    if (!liste.Path().empty()) liste.Pattern(motif);
}

// Both lists take the pattern, whatever becomes of one of them: a medium taken out must not keep the other from following.
void Appliquer_aux_listes(Gestion_Fichiers & f, const std::wstring & motif) {
    f.Motif_courant = motif;
    Vider_selection(f);
    const bool destination = Tenter([&] { Relire_liste(f.Fichier_dest, motif); });
    Relire_liste(f.Fichier_srce, motif);
    Fichier_srce_PathChange();
    if (!destination) Relire_liste(f.Fichier_dest, motif);  // fails again, and is reported
}

void Sélection_fichiers_Change() {
    Gestion_Fichiers & f     = Principale();
    const std::wstring motif = f.Sélection_fichiers.Text();
    if (motif.empty()) return f.Sélection_fichiers.Text(tous_les_fichiers);  // comes back here
    const bool valide    = Motifs::Valide(motif);
    const auto appliquer = [&] {
        if (!valide) throw Erreur_execution(Numero::valeur_incorrecte, 0, motif);
        Appliquer_aux_listes(f, motif);
    };
    const auto reprendre = [&] {
        if (!valide) f.Sélection_fichiers.Text(f.Motif_courant);
        f.Sélection_fichiers.Caret_a_la_fin();
    };
    Pieger(L"SELECTION", appliquer, reprendre);
}

void Sélection_fichiers_Click() {
    if (variables.Garde) return;
    Gestion_Fichiers & f     = Principale();
    const int          index = f.Sélection_fichiers.ListIndex();
    if (index < 0) return;
    f.Sélection_fichiers.Text(f.Liste_sel.List(index));
    // A selection named as its own pattern changes no text.
    if (f.Sélection_fichiers.Text() != f.Motif_courant) Sélection_fichiers_Change();
    Vider_selection(f);
}

void Sélection_fichiers_KeyPress(wchar_t & caractere) {
    // What is typed goes into the text as it is; the files counted so far are no longer what the pattern will
    // show.
    if (caractere > L' ') Vider_selection(Principale());
}
}  // namespace

void Appliquer_motif(Liste_fichiers & liste) {
    if (liste.Path().empty()) return;
    // An unchanged list keeps its place: nothing moves under the user's eyes.
    if (liste.Pattern() == Principale().Motif_courant)
        liste.Refresh();
    else
        liste.Relire(liste.Path(), Principale().Motif_courant);
    liste.Tout_selectionner(false);
}

void Brancher_motif(Gestion_Fichiers & f) {
    f.Sélection_fichiers.Change   = Sélection_fichiers_Change;
    f.Sélection_fichiers.Click    = Sélection_fichiers_Click;
    f.Sélection_fichiers.KeyPress = Sélection_fichiers_KeyPress;
}
