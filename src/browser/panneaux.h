#pragma once

struct Gestion_Fichiers;

// The two panes: drive, directory and file lists and the path field, kept in step; the swap of the panes.
void Brancher_panneaux(Gestion_Fichiers & f);

void Fichier_srce_PathChange();  // the SOURCE file list was read: commands, colours, message line
void Répertoire_srce_Click();
void Unité_srce_Change();
