#include "platform/erreur.h"
#include "platform/textes.h"
#include "platform/unites.h"
#include "platform/windows.h"
#include "toolkit/listes_disque.h"

#include <algorithm>

namespace {
// Where a program started from no drive begins: the first that needs no medium.
int Premier_disque() {
    const std::vector<Unite> unites = Unites_presentes();
    const auto               disque = std::find_if(unites.begin(), unites.end(),
                                                   [](const Unite & u) { return u.genre == Genre_unite::fixe; });
    return disque == unites.end() ? 0 : static_cast<int>(disque - unites.begin());
}
}  // namespace

Liste_unites::Liste_unites(Fenetre & fenetre, const Place & place) : Liste_combinee(fenetre, place, false) {
    Relire();
    const std::wstring courant = Repertoire_courant();
    const int          rang    = courant.empty() ? -1 : Rang(courant.front());
    const int          choisi  = rang >= 0 ? rang : Premier_disque();
    if (!entrees_.empty()) drive_ = entrees_[static_cast<std::size_t>(choisi)];
    Choisir_en_silence(choisi);
}

int Liste_unites::Rang(wchar_t lettre) const {
    const wchar_t cherchee = Majuscule(lettre);
    const auto    trouve   = std::find_if(entrees_.begin(), entrees_.end(), [&](const std::wstring & entree) {
        return Majuscule(entree.front()) == cherchee;
    });
    return trouve == entrees_.end() ? -1 : static_cast<int>(trouve - entrees_.begin());
}

void Liste_unites::Relire() {
    entrees_.clear();
    for (const Unite & unite : Unites_presentes()) entrees_.push_back(unite.texte);
    Clear();
    for (const std::wstring & entree : entrees_) AddItem(entree);
}

void Liste_unites::Refresh() {
    const wchar_t lettre = drive_.empty() ? L'c' : drive_.front();
    Relire();
    const int rang = Rang(lettre);
    if (rang >= 0) drive_ = entrees_[static_cast<std::size_t>(rang)];
    Choisir_en_silence(rang);
}

void Liste_unites::Drive(const std::wstring & unite) {
    if (unite.empty()) throw Erreur_execution(Numero::unite_absente, ERROR_INVALID_DRIVE, unite);
    int rang = Rang(unite.front());
    if (rang < 0) {
        Refresh();
        rang = Rang(unite.front());
    }
    if (rang < 0) throw Erreur_execution(Numero::unite_absente, ERROR_INVALID_DRIVE, unite);
    const bool change = drive_.empty() || Majuscule(drive_.front()) != Majuscule(unite.front());
    drive_            = entrees_[static_cast<std::size_t>(rang)];
    Choisir_en_silence(rang);
    if (change && Change) Change();
}

void Liste_unites::Drive_sans_evenement(const std::wstring & unite) {
    const int rang = unite.empty() ? -1 : Rang(unite.front());
    if (rang < 0) return;
    drive_ = entrees_[static_cast<std::size_t>(rang)];
    Choisir_en_silence(rang);
}

void Liste_unites::Choix_fait() {
    const int rang = ListIndex();
    if (rang < 0 || static_cast<std::size_t>(rang) >= entrees_.size()) return;
    const std::wstring choisie = entrees_[static_cast<std::size_t>(rang)];
    if (choisie.front() == (drive_.empty() ? L'\0' : drive_.front())) return;
    drive_ = choisie;
    if (Click) Click();
    if (Change) Change();
}

void Liste_unites::Notification(unsigned code) {
    if (code == CBN_DROPDOWN) Refresh();
    Liste_combinee::Notification(code);
}
