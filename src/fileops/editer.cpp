#include "app/garde.h"
#include "app/globals.h"
#include "app/lancement.h"
#include "app/lignes_commande.h"
#include "browser/selection.h"
#include "fileops/commandes.h"
#include "fileops/lancement.h"
#include "platform/fichiers.h"
#include "platform/programmes.h"
#include "toolkit/application.h"

namespace {
// A bare name holds for the current directory alone: search results lie elsewhere, and a path too long to be current is not.
std::wstring Nom_a_editer(const Fichier_choisi & fichier) {
    return Meme_repertoire(Repertoire_courant(), fichier.repertoire) ? fichier.nom : variables.Chemin_source;
}

void Editer_un_par_un(const Gestion_Fichiers & f, const std::wstring & editeur) {
    Parcours p(f);
    while (p.Suivant()) {
        if (!Accepter_fichier(f, p.Courant().repertoire)) return;
        const std::wstring nom = Chemin_pour(editeur, Nom_a_editer(p.Courant()));
        if (nom.empty()) return;
        Lancer_installe(Ligne_editeur(editeur, nom, Programme_existe));
        Application::Laisser_passer();
    }
}
}  // namespace

void Editer(const Gestion_Fichiers & f) {
    if (!Preparer_lancement(f)) return;
    // The options may change it between two starts.
    const std::wstring editeur = variables.Editeur;
    if (!Editeur_groupe(editeur)) return Editer_un_par_un(f, editeur);
    Lancer_par_listes(f, Citer_programme(editeur, Programme_existe), [&](const std::wstring & liste) {
        return Ligne_editeur(editeur, liste, Programme_existe);
    });
}

void Editer_Click() { Garder(L"EDITER", Editer); }
