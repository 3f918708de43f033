#pragma once
#include <cstdint>

// Run-time error numbers, as handlers and messages know them.
namespace Numero {
inline constexpr int appel_incorrect     = 5;
inline constexpr int depassement         = 6;
inline constexpr int memoire             = 7;
inline constexpr int canal_incorrect     = 52;
inline constexpr int fichier_introuvable = 53;
inline constexpr int entree_sortie       = 57;
inline constexpr int fichier_existe      = 58;
inline constexpr int disque_plein        = 61;
inline constexpr int fin_depassee        = 62;
inline constexpr int nom_incorrect       = 64;
inline constexpr int trop_de_fichiers    = 67;
inline constexpr int unite_absente       = 68;
inline constexpr int permission_refusee  = 70;
inline constexpr int disque_non_pret     = 71;
inline constexpr int autre_disque        = 74;
inline constexpr int acces_fichier       = 75;
inline constexpr int chemin_introuvable  = 76;
inline constexpr int valeur_incorrecte   = 380;
}  // namespace Numero

// What was being done when the system refused: some codes mean different things.
enum class Acte { ouvrir, lire, ecrire, supprimer, renommer, creer_repertoire, retirer_repertoire, lister };

// The number of a system error code (GetLastError) met during an act. Every code has one; unknown codes give 57.
int Numero_erreur(std::uint32_t code, Acte acte);
