#pragma once
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"

#include <array>
#include <string>

// The three-button question. Its height and the places of its buttons follow the message.
struct Dialogue : Fenetre {
    static constexpr int largeur = 6300;  // twips, client area
    static constexpr int hauteur = 1500;

    Dialogue() : Fenetre(L"Dialogue", L"Gestionnaire de fichiers", largeur, hauteur, Bordure::dialogue) {}

    // clang-format off
    Image           Icone   {*this, {L"Icone",    240, 240,  480, 480, L""}};
    Etiquette       Texte   {*this, {L"Texte",    960, 240, 5100, 480, L""}, Alignement::gauche, false, true};
    Bouton_commande Bouton1 {*this, {L"Bouton1",  960, 945, 1440, 375, L""}};
    Bouton_commande Bouton2 {*this, {L"Bouton2", 2520, 945, 1440, 375, L""}};
    Bouton_commande Bouton3 {*this, {L"Bouton3", 4080, 945, 1440, 375, L""}};
    // clang-format on

    std::array<Bouton_commande *, 3> Boutons{&Bouton1, &Bouton2, &Bouton3};
    std::wstring                     Tag;                                    // " 1", " 2" or " 3"
    const int                        Cadre_horizontal = Width() - largeur;   // twips that the frame takes
    const int                        Cadre_vertical   = Height() - hauteur;  // with the caption bar
};
