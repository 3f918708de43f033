#pragma once
#include "fenetres/commandes.h"

#include <string>
#include <vector>

// Scenarios that start programs: each is a recorder under another name, which writes down how it was started.
class Programmes_lances : public Commandes {
protected:
    struct Lance {
        std::wstring programme;  // path
        std::wstring ligne;      // command line
        std::wstring repertoire;
        int          etat = 0;  // how its first window was asked to show
    };

    Programmes_lances();
    ~Programmes_lances() override;

    void Installer_enregistreur(const std::wstring & chemin) const;  // directories on the way are made
    // A batch file that starts the recorder under `enregistreur`: with the arguments that it was given ("%*"), or with these.
    static void Installer_lot(const std::wstring & chemin, const std::wstring & enregistreur,
                              const std::wstring & arguments = L"%*");

    // What was started so far; `nombre` starts are waited for. More of them are a failure.
    std::vector<Lance> Attendre_lances(std::size_t nombre) const;
    // One start more than before, of this line in this directory.
    void                 Attendre_lance(const std::wstring & ligne, const std::wstring & repertoire,
                                        int etat = SW_SHOWNORMAL);
    static constexpr int etat_lot = SW_SHOWDEFAULT;  // that of what a batch file starts
    void                 Rien_de_plus() const { Attendre_lances(vus_); }

private:
    std::vector<Lance> Lire_enregistrement() const;

    const std::wstring enregistrement_ = dossier / L"lances.txt";
    std::size_t        vus_            = 0;
};
