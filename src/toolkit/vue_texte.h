#pragma once
#include "texte/rangees.h"
#include "toolkit/controle.h"

#include <exception>
#include <functional>
#include <string>
#include <vector>

// Positions of the bytes from `debut` to before `fin`.
struct Plage_octets {
    std::uint64_t debut = 0;
    std::uint64_t fin   = 0;

    bool Vide() const { return fin <= debut; }
    bool operator==(const Plage_octets &) const = default;
};

// Shows rows in a fixed-pitch font, a part of a content of any length, with scroll bars, wheel, keys and a selection of bytes made
// with the mouse. Its window text is what can be read in it, one row a line.
class Vue_texte : public Controle {
public:
    Vue_texte(Fenetre & fenetre, const Place & place);
    ~Vue_texte() override;

    // Shows that content, the row of `position` on top as far as the last page allows, nothing selected. The content belongs to
    // the caller, who hands over another one, or null, before it goes.
    void Contenu(Contenu_rangees * contenu, std::uint64_t position = 0);
    // The same place in another content: the top row and the selection stay.
    void Remplacer(Contenu_rangees * contenu);
    // A text in place of the rows, until the next content.
    void Avis(const std::wstring & texte);
    void Relire();  // the rows are asked for again

    std::uint64_t Premiere() const { return premiere_; }  // position of the top row
    std::uint64_t Apres_derniere() const;                 // position after the last row that shows
    unsigned      Colonnes() const;                       // that fit side by side
    void          Aller(std::uint64_t position);          // its row comes on top, or the last page
    Plage_octets  Selection() const;
    void          Selectionner(const Plage_octets & plage);
    void          Montrer(const Plage_octets & plage);  // selects it and scrolls as little as needed

    std::function<void()>                       Defile;  // other rows show, or the same ones again
    std::function<void()>                       Taille;  // another number of columns or rows fits
    std::function<void(const std::exception &)> Panne;   // the content could not be read; nothing is thrown

protected:
    bool Message(unsigned message, std::uintptr_t mot, std::intptr_t large,
                 std::intptr_t & resultat) override;

private:
    bool Traiter(unsigned message, std::uintptr_t mot, std::intptr_t large, std::intptr_t & resultat);
    void Proteger(const std::function<void()> & corps);
    void Mesurer();
    void Charger();  // reads the rows that show
    int  Rangees_entieres() const;
    std::uint64_t Precedente(std::uint64_t position) const;
    std::uint64_t Derniere_page();
    void          Defiler(int rangees);
    void          Defiler_cote(int colonne);
    void          Barre_verticale(unsigned code);
    void          Barre_horizontale(unsigned code);
    void          Regler_barres();
    bool          Touche_frappee(int touche);
    bool          Touche_cote(int touche);
    bool          Souris(unsigned message, std::uintptr_t mot, std::intptr_t large);
    void          Tirer(int x, int y);
    bool          Lacher();
    std::uint64_t Position_sous(int x, int y) const;
    void          Molette(int crans);
    void          Peindre();
    void          Peindre_rangee(void * dessin, const Rangee & rangee, int y, int droite) const;
    void          Peindre_troncon(void * dessin, const Rangee & rangee, std::size_t de, std::size_t a, int y,
                                  bool choisi) const;
    bool          Choisie(const Rangee & rangee, std::size_t colonne) const;
    std::wstring  Texte_visible() const;
    std::size_t   Plus_longue() const;
    bool          Rendre_texte(unsigned message, std::uintptr_t mot, std::intptr_t large,
                               std::intptr_t & resultat) const;

    Contenu_rangees *   contenu_ = nullptr;
    std::wstring        avis_;
    std::vector<Rangee> rangees_;  // those that show, the last one perhaps in part
    std::uint64_t       premiere_    = 0;
    std::uint64_t       page_        = 0;  // top of the last page, when `page_connue_`
    bool                page_connue_ = false;
    int                 colonne_     = 0;          // leftmost column
    std::uint64_t       ancre_ = 0, curseur_ = 0;  // the selection's ends, in the order of the mouse
    bool                tire_   = false;           // a drag is on
    int                 reste_  = 0;               // wheel movement short of a notch
    void *              police_ = nullptr;
    int                 pas_x_ = 8, pas_y_ = 16;     // pixels of a column and of a row
    int                 retrait_ = 0;                // pixels left blank at the left edge
    int                 largeur_ = 0, hauteur_ = 0;  // pixels for the rows
};
