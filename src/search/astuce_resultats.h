#pragma once
#include <cstddef>

struct Cherche_Fichier;

// The tip of the search results: the whole of a path too long for the list and, on the progress line, how many directories
// could not be read.
void Brancher_astuce_resultats(Cherche_Fichier & c);  // after Brancher_fille, whose help texts go on
void Noter_sautes(std::size_t nombre);
