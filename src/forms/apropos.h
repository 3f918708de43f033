#pragma once
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"

// The banner of the start, shown again as the about window: then its OK button is visible.
struct Apropos : Fenetre {
    Apropos() : Fenetre(L"Apropos", L"À propos de KORVANE", 5400, 2250, Bordure::banniere) {}

    // clang-format off
    Image           Icone       {*this, {L"Icone",        390,  765,  720,  720, L""}};
    Cadre           Bandeau     {*this, {L"Bandeau",        0,    0, 1500, 2250, L""}};
    Etiquette       Produit     {*this, {L"Produit",     1860,  420, 3300,  270, L"KORVANE"}, Alignement::gauche, true};
    Etiquette       Description {*this, {L"Description", 1860,  735, 3300,  270, L"Gestionnaire de fichiers"}};
    Etiquette       Version     {*this, {L"Version",     1860, 1050, 3300,  270, L"Version 1.0"}};
    Bouton_commande OK          {*this, {L"OK",          1860, 1575, 1440,  375, L"OK"}};
    // clang-format on
};
