#pragma once
#include "toolkit/controle.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class Bouton_commande;

// How a window is framed.
enum class Bordure { principale, dialogue, banniere };

// Why a window is asked to close.
enum class Fermeture { utilisateur = 0, programme = 1, systeme = 2 };

enum class Etat_fenetre { normale = 0, reduite = 1, agrandie = 2 };

// A top-level window; its controls are members of the derived structure. Positions and sizes in twips: of the outer frame on the
// screen for the window, of the client area for what stands on it.
class Fenetre {
public:
    // `width` and `height` are those of the client area.
    Fenetre(const wchar_t * nom, const wchar_t * caption, int width, int height, Bordure bordure);
    virtual ~Fenetre();
    Fenetre(const Fenetre &)             = delete;
    Fenetre & operator=(const Fenetre &) = delete;

    const std::wstring & Nom() const { return nom_; }
    Poignee_fenetre      Poignee() const { return poignee_; }
    std::wstring         Caption() const;
    void                 Caption(const std::wstring & texte);
    int                  Left() const;
    int                  Top() const;
    int                  Width() const;
    int                  Height() const;
    int                  Largeur_interieure() const;  // of the client area
    int                  Hauteur_interieure() const;
    void                 Taille_minimale(int width, int height);  // of the client area, when the user resizes
    void                 Move(int left, int top, int width, int height);
    void                 Move(int left, int top);
    Etat_fenetre         WindowState() const;
    void                 WindowState(Etat_fenetre etat);

    void Show();  // in its WindowState
    void Hide();  // ends a modal showing
    bool Montree() const;
    // Shown in front of `proprietaire`, which is disabled, until hidden; the focus goes back to where it was.
    void Show_modal(Fenetre & proprietaire);

    void       Defaut(Bouton_commande & bouton) { defaut_ = &bouton; }
    void       Annulation(Bouton_commande & bouton) { annulation_ = &bouton; }
    Controle * Controle_actif() const { return actif_; }
    double     Largeur_texte(std::wstring_view texte) const;  // twips, in the window's font
    double     Hauteur_texte(std::wstring_view texte,
                             int               largeur) const;  // twips, words wrapped at `largeur` twips
    void       Redessiner();
    void       Refermer_listes();  // drop-down lists that are open, nothing chosen
    Controle * Trouver(std::wstring_view nom) const;
    Controle * Controle_de(Poignee_fenetre poignee) const;
    // Runs it once, when the event being treated is over and before any key or click that comes after this call.
    void Apres_evenement(std::function<void()> suite);
    // Publishes the window property "sablier" and shows the pointer at once.
    void Pointeur_sablier(bool sablier);

    std::function<void()>                  Resize;
    std::function<void(bool &, Fermeture)> QueryUnload;  // true refuses
    std::function<void(int &, int)>        KeyDown;      // before the controls; 0 consumes
    std::function<void(Controle *)>        MouseMove;    // over a control, or over the window itself (null)
    std::function<void()>                  Activate;
    std::function<void()>                  Paint;
    std::function<void()>                  Unites_changees;  // a device arrived or left

private:
    friend class Controle;
    friend class Saisie_clavier;
    friend struct Rappels_fenetre;

    unsigned      Ajouter(Controle & controle);
    void          Retirer(Controle & controle);
    std::intptr_t Traiter(unsigned message, std::uintptr_t mot, std::intptr_t large);
    std::intptr_t Colorer(void * dessin, Poignee_fenetre poignee);
    void          Activer(bool active);
    void          Survoler();
    bool          Pointeur_bouge();
    void          Poursuivre();
    void          Notifier(Poignee_fenetre poignee, unsigned code);
    void          Finir_session();
    void          Peripherique_change();
    void          Demande_fermeture();
    bool          Touche_acces(wchar_t lettre);
    void          Passer_focus();
    void          Placer(int x, int y, int largeur, int hauteur);  // screen pixels
    void          Premier_focus();
    void          Marquer_defaut();  // the button that Enter presses, by its border

    std::wstring            nom_;
    Poignee_fenetre         poignee_       = nullptr;
    void *                  police_        = nullptr;
    void *                  police_grasse_ = nullptr;
    std::vector<Controle *> controles_;
    Controle *              actif_        = nullptr;
    Bouton_commande *       defaut_       = nullptr;
    Bouton_commande *       annulation_   = nullptr;
    Etat_fenetre            etat_voulu_   = Etat_fenetre::normale;
    bool                    modale_       = false;
    bool                    montree_      = false;
    Fenetre *               proprietaire_ = nullptr;
    std::function<void()>   suite_;           // for Apres_evenement
    int  dernier_x_ = -1, dernier_y_ = -1;    // pointer at the last move treated, screen pixels
    int  largeur_min_ = 0, hauteur_min_ = 0;  // outer frame, pixels
    bool proprietaire_actif_ = true;          // as found when the modal showing began
};
