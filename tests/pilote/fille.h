#pragma once
#include "platform/windows.h"

#include <string>
#include <vector>

// A window that the program opened from its main window, driven by the names of its controls. What is expected and not found is
// reported as a failure of the test.
namespace Pilote {

class Fille {
public:
    Fille(DWORD processus, std::wstring nom);

    const std::wstring & Nom_fenetre() const { return nom_; }
    HWND                 Fenetre() const;  // null while it does not show
    bool                 Ouverte() const { return Fenetre() != nullptr; }
    void                 Attendre_ouverte(unsigned delai = 10000) const;  // shown, in front, with the focus
    void                 Attendre_fermee(unsigned delai = 10000) const;

    HWND                      Controle(const std::wstring & nom) const;
    std::wstring              Titre() const;
    std::wstring              Lire(const std::wstring & nom) const;
    bool                      Se_voit(const std::wstring & nom) const;
    bool                      Est_actif(const std::wstring & nom) const;
    bool                      Est_coche(const std::wstring & nom) const;
    std::wstring              Nom_du_focus() const;
    std::vector<std::wstring> Entrees(const std::wstring & liste) const;
    std::vector<std::wstring> Choisies(const std::wstring & liste) const;

    void Reposer() const;
    void Cliquer(const std::wstring & nom) const;
    void Remplacer(const std::wstring & champ, const std::wstring & texte) const;  // selects all, types
    void Vider(const std::wstring & champ) const;
    void Choisir(const std::wstring & liste, const std::vector<int> & rangs) const;  // these and no other
    void Double_cliquer(const std::wstring & liste, int rang) const;
    void Fermer_par_la_croix() const;

    // Names that Tab goes through, from the control with the focus until it is back there; then the other way round with Shift.
    std::vector<std::wstring> Tour_du_clavier(bool en_arriere) const;
    // What is wrong with the layout: a control outside the window, two over each other, one access key twice. Empty when nothing is.
    std::string Defauts() const;

private:
    DWORD        processus_;
    std::wstring nom_;
};

}  // namespace Pilote
