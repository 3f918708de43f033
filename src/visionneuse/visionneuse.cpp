#include "visionneuse/visionneuse.h"

#include "toolkit/application.h"
#include "visionneuse/fenetre_visionneuse.h"

int Lancer_visionneuse(std::wstring_view) {
    Application::Initialiser();
    Application::Titre(L"Visionneuse");
    Fenetre_visionneuse fenetre;
    fenetre.QueryUnload = [](bool &, Fermeture) {};
    fenetre.Fermer.Brancher([] { Application::Terminer(); });
    fenetre.Annulation(fenetre.Fermer);
    fenetre.Show();
    return Application::Boucler();
}
