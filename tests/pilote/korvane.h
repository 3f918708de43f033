#pragma once
#include "pilote/attente.h"
#include "pilote/boites.h"
#include "pilote/entrees.h"
#include "pilote/fenetres.h"
#include "pilote/fichiers.h"
#include "pilote/programme.h"
#include "pilote/unites.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

// The program itself, started for one test in a directory of its own.
//
// Each test has `dossier` with three directories: "programme" (the executable and its KORVANE.INI), "source"
// and "destination". What the helpers below expect and do not find is reported as a failure of the test.
class Korvane : public testing::Test {
protected:
    Korvane();
    explicit Korvane(const std::wstring & chemin);  // in that directory
    ~Korvane() override;                            // the program is closed, or killed

    // Before Lancer: a line of KORVANE.INI, written in the system's code page. Without a word from the test
    // the program starts as an icon (no banner to wait for), and both panes are opened on `dossier`.
    void         Regler(const std::wstring & section, const std::wstring & cle, const std::wstring & valeur);
    void         Ne_pas_regler(const std::wstring & section, const std::wstring & cle);
    std::wstring Fichier_ini() const { return dossier / L"programme\\KORVANE.INI"; }

    // Starts the program, waits until it browses, brings its window in front.
    void Lancer();
    // The same, then opens "source" in the SOURCE pane and "destination" in the DESTINATION pane.
    void Lancer_dans_les_dossiers();
    // Starts the program without waiting for anything.
    void Demarrer();
    // Its window is there, start-up is over; restored when it is an icon.
    void Attendre_pret();
    void Fermer();  // the program is ended without a question

    std::wstring Source(const std::wstring & nom) const { return source + L"\\" + nom; }
    std::wstring Destination(const std::wstring & nom) const { return destination + L"\\" + nom; }
    void         Creer_source(const std::wstring & nom, std::uint64_t taille, std::uint32_t graine = 1);
    void         Creer_destination(const std::wstring & nom, std::uint64_t taille, std::uint32_t graine = 2);

    HWND Principale() const;                        // main window, null when it is not there
    HWND Fenetre(const std::wstring & nom) const;   // another form
    HWND Controle(const std::wstring & nom) const;  // of the main window; a failure when there is none
    HWND Controle(const std::wstring & fenetre, const std::wstring & nom) const;
    std::wstring Lire(const std::wstring & controle) const { return Pilote::Texte(Controle(controle)); }
    bool         Se_voit(const std::wstring & controle) const { return Pilote::Visible(Controle(controle)); }
    bool         Est_actif(const std::wstring & controle) const { return Pilote::Active(Controle(controle)); }
    bool         A_le_focus(const std::wstring & controle) const;
    std::wstring Nom_du_focus() const;
    bool         Sablier() const { return Pilote::Sablier(Principale()); }
    std::vector<std::wstring> Entrees(const std::wstring & liste) const {
        return Pilote::Entrees(Controle(liste));
    }
    std::vector<std::wstring> Choisies(const std::wstring & liste = L"Fichier_srce") const;

    void Cliquer(const std::wstring & controle);
    void Survoler(const std::wstring & controle);
    void Cliquer_entree(const std::wstring & liste, const std::wstring & entree);
    void Double_cliquer_entree(const std::wstring & liste, const std::wstring & entree);
    // These files of the SOURCE list and no other: a click, then clicks with Ctrl.
    void Choisir(std::initializer_list<std::wstring> fichiers);
    void Choisir_unite(const std::wstring & liste, wchar_t lettre);  // through the drive list, with the mouse
    // Walks there by clicks in a pane's drive list and directory list: L"srce" or L"dest".
    void Ouvrir(const std::wstring & cote, const std::wstring & repertoire);
    void Remplacer_texte(const std::wstring & champ, const std::wstring & texte);  // selects all, types

    // The box that shows is compared whole, then answered (IDYES ...). A failure when none comes or it
    // differs.
    void Attendre_boite(const std::wstring & titre, const std::wstring & texte, unsigned style, int reponse);
    void Attendre_boite(const Pilote::Boite & attendue, int reponse);
    bool Boite_absente() const;
    // The program's own prompt: compared, its text replaced unless `texte` is null, then closed by "OK" or
    // "Annuler".
    void Attendre_saisie(const std::wstring & titre, const std::wstring & invite, const std::wstring & defaut,
                         const wchar_t * texte, const std::wstring & bouton = L"OK");
    // The three-button window: compared, then answered by its button 1, 2 or 3.
    void Attendre_dialogue(const std::wstring & titre, const std::wstring & texte,
                           const std::vector<std::wstring> & boutons, int reponse);
    // No command runs any more and no box shows.
    void Attendre_fin_commande(unsigned delai = 30000);

    Pilote::Dossier_temporaire         dossier;
    const std::wstring                 source      = dossier / L"source";
    const std::wstring                 destination = dossier / L"destination";
    std::unique_ptr<Pilote::Programme> programme;

private:
    struct Reglage {
        std::wstring section, cle, valeur;
    };
    void Preparer();
    void Ecrire_reglages() const;
    void Installer() const;

    std::vector<Reglage> reglages_;
};
