#pragma once

struct Gestion_Fichiers;

// The main window's life: its fixed size, its keys, the stop button, the end.
void Brancher_fenetre_principale(Gestion_Fichiers & f);

// Back to the browsing state: mode flags down, progress hidden, every list read again, nothing selected and
// the message line empty, but for the entry that a command asked to take up again (Index_a_reprendre). Never
// throws: a drive that is not ready leaves its list as it was.
void Retablir_fenetre();

void Form_Resize();  // holds the window at its place and size
void Quitter_Click();
void A_propos_Click();
