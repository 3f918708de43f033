#include "platform/numeros.h"

#include <algorithm>
#include <array>

namespace {

// System codes are written as numbers: this table is built where the system's headers are not.
struct Ligne {
    std::uint32_t code;
    int           numero;
};

// clang-format off
constexpr auto generales = std::to_array<Ligne>({
    {2,    Numero::fichier_introuvable},  // file not found
    {3,    Numero::chemin_introuvable},   // path not found
    {4,    Numero::trop_de_fichiers},     // too many open files
    {6,    Numero::canal_incorrect},      // invalid handle
    {8,    Numero::memoire},              // not enough memory
    {11,   Numero::appel_incorrect},      // bad format
    {14,   Numero::memoire},              // out of memory
    {15,   Numero::unite_absente},        // invalid drive
    {16,   Numero::acces_fichier},        // current directory
    {17,   Numero::autre_disque},         // not same device
    {18,   Numero::fichier_introuvable},  // no more files
    {19,   Numero::permission_refusee},   // write protect
    {20,   Numero::unite_absente},        // bad unit
    {21,   Numero::disque_non_pret},      // not ready
    {32,   Numero::permission_refusee},   // sharing violation
    {33,   Numero::permission_refusee},   // lock violation
    {34,   Numero::disque_non_pret},      // wrong disk
    {38,   Numero::fin_depassee},         // handle end of file
    {39,   Numero::disque_plein},         // handle disk full
    {51,   Numero::unite_absente},        // remote computer not listening
    {53,   Numero::unite_absente},        // bad network path
    {54,   Numero::unite_absente},        // network busy
    {55,   Numero::unite_absente},        // device no longer exists
    {59,   Numero::unite_absente},        // unexpected network error
    {64,   Numero::unite_absente},        // network name deleted
    {65,   Numero::permission_refusee},   // network access denied
    {67,   Numero::unite_absente},        // bad network name
    {80,   Numero::fichier_existe},       // file exists
    {82,   Numero::acces_fichier},        // cannot make
    {108,  Numero::permission_refusee},   // drive locked
    {111,  Numero::nom_incorrect},        // file name too long
    {112,  Numero::disque_plein},         // disk full
    {121,  Numero::unite_absente},        // network time-out
    {123,  Numero::nom_incorrect},        // invalid name
    {145,  Numero::acces_fichier},        // directory not empty
    {161,  Numero::nom_incorrect},        // bad path name
    {183,  Numero::fichier_existe},       // already exists
    {193,  Numero::appel_incorrect},      // bad executable format
    {206,  Numero::nom_incorrect},        // name out of range
    {267,  Numero::chemin_introuvable},   // not a directory
    {303,  Numero::permission_refusee},   // delete pending
    {1005, Numero::disque_non_pret},      // unrecognized volume
    {1006, Numero::disque_non_pret},      // volume changed under an open file
    {1110, Numero::disque_non_pret},      // media changed
    {1112, Numero::disque_non_pret},      // no media in drive
    {1167, Numero::disque_non_pret},      // device not connected
    {1200, Numero::unite_absente},        // bad device
    {1203, Numero::unite_absente},        // no network or bad path
    {1222, Numero::unite_absente},        // no network
    {1231, Numero::unite_absente},        // network unreachable
    {1232, Numero::unite_absente},        // host unreachable
    {1236, Numero::unite_absente},        // connection aborted
    {1295, Numero::disque_plein},         // disk quota exceeded
    {1450, Numero::memoire},              // no system resources
    {1455, Numero::memoire},              // commitment limit
    {1785, Numero::disque_non_pret},      // unformatted medium
    {1816, Numero::memoire},              // not enough quota
    {1920, Numero::permission_refusee},   // cannot access file
    {1921, Numero::chemin_introuvable},   // links that never end
});
// clang-format on

int acces_refuse(Acte acte) {
    const bool ouverture = acte == Acte::ouvrir || acte == Acte::lire || acte == Acte::lister;
    return ouverture ? Numero::permission_refusee : Numero::acces_fichier;
}

bool porte_sur_un_repertoire(Acte acte) {
    return acte == Acte::lister || acte == Acte::creer_repertoire || acte == Acte::retirer_repertoire;
}

// Codes that mean something else for some acts; 0 for the others.
int selon_acte(std::uint32_t code, Acte acte) {
    switch (code) {
    case 2: return porte_sur_un_repertoire(acte) ? Numero::chemin_introuvable : 0;
    case 5: return acces_refuse(acte);
    // A directory in use is most often the current one of some program.
    case 32: return acte == Acte::retirer_repertoire ? Numero::acces_fichier : 0;
    case 80:
    case 183: return acte == Acte::creer_repertoire ? Numero::acces_fichier : 0;
    default: return 0;
    }
}

}  // namespace

int Numero_erreur(std::uint32_t code, Acte acte) {
    if (const int numero = selon_acte(code, acte)) return numero;
    const auto * ligne =
        std::find_if(generales.begin(), generales.end(), [code](const Ligne & l) { return l.code == code; });
    return ligne == generales.end() ? Numero::entree_sortie : ligne->numero;
}
