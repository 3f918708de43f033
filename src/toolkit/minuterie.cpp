#include "toolkit/minuterie.h"

#include "platform/windows.h"

#include <map>

namespace {
std::map<UINT_PTR, Minuterie *> & Actives() {
    static std::map<UINT_PTR, Minuterie *> actives;
    return actives;
}

void CALLBACK Echeance(HWND, UINT, UINT_PTR id, DWORD) {
    const auto trouvee = Actives().find(id);
    if (trouvee != Actives().end() && trouvee->second->Timer) trouvee->second->Timer();
}
}  // namespace

void Minuterie::Enabled(bool active) {
    if (active == (id_ != 0)) return;
    if (active) {
        id_            = SetTimer(nullptr, 0, intervalle_, Echeance);
        Actives()[id_] = this;
    } else {
        KillTimer(nullptr, id_);
        Actives().erase(id_);
        id_ = 0;
    }
}
