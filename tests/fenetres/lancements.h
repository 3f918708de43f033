#pragma once
#include "fenetres/programmes_lances.h"

#include <initializer_list>
#include <string>
#include <vector>

// Scenarios of the commands that hand the selected files to programs.
class Lancements : public Programmes_lances {
protected:
    // Recorders beside the program, where the editor and the viewer are looked for first.
    void Installer_a_cote(std::initializer_list<const wchar_t *> noms) const;
    // Selects these files and presses the button.
    void Commander(const std::wstring & bouton, std::initializer_list<std::wstring> fichiers);
    // The question of a command that is to be confirmed.
    void Confirmer(const std::wstring & commande, const std::wstring & fichier, unsigned style, int reponse);
    void Attendre_parametres(const std::wstring & fichier, const wchar_t * texte,
                             const std::wstring & bouton = L"OK");
    void Attendre_introuvable(const std::wstring & fichier_capitales);
    // The command lines of all that was started; every one in "source", in a normal window.
    std::vector<std::wstring> Lignes(std::size_t nombre) const;
    // What a batch file wrote, waited for.
    static std::string Attendre_trace(const std::wstring & fichier);
};
