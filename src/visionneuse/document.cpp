#include "visionneuse/document.h"

#include "visionneuse/page_systeme.h"
#include "visionneuse/rangees_hexa.h"
#include "visionneuse/rangees_texte.h"

namespace {
Octets::Lecture Lire_par(const std::shared_ptr<Lecture_partagee> & fichier) {
    return [fichier](std::uint64_t position, char * tampon, std::size_t longueur) {
        return fichier->Lire(position, tampon, longueur);
    };
}

Codage Codage_de(Affichage mode) {
    switch (mode) {
    case Affichage::utf8: return Codage::utf8;
    case Affichage::utf16_petit: return Codage::utf16_petit;
    case Affichage::utf16_grand: return Codage::utf16_grand;
    default: return Codage::ansi;
    }
}

Affichage Affichage_de(const Apparence & apparence) {
    if (apparence.nature == Nature::binaire) return Affichage::hexa;
    switch (apparence.marque.codage) {
    case Codage::utf8: return Affichage::utf8;
    case Codage::utf16_petit: return Affichage::utf16_petit;
    case Codage::utf16_grand: return Affichage::utf16_grand;
    default: return Affichage::ansi;
    }
}
}  // namespace

Document::Document(const std::wstring & chemin)
    : fichier_(std::make_shared<Lecture_partagee>(chemin)), octets_(Lire_par(fichier_), fichier_->Longueur()),
      octets_compte_(Autres_octets(2)), suivie_(Longueur()) {
    std::string       debut(Octets::taille_bloc, '\0');
    const std::size_t lus = fichier_->Lire(0, debut.data(), debut.size());
    debut.resize(lus);
    apparence_ = Reconnaitre(debut, lus >= Longueur());
    reconnu_   = Affichage_de(apparence_);
    Mode(reconnu_);
}

Octets Document::Autres_octets(std::size_t blocs) const {
    return {Lire_par(fichier_), octets_.Longueur(), blocs};
}

Decodeur Document::Decodage() const { return {Codage_de(mode_), Page_systeme()}; }

// The mark of another coding than the one chosen is shown like any bytes.
std::uint64_t Document::Debut() const {
    const bool la_sienne = mode_ != Affichage::hexa && Codage_de(mode_) == apparence_.marque.codage;
    return la_sienne ? apparence_.marque.octets : 0;
}

std::uint64_t Document::Recaler(std::uint64_t position) const {
    return position > Debut() ? position - (position - Debut()) % Decodage().Unite() : position;
}

void Document::Mode(Affichage mode) {
    mode_ = mode;
    Compter();
}

void Document::Compter() {
    lignes_.reset();
    if (mode_ != Affichage::hexa) lignes_.emplace(octets_compte_, Decodage(), Debut());
}

bool Document::Suivre() {
    const std::uint64_t longueur = fichier_->Longueur();
    // The rows may have met the new end before.
    if (longueur == suivie_ && longueur == octets_.Longueur()) return false;
    suivie_ = longueur;
    octets_.Changer_longueur(longueur);
    octets_compte_.Changer_longueur(longueur);
    Compter();
    return true;
}

std::unique_ptr<Contenu_rangees> Document::Rangees(Octets & octets, unsigned colonnes) const {
    if (mode_ == Affichage::hexa) return std::make_unique<Rangees_hexa>(octets, Page_systeme());
    return std::make_unique<Rangees_texte>(octets, Decodage(), Debut(), colonnes);
}

std::wstring Document::Texte(std::uint64_t debut, std::uint64_t fin) const {
    Octets octets = Autres_octets();
    return mode_ == Affichage::hexa ? Octets_en_texte(octets, debut, fin)
                                    : Texte_entre(octets, Decodage(), debut, fin);
}
