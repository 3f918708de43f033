#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

class Liste;
struct Gestion_Fichiers;

// Which files a command works on, and the message line that counts them.
void Brancher_selection(Gestion_Fichiers & f);

// Delivers the next selected entry of Liste_courante from Index_courant on (1 forward, else backward) into
// Fichier_courant, Chemin_source and Fichier_trouve; the next call goes on behind it.
void Selection_suivante(int direction);
void Chemins_fichier();  // Chemin_source of Fichier_courant in the SOURCE directory, then Chemin_destination
void Chemin_destination();  // Chemin_cible: the same name in the DESTINATION directory

// One file that a command works on.
struct Fichier_choisi {
    std::wstring  nom;
    std::wstring  repertoire;
    std::uint64_t taille = 0;
};

// The walk of a command: the files that were selected when it started, whatever the lists show meanwhile.
class Parcours {
public:
    // Errors of reading a length, in the search results.
    explicit Parcours(const Gestion_Fichiers & f);

    bool                   Suivant();  // sets Fichier_courant, Chemin_source, Chemin_cible, Fichier_trouve
    const Fichier_choisi & Courant() const { return fichiers_[suivant_ - 1]; }
    std::size_t            Nombre() const { return fichiers_.size(); }
    std::uint64_t          Total() const { return total_; }  // bytes

private:
    std::wstring                destination_;  // directory, as it was when the walk began
    std::vector<Fichier_choisi> fichiers_;
    std::size_t                 suivant_ = 0;
    std::uint64_t               total_   = 0;
};

void Signaler_absence_selection();  // the notice of a command that has nothing to work on
void Vider_selection(
    Gestion_Fichiers & f);  // nothing selected, message line empty, select-all mode ended; no event
void Reprendre_entree(Gestion_Fichiers & f);  // selects and counts the entry Index_a_reprendre alone, if any
void Terminer_tout_selectionne(Gestion_Fichiers & f);  // ends the select-all mode, the entries stay selected
void Fichier_srce_Click();
