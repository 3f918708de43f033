#include "recycle/corbeille.h"

#include "app/garde.h"
#include "app/globals.h"
#include "app/settings.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "platform/profil.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "recycle/fiche.h"
#include "recycle/tirage.h"
#include "toolkit/application.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace {

constexpr const wchar_t * nom_index   = L"KORVANE.CRB";
constexpr const wchar_t * nom_reecrit = L"KORVANE.NEW";
// Characters of the read buffer, terminator included.
constexpr unsigned      tampon_total        = 9;
constexpr unsigned      tampon_total_entier = 16;  // what was written is compared whole
constexpr std::uint64_t plus_grand          = std::numeric_limits<std::int32_t>::max();

std::vector<std::wstring> Lieux() {
    std::vector<std::wstring> lieux{Repertoire_systeme()};
    const std::wstring        donnees = Repertoire_donnees_locales();
    if (!donnees.empty()) lieux.push_back(Joindre(donnees, L"KORVANE"));
    return lieux;
}

void Lire_total() {
    if (variables.Total_corbeille != 0) return;
    const std::wstring total =
        Lire_profil(variables.Fichier_ini, Section::corbeille, Cle::total, L"0", tampon_total);
    variables.Total_corbeille = static_cast<std::int32_t>(std::max(Valeur(total), 0.0));
}

bool Index_existe() {
    const std::vector<std::wstring> lieux = Lieux();
    return std::any_of(lieux.begin(), lieux.end(), [](const std::wstring & lieu) {
        return Fichier_existe(Joindre(lieu, nom_index)) || Fichier_existe(Joindre(lieu, nom_reecrit));
    });
}

// The store for one step; a bin that is not in use is closed after it, and its total does not count.
class Ouverture {
public:
    Ouverture() {
        // Named by the report, should the index not be readable.
        variables.Fichier_courant = nom_index;
        if (variables.Corbeille_active)
            Exiger_corbeille();
        else if (!Magasin_corbeille().Ouvert())
            Magasin_corbeille().Ouvrir(Lieux());
        variables.Fichier_courant.clear();
    }
    ~Ouverture() {
        if (!variables.Corbeille_active) Magasin_corbeille().Fermer();
    }
    Ouverture(const Ouverture &)             = delete;
    Ouverture & operator=(const Ouverture &) = delete;
};

// How many of them the total has room for.
std::size_t Tiennent(const std::vector<Depot> & depots) {
    auto        total = static_cast<std::uint64_t>(std::max(variables.Total_corbeille, 0));
    std::size_t rang  = 0;
    while (rang < depots.size() && depots[rang].taille <= plus_grand - total) total += depots[rang++].taille;
    return rang;
}

Limites_corbeille Limites() { return {variables.Taille_corbeille, variables.Temps_corbeille}; }

// A name that the bin may have given, on some day.
bool Est_un_code(std::wstring_view nom) {
    Fiche fiche;
    fiche.code = nom;
    return Numero_du_jour(nom, fiche.Jour()).has_value();
}

bool Est_rangee(const Fiche & fiche, const std::wstring & chemin) {
    return Comparer_sans_casse(fiche.code, std::wstring(Nom_du_chemin(chemin))) == 0 &&
           (Comparer_sans_casse(fiche.Chemin_code(), chemin) == 0 ||
            Meme_fichier(fiche.Chemin_code(), chemin));
}

// Another program has its turn: windows are drawn meanwhile, and no command starts.
void Attendre_son_tour() {
    const Garde garde;
    Application::Laisser_passer();
}

}  // namespace

Magasin & Magasin_corbeille() {
    static Magasin magasin(Attendre_son_tour);
    return magasin;
}

void Ouvrir_corbeille() {
    Magasin_corbeille().Fermer();
    Tenter(Exiger_corbeille);
}

void Exiger_limites() {
    if (variables.Limites_corbeille_lues) return;
    Exiger_lisible(variables.Fichier_ini);
    Lire_limites_corbeille();
    variables.Limites_corbeille_lues = true;
    if (variables.Corbeille_active) Ouvrir_corbeille();
}

void Exiger_corbeille() {
    Magasin & magasin = Magasin_corbeille();
    if (magasin.Ouvert()) return;
    variables.Chemin_corbeille.clear();
    Lire_total();
    magasin.Ouvrir(Lieux());
    variables.Chemin_corbeille = Joindre(magasin.Repertoire(), L"KORVANE.");
    Recalculer_total();
}

bool Laisser_continuer() {
    Application::Laisser_passer();
    return !variables.Arret_demande && !Application::Terminee();
}

void Purger_corbeille() {
    Magasin & magasin = Magasin_corbeille();
    if (!magasin.Ouvert()) return;
    const Garde garde;
    variables.Date_du_jour = Jour_serie();
    if (!variables.Limite_corbeille_incorrecte)
        Tenter([&] { magasin.Purger(Limites(), variables.Date_du_jour, Laisser_continuer); });
    Recalculer_total();
    Tenter(Enregistrer_total);
}

void Recalculer_total() {
    variables.Total_corbeille = static_cast<std::int32_t>(std::min(Magasin_corbeille().Total(), plus_grand));
}

void Renommer_repertoire_suivi(const std::wstring & ancien, const std::wstring & nouveau) {
    const auto renommer = [&] { Renommer_fichier(ancien, nouveau); };
    if (!Index_existe()) return renommer();
    const Ouverture ouverture;
    Magasin_corbeille().Suivre_repertoire(ancien, nouveau, renommer);
}

void Exiger_hors_corbeille(const std::wstring & chemin) {
    if (!Est_un_code(Nom_du_chemin(chemin)) || !Index_existe()) return;
    const std::wstring courant = variables.Fichier_courant;
    const Ouverture    ouverture;
    Magasin_corbeille().Relire();
    const std::vector<Fiche> & fiches = Magasin_corbeille().Fiches();
    if (std::any_of(fiches.begin(), fiches.end(), [&](const Fiche & f) { return Est_rangee(f, chemin); }))
        throw Erreur_execution(Numero::acces_fichier, 0, chemin);
    variables.Fichier_courant = courant;
}

void Enregistrer_total() {
    const std::wstring total = std::to_wstring(variables.Total_corbeille);
    // Most starts change nothing: the settings are not written again for that.
    if (Lire_profil(variables.Fichier_ini, Section::corbeille, Cle::total, L"", tampon_total_entier) == total)
        return;
    Ecrire_profil(variables.Fichier_ini, Section::corbeille, Cle::total, total);
}

std::size_t Deposer_fichiers(const std::vector<Depot> & depots, const std::function<bool()> & continuer) {
    Exiger_corbeille();
    Recalculer_total();
    const std::size_t        tiennent = Tiennent(depots);
    const std::vector<Depot> lot(depots.begin(), depots.begin() + static_cast<std::ptrdiff_t>(tiennent));
    std::size_t              deposes = 0;
    variables.Date_du_jour           = Jour_serie();
    try {
        Magasin_corbeille().Deposer(lot, variables.Date_du_jour, continuer, deposes);
    } catch (...) {
        Recalculer_total();
        throw;
    }
    Recalculer_total();
    if (deposes == tiennent && tiennent < depots.size())
        throw Erreur_execution(Numero::depassement, 0,
                               Joindre(depots[tiennent].repertoire, depots[tiennent].nom));
    return deposes;
}

bool Plus_grand_que_corbeille(std::uint64_t taille) {
    return variables.Taille_corbeille > 0 &&
           taille > static_cast<std::uint64_t>(variables.Taille_corbeille) * 1024;
}
