#pragma once
#include "fenetres/commandes.h"
#include "pilote/corbeille.h"

#include <string>
#include <vector>

// What the scenarios of erasing have in common. The bin is not in use until a test says so.
class Effacement : public Commandes {
protected:
    using Noms_fichiers = std::vector<std::wstring>;

    Effacement();
    ~Effacement() override;

    // Before the start: the bin is in use, within so many kilobytes.
    void Activer(const std::wstring & taille = L"9999") { Regler(L"Corbeille", L"Taille", taille); }
    // a.txt to e.txt of 100 to 500 bytes; `avant` is what the SOURCE directory then holds.
    void Creer_cinq();
    void Retenir() { avant = Pilote::Lire_arbre(source); }
    // A file erased so many days ago, in the SOURCE directory, as an earlier run left it; before the start.
    void Deposer_jadis(const std::wstring & nom, std::uint64_t taille, int jours, int tirage = 1);

    void Attendre_effacement(const std::wstring & fichier, unsigned style, int reponse,
                             const std::wstring & titre      = gestionnaire,
                             const std::wstring & repertoire = {});  // SOURCE when empty
    void Attendre_mode(int reponse, const std::wstring & titre = gestionnaire);
    void Attendre_trop_grand(const std::wstring & fichier_capitales, int reponse);
    // Presses the button, then answers for a single file.
    void Effacer_un(const std::wstring & fichier);
    // Presses the button, and everything selected is erased without a question.
    void Effacer_globalement();

    // The index holds these files of the SOURCE directory and no other, in this order, erased today; each lies in its
    // directory under its coded name, hidden and read-only, otherwise as it was in `avant`. The settings have the total.
    void Verifier_corbeille(const Noms_fichiers & noms,
                            const std::wstring &  index = Pilote::Corbeille::Index());
    // The files that can be seen in the SOURCE directory, on the disk and in the list alike.
    void Verifier_restants(const Noms_fichiers & noms);
    // This entry alone is selected, counted, and has the list's cursor.
    void Verifier_reprise(const std::wstring & fichier, const std::wstring & octets);
    // Value of a key of section "Corbeille" of the settings; "<absente>" when it is not there.
    std::string Cle_corbeille(const std::string & cle) const;

    static constexpr const wchar_t * absente = L"Attention !  Corbeille absente";
    Pilote::Arbre                    avant;

private:
    const std::int32_t jour_ = Pilote::Corbeille::Jour();  // the test may end on the next day
};
