#pragma once
#include <string>

// What was on the screen when a test failed.
namespace Pilote {

// Every visible window with its controls: class, name, place, state, text, contents; one line each, UTF-8.
std::string Decrire_ecran();
// The whole screen into a bitmap file; false when it cannot be read.
bool Photographier(const std::wstring & fichier);

// From now on the first failure of each test leaves "Suite.nom.txt" and "Suite.nom.bmp" in the directory
// named by the variable KORVANE_ECHECS, or in "echecs" beside the test program.
void Constater_les_echecs();

// Called first by a test program's main, after GoogleTest's own start.
void Preparer_essais();

}  // namespace Pilote
