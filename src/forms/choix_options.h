#pragma once
#include "forms/aide_choix_options.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"

#include <array>
#include <string>

// The user's options, and the doors to the settings of Windows.
struct Choix_Options : Fenetre {
    Choix_Options() : Fenetre(L"Choix_Options", L"Options", 7500, 4980, Bordure::dialogue) {}

    // clang-format off
    Etiquette        Titre_programmes{*this, {L"Titre_programmes",  180,  150, 3600, 270, L"Programmes",                      aide_options_programmes}, Alignement::gauche, true};
    Etiquette        Titre_éditeur   {*this, {L"Titre_éditeur",     180,  465, 1050, 330, L"Éditeur :",                       aide_options_éditeur}};
    Champ_texte      Nom_éditeur     {*this, {L"Nom_éditeur",      1230,  480, 2550, 330, L"",                                aide_options_éditeur}};
    Etiquette        Titre_visualiseur{*this, {L"Titre_visualiseur", 180, 885, 1050, 330, L"Visualiseur :",                   aide_options_visualiseur}};
    Champ_texte      Nom_visualiseur {*this, {L"Nom_visualiseur",  1230,  900, 2550, 330, L"",                                aide_options_visualiseur}};
    Etiquette        Titre_commandes {*this, {L"Titre_commandes",   180, 1410, 3600, 270, L"Fonctionnement",                  aide_options_commandes}, Alignement::gauche, true};
    Case_a_cocher    Confirmation    {*this, {L"Confirmation",      180, 1740, 3600, 270, L"Con&firmer les commandes",        aide_options_confirmation}};
    Case_a_cocher    Remplacement    {*this, {L"Remplacement",      180, 2055, 3600, 270, L"Confirmer les &remplacements",    aide_options_remplacement}};
    Case_a_cocher    Iconisé         {*this, {L"Iconisé",           180, 2370, 3600, 270, L"Démarrer en &icône",              aide_options_iconisé}};
    Case_a_cocher    Aide            {*this, {L"Aide",              180, 2685, 3600, 270, L"Aid&e en ligne (fichier d'aide)", aide_options_aide}};
    Case_a_cocher    Cachés          {*this, {L"Cachés",            180, 3000, 3600, 270, L"&Lister les fichiers cachés",     aide_options_cachés}};
    Etiquette        Label_répertoire{*this, {L"Label_répertoire", 4020,  150, 3300, 270, L"Répertoire au démarrage",         aide_options_répertoire}, Alignement::gauche, true};
    Bouton_option    Racine          {*this, {L"Racine",           4020,  480, 3300, 270, L"Racine du &disque",               aide_options_racine}, true};
    Bouton_option    Courant         {*this, {L"Courant",          4020,  795, 3300, 270, L"Répertoire co&urant",             aide_options_courant}};
    Bouton_option    Choisi          {*this, {L"Choisi",           4020, 1110, 1230, 270, L"C&hoisi :",                       aide_options_choisi}};
    Champ_texte      Répert_choisi   {*this, {L"Répert_choisi",    4020, 1410, 3300, 330, L"",                                aide_options_répert_choisi}};
    Etiquette        Titre_couleur   {*this, {L"Titre_couleur",    4020, 1920, 3300, 270, L"Couleur des cadres",              aide_options_couleur}, Alignement::gauche, true};
    Barre_defilement Choix_couleur   {*this, {L"Choix_couleur",    4020, 2250, 3300, 255, L"",                                aide_options_choix_couleur}};
    std::array<Ligne, 4> Ligne_exemple{{
        {*this, {L"Ligne_exemple(0)", 4020, 2580, 3300, 30, L""}},
        {*this, {L"Ligne_exemple(1)", 4020, 3240, 3300, 30, L""}},
        {*this, {L"Ligne_exemple(2)", 4020, 2580, 30, 690, L""}},
        {*this, {L"Ligne_exemple(3)", 7290, 2580, 30, 690, L""}},
    }};
    Etiquette        Titre_exemple   {*this, {L"Titre_exemple",    4140, 2745, 1230, 330, L"Cadre",                           aide_options_exemple}, Alignement::centre, true};
    Champ_texte      Exemple         {*this, {L"Exemple",          5460, 2760, 1740, 330, L"Exemple",                         aide_options_exemple}};
    Cadre            Exemple_fond    {*this, {L"Exemple_fond",     4020, 2580, 3300, 690, L"",                                aide_options_exemple}};
    Etiquette        Titre_windows   {*this, {L"Titre_windows",     180, 3435, 7140, 270, L"Réglages de Windows",             aide_options_windows}, Alignement::gauche, true};
    Bouton_commande  Bureau          {*this, {L"Bureau",            180, 3765, 1695, 375, L"&Bureau",                         aide_options_bureau}};
    Bouton_commande  Couleurs        {*this, {L"Couleurs",         1995, 3765, 1695, 375, L"&Couleurs",                       aide_options_couleurs}};
    Bouton_commande  DateHeure       {*this, {L"DateHeure",        3810, 3765, 1695, 375, L"Da&te et heure",                  aide_options_date_heure}};
    Bouton_commande  Imprimantes     {*this, {L"Imprimantes",      5625, 3765, 1695, 375, L"I&mprimantes",                    aide_options_imprimantes}};
    Bouton_commande  OK              {*this, {L"OK",               3810, 4425, 1695, 375, L"&OK",                             aide_options_ok}};
    Bouton_commande  Annule          {*this, {L"Annule",           5625, 4425, 1695, 375, L"&Annuler",                        aide_options_annule}};
    // clang-format on

    // In force when the window opened, or since what was saved last: what Annule puts back.
    std::wstring Editeur_avant;
    std::wstring Visualiseur_avant;
    std::wstring Couleur_avant;
};
