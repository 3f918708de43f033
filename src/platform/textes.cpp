#include "platform/textes.h"

#include "platform/nombres.h"
#include "platform/windows.h"

#include <algorithm>
#include <vector>

namespace {

constexpr std::size_t nombre_de_caracteres = 65536;

// Folding by table: a directory of 100,000 names is sorted and matched without a system call for each character.
struct Tables {
    std::vector<wchar_t> majuscule = std::vector<wchar_t>(nombre_de_caracteres);
    std::vector<wchar_t> ordre;  // capital without its accent, so that é stands beside e
};

wchar_t Sans_accent(wchar_t c) {
    wchar_t   parties[16];
    const int lus = FoldStringW(MAP_COMPOSITE, &c, 1, parties, 16);
    return lus > 0 ? parties[0] : c;
}

Tables Faire_tables() {
    Tables t;
    for (std::size_t i = 0; i < nombre_de_caracteres; ++i) t.majuscule[i] = static_cast<wchar_t>(i);
    CharUpperBuffW(t.majuscule.data(), static_cast<DWORD>(nombre_de_caracteres));
    t.ordre                    = t.majuscule;
    const auto oublier_accents = [&](std::size_t premier, std::size_t dernier) {
        for (std::size_t i = premier; i <= dernier; ++i) t.ordre[i] = Sans_accent(t.majuscule[i]);
    };
    oublier_accents(0x00C0, 0x024F);
    oublier_accents(0x1E00, 0x1EFF);
    return t;
}

const Tables & Pliage() {
    static const Tables tables = Faire_tables();
    return tables;
}

int Comparer(const std::vector<wchar_t> & table, std::wstring_view a, std::wstring_view b) {
    const std::size_t commun = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < commun; ++i) {
        const int ecart = int{table[a[i]]} - int{table[b[i]]};
        if (ecart != 0) return ecart;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

std::wstring Changer_casse(std::wstring_view texte, DWORD sens) {
    std::wstring resultat(texte);
    const int    taille = static_cast<int>(texte.size());
    // Upper and lower case of UTF-16 text have the length of the text: the mapping is one character to one.
    if (taille != 0)
        LCMapStringEx(LOCALE_NAME_USER_DEFAULT, sens, texte.data(), taille, resultat.data(), taille, nullptr,
                      nullptr, 0);
    return resultat;
}

std::wstring Reglage(LCTYPE quoi, const wchar_t * defaut) {
    wchar_t valeur[16];
    return GetLocaleInfoW(LOCALE_USER_DEFAULT, quoi, valeur, 16) > 0 ? valeur : defaut;
}

bool Moment_local(std::uint64_t moment, SYSTEMTIME & local) {
    const FILETIME date = {static_cast<DWORD>(moment), static_cast<DWORD>(moment >> 32)};
    SYSTEMTIME     utc;
    return FileTimeToSystemTime(&date, &utc) && SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
}

std::wstring Deux_chiffres(unsigned n) {
    return {static_cast<wchar_t>(L'0' + n / 10 % 10), static_cast<wchar_t>(L'0' + n % 10)};
}

}  // namespace

std::string En_ansi(std::wstring_view texte) {
    if (texte.empty()) return {};
    const int taille = static_cast<int>(texte.size());
    // Without this flag a letter of another alphabet becomes a look-alike, and a name becomes another name. A system whose
    // ANSI code page is UTF-8 holds every character and refuses both the flag and the substitute.
    const bool         utf8      = GetACP() == CP_UTF8;
    const DWORD        strict    = utf8 ? 0U : DWORD{WC_NO_BEST_FIT_CHARS};
    const char * const substitut = utf8 ? nullptr : "?";
    const int          besoin =
        WideCharToMultiByte(CP_ACP, strict, texte.data(), taille, nullptr, 0, substitut, nullptr);
    std::string octets(static_cast<std::size_t>(besoin), '\0');
    WideCharToMultiByte(CP_ACP, strict, texte.data(), taille, octets.data(), besoin, substitut, nullptr);
    return octets;
}

std::wstring De_ansi(std::string_view octets) {
    if (octets.empty()) return {};
    const int    taille = static_cast<int>(octets.size());
    const int    besoin = MultiByteToWideChar(CP_ACP, 0, octets.data(), taille, nullptr, 0);
    std::wstring texte(static_cast<std::size_t>(besoin), L'\0');
    MultiByteToWideChar(CP_ACP, 0, octets.data(), taille, texte.data(), besoin);
    return texte;
}

bool Tient_en_ansi(std::wstring_view texte) { return De_ansi(En_ansi(texte)) == texte; }

std::wstring Majuscules(std::wstring_view texte) { return Changer_casse(texte, LCMAP_UPPERCASE); }

std::wstring Minuscules(std::wstring_view texte) { return Changer_casse(texte, LCMAP_LOWERCASE); }

wchar_t Majuscule(wchar_t caractere) { return Pliage().majuscule[caractere]; }

void Plier_pour_ordre(std::wstring & texte) {
    const Tables & tables = Pliage();
    for (wchar_t & caractere : texte) caractere = tables.ordre[caractere];
}

int Comparer_sans_casse(std::wstring_view a, std::wstring_view b) {
    const Tables & tables = Pliage();
    const int      ecart  = Comparer(tables.ordre, a, b);
    return ecart != 0 ? ecart : Comparer(tables.majuscule, a, b);
}

std::wstring Format_milliers(std::uint64_t n) { return Milliers(n, Reglage(LOCALE_STHOUSAND, L" ")); }

std::wstring Format_date(std::uint64_t moment) {
    SYSTEMTIME t;
    if (!Moment_local(moment, t)) return {};
    const std::wstring separateur = Reglage(LOCALE_SDATE, L"/");
    return Deux_chiffres(t.wDay) + separateur + Deux_chiffres(t.wMonth) + separateur +
           Deux_chiffres(t.wYear % 100u);
}

std::wstring Format_heure(std::uint64_t moment) {
    SYSTEMTIME t;
    if (!Moment_local(moment, t)) return {};
    return std::to_wstring(t.wHour) + Reglage(LOCALE_STIME, L":") + Deux_chiffres(t.wMinute);
}
