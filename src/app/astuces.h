#pragma once

class Controle;
struct Gestion_Fichiers;

// The tip box: the whole text of a list entry too long for its list, under the pointer.
void Suivre_pointeur(Controle * controle);  // the pointer is over this control, null for none
void Brancher_astuces(Gestion_Fichiers & f);
