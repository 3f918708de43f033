#pragma once
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"

// The banner of the start, shown again as the about window: then its OK button is visible.
struct Apropos : Fenetre {
    Apropos() : Fenetre(L"Apropos", L"A propos de KORVANE", 5400, 2550, Bordure::banniere) {}

    // clang-format off
    Image           Icone       {*this, {L"Icone",        360,  360,  720,  720, L""}};
    Etiquette       Nom         {*this, {L"Nom",         1320,  360, 3780,  300, L"KORVANE"}, Alignement::gauche, true};
    Etiquette       Description {*this, {L"Description", 1320,  690, 3780,  300, L"Gestionnaire de fichiers"}};
    Etiquette       Version     {*this, {L"Version",     1320, 1005, 3780,  300, L"Version 1.0"}};
    Ligne           Separation  {*this, {L"Separation",   360, 1560, 4680,   15, L""}};
    Bouton_commande OK          {*this, {L"OK",          1980, 1815, 1440,  375, L"OK"}};
    // clang-format on
};
