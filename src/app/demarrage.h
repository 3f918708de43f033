#pragma once
#include <cstdint>

struct Apropos;
struct Gestion_Fichiers;

// Shows the banner, minimised when the settings say so; returns the moment (Horloge_ms) at which it was
// shown.
std::uint64_t Montrer_banniere(Apropos & apropos);

// Tells the user that the program runs already.
void Signaler_deja_charge();

// Loads the main window, whose handlers are bound: settings, colour, both panes, saved selections, programmed
// buttons. Returns when it is shown and usable and the banner is gone; the guard flag is set meanwhile.
void Charger(Gestion_Fichiers & f, Apropos & apropos, std::uint64_t debut_banniere);
