#pragma once
#include "recycle/fiche.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Where a record's file stands.
enum class Presence {
    la,
    absente,        // its directory can be read and does not hold it
    inaccessible,   // the directory or the drive cannot be reached
    autre_support,  // not on the medium that is in its drive now, or that drive may be another one
    autre_fichier,  // its name is that of a file of another length, not read-only, which is not its own
};

// One line of the index, as it stands there: bytes that are not understood are kept as they are.
struct Ligne_index {
    std::string          octets;  // with its line end
    std::optional<Fiche> fiche;   // empty for a line that is no record
    Presence             presence = Presence::inaccessible;
    // Where its file is when its directory took another name: another line says so. Empty otherwise.
    std::wstring suivie = {};

    bool Entiere() const { return octets.ends_with('\n'); }
};

// Lines end with LF, whether CR stands before it or not. The last one may have no end.
std::vector<Ligne_index> Decouper_index(std::string_view octets, const Page_de_codes & page);

// What an unfinished write leaves of a record: its beginning, or the room made for it.
bool Debut_de_fiche(std::string_view octets);
