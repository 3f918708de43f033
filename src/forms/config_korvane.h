#pragma once
#include "forms/aide_config_korvane.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"
#include "toolkit/listes.h"

#include <string>

// The lines of one section at a time: buttons, selections, associations; the field composes a line or changes the one chosen.
struct Config_Korvane : Fenetre {
    Config_Korvane() : Fenetre(L"Config_Korvane", L"Liste des Boutons", 7800, 4815, Bordure::dialogue) {}

    // clang-format off
    Etiquette       Tip        {*this, {L"Tip",          180,    0, 7440,  255, L""}, Alignement::gauche, false, true};
    Bouton_option   Boutons    {*this, {L"Boutons",      180,  150, 2400,  300, L"&Boutons",      aide_conf_boutons}, true};
    Bouton_option   Sélections {*this, {L"Sélections",  2700,  150, 2400,  300, L"&Sélections",   aide_conf_sélections}};
    Bouton_option   Associer   {*this, {L"Associer",    5220,  150, 2400,  300, L"&Associations", aide_conf_associer}};
    Liste           Liste_conf {*this, {L"Liste_conf",   180,  570, 7440, 2640, L"",              aide_conf_liste}, false};
    Etiquette       Label_conf {*this, {L"Label_conf",   180, 3330, 7440,  255, L"",              aide_conf_ligne}, Alignement::gauche, true};
    Champ_texte     Ligne_conf {*this, {L"Ligne_conf",   180, 3615, 7440,  330, L"",              aide_conf_ligne}};
    Bouton_commande Parcourir  {*this, {L"Parcourir",    180, 4260, 1725,  375, L"&Parcourir...", aide_conf_parcourir}};
    Bouton_commande Enregistrer{*this, {L"Enregistrer", 2085, 4260, 1725,  375, L"&Enregistrer",  aide_conf_enregistrer}};
    Bouton_commande Effacer    {*this, {L"Effacer",     3990, 4260, 1725,  375, L"Effa&cer",      aide_conf_effacer}};
    Bouton_commande Fin        {*this, {L"Fin",         5895, 4260, 1725,  375, L"&Fin",          aide_conf_fin}};
    // clang-format on

    std::wstring Section;    // being edited
    std::wstring Fichier;    // that holds it
    bool Modifie   = false;  // a line of the settings file was written or erased since the window opened
    bool Rechoisit = false;  // the program is choosing the entry again, not the user
};
