#include "search/cherche_fichier.h"

#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/routines.h"
#include "forms/cde_chercher.h"
#include "forms/cherche_fichier.h"
#include "forms/gestion_fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "search/arborescence.h"
#include "search/astuce_resultats.h"
#include "search/modeles.h"
#include "search/recherche.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"

#include <algorithm>
#include <utility>

namespace {
constexpr int           a_droite           = 4350;  // twips from the main window's corner
constexpr int           en_bas             = 1100;
constexpr double        largeur_repertoire = 3510;  // twips that a path may take on the progress line
constexpr std::uint64_t entre_affichages   = 100;   // ms
constexpr std::size_t   lot_maximal = 2000;  // entries added at once: the stop button waits for no more

struct Fenetre_recherche : Cherche_Fichier {
    bool                        active = false;  // walking or searching
    std::vector<Fichier_trouve> trouves;         // of Liste_sél, entry by entry; ahead of it during a search
    std::vector<Fichier_trouve> choisis;
};

// What the window shows of a walk or a search, brought up to date about ten times a second.
class Avancement {
public:
    explicit Avancement(Fenetre_recherche & c) : c_(c) {}

    bool Continuer_parcours(const Arbre & arbre, std::size_t index) {
        if (Echeance()) {
            variables.Texte_chemin = arbre.Chemin(index);
            Raccourcir_chemin(c_, largeur_repertoire);
            c_.Mess_infos.Caption(variables.Texte_chemin);
        }
        return Poursuivre();
    }

    bool Continuer_recherche() {
        if (Echeance()) Montrer();
        return Poursuivre();
    }

    void Ajouter(Fichier_trouve fichier) {
        c_.trouves.push_back(std::move(fichier));
        if (c_.trouves.size() - montres_ >= lot_maximal) Montrer();
    }

    // The next of the files found that the list does not show yet; false when there are more.
    bool Montrer() {
        const std::size_t         fin = std::min(montres_ + lot_maximal, c_.trouves.size());
        std::vector<std::wstring> lot;
        for (; montres_ < fin; ++montres_) lot.push_back(Minuscules(c_.trouves[montres_].chemin));
        c_.Liste_sél.Ajouter(lot);
        c_.Mess_infos.Caption(Libelle_trouves(montres_));
        return montres_ == c_.trouves.size();
    }

    // Lists what a walk found. False when the user cancelled.
    bool Montrer_tout() {
        while (!Montrer()) {
            if (!Poursuivre()) return false;
        }
        return Poursuivre();
    }

private:
    bool Echeance() {
        const std::uint64_t maintenant = Horloge_ms();
        if (dernier_ != 0 && maintenant - dernier_ < entre_affichages) return false;
        dernier_ = maintenant;
        return true;
    }

    static bool Poursuivre() {
        Application::Laisser_passer();
        return !variables.Recherche_annulee && !Application::Terminee();
    }

    Fenetre_recherche & c_;
    std::size_t         montres_ = 0;  // files found that the list shows
    std::uint64_t       dernier_ = 0;  // Horloge_ms of the last update, 0 before the first
};

void Fermer(Fenetre_recherche & c) {
    Fermer_fille(c);
    c.Liste_sél.Clear();
    c.trouves = {};
    c.Caption(Cherche_Fichier::titre_attente);
}

// Cancels the search under way, which closes the window when it has come to its end: the main window must not take input while it
// still runs. Otherwise closes the window without keeping anything.
void Annule_Click(Fenetre_recherche & c) {
    variables.Recherche_annulee = true;
    variables.Nombre_trouves    = 0;
    c.choisis.clear();
    if (!c.active) Fermer(c);
}

// After the end of a search, whatever ended it.
void Terminer(Fenetre_recherche & c) {
    c.active = false;
    if (variables.Recherche_annulee && c.Montree()) Fermer(c);
}

void OK_Click(Fenetre_recherche & c) {
    const Application::Sablier sablier;
    for (const int index : c.Liste_sél.Selection())
        c.choisis.push_back(std::move(c.trouves[static_cast<std::size_t>(index)]));
    Fermer(c);
}

void Annoncer_recherche(Fenetre_recherche & c) {
    c.Mess_infos.Caption(Libelle_trouves(0));
    Application::Laisser_passer(true);
}

Bilan_recherche Chercher_dans_arborescence(Fenetre_recherche & c, const Demande_recherche & demande) {
    Annoncer_recherche(c);
    Avancement            avancement(c);
    const Bilan_recherche bilan = Rechercher(
        demande, [&](Fichier_trouve fichier) { avancement.Ajouter(std::move(fichier)); },
        [&] { return avancement.Continuer_recherche(); });
    if (bilan.entiere) avancement.Montrer();
    return bilan;
}

// The progress line goes to the directories; what they hold is kept until the last of them has been seen.
Bilan_recherche Chercher_en_parcourant(Fenetre_recherche & c, const std::wstring & unite,
                                       const Demande_recherche & demande) {
    Avancement      avancement(c);
    Bilan_recherche bilan = Relever_et_rechercher(
        unite, demande, [&](Fichier_trouve fichier) { c.trouves.push_back(std::move(fichier)); },
        [&](const Arbre & arbre, std::size_t index) { return avancement.Continuer_parcours(arbre, index); });
    if (!bilan.entiere) return bilan;
    Annoncer_recherche(c);
    bilan.entiere = avancement.Montrer_tout();
    return bilan;
}

void Signaler_rien(Fenetre_recherche & c, const std::wstring & unite) {
    Message_boite(Libelle_rien(variables.Modele_cherche, Majuscules(unite)), Boite::ok | Boite::information,
                  titre_gestionnaire);
    Annule_Click(c);
}

void Proposer_choix(Fenetre_recherche & c) {
    c.Caption(L"Sélectionnez le(s) fichier(s)");
    c.OK.Enabled(true);
    c.OK.Visible(true);
    c.Liste_sél.SetFocus();
}

void Chercher(Fenetre_recherche & c) {
    const Gestion_Fichiers & f     = Principale();
    const auto &             cde   = static_cast<const Cde_Chercher &>(*fenetres.cde_chercher);
    const std::wstring       unite = f.Unité_srce.Drive().substr(0, 2);
    const Demande_recherche  demande{variables.Modele_cherche, cde.Fichiers_exclus.Text(),
                                    f.Fichier_srce.Hidden()};
    c.Recherche.Caption(Majuscules(variables.Modele_cherche));
    const Bilan_recherche bilan = Arborescence_valide(unite) ? Chercher_dans_arborescence(c, demande)
                                                             : Chercher_en_parcourant(c, unite, demande);
    if (!bilan.entiere || variables.Recherche_annulee) return;
    Noter_sautes(bilan.sautes);
    c.active                  = false;
    variables.Recherche_faite = true;
    Bip();
    if (c.trouves.empty())
        Signaler_rien(c, unite);
    else
        Proposer_choix(c);
}

void Commencer(Fenetre_recherche & c) {
    if (!variables.Recherche_en_cours || !c.Montree()) return;
    variables.Recherche_en_cours = false;
    variables.Recherche_annulee  = false;
    c.active                     = true;
    Pieger(
        L"CHERCHER", [&c] { Chercher(c); },
        [&c] {
            Annule_Click(c);
            Terminer(c);
        });
    Terminer(c);
}

void Annule_GotFocus(Fenetre_recherche & c) {
    // The window is still being shown: a search started here would let it wait for its first drawing.
    if (variables.Recherche_en_cours) c.Apres_evenement([&c] { Commencer(c); });
}

void Liste_sél_GotFocus(Fenetre_recherche & c) {
    if (!variables.Recherche_faite) c.Annule.SetFocus();
}

void Brancher(Fenetre_recherche & c) {
    Brancher_fille(c, aide_cherche_fichier);
    Brancher_astuce_resultats(c);
    c.Annule.GotFocus    = [&c] { Annule_GotFocus(c); };
    c.Liste_sél.GotFocus = [&c] { Liste_sél_GotFocus(c); };
    c.OK.Brancher([&c] {
        Pieger(
            L"CHERCHER", [&c] { OK_Click(c); }, [&c] { Annule_Click(c); });
    });
    c.Annule.Brancher([&c] { Annule_Click(c); });
    c.Defaut(c.OK);
    c.Annulation(c.Annule);
}

Fenetre_recherche & Fenetre_resultats() {
    if (!fenetres.cherche_fichier) {
        auto neuve = std::make_unique<Fenetre_recherche>();
        Brancher(*neuve);
        fenetres.cherche_fichier = std::move(neuve);
    }
    return static_cast<Fenetre_recherche &>(*fenetres.cherche_fichier);
}

Fenetre_recherche & Preparer() {
    const Application::Sablier sablier;
    Fenetre_recherche &        c = Fenetre_resultats();
    variables.Recherche_faite    = false;
    c.choisis.clear();
    c.Recherche.Caption(L"");
    c.Mess_infos.Caption(L"");
    Noter_sautes(0);
    c.Tip.Visible(false);
    c.OK.Enabled(false);
    c.OK.Visible(false);
    c.Annule.SetFocus();
    const int bordure = static_cast<int>(15 * variables.Bordure);
    Placer_fille(c, a_droite + bordure, en_bas + bordure);
    return c;
}
}  // namespace

std::vector<Fichier_trouve> Chercher_fichiers() {
    Fenetre_recherche & c = Preparer();
    c.Show_modal(Principale());
    return std::exchange(c.choisis, {});
}
