#include "app/garde.h"
#include "app/globals.h"
#include "browser/selection.h"
#include "fileops/commandes.h"
#include "fileops/confirmations.h"
#include "fileops/jauge.h"
#include "fileops/jauge_montree.h"
#include "forms/gestion_fichiers.h"
#include "platform/imprimante.h"
#include "platform/lecture.h"
#include "platform/textes.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"
#include "toolkit/fin_de_session.h"

namespace {
enum class Suite { continuer, terminer };

void Imprimer_ligne(Imprimante & imprimante, const std::wstring & ligne) {
    for (const Morceau & morceau : Morceaux_imprimables(ligne)) {
        if (morceau.nouvelle_page) imprimante.Page_suivante();
        if (morceau.ligne) imprimante.Ligne(*morceau.ligne);
    }
}

// To the end of the file, or until the user stops it.
void Imprimer_lignes(Gestion_Fichiers & f, Lecture & lecture, Avance & avance, Imprimante & imprimante) {
    while (!variables.Arret_demande) {
        const Lecture::Avancee avancee = lecture.Avancer();
        if (avancee == Lecture::Avancee::fin) return;
        if (avancee == Lecture::Avancee::ligne) {
            Imprimer_ligne(imprimante, lecture.Ligne());
            Avancer_jauge(f, avance, lecture.Octets());
        }
        Application::Laisser_passer();
    }
}

Suite Imprimer_fichier(Gestion_Fichiers & f) {
    Lecture lecture(variables.Chemin_source, caracteres_imprimes);
    if (lecture.Longueur() == 0) return Suite::continuer;
    Avance avance(lecture.Longueur());
    Montrer_jauge(f, avance, true);
    f.Arret.Visible(true);
    Afficher_en_cours(f);
    Application::Titre(L"Korvane - " + Majuscules(variables.Fichier_courant));
    // The printer may take its time over both ends of a document: the window is painted before, and a stop asked for
    // meanwhile is heard after.
    Application::Laisser_passer(true);
    Imprimante                      imprimante(Application::Titre());
    const Abandon_en_fin_de_session abandon([&imprimante] { imprimante.Abandonner(); });
    if (imprimante.Abandonnee()) return Suite::terminer;
    Imprimer_lignes(f, lecture, avance, imprimante);
    // The pages made before a stop come out.
    imprimante.Terminer();
    Application::Laisser_passer(true);
    return variables.Arret_demande ? Suite::terminer : Suite::continuer;
}
}  // namespace

void Imprimer_Click() {
    Garder(L"IMPRIMER", [](Gestion_Fichiers & f) {
        if (f.Ligne_message.Caption().empty()) return Signaler_absence_selection();
        for (Parcours p(f); p.Suivant();) {
            if (variables.Confirme_commande) {
                Confirmer_commande(f, p.Courant().repertoire);
                if (variables.Reponse == Reponse_boite::non) continue;
                if (variables.Reponse == Reponse_boite::annuler) break;
            }
            if (Imprimer_fichier(f) == Suite::terminer) break;
        }
    });
}
