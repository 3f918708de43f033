#pragma once
#include "recycle/fiche.h"

#include <algorithm>

// A code page of one byte a character, the same on every machine: what is above 255 does not fit.
inline const Page_de_codes & Page_essai() {
    static const auto tient = [](std::wstring_view texte) {
        return std::all_of(texte.begin(), texte.end(),
                           [](wchar_t c) { return static_cast<std::uint32_t>(c) < 256; });
    };
    static const Page_de_codes page{[](std::string_view octets) {
                                        std::wstring texte;
                                        for (const char c : octets)
                                            texte += static_cast<wchar_t>(static_cast<unsigned char>(c));
                                        return texte;
                                    },
                                    [](std::wstring_view texte) {
                                        std::string octets;
                                        for (const wchar_t c : texte)
                                            octets += static_cast<std::uint32_t>(c) < 256
                                                          ? static_cast<char>(c)
                                                          : '?';
                                        return octets;
                                    },
                                    tient};
    return page;
}
