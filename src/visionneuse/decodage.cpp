#include "visionneuse/decodage.h"

#include <algorithm>

namespace {
constexpr char32_t illisible = 0xFFFD;

bool Moitie_haute(int unite) { return unite >= 0xD800 && unite < 0xDC00; }
bool Moitie_basse(int unite) { return unite >= 0xDC00 && unite < 0xE000; }
bool Suite_utf8(int octet) { return octet >= 0x80 && octet < 0xC0; }

// How many bytes a first byte of UTF-8 announces after it; -1 for one that cannot be first.
int Suites_annoncees(int octet) {
    if (octet < 0x80) return 0;
    if (octet >= 0xC2 && octet < 0xE0) return 1;
    if (octet >= 0xE0 && octet < 0xF0) return 2;
    if (octet >= 0xF0 && octet < 0xF5) return 3;
    return -1;
}

// Not in a shorter form, not half of a pair, not beyond the last character.
bool Code_utf8_valable(char32_t code, int suites) {
    constexpr std::array<char32_t, 4> minimum{0, 0x80, 0x800, 0x10000};
    return code >= minimum[static_cast<std::size_t>(suites)] && code <= 0x10FFFF &&
           (code < 0xD800 || code > 0xDFFF);
}

// Valid throughout, a last character cut by the end allowed when more follows; with a byte above 127 at least.
bool Est_utf8(std::string_view debut, bool entier) {
    const auto lire = [&](std::size_t i) { return static_cast<int>(static_cast<unsigned char>(debut[i])); };
    bool       hors_ascii = false;
    for (std::size_t i = 0; i < debut.size();) {
        const int suites = Suites_annoncees(lire(i));
        if (suites < 0) return false;
        hors_ascii                  = hors_ascii || suites > 0;
        const std::size_t presentes = std::min(static_cast<std::size_t>(suites), debut.size() - i - 1);
        for (std::size_t k = 1; k <= presentes; ++k) {
            if (!Suite_utf8(lire(i + k))) return false;
        }
        if (presentes < static_cast<std::size_t>(suites)) return !entier && hors_ascii;
        i += presentes + 1;
    }
    return hors_ascii;
}
}  // namespace

void Ajouter_caractere(std::wstring & texte, char32_t code) {
    if (code < 0x10000) {
        texte += static_cast<wchar_t>(code);
        return;
    }
    texte += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
    texte += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
}

Decodeur::Decodeur(Codage codage, const Page_ansi & page)
    : codage_(codage == Codage::ansi && page.utf8 ? Codage::utf8 : codage),
      unite_(codage == Codage::utf16_petit || codage == Codage::utf16_grand ? 2 : 1), page_(&page) {}

int Decodeur::Lire_unite(Octets & octets, std::uint64_t position) const {
    const int premier = octets.Octet(position);
    if (unite_ == 1 || premier < 0) return premier;
    const int second = octets.Octet(position + 1);
    if (second < 0) return -1;
    return codage_ == Codage::utf16_petit ? second << 8 | premier : premier << 8 | second;
}

Caractere Decodeur::Lire_utf8(Octets & octets, std::uint64_t position) const {
    const int premier = octets.Octet(position);
    const int suites  = Suites_annoncees(premier);
    if (suites < 0) return {illisible, 1};
    auto code = static_cast<char32_t>(suites == 0 ? premier : premier & (0x3F >> suites));
    for (int k = 1; k <= suites; ++k) {
        const int octet = octets.Octet(position + static_cast<unsigned>(k));
        if (!Suite_utf8(octet)) return {illisible, 1};
        code = code << 6 | static_cast<char32_t>(octet & 0x3F);
    }
    if (!Code_utf8_valable(code, suites)) return {illisible, 1};
    return {code, static_cast<unsigned>(suites) + 1};
}

Caractere Decodeur::Lire_utf16(Octets & octets, std::uint64_t position) const {
    const int premiere = Lire_unite(octets, position);
    if (premiere < 0) return {illisible, 1};  // a byte alone at the end
    if (!Moitie_haute(premiere))
        return {Moitie_basse(premiere) ? illisible : static_cast<char32_t>(premiere), 2};
    const int seconde = Lire_unite(octets, position + 2);
    if (!Moitie_basse(seconde)) return {illisible, 2};
    return {0x10000 + (static_cast<char32_t>(premiere - 0xD800) << 10) +
                static_cast<char32_t>(seconde - 0xDC00),
            4};
}

Caractere Decodeur::Lire(Octets & octets, std::uint64_t position) const {
    const int octet = octets.Octet(position);
    if (octet < 0) return {};
    if (unite_ == 2) return Lire_utf16(octets, position);
    if (codage_ == Codage::utf8) return Lire_utf8(octets, position);
    const auto rang = static_cast<std::size_t>(octet);
    if (page_->tetes[rang] && page_->paire) {
        const int suite = octets.Octet(position + 1);
        if (suite >= 0x20) {
            const wchar_t code =
                page_->paire(static_cast<unsigned char>(octet), static_cast<unsigned char>(suite));
            return {static_cast<char32_t>(code), 2};
        }
        return {illisible, 1};
    }
    return {static_cast<char32_t>(page_->seuls[rang]), 1};
}

std::uint64_t Decodeur::Aligner(Octets & octets, std::uint64_t position) const {
    if (codage_ == Codage::utf8) {
        for (int pas = 0; pas < 3 && Suite_utf8(octets.Octet(position)); ++pas) ++position;
    } else if (unite_ == 2 && position >= 2 && Moitie_basse(Lire_unite(octets, position)) &&
               Moitie_haute(Lire_unite(octets, position - 2))) {
        position += 2;
    }
    return position;
}

Apparence Reconnaitre(std::string_view debut, bool entier) {
    Apparence    apparence{Nature::texte, Reconnaitre_codage(debut)};
    const Codage marque = apparence.marque.codage;
    if (marque == Codage::utf16_petit || marque == Codage::utf16_grand) return apparence;
    if (debut.find('\0') != std::string_view::npos) apparence.nature = Nature::binaire;
    if (apparence.nature == Nature::texte && apparence.marque.octets == 0 && Est_utf8(debut, entier))
        apparence.marque.codage = Codage::utf8;
    return apparence;
}

std::wstring Texte_entre(Octets & octets, const Decodeur & decodeur, std::uint64_t debut, std::uint64_t fin) {
    std::wstring texte;
    char32_t     precedent = 0;
    for (std::uint64_t position = debut; position < fin;) {
        const Caractere lu = decodeur.Lire(octets, position);
        if (lu.octets == 0) break;
        if (lu.code == L'\r' || (lu.code == L'\n' && precedent != L'\r'))
            texte += L"\r\n";
        else if (lu.code != L'\n')
            Ajouter_caractere(texte, lu.code == 0 ? 0xB7 : lu.code);
        precedent = lu.code;
        position += lu.octets;
    }
    return texte;
}
