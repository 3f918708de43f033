#pragma once
#include "pilote/korvane.h"

#include <string>
#include <vector>

// The showcase in the program's place: its main window opens, by its buttons, the shared windows and the plain controls of the
// toolkit; every event is a line of its journal.
class Montre : public Korvane {
protected:
    // Arguments "name=value" of the showcase.
    void                      Lancer_vitrine(const std::vector<std::wstring> & arguments = {});
    std::vector<std::wstring> Journal() const;
    // Waits until the journal's last line is this one.
    void Attendre_ligne(const std::wstring & ligne) const;

private:
    const std::wstring journal_ = dossier / L"journal.txt";
};
