#pragma once
#include "fenetres/filles.h"

#include <string>
#include <vector>

// The two windows of the search over a whole drive: the request and the results. Most of it is done on D:, which the test fills.
class Recherche : public Filles {
protected:
    static constexpr const wchar_t * attente = L"     Veuillez patienter . . .";
    static constexpr const wchar_t * choix   = L"Sélectionnez le(s) fichier(s)";

    Recherche();
    ~Recherche() override;

    Pilote::Fille Demande() const { return Fille(L"Cde_Chercher"); }
    Pilote::Fille Resultats() const { return Fille(L"Cherche_Fichier"); }

    // Both panes on the root of D:.
    void Lancer_sur_d();
    void Creer_d(const std::wstring & nom, std::uint64_t taille = 10);  // "sous\\a.txt" below the root of D:
    // Directories without files, by the thousand: a walk through them lasts.
    static void Creer_foret(wchar_t lettre);

    Pilote::Fille Ouvrir_demande();  // by the button
    void Saisir(const Pilote::Fille & demande, const std::wstring & cherches, const std::wstring & exclus);
    // Asks and waits for nothing.
    void Lancer_recherche(const std::wstring & cherches, const std::wstring & exclus = L"");
    // Asks and waits for the choice; the results are compared.
    Pilote::Fille Chercher(const std::wstring & cherches, const std::vector<std::wstring> & attendus,
                           const std::wstring & exclus = L"");
    void          Attendre_choix(const Pilote::Fille & resultats);
    void          Attendre_rien_trouve(const std::wstring & modele, const std::wstring & unite = L"D:");
    void          Annuler(const Pilote::Fille & fille);  // by its button; it closes
    // The SOURCE pane shows its directory, nothing is selected, commands are there.
    void Verifier_sans_resultats();
    // The SOURCE pane shows these found files, all selected, and their count.
    void Verifier_resultats_dans_source(const std::vector<std::wstring> & chemins,
                                        const std::wstring &              ligne);
};
