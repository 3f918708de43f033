#pragma once

struct Gestion_Fichiers;

// The command line: opened by Prompt, runs what is typed in the SOURCE directory, remembers the last commands.
void Brancher_ligne_commande(Gestion_Fichiers & f);
