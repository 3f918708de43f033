#pragma once
#include "recycle/lignes.h"

#include <string>
#include <vector>

// A path or a name without regard to case.
std::wstring Sans_casse(std::wstring texte);

// Looks at the disk for the stored files of these lines and sets `presence` in each.
void Constater_presences(std::vector<Ligne_index> & lignes);

// Whether what is not found there may be found later: the drive does not answer, or its medium may be another one.
bool Peut_revenir(const std::wstring & chemin);
