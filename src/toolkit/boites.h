#pragma once
#include <string>

// Message boxes and prompts, owned by the window in front.

namespace Boite {
inline constexpr unsigned ok              = 0;
inline constexpr unsigned ok_annuler      = 1;
inline constexpr unsigned oui_non_annuler = 3;
inline constexpr unsigned oui_non         = 4;
inline constexpr unsigned arret           = 16;
inline constexpr unsigned question        = 32;
inline constexpr unsigned exclamation     = 48;
inline constexpr unsigned information     = 64;
inline constexpr unsigned deuxieme_bouton = 256;  // default button
}  // namespace Boite

namespace Reponse_boite {
inline constexpr int ok      = 1;
inline constexpr int annuler = 2;
inline constexpr int oui     = 6;
inline constexpr int non     = 7;
}  // namespace Reponse_boite

// Returns the button pressed. Character 13 alone breaks lines.
int Message_boite(const std::wstring & texte, unsigned style, const std::wstring & titre);

// Asks for one line of text; empty when cancelled. Window "Saisie": "Invite", "Texte", "OK", "Annuler".
std::wstring Demander_texte(const std::wstring & invite, const std::wstring & titre,
                            const std::wstring & defaut);

// The system's file-open dialog; `filtre` reads "description|patterns|description|patterns". Empty when cancelled.
// The current directory stays. Errors: 64 when the chosen path is too long, 7, 57 when the dialog cannot be shown.
std::wstring Choisir_fichier(const std::wstring & titre, const std::wstring & filtre);
