#pragma once

class Controle;
struct Gestion_Fichiers;

void Basculer_aide();             // context help on or off, or the help file chosen as what F1 opens
void Rappel_aide();               // the general hint, when a window that had its own texts closes
void Form_KeyDown(int & touche);  // F1; 0 when the key is finished with
void Expliquer(
    const Controle * controle);  // puts a control's help text, the window's own for null, into the panel
void Expliquer(const Controle * controle, const wchar_t * aide_fenetre);  // the same in another window
void Brancher_aide(Gestion_Fichiers & f);
