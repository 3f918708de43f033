#pragma once
#include "fenetres/filles.h"

#include <string>
#include <vector>

// The configuration editor on a KORVANE.INI that the test wrote, and on the real WIN.INI, whose associations it restores.
class Configuration : public Filles {
protected:
    using Textes = std::vector<std::wstring>;

    Configuration();
    ~Configuration() override;

    Pilote::Fille Editeur() const { return Fille(L"Config_Korvane"); }
    // By its button of the main window; the program runs already.
    Pilote::Fille Ouvrir_editeur();
    Pilote::Fille Lancer_et_ouvrir();
    // By its closing button; `relancer` when it says that the program must be started again.
    void Fermer_editeur(const Pilote::Fille & editeur, bool relancer);
    void Attendre_avis_relancer();

    void Montrer(const Pilote::Fille & editeur, const std::wstring & option);
    void Choisir_ligne(const Pilote::Fille & editeur, int rang);
    // At once instead of key by key.
    void Coller(const Pilote::Fille & editeur, const std::wstring & ligne);
    // By the button, which leaves the field empty.
    void Enregistrer(const Pilote::Fille & editeur, const std::wstring & ligne);
    void Attendre_lignes(const Pilote::Fille & editeur, const Textes & lignes);
    void Attendre_permis(const Pilote::Fille & editeur, bool parcourir, bool enregistrer);

    // The file as it stands, less its line ends: keys of a section, "key=value".
    Textes              Section_du_fichier(const std::string & section) const;
    static void         Associer(const wchar_t * extension, const wchar_t * valeur);  // in WIN.INI
    static std::wstring Association(const wchar_t * extension);

    HWND Dialogue_systeme() const;
    HWND Attendre_dialogue_systeme(const std::wstring & titre, const Textes & types);
    // Types a path and presses OK: the dialog shows a directory, or closes on a file.
    void       Proposer(HWND dialogue, const std::wstring & chemin);
    static int Fichiers_montres(HWND dialogue);
    void       Choisir_fichier(HWND dialogue, const std::wstring & chemin);
    void       Annuler_dialogue(HWND dialogue);

private:
    static void Oublier_associations();
};
