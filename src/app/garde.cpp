#include "app/garde.h"

#include "app/errors.h"
#include "app/fenetre_principale.h"
#include "app/fenetres.h"
#include "app/globals.h"
#include "app/routines.h"
#include "forms/gestion_fichiers.h"
#include "toolkit/application.h"

#include <exception>
#include <new>
#include <optional>
#include <utility>

namespace {
// The error that a body ended with, if any.
std::optional<Erreur_execution> Executer(const std::function<void()> & corps) {
    try {
        corps();
        return std::nullopt;
    } catch (const Erreur_execution & erreur) {
        return erreur;
    } catch (const std::bad_alloc &) {
        return Erreur_execution(Numero::memoire, 0, {});
    } catch (const std::exception &) {
        // A fault of ours: it must not cross a window procedure either.
        return Erreur_execution(Numero::entree_sortie, 0, {});
    }
}
}  // namespace

Garde::Garde() : avant_(std::exchange(variables.Garde, true)) {}

Garde::~Garde() { variables.Garde = avant_; }

void Pieger(const std::wstring & commande, const std::function<void()> & corps,
            const std::function<void()> & remise) {
    variables.Commande_en_cours = commande;
    const auto erreur           = Executer(corps);
    if (!erreur) return;
    if (remise) Tenter(remise);
    // The body may have run other handlers, which took the label.
    variables.Commande_en_cours = commande;
    Signaler_erreur(*erreur);
}

void Garder(const std::wstring & commande, const std::function<void(Gestion_Fichiers &)> & corps) {
    if (variables.Garde) return;
    Gestion_Fichiers & f        = Principale();
    variables.Commande_en_cours = commande;
    variables.Index_a_reprendre = -1;
    variables.Index_courant     = 0;
    std::optional<Erreur_execution> erreur;
    std::wstring                    fichier;
    {
        const Garde                        garde;
        const Application::Sablier         sablier;
        const Application::Entree_reservee entree(f.Arret);
        erreur  = Executer([&] { corps(f); });
        fichier = variables.Fichier_courant;
        if (erreur)
            Retablir_apres_echec(commande);
        else
            Retablir_fenetre();
        Afficher_espace_libre();
    }
    if (!erreur) return;
    // The report names the file at which the command ended.
    variables.Fichier_courant = fichier;
    Signaler_erreur(*erreur);
    variables.Fichier_courant.clear();
}
