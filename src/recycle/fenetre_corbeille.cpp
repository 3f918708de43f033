#include "recycle/fenetre_corbeille.h"

#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/settings.h"
#include "forms/corbeille.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/profil.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "recycle/corbeille.h"
#include "recycle/limites_saisies.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"

#include <algorithm>
#include <optional>

namespace {
constexpr int             a_droite      = 1500;  // twips from the main window's corner
constexpr int             en_bas        = 440;
constexpr const wchar_t * nom_index     = L"KORVANE.CRB";
constexpr const wchar_t * etape_lecture = L"Lecture CORBEILLE";
constexpr const wchar_t * etape_fin     = L"Ecriture CORBEILLE";

void Montrer_fichiers(Corbeille & w) {
    const std::vector<Fiche> & fiches = Magasin_corbeille().Fiches();
    std::vector<std::wstring>  chemins(fiches.size());
    std::transform(fiches.begin(), fiches.end(), chemins.begin(),
                   [](const Fiche & f) { return f.Chemin_avant(); });
    std::vector<const wchar_t *> textes(chemins.size());
    std::transform(chemins.begin(), chemins.end(), textes.begin(), [](const auto & c) { return c.c_str(); });
    w.Tip.Visible(false);
    w.Fichier_effacé.Remplir(textes);
    w.Récupérer.Enabled(false);
    Recalculer_total();
}

void Lire_corbeille(Corbeille & w) {
    w.Fichier_effacé.Clear();
    w.Récupérer.Enabled(false);
    if (!variables.Corbeille_active) return;
    const Application::Sablier sablier;
    // Named by the report, should the index not be readable.
    variables.Fichier_courant = nom_index;
    Exiger_corbeille();
    Magasin_corbeille().Relire();
    variables.Fichier_courant.clear();
    Montrer_fichiers(w);
}

// What may take long: meanwhile the button Fin alone answers, and stops it.
class Travail {
public:
    explicit Travail(Corbeille & w) : entree_(w.Fin) { variables.Arret_demande = false; }
    ~Travail() { variables.Arret_demande = false; }
    Travail(const Travail &)             = delete;
    Travail & operator=(const Travail &) = delete;

private:
    Garde                        garde_;
    Application::Sablier         sablier_;
    Application::Entree_reservee entree_;
};

// Those chosen have their names back. Fichier_courant names the one in hand, for the report of an error.
void Restaurer_choisis(const Corbeille & w) {
    std::vector<std::size_t>  choix;
    std::vector<std::wstring> noms;
    for (const int index : w.Fichier_effacé.Selection()) {
        choix.push_back(static_cast<std::size_t>(index));
        noms.push_back(Magasin_corbeille().Fiches().at(choix.back()).nom);
    }
    auto nom                  = noms.begin();
    variables.Fichier_courant = *nom;
    Magasin_corbeille().Restaurer(choix, [&] {
        variables.Fichier_courant = *++nom;
        return Laisser_continuer();
    });
}

// After a restoration, whole or not: what came back has left the list and stands in the panes.
void Montrer_restauration(Corbeille & w) {
    Montrer_fichiers(w);
    w.Fichier_effacé.SetFocus();
    Actualiser_panneaux();
}

void Récupérer_Click(Corbeille & w) {
    if (variables.Garde || w.Fichier_effacé.Selection().empty()) return;
    Pieger(
        L"RECUPERER",
        [&] {
            const Travail travail(w);
            Restaurer_choisis(w);
            Recalculer_total();
            variables.Fichier_courant = Nom_du_chemin(variables.Fichier_ini);
            Enregistrer_total();
            Montrer_restauration(w);
        },
        [&] {
            Montrer_restauration(w);
            Enregistrer_total();
        });
    variables.Fichier_courant.clear();
}

bool Confirmer_destruction() {
    Bip();
    variables.Reponse = Message_boite(
        L"Attention ! La corbeille contient des fichiers que vous allez perdre si vous ne "
        L"saisissez pas une taille ou un temps.\rConfirmez-vous la suppression de la corbeille ?",
        Boite::oui_non | Boite::question | Boite::deuxieme_bouton, titre_gestionnaire);
    return variables.Reponse == Reponse_boite::oui;
}

// False when it was stopped. The report of an error names the file that could not be destroyed.
bool Detruire_fichiers() {
    try {
        Exiger_corbeille();
        return Magasin_corbeille().Detruire(Laisser_continuer);
    } catch (const Erreur_execution & erreur) {
        variables.Fichier_courant = Nom_du_chemin(erreur.chemin);
        throw;
    }
}

// False when it was stopped: the window stays, with the rest.
bool Detruire_corbeille(Corbeille & w) {
    const Travail travail(w);
    if (!Detruire_fichiers()) {
        Montrer_fichiers(w);
        Enregistrer_total();
        return false;
    }
    variables.Total_corbeille = 0;
    variables.Chemin_corbeille.clear();
    variables.Fichier_courant = Nom_du_chemin(variables.Fichier_ini);
    Ecrire_profil(variables.Fichier_ini, Section::corbeille, Cle::total, std::nullopt);
    return true;
}

void Fermer(Corbeille & w) {
    w.Tip.Visible(false);
    Fermer_fille(w);
}

// The closing steps; false when the window stays.
bool Terminer(Corbeille & w) {
    Enregistrer_limites(w);
    if (variables.Corbeille_active) {
        const Travail travail(w);
        Ouvrir_corbeille();
        Purger_corbeille();
        return true;
    }
    if (variables.Total_corbeille < 1) return true;
    if (!Confirmer_destruction()) return false;
    return Detruire_corbeille(w);
}

void Fin_Click(Corbeille & w) {
    if (variables.Garde) {
        // It ends after the file in hand.
        variables.Arret_demande = true;
        return;
    }
    if (!Verifier_limites(w)) return;
    bool fermer = false;
    Pieger(
        etape_fin, [&] { fermer = Terminer(w); },
        [&] {
            Tenter(Relire_limites);
            Montrer_fichiers(w);
            if (Magasin_corbeille().Ouvert()) Enregistrer_total();
        });
    variables.Fichier_courant.clear();
    if (fermer) Fermer(w);
}

// Leaves the limits as they were when the window opened.
void Abandonner(Corbeille & w) {
    if (variables.Garde) {
        variables.Arret_demande = true;
        return;
    }
    Pieger(etape_fin, [&] { Rendre_limites(w); });
    variables.Fichier_courant.clear();
    Fermer(w);
}

// Says where the index is when the directory of the system could not take it.
std::wstring Aide_fenetre() {
    std::wstring    texte   = aide_fenetre_corbeille;
    const Magasin & magasin = Magasin_corbeille();
    if (!magasin.Ouvert() || Comparer_sans_casse(magasin.Repertoire(), Repertoire_systeme()) == 0)
        return texte;
    return texte + aide_index_ailleurs + magasin.Repertoire() + L".";
}

// Below the last entry there is nothing to restore, whatever is selected.
void Double_clic(Corbeille & w) {
    bool coupee = false;
    if (w.Fichier_effacé.Entree_survolee(coupee) >= 0) Récupérer_Click(w);
}

void Brancher(Corbeille & w) {
    Brancher_fille(w, Aide_fenetre);
    Brancher_abandon(w, [&w] { Abandonner(w); });
    Brancher_astuce(w, w.Fichier_effacé, w.Tip);
    Brancher_champs_limites(w);
    w.Fichier_effacé.Click    = [&w] { w.Récupérer.Enabled(!w.Fichier_effacé.Selection().empty()); };
    w.Fichier_effacé.DblClick = [&w] { Double_clic(w); };
    w.Fichier_effacé.KeyPress = [&w](wchar_t & caractere) {
        if (caractere != Touche::entree) return;
        caractere = 0;
        Récupérer_Click(w);
    };
    w.Récupérer.Brancher([&w] { Récupérer_Click(w); });
    w.Fin.Brancher([&w] { Fin_Click(w); });
    w.Defaut(w.Fin);
}

Corbeille & Fenetre_corbeille() {
    if (!fenetres.corbeille) {
        auto nouvelle = std::make_unique<Corbeille>();
        Brancher(*nouvelle);
        fenetres.corbeille = std::move(nouvelle);
    }
    return static_cast<Corbeille &>(*fenetres.corbeille);
}

void Corbeille_Click() {
    if (variables.Garde) return;
    Pieger(L"CORBEILLE", [] {
        Exiger_limites();
        Corbeille & w = Fenetre_corbeille();
        Placer_fille(w, a_droite, en_bas);
        Pieger(etape_lecture, [&] { Lire_corbeille(w); });
        variables.Fichier_courant.clear();
        Montrer_limites(w);
        w.Fichier_effacé.SetFocus();
        w.Show_modal(Principale());
        Actualiser_panneaux();
    });
}
}  // namespace

void Brancher_corbeille(Gestion_Fichiers & f) { f.Corbeille.Brancher(Corbeille_Click); }
