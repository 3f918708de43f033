#include "browser/motif.h"

#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "browser/panneaux.h"
#include "browser/selection.h"
#include "forms/gestion_fichiers.h"

namespace {
constexpr const wchar_t * tous_les_fichiers = L"*.*";

void Sélection_fichiers_Change() {
    Gestion_Fichiers & f     = Principale();
    const std::wstring motif = f.Sélection_fichiers.Text();
    if (motif.empty()) return f.Sélection_fichiers.Text(tous_les_fichiers);  // comes back here
    const auto appliquer = [&] {
        for (Liste_fichiers * liste : {&f.Fichier_srce, &f.Fichier_dest}) {
            // Before the panes have a directory there is nothing to read.
            if (!liste->Path().empty()) liste->Pattern(motif);
        }
        f.Motif_courant = motif;
        Vider_selection(f);
        Fichier_srce_PathChange();
    };
    const auto reprendre = [&] {
        if (motif != f.Motif_courant) f.Sélection_fichiers.Text(f.Motif_courant);
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
