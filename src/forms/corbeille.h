#pragma once
#include "forms/aide_corbeille.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"
#include "toolkit/listes.h"

#include <string>

// What the recycle bin holds, restoring, and its two limits.
struct Corbeille : Fenetre {
    Corbeille() : Fenetre(L"Corbeille", L"Corbeille", 7500, 4485, Bordure::dialogue) {}

    // clang-format off
    Etiquette       Tip           {*this, {L"Tip",             180,    0, 7140,  255, L""}, Alignement::gauche, false, true};
    Etiquette       Titre_liste   {*this, {L"Titre_liste",     180,  150, 7140,  255, L"Fichiers effacés, du plus ancien au plus récent :", aide_fichier_effacé}};
    Liste           Fichier_effacé{*this, {L"Fichier_effacé",  180,  435, 7140, 2640, L"",                          aide_fichier_effacé}, true};
    Bouton_commande Récupérer     {*this, {L"Récupérer",      5670, 3240, 1650,  375, L"&Récupérer",                aide_récupérer}};
    Etiquette       Titre_limites {*this, {L"Titre_limites",   180, 3240, 5100,  300, L"Limite de la corbeille",    aide_corbeille_limites}, Alignement::gauche, true};
    Etiquette       Titre_taille  {*this, {L"Titre_taille",    180, 3570, 2520,  330, L"Taille, de 1 à 9999 Kilo-octets :", aide_corbeille_taille}};
    Champ_texte     Taille        {*this, {L"Taille",         2760, 3585,  900,  330, L"",                          aide_corbeille_taille}};
    Etiquette       Titre_temps   {*this, {L"Titre_temps",     180, 3960, 2520,  330, L"ou temps, de 1 à 999 jours :", aide_corbeille_temps}};
    Champ_texte     Temps         {*this, {L"Temps",          2760, 3975,  900,  330, L"",                          aide_corbeille_temps}};
    Bouton_commande Fin           {*this, {L"Fin",            5670, 3930, 1650,  375, L"&Fin",                      aide_corbeille_fin}};
    // clang-format on

    bool         Remplissage      = false;  // the program is filling the fields, not the user
    bool         Limites_retirees = false;  // from the settings, while the bin is not destroyed
    std::wstring Taille_avant;              // limits in force when the window opened
    std::wstring Temps_avant;
};
