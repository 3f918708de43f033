#pragma once
#include "fenetres/filles.h"

#include <string>
#include <utility>
#include <vector>

// The options window.
class Options : public Filles {
protected:
    using Cles = std::vector<std::pair<std::wstring, std::wstring>>;

    Pilote::Fille Fenetre_options() const { return Fille(L"Choix_Options"); }
    Pilote::Fille Ouvrir_options();  // starts the program in "source" and "destination" first
    Pilote::Fille Rouvrir_options();
    void          Accepter(const Pilote::Fille & fille);  // by its button, without a box
    void          Renoncer(const Pilote::Fille & fille);

    // The settings file whole, as it is; and what it must be, key by key: those of the section Options alone.
    std::string Contenu_ini() const;
    std::string Section_options(const Cles & cles) const;
    // Another program changes the settings.
    void Ecrire_cle(const wchar_t * cle, const std::wstring & valeur,
                    const wchar_t * section = L"Options") const;
    // A key of the section Options, or "absente".
    std::wstring Cle(const std::wstring & nom) const;

    std::wstring Depart(const Pilote::Fille & fille) const;  // name of the option chosen for the start
    int          Couleur(const Pilote::Fille & fille) const;
    void         Cocher(const Pilote::Fille & fille, const std::wstring & nom, bool voulue) const;
    // What the report of an error says of the editor and the viewer.
    void Verifier_programmes(const std::wstring & editeur, const std::wstring & visualiseur);
};
