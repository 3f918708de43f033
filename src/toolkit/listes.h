#pragma once
#include "toolkit/controle.h"

#include <vector>

// A list box; `multiple` gives extended selection (click, Ctrl, Shift, drag, Ctrl+A, first letter).
class Liste : public Controle {
public:
    Liste(Fenetre & fenetre, const Place & place, bool multiple);

    int              ListCount() const;
    std::wstring     List(int index) const;
    virtual int      ListIndex() const;     // entry with the focus, -1 when none
    virtual void     ListIndex(int index);  // raises Click when it changes
    bool             Selected(int index) const;
    void             Selected(int index, bool choisi);                // raises Click when the state changes
    std::vector<int> Selection() const;                               // indexes selected, ascending
    void             Tout_selectionner(bool choisi);                  // raises nothing
    void             Selectionner(const std::vector<int> & indices);  // these and no other; raises nothing
    int              TopIndex() const;
    void             TopIndex(int index);
    void             AddItem(const std::wstring & texte);
    void             Ajouter(const std::vector<std::wstring> & textes);  // at the end; redrawn once
    void             RemoveItem(int index);
    void             Clear();
    void Remplir(const std::vector<const wchar_t *> & textes);  // the whole content at once; redrawn once
    bool Souris() const { return souris_; }  // the event being handled comes from the mouse
    // The entry under a point of the list and whether its text is wider than the list; -1 for none.
    int Entree_survolee(bool & coupee) const;

    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void()> Scroll;

protected:
    Liste(Fenetre & fenetre, const Place & place, bool multiple, bool dessinee);
    void        Notification(unsigned code) override;
    bool        Message(unsigned message, std::uintptr_t mot, std::intptr_t large,
                        std::intptr_t & resultat) override;
    void        Apres_message(unsigned message, std::uintptr_t mot, std::intptr_t large) override;
    void        Ajouter_sans_dessin(const std::vector<const wchar_t *> & textes);
    virtual int Retrait(int ligne) const {  // pixels before an entry's text
        (void)ligne;
        return 0;
    }

    int  Arrivee(int touche) const;
    bool Prendre_ctrl(int touche);
    void Aller_a_initiale(wchar_t lettre);

    bool        multiple_;
    std::size_t reservees_ = 0;      // entries that the list has room for
    bool        touche_    = false;  // an entry has had the focus since the list was filled
    bool        souris_    = false;
};

// A combo box: drop-down list alone, or with an editable text.
class Liste_combinee : public Controle {
public:
    Liste_combinee(Fenetre & fenetre, const Place & place, bool editable);

    std::wstring Text() const;
    void         Text(const std::wstring & texte);  // editable: raises Change when it differs
    int          ListCount() const;
    std::wstring List(int index) const;
    int          ListIndex() const;
    void         ListIndex(int index);                              // raises Click when it changes
    void         Choisir(int index) { Choisir_en_silence(index); }  // raises nothing
    void         AddItem(const std::wstring & texte);
    void         RemoveItem(int index);
    void         Clear();
    void         Caret_a_la_fin();
    void         Selectionner(int debut);   // of the text, from there to its end
    bool         Deroule() const override;  // the list is open: arrows, Enter and Escape are its own

    std::function<void()> Change;
    std::function<void()> Click;

protected:
    void         Notification(unsigned code) override;
    bool         Message(unsigned message, std::uintptr_t mot, std::intptr_t large,
                         std::intptr_t & resultat) override;
    virtual void Choix_fait();  // the user chose an entry
    void         Choisir_en_silence(int index);
    bool         Prendre_touche(int touche) override;
    void         Refermer() override;
    void         Reprendre_focus() override;

private:
    void Oublier_choix();
    void Renoncer_au_choix();

    bool          editable_;
    int           dernier_ = -1;  // entry last reported
    bool          annule_  = false;
    std::wstring  texte_;       // text last reported
    std::intptr_t marque_ = 0;  // of the text, when another control took the focus: its ends in two halves
};
