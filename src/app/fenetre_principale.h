#pragma once
#include <string>

struct Gestion_Fichiers;

// The main window's life: its fixed size, its keys, the stop button, the end.
void Brancher_fenetre_principale(Gestion_Fichiers & f);

// Back to the browsing state: mode flags down, progress hidden, every list read again, nothing selected and
// the message line empty, but for the entry that a command asked to take up again (Index_a_reprendre). Never
// throws: a drive that is not ready leaves its list as it was.
void Retablir_fenetre();
// The same after a command that an error ended, but that the search results stay, as long as there are any: what
// the command did not treat is still selected.
void Retablir_apres_echec(const std::wstring & commande);

void Form_Resize();  // holds the window at its place and size
void Quitter_Click();
void A_propos_Click();
