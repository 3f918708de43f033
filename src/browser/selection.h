#pragma once
#include "platform/parcours.h"

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
    int           index  = -1;  // its entry in the list that is walked
};

// The walk of a command: the files that were selected when it started, whatever the lists show meanwhile.
class Parcours {
public:
    explicit Parcours(const Gestion_Fichiers & f);

    // Sets Fichier_courant, Chemin_source, Chemin_cible, Fichier_trouve, and Index_courant to the entry behind.
    // In the search results the file may be gone by now: error 53 or 76, with those already set.
    bool                   Suivant();
    const Fichier_choisi & Courant() const { return fichiers_[suivant_ - 1]; }
    std::size_t            Nombre() const { return fichiers_.size(); }
    std::uint64_t          Total() const { return total_; }  // bytes, as they were counted

private:
    std::wstring                destination_;  // directory, as it was when the walk began
    std::vector<Fichier_choisi> fichiers_;
    std::size_t                 suivant_ = 0;
    std::uint64_t               total_   = 0;
};

// Sets what the window keeps of a selection, and the message line; `total` in bytes.
void Afficher_compte(Gestion_Fichiers & f, std::size_t nombre, std::uint64_t total,
                     const std::wstring & premier);
void Signaler_absence_selection();  // the notice of a command that has nothing to work on
void Vider_selection(
    Gestion_Fichiers & f);  // nothing selected, message line empty, select-all mode ended; no event
void Reprendre_entree(Gestion_Fichiers & f);  // selects and counts the entry Index_a_reprendre alone, if any
void Recompter_selection(Gestion_Fichiers & f);        // message line, of the SOURCE list
void Terminer_tout_selectionne(Gestion_Fichiers & f);  // ends the select-all mode, the entries stay selected
void Fichier_srce_Click();

// The files found by a search, in the place of the SOURCE files.

// Shows them in lower case, all selected and counted: the next command works on them, as they are spelled on disk. Nothing
// happens with none. A length that the search did not know and that cannot be read is reported here.
void Montrer_resultats(Gestion_Fichiers & f, std::vector<Fichier_trouve> trouves);
// Back to the SOURCE files. Whatever reads the SOURCE list again does it, the end of a command included.
void Quitter_resultats(Gestion_Fichiers & f);
// After a command that an error ended: the files that it did not treat stay selected and are counted, those that
// are no longer where they were found leave the list. False when none is left.
bool Reprendre_resultats(Gestion_Fichiers & f, const std::wstring & commande);
void Compter_resultats(Gestion_Fichiers & f);  // message line; the first length that cannot be read is thrown
void Fichier_sél_Click();
