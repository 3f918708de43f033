#include "visionneuse/recherche.h"

#include <algorithm>

namespace {
// The characters of a text, which is UTF-16 on every system.
std::vector<char32_t> Caracteres(std::wstring_view texte) {
    std::vector<char32_t> codes;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const auto haute = static_cast<char32_t>(texte[i]);
        const auto basse = i + 1 < texte.size() ? static_cast<char32_t>(texte[i + 1]) : 0;
        if (haute >= 0xD800 && haute < 0xDC00 && basse >= 0xDC00 && basse < 0xE000) {
            codes.push_back(0x10000 + ((haute - 0xD800) << 10) + (basse - 0xDC00));
            ++i;
        } else {
            codes.push_back(haute);
        }
    }
    return codes;
}
}  // namespace

Recherche::Recherche(Octets & octets, Decodeur decodeur, std::wstring_view texte, Pliage pliage,
                     std::uint64_t depart, std::uint64_t limite)
    : octets_(octets), decodeur_(decodeur), pliage_(pliage), position_(depart), limite_(limite),
      motif_(Caracteres(texte)) {
    for (char32_t & code : motif_) code = Plier(code);
    Preparer();
}

char32_t Recherche::Plier(char32_t code) const {
    return code < 0x10000 ? static_cast<char32_t>(pliage_(static_cast<wchar_t>(code))) : code;
}

void Recherche::Preparer() {
    reprises_.assign(motif_.size() + 1, 0);
    positions_.assign(std::max<std::size_t>(motif_.size(), 1), 0);
    for (std::size_t i = 1, k = 0; i < motif_.size(); ++i) {
        while (k > 0 && motif_[i] != motif_[k]) k = reprises_[k];
        if (motif_[i] == motif_[k]) ++k;
        reprises_[i + 1] = k;
    }
}

void Recherche::Comparer(char32_t code) {
    while (egaux_ > 0 && motif_[egaux_] != code) egaux_ = reprises_[egaux_];
    if (motif_[egaux_] == code) ++egaux_;
}

bool Recherche::Avancer(std::uint64_t octets) {
    if (motif_.empty() || trouvee_) return false;
    const std::uint64_t pause = position_ + octets;
    while (position_ < pause) {
        if (position_ >= limite_) return false;
        const Caractere lu = decodeur_.Lire(octets_, position_);
        if (lu.octets == 0 || position_ + lu.octets > limite_) return false;
        positions_[lus_ % motif_.size()] = position_;
        Comparer(Plier(lu.code));
        ++lus_;
        position_ += lu.octets;
        if (egaux_ == motif_.size()) {
            // The oldest of the positions kept is the one that is overwritten next.
            trouvee_ = Plage{positions_[lus_ % motif_.size()], position_};
            return false;
        }
    }
    return true;
}
