#include "browser/ligne_selection.h"

#include "platform/nombres.h"

std::wstring Ligne_selection(std::size_t nombre, std::wstring_view total) {
    if (nombre == 0) return {};
    const std::wstring s = nombre >= 2 ? L"s" : L"";
    return L"  " + Avec_signe(static_cast<std::int64_t>(nombre)) + L" fichier" + s + L" sélectionné" + s +
           L", total = " + std::wstring(total) + L" octets.";
}
