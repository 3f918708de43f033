#pragma once
#include "forms/aide_gestion_fichiers.h"
#include "platform/parcours.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"
#include "toolkit/listes.h"
#include "toolkit/listes_disque.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// The two-pane main window, 770 x 457 pixels at 96 DPI. Handlers are attached by the subsystems that own
// them.
struct Gestion_Fichiers : Fenetre {
    Gestion_Fichiers()
        : Fenetre(L"Gestion_Fichiers", L"Gestionnaire de fichiers  (Mode fichier)   ", 11550, 6855,
                  Bordure::principale) {}

    // clang-format off
    Etiquette         Tip                {*this, {L"Tip",                 240,     0,  4260,  255, L""}};
    // SOURCE pane
    Etiquette         Titre_srce         {*this, {L"Titre_srce",          240,   165,  4260,  270, L"SOURCE",                 aide_titre_srce}, Alignement::centre, true};
    Champ_texte       Chemin_srce        {*this, {L"Chemin_srce",         240,   510,  4260,  330, L"",                       aide_chemin_srce}};
    Liste_unites      Unité_srce         {*this, {L"Unité_srce",          240,   900,  2070,  330, L"",                       aide_unité_srce}};
    Liste_combinee    Sélection_fichiers {*this, {L"Sélection_fichiers", 2430,   900,  2070,  330, L"",                       aide_sélection_fichiers}, true};
    Liste_repertoires Répertoire_srce    {*this, {L"Répertoire_srce",     240,  1290,  4260, 1500, L"",                       aide_répertoire_srce}};
    Liste_fichiers    Fichier_srce       {*this, {L"Fichier_srce",        240,  2880,  4260, 2100, L"",                       aide_fichier_srce}};
    Liste             Fichier_sél        {*this, {L"Fichier_sél",         240,  2880,  4260, 2100, L"",                       aide_fichier_sél}, true};
    Cadre             Cadre_srce         {*this, {L"Cadre_srce",          120,   120,  4500, 4950, L"",                       aide_titre_srce}};
    // Commands
    Bouton_commande   Copier             {*this, {L"Copier",             4740,   120,  2070,  360, L"&Copier",                aide_copier}};
    Bouton_commande   Créer              {*this, {L"Créer",              4740,   120,  2070,  360, L"&Créer",                 aide_créer}};
    Bouton_commande   Déplacer           {*this, {L"Déplacer",           4740,   495,  2070,  360, L"&Déplacer",              aide_déplacer}};
    Bouton_commande   Effacer            {*this, {L"Effacer",            4740,   870,  2070,  360, L"&Effacer",               aide_effacer}};
    Bouton_commande   Supprimer          {*this, {L"Supprimer",          4740,   870,  2070,  360, L"Supprim&er",             aide_supprimer}};
    Bouton_commande   Renommer           {*this, {L"Renommer",           4740,  1245,  2070,  360, L"&Renommer",              aide_renommer}};
    Bouton_commande   Editer             {*this, {L"Editer",             4740,  1770,  2070,  360, L"Édi&ter",                aide_editer}};
    Bouton_commande   Visualiser         {*this, {L"Visualiser",         4740,  2145,  2070,  360, L"&Visualiser",            aide_visualiser}};
    Bouton_commande   Exécuter           {*this, {L"Exécuter",           4740,  2520,  2070,  360, L"E&xécuter",              aide_exécuter}};
    Bouton_commande   Imprimer           {*this, {L"Imprimer",           4740,  2895,  2070,  360, L"Im&primer",              aide_imprimer}};
    Bouton_commande   Info               {*this, {L"Info",               4740,  3420,  2070,  360, L"&Informations",          aide_info}};
    Bouton_commande   Chercher           {*this, {L"Chercher",           4740,  3795,  2070,  360, L"C&hercher",              aide_chercher}};
    Bouton_commande   Sélecte            {*this, {L"Sélecte",            4740,  4320,  2070,  360, L"&Sélectionner tout",     aide_sélecte}};
    Bouton_commande   Mode               {*this, {L"Mode",               4740,  4695,  2070,  360, L" &Mode répertoire",      aide_mode}};
    // DESTINATION pane
    Etiquette         Titre_dest         {*this, {L"Titre_dest",         7050,   165,  2940,  270, L"DESTINATION",            aide_titre_dest}, Alignement::centre, true};
    Bouton_commande   Croiser            {*this, {L"Croiser",           10110,   150,  1260,  315, L"Perm&uter",              aide_croiser}};
    Etiquette         En_cours           {*this, {L"En_cours",           6945,   135,  4470,  345, L"",                       aide_titre_dest}, Alignement::centre, true};
    Champ_texte       Chemin_dest        {*this, {L"Chemin_dest",        7050,   510,  4260,  330, L"",                       aide_chemin_dest}};
    Liste_unites      Unité_dest         {*this, {L"Unité_dest",         7050,   900,  2070,  330, L"",                       aide_unité_dest}};
    Etiquette         Espace_libre       {*this, {L"Espace_libre",       9240,   900,  2070,  330, L"",                       aide_espace_libre}, Alignement::droite};
    Liste_repertoires Répertoire_dest    {*this, {L"Répertoire_dest",    7050,  1290,  4260, 1500, L"",                       aide_répertoire_dest}};
    Liste_fichiers    Fichier_dest       {*this, {L"Fichier_dest",       7050,  2880,  4260, 2100, L"",                       aide_fichier_dest}};
    Cadre             Cadre_dest         {*this, {L"Cadre_dest",         6930,   120,  4500, 4950, L"",                       aide_titre_dest}};
    // Message line and gauge
    Ligne             Ligne1             {*this, {L"Ligne1",              120,  5145, 11310,   45, L""}};
    Bouton_commande   Prompt             {*this, {L"Prompt",              120,  5265,  1860,  360, L"&Ligne de commande",     aide_prompt}};
    Liste_combinee    Ligne_commande     {*this, {L"Ligne_commande",     2070,  5280,  4800,  330, L"",                       aide_ligne_commande}, true};
    Etiquette         Ligne_message      {*this, {L"Ligne_message",      2070,  5265,  4800,  360, L"",                       aide_ligne_message}};
    Jauge_progression Jauge              {*this, {L"Jauge",              6990,  5295,  2820,  300, L"",                       aide_jauge}};
    std::array<Ligne, 4> Ligne_jauge{{
        {*this, {L"Ligne_jauge(0)", 6960, 5265, 2880, 15, L""}},
        {*this, {L"Ligne_jauge(1)", 6960, 5610, 2880, 15, L""}},
        {*this, {L"Ligne_jauge(2)", 6960, 5265, 15, 360, L""}},
        {*this, {L"Ligne_jauge(3)", 9825, 5265, 15, 360, L""}},
    }};
    Bouton_commande   Arret              {*this, {L"Arret",              9960,  5265,  1470,  360, L"&Arrêter",               aide_arret}};
    // Programmed buttons
    Ligne             Ligne2             {*this, {L"Ligne2",              120,  5700, 11310,   45, L""}};
    std::array<Bouton_commande, 7> Bouton{{
        {*this, {L"Bouton(0)", 120, 5820, 1380, 360, L"", aide_bouton}},
        {*this, {L"Bouton(1)", 1560, 5820, 1380, 360, L"", aide_bouton}},
        {*this, {L"Bouton(2)", 3000, 5820, 1380, 360, L"", aide_bouton}},
        {*this, {L"Bouton(3)", 4440, 5820, 1380, 360, L"", aide_bouton}},
        {*this, {L"Bouton(4)", 5880, 5820, 1380, 360, L"", aide_bouton}},
        {*this, {L"Bouton(5)", 7320, 5820, 1380, 360, L"", aide_bouton}},
        {*this, {L"Bouton(6)", 8760, 5820, 1380, 360, L"", aide_bouton}},
    }};
    Bouton_commande   Bouton_suite       {*this, {L"Bouton_suite",      10200,  5820,  1230,  360, L"Suiva&nts",              aide_bouton_suite}};
    // Windows of the program, help, end
    Ligne             Ligne3             {*this, {L"Ligne3",              120,  6255, 11310,   45, L""}};
    Bouton_commande   Corbeille          {*this, {L"Corbeille",           120,  6375,  1950,  360, L"Cor&beille",             aide_corbeille}};
    Bouton_commande   Configurer         {*this, {L"Configurer",         2190,  6375,  1950,  360, L"Confi&gurer",            aide_configurer}};
    Bouton_commande   Options            {*this, {L"Options",            4260,  6375,  1950,  360, L"&Options",               aide_options}};
    Bouton_commande   A_propos           {*this, {L"A_propos",           6330,  6375,  1950,  360, L"À propos de &KORVANE",   aide_a_propos}};
    Bouton_commande   Aide               {*this, {L"Aide",               8400,  6375,   960,  360, L"?",                      texte_introduction}};
    Bouton_commande   Quitter            {*this, {L"Quitter",            9480,  6375,  1950,  360, L"&Quitter",               aide_quitter}};
    // Help panel: below the client area until the window is made taller
    Etiquette         Fenêtre            {*this, {L"Fenêtre",             120,  6855, 11310,  990, L""}, Alignement::gauche, false, true};
    // Never shown: the patterns of the saved selections
    Liste             Liste_sel          {*this, {L"Liste_sel",           240,  2880,  4260, 2100, L""}, false};
    // clang-format on

    std::wstring                Titre_sauve;          // caption that the window takes when it is no icon
    std::wstring                Motif_courant;        // last pattern that the lists accepted
    std::wstring                Premier_fichier;      // first of the files counted on the message line
    std::uint64_t               Total_selection = 0;  // bytes of the files counted on the message line
    std::vector<Fichier_trouve> Resultats;            // of Fichier_sél, entry by entry
};
