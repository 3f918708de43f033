#pragma once

class Liste_fichiers;
struct Gestion_Fichiers;

// The pattern field.
void Brancher_motif(Gestion_Fichiers & f);

// Reads a file list again with the current pattern; nothing stays selected. Errors as Liste_fichiers::Relire.
void Appliquer_motif(Liste_fichiers & liste);
