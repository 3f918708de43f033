#pragma once
#include "forms/aide_info_fichiers.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"

// One selected file at a time: size, date, time, and the four attributes, which can be changed.
struct Info_Fichiers : Fenetre {
    Info_Fichiers() : Fenetre(L"Info_Fichiers", L"Informations", 5700, 2640, Bordure::dialogue) {}

    // clang-format off
    Etiquette       Titre_infos    {*this, {L"Titre_infos",      180,  150, 3120, 270, L"Fichier", aide_infos_fichier}, Alignement::gauche, true};
    Etiquette       Titre_taille   {*this, {L"Titre_taille",     180,  480, 1350, 330, L"Taille (octets) :", aide_infos_taille}};
    Champ_texte     Taille         {*this, {L"Taille",          1560,  495, 1740, 330, L"",                  aide_infos_taille}};
    Etiquette       Titre_date     {*this, {L"Titre_date",       180,  900, 1350, 330, L"Date :",            aide_infos_date}};
    Champ_texte     Date_fichier   {*this, {L"Date_fichier",    1560,  915, 1740, 330, L"",                  aide_infos_date}};
    Etiquette       Titre_heure    {*this, {L"Titre_heure",      180, 1320, 1350, 330, L"Heure :",           aide_infos_heure}};
    Champ_texte     Heure          {*this, {L"Heure",           1560, 1335, 1740, 330, L"",                  aide_infos_heure}};
    Etiquette       Titre_attributs{*this, {L"Titre_attributs", 3660,  150, 1860, 270, L"Attributs",         aide_infos_attributs}, Alignement::gauche, true};
    Case_a_cocher   Caché          {*this, {L"Caché",           3660,  495, 1860, 270, L"&Caché",            aide_infos_caché}};
    Case_a_cocher   Lecture        {*this, {L"Lecture",         3660,  795, 1860, 270, L"&Lecture seule",    aide_infos_lecture}};
    Case_a_cocher   Modifié        {*this, {L"Modifié",         3660, 1095, 1860, 270, L"&Modifié",          aide_infos_modifié}};
    Case_a_cocher   Système        {*this, {L"Système",         3660, 1395, 1860, 270, L"Sys&tème",          aide_infos_système}};
    Bouton_commande Précédent      {*this, {L"Précédent",        180, 2085, 1680, 375, L"&Précédent",        aide_infos_précédent}};
    Bouton_commande Suivant        {*this, {L"Suivant",         2010, 2085, 1680, 375, L"&Suivant",          aide_infos_suivant}};
    Bouton_commande Fin            {*this, {L"Fin",             3840, 2085, 1680, 375, L"&Fin",              aide_infos_fin}};
    // clang-format on

    bool Attributs_changes = false;
    int  Index             = -1;  // entry shown, in the list that holds the selection
};
