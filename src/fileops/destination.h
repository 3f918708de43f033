#pragma once
#include <cstdint>
#include <string>

struct Gestion_Fichiers;

// The DESTINATION directory as a running command sees it.
class Destination {
public:
    explicit Destination(Gestion_Fichiers & f) : f_(f) {}

    // Whether a directory is the DESTINATION, under whatever name: other case, short name, substituted drive.
    // Of one that cannot be opened, equal names decide.
    bool Est(const std::wstring & repertoire);

    // Brings the list and the free space up to date: four times a second at most, more seldom where reading
    // the directory takes long, since the command waits meanwhile.
    void Actualiser();

private:
    Gestion_Fichiers & f_;
    std::wstring       examine_;  // directory last compared
    bool               identique_ = false;
    std::uint64_t      prochaine_ = 0;  // Horloge_ms of the next refresh
};
