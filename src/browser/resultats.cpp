#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "browser/panneaux.h"
#include "browser/selection.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/textes.h"
#include "toolkit/application.h"

#include <algorithm>
#include <utility>

namespace {
constexpr const wchar_t * etiquette = L"FICHIER SOURCE";

// The texts of the list: lower case, whatever the case on disk.
void Remplir_liste(Gestion_Fichiers & f) {
    std::vector<std::wstring> minuscules;
    minuscules.reserve(f.Resultats.size());
    for (const Fichier_trouve & trouve : f.Resultats) minuscules.push_back(Minuscules(trouve.chemin));
    std::vector<const wchar_t *> textes;
    textes.reserve(minuscules.size());
    for (const std::wstring & texte : minuscules) textes.push_back(texte.c_str());
    f.Fichier_sél.Remplir(textes);
}

// The file is no longer there, as opposed to one on a drive that does not answer.
bool Disparu(const Erreur_execution & erreur) {
    return erreur.numero == Numero::fichier_introuvable || erreur.numero == Numero::chemin_introuvable;
}

const std::wstring & Chemin_resultat(const Gestion_Fichiers & f, int index) {
    return f.Resultats[static_cast<std::size_t>(index)].chemin;
}

void Retirer(Gestion_Fichiers & f, int index) {
    f.Fichier_sél.RemoveItem(index);
    f.Resultats.erase(f.Resultats.begin() + index);
    variables.Nombre_trouves = f.Resultats.size();
}

// The first result whose length cannot be read.
struct Echec {
    int              index;
    Erreur_execution erreur;
};

// Reads the lengths of the selected results that the search did not tell. Those behind the first failure are read as well unless the
// drive itself fails: each of them would wait for it.
std::optional<Echec> Lire_longueurs(Gestion_Fichiers & f, void (*entre_deux)()) {
    std::optional<Echec> echec;
    for (const int index : f.Fichier_sél.Selection()) {
        Fichier_trouve & trouve = f.Resultats[static_cast<std::size_t>(index)];
        if (trouve.taille) continue;
        try {
            trouve.taille = Longueur_fichier(trouve.chemin);
        } catch (const Erreur_execution & erreur) {
            if (!echec) echec = Echec{index, erreur};
            if (!Disparu(erreur)) return echec;
        }
        if (entre_deux != nullptr) entre_deux();
    }
    return echec;
}

void Afficher_compte_resultats(Gestion_Fichiers & f) {
    const auto    selection = f.Fichier_sél.Selection();
    std::uint64_t total     = 0;
    for (const int index : selection) {
        total += f.Resultats[static_cast<std::size_t>(index)].taille.value_or(0);
    }
    const std::wstring premier = selection.empty() ? std::wstring() : Chemin_resultat(f, selection.front());
    Afficher_compte(f, selection.size(), total, std::wstring(Nom_du_chemin(premier)));
}

// A failure is told once the line shows what is known; a file that is gone leaves the list, so that it is told once.
void Compter_et_signaler(Gestion_Fichiers & f, void (*entre_deux)()) {
    const auto echec = Lire_longueurs(f, entre_deux);
    if (!echec) return Afficher_compte_resultats(f);
    variables.Fichier_courant = Nom_du_chemin(Chemin_resultat(f, echec->index));
    if (Disparu(echec->erreur)) Retirer(f, echec->index);
    Afficher_compte_resultats(f);
    throw Erreur_execution(echec->erreur);
}

// What was chosen in the results window is chosen: nothing but the drawing goes on while it is counted.
void Compter_a_l_arrivee(Gestion_Fichiers & f) {
    const Garde                        garde;
    const Application::Sablier         sablier;
    const Application::Entree_reservee entree(f.Arret);
    Compter_et_signaler(f, [] { Application::Laisser_passer(); });
}

// A command that takes files away from where they are.
bool Emporte(const std::wstring & commande) { return commande == L"EFFACER" || commande == L"DEPLACER"; }

// The drive does not answer. Any other refusal concerns one file, which is there.
bool Muette(const Erreur_execution & erreur) {
    return erreur.numero == Numero::unite_absente || erreur.numero == Numero::disque_non_pret ||
           erreur.numero == Numero::entree_sortie;
}

// Which of these results are gone, in order. Nothing more is asked of a drive that does not answer: each question would
// wait for it.
std::vector<int> Disparus(const Gestion_Fichiers & f, const std::vector<int> & traites) {
    std::vector<int> disparus;
    for (const int index : traites) {
        try {
            Lire_attributs(Chemin_resultat(f, index));
        } catch (const Erreur_execution & erreur) {
            if (Disparu(erreur))
                disparus.push_back(index);
            else if (Muette(erreur))
                break;
        }
        Application::Laisser_passer();
    }
    return disparus;
}

// Makes the list anew without these, which are in order: taking them out one by one would move the rest each time.
void Retirer_tous(Gestion_Fichiers & f, const std::vector<int> & disparus, std::vector<int> choisis) {
    const auto nombre_avant = [&](int index) {
        return static_cast<int>(std::lower_bound(disparus.begin(), disparus.end(), index) - disparus.begin());
    };
    const auto est_disparu = [&](int index) {
        return std::binary_search(disparus.begin(), disparus.end(), index);
    };
    const int                   haut = f.Fichier_sél.TopIndex();
    std::vector<Fichier_trouve> restent;
    restent.reserve(f.Resultats.size() - disparus.size());
    for (std::size_t i = 0; i < f.Resultats.size(); ++i) {
        if (!est_disparu(static_cast<int>(i))) restent.push_back(std::move(f.Resultats[i]));
    }
    f.Resultats = std::move(restent);
    Remplir_liste(f);
    std::erase_if(choisis, est_disparu);
    for (int & index : choisis) index -= nombre_avant(index);
    f.Fichier_sél.Selectionner(choisis);
    // Selecting scrolls.
    f.Fichier_sél.TopIndex(std::max(0, haut - nombre_avant(haut)));
}
}  // namespace

void Compter_resultats(Gestion_Fichiers & f) { Compter_et_signaler(f, nullptr); }

void Fichier_sél_Click() {
    if (variables.Garde) return;
    Pieger(etiquette, [] {
        Gestion_Fichiers & f    = Principale();
        variables.Index_courant = 0;
        Terminer_tout_selectionne(f);
        Compter_resultats(f);
    });
    variables.Fichier_courant.clear();
}

void Montrer_resultats(Gestion_Fichiers & f, std::vector<Fichier_trouve> trouves) {
    if (trouves.empty()) return;
    Vider_selection(f);
    f.Resultats = std::move(trouves);
    Remplir_liste(f);
    f.Fichier_sél.Tout_selectionner(true);
    variables.Mode_resultats = true;
    variables.Nombre_trouves = f.Resultats.size();
    f.Fichier_sél.Visible(true);
    // The keys are for what was found: in the directory list, Delete would remove the SOURCE directory.
    f.Fichier_sél.SetFocus();
    f.Fichier_srce.Visible(false);
    f.Copier.Enabled(true);
    Pieger(etiquette, [&] { Compter_a_l_arrivee(f); });
    variables.Fichier_courant.clear();
    if (f.Fichier_sél.ListCount() == 0) Fichier_srce_PathChange();
}

void Quitter_resultats(Gestion_Fichiers & f) {
    if (!variables.Mode_resultats) return;
    variables.Mode_resultats = false;
    variables.Nombre_trouves = 0;
    f.Fichier_srce.Visible(true);
    if (f.Fichier_sél.A_le_focus()) f.Fichier_srce.SetFocus();
    f.Fichier_sél.Visible(false);
    f.Fichier_sél.Clear();
    f.Resultats.clear();
}

bool Reprendre_resultats(Gestion_Fichiers & f, const std::wstring & commande) {
    const Garde      garde;
    const int        dernier = variables.Index_courant - 1;
    std::vector<int> choisis = f.Fichier_sél.Selection();
    Terminer_tout_selectionne(f);
    const auto             suite    = std::upper_bound(choisis.begin(), choisis.end(), dernier);
    const std::vector<int> disparus = Disparus(f, {choisis.begin(), suite});
    if (!Emporte(commande)) {
        const auto faits = std::lower_bound(choisis.begin(), choisis.end(), dernier);
        std::for_each(choisis.begin(), faits, [&](int index) { f.Fichier_sél.Selected(index, false); });
        choisis.erase(choisis.begin(), faits);
    }
    if (!disparus.empty()) Retirer_tous(f, disparus, choisis);
    variables.Nombre_trouves = f.Resultats.size();
    Afficher_compte_resultats(f);
    return f.Fichier_sél.ListCount() > 0;
}
