#pragma once
#include "platform/erreur.h"
#include "platform/windows.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

// Real files in a directory of the test's own, emptied and removed at its end. The helpers use the system directly, so that a
// fault of the services under test does not hide behind itself.
class Banc : public testing::Test {
protected:
    Banc();
    ~Banc() override;

    const std::wstring & Racine() const { return racine_; }
    std::wstring         Chemin(const std::wstring & nom) const { return racine_ + L"\\" + nom; }
    std::wstring         Fichier(const std::wstring & nom, const std::string & octets = "contenu") const;
    std::wstring         Repertoire(const std::wstring & nom) const;
    std::wstring         Profond() const;  // a directory whose path is far beyond 260 characters

private:
    std::wstring racine_;
};

std::wstring  Prefixe(const std::wstring & chemin);  // with "\\?\"
void          Poser(const std::wstring & chemin, const std::string & octets);
std::string   Contenu(const std::wstring & chemin);
bool          Present(const std::wstring & chemin);
std::uint32_t Attributs(const std::wstring & chemin);
void          Regler_attributs(const std::wstring & chemin, std::uint32_t attributs);
void          Vider_repertoire(const std::wstring & repertoire);
std::string   Octets_varies(std::size_t longueur);  // the same for the same length, no two blocks alike

// The number of the error that the act raises, 0 when it raises none.
template <class Action> int Numero_leve(Action && action) {
    try {
        action();
    } catch (const Erreur_execution & erreur) {
        return erreur.numero;
    }
    return 0;
}

// A test on one of the drives with a fault. It exists only where KORVANE_<letter>=1 says that the drive does; elsewhere its
// name is printed as left out.
bool Unite_disponible(char lettre, const char * nom);

#define ESSAI_UNITE(lettre, nom)                                                                             \
    struct Unite_##lettre##_##nom : Banc {                                                                   \
        void TestBody() override;                                                                            \
    };                                                                                                       \
    const bool inscrit_##lettre##_##nom =                                                                    \
        Unite_disponible(#lettre[0], #nom) &&                                                                \
        testing::RegisterTest("Unite_" #lettre, #nom, nullptr, nullptr, __FILE__, __LINE__,                  \
                              []() -> Banc * { return new Unite_##lettre##_##nom; }) != nullptr;             \
    void Unite_##lettre##_##nom::TestBody()
