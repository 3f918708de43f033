#include "texte/lignes.h"

#include <algorithm>

namespace {
constexpr char        retour        = '\r';
constexpr char        saut_de_ligne = '\n';
constexpr wchar_t     saut_de_page  = L'\f';
constexpr std::size_t tabulation    = 8;

bool De_commande(wchar_t c) { return c < 32 || (c >= 127 && c < 160); }

// Two surrogates are one character.
bool Paire(std::wstring_view texte, std::size_t place) {
    return place + 1 < texte.size() && texte[place] >= 0xD800 && texte[place] < 0xDC00 &&
           texte[place + 1] >= 0xDC00 && texte[place + 1] < 0xE000;
}

std::wstring_view Debut(std::wstring_view ligne) {
    std::size_t fin = 0;
    for (std::size_t i = 0; i < caracteres_imprimes && fin < ligne.size(); ++i)
        fin += Paire(ligne, fin) ? 2 : 1;
    return ligne.substr(0, fin);
}

std::wstring Etendre(std::wstring_view texte) {
    std::wstring resultat;
    for (const wchar_t c : texte) {
        if (c == L'\t')
            resultat.resize((resultat.size() / tabulation + 1) * tabulation, L' ');
        else
            resultat += De_commande(c) ? L' ' : c;
    }
    resultat.erase(resultat.find_last_not_of(L' ') + 1);
    return resultat;
}
}  // namespace

Coupe_lignes::Coupe_lignes(Codage codage, std::size_t retenus)
    : retenus_(retenus), unite_(codage == Codage::utf16_petit || codage == Codage::utf16_grand ? 2 : 1),
      grand_(codage == Codage::utf16_grand) {}

std::size_t Coupe_lignes::Prendre(std::string_view bloc) {
    std::size_t pris = 0;
    while (pris < bloc.size() && !complete_) {
        partielle_ += bloc[pris++];
        if (partielle_.size() < unite_) continue;
        Ranger(partielle_);
        partielle_.clear();
    }
    return pris;
}

void Coupe_lignes::Ranger(std::string_view unite) {
    const char faible       = grand_ ? unite.back() : unite.front();
    const char fort         = unite_ == 1 ? '\0' : grand_ ? unite.front() : unite.back();
    const bool apres_retour = apres_retour_;
    apres_retour_           = false;
    if (fort == '\0' && faible == saut_de_ligne && apres_retour) return;
    entamee_ = true;
    if (fort == '\0' && (faible == retour || faible == saut_de_ligne)) {
        complete_     = true;
        apres_retour_ = faible == retour;
        return;
    }
    longueur_ += unite_;
    if (octets_.size() + unite_ <= retenus_) octets_ += unite;
}

void Coupe_lignes::Suivante() {
    octets_.clear();
    longueur_ = 0;
    entamee_ = complete_ = false;
}

std::vector<Morceau> Morceaux_imprimables(std::wstring_view ligne) {
    const std::wstring_view texte = Debut(ligne);
    std::vector<Morceau>    morceaux;
    for (std::size_t debut = 0; debut <= texte.size();) {
        const std::size_t  fin  = std::min(texte.find(saut_de_page, debut), texte.size());
        const std::wstring vu   = Etendre(texte.substr(debut, fin - debut));
        const bool         seul = debut == 0 && fin == texte.size();
        Morceau            morceau{debut != 0, std::nullopt};
        if (seul || !vu.empty()) morceau.ligne = vu;
        if (morceau.nouvelle_page || morceau.ligne) morceaux.push_back(std::move(morceau));
        debut = fin + 1;
    }
    return morceaux;
}
