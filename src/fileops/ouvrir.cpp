#include "fileops/ouvrir.h"

#include "app/dialogue.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/lancement.h"
#include "app/lignes_commande.h"
#include "browser/selection.h"
#include "fileops/lancement.h"
#include "forms/gestion_fichiers.h"
#include "platform/fichiers.h"
#include "platform/programmes.h"
#include "platform/textes.h"

namespace {
constexpr std::size_t cle_la_plus_longue = 3;  // of the section, as it is edited

std::wstring Programme_pour(const std::wstring & nom) {
    const std::wstring extension = Extension_capitales(nom);
    const std::wstring programme = Programme_de_l_extension(extension);
    return programme.empty() ? Programme_de_l_extension(extension.substr(0, cle_la_plus_longue)) : programme;
}

void Lancer_associe(const Gestion_Fichiers & f, const std::wstring & programme) {
    Changer_repertoire(f.Répertoire_srce.Path());
    const std::wstring chemin = Chemin_pour(programme, variables.Chemin_source);
    if (!chemin.empty()) Lancer_installe(Ligne_association(programme, chemin, Programme_existe));
}

// A command that goes on in the place of this one, under its own name.
void Continuer(const std::wstring &     commande, void (*suite)(const Gestion_Fichiers &),
               const Gestion_Fichiers & f) {
    variables.Commande_en_cours = commande;
    suite(f);
}

void Demander_que_faire(const Gestion_Fichiers & f) {
    const std::wstring question =
        L"Voulez-vous EDITER ou EXECUTER le fichier '" + Majuscules(variables.Fichier_courant) + L"' ?";
    variables.Reponse =
        Choix_bouton(question, L"&EDITER", L"E&XECUTER", L"&ANNULER", L"32", titre_gestionnaire);
    if (variables.Reponse == 1) Continuer(L"EDITER", Editer, f);
    if (variables.Reponse == 2) Continuer(L"EXECUTER", Executer, f);
}
}  // namespace

void Ouvrir_fichier() {
    Garder(L"FICHIER SOURCE", [](const Gestion_Fichiers & f) {
        Parcours p(f);
        if (!p.Suivant()) return;
        if (Est_executable(p.Courant().nom)) return Continuer(L"EXECUTER", Executer, f);
        const std::wstring programme = Programme_pour(p.Courant().nom);
        if (programme.empty()) return Demander_que_faire(f);
        Lancer_associe(f, programme);
    });
}
