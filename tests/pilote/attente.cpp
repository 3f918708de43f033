#include "pilote/attente.h"

#include "platform/windows.h"

namespace Pilote {

bool Attendre(const std::function<bool()> & condition, unsigned delai) {
    const ULONGLONG debut = GetTickCount64();
    while (!condition()) {
        if (GetTickCount64() - debut > delai) return false;
        Sleep(5);
    }
    return true;
}

void Dormir(unsigned millisecondes) { Sleep(millisecondes); }

std::string Utf8(const std::wstring & texte) {
    const int longueur = static_cast<int>(texte.size());
    const int octets = WideCharToMultiByte(CP_UTF8, 0, texte.data(), longueur, nullptr, 0, nullptr, nullptr);
    std::string resultat(static_cast<std::size_t>(octets), '\0');
    WideCharToMultiByte(CP_UTF8, 0, texte.data(), longueur, resultat.data(), octets, nullptr, nullptr);
    return resultat;
}

std::string Page_systeme(const std::wstring & texte) {
    const int   longueur = static_cast<int>(texte.size());
    const int   octets = WideCharToMultiByte(CP_ACP, 0, texte.data(), longueur, nullptr, 0, nullptr, nullptr);
    std::string resultat(static_cast<std::size_t>(octets), '\0');
    WideCharToMultiByte(CP_ACP, 0, texte.data(), longueur, resultat.data(), octets, nullptr, nullptr);
    return resultat;
}

std::wstring Large(const std::string & texte_utf8) {
    const int    octets   = static_cast<int>(texte_utf8.size());
    const int    longueur = MultiByteToWideChar(CP_UTF8, 0, texte_utf8.data(), octets, nullptr, 0);
    std::wstring resultat(static_cast<std::size_t>(longueur), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, texte_utf8.data(), octets, resultat.data(), longueur);
    return resultat;
}

std::wstring Environnement(const wchar_t * nom) {
    std::wstring valeur(32768, L'\0');
    const DWORD  longueur = GetEnvironmentVariableW(nom, valeur.data(), static_cast<DWORD>(valeur.size()));
    valeur.resize(longueur < valeur.size() ? longueur : 0);
    return valeur;
}

}  // namespace Pilote
