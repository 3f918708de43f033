#pragma once

struct Gestion_Fichiers;

// File mode and directory mode of the main window.
void Brancher_mode(Gestion_Fichiers & f);
