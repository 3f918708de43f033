#pragma once
#include <functional>
#include <string>

class Controle;
class Etiquette;
class Fenetre;
class Liste;

// What the windows opened from the main window have in common: the command that opens them, where they appear, the context
// help of their controls in the main window's panel, how they close.

// The gate of a command that opens a window: false while another command is in progress, or when the user, asked because commands
// are to be confirmed, declines. `action` is what is about to be done: "CHERCHER\rdes fichiers".
bool Accepter_commande(const std::wstring & action);

// Binds F1 and the help texts: a control explains itself when the pointer passes over it, `aide_fenetre` is the
// text of the window itself. Once, when the window is made.
void Brancher_fille(Fenetre & fille, const wchar_t * aide_fenetre);
// The same with a text that is made when it is shown.
void Brancher_fille(Fenetre & fille, std::function<std::wstring()> aide_fenetre);
// Escape and the X of the frame do this instead of pressing the cancel button. After Brancher_fille.
void Brancher_abandon(Fenetre & fille, const std::function<void()> & abandonner);
// The whole text of an entry too long for this list shows in `tip`, under the pointer. After Brancher_fille.
void Brancher_astuce(Fenetre & fille, Liste & liste, Etiquette & tip);

// Places the window `droite` and `bas` twips from the main window's top-left corner, whole on the screen where that window is.
void Placer_fille(Fenetre & fille, int droite, int bas);
// The closing routine: the window is hidden, which ends its modal showing, and the help panel takes the
// general hint again.
void Fermer_fille(Fenetre & fille);

// Files changed under the panes: both file lists are read again and keep what is selected and still there, the message line counts
// it, the free space shows. Never throws; search results stay.
void Actualiser_panneaux();
