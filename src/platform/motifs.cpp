#include "platform/motifs.h"

#include <algorithm>

// The system matches a pattern in an extended form, whose extra wildcards are characters that no name can hold:
//   <  any run that does not take the last point of the name
//   >  one character, or nothing before a point and at the end
//   "  a point, or nothing at the end
// "*." means names without extension only through the first, "?" at the end of a name only through the second.
namespace {

constexpr wchar_t course_sans_point = L'<';
constexpr wchar_t un_ou_rien        = L'>';
constexpr wchar_t point_ou_fin      = L'"';

constexpr const wchar_t * jokers = L"*<>\"";

std::wstring_view sans_blancs(std::wstring_view texte) {
    const std::size_t debut = texte.find_first_not_of(L" \t");
    if (debut == texte.npos) return {};
    return texte.substr(debut, texte.find_last_not_of(L" \t") - debut + 1);
}

// The extended form of one pattern; "*.*" becomes "*".
std::wstring forme_etendue(std::wstring_view texte) {
    const bool   point_final = texte.back() == L'.';
    std::wstring m(texte.substr(0, texte.find_last_not_of(L". ") + 1));
    if (m == L"*.*") return L"*";
    for (std::size_t i = 0; i < m.size(); ++i) {
        const bool suit = i > 0;
        if (suit && m[i] == L'.' && m[i - 1] == L'*') m[i - 1] = course_sans_point;
        if (m[i] != L'?' && m[i] != L'*') continue;
        if (m[i] == L'?') m[i] = un_ou_rien;
        if (suit && m[i - 1] == L'.') m[i - 1] = point_ou_fin;
    }
    if (point_final && !m.empty() && m.back() == L'*') m.back() = course_sans_point;
    return m;
}

// Every place of the pattern that the name read so far may have reached: one pass over the name, no going back.
class Marche {
public:
    explicit Marche(const std::wstring & motif)
        : motif_(motif), ici_(motif.size() + 1), suite_(motif.size() + 1) {
        ici_[0] = 1;
    }

    // Takes one character; false when nothing can match any more.
    bool Avancer(wchar_t c, bool dernier_point) {
        std::fill(suite_.begin(), suite_.end(), char{0});
        for (std::size_t j = 0; j < motif_.size(); ++j) {
            if (ici_[j]) lire(j, c, dernier_point);
        }
        ici_.swap(suite_);
        return std::find(ici_.begin(), ici_.end(), 1) != ici_.end();
    }

    bool Finir() {
        for (std::size_t j = 0; j < motif_.size(); ++j) {
            if (ici_[j] && std::wstring_view(jokers).find(motif_[j]) != std::wstring_view::npos)
                ici_[j + 1] = 1;
        }
        return ici_.back() != 0;
    }

private:
    void lire(std::size_t j, wchar_t c, bool dernier_point) {
        switch (motif_[j]) {
        case L'*':
            suite_[j]   = 1;
            ici_[j + 1] = 1;
            break;
        case course_sans_point:
            if (!dernier_point) suite_[j] = 1;
            ici_[j + 1] = 1;
            break;
        case un_ou_rien: (c == L'.' ? ici_ : suite_)[j + 1] = 1; break;
        case point_ou_fin:
            if (c == L'.') suite_[j + 1] = 1;
            break;
        default:
            if (c == motif_[j]) suite_[j + 1] = 1;
        }
    }

    const std::wstring & motif_;
    std::vector<char>    ici_, suite_;
};

// What stands before the first wildcard and behind the last one is found as it is at both ends of the name: most names of a disk
// are told apart there, for a tenth of the price of a march.
bool bouts_conformes(const std::wstring & motif, std::wstring_view nom, Motifs::Plier plier) {
    const std::size_t premier = motif.find_first_of(jokers);
    const std::size_t tete    = std::min(premier, motif.size());
    const std::size_t queue   = premier == motif.npos ? 0 : motif.size() - 1 - motif.find_last_of(jokers);
    if (nom.size() < tete + queue) return false;
    const auto egal = [plier](wchar_t pliee, wchar_t lettre) { return pliee == plier(lettre); };
    return std::equal(motif.rbegin(), motif.rbegin() + static_cast<std::ptrdiff_t>(queue), nom.rbegin(),
                      egal) &&
           std::equal(motif.begin(), motif.begin() + static_cast<std::ptrdiff_t>(tete), nom.begin(), egal);
}

bool accepte(const std::wstring & motif, std::wstring_view nom, Motifs::Plier plier) {
    if (!bouts_conformes(motif, nom, plier)) return false;
    const std::size_t dernier_point = nom.rfind(L'.');
    Marche            marche(motif);
    for (std::size_t i = 0; i < nom.size(); ++i) {
        if (!marche.Avancer(plier(nom[i]), i == dernier_point)) return false;
    }
    return marche.Finir();
}

}  // namespace

Motifs::Motifs(std::wstring_view texte, Plier plier) : plier_(plier) {
    for (bool reste = true; reste;) {
        const std::size_t       fin = texte.find(L';');
        const std::wstring_view un  = sans_blancs(texte.substr(0, fin));
        reste                       = fin != texte.npos;
        if (reste) texte.remove_prefix(fin + 1);
        if (!un.empty()) Ajouter(un);
    }
    if (motifs_.empty()) tout_ = true;
}

Motifs Motifs::Un_seul(std::wstring_view texte, Plier plier) {
    Motifs seul(plier);
    if (!texte.empty()) seul.Ajouter(texte);
    return seul;
}

void Motifs::Ajouter(std::wstring_view texte) {
    std::wstring motif = forme_etendue(texte);
    std::transform(motif.begin(), motif.end(), motif.begin(), plier_);
    tout_ = tout_ || motif == L"*";
    motifs_.push_back(std::move(motif));
}

bool Motifs::Accepte(std::wstring_view nom) const {
    return tout_ || std::any_of(motifs_.begin(), motifs_.end(),
                                [&](const std::wstring & motif) { return accepte(motif, nom, plier_); });
}

bool Motifs::Valide(std::wstring_view texte) {
    return std::none_of(texte.begin(), texte.end(), [](wchar_t c) {
        return c < L' ' || std::wstring_view(L"\\/:\"<>|").find(c) != std::wstring_view::npos;
    });
}
