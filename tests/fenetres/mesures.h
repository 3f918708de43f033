#pragma once
#include "platform/windows.h"

#include <string>

// What the screen's resolution and the windows' font make of lengths and texts.
int Resolution_ecran();  // points by inch
int En_pixels(int twips);
int En_twips(int pixels);

// Pixels that a text takes; wrapped at `largeur` pixels unless that is 0.
SIZE Taille_texte(const std::wstring & texte, int largeur = 0);
