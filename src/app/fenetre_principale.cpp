#include "app/fenetre_principale.h"

#include "app/aide.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "browser/motif.h"
#include "browser/panneaux.h"
#include "browser/selection.h"
#include "forms/apropos.h"
#include "forms/gestion_fichiers.h"
#include "platform/systeme.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"
#include "toolkit/ecran.h"
#include "toolkit/mesure.h"

namespace {
constexpr int haut_fenetre = 100;  // twips from the top of the screen
constexpr int decalage     = 8;    // twips right of the middle

void Cacher_progression(Gestion_Fichiers & f) {
    f.Jauge.Visible(false);
    for (Ligne & bord : f.Ligne_jauge) bord.Visible(false);
    f.Arret.Visible(false);
    f.En_cours.Visible(false);
    f.Tip.Visible(false);
    f.Titre_dest.Visible(true);
    f.Croiser.Visible(true);
    f.Croiser.Enabled(true);
}

void Relire_listes(Gestion_Fichiers & f) {
    Tenter([&] { f.Répertoire_dest.Refresh(); });
    Tenter([&] { Appliquer_motif(f.Fichier_dest); });
    Tenter([&] { f.Répertoire_srce.Refresh(); });
    Tenter([&] { Appliquer_motif(f.Fichier_srce); });
    variables.Destination_perimee = false;
}

void Remettre_au_repos(Gestion_Fichiers & f) {
    Application::Titre(L"KORVANE");
    variables.Arret_demande = false;
    variables.Fichier_courant.clear();
    Cacher_progression(f);
}

void Arret_Click() { variables.Arret_demande = true; }

void Form_QueryUnload(bool & refus, Fermeture fermeture) {
    if (fermeture == Fermeture::systeme) return;
    Quitter_Click();
    refus = !Application::Terminee();
}
}  // namespace

void Retablir_fenetre() {
    const Garde        garde;
    Gestion_Fichiers & f = Principale();
    Remettre_au_repos(f);
    Quitter_resultats(f);
    Relire_listes(f);
    Fichier_srce_PathChange();
    Reprendre_entree(f);
}

void Retablir_apres_echec(const std::wstring & commande) {
    const Garde        garde;
    Gestion_Fichiers & f = Principale();
    if (!variables.Mode_resultats || !Reprendre_resultats(f, commande)) return Retablir_fenetre();
    Remettre_au_repos(f);
    Relire_listes(f);
}

void Form_Resize() {
    static bool en_cours = false;
    if (en_cours) return;
    en_cours             = true;
    Gestion_Fichiers & f = Principale();
    if (f.WindowState() == Etat_fenetre::reduite) {
        if (f.Caption() != L"KORVANE") f.Titre_sauve = f.Caption();
        f.Caption(L"KORVANE");
    } else {
        f.Caption(f.Titre_sauve);
        // Centred at the width it is given, whatever width it was dragged to; a frame is whole pixels.
        const int largeur = Twips(Pixels(variables.Largeur_fenetre));
        f.Move((Largeur_ecran() - largeur) / 2 + decalage, haut_fenetre, variables.Largeur_fenetre,
               variables.Hauteur_fenetre);
    }
    en_cours = false;
}

void Quitter_Click() {
    if (variables.Garde) return;
    if (variables.Mode_resultats) return Retablir_fenetre();
    Bip();
    const std::wstring question = std::wstring(L"Voulez-vous QUITTER\rle ") + titre_gestionnaire + L" ?";
    variables.Reponse = Message_boite(question, Boite::oui_non | Boite::question | Boite::deuxieme_bouton,
                                      titre_gestionnaire);
    if (variables.Reponse == Reponse_boite::oui) Application::Terminer();
}

void A_propos_Click() {
    if (variables.Garde) return;
    Apropos & apropos = *fenetres.apropos;
    apropos.OK.Visible(true);
    apropos.WindowState(Etat_fenetre::normale);
    const Gestion_Fichiers & f = Principale();
    Placer_a_l_ecran(apropos, f.Left() + (f.Width() - apropos.Width()) / 2,
                     f.Top() + (f.Height() - apropos.Height()) / 2, f);
    apropos.OK.SetFocus();
    apropos.Show_modal(Principale());
    // After the focus has come back, which explains the control that takes it.
    if (variables.Aide_active) Rappel_aide();
}

void Brancher_fenetre_principale(Gestion_Fichiers & f) {
    f.Resize      = Form_Resize;
    f.QueryUnload = Form_QueryUnload;
    f.KeyDown     = [](int & touche, int) { Form_KeyDown(touche); };
    f.Quitter.Brancher(Quitter_Click);
    f.A_propos.Brancher(A_propos_Click);
    f.Arret.Brancher(Arret_Click);
}
