#pragma once
#include <cstdint>
#include <string>

struct Gestion_Fichiers;

// The questions of the file commands. Answers go to Reponse: 6 yes, 7 no, 2 cancel.

// The current file, in that directory. Several files to erase: how is asked before the first (Mode_effacement).
void Confirmer_commande(const Gestion_Fichiers & f, const std::wstring & repertoire);
// Whether a file of that directory goes to the recycle bin when it is erased; otherwise it is gone for good.
bool Va_a_la_corbeille(const std::wstring & repertoire);
void Confirmer_remplacement(
    const Gestion_Fichiers & f);  // of Fichier_courant in DESTINATION; 6 when no question is wanted

// A question that No answers unless the user decides otherwise, after a beep: 6, 7 or 2.
int Demander(const std::wstring & question, unsigned boutons, const std::wstring & titre);

// Whether the command goes on although `total` bytes may not fit in DESTINATION: true without a question when
// they fit.
bool Verifier_espace(const Gestion_Fichiers & f, std::uint64_t total);

void Afficher_en_cours(Gestion_Fichiers & f);  // progress label, in the place of the DESTINATION title
