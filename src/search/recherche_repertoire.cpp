#include "search/recherche_repertoire.h"

#include "app/garde.h"
#include "app/globals.h"
#include "app/routines.h"
#include "forms/gestion_fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "search/arborescence.h"
#include "search/nom_repertoire.h"
#include "toolkit/application.h"

namespace {
constexpr std::uint64_t intervalle_affichage = 100;  // ms
constexpr int           largeur_chemin =
    3510;  // twips: the label's letters are bold, the shortening measures plain ones

// The label and the stop button while the drive is walked, in the place of the DESTINATION title.
class Progression {
public:
    explicit Progression(Gestion_Fichiers & f) : f_(f) {
        variables.Arret_demande = false;
        f_.En_cours.Caption(L"");
        Montrer(true);
    }
    ~Progression() {
        Montrer(false);
        variables.Arret_demande = false;
    }
    Progression(const Progression &)             = delete;
    Progression & operator=(const Progression &) = delete;

    void Afficher(const Arbre & arbre, std::size_t index) {
        const std::uint64_t maintenant = Horloge_ms();
        if (maintenant < prochain_) return;
        prochain_              = maintenant + intervalle_affichage;
        variables.Texte_chemin = arbre.Chemin(index);
        Raccourcir_chemin(f_, largeur_chemin);
        f_.En_cours.Caption(variables.Texte_chemin);
    }

private:
    void Montrer(bool montrer) {
        f_.Titre_dest.Visible(!montrer);
        f_.Croiser.Visible(!montrer);
        f_.En_cours.Visible(montrer);
        f_.Arret.Visible(montrer);
    }

    Gestion_Fichiers & f_;
    std::uint64_t      prochain_ = 0;  // Horloge_ms of the next display
};

// False when the user stopped the walk.
bool Parcourir(Gestion_Fichiers & f, const std::wstring & unite) {
    const Garde                        garde;
    const Application::Sablier         sablier;
    const Application::Entree_reservee entree(f.Arret);
    Progression                        progression(f);
    const auto                         suivi = [&](const Arbre & arbre, std::size_t index) {
        progression.Afficher(arbre, index);
        Application::Laisser_passer();
        return !variables.Arret_demande && !Application::Terminee();
    };
    const bool entier = Relever_arborescence(unite, suivi);
    // A search of files asked for the whole disk: it must not take a part of it for the whole.
    if (!entier) variables.Arborescence_perimee = true;
    return entier;
}
}  // namespace

std::optional<std::vector<std::wstring>> Chercher_repertoire(Gestion_Fichiers & f, const std::wstring & unite,
                                                             const std::wstring & nom) {
    std::vector<std::wstring> trouves;
    const std::wstring        cherche = Nom_saisi(nom);
    // No need to walk a disk for what no directory can be called.
    if (cherche.empty()) return trouves;
    const bool connue = Arborescence_valide(unite) && Arborescence_entiere();
    if (!connue && !Parcourir(f, unite)) return std::nullopt;
    const Arbre & arbre = Arborescence();
    for (auto i = Prochain_repertoire(arbre, cherche, 0, Majuscule); i;
         i      = Prochain_repertoire(arbre, cherche, *i + 1, Majuscule)) {
        trouves.push_back(arbre.Chemin(*i));
    }
    return trouves;
}
