#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"
#include "visionneuse/libelles.h"
#include "visionneuse/seance.h"

#include <new>
#include <utility>

namespace {
constexpr std::uint64_t tranche_compte = 262144;  // bytes counted between two looks at the clock
constexpr std::uint64_t duree_compte   = 10;      // ms at a time

std::wstring Entree_de(const std::wstring & chemin) {
    return std::wstring(Nom_du_chemin(chemin)) + L"  -  " + std::wstring(Repertoire_du_chemin(chemin));
}
}  // namespace

bool Seance::Sans_casse::operator()(const std::wstring & a, const std::wstring & b) const {
    return Comparer_sans_casse(a, b) < 0;
}

// A path that cannot be completed is listed as it was given: showing it will say what is wrong with it.
int Seance::Ajouter(const std::wstring & chemin) {
    std::wstring complet = chemin;
    Tenter([&] { complet = Chemin_complet(chemin); });
    const auto [place, nouveau] = rangs_.try_emplace(complet, static_cast<int>(fichiers_.size()));
    if (!nouveau) return place->second;
    fichiers_.push_back(complet);
    f.Fichiers.AddItem(Entree_de(complet));
    return place->second;
}

void Seance::Ouvrir(const std::vector<std::wstring> & fichiers) {
    if (occupee_) {
        en_attente_.insert(en_attente_.end(), fichiers.begin(), fichiers.end());
        return;
    }
    int premier = -1;
    for (const std::wstring & fichier : fichiers) {
        const int rang = Ajouter(fichier);
        if (premier < 0) premier = rang;
    }
    if (premier >= 0) Montrer(premier);
}

void Seance::Montrer(int rang) {
    if (occupee_) return f.Fichiers.Choisir(courant_);
    courant_ = rang;
    // The view lets go of the rows before they go.
    f.Vue.Contenu(nullptr);
    rangees_.reset();
    document_.reset();
    en_panne_ = false;
    compte_.Enabled(false);
    veille_.Enabled(false);
    f.Caption(Titre_fenetre(rang < 0 ? L"" : fichiers_[static_cast<std::size_t>(rang)]));
    f.Fichiers.Choisir(rang);
    f.Fichiers.Enabled(!fichiers_.empty());
    try {
        if (rang >= 0) document_ = std::make_unique<Document>(fichiers_[static_cast<std::size_t>(rang)]);
        Montrer_contenu(0, true);
    } catch (const std::exception & faute) {
        Panne(faute);
    }
}

void Seance::Montrer_contenu(std::uint64_t position, bool nouveau) {
    const bool montrable = document_ && !en_panne_;
    for (Controle * controle : std::initializer_list<Controle *>{&f.Affichage, &f.Retour, &f.Recherche})
        controle->Enabled(montrable);
    f.Suivant.Enabled(montrable);
    f.Imprimer.Enabled(montrable);
    if (!montrable) {
        f.Affichage.Choisir(-1);
        f.Vue.Avis(document_ ? L"" : L"Aucun fichier n'est ouvert.");
        return Dire_etat(L"");
    }
    f.Affichage.Choisir(static_cast<int>(document_->Mode()));
    compte_.Enabled(true);
    veille_.Enabled(true);
    auto avant = std::exchange(
        rangees_,
        document_->Rangees(f.Retour.Value() && document_->Mode() != Affichage::hexa ? f.Vue.Colonnes() : 0));
    if (document_->Vide())
        f.Vue.Avis(L"Ce fichier est vide.");
    else if (nouveau)
        f.Vue.Contenu(rangees_.get(), position);
    else
        f.Vue.Remplacer(rangees_.get());
    Dire_etat(Description());
    Dire_position();
}

void Seance::Reprendre_contenu() {
    if (document_ && !en_panne_) Montrer_contenu(f.Vue.Premiere(), false);
}

// What is selected is made of whole characters in the new mode too: from there the search goes on.
void Seance::Passer_a(Affichage mode) {
    document_->Mode(mode);
    const Plage_octets choisie = f.Vue.Selection();
    f.Vue.Selectionner({document_->Recaler(choisie.debut), document_->Recaler(choisie.fin)});
    Reprendre_contenu();
}

void Seance::Changer_mode() {
    if (Utilisable()) Passer_a(static_cast<Affichage>(f.Affichage.ListIndex()));
}

void Seance::Basculer_hexa() {
    if (!Utilisable()) return;
    const bool      hexa = document_->Mode() == Affichage::hexa;
    const Affichage texte =
        document_->Mode_reconnu() == Affichage::hexa ? Affichage::ansi : document_->Mode_reconnu();
    Passer_a(hexa ? texte : Affichage::hexa);
}

// The other files stay usable; this one may be read again with F5.
void Seance::Panne(const std::exception & faute) {
    const std::wstring chemin = courant_ < 0 ? L"" : fichiers_[static_cast<std::size_t>(courant_)];
    en_panne_                 = true;
    compte_.Enabled(false);
    veille_.Enabled(false);
    Tenter([&] { Montrer_contenu(0, true); });
    if (const auto * erreur = dynamic_cast<const Erreur_execution *>(&faute))
        f.Vue.Avis(Libelle_panne(erreur->numero, chemin, erreur->Texte()));
    else if (dynamic_cast<const std::bad_alloc *>(&faute) != nullptr)
        f.Vue.Avis(Libelle_panne(Numero::memoire, chemin, {}));
    else
        f.Vue.Avis(Libelle_panne(Numero::entree_sortie, chemin, {}));
    f.Position.Caption(L"");
    f.Apres_evenement([this] { Suite(); });
}

void Seance::Dire_etat(const std::wstring & texte) { f.Etat.Caption(texte); }

std::wstring Seance::Description() const {
    const std::uint64_t longueur = document_->Longueur();
    return Format_milliers(longueur) + (longueur > 1 ? L" octets" : L" octet");
}

void Seance::Dire_position() {
    if (!document_ || en_panne_ || document_->Vide()) return f.Position.Caption(L"");
    Compte_lignes compte;
    // A count that fails says nothing: the rows that show do.
    Tenter([&] {
        Index_lignes * lignes = document_->Lignes();
        if (lignes == nullptr) return;
        if (const auto ligne = lignes->Ligne_de(f.Vue.Premiere())) compte.courante = Format_milliers(*ligne);
        if (lignes->Complet()) compte.total = Format_milliers(lignes->Nombre());
    });
    f.Position.Caption(Libelle_position(compte, f.Vue.Apres_derniere(), document_->Longueur()));
}

void Seance::Compter_lignes() {
    if (!Utilisable()) return;
    Index_lignes * lignes = document_->Lignes();
    bool           reste  = lignes != nullptr && !lignes->Complet();
    // What cannot be read is told where it is shown. It is not tried again: each attempt may take the medium seconds.
    const bool lisible = Tenter([&] {
        const std::uint64_t fin = Horloge_ms() + duree_compte;
        while (reste && Horloge_ms() < fin) reste = lignes->Avancer(tranche_compte);
    });
    if (reste && lisible) return;
    compte_.Enabled(false);
    Dire_position();
}

// A file that another program goes on writing, or cuts short, is shown as it is now.
void Seance::Surveiller() {
    if (!Utilisable()) return;
    try {
        if (document_->Suivre()) Reprendre_contenu();
    } catch (const std::exception & faute) {
        Panne(faute);
    }
}

void Seance::Parcourir() {
    const std::wstring choisi = Choisir_fichier(L"Ouvrir un fichier", L"Tous les fichiers (*.*)|*.*");
    if (!choisi.empty()) Ouvrir({choisi});
}
