#include "fenetres/mine.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <map>
#include <stdexcept>
#include <vector>

#include <psapi.h>

namespace {

constexpr std::array<const char *, 7> mines = {
    "MoveFileExW",      "WriteFile",        "SetFileAttributesW",        "DeleteFileW",
    "RemoveDirectoryW", "CreateDirectoryW", "SetFileInformationByHandle"};

void Exiger(bool fait, const char * quoi) {
    if (!fait) throw std::runtime_error(std::string("mine : ") + quoi + " " + std::to_string(GetLastError()));
}

template <class Valeur> Valeur Lire(HANDLE processus, const unsigned char * adresse) {
    Valeur valeur{};
    Exiger(ReadProcessMemory(processus, adresse, &valeur, sizeof valeur, nullptr), "lire");
    return valeur;
}

std::string Lire_nom(HANDLE processus, const unsigned char * adresse) {
    std::string nom;
    while (const char lettre = Lire<char>(processus, adresse + nom.size())) nom += lettre;
    return nom;
}

unsigned char * Base(HANDLE processus) {
    HMODULE module = nullptr;
    DWORD   octets = 0;
    Exiger(K32EnumProcessModules(processus, &module, sizeof module, &octets), "modules");
    return reinterpret_cast<unsigned char *>(module);
}

// Where the program keeps the addresses of the functions that are mined.
std::map<std::string, unsigned char *> Entrees(HANDLE processus) {
    unsigned char * const base   = Base(processus);
    const auto            debut  = Lire<IMAGE_DOS_HEADER>(processus, base);
    const auto            entete = Lire<IMAGE_NT_HEADERS64>(processus, base + debut.e_lfanew);
    const unsigned char * module =
        base + entete.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    std::map<std::string, unsigned char *> entrees;
    for (;; module += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
        const auto importe = Lire<IMAGE_IMPORT_DESCRIPTOR>(processus, module);
        if (importe.Name == 0) return entrees;
        for (std::size_t i = 0;; ++i) {
            const auto nom = Lire<ULONGLONG>(processus, base + importe.OriginalFirstThunk + i * 8);
            if (nom == 0) break;
            if (IMAGE_SNAP_BY_ORDINAL64(nom)) continue;
            entrees[Lire_nom(processus, base + nom + 2)] = base + importe.FirstThunk + i * 8;
        }
    }
}

// One function's detour: counts down, goes on to the function, or ends the program at zero. The counter, the address of
// TerminateProcess and the function's own address lie at the end.
std::vector<unsigned char> Detour(const unsigned char * ici, const unsigned char * compteur,
                                  const unsigned char * fonction, const unsigned char * fin) {
    std::vector<unsigned char> octets;
    const auto                 ecrire = [&](std::initializer_list<int> suite) {
        for (const int octet : suite) octets.push_back(static_cast<unsigned char>(octet));
    };
    // An operand relative to the end of its instruction.
    const auto vers = [&](const unsigned char * cible) {
        const auto distance = static_cast<std::int32_t>(cible - (ici + octets.size() + 4));
        for (int i = 0; i < 4; ++i) octets.push_back(static_cast<unsigned char>(distance >> (8 * i)));
    };
    ecrire({0xF0, 0xFF, 0x0D});  // lock dec dword [counter]
    vers(compteur);
    ecrire({0x74, 0x06});  // jz past the next
    ecrire({0xFF, 0x25});  // jmp [function]
    vers(fonction);
    ecrire({0x48, 0x83, 0xEC, 0x28});                    // sub rsp, 28h
    ecrire({0x48, 0xC7, 0xC1, 0xFF, 0xFF, 0xFF, 0xFF});  // mov rcx, -1: this process
    ecrire({0xBA, 77, 0, 0, 0});                         // mov edx, 77
    ecrire({0xFF, 0x15});                                // call [TerminateProcess]
    vers(fin);
    return octets;
}

}  // namespace

Mine::Mine(HANDLE processus, unsigned rang) : processus_(processus), rang_(rang) {
    // The system's functions are at the same place in every program.
    static const std::map<std::string, ULONGLONG> vraies = [] {
        std::map<std::string, ULONGLONG> adresses;
        const HMODULE                    systeme = GetModuleHandleW(L"kernel32.dll");
        for (const char * nom : mines) {
            adresses[nom] =
                reinterpret_cast<ULONGLONG>(reinterpret_cast<void *>(GetProcAddress(systeme, nom)));
        }
        adresses["TerminateProcess"] = reinterpret_cast<ULONGLONG>(
            reinterpret_cast<void *>(GetProcAddress(systeme, "TerminateProcess")));
        return adresses;
    }();
    constexpr std::size_t place = 64;  // bytes for one detour, its function's address at 56
    auto * const          page  = static_cast<unsigned char *>(VirtualAllocEx(
                  processus, nullptr, place * (mines.size() + 1), MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE));
    Exiger(page != nullptr, "place");
    compteur_        = page;
    const auto poser = [&](unsigned char * adresse, const void * octets, std::size_t nombre) {
        DWORD avant = 0;
        VirtualProtectEx(processus, adresse, nombre, PAGE_EXECUTE_READWRITE, &avant);
        Exiger(WriteProcessMemory(processus, adresse, octets, nombre, nullptr), "écrire");
    };
    poser(page, &rang, sizeof rang);
    poser(page + 8, &vraies.at("TerminateProcess"), 8);
    const auto entrees = Entrees(processus);
    for (std::size_t i = 0; i < mines.size(); ++i) {
        const auto entree = entrees.find(mines[i]);
        if (entree == entrees.end()) continue;
        unsigned char * const ici    = page + place * (i + 1);
        const auto            octets = Detour(ici, page, ici + 56, page + 8);
        poser(ici, octets.data(), octets.size());
        poser(ici + 56, &vraies.at(mines[i]), 8);
        const auto detour = reinterpret_cast<ULONGLONG>(ici);
        poser(entree->second, &detour, 8);
    }
}

unsigned Mine::Appels() const { return rang_ - Lire<unsigned>(processus_, compteur_); }
