#include "visionneuse/page_systeme.h"

#include "platform/textes.h"

#include <string>

namespace {
std::wstring De_paire(unsigned char tete, unsigned char suite) {
    return De_ansi(std::string{static_cast<char>(tete), static_cast<char>(suite)});
}

// What the conversion does tells what kind of code page it is.
Page_ansi Decouvrir() {
    Page_ansi page;
    page.utf8 = De_paire(0xC3, 0xA9) == L"\u00E9";
    for (unsigned octet = 0; octet < 256; ++octet) {
        const std::wstring seul = De_ansi(std::string(1, static_cast<char>(octet)));
        page.seuls[octet]       = seul.empty() ? L'\xFFFD' : seul.front();
        // A byte that takes the next one with it begins a pair.
        page.tetes[octet] = octet >= 0x80 && De_paire(static_cast<unsigned char>(octet), '@').size() == 1;
    }
    page.paire = [](unsigned char tete, unsigned char suite) {
        const std::wstring lu = De_paire(tete, suite);
        return lu.empty() ? L'\xFFFD' : lu.front();
    };
    return page;
}
}  // namespace

const Page_ansi & Page_systeme() {
    static const Page_ansi page = Decouvrir();
    return page;
}
