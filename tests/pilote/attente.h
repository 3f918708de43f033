#pragma once
#include <functional>
#include <string>

// Waiting for what another process does, and texts for the tests' reports.
namespace Pilote {

inline constexpr unsigned delai_normal = 5000;  // milliseconds

// Looks every 5 ms until the condition holds; false when it did not within `delai` milliseconds.
bool Attendre(const std::function<bool()> & condition, unsigned delai = delai_normal);
void Dormir(unsigned millisecondes);

std::string  Utf8(const std::wstring & texte);
std::string  Page_systeme(const std::wstring & texte);  // in the system's code page
std::wstring Large(const std::string & texte_utf8);

// Environment variable, empty when absent.
std::wstring Environnement(const wchar_t * nom);

}  // namespace Pilote

// The condition becomes true in time; its text is the report.
#define ATTENDRE(condition) EXPECT_TRUE(Pilote::Attendre([&] { return (condition); })) << #condition
#define EXIGER(condition) ASSERT_TRUE(Pilote::Attendre([&] { return (condition); })) << #condition
