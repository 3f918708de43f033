#include "fileops/confirmations.h"

#include "app/dialogue.h"
#include "app/globals.h"
#include "app/routines.h"
#include "fileops/questions.h"
#include "forms/gestion_fichiers.h"
#include "platform/nombres.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

namespace {
constexpr std::size_t  position_nombre = 5;  // characters of the message line that hold the count
constexpr std::int16_t un_par_un       = 1;
constexpr std::int16_t sans_question   = -1;

bool Plusieurs_fichiers(const Gestion_Fichiers & f) {
    return Valeur(f.Ligne_message.Caption().substr(0, position_nombre)) > 1;
}

// How several files are erased, asked once a command. False when that answers for the current file too:
// Reponse is set.
bool Choisir_effacement(const Gestion_Fichiers & f, const std::wstring & titre) {
    variables.Reponse = Reponse_boite::oui;
    if (variables.Mode_effacement == sans_question) return false;
    if (variables.Mode_effacement == un_par_un || !Plusieurs_fichiers(f)) return true;
    Bip();
    variables.Reponse =
        Choix_bouton(L"Voulez-vous EFFACER sélectivement ou globalement les fichiers sélectionnés ?",
                     L"&SELECTIF", L"&GLOBAL", L"&ANNULER", L"32", titre);
    switch (variables.Reponse) {
    case 1: variables.Mode_effacement = un_par_un; return true;
    case 2:
        variables.Mode_effacement = sans_question;
        variables.Reponse         = Reponse_boite::oui;
        return false;
    default: variables.Reponse = Reponse_boite::annuler; return false;
    }
}
}  // namespace

int Demander(const std::wstring & question, unsigned boutons, const std::wstring & titre) {
    Bip();
    return Message_boite(question, boutons | Boite::question | Boite::deuxieme_bouton, titre);
}

bool Va_a_la_corbeille(const std::wstring & repertoire) {
    return variables.Corbeille_active && Unite_avec_corbeille(repertoire);
}

void Confirmer_commande(const Gestion_Fichiers & f, const std::wstring & repertoire) {
    const std::wstring & commande = variables.Commande_en_cours;
    const bool           efface   = commande == L"EFFACER";
    const std::wstring   titre =
        efface && !Va_a_la_corbeille(repertoire) ? L"Attention !  Corbeille absente" : titre_gestionnaire;
    if (efface && !Choisir_effacement(f, titre)) return;
    const bool         vers     = commande == L"COPIER" || commande == L"DEPLACER";
    const std::wstring question = Question_commande(commande, variables.Fichier_courant, repertoire,
                                                    vers ? f.Répertoire_dest.Path() : std::wstring());
    variables.Reponse =
        Demander(question, Plusieurs_fichiers(f) ? Boite::oui_non_annuler : Boite::oui_non, titre);
}

void Confirmer_remplacement(const Gestion_Fichiers & f) {
    variables.Reponse = Reponse_boite::oui;
    if (!variables.Confirme_remplacement) return;
    const std::wstring question =
        Question_remplacement(Majuscules(variables.Fichier_courant), Majuscules(f.Répertoire_dest.Path()));
    variables.Reponse = Demander(question, Boite::oui_non_annuler, variables.Commande_en_cours);
}

bool Verifier_espace(const Gestion_Fichiers & f, std::uint64_t total) {
    Afficher_espace_libre();
    if (Tient(total, variables.Espace_libre_ko)) return true;
    const std::wstring unite      = f.Unité_dest.Drive();
    const std::int64_t disquettes = Disquettes(total);
    const std::wstring question   = disquettes >= 2 && Est_disquette(unite)
                                        ? Question_disquettes(disquettes)
                                        : Question_place(Majuscules(unite.substr(0, 2)));
    variables.Reponse             = Demander(question, Boite::oui_non, variables.Commande_en_cours);
    return variables.Reponse == Reponse_boite::oui;
}

void Afficher_en_cours(Gestion_Fichiers & f) {
    f.Titre_dest.Visible(false);
    f.Croiser.Visible(false);
    f.En_cours.Caption(Libelle_en_cours(variables.Commande_en_cours, Majuscules(variables.Fichier_courant)));
    f.En_cours.Visible(true);
}
