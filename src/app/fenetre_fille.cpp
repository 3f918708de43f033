#include "app/fenetre_fille.h"

#include "app/aide.h"
#include "app/astuces.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/routines.h"
#include "browser/selection.h"
#include "forms/gestion_fichiers.h"
#include "platform/systeme.h"
#include "toolkit/boites.h"
#include "toolkit/ecran.h"

#include <utility>

namespace {
void Compter_a_nouveau(Gestion_Fichiers & f) {
    const auto fichiers = static_cast<std::size_t>(f.Fichier_srce.ListCount());
    f.Copier.Enabled(fichiers >= 1 && !variables.Mode_repertoire);
    // A file that came back is not selected: no longer are all of them.
    if (f.Fichier_srce.Selection().size() != fichiers) Terminer_tout_selectionne(f);
    Recompter_selection(f);
}
}  // namespace

bool Accepter_commande(const std::wstring & action) {
    if (variables.Garde) return false;
    if (!variables.Confirme_commande) return true;
    Bip();
    variables.Reponse =
        Message_boite(L"Vous allez " + action + L"\r\rConfirmez-vous cette commande ?",
                      Boite::oui_non | Boite::question | Boite::deuxieme_bouton, titre_gestionnaire);
    return variables.Reponse == Reponse_boite::oui;
}

void Brancher_fille(Fenetre & fille, const wchar_t * aide_fenetre) {
    Brancher_fille(fille, [aide_fenetre] { return std::wstring(aide_fenetre); });
}

void Brancher_fille(Fenetre & fille, std::function<std::wstring()> aide_fenetre) {
    fille.KeyDown   = [](int & touche, int) { Form_KeyDown(touche); };
    fille.MouseMove = [aide = std::move(aide_fenetre)](Controle * controle) {
        if (variables.Aide_active) Expliquer(controle, aide().c_str());
    };
}

void Brancher_abandon(Fenetre & fille, const std::function<void()> & abandonner) {
    fille.KeyDown = [abandonner](int & touche, int) {
        if (touche != Touche::echap) return Form_KeyDown(touche);
        touche = 0;
        abandonner();
    };
    fille.QueryUnload = [abandonner](bool & refus, Fermeture fermeture) {
        if (fermeture == Fermeture::systeme) return;
        refus = true;
        abandonner();
    };
}

void Brancher_astuce(Fenetre & fille, Liste & liste, Etiquette & tip) {
    Preparer_astuce(liste, tip);
    fille.MouseMove = [expliquer = fille.MouseMove, &liste, &tip](Controle * controle) {
        expliquer(controle);
        Suivre_pointeur(controle, liste, tip);
    };
}

void Placer_fille(Fenetre & fille, int droite, int bas) {
    const Gestion_Fichiers & f = Principale();
    Placer_a_l_ecran(fille, f.Left() + droite, f.Top() + bas, f);
}

void Fermer_fille(Fenetre & fille) {
    fille.Hide();
    if (variables.Aide_active) Rappel_aide();
}

void Actualiser_panneaux() {
    Gestion_Fichiers & f = Principale();
    Tenter([&] { f.Fichier_srce.Refresh(); });
    Tenter([&] { f.Fichier_dest.Refresh(); });
    if (!variables.Mode_resultats) Compter_a_nouveau(f);
    Tenter(Afficher_espace_libre);
}
