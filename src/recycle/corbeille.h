#pragma once
#include "recycle/magasin.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// The program's recycle bin: the store under the limits of the settings and the running total that they keep.

Magasin & Magasin_corbeille();

// Opens the store anew, in the system directory or else in the user's own data; silent when it cannot: the next command that needs
// it says so. The total is that of the settings, corrected by the index.
void Ouvrir_corbeille();
// Reads the limits that a locked file kept from being read at the start, and opens the store that they put in use. Error 70 while it
// stays locked: without its limits an erasure would be final, and the bin's window would save none.
void Exiger_limites();
// Opens the store if it is not open; the error of the last place tried otherwise.
void Exiger_corbeille();
// What is asked between two files: lets events run; false once the stop was asked for or the program ends.
bool Laisser_continuer();
// Enforces the limits and saves the total; silent. Events run between the files, but no command; Arret_demande ends it.
void Purger_corbeille();
// The sum of the sizes in the bin, in Total_corbeille; what 32 bits cannot hold gives the most they can.
void Recalculer_total();
// Renames a directory, see Magasin::Suivre_repertoire, also while the bin is not in use: it may still hold files. When there is an
// index and it cannot be opened the directory keeps its name.
void Renommer_repertoire_suivi(const std::wstring & ancien, const std::wstring & nouveau);
// Error 75, without a current file, for a file that lies in the bin: under another name or elsewhere nothing would lead back to it.
// The error of the index when the name is one of the bin's and the index cannot be read.
void Exiger_hors_corbeille(const std::wstring & chemin);
// Writes Total_corbeille to the settings.
void Enregistrer_total();
// Stores files, see Magasin::Deposer, and says how many; adds to Total_corbeille, after an error too. Error 6 for a file with which
// that total would overflow; those before it are stored.
std::size_t Deposer_fichiers(const std::vector<Depot> & depots, const std::function<bool()> & continuer);
// Whether this file is larger than the size limit.
bool Plus_grand_que_corbeille(std::uint64_t taille);
