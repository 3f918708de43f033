#pragma once
#include "forms/aide_cde_chercher.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"

// The search request: which files to look for, which to leave out.
struct Cde_Chercher : Fenetre {
    Cde_Chercher() : Fenetre(L"Cde_Chercher", L"Recherche de fichiers", 6330, 2175, Bordure::dialogue) {}

    // clang-format off
    Etiquette       Label_Message     {*this, {L"Label_Message",      240,  180, 5850, 255, L"",                            aide_cde_message}};
    Etiquette       Libellé_cherchés  {*this, {L"Libellé_cherchés",   240,  570, 2070, 330, L"Chercher le(s) fichier(s) :", aide_fichiers_cherchés}};
    Champ_texte     Fichiers_cherchés {*this, {L"Fichiers_cherchés", 2370,  570, 3720, 330, L"",                            aide_fichiers_cherchés}};
    Etiquette       Libellé_exclus    {*this, {L"Libellé_exclus",     240, 1020, 2070, 330, L"Exclure le(s) fichier(s) :",  aide_fichiers_exclus}};
    Champ_texte     Fichiers_exclus   {*this, {L"Fichiers_exclus",   2370, 1020, 3720, 330, L"",                            aide_fichiers_exclus}};
    Bouton_commande OK                {*this, {L"OK",                3090, 1560, 1440, 375, L"&OK",                         aide_cde_ok}};
    Bouton_commande Annule            {*this, {L"Annule",            4650, 1560, 1440, 375, L"&Annuler",                    aide_cde_annule}};
    // clang-format on
};
