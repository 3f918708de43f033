#pragma once
#include <cstdint>
#include <string>

// Texts of the file commands' questions; lines are joined by character 13 alone. Names and paths in capitals are given so.

std::wstring Question_commande(const std::wstring & commande, const std::wstring & fichier,
                               const std::wstring & source,
                               const std::wstring & destination);  // destination empty: the command has none
std::wstring Question_remplacement(const std::wstring & fichier_capitales,
                                   const std::wstring & destination_capitales);
std::wstring Question_nom_copie(const std::wstring & fichier_capitales);
std::wstring Question_disquettes(std::int64_t nombre);
std::wstring Question_place(const std::wstring & unite_capitales);  // "C:"
std::wstring Libelle_en_cours(const std::wstring & commande, const std::wstring & fichier_capitales);

// Whether `total` bytes fit in `libres_ko` units of 1000 bytes: total / 1000 must be below.
bool Tient(std::uint64_t total, double libres_ko);
// Diskettes of 1,458,000 bytes, plus one half, rounded to the nearest, halves to the even number.
std::int64_t Disquettes(std::uint64_t total);
