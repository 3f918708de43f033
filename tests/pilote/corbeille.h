#pragma once
#include <cstdint>
#include <string>
#include <vector>

// What the program's recycle bin leaves on the disk, read without the program.
namespace Pilote::Corbeille {

// One line of the index.
struct Ligne {
    std::string   octets;  // as it stands in the file, without its line end
    std::wstring  code;    // "crb46347.007"
    std::uint64_t taille = 0;
    std::wstring  nom;         // before erasure
    std::wstring  repertoire;  // with its final "\"

    std::wstring Chemin_code() const { return repertoire + code; }
};

std::wstring Index();          // where it is looked for first, in the system directory
std::wstring Index_secours();  // in the user's own data
// Every line of an index, oldest first; none when it is absent. What is no record is a failure of the test.
std::vector<Ligne> Lignes(const std::wstring & index = Index());

// Nothing is left in either place, nor of what a test put there to be in the way. The stored files stay.
void Vider();

// Nothing can be opened for writing under the name of the index.
void Condamner(const std::wstring & index);

std::int32_t Jour();  // today's day serial number, by the local date

}  // namespace Pilote::Corbeille
