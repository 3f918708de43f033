#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "browser/panneaux.h"
#include "browser/selection.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "toolkit/application.h"

#include <algorithm>

namespace {
constexpr const wchar_t * etiquette = L"FICHIER SOURCE";

// The file is no longer there, as opposed to one on a drive that does not answer.
bool Disparu(const Erreur_execution & erreur) {
    return erreur.numero == Numero::fichier_introuvable || erreur.numero == Numero::chemin_introuvable;
}

bool Est_disparu(const std::wstring & chemin) {
    try {
        Lire_attributs(chemin);
        return false;
    } catch (const Erreur_execution & erreur) {
        return Disparu(erreur);
    }
}

void Retirer(Gestion_Fichiers & f, int index) {
    f.Fichier_sél.RemoveItem(index);
    f.Longueurs_resultats.erase(f.Longueurs_resultats.begin() + index);
}

// The first result whose length cannot be read.
struct Echec {
    int              index;
    Erreur_execution erreur;
};

// Reads the lengths of the selected results that are not known yet. Those behind the first failure are read as well unless the
// drive itself fails: each of them would wait for it.
std::optional<Echec> Lire_longueurs(Gestion_Fichiers & f, void (*entre_deux)()) {
    std::optional<Echec> echec;
    for (const int index : f.Fichier_sél.Selection()) {
        auto & longueur = f.Longueurs_resultats[static_cast<std::size_t>(index)];
        if (longueur) continue;
        try {
            longueur = Longueur_fichier(f.Fichier_sél.List(index));
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
        total += f.Longueurs_resultats[static_cast<std::size_t>(index)].value_or(0);
    }
    const std::wstring premier = selection.empty() ? std::wstring() : f.Fichier_sél.List(selection.front());
    Afficher_compte(f, selection.size(), total, std::wstring(Nom_du_chemin(premier)));
}

// A failure is told once the line shows what is known; a file that is gone leaves the list, so that it is told once.
void Compter_et_signaler(Gestion_Fichiers & f, void (*entre_deux)()) {
    const auto echec = Lire_longueurs(f, entre_deux);
    if (!echec) return Afficher_compte_resultats(f);
    variables.Fichier_courant = Nom_du_chemin(f.Fichier_sél.List(echec->index));
    if (Disparu(echec->erreur)) Retirer(f, echec->index);
    Afficher_compte_resultats(f);
    throw Erreur_execution(echec->erreur);
}

void Remplir(Gestion_Fichiers & f, const std::vector<std::wstring> & chemins) {
    std::vector<const wchar_t *> textes;
    textes.reserve(chemins.size());
    for (const std::wstring & chemin : chemins) textes.push_back(chemin.c_str());
    f.Fichier_sél.Remplir(textes);
    f.Longueurs_resultats.assign(chemins.size(), std::nullopt);
    f.Fichier_sél.Tout_selectionner(true);
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

void Montrer_resultats(Gestion_Fichiers & f, const std::vector<std::wstring> & chemins) {
    if (chemins.empty()) return;
    Vider_selection(f);
    Remplir(f, chemins);
    variables.Mode_resultats = true;
    variables.Nombre_trouves = chemins.size();
    f.Fichier_sél.Visible(true);
    if (f.Fichier_srce.A_le_focus()) f.Fichier_sél.SetFocus();
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
    f.Longueurs_resultats.clear();
}

bool Reprendre_resultats(Gestion_Fichiers & f, const std::wstring & commande) {
    const Garde garde;
    const int   dernier = variables.Index_courant - 1;
    auto        choisis = f.Fichier_sél.Selection();
    Terminer_tout_selectionne(f);
    // From the last on: a result that leaves moves those behind it.
    std::reverse(choisis.begin(), choisis.end());
    for (const int index : choisis) {
        if (index > dernier) continue;
        if (Est_disparu(f.Fichier_sél.List(index)))
            Retirer(f, index);
        else if (index < dernier && !Emporte(commande))
            f.Fichier_sél.Selected(index, false);
    }
    Afficher_compte_resultats(f);
    return f.Fichier_sél.ListCount() > 0;
}
