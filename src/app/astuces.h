#pragma once

class Controle;
class Etiquette;
class Liste;
struct Gestion_Fichiers;

// The tip box: the whole text of a list entry too long for its list, under the pointer.
void Suivre_pointeur(Controle * controle);  // the pointer is over this control, null for none
void Brancher_astuces(Gestion_Fichiers & f);

// The same for one list of another window, which shows it in a label of its own.
void Suivre_pointeur(const Controle * controle, const Liste & liste, Etiquette & tip);
void Preparer_astuce(Liste & liste, Etiquette & tip);
