#pragma once
#include <string>
#include <string_view>
#include <vector>

// The viewer's command line.
struct Arguments {
    // "ovl" comes first: the files go to a viewer that is open already, if there is one.
    bool                      rejoindre = false;
    std::vector<std::wstring> fichiers;  // none of them blank

    bool operator==(const Arguments &) const = default;
};

// Arguments stand between blanks; double quotes hold those with blanks together and are not part of them. A quote that is not
// closed goes on to the end.
Arguments Lire_arguments(std::wstring_view ligne);

// The file names of one viewer as a text for another, and back. What does not come from a viewer gives what it holds, blank names
// left out.
std::wstring              Emballer(const std::vector<std::wstring> & fichiers);
std::vector<std::wstring> Deballer(std::wstring_view texte);
