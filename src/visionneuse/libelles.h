#pragma once
#include <cstdint>
#include <string>
#include <string_view>

// What the viewer says. Numbers come as texts, in the user's format.

// Why a file cannot be shown. `texte` is the system's message.
std::wstring Libelle_panne(int numero, std::wstring_view chemin, std::wstring_view texte);

struct Compte_lignes {
    std::wstring courante;  // empty: not known yet
    std::wstring total;     // empty: not known yet
};
// "Ligne 12 sur 3 456 - 45 %".
std::wstring Libelle_position(const Compte_lignes & compte, std::uint64_t position, std::uint64_t longueur);

// "NAME - Visionneuse".
std::wstring Titre_fenetre(std::wstring_view chemin);
