#include "texte/codage.h"

Marque_codage Reconnaitre_codage(std::string_view debut) {
    constexpr std::string_view utf8  = "\xEF\xBB\xBF";
    constexpr std::string_view petit = "\xFF\xFE";
    constexpr std::string_view grand = "\xFE\xFF";
    if (debut.substr(0, utf8.size()) == utf8) return {Codage::utf8, utf8.size()};
    if (debut.substr(0, petit.size()) == petit) return {Codage::utf16_petit, petit.size()};
    if (debut.substr(0, grand.size()) == grand) return {Codage::utf16_grand, grand.size()};
    return {};
}
