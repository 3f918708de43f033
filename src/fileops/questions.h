#pragma once
#include <cstdint>
#include <string>
#include <string_view>

// Texts of the file commands' questions; lines are joined by character 13 alone. Names and paths in capitals
// are given so.

std::wstring Question_commande(const std::wstring & commande, const std::wstring & fichier,
                               const std::wstring & source,
                               const std::wstring & destination);  // destination empty: the command has none
std::wstring Question_remplacement(const std::wstring & fichier_capitales,
                                   const std::wstring & destination_capitales);
std::wstring Question_nom_copie(const std::wstring & fichier_capitales);
std::wstring Question_disquettes(std::int64_t nombre);
std::wstring Question_place(const std::wstring & unite_capitales);         // "C:"
std::wstring Question_trop_grand(const std::wstring & fichier_capitales);  // for the recycle bin
// `objet` stands before the path: L"le répertoire ".
std::wstring Question_repertoire(const std::wstring & commande, const std::wstring & objet,
                                 const std::wstring & chemin_capitales);
std::wstring Refus_sous_repertoires(int nombre);
std::wstring Question_nom_cree(const std::wstring & chemin_capitales);
std::wstring Question_nouveau_nom_fichier(const std::wstring & fichier_capitales);
std::wstring Question_parametres(const std::wstring & fichier_capitales,
                                 const std::wstring & repertoire_capitales);
std::wstring Question_nouveau_nom_repertoire(const std::wstring & chemin_capitales);
std::wstring Libelle_en_cours(const std::wstring & commande, const std::wstring & fichier_capitales);

// Whether the files of a directory can go to the recycle bin: those of a drive whose letter comes after "b".
bool Unite_avec_corbeille(std::wstring_view repertoire);

// Whether `total` bytes fit in `libres_ko` units of 1000 bytes: total / 1000 must be below.
bool Tient(std::uint64_t total, double libres_ko);
// Diskettes of 1,458,000 bytes, plus one half, rounded to the nearest, halves to the even number.
std::int64_t Disquettes(std::uint64_t total);
