#include "visionneuse/visionneuse.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "toolkit/application.h"
#include "visionneuse/arguments.h"
#include "visionneuse/seance.h"

namespace {
// Relative names mean this copy's current directory, which another copy does not know.
void Completer(std::vector<std::wstring> & fichiers) {
    for (std::wstring & fichier : fichiers) Tenter([&] { fichier = Chemin_complet(fichier); });
}
}  // namespace

int Lancer_visionneuse(std::wstring_view arguments) {
    Application::Initialiser();
    Application::Titre(L"Visionneuse");
    Arguments demande = Lire_arguments(arguments);
    Completer(demande.fichiers);
    Remise remise(L"PELMIRA");
    if (demande.rejoindre && remise.Confier(Emballer(demande.fichiers))) return 0;
    Seance seance;
    seance.Recevoir(remise);
    seance.Montrer_fenetre();
    seance.Ouvrir(demande.fichiers);
    return Application::Boucler();
}
