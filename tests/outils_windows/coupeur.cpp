// Does one act on files and dies at one of the calls that it makes to the system.
//
//   coupeur ACT DIRECTORY avant|pendant|apres RANK
//
// Ends with 77 where it dies, 0 when the act has fewer calls, 1 when the act raises an error, 2 on wrong arguments, 3 when the
// program could change files by a call that is not watched.
#include "coupures/actes.h"
#include "coupures/interception.h"
#include "platform/erreur.h"

#include <cwchar>

namespace {

Interception::Effet Effet_de(const std::wstring & mode) {
    if (mode == L"avant") return Interception::Effet::mourir_avant;
    return mode == L"pendant" ? Interception::Effet::mourir_pendant : Interception::Effet::mourir_apres;
}

int Couper(wchar_t ** arguments) {
    const Interception::Consigne consigne{
        Effet_de(arguments[3]), static_cast<unsigned>(std::wcstoul(arguments[4], nullptr, 10)), 0, false};
    const Coupures::Acte & acte  = Coupures::Trouver_acte(arguments[1]);
    int                    leves = 0;
    Interception::Jouer(consigne, Interception::Fin::processus, [&] {
        try {
            acte.faire(arguments[2]);
        } catch (const Erreur_execution &) {
            ++leves;
        }
    });
    return leves;
}

}  // namespace

int wmain(int nombre, wchar_t ** arguments) {
    if (nombre != 5) return 2;
    if (!Interception::Oublies().empty()) return 3;
    return Couper(arguments);
}
