#pragma once
#include "pilote/fichiers.h"

#include <string>
#include <vector>

// A printer for tests: what is printed comes back as text.
namespace Pilote {

struct Travail {
    std::wstring             titre;
    std::vector<std::string> pages;  // text in UTF-8, each line ended by "\n", without the left margin
    // What all the text keeps within, in points from the upper left corner of the sheet.
    double gauche = 0, haut = 0, droite = 0, bas = 0;
};

// The default printer while it lives; there was none before, and there is none after.
class Imprimante_essai {
public:
    // Throws std::runtime_error when the system takes no printer.
    Imprimante_essai();
    ~Imprimante_essai();
    Imprimante_essai(const Imprimante_essai &)             = delete;
    Imprimante_essai & operator=(const Imprimante_essai &) = delete;

    // From now on a document fails at its end; or no more.
    void Tomber_en_panne(bool en_panne) { Marquer(L"panne", en_panne); }
    // From now on the end of a document lasts; or no more.
    void Retenir(bool retenir) { Marquer(L"retenue", retenir); }
    bool Retient() const;  // a document is at its end, which lasts
    // The jobs that came out whole, in their order. Each read costs a conversion.
    std::vector<Travail> Travaux() const;
    std::size_t          Nombre() const;

private:
    void Installer_pilote() const;
    void Installer() const;
    void Marquer(const std::wstring & nom, bool present) const;

    Dossier_temporaire dossier_;
};

}  // namespace Pilote
