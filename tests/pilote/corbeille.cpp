#include "pilote/corbeille.h"

#include "pilote/attente.h"
#include "pilote/fichiers.h"
#include "platform/windows.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Pilote::Corbeille {

namespace {

constexpr std::size_t position_taille = 13;  // after the coded name and a blank

std::wstring Repertoire_secours() { return Environnement(L"LOCALAPPDATA") + L"\\KORVANE"; }

// The system's code page, or UTF-8 for what it cannot hold: bytes that form valid UTF-8 are that.
std::wstring Texte_de(const std::string & octets) {
    const int longueur = static_cast<int>(octets.size());
    UINT      page     = CP_UTF8;
    int       nombre   = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, octets.data(), longueur, nullptr, 0);
    if (nombre == 0 && longueur != 0) {
        page   = CP_ACP;
        nombre = MultiByteToWideChar(page, 0, octets.data(), longueur, nullptr, 0);
    }
    std::wstring texte(static_cast<std::size_t>(nombre), L'\0');
    MultiByteToWideChar(page, 0, octets.data(), longueur, texte.data(), nombre);
    return texte;
}

Ligne Lire_ligne(const std::string & octets) {
    const std::wstring texte  = Texte_de(octets);
    const std::size_t  blanc  = texte.find(L' ', position_taille);
    const std::size_t  unite  = texte.find(L':');
    const bool         entier = texte.starts_with(L"crb") && blanc != std::wstring::npos &&
                        unite != std::wstring::npos && unite >= blanc + 3;
    EXPECT_TRUE(entier) << "ligne d'index incorrecte : " << octets;
    if (!entier) return {octets, {}, 0, {}, {}};
    return {octets, texte.substr(0, 12), std::stoull(texte.substr(position_taille)),
            texte.substr(blanc + 1, unite - blanc - 3), texte.substr(unite - 1)};
}

}  // namespace

std::wstring Index() {
    wchar_t systeme[MAX_PATH];
    GetSystemDirectoryW(systeme, MAX_PATH);
    return systeme + std::wstring(L"\\KORVANE.CRB");
}

std::wstring Index_secours() { return Repertoire_secours() + L"\\KORVANE.CRB"; }

std::vector<Ligne> Lignes(const std::wstring & index) {
    std::vector<Ligne> lignes;
    if (!Existe(index)) return lignes;
    const std::string contenu = Lire_fichier(index);
    for (std::size_t debut = 0; debut < contenu.size();) {
        const std::size_t fin = contenu.find("\r\n", debut);
        EXPECT_NE(fin, std::string::npos) << "dernière ligne inachevée : " << contenu.substr(debut);
        lignes.push_back(Lire_ligne(contenu.substr(debut, fin - debut)));
        debut = fin == std::string::npos ? contenu.size() : fin + 2;
    }
    return lignes;
}

void Vider() {
    const std::wstring sans_suffixe = Index().substr(0, Index().size() - 3);
    for (const std::wstring & chemin : {sans_suffixe + L"CRB", sans_suffixe + L"NEW", Repertoire_secours()}) {
        // A program that was just killed may still hold it.
        if (!Attendre([&] { return Effacer(chemin); }, 3000))
            throw std::runtime_error("effacer " + Utf8(chemin));
    }
}

void Condamner(const std::wstring & index) {
    Creer_dossier(index.substr(0, index.rfind(L'\\')));
    Creer_dossier(index + L"\\occupé");
}

std::int32_t Jour() {
    SYSTEMTIME maintenant{}, origine{};
    GetLocalTime(&maintenant);
    maintenant.wHour = maintenant.wMinute = maintenant.wSecond = maintenant.wMilliseconds = 0;
    origine.wYear                                                                         = 1899;
    origine.wMonth                                                                        = 12;
    origine.wDay                                                                          = 30;
    FILETIME debut{}, fin{};
    SystemTimeToFileTime(&origine, &debut);
    SystemTimeToFileTime(&maintenant, &fin);
    const auto moment = [](const FILETIME & date) {
        return std::uint64_t{date.dwHighDateTime} << 32 | date.dwLowDateTime;
    };
    return static_cast<std::int32_t>((moment(fin) - moment(debut)) / 864000000000ull);
}

}  // namespace Pilote::Corbeille
