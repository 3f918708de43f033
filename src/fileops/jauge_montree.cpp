#include "fileops/jauge_montree.h"

#include "fileops/jauge.h"
#include "forms/gestion_fichiers.h"

void Montrer_jauge(Gestion_Fichiers & f, const Avance & avance, bool visible) {
    f.Jauge.Value(avance.Pourcentage());
    f.Jauge.Caption(visible ? avance.Texte() : L"");
    f.Jauge.Visible(visible);
    for (Ligne & bord : f.Ligne_jauge) bord.Visible(visible);
}

void Avancer_jauge(Gestion_Fichiers & f, Avance & avance, std::uint64_t octets) {
    const int avant = static_cast<int>(avance.Pourcentage());
    avance.Ajouter(octets);
    f.Jauge.Value(avance.Pourcentage());
    // Writing the text at each block would cost more than the block.
    if (static_cast<int>(avance.Pourcentage()) != avant) f.Jauge.Caption(avance.Texte());
}
