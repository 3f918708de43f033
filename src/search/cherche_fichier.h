#pragma once
#include "platform/parcours.h"

#include <vector>

// Searches the SOURCE drive for what the search request holds, in front of the main window, and lets the user choose among
// the files found. Returns those chosen; none when the search was cancelled, failed or found nothing.
std::vector<Fichier_trouve> Chercher_fichiers();
