#include "recycle/fiche.h"

#include "platform/nombres.h"
#include "platform/utf8.h"

#include <algorithm>

namespace {

constexpr std::wstring_view debut_code      = L"crb";
constexpr std::size_t       chiffres_jour   = 5;
constexpr std::size_t       longueur_code   = 12;
constexpr std::size_t       chiffres_taille = 8;
constexpr std::size_t       plus_longue     = 100000;  // bytes; the longest path has 32,767 characters
// Days that five digits can say.
constexpr std::int32_t premier_jour = 10000;
constexpr std::int32_t dernier_jour = 99999;

bool Chiffre(wchar_t c) { return c >= L'0' && c <= L'9'; }

bool Tout_chiffres(std::wstring_view texte) { return std::all_of(texte.begin(), texte.end(), Chiffre); }

bool Ascii(std::string_view octets) {
    return std::all_of(octets.begin(), octets.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool Code_valable(std::wstring_view texte) {
    return texte.size() == longueur_code && texte.starts_with(debut_code) && texte[3] != L'0' &&
           Tout_chiffres(texte.substr(3, chiffres_jour)) && texte[8] == L'.' &&
           Tout_chiffres(texte.substr(9));
}

// No name holds these: one that does would lead elsewhere, or to several files.
bool Sans_caractere_interdit(std::wstring_view texte, std::wstring_view interdits) {
    return std::none_of(texte.begin(), texte.end(), [&](wchar_t c) {
        return static_cast<std::uint32_t>(c) < 0x20 || interdits.find(c) != interdits.npos;
    });
}

bool Nom_valable(std::wstring_view nom) {
    return !nom.empty() && nom != L"." && nom != L".." && Sans_caractere_interdit(nom, L"\\/:*?\"<>|");
}

bool Lettre(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }

bool Repertoire_valable(std::wstring_view repertoire) {
    return repertoire.size() >= 3 && Lettre(repertoire[0]) && repertoire[1] == L':' &&
           repertoire[2] == L'\\' && repertoire.back() == L'\\' &&
           Sans_caractere_interdit(repertoire.substr(2), L"/:*?\"<>|");
}

std::optional<std::uint64_t> Lire_taille(std::wstring_view chiffres) {
    if (chiffres.size() < chiffres_taille) return std::nullopt;
    std::uint64_t taille = 0;
    for (const wchar_t c : chiffres) {
        const auto chiffre = static_cast<std::uint64_t>(c - L'0');
        if (taille > (UINT64_MAX - chiffre) / 10) return std::nullopt;
        taille = taille * 10 + chiffre;
    }
    return taille;
}

std::wstring Decoder(std::string_view ligne, const Page_de_codes & page) {
    if (!Ascii(ligne))
        if (auto texte = De_utf8(ligne)) return *std::move(texte);
    return page.lire(ligne);
}

std::optional<Fiche> Separer(std::wstring_view texte) {
    if (texte.size() <= longueur_code || texte[longueur_code] != L' ') return std::nullopt;
    const std::size_t debut_taille = longueur_code + 1;
    const std::size_t fin_taille   = texte.find_first_not_of(L"0123456789", debut_taille);
    if (fin_taille == texte.npos || texte[fin_taille] != L' ') return std::nullopt;
    const auto        taille      = Lire_taille(texte.substr(debut_taille, fin_taille - debut_taille));
    const std::size_t debut_nom   = fin_taille + 1;
    const std::size_t deux_points = texte.find(L':');
    if (!taille || deux_points == texte.npos || deux_points < debut_nom + 3 || texte[deux_points - 2] != L' ')
        return std::nullopt;
    return Fiche{std::wstring(texte.substr(0, longueur_code)), *taille,
                 std::wstring(texte.substr(debut_nom, deux_points - 2 - debut_nom)),
                 std::wstring(texte.substr(deux_points - 1))};
}

}  // namespace

std::int32_t Fiche::Jour() const {
    std::int32_t jour = 0;
    for (std::size_t i = 3; i < 3 + chiffres_jour && i < code.size() && Chiffre(code[i]); ++i)
        jour = jour * 10 + static_cast<std::int32_t>(code[i] - L'0');
    return jour;
}

std::wstring Nom_code(std::int32_t jour, int tirage) {
    const auto cinq_chiffres = static_cast<std::uint64_t>(std::clamp(jour, premier_jour, dernier_jour));
    const auto trois         = static_cast<std::uint64_t>(std::clamp(tirage, 0, 999));
    return std::wstring(debut_code) + Chiffres(cinq_chiffres, chiffres_jour) + L"." + Chiffres(trois, 3);
}

std::optional<Fiche> Lire_fiche(std::string_view ligne, const Page_de_codes & page) {
    if (!ligne.starts_with("crb") || ligne.size() > plus_longue) return std::nullopt;
    std::optional<Fiche> fiche = Separer(Decoder(ligne, page));
    if (!fiche || !Code_valable(fiche->code) || !Nom_valable(fiche->nom) ||
        !Repertoire_valable(fiche->repertoire))
        return std::nullopt;
    return fiche;
}

std::string Ecrire_fiche(const Fiche & fiche, const Page_de_codes & page) {
    const std::wstring texte = fiche.code + L" " + Chiffres(fiche.taille, chiffres_taille) + L" " +
                               fiche.nom + L" " + fiche.repertoire;
    if (page.tient(texte)) {
        std::string octets = page.ecrire(texte);
        // Some words of the code page are UTF-8 by chance, and would be read as other words.
        const auto autre = De_utf8(octets);
        if (!autre || *autre == texte) return octets + "\r\n";
    }
    return En_utf8(texte) + "\r\n";
}
