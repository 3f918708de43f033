#pragma once

class Controle;
class Fenetre;

// What the windows opened from the main window have in common: where they appear, the context help of their
// controls in the main window's panel, how they close.

// Binds F1 and the help texts: a control explains itself when the pointer passes over it, `aide_fenetre` is the
// text of the window itself. Once, when the window is made.
void Brancher_fille(Fenetre & fille, const wchar_t * aide_fenetre);
// Places the window `droite` and `bas` twips from the main window's top-left corner, whole on the screen.
void Placer_fille(Fenetre & fille, int droite, int bas);
// The closing routine: the window is hidden, which ends its modal showing, and the help panel takes the
// general hint again.
void Fermer_fille(Fenetre & fille);
