#include "app/aide.h"
#include "app/astuces.h"
#include "app/demarrage.h"
#include "app/dialogue.h"
#include "app/fenetre_principale.h"
#include "app/fenetres.h"
#include "browser/boutons.h"
#include "browser/ligne_commande.h"
#include "browser/mode.h"
#include "browser/motif.h"
#include "browser/panneaux.h"
#include "browser/saisie_chemin.h"
#include "browser/selection.h"
#include "config/configuration.h"
#include "config/options.h"
#include "fileops/commandes.h"
#include "fileops/infos.h"
#include "fileops/ouvrir.h"
#include "forms/apropos.h"
#include "forms/dialogue.h"
#include "forms/gestion_fichiers.h"
#include "platform/aide.h"
#include "platform/systeme.h"
#include "recycle/fenetre_corbeille.h"
#include "search/chercher.h"
#include "toolkit/application.h"

namespace {
void Brancher(Gestion_Fichiers & f, Dialogue & d) {
    Brancher_fenetre_principale(f);
    Brancher_aide(f);
    Brancher_astuces(f);
    Brancher_panneaux(f, Ouvrir_fichier);
    Brancher_mode(f);
    Brancher_motif(f);
    Brancher_selection(f);
    Brancher_saisie_chemin(f);
    Brancher_ligne_commande(f);
    Brancher_boutons(f);
    Brancher_commandes(f);
    Brancher_infos(f);
    Brancher_corbeille(f);
    Brancher_configuration(f);
    Brancher_chercher(f, {Fichier_srce_PathChange, Montrer_resultats});
    Brancher_options(f);
    Brancher_dialogue(d);
}
}  // namespace

extern "C" int __stdcall wWinMain(void *, void *, wchar_t *, int) {
    Application::Initialiser();
    const Instance_unique instance(L"KORVANE");
    if (instance.Deja_lancee()) {
        Signaler_deja_charge();
        return 0;
    }
    Apropos             apropos;
    const std::uint64_t banniere = Montrer_banniere(apropos);
    Gestion_Fichiers    principale;
    Dialogue            dialogue;
    fenetres.apropos    = &apropos;
    fenetres.principale = &principale;
    fenetres.dialogue   = &dialogue;
    Brancher(principale, dialogue);
    Charger(principale, apropos, banniere);
    const int code = Application::Boucler();
    Fermer_aide();
    fenetres.Fermer_filles();
    return code;
}
