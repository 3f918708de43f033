#pragma once
#include <cstdint>
#include <string>

// The drives with faults that the tests may find: A: a diskette of 1.44 MB, D: a second disk of 64 MB, E: a
// read-only medium, F: a drive without medium. They exist only where they could be mounted; "R" stands for a
// D: that can be torn out.
namespace Pilote {

// Each command below throws std::runtime_error when it could not be carried out.
namespace Unite {
bool Presente(wchar_t lettre);

void Inserer_disquette(int numero);  // 1 or 2, blank at first, kept between changes
void Retirer_disquette();
void Vider(wchar_t lettre);  // A or D: nothing is left on it
// Takes the room of a drive until about `libres` bytes are left. Vider gives it back.
void Remplir(wchar_t lettre, std::uint64_t libres);
void Proteger(wchar_t lettre, bool protegee);  // write-protected, A or D
// D: fails from now on, open files included; it is there again, with what was on it. Needs "R".
void Arracher_disque();
void Remettre_disque();
}  // namespace Unite

// Leaves out the tests that need a drive that is not there, and writes one line for each on the standard
// output: "[ laisse   ] Suite.nom". A suite says what it needs by the end of its name: "Copie_A",
// "Deplacement_AD".
void Ecarter_essais_sans_unite();

}  // namespace Pilote
