#include "platform/chemins.h"
#include "platform/textes.h"
#include "toolkit/boites.h"
#include "toolkit/presse_papiers.h"
#include "visionneuse/recherche.h"
#include "visionneuse/seance.h"

namespace {
constexpr std::uint64_t tranche         = 262144;    // bytes between two looks at the events
constexpr std::uint64_t copie_maximale  = 16777216;  // bytes
constexpr int           majuscules_ctrl = 2;

namespace Raccourcis {
constexpr int f3 = 114, f4 = 115, f5 = 116;
}
}  // namespace

void Seance::Brancher_touches() {
    f.KeyDown = [this](int & touche, int majuscules) {
        bool prise = false;
        Proteger([&] {
            prise = majuscules == majuscules_ctrl ? Raccourci_ctrl(touche)
                    : majuscules == 0             ? Raccourci(touche)
                                                  : false;
        });
        if (prise) touche = 0;
    };
}

bool Seance::Raccourci(int touche) {
    switch (touche) {
    case Raccourcis::f3: Chercher(); return true;
    case Raccourcis::f4: Basculer_hexa(); return true;
    case Raccourcis::f5:
        if (courant_ >= 0) Montrer(courant_);
        return true;
    default: return false;
    }
}

bool Seance::Raccourci_ctrl(int touche) {
    const bool champ = f.Recherche.A_le_focus();
    switch (touche) {
    case 'F': Aller_chercher(); return true;
    case 'P': Imprimer(); return true;
    case 'O': Parcourir(); return true;
    case 'C':
        if (!champ) Copier();
        return !champ;
    case 'A':
        if (champ)
            f.Recherche.Selectionner(0, -1);
        else
            Tout_choisir();
        return true;
    default: return false;
    }
}

void Seance::Aller_chercher() {
    if (!Utilisable()) return;
    f.Recherche.SetFocus();
    f.Recherche.Selectionner(0, -1);
}

void Seance::Chercher() {
    if (!Utilisable()) return;
    const std::wstring texte = f.Recherche.Text();
    if (texte.empty()) return Aller_chercher();
    Chercher_texte(texte);
}

// Lets events run and tells how far the work has come.
bool Seance::Continuer(const std::wstring & travail, std::uint64_t position) {
    const std::uint64_t longueur = document_->Longueur();
    const double part = longueur == 0 ? 1 : static_cast<double>(position) / static_cast<double>(longueur);
    Dire_etat(travail + L" - " + std::to_wstring(static_cast<unsigned>(part * 100)) + L" %");
    Application::Laisser_passer();
    if (Application::Terminee()) arret_ = true;
    return !arret_;
}

// From what is selected, or from the top row, to the end, then from the beginning on.
void Seance::Chercher_texte(const std::wstring & texte) {
    Octets              octets   = document_->Autres_octets();
    const Decodeur      decodeur = document_->Decodage();
    const Plage_octets  choisie  = f.Vue.Selection();
    const std::uint64_t depart =
        choisie.Vide() ? f.Vue.Premiere() : choisie.debut + decodeur.Lire(octets, choisie.debut).octets;
    std::optional<Recherche::Plage> trouvee;
    bool                            reprise = false;
    {
        const Occupation occupation(*this);
        for (int tour = 0; tour < 2 && !trouvee && !arret_; ++tour) {
            reprise                    = tour == 1;
            const std::uint64_t de     = reprise ? document_->Debut() : depart;
            const std::uint64_t limite = reprise ? depart + 4 * texte.size() : document_->Longueur();
            Recherche           recherche(octets, decodeur, texte, Majuscule, de, limite);
            while (recherche.Avancer(tranche)) {
                if (!Continuer(L"Recherche", recherche.Position())) break;
            }
            trouvee = recherche.Trouvee();
        }
    }
    if (arret_) return Dire_etat(L"Recherche arrêtée.");
    Dire_etat(reprise && trouvee ? L"Recherche reprise au début du fichier." : Description());
    if (trouvee) return f.Vue.Montrer({trouvee->debut, trouvee->fin});
    Message_boite(L"Texte introuvable : \u00AB\u00A0" + texte + L"\u00A0\u00BB.", Boite::information,
                  L"Rechercher");
}

void Seance::Tout_choisir() {
    if (Utilisable()) f.Vue.Selectionner({document_->Debut(), document_->Longueur()});
}

void Seance::Copier() {
    if (!Utilisable()) return;
    const Plage_octets choisie = f.Vue.Selection();
    if (choisie.Vide()) return;
    if (choisie.fin - choisie.debut > copie_maximale) {
        Message_boite(L"La sélection est trop longue pour être copiée (16 Mo au plus).", Boite::exclamation,
                      L"Copier");
        return;
    }
    if (!Copier_au_presse_papiers(document_->Texte(choisie.debut, choisie.fin)))
        Message_boite(L"Le presse-papiers n'est pas disponible.", Boite::exclamation, L"Copier");
}
