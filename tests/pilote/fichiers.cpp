#include "pilote/fichiers.h"

#include "pilote/attente.h"
#include "platform/windows.h"

#include <algorithm>
#include <cwchar>
#include <sstream>
#include <stdexcept>

namespace Pilote {

namespace {

[[noreturn]] void Echouer(const char * acte, const std::wstring & chemin) {
    throw std::runtime_error(std::string(acte) + " " + Utf8(chemin) + " : " + std::to_string(GetLastError()));
}

std::wstring Longue(const std::wstring & chemin) {
    const bool absolu = chemin.size() > 2 && chemin[1] == L':';
    return absolu ? L"\\\\?\\" + chemin : chemin;
}

std::wstring Parent(const std::wstring & chemin) {
    const std::size_t barre = chemin.rfind(L'\\');
    return barre == std::wstring::npos || barre < 3 ? L"" : chemin.substr(0, barre);
}

struct Fichier {
    Fichier(const std::wstring & chemin, DWORD acces, DWORD creation, const char * acte)
        : poignee(CreateFileW(Longue(chemin).c_str(), acces,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, creation,
                              FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {
        if (poignee == INVALID_HANDLE_VALUE) Echouer(acte, chemin);
    }
    ~Fichier() { CloseHandle(poignee); }
    Fichier(const Fichier &)             = delete;
    Fichier & operator=(const Fichier &) = delete;

    HANDLE poignee;
};

void Ecrire(HANDLE poignee, const std::string & octets, const std::wstring & chemin) {
    DWORD      ecrits   = 0;
    const auto longueur = static_cast<DWORD>(octets.size());
    if (!WriteFile(poignee, octets.data(), longueur, &ecrits, nullptr) || ecrits != longueur)
        Echouer("écrire", chemin);
}

constexpr std::uint64_t hachage_initial = 14695981039346656037ull;  // FNV-1a

std::uint64_t Hacher(std::uint64_t hachage, const char * octets, std::size_t nombre) {
    for (std::size_t i = 0; i < nombre; ++i)
        hachage = (hachage ^ static_cast<unsigned char>(octets[i])) * 1099511628211ull;
    return hachage;
}

// A linear congruence: its state goes on from one piece to the next.
void Remplir(std::string & morceau, std::uint32_t & etat) {
    for (char & octet : morceau) {
        etat  = etat * 1664525u + 1013904223u;
        octet = static_cast<char>(etat >> 24);
    }
}

std::vector<WIN32_FIND_DATAW> Lister(const std::wstring & repertoire) {
    std::vector<WIN32_FIND_DATAW> entrees;
    WIN32_FIND_DATAW              entree{};
    const bool                    racine = !repertoire.empty() && repertoire.back() == L'\\';
    HANDLE recherche = FindFirstFileW((Longue(repertoire) + (racine ? L"*" : L"\\*")).c_str(), &entree);
    if (recherche == INVALID_HANDLE_VALUE) return entrees;
    do {
        const std::wstring nom = entree.cFileName;
        if (nom != L"." && nom != L"..") entrees.push_back(entree);
    } while (FindNextFileW(recherche, &entree));
    FindClose(recherche);
    return entrees;
}

std::uint64_t Moment(const FILETIME & date) {
    return std::uint64_t{date.dwHighDateTime} << 32 | date.dwLowDateTime;
}

void Lire_branche(const std::wstring & racine, const std::wstring & sous, Arbre & arbre) {
    for (const WIN32_FIND_DATAW & entree : Lister(racine + sous)) {
        const std::wstring relatif = sous + L"\\" + entree.cFileName;
        Fiche              fiche;
        fiche.attributs = entree.dwFileAttributes;
        if (entree.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            arbre[relatif] = fiche;
            if (!(entree.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT))
                Lire_branche(racine, relatif, arbre);
            continue;
        }
        fiche.taille    = std::uint64_t{entree.nFileSizeHigh} << 32 | entree.nFileSizeLow;
        fiche.date      = Moment(entree.ftLastWriteTime);
        fiche.empreinte = Empreinte(racine + relatif);
        arbre[relatif]  = fiche;
    }
}

std::wstring Chemin_neuf() {
    static unsigned numero = 0;
    return L"C:\\essais\\" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++numero);
}

}  // namespace

std::string Contenu(std::uint64_t taille, std::uint32_t graine) {
    std::string contenu(static_cast<std::size_t>(taille), '\0');
    Remplir(contenu, graine);
    return contenu;
}

void Creer_dossier(const std::wstring & chemin) {
    if (chemin.empty() || Existe(chemin)) return;
    Creer_dossier(Parent(chemin));
    if (!CreateDirectoryW(Longue(chemin).c_str(), nullptr)) Echouer("créer le répertoire", chemin);
}

void Creer_fichier(const std::wstring & chemin, const std::string & contenu) {
    Creer_dossier(Parent(chemin));
    const Fichier fichier(chemin, GENERIC_WRITE, CREATE_ALWAYS, "créer");
    Ecrire(fichier.poignee, contenu, chemin);
}

void Creer_fichier_graine(const std::wstring & chemin, std::uint64_t taille, std::uint32_t graine) {
    Creer_dossier(Parent(chemin));
    const Fichier fichier(chemin, GENERIC_WRITE, CREATE_ALWAYS, "créer");
    std::string   morceau;
    for (std::uint64_t reste = taille; reste > 0; reste -= morceau.size()) {
        morceau.resize(static_cast<std::size_t>(std::min<std::uint64_t>(reste, 1u << 20)));
        Remplir(morceau, graine);
        Ecrire(fichier.poignee, morceau, chemin);
    }
}

std::string Lire_fichier(const std::wstring & chemin) {
    const Fichier fichier(chemin, GENERIC_READ, OPEN_EXISTING, "ouvrir");
    std::string   contenu;
    std::string   morceau(1u << 20, '\0');
    for (DWORD lus = 1; lus > 0; contenu.append(morceau, 0, lus)) {
        if (!ReadFile(fichier.poignee, morceau.data(), static_cast<DWORD>(morceau.size()), &lus, nullptr)) {
            Echouer("lire", chemin);
        }
    }
    return contenu;
}

std::uint64_t Taille_fichier(const std::wstring & chemin) {
    WIN32_FILE_ATTRIBUTE_DATA donnees{};
    if (!GetFileAttributesExW(Longue(chemin).c_str(), GetFileExInfoStandard, &donnees))
        Echouer("mesurer", chemin);
    return std::uint64_t{donnees.nFileSizeHigh} << 32 | donnees.nFileSizeLow;
}

std::uint64_t Empreinte(const std::wstring & chemin) {
    const Fichier fichier(chemin, GENERIC_READ, OPEN_EXISTING, "ouvrir");
    std::string   morceau(1u << 20, '\0');
    std::uint64_t hachage = hachage_initial;
    for (DWORD lus = 1; lus > 0; hachage = Hacher(hachage, morceau.data(), lus)) {
        if (!ReadFile(fichier.poignee, morceau.data(), static_cast<DWORD>(morceau.size()), &lus, nullptr)) {
            Echouer("lire", chemin);
        }
    }
    return hachage;
}

bool Existe(const std::wstring & chemin) {
    return GetFileAttributesW(Longue(chemin).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::uint32_t Attributs(const std::wstring & chemin) {
    const DWORD attributs = GetFileAttributesW(Longue(chemin).c_str());
    if (attributs == INVALID_FILE_ATTRIBUTES) Echouer("lire les attributs de", chemin);
    return attributs;
}

void Attributs(const std::wstring & chemin, std::uint32_t attributs) {
    // Where attributes are kept beside the file, a read-only file takes no other: they go first.
    for (const DWORD etape : {attributs & ~DWORD{FILE_ATTRIBUTE_READONLY}, DWORD{attributs}}) {
        const DWORD valeur = etape ? etape : FILE_ATTRIBUTE_NORMAL;
        if (!SetFileAttributesW(Longue(chemin).c_str(), valeur)) Echouer("changer les attributs de", chemin);
    }
}

std::uint64_t Date(const std::wstring & chemin) {
    WIN32_FILE_ATTRIBUTE_DATA donnees{};
    if (!GetFileAttributesExW(Longue(chemin).c_str(), GetFileExInfoStandard, &donnees))
        Echouer("dater", chemin);
    return Moment(donnees.ftLastWriteTime);
}

void Date(const std::wstring & chemin, std::uint64_t moment) {
    const Fichier  fichier(chemin, FILE_WRITE_ATTRIBUTES, OPEN_EXISTING, "dater");
    const FILETIME date{static_cast<DWORD>(moment), static_cast<DWORD>(moment >> 32)};
    if (!SetFileTime(fichier.poignee, nullptr, nullptr, &date)) Echouer("dater", chemin);
}

bool Lier(const std::wstring & existant, const std::wstring & nouveau) {
    return CreateHardLinkW(Longue(nouveau).c_str(), Longue(existant).c_str(), nullptr) != 0;
}

bool Effacer(const std::wstring & chemin) {
    const DWORD attributs = GetFileAttributesW(Longue(chemin).c_str());
    if (attributs == INVALID_FILE_ATTRIBUTES) return true;
    SetFileAttributesW(Longue(chemin).c_str(), FILE_ATTRIBUTE_NORMAL);
    if (!(attributs & FILE_ATTRIBUTE_DIRECTORY)) return DeleteFileW(Longue(chemin).c_str()) != 0;
    if (!(attributs & FILE_ATTRIBUTE_REPARSE_POINT)) {
        for (const WIN32_FIND_DATAW & entree : Lister(chemin)) Effacer(chemin + L"\\" + entree.cFileName);
    }
    return RemoveDirectoryW(Longue(chemin).c_str()) != 0;
}

std::vector<std::wstring> Noms(const std::wstring & repertoire) {
    std::vector<std::wstring> noms;
    for (const WIN32_FIND_DATAW & entree : Lister(repertoire)) noms.emplace_back(entree.cFileName);
    const auto avant = [](const std::wstring & a, const std::wstring & b) {
        return _wcsicmp(a.c_str(), b.c_str()) < 0;
    };
    std::sort(noms.begin(), noms.end(), avant);
    return noms;
}

Arbre Lire_arbre(const std::wstring & racine) {
    Arbre arbre;
    Lire_branche(racine, L"", arbre);
    return arbre;
}

std::string Differences(const Arbre & avant, const Arbre & apres) {
    std::ostringstream lignes;
    for (const auto & [chemin, fiche] : avant) {
        const auto autre = apres.find(chemin);
        if (autre == apres.end()) {
            lignes << "disparu : " << Utf8(chemin) << "\n";
        } else if (!(autre->second == fiche)) {
            lignes << "changé : " << Utf8(chemin) << " (" << fiche.taille << " -> " << autre->second.taille
                   << " octets)\n";
        }
    }
    for (const auto & [chemin, fiche] : apres) {
        if (!avant.contains(chemin))
            lignes << "apparu : " << Utf8(chemin) << " (" << fiche.taille << " octets)\n";
    }
    return lignes.str();
}

Dossier_temporaire::Dossier_temporaire() : Dossier_temporaire(Chemin_neuf()) {}

Dossier_temporaire::Dossier_temporaire(const std::wstring & chemin) : chemin_(chemin) {
    Effacer(chemin_);
    Creer_dossier(chemin_);
}

Dossier_temporaire::~Dossier_temporaire() {
    // The program that ran there may still be ending.
    Attendre([this] { return Effacer(chemin_); }, 2000);
}

}  // namespace Pilote
