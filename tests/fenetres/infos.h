#pragma once
#include "fenetres/filles.h"

#include <string>

// The window that shows one selected file after the other, and the summary of the SOURCE directory.
class Infos : public Filles {
protected:
    Pilote::Fille Fenetre_infos() const { return Fille(L"Info_Fichiers"); }
    // By the button, on what is selected.
    Pilote::Fille Ouvrir_infos();
    void          Fermer_infos(const Pilote::Fille & fille);  // no question comes
    void          Attendre_fichier(const Pilote::Fille & fille, const std::wstring & nom_capitales);
    void          Attendre_question(int reponse);
    void          Verifier_cases(const Pilote::Fille & fille, std::uint32_t attributs);
    void          Cocher(const Pilote::Fille & fille, std::uint32_t attributs);  // these boxes and no other
    // What the system makes of such attributes, told by another file beside it.
    std::uint32_t Attributs_obtenus(std::uint32_t attributs) const;
    // A file of that many bytes which takes no room on its disk; directories on the way are made.
    void Creer_longue(const std::wstring & chemin, std::uint64_t taille);
    // FILETIME of a local time.
    static std::uint64_t Moment_local(WORD annee, WORD mois, WORD jour, WORD heure, WORD minute);
};
