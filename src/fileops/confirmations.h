#pragma once
#include <cstdint>
#include <string>

struct Gestion_Fichiers;

// The questions of the file commands. Answers go to Reponse: 6 yes, 7 no, 2 cancel.

void Confirmer_commande(const Gestion_Fichiers & f,
                        const std::wstring &     repertoire);  // the current file, SOURCE directory
void Confirmer_remplacement(
    const Gestion_Fichiers & f);  // of Fichier_courant in DESTINATION; 6 when no question is wanted

// Whether the command goes on although `total` bytes may not fit in DESTINATION: true without a question when
// they fit.
bool Verifier_espace(const Gestion_Fichiers & f, std::uint64_t total);

void Afficher_en_cours(Gestion_Fichiers & f);  // progress label, in the place of the DESTINATION title
