#pragma once
// What the sources of the toolkit share; nobody else includes it.
#include "platform/windows.h"
#include "toolkit/controle.h"

#include <vector>

class Bouton_commande;
class Fenetre;

Controle *               Controle_de_poignee(HWND poignee);  // null for a window that is no control of ours
Fenetre *                Fenetre_de_poignee(HWND poignee);   // of a top-level window; null for others
std::vector<Fenetre *> & Fenetres();                         // all that exist
bool                     Pointeur_occupe(HWND poignee);      // the hourglass shows over this window
Bouton_commande *        Bouton_reserve();                   // input is reserved to it, null when not
void                     Abandonner_pour_fin_de_session();
void                     Nommer(HWND poignee, const std::wstring & nom);
COLORREF                 Rouge_vert_bleu(Couleur couleur);
inline HINSTANCE         Module() { return GetModuleHandleW(nullptr); }

// Keyboard treatment before a message is dispatched.
class Saisie_clavier {
public:
    static bool Traiter(MSG & message);  // true: finished with

private:
    static bool Parcourir(MSG & message, Fenetre & fenetre);
    static bool Touche_enfoncee(MSG & message, Fenetre & fenetre, Controle * controle);
    static bool Caractere(MSG & message, Controle * controle);
    static bool Entree(Fenetre & fenetre, Controle * controle);
    static bool Echappement(Fenetre & fenetre, Controle * controle);
    static bool Reservee(const MSG & message, Bouton_commande & bouton);
};
