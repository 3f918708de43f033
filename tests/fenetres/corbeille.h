#pragma once
#include "fenetres/filles.h"

#include <cstdint>
#include <string>
#include <vector>

// The recycle bin's window over an index that the test wrote, as earlier erasures left it.
class Corbeille : public Filles {
protected:
    Corbeille();
    ~Corbeille() override;

    static const std::wstring index;  // in the system directory
    static const std::wstring nouvel_index;
    static std::wstring       Donnees_locales();  // where the index goes when the system directory refuses it

    // A file in the bin: it lies in its directory under the coded name, and its line is added to those of Ecrire_index. One
    // of a million bytes or more holds nothing.
    void Mettre(const std::wstring & chemin, std::uint64_t taille, std::uint32_t graine, int jour,
                int tirage);
    void Ajouter_ligne(const std::string & ligne);  // any other
    void Ecrire_index() const;

    // The bin is in use, limited to 9999 Ko unless the test says otherwise; its index is written, the program runs, its window is
    // open.
    Pilote::Fille Ouvrir_corbeille();
    Pilote::Fille Rouvrir_corbeille();  // by its button, once closed
    Pilote::Fille Fenetre_corbeille() const { return Fille(L"Corbeille"); }
    // By its button; the list holds so many files when all is over.
    void Recuperer(const Pilote::Fille & fille, std::size_t restants);
    void Attendre_restants(const Pilote::Fille & fille, std::size_t restants);
    // By the closing button, without a question.
    void Terminer(const Pilote::Fille & fille);

    std::vector<std::string> Lignes() const { return lignes_; }
    std::vector<std::string> Lignes_index() const;  // empty when there is none
    // A key of the section Corbeille, or "absente".
    std::wstring Cle(const std::wstring & nom) const;
    // In the bin still: hidden and read-only under its coded name.
    static bool En_corbeille(const std::wstring & repertoire, int jour, int tirage);
    // Back under its name, byte for byte, the attributes archive and system alone.
    static void Verifier_recupere(const std::wstring & chemin, std::uint64_t taille, std::uint32_t graine,
                                  std::uint32_t attributs = FILE_ATTRIBUTE_ARCHIVE);
    static int  Aujourd_hui();  // day serial number

private:
    static void Nettoyer();

    std::vector<std::string> lignes_;
};
