#pragma once
#include <cstdint>

class Avance;
struct Gestion_Fichiers;

// The gauge of the main window, with its frame and its text.
void Montrer_jauge(Gestion_Fichiers & f, const Avance & avance, bool visible);
// So many bytes more. Called for each block or line: the text follows whole percents alone.
void Avancer_jauge(Gestion_Fichiers & f, Avance & avance, std::uint64_t octets);
