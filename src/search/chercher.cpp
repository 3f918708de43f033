#include "search/chercher.h"

#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "browser/selection.h"
#include "forms/gestion_fichiers.h"
#include "search/cde_chercher.h"
#include "search/cherche_fichier.h"

namespace {
std::vector<std::wstring> Demander_et_chercher(Gestion_Fichiers & f) {
    const Garde garde;
    if (!Demander_recherche()) return {};
    // Nothing is selected behind a search, and the results of the one before have left.
    f.Tip.Visible(false);
    Quitter_resultats(f);
    Vider_selection(f);
    // A second command cannot begin, whatever reaches the main window meanwhile.
    f.Chercher.Enabled(false);
    std::vector<std::wstring> choisis = Chercher_fichiers();
    f.Chercher.Enabled(true);
    variables.Recherche_en_cours = false;
    variables.Recherche_annulee  = false;
    return choisis;
}

void Chercher_Click() {
    if (!Accepter_commande(L"CHERCHER\rdes fichiers")) return;
    Gestion_Fichiers & f = Principale();
    Pieger(L"CHERCHER", [&f] {
        const std::vector<std::wstring> choisis = Demander_et_chercher(f);
        f.Croiser.Enabled(true);
        f.Croiser.Visible(true);
        variables.Nombre_trouves = choisis.size();
        if (!choisis.empty()) Montrer_resultats(f, choisis);
    });
}
}  // namespace

void Brancher_chercher(Gestion_Fichiers & f) { f.Chercher.Brancher(Chercher_Click); }
