#pragma once

struct Gestion_Fichiers;

// Binds the commands to their buttons and the Delete key to those that remove.
void Brancher_commandes(Gestion_Fichiers & f);

void Copier_Click();      // the selected files into the DESTINATION directory
void Déplacer_Click();    // the same, and they are no longer in SOURCE
void Effacer_Click();     // the selected files, into the recycle bin when it can take them
void Supprimer_Click();   // the SOURCE directory itself
void Renommer_Click();    // the selected files; in directory mode the SOURCE directory
void Créer_Click();       // a directory in the SOURCE directory
void Editer_Click();      // hands the selected files to the editor
void Visualiser_Click();  // and to the viewer
void Exécuter_Click();    // starts the first selected file
void Imprimer_Click();    // prints them as text, one print job each
