// Stands in for a program that another one starts: copied under that program's name, it appends one line of
// UTF-8 to the file named by the variable KORVANE_ENREGISTREMENT: its path, command line, current directory
// and window state, tabs between.
#include "platform/windows.h"

#include <string>

namespace {

std::wstring Chemin_programme() {
    std::wstring chemin(32768, L'\0');
    chemin.resize(GetModuleFileNameW(nullptr, chemin.data(), static_cast<DWORD>(chemin.size())));
    return chemin;
}

std::wstring Repertoire() {
    std::wstring chemin(32768, L'\0');
    chemin.resize(GetCurrentDirectoryW(static_cast<DWORD>(chemin.size()), chemin.data()));
    return chemin;
}

std::string Utf8(const std::wstring & texte) {
    const int longueur = static_cast<int>(texte.size());
    const int octets = WideCharToMultiByte(CP_UTF8, 0, texte.data(), longueur, nullptr, 0, nullptr, nullptr);
    std::string resultat(static_cast<std::size_t>(octets), '\0');
    WideCharToMultiByte(CP_UTF8, 0, texte.data(), longueur, resultat.data(), octets, nullptr, nullptr);
    return resultat;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int etat) {
    wchar_t fichier[1024];
    if (!GetEnvironmentVariableW(L"KORVANE_ENREGISTREMENT", fichier, 1024)) return 9;
    const std::string ligne = Utf8(Chemin_programme() + L"\t" + GetCommandLineW() + L"\t" + Repertoire() +
                                   L"\t" + std::to_wstring(etat) + L"\n");
    HANDLE poignee = CreateFileW(fichier, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                 OPEN_ALWAYS, 0, nullptr);
    if (poignee == INVALID_HANDLE_VALUE) return 8;
    DWORD ecrits = 0;
    WriteFile(poignee, ligne.data(), static_cast<DWORD>(ligne.size()), &ecrits, nullptr);
    CloseHandle(poignee);
    return 42;
}
