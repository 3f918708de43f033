#include "search/chercher.h"

#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "forms/gestion_fichiers.h"
#include "search/cde_chercher.h"
#include "search/cherche_fichier.h"

#include <utility>

namespace {
// A search in front of the main window: a second command cannot begin, whatever reaches that window meanwhile.
class Recherche_ouverte {
public:
    Recherche_ouverte(Gestion_Fichiers & f, Controle * focus) : f_(f), focus_(focus) {
        f_.Chercher.Enabled(false);
    }
    ~Recherche_ouverte() {
        variables.Recherche_en_cours = false;
        variables.Recherche_annulee  = false;
        f_.Chercher.Enabled(true);
        // Disabling the button took the focus away from it. A list of results that has left is not given it again.
        if (focus_ != nullptr && focus_->Visible() && focus_->Enabled() && f_.Controle_actif() != focus_)
            focus_->SetFocus();
    }
    Recherche_ouverte(const Recherche_ouverte &)             = delete;
    Recherche_ouverte & operator=(const Recherche_ouverte &) = delete;

private:
    Gestion_Fichiers & f_;
    Controle *         focus_;
};

std::vector<Fichier_trouve> Demander_et_chercher(Gestion_Fichiers & f, void (*quitter)()) {
    const Garde      garde;
    Controle * const focus = f.Controle_actif();
    if (!Demander_recherche()) return {};
    // Nothing is selected behind a search, and the results of the one before have left.
    f.Tip.Visible(false);
    quitter();
    const Recherche_ouverte ouverte(f, focus);
    return Chercher_fichiers();
}

void Chercher_Click(const Volet_resultats & volet) {
    if (!Accepter_commande(L"CHERCHER\rdes fichiers")) return;
    Gestion_Fichiers & f = Principale();
    Pieger(L"CHERCHER", [&] {
        std::vector<Fichier_trouve> choisis = Demander_et_chercher(f, volet.quitter);
        f.Croiser.Enabled(true);
        f.Croiser.Visible(true);
        if (!choisis.empty()) volet.montrer(f, std::move(choisis));
    });
}
}  // namespace

void Brancher_chercher(Gestion_Fichiers & f, const Volet_resultats & volet) {
    f.Chercher.Brancher([volet] { Chercher_Click(volet); });
}
