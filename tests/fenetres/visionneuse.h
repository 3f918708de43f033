#pragma once
#include "pilote/attente.h"
#include "pilote/boites.h"
#include "pilote/entrees.h"
#include "pilote/fenetres.h"
#include "pilote/fichiers.h"
#include "pilote/fille.h"
#include "pilote/programme.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>

// The viewer, started for one test with files in a directory of its own.
class Visionneuse : public testing::Test {
protected:
    std::wstring Chemin(const std::wstring & nom) const { return dossier / nom; }
    void         Creer(const std::wstring & nom, const std::string & contenu) const;
    // A file that takes no room on the disk: null bytes but for what stands at its end.
    void Creer_immense(const std::wstring & nom, std::uint64_t taille, const std::string & fin) const;

    // Starts it with these arguments, waits until its window is in front.
    void          Lancer(const std::wstring & arguments);
    void          Lancer_fichiers(std::initializer_list<std::wstring> noms);  // of the test's directory
    Pilote::Fille Fenetre() const { return {programme->Numero(), L"Visionneuse"}; }
    HWND          Vue() const { return Fenetre().Controle(L"Vue"); }
    std::wstring  Lu() const { return Pilote::Texte(Vue()); }  // what is to be read in the view
    std::wstring  Premiere_ligne() const { return Lu().substr(0, Lu().find(L"\r\n")); }
    bool          Montre(const std::wstring & texte) const;  // comes to show it
    std::wstring  Position() const { return Fenetre().Lire(L"Position"); }
    std::wstring  Etat() const { return Fenetre().Lire(L"Etat"); }
    void          Frapper(WORD touche) const;
    void          Frapper_ctrl(WORD touche) const;
    void          Choisir(const std::wstring & liste, int rang) const;  // in a drop-down list, with the mouse
    void          Chercher(const std::wstring & texte) const;
    void          Attendre_boite(const std::wstring & titre, const std::wstring & texte, unsigned style,
                                 int reponse = IDOK) const;

    Pilote::Dossier_temporaire         dossier;
    std::unique_ptr<Pilote::Programme> programme;
};

std::wstring Executable_visionneuse();
