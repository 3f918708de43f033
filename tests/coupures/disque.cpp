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

}  // namespace

void Disque::Oublier() {
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
    if (ouvert != ouverts_.end()) durables_.erase(ouvert->second.chemin);
}

void Disque::Renomme(const std::wstring & de, const std::wstring & a) {
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

void Disque::Supprime(const std::wstring & chemin) { durables_.erase(Cle_de(chemin)); }

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
}
