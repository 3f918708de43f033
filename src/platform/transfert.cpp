#include "platform/transfert.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/ouverture.h"
#include "platform/poignee.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t depart_habituel = std::size_t{64} * 1024;
// Beyond, the buffer leaves the processor's cache and copies slow down.
constexpr std::size_t transfert_maximal = std::size_t{512} * 1024;
// Written between two flushes of a durable copy: little where they are slow, since nothing else goes on meanwhile.
constexpr std::uint64_t intervalle_depart  = std::uint64_t{256} * 1024;
constexpr std::uint64_t intervalle_minimal = std::uint64_t{64} * 1024;
constexpr std::uint64_t intervalle_maximal = std::uint64_t{8} * 1024 * 1024;
constexpr double        duree_courte       = 0.010;  // seconds for one read and one write, or for one flush
constexpr double        duree_longue       = 0.050;
// 1 January 1980 in UTC: diskettes know no earlier moment.
constexpr std::int64_t premiere_date = 119600064000000000;
constexpr DWORD attributs_copies = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

// What one transfer leaves to the next: thousands of small files share one buffer, and the file that follows on a slow
// medium does not start with a long transfer again.
struct Heritage {
    std::vector<std::byte> tampon;
    std::size_t            transfert = depart_habituel;
};
thread_local Heritage heritage;

double Maintenant() {
    static const double pas = [] {
        LARGE_INTEGER frequence;
        QueryPerformanceFrequency(&frequence);
        return 1.0 / static_cast<double>(frequence.QuadPart);
    }();
    LARGE_INTEGER compte;
    QueryPerformanceCounter(&compte);
    return static_cast<double>(compte.QuadPart) * pas;
}

std::uint64_t Taille(HANDLE fichier, const std::wstring & chemin) {
    LARGE_INTEGER taille;
    if (!GetFileSizeEx(fichier, &taille)) Lever_derniere_erreur(Acte::lire, chemin);
    return static_cast<std::uint64_t>(taille.QuadPart);
}

FILE_BASIC_INFO Reglages(HANDLE fichier, const std::wstring & chemin) {
    FILE_BASIC_INFO reglages;
    if (!GetFileInformationByHandleEx(fichier, FileBasicInfo, &reglages, sizeof reglages))
        Lever_derniere_erreur(Acte::lire, chemin);
    return reglages;
}

// Read-only is set last: some file systems keep the other attributes beside the file and change them only while it can
// be written. The ordinary file takes one call.
bool Regler(HANDLE fichier, FILE_BASIC_INFO & reglages) {
    const DWORD voulus = reglages.FileAttributes;
    const DWORD caches = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    if ((voulus & FILE_ATTRIBUTE_READONLY) != 0 && (voulus & caches) != 0) {
        reglages.FileAttributes = voulus & ~DWORD{FILE_ATTRIBUTE_READONLY};
        if (!SetFileInformationByHandle(fichier, FileBasicInfo, &reglages, sizeof reglages)) return false;
        reglages.FileAttributes = voulus;
    }
    return SetFileInformationByHandle(fichier, FileBasicInfo, &reglages, sizeof reglages) != FALSE;
}

}  // namespace

void Poser_au_mieux(std::int64_t date, std::uint32_t attributs,
                    const std::function<bool(std::int64_t, std::uint32_t)> & poser) {
    if (poser(date, attributs)) return;
    if (date < premiere_date && poser(premiere_date, attributs)) return;
    poser(0, attributs);
}

std::uint64_t Intervalle_suivant(std::uint64_t intervalle, double duree) {
    if (duree > duree_longue) return std::max(intervalle / 2, intervalle_minimal);
    if (duree < duree_courte) return std::min(intervalle * 2, intervalle_maximal);
    return intervalle;
}

Transfert::Transfert(const std::wstring & source)
    : source_(source), tampon_(std::move(heritage.tampon)),
      transfert_(std::min(heritage.transfert, depart_habituel)), intervalle_(intervalle_depart) {
    lecture_.Remplacer(CreateFileW(Forme_de_fichier(source).c_str(), GENERIC_READ,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!lecture_.Valide()) Lever_ouverture(source);
    // Before the length: a change made between the two shows in the date at the end.
    date_     = Reglages(lecture_.Valeur(), source).LastWriteTime.QuadPart;
    longueur_ = Taille(lecture_.Valeur(), source);
}

Transfert::~Transfert() {
    Abandonner();
    heritage.transfert = transfert_;
    if (tampon_.size() <= depart_habituel) heritage.tampon = std::move(tampon_);
}

void Transfert::Creer_cible(const std::wstring & cible, bool durable) {
    durable_ = durable;
    ecriture_.Remplacer(CreateFileW(Forme_de_fichier(cible).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_ARCHIVE, nullptr));
    if (!ecriture_.Valide()) Lever_ouverture(cible);
    cible_ = cible;
    cree_  = true;
}

bool Transfert::Bloc() {
    if (remis_ == presents_ && !fin_) {
        try {
            Avancer();
        } catch (const Erreur_execution &) {
            // Nothing may hold the medium while the user is asked about the error.
            Abandonner();
            throw;
        }
    }
    if (remis_ == presents_) return false;
    remis_ += std::min(taille_bloc, presents_ - remis_);
    return true;
}

void Transfert::Terminer(bool durable) {
    try {
        while (!fin_) Avancer();
        Achever(durable);
    } catch (const Erreur_execution &) {
        Abandonner();
        throw;
    }
}

void Transfert::Abandonner() noexcept {
    lecture_.Remplacer(INVALID_HANDLE_VALUE);
    ecriture_.Remplacer(INVALID_HANDLE_VALUE);
    fin_      = true;
    presents_ = remis_ = 0;
    if (!std::exchange(cree_, false)) return;
    try {
        const std::wstring forme = Forme_longue(cible_);
        if (DeleteFileW(forme.c_str())) return;
        SetFileAttributesW(forme.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(forme.c_str());
    } catch (...) {
        return;  // out of memory: nothing more can be done about the file
    }
}

void Transfert::Avancer() {
    const double debut = Maintenant();
    Remplir();
    const bool plein = presents_ == transfert_;
    Vider();
    const double duree = Maintenant() - debut;
    if (duree > duree_longue) transfert_ = std::max(transfert_ / 2, taille_bloc);
    if (duree < duree_courte && plein) transfert_ = std::min(transfert_ * 2, transfert_maximal);
}

void Transfert::Remplir() {
    if (tampon_.size() < transfert_) tampon_.resize(transfert_);
    DWORD lus = 0;
    if (!ReadFile(lecture_.Valeur(), tampon_.data(), static_cast<DWORD>(transfert_), &lus, nullptr))
        Lever_derniere_erreur(Acte::lire, source_);
    presents_ = lus;
    remis_    = 0;
    // A read that stops short of the length first seen is not taken for the end: only an empty one is.
    fin_ = lus == 0 || (lus < transfert_ && ecrits_ + lus >= longueur_);
}

void Transfert::Vider() {
    if (presents_ == 0) return;
    DWORD ecrits = 0;
    if (!WriteFile(ecriture_.Valeur(), tampon_.data(), static_cast<DWORD>(presents_), &ecrits, nullptr))
        Lever_derniere_erreur(Acte::ecrire, cible_);
    ecrits_ += ecrits;
    if (ecrits != presents_) throw Erreur_execution(Numero::disque_plein, ERROR_DISK_FULL, cible_);
    if (!durable_ || ecrits_ - fixes_ < intervalle_) return;
    const double debut = Maintenant();
    Fixer();
    intervalle_ = Intervalle_suivant(intervalle_, Maintenant() - debut);
}

void Transfert::Fixer() {
    if (!FlushFileBuffers(ecriture_.Valeur())) Lever_derniere_erreur(Acte::ecrire, cible_);
    fixes_ = ecrits_;
}

void Transfert::Achever(bool durable) {
    Reprendre_reglages();
    if (durable) Fixer();
    if (Taille(ecriture_.Valeur(), cible_) != ecrits_)
        throw Erreur_execution(Numero::entree_sortie, ERROR_WRITE_FAULT, cible_);
    Verifier_source(durable);
    lecture_.Remplacer(INVALID_HANDLE_VALUE);
    // A network place may only say now that the last of the data could not be stored.
    if (!CloseHandle(ecriture_.Ceder())) Lever_derniere_erreur(Acte::ecrire, cible_);
    cree_ = false;
}

// A durable copy is what lets its source be deleted: nothing may have been written there since it was read.
void Transfert::Verifier_source(bool durable) const {
    bool fidele = ecrits_ >= longueur_;
    if (durable) {
        fidele = fidele && Taille(lecture_.Valeur(), source_) == ecrits_ &&
                 Reglages(lecture_.Valeur(), source_).LastWriteTime.QuadPart == date_;
    }
    if (!fidele) throw Erreur_execution(Numero::entree_sortie, ERROR_READ_FAULT, source_);
}

// The bytes are there: a date or attributes that cannot be had or stored do not cost the copy.
void Transfert::Reprendre_reglages() const {
    FILE_BASIC_INFO source;
    if (!GetFileInformationByHandleEx(lecture_.Valeur(), FileBasicInfo, &source, sizeof source)) return;
    DWORD attributs = source.FileAttributes & attributs_copies;
    if (attributs != 0) attributs |= FILE_ATTRIBUTE_ARCHIVE;
    Poser_au_mieux(source.LastWriteTime.QuadPart, attributs, [&](std::int64_t date, std::uint32_t voulus) {
        FILE_BASIC_INFO cible{};  // a zero leaves the moment concerned, or the attributes, as they are
        cible.LastWriteTime.QuadPart = date;
        cible.FileAttributes         = voulus;
        return Regler(ecriture_.Valeur(), cible);
    });
}
