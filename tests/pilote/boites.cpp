#include "pilote/boites.h"

#include "pilote/attente.h"
#include "pilote/entrees.h"
#include "pilote/fenetres.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <map>
#include <ostream>
#include <utility>

namespace Pilote {

namespace {

constexpr int id_texte = 0xFFFF;

HWND Bouton(HWND boite, int id) {
    HWND bouton = GetDlgItem(boite, id);
    return bouton && Visible(bouton) ? bouton : nullptr;
}

unsigned Lire_boutons(HWND boite) {
    struct Jeu {
        unsigned           style;
        std::array<int, 3> boutons;
    };
    static constexpr Jeu jeux[] = {
        {MB_YESNOCANCEL, {IDYES, IDNO, IDCANCEL}},
        {MB_YESNO, {IDYES, IDNO, 0}},
        {MB_ABORTRETRYIGNORE, {IDABORT, IDRETRY, IDIGNORE}},
        {MB_RETRYCANCEL, {IDRETRY, IDCANCEL, 0}},
        {MB_OKCANCEL, {IDOK, IDCANCEL, 0}},
    };
    for (const Jeu & jeu : jeux) {
        bool entier = true;
        for (int id : jeu.boutons) entier = entier && (id == 0 || Bouton(boite, id));
        if (entier) return jeu.style;
    }
    return MB_OK;
}

// The default button is the one with the focus: the box's own notion of it is not brought up to date
// everywhere. The order of the buttons in the box decides which number it has.
unsigned Lire_bouton_defaut(HWND boite) {
    const HWND focus  = Focus(boite);
    unsigned   numero = 0;
    for (int id : {IDOK, IDYES, IDABORT, IDRETRY, IDNO, IDIGNORE, IDCANCEL}) {
        if (!Bouton(boite, id)) continue;
        if (Bouton(boite, id) == focus) return numero * MB_DEFBUTTON2;
        ++numero;
    }
    return 0;
}

// Machine code that returns LoadIconW(nullptr, MAKEINTRESOURCE(numero)).
std::array<unsigned char, 29> Code_de_lecture(unsigned numero) {
    std::array<unsigned char, 29> code     = {0x48, 0x83, 0xEC, 0x28,                    // sub rsp, 28h
                                              0x31, 0xC9,                                // xor ecx, ecx
                                              0xBA, 0,    0,    0,    0,                 // mov edx, numero
                                              0x48, 0xB8, 0,    0,    0, 0, 0, 0, 0, 0,  // mov rax, LoadIconW
                                              0xFF, 0xD0,                                // call rax
                                              0x48, 0x83, 0xC4, 0x28,                    // add rsp, 28h
                                              0xC3};                                     // ret
    const auto                    fonction = reinterpret_cast<ULONG_PTR>(&LoadIconW);
    std::memcpy(code.data() + 7, &numero, sizeof numero);
    std::memcpy(code.data() + 13, &fonction, sizeof fonction);
    return code;
}

// The system libraries stand at the same address in every process.
DWORD Icone_du_processus(HANDLE processus, unsigned numero) {
    const auto code = Code_de_lecture(numero);
    void *     copie =
        VirtualAllocEx(processus, nullptr, code.size(), MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE);
    if (!copie) return 0;
    DWORD  icone = 0;
    HANDLE fil   = nullptr;
    if (WriteProcessMemory(processus, copie, code.data(), code.size(), nullptr)) {
        fil = CreateRemoteThread(processus, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(copie),
                                 nullptr, 0, nullptr);
    }
    if (fil) {
        if (WaitForSingleObject(fil, 2000) == WAIT_OBJECT_0) GetExitCodeThread(fil, &icone);
        CloseHandle(fil);
    }
    VirtualFreeEx(processus, copie, 0, MEM_RELEASE);
    return icone;
}

std::uint64_t Naissance(HANDLE processus) {
    FILETIME debut{}, fin{}, noyau{}, utilisateur{};
    GetProcessTimes(processus, &debut, &fin, &noyau, &utilisateur);
    return (static_cast<std::uint64_t>(debut.dwHighDateTime) << 32) | debut.dwLowDateTime;
}

// Numbers of processes come back soon: a process is known by its moment of birth as well.
const std::map<DWORD, unsigned> & Icones_du_processus(DWORD processus) {
    static std::map<std::pair<DWORD, std::uint64_t>, std::map<DWORD, unsigned>> connues;
    static constexpr std::pair<unsigned, unsigned> genres[] = {{32513, MB_ICONHAND},
                                                               {32514, MB_ICONQUESTION},
                                                               {32515, MB_ICONEXCLAMATION},
                                                               {32516, MB_ICONASTERISK}};
    HANDLE poignee = OpenProcess(PROCESS_ALL_ACCESS, FALSE, processus);
    auto & icones  = connues[{processus, poignee ? Naissance(poignee) : 0}];
    if (!poignee) return icones;
    if (icones.empty()) {
        for (const auto & [numero, style] : genres) icones[Icone_du_processus(poignee, numero)] = style;
        icones.erase(0);
    }
    CloseHandle(poignee);
    return icones;
}

unsigned Lire_icone(HWND boite) {
    DWORD icone = 0;
    Parcourir(boite, [&](HWND enfant) {
        if (!icone && (GetWindowLongW(enfant, GWL_STYLE) & SS_TYPEMASK) == SS_ICON &&
            Classe(enfant) == L"Static") {
            icone = static_cast<DWORD>(SendMessageW(enfant, STM_GETICON, 0, 0));
        }
    });
    if (!icone) return 0;
    DWORD processus = 0;
    GetWindowThreadProcessId(boite, &processus);
    const auto & connues = Icones_du_processus(processus);
    const auto   trouvee = connues.find(icone);
    return trouvee == connues.end() ? 0 : trouvee->second;
}

}  // namespace

std::ostream & operator<<(std::ostream & sortie, const Boite & boite) {
    std::string texte = Utf8(boite.texte);
    for (std::size_t i = texte.find('\r'); i != std::string::npos; i = texte.find('\r', i))
        texte.replace(i, 1, "\\r");
    return sortie << "boîte \"" << Utf8(boite.titre) << "\" texte \"" << texte << "\" style " << boite.style;
}

HWND Boite_visible(DWORD processus) {
    for (HWND fenetre : Fenetres(processus)) {
        if (Classe(fenetre) == L"#32770" && GetDlgItem(fenetre, id_texte)) return fenetre;
    }
    return nullptr;
}

// The box is ready to be answered when it has the focus and lets its process wait for input.
HWND Attendre_boite_visible(DWORD processus, unsigned delai) {
    HWND boite = nullptr;
    Attendre([&] { return (boite = Boite_visible(processus)) != nullptr; }, delai);
    if (boite) Attendre([&] { return GetForegroundWindow() == boite; }, 1000);
    return boite;
}

Boite Lire_boite(HWND boite) {
    return {Texte(boite), Texte(GetDlgItem(boite, id_texte)),
            Lire_boutons(boite) | Lire_icone(boite) | Lire_bouton_defaut(boite)};
}

bool Repondre_boite(HWND boite, int bouton) {
    // A box with OK alone gives that button the number of Cancel, so that Escape presses it.
    HWND cible = Bouton(boite, bouton);
    if (!cible && bouton == IDOK) cible = Bouton(boite, IDCANCEL);
    if (!cible) return false;
    Cliquer(cible);
    return Attendre([&] { return !Visible(boite); });
}

}  // namespace Pilote
