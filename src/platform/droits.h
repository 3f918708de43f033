#pragma once
#include <cstddef>
#include <string>
#include <vector>

// Who may read and change a file, as it was when this was made: another file that takes its place begins with the rights of the
// directory. Nothing is raised; a disk that keeps no rights has none to give back.
class Droits {
public:
    explicit Droits(const std::wstring & fichier);
    void Rendre(const std::wstring & fichier) const;

private:
    std::vector<std::byte> descripteur_;
};
