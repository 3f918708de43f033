#pragma once
#include "recycle/fiche.h"

// What is done to one stored file. At every moment it has one of its two names.

// The file takes its coded name, hidden and read-only. After an error it has its own name and attributes again, unless `code` says
// that even this failed. Errors 75 for a read-only file, 58 when the coded name is taken.
void Coder(const Fiche & fiche, bool & code);

// The file has its own name back, with what a stored file keeps of its attributes. After an error it is as it was. Error 58 when its
// own name is taken.
void Decoder(const Fiche & fiche);

// The file is deleted for good. What is gone already, alone or with its directory, counts as deleted, unless its drive or its medium
// may come back.
void Detruire_code(const Fiche & fiche);
