#pragma once
#include "platform/proprietaire.h"
#include "texte/lignes.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Text of that coding; what is not text in it shows as a substitute. A mark at the front is part of it.
std::wstring Decoder(std::string_view octets, Codage codage);

// One text file read line by line, from its beginning to the length that it had when it was opened: a file that grows meanwhile
// has an end too. Other programs may write, rename or delete it. Memory does not depend on the length of file or lines.
class Lecture {
public:
    enum class Avancee {
        ligne,  // the next line is there
        bloc,   // not yet: a block of a long line was read
        fin
    };

    // Opens the file. `caracteres`: how many of a line are wanted at least. Errors 52, 53, 70, 75, 76, 68, 71.
    Lecture(const std::wstring & chemin, std::size_t caracteres);

    std::uint64_t Longueur() const { return longueur_; }  // bytes, when it was opened
    // Goes on by one line, at the most by one read of 64 KB. Errors 57, 70, 68, 71.
    Avancee Avancer();
    // Of the line that Avancer came to: its beginning, and its length in bytes, its end counted as two characters.
    std::wstring  Ligne() const { return Decoder(coupe_.Octets(), codage_); }
    std::uint64_t Octets() const { return coupe_.Longueur() + 2 * coupe_.Unite(); }

private:
    bool Remplir();  // false at the end

    std::wstring      chemin_;
    Poignee_fichier   fichier_;
    std::uint64_t     longueur_ = 0;
    std::uint64_t     lus_      = 0;
    std::vector<char> tampon_;
    std::string_view  reste_;  // of the buffer
    Codage            codage_ = Codage::ansi;
    Coupe_lignes      coupe_;
    std::size_t       retenus_;
    bool              terminee_ = false;  // the last line was handed out
};
