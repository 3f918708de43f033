#include "coupures/interception.h"

#include "coupures/disque.h"
#include "platform/windows.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <stdexcept>
#include <utility>

namespace {

using namespace Interception;

enum Rang : std::size_t {
    creer_fichier,
    ecrire,
    fixer,
    couper,
    regler_poignee,
    dater,
    renommer,
    remplacer,
    supprimer,
    attribuer,
    creer_repertoire,
    retirer_repertoire,
    fermer,
    lire,
    lire_attributs,
    lire_attributs_complets,
    lire_taille,
    placer,
    identifier,
    chercher,
    chercher_suivant,
    finir_recherche,
    changer_repertoire,
    attendre,
    nombre_appels
};

struct Appel {
    const char * nom         = "";
    bool         modifie     = false;
    bool         prend_place = false;  // on the disk
};

constexpr std::array<Appel, nombre_appels> appels = {{{"CreateFileW", true, true},
                                                      {"WriteFile", true, true},
                                                      {"FlushFileBuffers", true, true},
                                                      {"SetEndOfFile", true, true},
                                                      {"SetFileInformationByHandle", true, false},
                                                      {"SetFileTime", true, false},
                                                      {"MoveFileExW", true, false},
                                                      {"ReplaceFileW", true, false},
                                                      {"DeleteFileW", true, false},
                                                      {"SetFileAttributesW", true, false},
                                                      {"CreateDirectoryW", true, true},
                                                      {"RemoveDirectoryW", true, false},
                                                      {"CloseHandle", true, false},
                                                      {"ReadFile"},
                                                      {"GetFileAttributesW"},
                                                      {"GetFileAttributesExW"},
                                                      {"GetFileSizeEx"},
                                                      {"SetFilePointerEx"},
                                                      {"GetFileInformationByHandle"},
                                                      {"FindFirstFileExW"},
                                                      {"FindNextFileW"},
                                                      {"FindClose"},
                                                      {"SetCurrentDirectoryW"},
                                                      {"Sleep"}}};

std::array<void *, nombre_appels> vraies{};

struct Jeu {
    Consigne consigne;
    Fin      fin = Fin::processus;
    DWORD    fil = 0;  // the thread under orders, 0 for none
    Constat  constat;
    Disque   disque;
};
Jeu jeu;

// The calls of the thread under orders alone, and none of those that the observation makes.
class Suspension {
public:
    Suspension() : fil_(std::exchange(jeu.fil, 0)) {}
    ~Suspension() { jeu.fil = fil_; }
    Suspension(const Suspension &)             = delete;
    Suspension & operator=(const Suspension &) = delete;

private:
    DWORD fil_;
};

bool Sous_ordres() { return jeu.fil != 0 && jeu.fil == GetCurrentThreadId(); }

[[noreturn]] void Mourir() {
    jeu.constat.mort = true;
    jeu.fil          = 0;
    if (jeu.fin == Fin::processus) TerminateProcess(GetCurrentProcess(), 77);
    jeu.constat.en_suspens = jeu.disque.En_suspens();
    jeu.disque.Tout_fermer();
    if (jeu.fin != Fin::fil) jeu.disque.Couper_courant(jeu.fin == Fin::courant_zeros);
    ExitThread(77);
}

// What each call says about the disk. The last parameter of each is what the call answered.
template <Rang rang> struct Appele {};

template <class Resultat, Rang rang, class... A> void Constater(Appele<rang>, Resultat, A...) {}
void Constater(Appele<creer_fichier>, HANDLE poignee, LPCWSTR chemin, DWORD, DWORD, LPSECURITY_ATTRIBUTES,
               DWORD, DWORD options, HANDLE) {
    if (poignee != INVALID_HANDLE_VALUE) {
        jeu.disque.Ouvre(poignee, chemin, (options & FILE_FLAG_WRITE_THROUGH) != 0);
    }
}
void Constater(Appele<fixer>, BOOL fait, HANDLE poignee) {
    if (fait) jeu.disque.Fixe(poignee);
}
void Constater(Appele<renommer>, BOOL fait, LPCWSTR de, LPCWSTR a, DWORD options) {
    if (fait) jeu.disque.Renomme(de, a, (options & MOVEFILE_WRITE_THROUGH) != 0);
}
void Constater(Appele<attribuer>, BOOL fait, LPCWSTR, DWORD) {
    if (fait) jeu.disque.Change();
}
void Constater(Appele<creer_repertoire>, BOOL fait, LPCWSTR chemin, LPSECURITY_ATTRIBUTES) {
    if (fait) jeu.disque.Fait_repertoire(chemin);
}
void Constater(Appele<retirer_repertoire>, BOOL fait, LPCWSTR) {
    if (fait) jeu.disque.Change();
}
void Constater(Appele<supprimer>, BOOL fait, LPCWSTR chemin) {
    if (fait) jeu.disque.Supprime(chemin);
}
void Constater(Appele<fermer>, BOOL, HANDLE poignee) { jeu.disque.Ferme(poignee); }
void Constater(Appele<chercher>, HANDLE poignee, LPCWSTR, FINDEX_INFO_LEVELS, LPVOID, FINDEX_SEARCH_OPS,
               LPVOID, DWORD) {
    if (poignee != INVALID_HANDLE_VALUE) jeu.disque.Cherche(poignee);
}
void Constater(Appele<finir_recherche>, BOOL, HANDLE poignee) { jeu.disque.Finit_recherche(poignee); }

template <Rang rang, class... A> void Annoncer(Appele<rang>, A...) {}
void Annoncer(Appele<supprimer>, LPCWSTR chemin) { jeu.disque.Va_changer(chemin); }
void Annoncer(Appele<attribuer>, LPCWSTR chemin, DWORD) { jeu.disque.Va_changer(chemin); }
void Annoncer(Appele<retirer_repertoire>, LPCWSTR chemin) { jeu.disque.Va_changer(chemin); }
void Annoncer(Appele<ecrire>, HANDLE poignee, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED) {
    jeu.disque.Va_ecrire(poignee);
}
void Annoncer(Appele<couper>, HANDLE poignee) { jeu.disque.Va_ecrire(poignee); }
void Annoncer(Appele<regler_poignee>, HANDLE poignee, FILE_INFO_BY_HANDLE_CLASS, LPVOID, DWORD) {
    jeu.disque.Va_ecrire(poignee);
}

template <Rang rang, class... A> bool Modifie(Appele<rang>, A...) { return appels[rang].modifie; }
bool Modifie(Appele<creer_fichier>, LPCWSTR, DWORD, DWORD, LPSECURITY_ATTRIBUTES, DWORD disposition, DWORD,
             HANDLE) {
    return disposition != OPEN_EXISTING;
}

// Half of what a call asks; false for calls that have no half.
template <Rang rang, class... A> bool Faire_a_moitie(Appele<rang>, A...) { return false; }
bool Faire_a_moitie(Appele<ecrire>, HANDLE poignee, LPCVOID octets, DWORD nombre, LPDWORD ecrits,
                    LPOVERLAPPED recouvre) {
    reinterpret_cast<decltype(&WriteFile)>(vraies[ecrire])(poignee, octets, nombre / 2, ecrits, recouvre);
    return true;
}

template <Rang rang, class R, class... A> R Faire(Appele<rang>, R(WINAPI * vraie)(A...), A... arguments) {
    return vraie(arguments...);
}
// The machine goes on: nobody but `Disque` needs to know what reached the disk.
BOOL Faire(Appele<fixer>, BOOL(WINAPI *)(HANDLE), HANDLE) { return TRUE; }

template <class Resultat> Resultat Valeur_echec() {
    if constexpr (std::is_same_v<Resultat, DWORD>) {
        return INVALID_FILE_ATTRIBUTES;
    } else if constexpr (std::is_same_v<Resultat, HANDLE>) {
        return INVALID_HANDLE_VALUE;
    } else if constexpr (!std::is_void_v<Resultat>) {
        return Resultat{};
    }
}

// A handle that could not be closed would stay with the test.
bool Peut_echouer(Rang rang) { return rang != fermer && rang != finir_recherche && rang != attendre; }

bool Echoue(Rang rang) {
    const Consigne & consigne = jeu.consigne;
    if (!Peut_echouer(rang)) return false;
    if (consigne.effet == Effet::echouer) return jeu.constat.appels == consigne.rang;
    if (consigne.effet != Effet::echouer_ensuite || jeu.constat.appels < consigne.rang) return false;
    return appels[rang].prend_place || (consigne.code != ERROR_DISK_FULL && appels[rang].modifie);
}

template <Rang rang, class R, class... A> R WINAPI Detour(A... arguments) {
    const auto vraie = reinterpret_cast<R(WINAPI *)(A...)>(vraies[rang]);
    if (!Sous_ordres()) return vraie(arguments...);
    if constexpr (rang == attendre) {
        return;  // nobody else will free what is waited for
    } else {
        constexpr Appele<rang> appele;
        const bool             compte = jeu.consigne.lectures || Modifie(appele, arguments...);
        if (compte) {
            ++jeu.constat.appels;
            jeu.constat.noms.emplace_back(appels[rang].nom);
        }
        const Effet effet = jeu.consigne.effet;
        const bool  ici   = compte && jeu.constat.appels == jeu.consigne.rang;
        if (ici) jeu.constat.atteint = true;
        {
            const Suspension suspension;
            Annoncer(appele, arguments...);
        }
        if (ici && (effet == Effet::mourir_avant || effet == Effet::mourir_pendant)) {
            if (effet == Effet::mourir_pendant) Faire_a_moitie(appele, arguments...);
            Mourir();
        }
        if constexpr (rang == ecrire) {
            if (ici && effet == Effet::ecrire_court)
                return Faire_a_moitie(appele, arguments...) ? TRUE : FALSE;
        }
        if (compte && Echoue(rang)) {
            SetLastError(jeu.consigne.code);
            return Valeur_echec<R>();
        }
        const R     resultat = Faire(appele, vraie, arguments...);
        const DWORD erreur   = GetLastError();
        Constater(appele, resultat, arguments...);
        if (ici && effet == Effet::mourir_apres) Mourir();
        SetLastError(erreur);
        return resultat;
    }
}

template <Rang rang, class R, class... A> void * Adresse(R(WINAPI *)(A...)) {
    return reinterpret_cast<void *>(&Detour<rang, R, A...>);
}

std::array<void *, nombre_appels> Detours() {
    return {Adresse<creer_fichier>(&CreateFileW),
            Adresse<ecrire>(&WriteFile),
            Adresse<fixer>(&FlushFileBuffers),
            Adresse<couper>(&SetEndOfFile),
            Adresse<regler_poignee>(&SetFileInformationByHandle),
            Adresse<dater>(&SetFileTime),
            Adresse<renommer>(&MoveFileExW),
            Adresse<remplacer>(&ReplaceFileW),
            Adresse<supprimer>(&DeleteFileW),
            Adresse<attribuer>(&SetFileAttributesW),
            Adresse<creer_repertoire>(&CreateDirectoryW),
            Adresse<retirer_repertoire>(&RemoveDirectoryW),
            Adresse<fermer>(&CloseHandle),
            Adresse<lire>(&ReadFile),
            Adresse<lire_attributs>(&GetFileAttributesW),
            Adresse<lire_attributs_complets>(&GetFileAttributesExW),
            Adresse<lire_taille>(&GetFileSizeEx),
            Adresse<placer>(&SetFilePointerEx),
            Adresse<identifier>(&GetFileInformationByHandle),
            Adresse<chercher>(&FindFirstFileExW),
            Adresse<chercher_suivant>(&FindNextFileW),
            Adresse<finir_recherche>(&FindClose),
            Adresse<changer_repertoire>(&SetCurrentDirectoryW),
            Adresse<attendre>(&Sleep)};
}

// The entries of this program's import table, with the names of the functions.
template <class Visite> void Parcourir_importations(Visite && visite) {
    auto * const base = reinterpret_cast<char *>(GetModuleHandleW(nullptr));
    const auto * entete =
        reinterpret_cast<IMAGE_NT_HEADERS *>(base + reinterpret_cast<IMAGE_DOS_HEADER *>(base)->e_lfanew);
    const auto & table = entete->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto * module = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR *>(base + table.VirtualAddress);
         module->Name != 0; ++module) {
        auto * nom     = reinterpret_cast<IMAGE_THUNK_DATA *>(base + module->OriginalFirstThunk);
        auto * adresse = reinterpret_cast<IMAGE_THUNK_DATA *>(base + module->FirstThunk);
        for (; nom->u1.AddressOfData != 0; ++nom, ++adresse) {
            if (IMAGE_SNAP_BY_ORDINAL(nom->u1.Ordinal)) continue;
            visite(reinterpret_cast<IMAGE_IMPORT_BY_NAME *>(base + nom->u1.AddressOfData)->Name,
                   adresse->u1.Function);
        }
    }
}

// What was there.
void * Remplacer(ULONGLONG & entree, void * autre) {
    DWORD avant = 0;
    if (!VirtualProtect(&entree, sizeof entree, PAGE_READWRITE, &avant)) {
        throw std::runtime_error("import table refused");
    }
    void * vraie = reinterpret_cast<void *>(entree);
    entree       = reinterpret_cast<ULONGLONG>(autre);
    VirtualProtect(&entree, sizeof entree, avant, &avant);
    return vraie;
}

void Installer() {
    static bool installee = false;
    if (std::exchange(installee, true)) return;
    Parcourir_importations([detours = Detours()](const char * nom, ULONGLONG & entree) {
        for (std::size_t rang = 0; rang < nombre_appels; ++rang) {
            if (std::strcmp(nom, appels[rang].nom) == 0) vraies[rang] = Remplacer(entree, detours[rang]);
        }
    });
}

DWORD WINAPI Jouer_sur_ce_fil(void * acte) {
    jeu.fil = GetCurrentThreadId();
    (*static_cast<const std::function<void()> *>(acte))();
    jeu.fil = 0;
    return 0;
}

}  // namespace

namespace Interception {

std::vector<std::string> Oublies() {
    static constexpr const char * dangereuses[] = {
        "MoveFileW",          "MoveFileWithProgressW", "CopyFileW",
        "CopyFileExW",        "CreateHardLinkW",       "DeleteFileA",
        "MoveFileA",          "MoveFileExA",           "CreateFileA",
        "SetFileAttributesA", "CreateFile2",           "WriteFileEx",
        "WriteFileGather",    "CreateSymbolicLinkW",   "RemoveDirectoryA",
        "SHFileOperationW",   "NtSetInformationFile",  "SetFileValidData"};
    std::vector<std::string> trouvees;
    Parcourir_importations([&](const char * nom, ULONGLONG &) {
        for (const char * dangereuse : dangereuses) {
            if (std::strcmp(nom, dangereuse) == 0) trouvees.emplace_back(nom);
        }
    });
    return trouvees;
}

Constat Jouer(const Consigne & consigne, Fin fin, const std::function<void()> & acte) {
    Installer();
    jeu.consigne = consigne;
    jeu.fin      = fin;
    jeu.constat  = {};
    jeu.disque.Oublier();
    void * argument = const_cast<std::function<void()> *>(&acte);
    if (fin == Fin::processus) {
        Jouer_sur_ce_fil(argument);
    } else {
        const HANDLE fil = CreateThread(nullptr, 0, Jouer_sur_ce_fil, argument, 0, nullptr);
        if (fil == nullptr) throw std::runtime_error("no thread");
        WaitForSingleObject(fil, INFINITE);
        CloseHandle(fil);
    }
    return jeu.constat;
}

Detournement::Detournement(const char * nom, void * autre) {
    Parcourir_importations([&](const char * importe, ULONGLONG & entree) {
        if (std::strcmp(importe, nom) == 0) entree_ = &entree;
    });
    if (entree_ == nullptr) throw std::runtime_error(std::string("not imported: ") + nom);
    vraie_ = Remplacer(*entree_, autre);
}

Detournement::~Detournement() { Remplacer(*entree_, vraie_); }

}  // namespace Interception
