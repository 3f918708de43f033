#pragma once
#include "platform/windows.h"

#include <string>

// Ends another program at one of the calls by which it changes files: a few instructions put into its memory, where its import
// table leads, count the calls and end it before the one of that rank.
class Mine {
public:
    // Throws std::runtime_error when the program cannot be changed. A new one takes the place of the one before.
    Mine(HANDLE processus, unsigned rang);

    unsigned Appels() const;  // since it was laid; the program must live

private:
    HANDLE          processus_;
    unsigned char * compteur_ = nullptr;  // in the other program
    unsigned        rang_;
};
