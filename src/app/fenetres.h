#pragma once

struct Apropos;
struct Dialogue;
struct Gestion_Fichiers;

// The windows of the program, which live from the start to the end of the event loop.
struct Fenetres_programme {
    Apropos *          apropos    = nullptr;
    Gestion_Fichiers * principale = nullptr;
    Dialogue *         dialogue   = nullptr;
};

inline Fenetres_programme fenetres;

inline Gestion_Fichiers & Principale() { return *fenetres.principale; }
