#pragma once
#include "fenetres/commandes.h"
#include "pilote/corbeille.h"

#include <string>
#include <vector>

// What the scenarios on the SOURCE directory itself have in common: removing, making, renaming it.
class Repertoires : public Commandes {
protected:
    using Textes = std::vector<std::wstring>;

    Repertoires() { Pilote::Corbeille::Vider(); }
    ~Repertoires() override;

    // Starts in directory mode with that directory of SOURCE open; DESTINATION stays on "destination".
    void Lancer_sur(const std::wstring & repertoire_source);
    // The question of a command on the directory; `objet` stands before the path in capitals.
    void Attendre_question(const std::wstring & commande, const std::wstring & objet,
                           const std::wstring & chemin, int reponse);
    void Attendre_arret(const std::wstring & texte) {
        Attendre_boite(gestionnaire, texte, MB_OK | MB_ICONHAND, IDOK);
    }
    // The command is over: no progress shows, the window works, the panes show these directories, read from the disk.
    void Verifier_volets(const std::wstring & source_attendue, const std::wstring & destination_attendue);
    void Verifier_volet(const std::wstring & cote, const std::wstring & attendu);
    // Goes to a control by the keyboard alone.
    void Aller_au_clavier(const std::wstring & controle);

    static constexpr const wchar_t * protege = L"Disquette protégée en écriture\rou fichier verrouillé.";
    static constexpr const wchar_t * introuvable = L"Chemin d'accès introuvable\rou support absent.";
    static constexpr const wchar_t * caches =
        L"Un ou plusieurs fichiers cachés et protégés contre l'effacement existent dans ce répertoire et "
        L"appartiennent peut-être à la corbeille :\rrécupérez ceux-ci et relancez l'opération.";
};

// Names that would lead out of the directory meant, or that no file can have.
inline const std::vector<std::wstring> noms_incorrects{
    L"sous\\x", L"sous/x", L"..\\x", L"C:x", L"x:flux", L"*", L"x?", L"x<y", L"x|y", L"..", L"\""};
