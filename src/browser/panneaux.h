#pragma once

struct Gestion_Fichiers;

// The two panes: drive, directory and file lists and the path field, kept in step; the swap of the panes. `ouvrir` is what a
// double-click on a file of the SOURCE pane does.
void Brancher_panneaux(Gestion_Fichiers & f, void (*ouvrir)());

// The SOURCE file list was read: commands, colours, message line; search results are left.
void Fichier_srce_PathChange();
void Répertoire_srce_Click();
void Unité_srce_Change();
