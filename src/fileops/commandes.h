#pragma once

struct Gestion_Fichiers;

void Brancher_commandes(Gestion_Fichiers & f);

void Copier_Click();    // the selected files into the DESTINATION directory
void Déplacer_Click();  // the same, and they are no longer in SOURCE
