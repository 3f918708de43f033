#pragma once
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"
#include "toolkit/listes.h"
#include "toolkit/vue_texte.h"

// The viewer's window: the files of its command line, the one that is shown, and what is done with it.
struct Fenetre_visionneuse : Fenetre {
    Fenetre_visionneuse() : Fenetre(L"Visionneuse", L"Visionneuse", 11100, 7200, Bordure::principale) {}

    // clang-format off
    Etiquette       Titre_fichiers {*this, {L"Titre_fichiers",   120,  165,   960,  255, L"Fichier :"}};
    Liste_combinee  Fichiers       {*this, {L"Fichiers",         1110,  120,  6150,  330}, false};
    Bouton_commande Ouvrir         {*this, {L"Ouvrir",          7380,  105,  1140,  360, L"&Ouvrir..."}};
    Bouton_commande Imprimer       {*this, {L"Imprimer",        8610,  105,  1140,  360, L"&Imprimer"}};
    Bouton_commande Fermer         {*this, {L"Fermer",          9840,  105,  1140,  360, L"&Fermer"}};
    Etiquette       Titre_affichage{*this, {L"Titre_affichage",  120,  615,   960,  255, L"Affichage :"}};
    Liste_combinee  Affichage      {*this, {L"Affichage",        1110,  570,  1860,  330}, false};
    Case_a_cocher   Retour         {*this, {L"Retour",          3090,  585,  1605,  300, L"Retour à la &ligne"}};
    Etiquette       Titre_recherche{*this, {L"Titre_recherche", 4755,  615,  1110,  255, L"Rechercher :"}};
    Champ_texte     Recherche      {*this, {L"Recherche",       5880,  570,  2640,  330}};
    Bouton_commande Suivant        {*this, {L"Suivant",         8610,  555,  1140,  360, L"&Suivant"}};
    Bouton_commande Arrêter        {*this, {L"Arrêter",         9840,  555,  1140,  360, L"&Arrêter"}};
    Vue_texte       Vue            {*this, {L"Vue",                0, 1020, 11100, 5790}};
    Etiquette       Etat           {*this, {L"Etat",             120, 6885,  6480,  255}};
    Etiquette       Position       {*this, {L"Position",        6720, 6885,  4260,  255}, Alignement::droite};
    // clang-format on
};
