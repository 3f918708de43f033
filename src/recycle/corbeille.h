#pragma once
#include "recycle/magasin.h"

#include <functional>
#include <vector>

// The program's recycle bin: the store under the limits of the settings and the running total that they keep.

Magasin & Magasin_corbeille();

// Opens the store, in the system directory or else in the user's own data; silent when it cannot: the next command that needs it
// says so. The total is that of the settings, corrected by the index.
void Ouvrir_corbeille();
// Opens the store if it is not open; the error of the last place tried otherwise.
void Exiger_corbeille();
// Enforces the limits and saves the total; silent.
void Purger_corbeille();
// Writes Total_corbeille to the settings.
void Enregistrer_total();
// Stores files, see Magasin::Deposer; adds to Total_corbeille. Error 6, before anything is done, when that total would overflow.
std::size_t Deposer_fichiers(const std::vector<Depot> & depots, const std::function<bool()> & continuer);
// Whether this file is larger than the size limit.
bool Plus_grand_que_corbeille(std::uint64_t taille);
