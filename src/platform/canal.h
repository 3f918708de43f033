#pragma once
#include "platform/proprietaire.h"

#include <cstdint>
#include <string>
#include <string_view>

// A small file that grows at its end, kept open, where nothing that was said to be written may be lost.
class Canal_ajout {
public:
    // Opens for reading and writing, made with these attributes when missing. Errors 70, 75, 76, 68, 71.
    void          Ouvrir(const std::wstring & chemin, std::uint32_t attributs);
    void          Fermer() noexcept;
    bool          Ouvert() const { return fichier_.Valide(); }
    bool          A_sa_place() const;  // the path still leads to the file that is open
    std::uint64_t Longueur() const;
    std::string   Lire_tout() const;
    // One write at the end, on the disk when it returns. After an error the file is as it was, as far as the medium allows.
    void Ajouter(std::string_view octets);
    // Cuts the file back to a former length, durably.
    void Tronquer(std::uint64_t longueur);

private:
    std::wstring    chemin_;
    Poignee_fichier fichier_;
};

// Makes or replaces a whole file, on the disk when it returns; an error removes it.
void Ecrire_fichier(const std::wstring & chemin, std::string_view octets, std::uint32_t attributs);

// What was done to a file, its name included, reaches the disk; false when the file could not be opened for that.
bool Fixer_fichier(const std::wstring & chemin);
// The same for a directory.
bool Fixer_repertoire(const std::wstring & chemin);
