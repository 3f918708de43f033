#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// The calls by which this program changes or reads files, one at a time: counted, made to fail, or the last thing that it does.
// They are diverted in the program's own import table, so that what runs is the code as it ships.
namespace Interception {

enum class Effet {
    compter,
    mourir_avant,     // the end comes before the call
    mourir_pendant,   // half of what a call writes is written; other calls as `mourir_avant`
    mourir_apres,     // after it
    echouer,          // that call alone fails
    echouer_ensuite,  // that call and all that follow; a full disk still renames, deletes and reads
    ecrire_court,     // a write answers success and half of the length
};

struct Consigne {
    Effet         effet    = Effet::compter;
    unsigned      rang     = 0;      // of the call, from 1
    std::uint32_t code     = 0;      // of a failure
    bool          lectures = false;  // calls that change nothing are counted too
};

// How a program ends: nothing after it.
enum class Fin {
    processus,  // killed
    fil,        // the thread that acts ends there, what it had opened is closed: the disk as a kill leaves it
    courant,    // the same after a power cut: what was written and not flushed is gone
    courant_zeros,  // or the files have their new lengths, and zeros there
};

struct Constat {
    unsigned                 appels     = 0;  // seen, of those that the order counts
    bool                     atteint    = false;
    bool                     mort       = false;
    bool                     en_suspens = false;  // writes were not flushed when it died
    std::vector<std::string> noms;                // of the functions, in order
};

// Names of imported functions that change files and would pass unseen; none may be used.
std::vector<std::string> Oublies();

// Runs `acte` under an order. With Fin::processus it runs on this thread, otherwise on one of its own, whose end it may be;
// exceptions stay with `acte`.
Constat Jouer(const Consigne & consigne, Fin fin, const std::function<void()> & acte);

// While it lives, this program's calls of one imported function go to another one of the same type.
class Detournement {
public:
    template <class Fonction> Detournement(const char * nom, Fonction * autre)
        : Detournement(nom, reinterpret_cast<void *>(autre)) {}
    Detournement(const char * nom, void * autre);
    ~Detournement();
    Detournement(const Detournement &)             = delete;
    Detournement & operator=(const Detournement &) = delete;

private:
    unsigned long long * entree_ = nullptr;
    void *               vraie_  = nullptr;
};

}  // namespace Interception
