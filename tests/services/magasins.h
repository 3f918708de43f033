#pragma once
#include "recycle/magasin.h"
#include "services/banc.h"

#include <cstdint>
#include <string>
#include <vector>

// One store, its index in "index".
class Magasins : public Banc {
protected:
    static constexpr std::int32_t  jour     = 45000;
    static constexpr std::uint32_t archive  = FILE_ATTRIBUTE_ARCHIVE;
    static constexpr std::uint32_t en_depot = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY;

    static bool Toujours() { return true; }
    Magasins() {
        Repertoire(L"index");
        magasin.Ouvrir({Chemin(L"index")});
    }
    std::wstring Index() const { return Chemin(L"index\\KORVANE.CRB"); }
    std::wstring Nouveau() const { return Chemin(L"index\\KORVANE.NEW"); }
    void         Rouvrir() {
                magasin.Fermer();
                magasin.Ouvrir({Chemin(L"index")});
    }
    // The store is closed, its index becomes these bytes, and it is opened again.
    void Rouvrir_sur(const std::string & octets) {
        magasin.Fermer();
        Regler_attributs(Index(), FILE_ATTRIBUTE_NORMAL);
        Poser(Index(), octets);
        magasin.Ouvrir({Chemin(L"index")});
    }
    std::size_t Deposer(const std::vector<Depot> & depots) {
        std::size_t deposes = 0;
        magasin.Deposer(depots, jour, Toujours, deposes);
        return deposes;
    }
    void Deposer(const std::wstring & nom, std::uint64_t taille = 7) { Deposer({{nom, Racine(), taille}}); }
    // Made here, with "contenu" in it, and stored.
    void Faire_et_deposer(const std::wstring & nom) {
        Fichier(nom);
        Deposer(nom);
    }
    void Tout_rendre() {
        std::vector<std::size_t> tous(magasin.Fiches().size());
        for (std::size_t i = 0; i < tous.size(); ++i) tous[i] = i;
        magasin.Restaurer(tous, Toujours);
    }
    std::wstring Code(std::size_t rang) const { return magasin.Fiches().at(rang).Chemin_code(); }
    // A line that names a file of this directory.
    std::string Ligne(const std::string & code, const std::string & nom) const {
        std::string racine;
        for (const wchar_t lettre : Racine()) racine += static_cast<char>(lettre);
        return code + " 00000007 " + nom + " " + racine + "\\";
    }

    Magasin magasin;
};
