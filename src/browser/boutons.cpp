#include "browser/boutons.h"

#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/lancement.h"
#include "app/lignes_commande.h"
#include "app/repertoire_lancement.h"
#include "app/settings.h"
#include "browser/groupe_boutons.h"
#include "forms/gestion_fichiers.h"
#include "platform/profil.h"
#include "platform/programmes.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

namespace {
constexpr const wchar_t * deprogramme =
    L"Bouton déprogrammé, reprogrammez-le (commande 'Configurer', option 'Boutons') ou relancez KORVANE pour "
    L"supprimer le bouton.";
constexpr const wchar_t * sans_extension =
    L"Il manque l'extension du programme ou du fichier paramètré : modifiez avec la commande 'Configurer', "
    L"option 'Boutons'.";

std::wstring Sans_association(const std::wstring & extension) {
    return L"Pas de programme associé aux fichiers\rayant l'extension '" + extension +
           L"' :\rutilisez la commande 'Configurer', option 'Associer' pour le définir.";
}

void Avertir(const std::wstring & texte) {
    Bip();
    Message_boite(texte, Boite::ok | Boite::arret, variables.Commande_en_cours);
}

// Reading drops the quotes round a value that begins and ends with one, those of two different words as well: "X.EXE" "a b".
std::wstring Valeur_ecrite(const std::wstring & caption) {
    const std::wstring valeur    = Valeur_cle(Section::boutons, caption);
    const std::size_t  guillemet = valeur.find(L'"');
    const bool perdus = guillemet != std::wstring::npos && Est_executable(valeur.substr(0, guillemet));
    return perdus ? L"\"" + valeur + L"\"" : valeur;
}

// The line that a button starts; empty when nothing can be started, which the user has been told.
std::wstring Ligne_de(const Commande_bouton & commande) {
    if (Est_executable(L"." + commande.extension)) return Citer_programme(commande.cible, Programme_existe);
    const std::wstring programme = Programme_de_l_extension(commande.extension);
    if (programme.empty()) {
        Avertir(Sans_association(commande.extension));
        return {};
    }
    const std::wstring document = Chemin_pour(programme, commande.cible);
    return document.empty() ? document : Ligne_association(programme, document, Programme_existe);
}

// False when the user gives none: nothing is to be started then.
bool Ajouter_parametres(std::wstring & ligne, const std::wstring & cible, const std::wstring & repertoire) {
    const std::wstring reponse = Demander_texte(L"Entrez le(s) paramètre(s) de la commande " + cible +
                                                    L"\rRépertoire de travail :" + Majuscules(repertoire),
                                                variables.Commande_en_cours, L"");
    if (reponse.empty()) return false;
    ligne += L" " + Citer_parametres(reponse);
    return true;
}

void Executer(const Gestion_Fichiers & f, const std::wstring & caption) {
    const std::wstring valeur = Valeur_ecrite(caption);
    if (valeur.empty()) {
        Exiger_lisible(variables.Fichier_ini);
        return Avertir(deprogramme);
    }
    const Commande_bouton commande = Lire_bouton(valeur, Programme_existe);
    if (commande.extension.empty()) return Avertir(sans_extension);
    std::wstring ligne = Ligne_de(commande);
    if (ligne.empty() || !Accepter_commande(L"EXECUTER\rla commande '" + Nom_bouton(caption) + L"'")) return;
    const std::wstring repertoire =
        Repertoire_de_lancement(commande.repertoire.empty() ? f.Répertoire_srce.Path() : commande.repertoire);
    if (repertoire.empty()) return;
    // Before the question: parameters typed for a directory that is not there would be lost.
    const Repertoire_de_travail travail(repertoire);
    if (commande.parametres && !Ajouter_parametres(ligne, commande.cible, repertoire)) return;
    Lancer_installe(ligne, repertoire);
}

void Bouton_Click(std::size_t rang) {
    if (variables.Garde) return;
    Gestion_Fichiers & f       = Principale();
    const std::wstring caption = f.Bouton[rang].Caption();
    const auto         rendre  = [&f] { f.Croiser.Enabled(true); };
    Pieger(
        L"BOUTON '" + Nom_bouton(caption) + L"'",
        [&] {
            Executer(f, caption);
            rendre();
        },
        rendre);
    variables.Fichier_courant.clear();
}

void Montrer_groupe(Gestion_Fichiers & f, const std::vector<std::wstring> & noms) {
    for (std::size_t i = 0; i < f.Bouton.size(); ++i) {
        const bool programme = i < noms.size();
        if (programme) f.Bouton[i].Caption(noms[i]);
        f.Bouton[i].Visible(programme);
    }
}

std::vector<std::wstring> Noms_montres(const Gestion_Fichiers & f) {
    std::vector<std::wstring> noms;
    for (const Bouton_commande & bouton : f.Bouton) {
        if (bouton.Visible()) noms.push_back(bouton.Caption());
    }
    return noms;
}

void Bouton_suite_Click() {
    if (variables.Garde) return;
    Pieger(L"BOUTON SUITE", [] {
        Gestion_Fichiers & f    = Principale();
        const auto         noms = Noms_distincts(Cles_section(Section::boutons));
        if (noms.empty()) return Exiger_lisible(variables.Fichier_ini);
        Montrer_groupe(f, Groupe_suivant(noms, Noms_montres(f), f.Bouton.size()));
    });
}
}  // namespace

void Charger_boutons(Gestion_Fichiers & f) {
    const auto noms = Noms_distincts(Cles_section(Section::boutons));
    Montrer_groupe(f, Groupe_suivant(noms, {}, f.Bouton.size()));
    f.Bouton_suite.Visible(noms.size() > f.Bouton.size());
}

void Brancher_boutons(Gestion_Fichiers & f) {
    for (std::size_t rang = 0; rang < f.Bouton.size(); ++rang)
        f.Bouton[rang].Brancher([rang] { Bouton_Click(rang); });
    f.Bouton_suite.Brancher(Bouton_suite_Click);
    f.Bouton_suite.Chaque_clic();
}
