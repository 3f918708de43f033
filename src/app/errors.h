#pragma once

struct Erreur_execution;

// Words a run-time error for the user and shows it: the one place where failures become messages. Reads
// Commande_en_cours, Fichier_courant and the panes; a full diskette is a question, whose answer goes to
// Reponse (6 go on, 2 give up). The main window must be in order already: a box lets events run.
void Signaler_erreur(const Erreur_execution & erreur);
