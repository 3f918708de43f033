#pragma once
#include "toolkit/controle.h"

// The plain controls.

enum class Alignement { gauche, centre, droite };

// A text; "&" is shown as it stands. A text too long for it ends with "...".
class Etiquette : public Controle {
public:
    Etiquette(Fenetre & fenetre, const Place & place, Alignement alignement = Alignement::gauche,
              bool grasse = false, bool plusieurs_lignes = false);
    const std::wstring &  Caption() const { return caption_; }
    void                  Caption(const std::wstring & texte);  // redrawn only when it differs
    std::function<void()> Click;

protected:
    void Notification(unsigned code) override;

private:
    std::wstring caption_;
};

// A push button. Without a Click handler it stays disabled, whatever Enabled says.
class Bouton_commande : public Controle {
public:
    Bouton_commande(Fenetre & fenetre, const Place & place);
    std::wstring Caption() const { return Texte_fenetre(); }
    void         Caption(const std::wstring & texte);  // centred; one that is too long shows its beginning
    void         Enabled(bool actif) override;
    bool         Enabled() const { return Controle::Enabled(); }
    void         Brancher(std::function<void()> click);  // binds Click; the button becomes usable
    void         Cliquer();                              // what a user's click does, when visible and enabled
    // Clicks in quick succession count one by one, for a button that steps through something; otherwise the second of a
    // double click starts nothing again.
    void Chaque_clic() { chaque_clic_ = true; }

protected:
    void Notification(unsigned code) override;
    bool Enfoncer() override;

private:
    std::function<void()> click_;
    bool                  voulu_       = true;
    bool                  chaque_clic_ = false;
};

// A one-line text field.
class Champ_texte : public Controle {
public:
    Champ_texte(Fenetre & fenetre, const Place & place);
    std::wstring Text() const { return Texte_fenetre(); }
    void         Text(const std::wstring & texte);  // raises Change when it differs
    void         Selectionner(int debut, int longueur);
    void         Limite(int caracteres);
    void         Montrer_seulement();  // its text cannot be typed into, and Tab passes it over

    std::function<void()> Change;

protected:
    void Notification(unsigned code) override;

private:
    bool assigne_ = false;
};

class Case_a_cocher : public Controle {
public:
    Case_a_cocher(Fenetre & fenetre, const Place & place);
    bool                  Value() const;
    void                  Value(bool coche);  // raises Click when it differs
    std::function<void()> Click;

protected:
    void Notification(unsigned code) override;
    bool Acces() override;
};

// One of a group: the group begins with the option made with `premiere`.
class Bouton_option : public Controle {
public:
    Bouton_option(Fenetre & fenetre, const Place & place, bool premiere = false);
    bool Value() const;
    void Value(bool choisi);  // raises Click when it differs; the others of the group are unchosen
    std::function<void()> Click;

protected:
    void Notification(unsigned code) override;
    bool Acces() override;
    bool Veut_fleches() const override { return true; }

private:
    void Quitter_les_autres();
};

// A coloured panel with a border, behind the controls of its group.
class Cadre : public Controle {
public:
    Cadre(Fenetre & fenetre, const Place & place);
    void BorderColor(Couleur couleur);

protected:
    void Dessiner(const void * dessin) override;

private:
    Couleur bord_;
};

// A straight line: as long as its place, BorderWidth thick (pixels at 96 DPI).
class Ligne : public Controle {
public:
    Ligne(Fenetre & fenetre, const Place & place);
    void BorderWidth(int epaisseur);
    int  BorderWidth() const { return epaisseur_; }

private:
    int epaisseur_ = 1;
};

// A picture: an icon of the program or of the system.
class Image : public Controle {
public:
    enum class Icone {
        aucune      = 0,
        arret       = 16,
        question    = 32,
        exclamation = 48,
        information = 64,
        programme   = 1
    };
    Image(Fenetre & fenetre, const Place & place);
    void Picture(Icone icone);
};

// A progress bar with a text over it.
class Jauge_progression : public Controle {
public:
    Jauge_progression(Fenetre & fenetre, const Place & place);
    double               Value() const { return valeur_; }
    void                 Value(double pour_cent);  // 0 to 100
    const std::wstring & Caption() const { return caption_; }
    void                 Caption(const std::wstring & texte);

protected:
    void Dessiner(const void * dessin) override;

private:
    double       valeur_ = 0;
    std::wstring caption_;
};

// A horizontal scroll bar: arrows, slider, Home and End, wheel.
class Barre_defilement : public Controle {
public:
    Barre_defilement(Fenetre & fenetre, const Place & place);
    void                  Bornes(int minimum, int maximum);
    int                   Value() const { return valeur_; }
    void                  Value(int valeur);  // raises Change when it differs
    std::function<void()> Change;
    std::function<void()> Scroll;  // while the slider is dragged, after Change

protected:
    void Notification(unsigned code) override;
    bool Message(unsigned message, std::uintptr_t mot, std::intptr_t large,
                 std::intptr_t & resultat) override;

private:
    void Montrer_place();

    int minimum_ = 0, maximum_ = 7, valeur_ = 0;
    int molette_ = 0;  // turned and not yet a step
};
