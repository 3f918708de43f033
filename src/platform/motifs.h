#pragma once
#include <string>
#include <string_view>
#include <vector>

// File name patterns, as the system matches them: "*" any run, "?" one character (or none at the end of the name or before
// its point), "*.*" every file, "*." names without extension. Several patterns are separated by ";", blanks around them ignored.
// Case is folded by the function given, one character at a time.
class Motifs {
public:
    using Plier = wchar_t (*)(wchar_t);

    Motifs(std::wstring_view texte, Plier plier);
    // One pattern, whose ";" and blanks are those of the names.
    static Motifs Un_seul(std::wstring_view texte, Plier plier);

    bool Accepte(std::wstring_view nom) const;
    bool Tout() const { return tout_; }  // every name is accepted without being looked at

    // No character that a file name pattern cannot hold ( \ / : " < > | and control characters).
    static bool Valide(std::wstring_view texte);

private:
    explicit Motifs(Plier plier) : plier_(plier) {}
    void Ajouter(std::wstring_view motif);

    std::vector<std::wstring> motifs_;  // folded, in the form with the extended wildcards
    Plier                     plier_;
    bool                      tout_ = false;
};
