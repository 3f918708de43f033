#include "visionneuse/seance.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "toolkit/boites.h"
#include "toolkit/ecran.h"
#include "visionneuse/arguments.h"
#include "visionneuse/libelles.h"

#include <algorithm>
#include <new>
#include <utility>

namespace {
constexpr int marge = 120;

// As message boxes break their lines.
std::wstring Pour_boite(std::wstring texte) {
    std::replace(texte.begin(), texte.end(), L'\n', L'\r');
    return texte;
}
}  // namespace

Seance::Occupation::Occupation(Seance & seance) : seance_(seance), entree_(seance.f.Arrêter) {
    seance_.occupee_ = true;
    seance_.arret_   = false;
    seance_.f.Arrêter.Enabled(true);
}

Seance::Occupation::~Occupation() {
    seance_.f.Arrêter.Enabled(false);
    seance_.occupee_ = false;
    // Once every handler under way is over.
    seance_.f.Apres_evenement([&seance = seance_] { seance.Suite(); });
}

Seance::Seance() {
    // What the file list and the search field can give up.
    f.Taille_minimale(f.Largeur_interieure() - 1500, 4200);
    for (const wchar_t * mode :
         {L"Texte (ANSI)", L"Texte (UTF-8)", L"Texte (UTF-16)", L"Texte (UTF-16 BE)", L"Hexadécimal"})
        f.Affichage.AddItem(mode);
    f.Arrêter.Enabled(false);
    f.Recherche.Limite(255);
    Brancher();
    Brancher_touches();
    f.Defaut(f.Suivant);
    f.Annulation(f.Fermer);
    compte_.Interval(15);
    veille_.Interval(500);
    Montrer(-1);
}

Seance::~Seance() { f.Vue.Contenu(nullptr); }

void Seance::Brancher() {
    f.Resize      = [this] { Disposer(); };
    f.QueryUnload = [this](bool & refus, Fermeture) {
        refus  = occupee_;
        arret_ = fermer_ = occupee_;
    };
    // Once chosen, the keys go through what is shown, not through the list.
    f.Fichiers.Click = [this] {
        Proteger([this] { Montrer(f.Fichiers.ListIndex()); });
        f.Vue.SetFocus();
    };
    f.Affichage.Click = [this] {
        Proteger([this] { Changer_mode(); });
        f.Vue.SetFocus();
    };
    f.Retour.Click = [this] { Proteger([this] { Reprendre_contenu(); }); };
    f.Vue.Defile   = [this] { Dire_position(); };
    f.Vue.Taille   = [this] { Proteger([this] { Reprendre_contenu(); }); };
    f.Vue.Panne    = [this](const std::exception & faute) { Panne(faute); };
    f.Ouvrir.Brancher([this] { Proteger([this] { Parcourir(); }); });
    f.Imprimer.Brancher([this] { Proteger([this] { Imprimer(); }); });
    f.Suivant.Brancher([this] { Proteger([this] { Chercher(); }); });
    f.Arrêter.Brancher([this] { arret_ = true; });
    f.Fermer.Brancher([] { Application::Terminer(); });
    compte_.Timer = [this] { Compter_lignes(); };
    veille_.Timer = [this] { Surveiller(); };
}

void Seance::Proteger(const std::function<void()> & corps) {
    std::wstring libelle;
    try {
        corps();
        return;
    } catch (const Erreur_execution & erreur) {
        libelle = Libelle_panne(erreur.numero, erreur.chemin, erreur.Texte());
    } catch (const std::bad_alloc &) {
        libelle = Libelle_panne(Numero::memoire, {}, {});
    } catch (const std::exception &) {
        libelle = Libelle_panne(Numero::entree_sortie, {}, {});
    }
    Dire_etat(L"");
    Message_boite(Pour_boite(libelle), Boite::exclamation, L"Visionneuse");
}

void Seance::Suite() {
    if (occupee_) return;
    if (fermer_) return Application::Terminer();
    if (en_panne_) {
        // A file that fails is let go of, so that its medium can be taken out.
        rangees_.reset();
        document_.reset();
    }
    if (!en_attente_.empty()) Proteger([this] { Ouvrir(std::exchange(en_attente_, {})); });
}

void Seance::Recevoir(Remise & remise) {
    remise.Accepter(f, [this](const std::wstring & texte) { Proteger([&] { Ouvrir(Deballer(texte)); }); });
}

void Seance::Montrer_fenetre() {
    const Rectangle_twips zone    = Zone_de_travail(f);
    const int             largeur = std::min(f.Width(), zone.droite - zone.gauche);
    const int             hauteur = std::min(f.Height(), zone.bas - zone.haut);
    f.Move((zone.gauche + zone.droite - largeur) / 2, (zone.haut + zone.bas - hauteur) / 2, largeur, hauteur);
    Disposer();
    f.Vue.SetFocus();
    f.Show();
}

// The lists, the field and the view take what the window grows by; the buttons stay at the right edge.
void Seance::Disposer() {
    if (f.WindowState() == Etat_fenetre::reduite) return;
    const int  largeur = f.Largeur_interieure();
    const int  hauteur = f.Hauteur_interieure();
    const int  droite  = largeur - marge - f.Fermer.Width();
    const int  milieu  = droite - 90 - f.Imprimer.Width();
    const int  gauche  = milieu - 90 - f.Ouvrir.Width();
    const auto mettre  = [](Controle & controle, int left, int width) {
        controle.Placer(left, controle.Top(), width, controle.Height());
    };
    mettre(f.Fichiers, f.Fichiers.Left(), gauche - marge - f.Fichiers.Left());
    mettre(f.Ouvrir, gauche, f.Ouvrir.Width());
    mettre(f.Imprimer, milieu, f.Imprimer.Width());
    mettre(f.Fermer, droite, f.Fermer.Width());
    mettre(f.Recherche, f.Recherche.Left(), milieu - 90 - f.Recherche.Left());
    mettre(f.Suivant, milieu, f.Suivant.Width());
    mettre(f.Arrêter, droite, f.Arrêter.Width());
    const int bas = hauteur - 60 - f.Etat.Height();
    f.Vue.Placer(0, f.Vue.Top(), largeur, std::max(bas - 60 - f.Vue.Top(), 600));
    f.Etat.Placer(marge, bas, largeur - 2 * marge - f.Position.Width(), f.Etat.Height());
    f.Position.Placer(largeur - marge - f.Position.Width(), bas, f.Position.Width(), f.Position.Height());
}
