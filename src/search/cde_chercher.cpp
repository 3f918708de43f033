#include "search/cde_chercher.h"

#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "forms/cde_chercher.h"
#include "forms/gestion_fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "search/modeles.h"
#include "toolkit/boites.h"

namespace {
constexpr int a_droite = 2220;  // twips from the main window's corner
constexpr int en_bas   = 1100;
constexpr int bordure  = 15;

void Avertir(const wchar_t * texte) {
    Bip();
    Message_boite(texte, Boite::ok | Boite::exclamation, titre_gestionnaire);
}

void Selectionner_tout(Champ_texte & champ) {
    champ.Selectionner(0, -1);
    champ.SetFocus();
}

// Writes the completed pattern back into its field; one that names nothing empties it and is told.
bool Completer(Champ_texte & champ) {
    champ.Text(Completer_modele(champ.Text()));
    if (Modele_correct(champ.Text())) return true;
    champ.Text(L"");
    champ.SetFocus();
    Avertir(L"Nom ou extension de fichier incorrect.");
    return false;
}

void OK_Click(Cde_Chercher & c) {
    if (c.Fichiers_cherchés.Text().empty()) return Fermer_fille(c);
    if (!c.Fichiers_exclus.Text().empty() && !Completer(c.Fichiers_exclus)) return;
    if (!Completer(c.Fichiers_cherchés)) return;
    variables.Modele_cherche  = c.Fichiers_cherchés.Text();
    const std::wstring exclus = c.Fichiers_exclus.Text();
    if (!exclus.empty() && Texte_conforme(variables.Modele_cherche, exclus)) {
        Selectionner_tout(c.Fichiers_exclus);
        Avertir(L"Les fichiers exclus annulent les fichiers recherchés.");
        return;
    }
    variables.Recherche_en_cours = true;
    Fermer_fille(c);
}

void Brancher(Cde_Chercher & c) {
    Brancher_fille(c, aide_cde_chercher);
    c.OK.Brancher([&c] { Pieger(L"CHERCHER", [&c] { OK_Click(c); }); });
    c.Annule.Brancher([&c] { Fermer_fille(c); });
    c.Defaut(c.OK);
    c.Annulation(c.Annule);
}

// Made when it is first asked for; it keeps its texts.
Cde_Chercher & Fenetre_demande() {
    if (!fenetres.cde_chercher) {
        auto neuve = std::make_unique<Cde_Chercher>();
        Brancher(*neuve);
        fenetres.cde_chercher = std::move(neuve);
    }
    return static_cast<Cde_Chercher &>(*fenetres.cde_chercher);
}
}  // namespace

bool Demander_recherche() {
    Cde_Chercher &     c     = Fenetre_demande();
    const std::wstring unite = Principale().Unité_srce.Drive().substr(0, 2);
    Placer_fille(c, a_droite + bordure, en_bas + bordure);
    c.Label_Message.Caption(L"Entrez le modèle ou le type de fichiers à rechercher sur " + Majuscules(unite));
    Selectionner_tout(c.Fichiers_cherchés);
    variables.Recherche_en_cours = false;
    c.Show_modal(Principale());
    return variables.Recherche_en_cours;
}
