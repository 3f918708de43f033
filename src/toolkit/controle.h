#pragma once
#include <cstdint>
#include <functional>
#include <string>

struct HWND__;
using Poignee_fenetre = HWND__ *;

class Fenetre;

// A colour 0x00BBGGRR, or 0x80000000 plus the index of a system colour.
using Couleur                                  = std::uint32_t;
inline constexpr Couleur couleur_fond_fenetre  = 0x80000005;
inline constexpr Couleur couleur_texte_fenetre = 0x80000008;
inline constexpr Couleur couleur_face          = 0x8000000F;
inline constexpr Couleur couleur_texte_bouton  = 0x80000012;

namespace Touche {
inline constexpr int retour_arriere = 8;
inline constexpr int entree         = 13;
inline constexpr int echap          = 27;
inline constexpr int fin            = 35;
inline constexpr int haut           = 38;
inline constexpr int bas            = 40;
inline constexpr int suppr          = 46;
inline constexpr int f1             = 112;
}  // namespace Touche

// Where a control stands on its window, in twips of the client area, its caption and its help text.
struct Place {
    const wchar_t * nom;
    int             left, top, width, height;
    const wchar_t * caption = L"";
    const wchar_t * aide    = L"";
};

// A control: a system window of its own, findable by its name through the window property "nom".
// Controls are members of their window, created with it, in tab order.
class Controle {
public:
    virtual ~Controle();
    Controle(const Controle &)             = delete;
    Controle & operator=(const Controle &) = delete;

    const std::wstring & Nom() const { return nom_; }
    const std::wstring & Aide() const { return aide_; }
    Fenetre &            Parent() const { return fenetre_; }
    Poignee_fenetre      Poignee() const { return poignee_; }

    int  Left() const { return left_; }
    int  Top() const { return top_; }
    int  Width() const { return width_; }
    int  Height() const { return height_; }
    void Placer(int left, int top, int width, int height);

    bool         Visible() const;  // as set, whatever its window's state
    void         Visible(bool visible);
    bool         Enabled() const { return actif_; }
    virtual void Enabled(bool actif);
    void         SetFocus();
    bool         A_le_focus() const;
    void         BackColor(Couleur couleur);
    void         ForeColor(Couleur couleur);
    Couleur      BackColor() const { return fond_; }
    Couleur      ForeColor() const { return encre_; }
    virtual void Refresh();

    std::function<void()>           GotFocus;
    std::function<void()>           LostFocus;  // to another control of the window
    std::function<void(int &, int)> KeyDown;   // key code, 0 consumes; shift state: 1 shift, 2 control, 4 alt
    std::function<void(wchar_t &)>  KeyPress;  // character, 0 consumes
    std::function<void(bool &)>     MouseDown;  // true: the control does not see the click
    std::function<void()>           MouseMove;

protected:
    struct Genre {
        const wchar_t * classe;
        std::uint32_t   style;
        std::uint32_t   style_etendu = 0;
        bool            tabulation   = true;
    };
    Controle(Fenetre & fenetre, const Place & place, const Genre & genre);

    friend class Fenetre;
    friend class Saisie_clavier;

    // A notification of the control to its window: the code of WM_COMMAND, or code and position of WM_HSCROLL.
    virtual void Notification(unsigned code) { (void)code; }
    // A message of the control before its own treatment; true with `resultat` set when it is finished.
    virtual bool Message(unsigned message, std::uintptr_t mot, std::intptr_t large, std::intptr_t & resultat);
    // After the control's own treatment.
    virtual void Apres_message(unsigned message, std::uintptr_t mot, std::intptr_t large);
    // Owner drawing; `dessin` is a DRAWITEMSTRUCT.
    virtual void Dessiner(const void * dessin) { (void)dessin; }
    // Enter and Escape that the control treats itself; false passes them to the default or cancel button.
    virtual bool Prendre_entree() { return static_cast<bool>(KeyPress); }
    virtual bool Enfoncer() { return false; }    // pressed by Enter; false: nothing to press
    virtual bool Acces() { return Enfoncer(); }  // reached by its access key; false: it has none
    // A key that the control treats before anything else (arrows of a closed drop-down list).
    virtual bool Prendre_touche(int touche) {
        (void)touche;
        return false;
    }
    // The focus again after a box or another window: what was marked in the control stays as it was.
    virtual void Reprendre_focus();
    void Quitter_focus(Poignee_fenetre vers);  // raises LostFocus when the focus goes to another control
    void Focus_pris();          // this is the control that has the focus in its window from now on
    virtual void Refermer() {}  // an open drop-down list closes, nothing chosen
    virtual bool Deroule() const { return false; }  // a drop-down list is open: Enter and Escape are its own
    virtual bool Veut_fleches() const { return false; }  // arrows walk through a group of options
    virtual void Peripherique_change() {}                // a device arrived or left

    std::intptr_t Envoyer(unsigned message, std::uintptr_t mot = 0, std::intptr_t large = 0) const;
    void *        Police_grasse() const;
    std::wstring  Texte_fenetre() const;
    void          Texte_fenetre(const std::wstring & texte);

private:
    static std::intptr_t __stdcall Procedure(Poignee_fenetre, unsigned, std::uintptr_t, std::intptr_t);
    void          Marquer_visible(bool visible);
    std::intptr_t Recevoir(unsigned message, std::uintptr_t mot, std::intptr_t large);

    Fenetre &       fenetre_;
    std::wstring    nom_;
    std::wstring    aide_;
    Poignee_fenetre poignee_ = nullptr;
    // The system's own treatment of the window class. Replaced directly: the common controls' subclassing looks a window property
    // up twice for each message, which costs more than adding an entry to a list.
    std::intptr_t(__stdcall * d_origine_)(Poignee_fenetre, unsigned, std::uintptr_t, std::intptr_t) = nullptr;
    int     left_, top_, width_, height_;
    bool    actif_ = true;
    Couleur fond_;
    Couleur encre_;
};
