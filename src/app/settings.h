#pragma once
#include <string>
#include <vector>

// The settings file: where it is, what its sections and keys are called. Values are read into the globals,
// with the default that holds when a key is missing.

namespace Section {
inline constexpr const wchar_t * options    = L"Options";
inline constexpr const wchar_t * corbeille  = L"Corbeille";
inline constexpr const wchar_t * boutons    = L"Boutons";
inline constexpr const wchar_t * selections = L"Sélections";
inline constexpr const wchar_t * windows    = L"Windows";     // of WIN.INI
inline constexpr const wchar_t * extensions = L"Extensions";  // of WIN.INI
}  // namespace Section

namespace Cle {
inline constexpr const wchar_t * editeur     = L"Editeur";
inline constexpr const wchar_t * visualiseur = L"Visualiseur";
inline constexpr const wchar_t * confirme    = L"Confirme";
inline constexpr const wchar_t * remplace    = L"Remplace";
inline constexpr const wchar_t * iconise     = L"Iconisé";
inline constexpr const wchar_t * aide        = L"Aide en ligne";
inline constexpr const wchar_t * couleur     = L"Couleur";
inline constexpr const wchar_t * repertoire  = L"Répertoire";
inline constexpr const wchar_t * taille      = L"Taille";
inline constexpr const wchar_t * temps       = L"Temps";
inline constexpr const wchar_t * total       = L"Total";
inline constexpr const wchar_t * bordure     = L"BorderWidth";  // of WIN.INI
}  // namespace Cle

namespace Defaut {
inline constexpr const wchar_t * editeur     = L"NOTEPAD.EXE";
inline constexpr const wchar_t * visualiseur = L"PELMIRA.EXE";
}  // namespace Defaut

// The value of a key of the options, cut to its buffer, or its default.
std::wstring Lire_option(const wchar_t * cle);

// Characters of the buffer for a line that the configuration editor writes, terminator included: what it saved is never cut.
inline constexpr unsigned tampon_valeur = 65535;

void Situer_profil();           // Fichier_ini, Prefixe_fichiers, Unite_programme
void Lire_iconise();            // Option_iconise
void Lire_bordure();            // Bordure
void Lire_options_commandes();  // Editeur, Visualiseur, Confirme_commande, Confirme_remplacement, Option_aide
// Size limit, else time limit; Corbeille_active, Limite_corbeille_incorrecte.
void Lire_limites_corbeille();
void Lire_couleur();             // Option_couleur
void Lire_repertoire_initial();  // Repertoire_initial, upper case

std::vector<std::wstring> Cles_section(const wchar_t * section);
std::wstring Valeur_cle(const wchar_t * section, const std::wstring & cle);  // empty when missing

// Whether an option of the start is set: its first three characters are "OUI", any case.
bool Demarrage_iconise();
