#include "platform/erreur.h"
#include "platform/systeme.h"
#include "recycle/magasin.h"
#include "recycle/mouvements.h"

namespace {

std::wstring Repertoire_de_fiche(const std::wstring & repertoire) {
    // The prefix of long paths is added again where it is needed.
    std::wstring complet = repertoire.starts_with(L"\\\\?\\") ? repertoire.substr(4) : repertoire;
    if (!complet.ends_with(L'\\')) complet += L'\\';
    if (complet.size() < 3 || complet[1] != L':')
        throw Erreur_execution(Numero::canal_incorrect, 0, repertoire);
    return complet;
}

// What a record cannot say exactly is not stored: it could not be restored.
void Verifier(const Fiche & fiche) {
    std::string ligne = Ecrire_fiche(fiche, Page_du_systeme());
    ligne.resize(ligne.size() - 2);
    if (Lire_fiche(ligne, Page_du_systeme()) != fiche)
        throw Erreur_execution(Numero::nom_incorrect, 0, fiche.Chemin_avant());
}

}  // namespace

void Magasin::Deposer(const std::vector<Depot> & depots, std::int32_t jour,
                      const std::function<bool()> & continuer, std::size_t & deposes) {
    deposes = 0;
    if (depots.empty()) return;
    const Exclusivite  tour(tour_de_la_corbeille, attente_du_tour, entretemps_);
    std::vector<Fiche> fiches;
    std::exception_ptr refus;
    Accorder();
    try {
        for (const Depot & depot : depots) {
            Fiche fiche{{}, depot.taille, depot.nom, Repertoire_de_fiche(depot.repertoire)};
            fiche.code = codes_.Choisir(fiche, jour, index_.Lignes());
            Verifier(fiche);
            fiches.push_back(std::move(fiche));
        }
    } catch (const Erreur_execution &) {
        refus = std::current_exception();  // of one file: those before it are stored
    }
    if (!fiches.empty()) Ranger(fiches, continuer, deposes);
    if (refus && deposes == fiches.size()) std::rethrow_exception(refus);
}

void Magasin::Ranger(std::vector<Fiche> & fiches, const std::function<bool()> & continuer,
                     std::size_t & deposes) {
    index_.Inscrire(fiches, 0);
    bool code = false;
    try {
        for (; deposes < fiches.size(); ++deposes) {
            code = false;
            if (deposes > 0 && continuer && !continuer()) break;
            Placer(fiches, deposes, code);
        }
    } catch (...) {
        // A file that could not leave its coded name is in the bin.
        if (code) ++deposes;
        Conclure(fiches, deposes);
        throw;
    }
    Conclure(fiches, deposes);
}

// A name that another program took since the directory was looked at is drawn again.
void Magasin::Placer(std::vector<Fiche> & fiches, std::size_t rang, bool & code) {
    for (int essai = 0; essai < Numeros_pris::nombre; ++essai) {
        try {
            return Coder(fiches[rang], code);
        } catch (const Erreur_execution & erreur) {
            if (erreur.numero != Numero::fichier_existe || code) throw;
        }
        Changer_code(fiches, rang);
    }
    throw Erreur_execution(Numero::fichier_existe, 0, fiches[rang].Chemin_avant());
}

// The record must not be there for a moment: it would name the other program's file.
void Magasin::Changer_code(std::vector<Fiche> & fiches, std::size_t rang) {
    Fiche & fiche = fiches[rang];
    index_.Confirmer(fiches, rang);
    if (!index_.Retirer(rang)) throw Erreur_execution(Numero::entree_sortie, 0, fiche.Chemin_avant());
    fiche.code = codes_.Choisir(fiche, fiche.Jour(), index_.Lignes());
    index_.Inscrire(fiches, rang);
}

void Magasin::Conclure(const std::vector<Fiche> & fiches, std::size_t deposes) {
    index_.Confirmer(fiches, deposes);
    index_.Retirer(deposes);
    fiches_.insert(fiches_.end(), fiches.begin(), fiches.begin() + static_cast<std::ptrdiff_t>(deposes));
}
