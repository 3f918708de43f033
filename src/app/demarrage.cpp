#include "app/demarrage.h"

#include "app/fenetre_principale.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/routines.h"
#include "app/settings.h"
#include "browser/boutons.h"
#include "browser/panneaux.h"
#include "forms/apropos.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "platform/profil.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "recycle/corbeille.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"
#include "toolkit/ecran.h"

namespace {
constexpr std::uint64_t   duree_banniere   = 3000;  // ms
constexpr unsigned        pas_attente      = 50;    // ms
constexpr int             haut_fenetre     = 100;   // twips
constexpr int             epaisseur_lignes = 3;
constexpr Couleur         fond_bandeau     = 0xF5E9DC;  // pale blue: the icon stands out from it
constexpr const wchar_t * etape            = L"INIT KORVANE";

void Preparer_controles(Gestion_Fichiers & f) {
    for (Ligne * ligne : {&f.Ligne1, &f.Ligne2, &f.Ligne3}) ligne->BorderWidth(epaisseur_lignes);
    for (Controle * controle : std::initializer_list<Controle *>{
             &f.Tip, &f.Fichier_sél, &f.Créer, &f.Supprimer, &f.En_cours, &f.Ligne_commande, &f.Jauge,
             &f.Arret, &f.Bouton_suite, &f.Liste_sel}) {
        controle->Visible(false);
    }
    for (Ligne & bord : f.Ligne_jauge) bord.Visible(false);
    for (Bouton_commande & bouton : f.Bouton) bouton.Visible(false);
    f.Sélection_fichiers.Text(L"*.*");
}

void Placer_fenetre(Gestion_Fichiers & f) {
    Lire_bordure();
    f.Move((Largeur_ecran() - f.Width()) / 2, haut_fenetre);
    variables.Largeur_fenetre = f.Width() + static_cast<int>(variables.Bordure);
    variables.Hauteur_fenetre = f.Height() + static_cast<int>(variables.Bordure);
    if (Demarrage_iconise()) f.WindowState(Etat_fenetre::reduite);
}

// The SOURCE directory's path, given to all that shows it and to the DESTINATION pane.
void Suivre_source(Gestion_Fichiers & f) {
    const std::wstring chemin = f.Répertoire_srce.Path();
    f.Fichier_srce.Path(chemin);
    f.Chemin_srce.Text(chemin);
    f.Répertoire_dest.Path(chemin);
    f.Fichier_dest.Path(chemin);
    f.Chemin_dest.Text(chemin);
}

void Ouvrir_courant(Gestion_Fichiers & f) {
    const std::wstring courant = Repertoire_courant();
    f.Répertoire_srce.Path(courant);
    Suivre_source(f);
    f.Chemin_srce.Text(Minuscules(courant));
    f.Chemin_dest.Text(Minuscules(courant));
}

void Ouvrir_racine(Gestion_Fichiers & f, const std::wstring & unite) {
    f.Répertoire_srce.Path(unite.substr(0, 2) + L"\\");
    Suivre_source(f);
}

void Ouvrir_choisi(Gestion_Fichiers & f) {
    const std::wstring choisi = Minuscules(variables.Repertoire_initial);
    f.Répertoire_srce.Path(choisi);
    Suivre_source(f);
    if (choisi.size() < 2 || choisi[1] != L':') return;
    f.Unité_srce.Drive(choisi);
    f.Unité_dest.Drive(choisi);
    // A drive's change opens its current directory, which a path too long to be current is not.
    f.Répertoire_srce.Path(choisi);
    f.Répertoire_dest.Path(choisi);
}

void Ouvrir_repertoire_initial(Gestion_Fichiers & f) {
    Lire_repertoire_initial();
    if (variables.Repertoire_initial == L"COURANT") return Ouvrir_courant(f);
    if (variables.Repertoire_initial == L"RACINE") return Ouvrir_racine(f, f.Unité_srce.Drive());
    Ouvrir_choisi(f);
}

// What both panes show when the initial directory cannot be opened: a root that can.
void Ouvrir_racine_de_secours(Gestion_Fichiers & f) {
    if (Tenter([&] { Ouvrir_racine(f, f.Unité_srce.Drive()); })) return;
    Tenter([&] { Ouvrir_racine(f, variables.Unite_programme); });
    f.Unité_srce.Drive_sans_evenement(variables.Unite_programme);
    f.Unité_dest.Drive_sans_evenement(variables.Unite_programme);
}

void Charger_selections(Gestion_Fichiers & f) {
    for (const std::wstring & cle : Cles_section(Section::selections)) {
        f.Sélection_fichiers.AddItem(cle);
        f.Liste_sel.AddItem(Valeur_cle(Section::selections, cle));
    }
}

void Ouvrir_et_purger_corbeille() {
    if (!variables.Corbeille_active) return;
    Ouvrir_corbeille();
    Purger_corbeille();
}

// Defaults in the place of settings that are there would switch the recycle bin off without a word. Read once the report is closed,
// they may be free again.
void Exiger_reglages() {
    const auto lisibles       = [] { Exiger_lisible(variables.Fichier_ini); };
    bool       lus            = false;
    variables.Fichier_courant = Nom_du_chemin(variables.Fichier_ini);
    Pieger(etape, [&] {
        lisibles();
        lus = true;
    });
    variables.Fichier_courant.clear();
    variables.Limites_corbeille_lues = lus || Tenter(lisibles);
    Lire_iconise();
}

// Each step has its own trap: a failing one is reported and the next ones still run.
void Executer_etapes(Gestion_Fichiers & f) {
    Pieger(etape, [&] { Preparer_controles(f); });
    Exiger_reglages();
    Pieger(etape, [&] {
        Placer_fenetre(f);
        Situer_profil();
        Lire_options_commandes();
        Lire_limites_corbeille();
    });
    Pieger(etape, Ouvrir_et_purger_corbeille);
    Pieger(etape, [&] {
        Lire_couleur();
        Appliquer_couleur(static_cast<int>(Valeur(variables.Option_couleur)));
    });
    Pieger(
        etape, [&] { Ouvrir_repertoire_initial(f); }, [&] { Ouvrir_racine_de_secours(f); });
    Pieger(etape, [&] { Fichier_srce_PathChange(); });
    Pieger(etape, [&] { Charger_selections(f); });
    Pieger(etape, [&] { Charger_boutons(f); });
    f.Titre_sauve                  = f.Caption();
    variables.Arborescence_perimee = true;
    variables.Destination_perimee  = true;
    Afficher_espace_libre();
    Retablir_fenetre();
}

void Attendre_banniere(std::uint64_t debut) {
    while (!Application::Terminee() && Horloge_ms() - debut < duree_banniere)
        Application::Patienter(pas_attente);
}
}  // namespace

std::uint64_t Montrer_banniere(Apropos & apropos) {
    Situer_profil();
    Lire_iconise();
    apropos.Icone.Picture(Image::Icone::programme);
    apropos.Icone.BackColor(fond_bandeau);
    apropos.Bandeau.BackColor(fond_bandeau);
    apropos.Bandeau.BorderColor(fond_bandeau);
    apropos.OK.Visible(false);
    apropos.OK.Brancher([&apropos] { apropos.Hide(); });
    apropos.Defaut(apropos.OK);
    apropos.Annulation(apropos.OK);
    apropos.Move((Largeur_ecran() - apropos.Width()) / 2, (Hauteur_ecran() - apropos.Height()) / 2);
    if (Demarrage_iconise()) apropos.WindowState(Etat_fenetre::reduite);
    apropos.Show();
    return Horloge_ms();
}

void Signaler_deja_charge() {
    Message_boite(L"Le gestionnaire de fichiers est déjà chargé.", Boite::ok, titre_gestionnaire);
}

void Charger(Gestion_Fichiers & f, Apropos & apropos, std::uint64_t debut_banniere) {
    const Garde garde;
    {
        const Application::Sablier sablier;
        Executer_etapes(f);
        if (!Demarrage_iconise()) Attendre_banniere(debut_banniere);
    }
    // The main window first: with no window of its own in front, the program would lose the foreground.
    f.Répertoire_srce.SetFocus();
    f.Show();
    apropos.Hide();
}
