#include "coupures/disque.h"

#include "platform/poignee.h"

#include <algorithm>
#include <cwctype>

namespace {

// One key for one file: case and the long-path prefix do not matter.
std::wstring Cle_de(const std::wstring & chemin) {
    std::wstring cle = chemin.starts_with(L"\\\\?\\") ? chemin.substr(4) : chemin;
    std::ranges::transform(cle, cle.begin(),
                           [](wchar_t c) { return static_cast<wchar_t>(std::towlower(c)); });
    return cle;
}

std::string Lire(const std::wstring & chemin) {
    const DWORD           partage = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Poignee_fichier fichier(
        CreateFileW(chemin.c_str(), GENERIC_READ, partage, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!fichier.Valide()) return {};
    std::string octets(GetFileSize(fichier.Valeur(), nullptr), '\0');
    DWORD       lus = 0;
    ReadFile(fichier.Valeur(), octets.data(), static_cast<DWORD>(octets.size()), &lus, nullptr);
    octets.resize(lus);
    return octets;
}

void Ecrire(const std::wstring & chemin, const std::string & octets) {
    const DWORD attributs = GetFileAttributesW(chemin.c_str());
    SetFileAttributesW(chemin.c_str(), FILE_ATTRIBUTE_NORMAL);
    {
        const Poignee_fichier fichier(
            CreateFileW(chemin.c_str(), GENERIC_WRITE, 0, nullptr, TRUNCATE_EXISTING, 0, nullptr));
        DWORD ecrits = 0;
        WriteFile(fichier.Valeur(), octets.data(), static_cast<DWORD>(octets.size()), &ecrits, nullptr);
    }
    SetFileAttributesW(chemin.c_str(), attributs);
}

// Hidden and read-only together are refused by some file systems unless set one after the other.
void Attribuer(const std::wstring & chemin, DWORD attributs) {
    SetFileAttributesW(chemin.c_str(), attributs & ~DWORD{FILE_ATTRIBUTE_READONLY});
    if ((attributs & FILE_ATTRIBUTE_READONLY) != 0) SetFileAttributesW(chemin.c_str(), attributs);
}

// A file that is gone is made again, one that is there gets its attributes back.
void Remettre(const std::wstring & chemin, const std::string & octets,
              const WIN32_FILE_ATTRIBUTE_DATA & avant) {
    if (GetFileAttributesW(chemin.c_str()) == INVALID_FILE_ATTRIBUTES) {
        const Poignee_fichier fichier(CreateFileW(chemin.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                                  FILE_ATTRIBUTE_NORMAL, nullptr));
        DWORD                 ecrits = 0;
        WriteFile(fichier.Valeur(), octets.data(), static_cast<DWORD>(octets.size()), &ecrits, nullptr);
        SetFileTime(fichier.Valeur(), nullptr, nullptr, &avant.ftLastWriteTime);
    }
    Attribuer(chemin, avant.dwFileAttributes);
}

}  // namespace

void Disque::Oublier() {
    avant_ = {};
    noms_.clear();
    ouverts_.clear();
    recherches_.clear();
    durables_.clear();
}

void Disque::Ouvre(HANDLE poignee, const std::wstring & chemin, bool directe) {
    ouverts_[poignee] = {Cle_de(chemin), directe};
}

void Disque::Va_ecrire(HANDLE poignee) {
    const auto ouvert = ouverts_.find(poignee);
    if (ouvert == ouverts_.end() || ouvert->second.directe) return;
    if (!durables_.contains(ouvert->second.chemin)) {
        durables_[ouvert->second.chemin] = Lire(ouvert->second.chemin);
    }
}

void Disque::Fixe(HANDLE poignee) {
    const auto ouvert = ouverts_.find(poignee);
    if (ouvert == ouverts_.end()) return;
    durables_.erase(ouvert->second.chemin);
    noms_.clear();
}

void Disque::Va_changer(const std::wstring & chemin) {
    WIN32_FILE_ATTRIBUTE_DATA etat;
    avant_ = {};
    if (!GetFileAttributesExW(chemin.c_str(), GetFileExInfoStandard, &etat)) return;
    if ((etat.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        avant_ = [chemin] { CreateDirectoryW(chemin.c_str(), nullptr); };
    } else {
        avant_ = [chemin, etat, octets = Lire(chemin)] { Remettre(chemin, octets, etat); };
    }
}

void Disque::Change() {
    if (avant_) noms_.push_back(std::move(avant_));
    avant_ = {};
}

void Disque::Fait_repertoire(const std::wstring & chemin) {
    noms_.emplace_back([chemin] { RemoveDirectoryW(chemin.c_str()); });
}

void Disque::Renomme(const std::wstring & de, const std::wstring & a, bool directe) {
    if (directe)
        noms_.clear();
    else
        noms_.emplace_back([de, a] { MoveFileExW(a.c_str(), de.c_str(), 0); });
    durables_.erase(Cle_de(a));
    auto note = durables_.extract(Cle_de(de));
    if (!note.empty()) {
        note.key() = Cle_de(a);
        durables_.insert(std::move(note));
    }
    for (auto & [poignee, ouverture] : ouverts_) {
        if (ouverture.chemin == Cle_de(de)) ouverture.chemin = Cle_de(a);
    }
}

void Disque::Supprime(const std::wstring & chemin) {
    durables_.erase(Cle_de(chemin));
    Change();
}

void Disque::Ferme(HANDLE poignee) { ouverts_.erase(poignee); }

void Disque::Tout_fermer() {
    while (!ouverts_.empty()) {
        const HANDLE poignee = ouverts_.begin()->first;
        ouverts_.erase(ouverts_.begin());
        CloseHandle(poignee);
    }
    for (const HANDLE recherche : recherches_) FindClose(recherche);
    recherches_.clear();
}

void Disque::Couper_courant(bool zeros) {
    for (auto & [chemin, octets] : durables_) {
        if (zeros) octets.resize(std::max(octets.size(), Lire(chemin).size()), '\0');
        Ecrire(chemin, octets);
    }
    durables_.clear();
    while (!noms_.empty()) {
        noms_.back()();
        noms_.pop_back();
    }
}
