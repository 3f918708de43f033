#include "platform/canal.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/poignee.h"

#include <algorithm>

namespace {

constexpr DWORD       partage        = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t plus_a_la_fois = std::size_t{1} << 20;

[[noreturn]] void Lever_ouverture(const std::wstring & chemin) {
    const DWORD code = GetLastError();
    if (code == ERROR_ACCESS_DENIED && Repertoire_existe(chemin))
        throw Erreur_execution(Numero::acces_fichier, code, chemin);
    Lever_code(code, Acte::ouvrir, chemin);
}

void Aller(HANDLE fichier, std::uint64_t position, const std::wstring & chemin) {
    LARGE_INTEGER voulue;
    voulue.QuadPart = static_cast<LONGLONG>(position);
    if (!SetFilePointerEx(fichier, voulue, nullptr, FILE_BEGIN)) Lever_derniere_erreur(Acte::ecrire, chemin);
}

// A full disk may answer a write with success and a short count.
void Ecrire(HANDLE fichier, std::string_view octets, const std::wstring & chemin) {
    DWORD ecrits = 0;
    if (!WriteFile(fichier, octets.data(), static_cast<DWORD>(octets.size()), &ecrits, nullptr))
        Lever_derniere_erreur(Acte::ecrire, chemin);
    if (ecrits != octets.size()) throw Erreur_execution(Numero::disque_plein, ERROR_DISK_FULL, chemin);
}

void Fixer(HANDLE fichier, const std::wstring & chemin) {
    if (!FlushFileBuffers(fichier)) Lever_derniere_erreur(Acte::ecrire, chemin);
}

bool Fixer_chemin(const std::wstring & chemin, DWORD options) {
    const Poignee_fichier fichier(CreateFileW(Forme_longue(chemin).c_str(), GENERIC_WRITE, partage, nullptr,
                                              OPEN_EXISTING, options, nullptr));
    return fichier.Valide() && FlushFileBuffers(fichier.Valeur()) != FALSE;
}

// A hidden or read-only file refuses to be made anew.
void Oter(const std::wstring & forme) {
    SetFileAttributesW(forme.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(forme.c_str());
}

void Remplir(const std::wstring & forme, std::string_view octets, std::uint32_t attributs,
             const std::wstring & chemin) {
    Poignee_fichier fichier(CreateFileW(forme.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW,
                                        attributs != 0 ? attributs : FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!fichier.Valide()) Lever_ouverture(chemin);
    try {
        while (!octets.empty()) {
            const std::string_view part = octets.substr(0, plus_a_la_fois);
            Ecrire(fichier.Valeur(), part, chemin);
            octets.remove_prefix(part.size());
        }
        Fixer(fichier.Valeur(), chemin);
        if (!CloseHandle(fichier.Ceder())) Lever_derniere_erreur(Acte::ecrire, chemin);
    } catch (const Erreur_execution &) {
        fichier.Remplacer(INVALID_HANDLE_VALUE);
        Oter(forme);
        throw;
    }
}

}  // namespace

void Canal_ajout::Ouvrir(const std::wstring & chemin, std::uint32_t attributs) {
    Fermer();
    fichier_.Remplacer(CreateFileW(Forme_longue(chemin).c_str(), GENERIC_READ | GENERIC_WRITE, partage,
                                   nullptr, OPEN_ALWAYS, attributs != 0 ? attributs : FILE_ATTRIBUTE_NORMAL,
                                   nullptr));
    if (!fichier_.Valide()) Lever_ouverture(chemin);
    chemin_ = chemin;
}

void Canal_ajout::Fermer() noexcept { fichier_.Remplacer(INVALID_HANDLE_VALUE); }

bool Canal_ajout::A_sa_place() const {
    const Poignee_fichier      autre(CreateFileW(Forme_longue(chemin_).c_str(), FILE_READ_ATTRIBUTES, partage,
                                                 nullptr, OPEN_EXISTING, 0, nullptr));
    BY_HANDLE_FILE_INFORMATION a, b;
    return Ouvert() && autre.Valide() && GetFileInformationByHandle(fichier_.Valeur(), &a) &&
           GetFileInformationByHandle(autre.Valeur(), &b) &&
           a.dwVolumeSerialNumber == b.dwVolumeSerialNumber && a.nFileIndexHigh == b.nFileIndexHigh &&
           a.nFileIndexLow == b.nFileIndexLow;
}

std::uint64_t Canal_ajout::Longueur() const {
    LARGE_INTEGER taille;
    if (!GetFileSizeEx(fichier_.Valeur(), &taille)) Lever_derniere_erreur(Acte::lire, chemin_);
    return static_cast<std::uint64_t>(taille.QuadPart);
}

std::string Canal_ajout::Lire_tout() const {
    std::string octets(Longueur(), '\0');
    Aller(fichier_.Valeur(), 0, chemin_);
    std::size_t presents = 0;
    while (presents < octets.size()) {
        DWORD      lus  = 0;
        const auto part = static_cast<DWORD>(std::min(octets.size() - presents, plus_a_la_fois));
        if (!ReadFile(fichier_.Valeur(), octets.data() + presents, part, &lus, nullptr))
            Lever_derniere_erreur(Acte::lire, chemin_);
        if (lus == 0) break;
        presents += lus;
    }
    octets.resize(presents);
    return octets;
}

void Canal_ajout::Ajouter(std::string_view octets) {
    const std::uint64_t avant = Longueur();
    Aller(fichier_.Valeur(), avant, chemin_);
    try {
        Ecrire(fichier_.Valeur(), octets, chemin_);
        Fixer(fichier_.Valeur(), chemin_);
    } catch (const Erreur_execution &) {
        try {
            Tronquer(avant);
        } catch (const Erreur_execution &) {  // the first error says what happened
        }
        throw;
    }
}

void Canal_ajout::Tronquer(std::uint64_t longueur) {
    Aller(fichier_.Valeur(), longueur, chemin_);
    if (!SetEndOfFile(fichier_.Valeur())) Lever_derniere_erreur(Acte::ecrire, chemin_);
    Fixer(fichier_.Valeur(), chemin_);
}

void Ecrire_fichier(const std::wstring & chemin, std::string_view octets, std::uint32_t attributs) {
    const std::wstring forme = Forme_longue(chemin);
    if (Fichier_existe(chemin)) Oter(forme);
    Remplir(forme, octets, attributs, chemin);
}

bool Fixer_fichier(const std::wstring & chemin) { return Fixer_chemin(chemin, 0); }

// Directories open with this option alone.
bool Fixer_repertoire(const std::wstring & chemin) {
    return Fixer_chemin(chemin, FILE_FLAG_BACKUP_SEMANTICS);
}
