#pragma once
#include "pilote/korvane.h"

#include <cstdint>
#include <functional>
#include <string>

// What the scenarios of copy and move have in common.
class Commandes : public Korvane {
protected:
    static constexpr unsigned        avertissement   = MB_OK | MB_ICONEXCLAMATION;
    static constexpr unsigned        rapport         = MB_OK | MB_ICONHAND;
    static constexpr unsigned        oui_non         = MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2;
    static constexpr unsigned        oui_non_annuler = MB_YESNOCANCEL | MB_ICONQUESTION | MB_DEFBUTTON2;
    static constexpr unsigned        ok_annuler      = MB_OKCANCEL | MB_ICONEXCLAMATION;
    static constexpr const wchar_t * gestionnaire    = L"Gestionnaire de fichiers";

    // Starts with "source" in the SOURCE pane and any directory in the DESTINATION pane; both panes on "source" when empty.
    void Lancer_vers(const std::wstring & repertoire_destination);
    // Reads the SOURCE directory again, and nothing is selected but its first file.
    void Relire_source();
    void Choisir_tout();
    void Choisir_un(const std::wstring & fichier) { Choisir({fichier}); }
    // The button is pressed and nothing is waited for.
    void Commencer(const std::wstring & bouton);
    // The command runs: the stop button is there.
    void Attendre_commencee();

    // The boxes of copy and move.
    void Attendre_avertissement(const std::wstring & texte) {
        Attendre_boite(gestionnaire, texte, avertissement, IDOK);
    }
    void Attendre_protege(const std::wstring & fichier_capitales);
    void Attendre_remplacement(const std::wstring & commande, const std::wstring & fichier_capitales,
                               const std::wstring & repertoire, int reponse);
    void Attendre_confirmation(const std::wstring & commande, const std::wstring & fichier,
                               const std::wstring & repertoire_destination, unsigned style, int reponse);
    // The report of an error that no message is worded for: `code` is what the system answered.
    void Attendre_rapport(int numero, unsigned code, const std::wstring & commande,
                          const std::wstring & source, const std::wstring & destination);
    void Attendre_manque_de_place(const std::wstring & commande, const std::wstring & unite, int reponse);

    // The command is over: title and swap button are back, no progress is shown, nothing is selected, the button that
    // started it has the focus, and a click in the list counts again.
    void Verifier_repos(const std::wstring & bouton);
    // The SOURCE directory is what it was, to the byte, and so is DESTINATION but for what is allowed there.
    void Verifier_source_intacte(const Pilote::Arbre & avant) const;

    // A file of 8 GB that takes no room on its disk: its copy lasts as long as a test needs.
    void Creer_longue(const std::wstring & chemin);
};

std::wstring Capitales(const std::wstring & texte);
// The same place by way of the drive that shows the whole host.
std::wstring Par_une_autre_unite(const std::wstring & chemin);
