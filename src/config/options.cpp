#include "config/options.h"

#include "app/aide.h"
#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/lancement.h"
#include "app/palette.h"
#include "app/routines.h"
#include "app/settings.h"
#include "config/valeurs_options.h"
#include "forms/choix_options.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/nombres.h"
#include "platform/profil.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "platform/valeur_profil.h"

#include <functional>
#include <vector>

namespace {
constexpr int             ecart            = 1450;  // twips from the main window's corner, both ways
constexpr int             longueur_saisie  = 2000;  // characters; what is read back is cut further on
constexpr const wchar_t * etape_lecture    = L"Lecture OPTIONS";
constexpr const wchar_t * etape_ecriture   = L"Ecriture OPTIONS";
constexpr const wchar_t * programme_applet = L"Control.exe";

// --- what the window shows

void Montrer_couleur(Choix_Options & w) {
    variables.Option_couleur      = std::to_wstring(w.Choix_couleur.Value());
    const Couleurs_cadre couleurs = Couleurs_du_cadre(w.Choix_couleur.Value());
    w.Exemple_fond.BackColor(couleurs.fond);
    w.Exemple_fond.BorderColor(couleurs.fond);
    w.Titre_exemple.BackColor(couleurs.fond);
    w.Titre_exemple.ForeColor(couleurs.encre);
    for (Ligne & bord : w.Ligne_exemple) bord.BackColor(couleurs.ligne);
}

void Montrer_depart(Choix_Options & w, const std::wstring & valeur) {
    const Depart depart = Depart_lu(valeur);
    w.Répert_choisi.Text(depart == Depart::choisi ? valeur : L"");
    w.Racine.Value(depart == Depart::racine);
    w.Courant.Value(depart == Depart::courant);
    w.Choisi.Value(depart == Depart::choisi);
}

// What the fields change before anything is saved.
void Retenir(Choix_Options & w) {
    w.Editeur_avant     = variables.Editeur;
    w.Visualiseur_avant = variables.Visualiseur;
    w.Couleur_avant     = variables.Option_couleur;
}

void Rendre(const Choix_Options & w) {
    variables.Editeur        = w.Editeur_avant;
    variables.Visualiseur    = w.Visualiseur_avant;
    variables.Option_couleur = w.Couleur_avant;
}

void Lire_options(Choix_Options & w) {
    // Reads of a file that another program has locked would give the defaults, which OK would then save.
    Exiger_lisible(variables.Fichier_ini);
    Retenir(w);
    w.Nom_éditeur.Text(Lire_option(Cle::editeur));
    w.Nom_visualiseur.Text(Lire_option(Cle::visualiseur));
    w.Confirmation.Value(Est_oui(Lire_option(Cle::confirme)));
    w.Remplacement.Value(Est_oui(Lire_option(Cle::remplace)));
    w.Iconisé.Value(Est_oui(Lire_option(Cle::iconise)));
    w.Aide.Value(Est_oui(Lire_option(Cle::aide)));
    Montrer_depart(w, Lire_option(Cle::repertoire));
    w.Choix_couleur.Value(Couleur_permise(Valeur(Lire_option(Cle::couleur))));
    Montrer_couleur(w);
    w.Cachés.Value(Principale().Fichier_srce.Hidden());
}

// --- saving

// Before anything is written: a text that the file cannot hold would name another file when it is read again.
void Exiger_textes(Choix_Options & w) {
    for (Champ_texte * champ : {&w.Nom_éditeur, &w.Nom_visualiseur, &w.Répert_choisi}) {
        const std::wstring texte = champ->Text();
        const bool         ecrit = champ != &w.Répert_choisi || w.Choisi.Value();
        if (!ecrit || Tient_en_ansi(texte)) continue;
        champ->SetFocus();
        champ->Selectionner(0, -1);
        throw Erreur_execution(Numero::nom_incorrect, 0, texte);
    }
}

Depart Depart_choisi(const Choix_Options & w) {
    if (w.Courant.Value()) return Depart::courant;
    return w.Choisi.Value() ? Depart::choisi : Depart::racine;
}

std::vector<Changement_profil> Valeurs(const Choix_Options & w) {
    return {
        {Cle::editeur, Programme_ecrit(w.Nom_éditeur.Text(), Defaut::editeur)},
        {Cle::visualiseur, Programme_ecrit(w.Nom_visualiseur.Text(), Defaut::visualiseur)},
        {Cle::iconise, Oui_non(w.Iconisé.Value())},
        {Cle::aide, Oui_non(w.Aide.Value())},
        {Cle::confirme, Oui_non(w.Confirmation.Value())},
        {Cle::remplace, Oui_non(w.Remplacement.Value())},
        {Cle::couleur, std::to_wstring(w.Choix_couleur.Value())},
        {Cle::repertoire, Depart_ecrit(Depart_choisi(w), w.Répert_choisi.Text())},
    };
}

// What the file says is in force, but for the options of the start.
void Appliquer_reglages() {
    Exiger_lisible(variables.Fichier_ini);
    Lire_options_commandes();
    Lire_couleur();
    Appliquer_couleur(Couleur_permise(Valeur(variables.Option_couleur)));
}

void Ecrire_options(Choix_Options & w) {
    Exiger_textes(w);
    Changer_profil(variables.Fichier_ini, Section::options, Valeurs(w));
    Appliquer_reglages();
}

// What the file has after a failure. One that cannot even be read changes nothing.
void Remettre_en_vigueur(Choix_Options & w) {
    if (Tenter(Appliquer_reglages)) Retenir(w);
}

// --- handlers

// False after the report of an error, which names the settings file.
bool Avec_reglages(const wchar_t * etape, const std::function<void()> & corps,
                   const std::function<void()> & remise = {}) {
    bool fait                 = false;
    variables.Fichier_courant = Nom_du_chemin(variables.Fichier_ini);
    Pieger(
        etape,
        [&] {
            corps();
            fait = true;
        },
        remise);
    variables.Fichier_courant.clear();
    return fait;
}

void OK_Click(Choix_Options & w) {
    if (!Avec_reglages(
            etape_ecriture, [&] { Ecrire_options(w); }, [&] { Remettre_en_vigueur(w); }))
        return;
    Principale().Redessiner();
    Fermer_fille(w);
}

void Annule_Click(Choix_Options & w) {
    Rendre(w);
    Fermer_fille(w);
}

// At once, in both lists, whether the options are saved or not.
void Cachés_Click(const Choix_Options & w) {
    Gestion_Fichiers & f       = Principale();
    const bool         montrer = w.Cachés.Value();
    if (montrer == f.Fichier_srce.Hidden() && montrer == f.Fichier_dest.Hidden()) return;
    for (Liste_fichiers * liste : {&f.Fichier_srce, &f.Fichier_dest})
        Pieger(L"OPTIONS", [&] { liste->Hidden(montrer); });
    Actualiser_panneaux();
}

void Choisi_Click(Choix_Options & w) {
    if (w.Choisi.Value() && w.Montree() && w.Répert_choisi.Text().empty()) w.Répert_choisi.SetFocus();
}

// From the directory of the system: a program of that name in the SOURCE directory must not take its place.
void Ouvrir_applet(const wchar_t * applet) {
    variables.Fichier_courant = programme_applet;
    Pieger(L"OPTIONS", [&] { Lancer(std::wstring(programme_applet) + L" " + applet, Repertoire_systeme()); });
    variables.Fichier_courant.clear();
}

void Brancher_saisie(Choix_Options & w) {
    for (Champ_texte * champ : {&w.Nom_éditeur, &w.Nom_visualiseur, &w.Répert_choisi})
        champ->Limite(longueur_saisie);
    w.Nom_éditeur.Change     = [&w] { variables.Editeur = Sans_blancs(w.Nom_éditeur.Text()); };
    w.Nom_visualiseur.Change = [&w] { variables.Visualiseur = Sans_blancs(w.Nom_visualiseur.Text()); };
    w.Cachés.Click           = [&w] { Cachés_Click(w); };
    w.Choisi.Click           = [&w] { Choisi_Click(w); };
    w.Choix_couleur.Bornes(0, derniere_couleur);
    w.Choix_couleur.Change = [&w] { Montrer_couleur(w); };
    w.Choix_couleur.Scroll = [&w] { Montrer_couleur(w); };
    w.Exemple.Montrer_seulement();
    w.Exemple.BackColor(couleur_fond_fenetre);
    w.Exemple.GotFocus       = [&w] { w.Choix_couleur.SetFocus(); };
    w.Label_répertoire.Click = [&w] { Expliquer(&w.Label_répertoire); };
}

void Brancher(Choix_Options & w) {
    Brancher_fille(w, aide_fenetre_options);
    Brancher_saisie(w);
    w.Bureau.Brancher([] { Ouvrir_applet(L"Desktop"); });
    w.Couleurs.Brancher([] { Ouvrir_applet(L"Color"); });
    w.DateHeure.Brancher([] { Ouvrir_applet(L"Date/Time"); });
    w.Imprimantes.Brancher([] { Ouvrir_applet(L"Printers"); });
    w.OK.Brancher([&w] { OK_Click(w); });
    w.Annule.Brancher([&w] { Annule_Click(w); });
    w.Defaut(w.OK);
    w.Annulation(w.Annule);
}

Choix_Options & Fenetre_options() {
    if (!fenetres.options) {
        auto nouvelle = std::make_unique<Choix_Options>();
        Brancher(*nouvelle);
        fenetres.options = std::move(nouvelle);
    }
    return static_cast<Choix_Options &>(*fenetres.options);
}

void Options_Click() {
    if (variables.Garde) return;
    Choix_Options & w       = Fenetre_options();
    const int       bordure = static_cast<int>(variables.Bordure);
    Placer_fille(w, ecart + bordure, ecart + bordure);
    if (!Avec_reglages(etape_lecture, [&] { Lire_options(w); })) return;
    w.Nom_éditeur.SetFocus();
    w.Nom_éditeur.Selectionner(0, -1);
    w.Show_modal(Principale());
}
}  // namespace

void Brancher_options(Gestion_Fichiers & f) { f.Options.Brancher(Options_Click); }
