#pragma once
#include "fenetres/commandes.h"

#include <map>
#include <random>
#include <string>

// The same files again and again, copied or moved to another drive and interrupted each time.
class Lots : public Commandes {
protected:
    Lots();
    ~Lots() override;

    // Every file is in the SOURCE directory again, and nothing on the other drive.
    void Remettre();
    // Milliseconds that the command takes when nobody interrupts it.
    unsigned Mesurer(const std::wstring & bouton);
    // The span, in milliseconds, within which the next blow falls: shorter after one that came too late, longer after one that
    // fell during the command. A first measure on a busy machine says little about the rounds that follow.
    static unsigned Ajuster(unsigned duree, bool pendant);

    struct Bilan {
        unsigned perdus   = 0;  // whole in neither place
        unsigned partiels = 0;  // on the other drive, not whole
        unsigned arrives  = 0;  // whole on the other drive
        unsigned partis   = 0;  // no longer in the SOURCE directory
    };
    Bilan Compter() const;

    static constexpr unsigned nombre_fichiers = 8;

private:
    std::wstring                          modele_;
    std::map<std::wstring, std::uint64_t> empreintes_;
};
