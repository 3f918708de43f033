#include "visionneuse/rangees_texte.h"

#include <algorithm>

namespace {
constexpr unsigned      pas_tabulation    = 8;
constexpr std::uint64_t morceau_minuscule = 8;  // bytes: a line that is cut does not begin with so few

bool Large(char32_t code) {
    struct Plage {
        char32_t de, a;
    };
    constexpr Plage plages[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},
                                {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}};
    // A pair of elements takes the two columns that it is made of.
    return code > 0xFFFF || std::any_of(std::begin(plages), std::end(plages), [&](const Plage & plage) {
               return code >= plage.de && code <= plage.a;
           });
}

// What has no shape of its own, or would turn the writing around, shows as a middle dot.
char32_t Visible(char32_t code) {
    const bool commande  = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool invisible = (code >= 0x200B && code <= 0x200F) || (code >= 0x2028 && code <= 0x202E) ||
                           (code >= 0x2060 && code <= 0x206F) || code == 0xFEFF || code == 0xFFFE ||
                           code == 0xFFFF;
    return commande || invisible ? 0xB7 : code;
}

bool Est_blanc(char32_t code) { return code == L' ' || code == L'\t'; }
}  // namespace

Rangees_texte::Rangees_texte(Octets & octets, Decodeur decodeur, std::uint64_t debut, unsigned colonnes)
    : octets_(octets), decodeur_(decodeur), debut_(debut), colonnes_(colonnes), version_(octets.Version()) {}

bool Rangees_texte::Commence_ligne(std::uint64_t position) const {
    const unsigned unite = decodeur_.Unite();
    if (position < debut_ + unite) return true;
    const int avant = decodeur_.Lire_unite(octets_, position - unite);
    return avant == L'\n' || (avant == L'\r' && decodeur_.Lire_unite(octets_, position) != L'\n');
}

// On a unit, and not in the middle of a line end.
std::uint64_t Rangees_texte::Normaliser(std::uint64_t position) const {
    const unsigned unite = decodeur_.Unite();
    position             = std::max(position, debut_);
    position -= (position - debut_) % unite;
    const bool dans_une_fin = position >= debut_ + unite &&
                              decodeur_.Lire_unite(octets_, position) == L'\n' &&
                              decodeur_.Lire_unite(octets_, position - unite) == L'\r';
    return dans_une_fin ? position - unite : position;
}

// A few bytes further back than a line goes: the first piece of a long line may be longer by a tiny one, and by the rest of a
// character that the cut would go through.
std::optional<std::uint64_t> Rangees_texte::Debut_avant(std::uint64_t position) const {
    const std::uint64_t recul = ligne_maximale + 2 * morceau_minuscule;
    for (std::uint64_t p = position;; p -= decodeur_.Unite()) {
        if (Commence_ligne(p)) return std::max(p, debut_);
        if (position - p > recul) return std::nullopt;
    }
}

// The line from `debut` on, when it ends before `limite` or there.
std::optional<Rangees_texte::Ligne> Rangees_texte::Jusqu_a_la_fin(std::uint64_t debut,
                                                                  std::uint64_t limite) const {
    const unsigned unite = decodeur_.Unite();
    for (std::uint64_t p = debut; p <= limite; p += unite) {
        const int lue = decodeur_.Lire_unite(octets_, p);
        if (lue < 0) return Ligne{debut, octets_.Longueur(), octets_.Longueur()};
        if (lue == L'\n') return Ligne{debut, p, p + unite};
        if (lue == L'\r') {
            const bool deux = decodeur_.Lire_unite(octets_, p + unite) == L'\n';
            return Ligne{debut, p, p + unite + (deux ? unite : 0U)};
        }
    }
    return std::nullopt;
}

// The piece of a long line that holds `position`; `ligne` is where the line begins, if that is near.
Rangees_texte::Ligne Rangees_texte::Morceau(std::optional<std::uint64_t> ligne,
                                            std::uint64_t                position) const {
    std::uint64_t multiple = position / ligne_maximale * ligne_maximale;
    std::uint64_t debut    = decodeur_.Aligner(octets_, multiple);
    if (debut > position && multiple >= ligne_maximale) {
        multiple -= ligne_maximale;
        debut = decodeur_.Aligner(octets_, multiple);
    }
    if (ligne && debut <= *ligne + morceau_minuscule) debut = *ligne;
    debut             = std::max(debut, debut_);
    std::uint64_t fin = decodeur_.Aligner(octets_, (debut / ligne_maximale + 1) * ligne_maximale);
    if (debut == ligne && fin <= debut + morceau_minuscule)
        fin = decodeur_.Aligner(octets_, (debut / ligne_maximale + 2) * ligne_maximale);
    if (const auto derniere = Jusqu_a_la_fin(debut, fin - decodeur_.Unite())) return *derniere;
    return {debut, fin, fin};
}

Rangees_texte::Ligne Rangees_texte::Ligne_de(std::uint64_t position) const {
    const std::uint64_t p     = Normaliser(position);
    const auto          debut = Debut_avant(p);
    if (debut) {
        if (const auto ligne = Jusqu_a_la_fin(*debut, *debut + ligne_maximale)) return *ligne;
    }
    return Morceau(debut, p);
}

unsigned Rangees_texte::Largeur(char32_t code, unsigned colonne) const {
    const bool     tabulation = code == L'\t';
    const unsigned largeur = tabulation ? pas_tabulation - colonne % pas_tabulation : Large(code) ? 2U : 1U;
    if (colonnes_ == 0 || !Est_blanc(code)) return largeur;
    // Blanks at the right edge hang over it, so that no row begins with the blank between two words.
    return std::min(largeur, colonnes_ - std::min(colonne, colonnes_));
}

void Rangees_texte::Couper(const Ligne & ligne) {
    coupures_.assign(1, ligne.debut);
    ligne_ = ligne;
    if (colonnes_ == 0) return;
    unsigned      colonne     = 0;
    std::uint64_t apres_blanc = 0;
    for (std::uint64_t p = ligne.debut; p < ligne.fin;) {
        const Caractere lu = decodeur_.Lire(octets_, p);
        if (lu.octets == 0) break;
        const unsigned largeur = Largeur(lu.code, colonne);
        if (colonne + largeur > colonnes_ && p > coupures_.back()) {
            p = apres_blanc > coupures_.back() ? apres_blanc : p;
            coupures_.push_back(p);
            colonne = 0;
            continue;
        }
        colonne += largeur;
        p += lu.octets;
        if (Est_blanc(lu.code)) apres_blanc = p;
    }
}

// Columns from `debut` to `fin`.
void Rangees_texte::Remplir(Rangee & rangee, std::uint64_t fin) const {
    rangee.octets.clear();
    for (std::uint64_t p = rangee.debut; p < fin;) {
        const Caractere lu = decodeur_.Lire(octets_, p);
        if (lu.octets == 0) break;
        const std::size_t avant = rangee.texte.size();
        if (lu.code == L'\t')
            rangee.texte.append(Largeur(lu.code, static_cast<unsigned>(avant)), L' ');
        else
            Ajouter_caractere(rangee.texte, Visible(lu.code));
        if (lu.code <= 0xFFFF && Large(lu.code)) rangee.texte += suite_de_caractere;
        rangee.octets.resize(rangee.texte.size(), static_cast<std::uint32_t>(p - rangee.debut));
        p += lu.octets;
    }
    rangee.octets.push_back(static_cast<std::uint32_t>(std::max(fin, rangee.debut) - rangee.debut));
}

Rangee Rangees_texte::Lire(std::uint64_t position) {
    if (version_ != octets_.Version()) coupures_.clear();
    version_ = octets_.Version();
    if (coupures_.empty() || position < ligne_.debut || position >= ligne_.suite) Couper(Ligne_de(position));
    const auto apres    = std::upper_bound(coupures_.begin() + 1, coupures_.end(), position);
    const bool derniere = apres == coupures_.end();
    Rangee     rangee;
    rangee.debut = *(apres - 1);
    // A file that became shorter meanwhile may leave nothing of the row: the next one is further on all the same.
    rangee.suite = std::max(derniere ? ligne_.suite : *apres, rangee.debut + 1);
    Remplir(rangee, derniere ? ligne_.fin : *apres);
    return rangee;
}
