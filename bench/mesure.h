#pragma once
#include "platform/windows.h"

#include <cstdio>
#include <functional>

// The clock of the measurements and the rows of their table.

inline double Secondes() {
    LARGE_INTEGER compte{}, frequence{};
    QueryPerformanceCounter(&compte);
    QueryPerformanceFrequency(&frequence);
    return static_cast<double>(compte.QuadPart) / static_cast<double>(frequence.QuadPart);
}

inline double Duree(const std::function<void()> & travail) {
    const double debut = Secondes();
    travail();
    return Secondes() - debut;
}

inline const char * Verdict(bool atteint) { return atteint ? "atteint" : "NON ATTEINT"; }

// A ratio that must not exceed `borne`.
inline void Rangee(const char * quoi, double nous, double autre, double borne) {
    const double rapport = nous / autre;
    std::printf("%-44s %10.3f %10.3f %8.2f  <= %.2f  %s\n", quoi, nous, autre, rapport, borne,
                Verdict(rapport <= borne));
}

// A quantity of our own, with nothing beside it.
inline void Rangee_absolue(const char * quoi, double valeur, double borne) {
    std::printf("%-44s %10.3f %10s %8s  <= %.2f  %s\n", quoi, valeur, "", "", borne,
                Verdict(valeur <= borne));
}
