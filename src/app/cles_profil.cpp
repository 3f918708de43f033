#include "app/cles_profil.h"

std::vector<std::wstring> Decouper_cles(std::wstring_view liste) {
    std::vector<std::wstring> cles;
    while (!liste.empty() && liste.front() != L'\0') {
        const std::wstring_view cle = liste.substr(0, liste.find(L'\0'));
        cles.emplace_back(cle);
        // The last name may have lost its NUL with the end of the list.
        liste.remove_prefix(cle.size() < liste.size() ? cle.size() + 1 : cle.size());
    }
    return cles;
}
