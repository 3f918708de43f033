#pragma once
#include "platform/lecture_partagee.h"
#include "texte/rangees.h"
#include "visionneuse/decodage.h"
#include "visionneuse/index_lignes.h"

#include <memory>
#include <optional>
#include <string>

// Ways of showing a file, in the order of the window's list.
enum class Affichage { ansi, utf8, utf16_petit, utf16_grand, hexa };

// A file that is shown. It is read where it is looked at and never written.
class Document {
public:
    // Opens the file and recognises how to show it. Errors of Lecture_partagee.
    explicit Document(const std::wstring & chemin);

    const std::wstring & Chemin() const { return fichier_->Chemin(); }
    std::uint64_t        Longueur() const { return octets_.Longueur(); }  // as last seen
    Affichage            Mode() const { return mode_; }
    Affichage            Mode_reconnu() const { return reconnu_; }
    void                 Mode(Affichage mode);
    bool                 Vide() const { return Longueur() <= Debut(); }
    std::uint64_t        Debut() const;  // length of the byte order mark, when it is not shown
    // Where the unit that holds that byte begins: between the two bytes of UTF-16 nothing can.
    std::uint64_t Recaler(std::uint64_t position) const;
    // Looks at the file's length; true when it has changed since. Errors 57, 70, 71.
    bool Suivre();

    // Rows as the mode says. Those of the view share one store of blocks, which must not be used while the view is; `octets` is
    // another one.
    std::unique_ptr<Contenu_rangees> Rangees(unsigned colonnes) { return Rangees(octets_, colonnes); }
    std::unique_ptr<Contenu_rangees> Rangees(Octets & octets, unsigned colonnes) const;
    Octets                           Autres_octets(std::size_t blocs = 4) const;
    Decodeur                         Decodage() const;
    std::wstring                     Texte(std::uint64_t debut, std::uint64_t fin) const;  // to be copied

    Index_lignes * Lignes() { return lignes_ ? &*lignes_ : nullptr; }  // null when it is not shown as text

private:
    void Compter();

    std::shared_ptr<Lecture_partagee> fichier_;
    Octets                            octets_;
    Octets                            octets_compte_;
    std::uint64_t                     suivie_;  // length at the last look
    Apparence                         apparence_;
    Affichage                         reconnu_ = Affichage::ansi;
    Affichage                         mode_    = Affichage::ansi;
    std::optional<Index_lignes>       lignes_;
};
