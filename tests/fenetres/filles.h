#pragma once
#include "fenetres/commandes.h"
#include "pilote/fille.h"

#include <string>
#include <vector>

// What the tests of the windows opened from the main window have in common.
class Filles : public Commandes {
protected:
    struct Texte_aide {
        const wchar_t * controle;  // empty for the window itself
        std::wstring    texte;
    };

    Pilote::Fille Fille(const std::wstring & nom) const { return {programme->Numero(), nom}; }
    // The main window near the corner of the screen: what opens from it finds room.
    void Ranger_principale() const;
    // That window, which the button has opened, from a main window near the corner.
    Pilote::Fille Ouvrir_par(const std::wstring & bouton, Pilote::Fille fille);
    // Pixels from the main window's top-left corner to that of the child, which must be `droite` and `bas` twips.
    void Verifier_place(const Pilote::Fille & fille, int droite, int bas) const;
    // Tab goes through these controls in this order from the one with the focus, Shift+Tab back; the layout has no defect.
    void Verifier_clavier_et_disposition(const Pilote::Fille &             fille,
                                         const std::vector<std::wstring> & attendus) const;

    LONG Hauteur_principale() const;
    void Activer_aide();
    // These texts to the letter; every other visible control has one of its own, which begins with two blanks.
    void Verifier_aide(const Pilote::Fille & fille, const std::vector<Texte_aide> & attendus);
    void Attendre_rappel_aide();

    // The report of an error that has no message of its own; the system's wording stands in the middle.
    void Attendre_rapport(const std::wstring & commande, int code);
    // The main window takes input again and nothing else shows.
    void Verifier_principale_utilisable();

private:
    void Pointer_et_attendre(HWND controle, const std::wstring & texte);
};
