#include "services/banc.h"

#include "platform/poignee.h"

#include <cstdio>
#include <cstdlib>

namespace {

std::wstring Repertoire_temporaire() {
    wchar_t     chemin[MAX_PATH + 1];
    const DWORD lus = GetTempPathW(MAX_PATH + 1, chemin);
    return std::wstring(chemin, lus);
}

}  // namespace

Banc::Banc() {
    static int rang = 0;
    racine_         = Repertoire_temporaire() + L"essai_" + std::to_wstring(GetCurrentProcessId()) + L"_" +
              std::to_wstring(++rang);
    CreateDirectoryW(racine_.c_str(), nullptr);
}

Banc::~Banc() {
    SetCurrentDirectoryW(L"c:\\");
    Vider_repertoire(racine_);
    RemoveDirectoryW(racine_.c_str());
}

std::wstring Banc::Fichier(const std::wstring & nom, const std::string & octets) const {
    Poser(Chemin(nom), octets);
    return Chemin(nom);
}

std::wstring Banc::Repertoire(const std::wstring & nom) const {
    EXPECT_TRUE(CreateDirectoryW(Prefixe(Chemin(nom)).c_str(), nullptr)) << GetLastError();
    return Chemin(nom);
}

std::wstring Banc::Profond() const {
    std::wstring chemin = racine_;
    for (int i = 0; i < 4; ++i) {
        chemin += L"\\" + std::wstring(100, static_cast<wchar_t>(L'a' + i));
        EXPECT_TRUE(CreateDirectoryW(Prefixe(chemin).c_str(), nullptr)) << GetLastError();
    }
    return chemin;
}

std::wstring Prefixe(const std::wstring & chemin) { return L"\\\\?\\" + chemin; }

void Poser(const std::wstring & chemin, const std::string & octets) {
    const Poignee_fichier fichier(
        CreateFileW(Prefixe(chemin).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    ASSERT_TRUE(fichier.Valide()) << GetLastError();
    DWORD ecrits = 0;
    WriteFile(fichier.Valeur(), octets.data(), static_cast<DWORD>(octets.size()), &ecrits, nullptr);
    ASSERT_EQ(octets.size(), ecrits);
}

std::string Contenu(const std::wstring & chemin) {
    const DWORD           partage = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Poignee_fichier fichier(
        CreateFileW(Prefixe(chemin).c_str(), GENERIC_READ, partage, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!fichier.Valide()) return "(absent)";
    std::string octets(GetFileSize(fichier.Valeur(), nullptr), '\0');
    DWORD       lus = 0;
    ReadFile(fichier.Valeur(), octets.data(), static_cast<DWORD>(octets.size()), &lus, nullptr);
    octets.resize(lus);
    return octets;
}

bool Present(const std::wstring & chemin) {
    return GetFileAttributesW(Prefixe(chemin).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::uint32_t Attributs(const std::wstring & chemin) { return GetFileAttributesW(Prefixe(chemin).c_str()); }

void Regler_attributs(const std::wstring & chemin, std::uint32_t attributs) {
    EXPECT_TRUE(SetFileAttributesW(Prefixe(chemin).c_str(), attributs)) << GetLastError();
}

void Vider_repertoire(const std::wstring & repertoire) {
    WIN32_FIND_DATAW        trouve;
    const Poignee_recherche recherche(FindFirstFileW((Prefixe(repertoire) + L"\\*").c_str(), &trouve));
    if (!recherche.Valide()) return;
    do {
        const std::wstring nom = trouve.cFileName;
        if (nom == L"." || nom == L"..") continue;
        const std::wstring chemin = repertoire + L"\\" + nom;
        SetFileAttributesW(Prefixe(chemin).c_str(), FILE_ATTRIBUTE_NORMAL);
        if ((trouve.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            Vider_repertoire(chemin);
            RemoveDirectoryW(Prefixe(chemin).c_str());
        } else {
            DeleteFileW(Prefixe(chemin).c_str());
        }
    } while (FindNextFileW(recherche.Valeur(), &trouve));
}

std::string Octets_varies(std::size_t longueur) {
    std::string   octets(longueur, '\0');
    std::uint32_t etat = 12345;
    for (char & octet : octets) {
        etat  = etat * 1664525 + 1013904223;
        octet = static_cast<char>(etat >> 24);
    }
    return octets;
}

bool Unite_disponible(char lettre, const char * nom) {
    const char * valeur = std::getenv((std::string("KORVANE_") + lettre).c_str());
    if (valeur != nullptr && std::string(valeur) == "1") return true;
    std::printf("[ laisse   ] Unite_%c.%s\n", lettre, nom);
    return false;
}
