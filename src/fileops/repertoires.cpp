#include "fileops/repertoires.h"

#include "app/garde.h"
#include "app/globals.h"
#include "app/routines.h"
#include "fileops/confirmations.h"
#include "fileops/questions.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

namespace {
constexpr double largeur_invite = 4840;  // twips
}  // namespace

std::wstring Source_montree(const Gestion_Fichiers & f) {
    variables.Texte_chemin = f.Répertoire_srce.Path();
    Raccourcir_chemin(f, largeur_invite);
    return Majuscules(variables.Texte_chemin);
}

bool Confirmer_repertoire(const Gestion_Fichiers & f, const std::wstring & objet) {
    const std::wstring question = Question_repertoire(variables.Commande_en_cours, objet, Source_montree(f));
    variables.Reponse           = Demander(question, Boite::oui_non, titre_gestionnaire);
    return variables.Reponse == Reponse_boite::oui;
}

std::wstring Demander_nom(const std::wstring & invite, const std::wstring & defaut) {
    std::wstring nom = Demander_texte(invite, variables.Commande_en_cours, defaut);
    if (!nom.empty() && !Nom_simple(nom)) throw Erreur_execution(Numero::nom_incorrect, 0, nom);
    return nom;
}

std::wstring Parent_source(const Gestion_Fichiers & f) { return f.Répertoire_srce.List(-2); }

void Perimer_repertoires() {
    variables.Arborescence_perimee = true;
    variables.Destination_perimee  = true;
}

void Aller(Liste_repertoires & liste, const std::wstring & parent, const std::wstring & chemin) {
    if (Comparer_sans_casse(liste.Path(), chemin) == 0) liste.Path(parent);
    liste.Path(chemin);
}

Hors_de_source::Hors_de_source(Gestion_Fichiers & f) : f_(f) { Changer_repertoire(Parent_source(f)); }

Hors_de_source::~Hors_de_source() {
    Tenter([&] { Changer_repertoire(f_.Répertoire_srce.Path()); });
}

Destination_incluse::Destination_incluse(Gestion_Fichiers & f) : f_(f), parent_(Parent_source(f)) {
    const std::wstring source  = f.Répertoire_srce.Path();
    const std::wstring montree = f.Répertoire_dest.Path();
    for (int rang = -1; !f.Répertoire_dest.List(rang).empty(); --rang) {
        const std::wstring chemin = f.Répertoire_dest.List(rang);
        if (Comparer_sans_casse(chemin, source) != 0 && !Meme_repertoire(chemin, source)) continue;
        reste_ = montree.substr(chemin.size());
        if (!reste_->empty() && reste_->front() != L'\\') reste_->insert(0, 1, L'\\');  // behind a root
        // A drive that stands for the directory has nothing above it.
        const std::wstring au_dessus = f.Répertoire_dest.List(rang - 1);
        if (!au_dessus.empty()) parent_ = au_dessus;
        return;
    }
}

void Destination_incluse::Montrer(const std::wstring & chemin) {
    // The command is done: what the pane cannot show any more stays as it is.
    Tenter([&] {
        Aller(f_.Répertoire_dest, parent_, chemin);
        f_.Unité_dest.Drive_sans_evenement(chemin);
    });
}

void Destination_incluse::Remonter() {
    if (reste_) Montrer(parent_);
}

void Destination_incluse::Suivre(const std::wstring & nom) {
    if (!reste_) return;
    const std::wstring chemin = Joindre(parent_, nom) + *reste_;
    // Behind a link the new name stands where the directory is, not where the link is.
    Montrer(Repertoire_existe(chemin) ? chemin : Joindre(Parent_source(f_), nom) + *reste_);
}
