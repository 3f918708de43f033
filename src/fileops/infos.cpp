#include "fileops/infos.h"

#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/garde.h"
#include "app/globals.h"
#include "browser/selection.h"
#include "fileops/resume.h"
#include "forms/gestion_fichiers.h"
#include "forms/info_fichiers.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"

#include <array>

namespace {
constexpr int         decalage = 430;  // twips from the main window's corner, before the frame's allowance
constexpr std::size_t position_nombre = 5;  // characters of the message line that hold the count

struct Case_attribut {
    Case_a_cocher & coche;
    std::uint32_t   attribut;
};

std::array<Case_attribut, 4> Cases(Info_Fichiers & w) {
    return {{{w.Caché, Attribut::cache},
             {w.Lecture, Attribut::lecture},
             {w.Modifié, Attribut::modifie},
             {w.Système, Attribut::systeme}}};
}

// Nothing is known of the file, so that nothing of another one can be taken for it.
void Vider(Info_Fichiers & w) {
    for (Champ_texte * champ : {&w.Taille, &w.Date_fichier, &w.Heure}) champ->Text(L"");
    for (const Case_attribut & c : Cases(w)) {
        c.coche.Value(false);
        c.coche.Enabled(false);
    }
    w.Attributs_changes = false;
}

void Montrer_informations(Info_Fichiers & w) {
    const std::wstring &    chemin = variables.Chemin_source;
    const Entree_repertoire entree = Lire_entree(chemin);
    // A link is listed with its own length.
    const bool lien = (entree.attributs & Attribut::lien) != 0;
    w.Taille.Text(Format_milliers(lien ? Longueur_fichier(chemin) : entree.taille));
    w.Date_fichier.Text(Format_date(entree.moment));
    w.Heure.Text(Format_heure(entree.moment));
    for (const Case_attribut & c : Cases(w)) {
        c.coche.Value((entree.attributs & c.attribut) != 0);
        c.coche.Enabled(true);
    }
    w.Attributs_changes = false;
}

// The boxes are disabled only for a file that cannot be shown: the focus stays on the one it is on.
void Remplir(Info_Fichiers & w) {
    const Application::Sablier sablier;
    try {
        Montrer_informations(w);
    } catch (...) {
        Vider(w);
        throw;
    }
}

void Afficher_fichier(Info_Fichiers & w) {
    w.Caption(L"Informations sur " + Majuscules(variables.Fichier_courant));
    Pieger(L"INFOS-Affiche", [&] { Remplir(w); });
}

// Goes to a selected entry from `depart` on, or from the other end of the list.
void Aller(Info_Fichiers & w, int depart, int direction) {
    variables.Index_courant = depart;
    Selection_suivante(direction);
    if (!variables.Fichier_trouve) {
        variables.Index_courant = direction == 1 ? 0 : variables.Liste_courante->ListCount() - 1;
        Selection_suivante(direction);
    }
    if (!variables.Fichier_trouve) return Vider(w);
    w.Index = variables.Index_courant - direction;
    Afficher_fichier(w);
}

std::uint32_t Attributs_coches(Info_Fichiers & w) {
    std::uint32_t attributs = 0;
    for (const Case_attribut & c : Cases(w)) {
        if (c.coche.Value()) attributs |= c.attribut;
    }
    return attributs;
}

// Some media take an attribute without a word and do not keep it. The archive attribute is left out of the comparison: there are
// file systems where every file has it.
void Ecrire_et_verifier(const std::wstring & chemin, std::uint32_t attributs) {
    Ecrire_attributs(chemin, attributs);
    constexpr std::uint32_t verifies  = Attribut::lecture | Attribut::cache | Attribut::systeme;
    const std::uint32_t     obtenus   = Lire_attributs(chemin);
    const bool              identique = ((obtenus ^ attributs) & verifies) == 0;
    if (!identique) throw Erreur_execution(Numero::permission_refusee, 0, chemin);
}

// Asks whether changed attributes are to be saved, before the file is left. False when they could not be: the file is shown as
// it really is, and is not left.
bool Proposer_enregistrement(Info_Fichiers & w) {
    if (!w.Attributs_changes) return true;
    bool quitte = true;
    Pieger(
        L"INFOS-Attributs",
        [&] {
            Bip();
            variables.Reponse =
                Message_boite(L"Voulez-vous enregistrer les modifications d'attributs ?",
                              Boite::oui_non | Boite::question | Boite::deuxieme_bouton, titre_gestionnaire);
            w.Attributs_changes = false;
            const Application::Sablier sablier;
            if (variables.Reponse == Reponse_boite::oui)
                Ecrire_et_verifier(variables.Chemin_source, Attributs_coches(w));
        },
        [&] {
            quitte = false;
            Remplir(w);
        });
    return quitte;
}

void Précédent_Click(Info_Fichiers & w) {
    if (Proposer_enregistrement(w)) Aller(w, w.Index - 1, -1);
}

void Suivant_Click(Info_Fichiers & w) {
    if (Proposer_enregistrement(w)) Aller(w, w.Index + 1, 1);
}

void Fin_Click(Info_Fichiers & w) {
    if (Proposer_enregistrement(w)) Fermer_fille(w);
}

bool Est_montre(const Info_Fichiers & w) { return w.Caché.Enabled(); }

// The first control that something can be done with.
void Premier_focus(Info_Fichiers & w) { Est_montre(w) ? w.Caché.SetFocus() : w.Fin.SetFocus(); }

// When the first file cannot be shown, stepping leads to another one, if there is any. Only a file that is gone is passed
// over: a drive that does not answer would make each question wait.
bool Reste_a_montrer() {
    const Application::Sablier sablier;
    variables.Index_courant = 0;
    for (Selection_suivante(1); variables.Fichier_trouve; Selection_suivante(1)) {
        try {
            if ((Lire_attributs(variables.Chemin_source) & Attribut::repertoire) == 0) return true;
        } catch (const Erreur_execution & erreur) {
            const int n = erreur.numero;
            if (n == Numero::unite_absente || n == Numero::disque_non_pret || n == Numero::entree_sortie)
                return false;
            if (n != Numero::fichier_introuvable && n != Numero::chemin_introuvable) return true;
        }
    }
    return false;
}

void Brancher(Info_Fichiers & w) {
    Brancher_fille(w, aide_fenetre_infos);
    for (const Case_attribut & c : Cases(w)) c.coche.Click = [&w] { w.Attributs_changes = true; };
    for (Champ_texte * champ : {&w.Taille, &w.Date_fichier, &w.Heure}) {
        champ->Montrer_seulement();
        champ->GotFocus = [&w] { Premier_focus(w); };
    }
    w.Précédent.Brancher([&w] { Précédent_Click(w); });
    w.Suivant.Brancher([&w] { Suivant_Click(w); });
    w.Précédent.Chaque_clic();
    w.Suivant.Chaque_clic();
    w.Fin.Brancher([&w] { Fin_Click(w); });
    w.Defaut(w.Fin);
    w.Annulation(w.Fin);
}

Info_Fichiers & Fenetre_infos() {
    if (!fenetres.infos) {
        auto nouvelle = std::make_unique<Info_Fichiers>();
        Brancher(*nouvelle);
        fenetres.infos = std::move(nouvelle);
    }
    return static_cast<Info_Fichiers &>(*fenetres.infos);
}

void Consulter_selection(const Gestion_Fichiers & f) {
    Info_Fichiers & w         = Fenetre_infos();
    const int       ecart     = decalage + static_cast<int>(15 * variables.Bordure);
    const bool      plusieurs = Valeur(f.Ligne_message.Caption().substr(0, position_nombre)) > 1;
    Placer_fille(w, ecart, ecart);
    w.Précédent.Enabled(plusieurs);
    w.Suivant.Enabled(plusieurs);
    Aller(w, 0, 1);
    (plusieurs ? w.Suivant : w.Fin).SetFocus();
    if (Est_montre(w) || Reste_a_montrer()) w.Show_modal(Principale());
    variables.Index_courant = 0;
    // Nothing is under way: a later report must not name this file.
    variables.Fichier_courant.clear();
    Actualiser_panneaux();
}

// Whether the file lists show such files: what is stored in the recycle bin is hidden, and is not in the directory for the user.
// What their pattern leaves out is.
bool Montrable(const Liste_fichiers & liste, const Entree_repertoire & entree) {
    if ((entree.attributs & Attribut::cache) != 0 && !liste.Hidden()) return false;
    return (entree.attributs & Attribut::systeme) == 0 || liste.System();
}

void Resumer_repertoire(const Gestion_Fichiers & f) {
    const std::wstring repertoire = f.Fichier_srce.Path();
    std::wstring       resume;
    {
        const Application::Sablier sablier;
        std::uint64_t              total  = 0;
        std::size_t                nombre = 0;
        for (const Entree_repertoire & entree : Lister(repertoire, false)) {
            if (!Montrable(f.Fichier_srce, entree)) continue;
            ++nombre;
            total += entree.taille;
        }
        resume = Resume_repertoire(repertoire, nombre, Format_milliers(total));
    }
    Message_boite(resume, Boite::ok, titre_gestionnaire);
}

void Info_Click() {
    if (!Accepter_commande(L"CONSULTER\rles informations sur les fichiers")) return;
    Pieger(L"INFOS", [] {
        Gestion_Fichiers & f = Principale();
        if (f.Ligne_message.Caption().empty()) return Resumer_repertoire(f);
        Consulter_selection(f);
    });
}
}  // namespace

void Brancher_infos(Gestion_Fichiers & f) { f.Info.Brancher(Info_Click); }
