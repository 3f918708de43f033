#pragma once
#include "forms/aide_cherche_fichier.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"
#include "toolkit/listes.h"

// The search and what it finds.
struct Cherche_Fichier : Fenetre {
    static constexpr const wchar_t * titre_attente = L"     Veuillez patienter . . .";

    Cherche_Fichier() : Fenetre(L"Cherche_Fichier", titre_attente, 7080, 4335, Bordure::dialogue) {}

    // clang-format off
    Etiquette       Tip        {*this, {L"Tip",        240,  540, 6600,  255, L""}, Alignement::gauche, false, true};
    Etiquette       Libellé1   {*this, {L"Libellé1",   240,  180, 1650,  255, L"Modèle recherché :", aide_cherche_fichier}};
    Etiquette       Recherche  {*this, {L"Recherche", 1950,  180, 4890,  255, L"",                   aide_recherche}, Alignement::gauche, true};
    Liste           Liste_sél  {*this, {L"Liste_sél",  240,  540, 6600, 3000, L"",                   aide_liste_sél}, true};
    Etiquette       Mess_infos {*this, {L"Mess_infos", 240, 3720, 3510,  375, L"",                   aide_mess_infos}};
    Bouton_commande OK         {*this, {L"OK",        3840, 3720, 1440,  375, L"&OK",                aide_recherche_ok}};
    Bouton_commande Annule     {*this, {L"Annule",    5400, 3720, 1440,  375, L"&Annuler",           aide_recherche_annule}};
    // clang-format on
};
