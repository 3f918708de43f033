#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/imprimante.h"
#include "platform/textes.h"
#include "toolkit/boites.h"
#include "toolkit/fin_de_session.h"
#include "visionneuse/seance.h"

#include <algorithm>

namespace {
constexpr std::uint64_t beaucoup        = 204800;  // bytes from which on printing is asked about
constexpr std::uint64_t octets_par_page = 3000;    // of ordinary text

bool Confirmer(std::uint64_t longueur, bool hexa) {
    if (longueur <= beaucoup) return true;
    const std::uint64_t pages = longueur / (hexa ? octets_par_page / 3 : octets_par_page);
    const std::wstring  texte = L"Ce fichier occupe " + Format_milliers(longueur) +
                               L" octets et remplirait environ " + Format_milliers(pages) +
                               L" pages.\r\rVoulez-vous vraiment l'imprimer ?";
    return Message_boite(texte, Boite::oui_non | Boite::question | Boite::deuxieme_bouton, L"Imprimer") ==
           Reponse_boite::oui;
}
}  // namespace

void Seance::Imprimer() {
    if (!Utilisable()) return;
    if (document_->Vide()) {
        Message_boite(L"Ce fichier est vide : il n'y a rien à imprimer.", Boite::information, L"Imprimer");
        return;
    }
    const Document * demande = document_.get();
    if (!Confirmer(document_->Longueur(), document_->Mode() == Affichage::hexa)) return;
    // While the question was up, another viewer may have handed over a file that now shows.
    if (!Utilisable() || document_.get() != demande) return;
    try {
        Imprimer_document(L"Visionneuse - " + std::wstring(Nom_du_chemin(document_->Chemin())));
    } catch (const Erreur_execution & erreur) {
        Dire_etat(L"L'impression a échoué.");
        Message_boite(L"L'impression a échoué.\r(" + erreur.Texte() + L")", Boite::exclamation, L"Imprimer");
        return;
    }
    Dire_etat(arret_ ? L"Impression arrêtée." : L"Impression terminée.");
}

// What is stopped, or fails, is not printed at all: the printer aborts a document that was not ended.
void Seance::Imprimer_document(const std::wstring & titre) {
    const Occupation occupation(*this);
    Octets           octets = document_->Autres_octets();
    Imprimante       imprimante(titre);

    const Abandon_en_fin_de_session abandon([&imprimante] { imprimante.Abandonner(); });

    const auto    rangees  = document_->Rangees(octets, static_cast<unsigned>(imprimante.Colonnes()));
    std::uint64_t position = rangees->Debut();
    while (position < rangees->Longueur() && !imprimante.Abandonnee()) {
        Rangee rangee = rangees->Lire(position);
        std::erase(rangee.texte, suite_de_caractere);
        imprimante.Ligne(rangee.texte);
        position = std::max(rangee.suite, position + 1);
        if (!Continuer(L"Impression", position)) return;
    }
    // Given up by the user when the printer asked where to put it.
    arret_ = imprimante.Abandonnee();
    if (!arret_) imprimante.Terminer();
}
