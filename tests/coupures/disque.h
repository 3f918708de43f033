#pragma once
#include "platform/windows.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

// What a program that dies leaves behind: handles to be closed, and for each file what a power cut would leave of it.
class Disque {
public:
    void Oublier();
    void Ouvre(HANDLE poignee, const std::wstring & chemin, bool directe);  // directe: writes pass the cache
    void Cherche(HANDLE poignee) { recherches_.push_back(poignee); }
    void Va_ecrire(HANDLE poignee);
    void Fixe(HANDLE poignee);
    void Renomme(const std::wstring & de, const std::wstring & a, bool directe);
    void Supprime(const std::wstring & chemin);
    // The name or the attributes of what is there are about to change.
    void Va_changer(const std::wstring & chemin);
    void Change();  // and did
    void Fait_repertoire(const std::wstring & chemin);
    void Ferme(HANDLE poignee);
    void Finit_recherche(HANDLE poignee) { std::erase(recherches_, poignee); }
    void Tout_fermer();
    bool En_suspens() const { return !durables_.empty(); }
    // Files get back what was last flushed, `zeros` with zeros up to their lengths of now. Names, attributes and deletions are
    // undone back to the last flush of whatever file: the system writes its journal of names in order.
    void Couper_courant(bool zeros);

private:
    struct Ouverture {
        std::wstring chemin;
        bool         directe = false;
    };
    std::map<HANDLE, Ouverture>         ouverts_;
    std::vector<HANDLE>                 recherches_;
    std::map<std::wstring, std::string> durables_;  // of files with writes not flushed
    std::function<void()>               avant_;     // makes again what a change is about to take away
    std::vector<std::function<void()>>  noms_;      // undo what was done to names since the last flush
};
