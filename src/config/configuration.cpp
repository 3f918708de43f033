#include "config/configuration.h"

#include "app/cles_profil.h"
#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "app/settings.h"
#include "config/ligne_conf.h"
#include "forms/config_korvane.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/profil.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {
constexpr int             decalage = 1200;  // twips from the main window's corner, to the right and down
constexpr const wchar_t * win_ini  = L"WIN.INI";

// What the window shows of a section.
struct Rubrique {
    Section_conf    genre;
    const wchar_t * section;
    const wchar_t * titre;
    const wchar_t * label;
};
constexpr Rubrique rubriques[] = {
    {Section_conf::boutons, Section::boutons, L"Liste des Boutons", L"Nouveau Bouton"},
    {Section_conf::selections, Section::selections, L"Liste des Sélections", L"Nouvelle Sélection"},
    {Section_conf::associations, Section::extensions, L"Liste des Associations", L"Nouvelle Association"}};

Section_conf Genre_courant(const Config_Korvane & w) {
    const auto courante = std::find_if(std::begin(rubriques), std::end(rubriques),
                                       [&](const Rubrique & r) { return w.Section == r.section; });
    return courante->genre;
}

// A step on the file being edited, which the report of an error names.
void Operer(const Config_Korvane & w, const wchar_t * etape, const std::function<void()> & corps,
            const std::function<void()> & remise = {}) {
    variables.Fichier_courant = Nom_du_chemin(w.Fichier);
    Pieger(etape, corps, remise);
    variables.Fichier_courant.clear();
}

std::vector<std::wstring> Cles(const Config_Korvane & w) {
    return Decouper_cles(Lire_cles(w.Fichier, w.Section.c_str()));
}

std::vector<std::wstring> Lignes(const Config_Korvane & w) {
    Exiger_lisible(w.Fichier);
    std::vector<std::wstring> lignes;
    for (const std::wstring & cle : Cles(w)) {
        const std::wstring valeur = Lire_profil(w.Fichier, w.Section.c_str(), cle, L"", tampon_valeur);
        if (!valeur.empty()) lignes.push_back(Ecrire_ligne({cle, valeur}));
    }
    return lignes;
}

void Lister(Config_Korvane & w) {
    w.Tip.Visible(false);
    w.Effacer.Enabled(false);
    w.Liste_conf.Clear();
    w.Liste_conf.Ajouter(Lignes(w));
}

std::wstring Cle_de_liste(const Config_Korvane & w, int index) {
    return Decouper_ligne(w.Liste_conf.List(index)).cle;
}

// The list follows what was written: some systems keep a section in an order of their own. What another program changed meanwhile
// shows too.
void Suivre_changements(Config_Korvane & w, const std::vector<Changement_profil> & changements) {
    w.Tip.Visible(false);
    w.Effacer.Enabled(false);
    for (const Changement_profil & changement : changements) {
        for (int i = w.Liste_conf.ListCount() - 1; i >= 0; --i) {
            if (Cle_de_liste(w, i) == changement.cle) w.Liste_conf.RemoveItem(i);
        }
        if (changement.valeur) w.Liste_conf.AddItem(Ecrire_ligne({changement.cle, *changement.valeur}));
    }
    w.Liste_conf.Tout_selectionner(false);
    std::vector<std::wstring> montrees, lues = Lignes(w);
    for (int i = 0; i < w.Liste_conf.ListCount(); ++i) montrees.push_back(w.Liste_conf.List(i));
    std::sort(montrees.begin(), montrees.end());
    std::sort(lues.begin(), lues.end());
    if (montrees != lues) Lister(w);
}

void Montrer_rubrique(Config_Korvane & w, const Rubrique & rubrique) {
    w.Section = rubrique.section;
    w.Fichier = rubrique.genre == Section_conf::associations ? win_ini : variables.Fichier_ini;
    w.Caption(rubrique.titre);
    w.Label_conf.Caption(rubrique.label);
    w.Ligne_conf.Text(L"");
    w.Ligne_conf.SetFocus();
    Operer(w, L"CONFIG-Lecture section", [&] { Lister(w); });
}

std::wstring Cle_choisie(const Config_Korvane & w) { return Cle_de_liste(w, w.Liste_conf.ListIndex()); }

void Liste_conf_Click(Config_Korvane & w) {
    if (w.Rechoisit || w.Liste_conf.ListIndex() < 0) return;
    w.Ligne_conf.Text(w.Liste_conf.List(w.Liste_conf.ListIndex()));
    w.Ligne_conf.Selectionner(0, 0);
    w.Effacer.Enabled(true);
}

// After a failure: the line of that key stays the one to be changed or erased, and the field what it is.
void Lister_et_rechoisir(Config_Korvane & w, const std::wstring & cle) {
    Lister(w);
    for (int i = 0; i < w.Liste_conf.ListCount(); ++i) {
        if (cle.empty() || Cle_de_liste(w, i) != cle) continue;
        w.Rechoisit = true;
        w.Liste_conf.ListIndex(i);
        w.Rechoisit = false;
        return w.Effacer.Enabled(true);
    }
}

void Ligne_conf_Change(Config_Korvane & w) {
    const Boutons_permis permis = Permettre(w.Ligne_conf.Text(), Genre_courant(w));
    w.Parcourir.Enabled(permis.parcourir);
    w.Enregistrer.Enabled(permis.enregistrer);
}

void Parcourir_Click(Config_Korvane & w) {
    Pieger(L"CONFIG-Parcourir", [&] {
        const std::wstring ligne = w.Ligne_conf.Text();
        const std::wstring cle   = Decouper_ligne(ligne).cle;
        const Section_conf genre = Genre_courant(w);
        const std::wstring fichier =
            genre == Section_conf::boutons
                ? Choisir_fichier(L"Parcourir pour le bouton '" + cle + L"'",
                                  L"Tous les fichiers (*.*)|*.*|Programmes|*.exe; *.com; *.bat; *.pif|"
                                  L"Fichiers texte|*.txt; *.doc; *.wri; *.bat; *.ini")
                : Choisir_fichier(L"Parcourir pour les fichiers de type '" + cle + L"'",
                                  L"Programmes|*.exe; *.com; *.bat; *.pif|Tous les fichiers (*.*)|*.*");
        if (!fichier.empty()) w.Ligne_conf.Text(Composer_ligne(ligne, fichier, genre));
    });
    w.Ligne_conf.SetFocus();
    // Where " ?" is typed next.
    w.Ligne_conf.Selectionner(static_cast<int>(w.Ligne_conf.Text().size()), 0);
}

// A line is the key of one section of one file: the "?" that would stand for such a character would name another program.
bool Tient_dans_le_fichier(const Config_Korvane & w) {
    const std::wstring ligne = w.Ligne_conf.Text();
    for (std::size_t i = 0; i < ligne.size(); ++i) {
        const bool         paire     = ligne[i] >= 0xD800 && ligne[i] < 0xDC00 && i + 1 < ligne.size();
        const std::wstring caractere = ligne.substr(i, paire ? 2 : 1);
        i += caractere.size() - 1;
        if (Tient_en_ansi(caractere)) continue;
        Bip();
        Message_boite(L"Le caractère '" + caractere + L"' ne peut pas être enregistré dans " +
                          std::wstring(Nom_du_chemin(w.Fichier)) +
                          L" :\rremplacez-le et relancez l'opération.",
                      Boite::ok | Boite::exclamation, titre_gestionnaire);
        return false;
    }
    return true;
}

// The line goes to the end of its section. A former key leaves after the new one is written, unless both are one to the system.
std::vector<Changement_profil> Changements(const Config_Korvane & w, const Ligne_conf & ligne) {
    const std::wstring             choisie = Cle_choisie(w);
    const bool                     renomme = Comparer_sans_casse(choisie, ligne.cle) != 0;
    std::vector<Changement_profil> changements;
    for (const std::wstring & cle : Cles(w)) {
        if (Meme_cle(cle, ligne.cle) || (!renomme && cle == choisie))
            changements.push_back({cle, std::nullopt});
    }
    changements.push_back({ligne.cle, ligne.valeur});
    if (renomme && !choisie.empty()) changements.push_back({choisie, std::nullopt});
    return changements;
}

void Noter_changement(Config_Korvane & w) { w.Modifie = w.Modifie || w.Fichier != win_ini; }

void Enregistrer_Click(Config_Korvane & w) {
    const std::wstring choisie = Cle_choisie(w);
    if (Tient_dans_le_fichier(w)) {
        Operer(
            w, L"CONFIG-Enregistrer",
            [&] {
                const auto changements = Changements(w, Decouper_ligne(w.Ligne_conf.Text()));
                Changer_profil(w.Fichier, w.Section.c_str(), changements);
                Noter_changement(w);
                w.Ligne_conf.Text(L"");
                Suivre_changements(w, changements);
                w.Liste_conf.TopIndex(w.Liste_conf.ListCount() - 1);
            },
            [&] { Lister_et_rechoisir(w, choisie); });
    }
    w.Ligne_conf.SetFocus();
}

void Effacer_Click(Config_Korvane & w) {
    const std::wstring choisie = Cle_choisie(w);
    if (choisie.empty()) return;
    Operer(
        w, L"CONFIG-Effacer",
        [&] {
            const std::vector<Changement_profil> changements{{choisie, std::nullopt}};
            Changer_profil(w.Fichier, w.Section.c_str(), changements);
            Noter_changement(w);
            Suivre_changements(w, changements);
        },
        [&] { Lister_et_rechoisir(w, choisie); });
    w.Ligne_conf.SetFocus();
}

void Fin_Click(Config_Korvane & w) {
    if (w.Modifie)
        Message_boite(L"KORVANE doit être relancé pour prendre en compte les modifications effectuées.",
                      Boite::ok | Boite::information, titre_gestionnaire);
    w.Tip.Visible(false);
    Fermer_fille(w);
}

void Brancher(Config_Korvane & w) {
    Brancher_fille(w, aide_fenetre_conf);
    Brancher_astuce(w, w.Liste_conf, w.Tip);
    w.Boutons.Click    = [&w] { Montrer_rubrique(w, rubriques[0]); };
    w.Sélections.Click = [&w] { Montrer_rubrique(w, rubriques[1]); };
    w.Associer.Click   = [&w] { Montrer_rubrique(w, rubriques[2]); };
    w.Ligne_conf.Limite(static_cast<int>(plus_longue_valeur));
    w.Ligne_conf.Change = [&w] { Ligne_conf_Change(w); };
    w.Liste_conf.Click  = [&w] { Liste_conf_Click(w); };
    // Goes on with the line chosen, where Enter would save it as it is.
    w.Liste_conf.KeyPress = [&w](wchar_t & caractere) {
        if (caractere != Touche::entree) return;
        caractere = 0;
        w.Ligne_conf.SetFocus();
    };
    w.Parcourir.Brancher([&w] { Parcourir_Click(w); });
    w.Enregistrer.Brancher([&w] { Enregistrer_Click(w); });
    w.Effacer.Brancher([&w] { Effacer_Click(w); });
    w.Fin.Brancher([&w] { Fin_Click(w); });
    w.Defaut(w.Enregistrer);
    w.Annulation(w.Fin);
}

Config_Korvane & Fenetre_configuration() {
    if (!fenetres.config_korvane) {
        auto nouvelle = std::make_unique<Config_Korvane>();
        Brancher(*nouvelle);
        fenetres.config_korvane = std::move(nouvelle);
    }
    return static_cast<Config_Korvane &>(*fenetres.config_korvane);
}

void Form_Load(Config_Korvane & w) {
    Placer_fille(w, decalage, decalage);
    w.Modifie = false;
    w.Parcourir.Enabled(false);
    w.Enregistrer.Enabled(false);
    // The option of the last time shows still: choosing it again would tell nothing.
    if (w.Boutons.Value())
        Montrer_rubrique(w, rubriques[0]);
    else
        w.Boutons.Value(true);
}

void Configurer_Click() {
    if (!Accepter_commande(L"CONFIGURER\rles boutons, les sélections et les associations")) return;
    Pieger(L"CONFIG", [] {
        Config_Korvane & w = Fenetre_configuration();
        Form_Load(w);
        w.Show_modal(Principale());
    });
}
}  // namespace

void Brancher_configuration(Gestion_Fichiers & f) { f.Configurer.Brancher(Configurer_Click); }
