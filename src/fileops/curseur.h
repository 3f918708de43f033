#pragma once

// Where a file list's cursor goes as files leave the list one by one: it stays on the entry that took the
// place of the one that left.
class Curseur {
public:
    Curseur(int nombre, int index) : nombre_(nombre), index_(index) {}

    // One file less; false when the list is empty.
    bool Retirer() {
        --nombre_;
        if (nombre_ > 0 && index_ == nombre_) --index_;
        return nombre_ > 0;
    }
    int Index() const { return nombre_ > 0 ? index_ : -1; }  // -1 for none

private:
    int nombre_;
    int index_;
};
