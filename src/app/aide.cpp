#include "app/aide.h"

#include "app/astuces.h"
#include "app/fenetre_principale.h"
#include "app/fenetres.h"
#include "app/globals.h"
#include "forms/gestion_fichiers.h"
#include "platform/aide.h"
#include "platform/nombres.h"
#include "toolkit/boites.h"

namespace {
constexpr const wchar_t * fichier_aide = L"KORVANE.HLP";

void Montrer(const std::wstring & texte) {
    variables.Texte_aide = texte;
    Principale().Fenêtre.Caption(texte);
}

void Activer_aide(bool active) {
    if (active == variables.Aide_active) return;
    variables.Aide_active = active;
    variables.Hauteur_fenetre += active ? Principale().Fenêtre.Height() : -Principale().Fenêtre.Height();
    variables.Texte_aide = active ? texte_introduction : L"";
}

void Ouvrir_fichier_aide() {
    if (variables.Fichier_aide.empty()) return;
    const Ouverture_aide resultat = Ouvrir_aide(variables.Fichier_aide);
    if (resultat == Ouverture_aide::ouverte) return;
    const wchar_t * suite = resultat == Ouverture_aide::absente ? L" est introuvable."
                                                                : L" ne peut pas être ouvert sur ce système.";
    Message_boite(L"Le fichier d'aide " + variables.Fichier_aide + suite, Boite::ok | Boite::information,
                  titre_gestionnaire);
}

void Aide_Click() {
    Basculer_aide();
    Ouvrir_fichier_aide();
}
}  // namespace

void Basculer_aide() {
    const bool fichier     = Est_oui(variables.Option_aide);
    variables.Fichier_aide = fichier ? fichier_aide : L"";
    Activer_aide(!fichier && !variables.Aide_active);
    Form_Resize();
    Montrer(variables.Texte_aide);
}

void Rappel_aide() {
    Principale().Fenêtre.Caption(L"  Cliquez sur un élément de la fenêtre de KORVANE ou bien cliquez sur le "
                                 L"point d'interrogation ou appuyez sur "
                                 L"la touche F1 pour arrêter l'aide.");
}

void Form_KeyDown(int & touche) {
    if (touche != Touche::f1) return;
    // The key opens the help file, when there is one, and is finished with here.
    touche = 0;
    Basculer_aide();
    Ouvrir_fichier_aide();
}

void Expliquer(const Controle * controle) { Expliquer(controle, aide_fenetre_principale); }

void Expliquer(const Controle * controle, const wchar_t * aide_fenetre) {
    if (!variables.Aide_active) return;
    const std::wstring texte = controle == nullptr ? aide_fenetre : controle->Aide();
    if (!texte.empty()) Montrer(texte);
}

void Brancher_aide(Gestion_Fichiers & f) {
    f.Aide.Brancher(Aide_Click);
    f.MouseMove = [](Controle * controle) {
        Expliquer(controle);
        Suivre_pointeur(controle);
    };
    const auto expliquer = [](Controle & controle) { return [&controle] { Expliquer(&controle); }; };
    for (Controle * controle : std::initializer_list<Controle *>{
             &f.Chemin_srce, &f.Unité_srce, &f.Sélection_fichiers, &f.Répertoire_srce, &f.Fichier_srce,
             &f.Fichier_sél, &f.Chemin_dest, &f.Unité_dest, &f.Répertoire_dest, &f.Fichier_dest,
             &f.Ligne_commande}) {
        controle->GotFocus = expliquer(*controle);
    }
}
