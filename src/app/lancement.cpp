#include "app/lancement.h"

#include "app/fenetres.h"
#include "app/globals.h"
#include "app/lignes_commande.h"
#include "app/settings.h"
#include "forms/gestion_fichiers.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/profil.h"
#include "platform/programmes.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "toolkit/boites.h"

#include <functional>

namespace {
constexpr std::size_t limite_usuelle = 260;  // most programs take no longer path

void Refuser(const std::wstring & chemin) {
    const std::wstring motif = Tient_en_ansi(chemin)
                                   ? L"des '%' que l'interpréteur de commandes remplacerait"
                                   : L"des caractères qui ne peuvent pas être transmis à un programme";
    Bip();
    Message_boite(L"Le chemin du fichier " + Majuscules(Nom_du_chemin(chemin)) + L" comporte " + motif +
                      L" :\rrenommez celui-ci et relancez l'opération.",
                  Boite::ok | Boite::exclamation, titre_gestionnaire);
}

// The first of a path and its short name that a line can carry; `ligne` puts it there.
std::wstring Transmissible(const std::wstring &                                      chemin,
                           const std::function<std::wstring(const std::wstring &)> & ligne) {
    const auto convient = [&](const std::wstring & nom) {
        return !nom.empty() && Tient_en_ansi(nom) && !Serait_developpe(ligne(nom));
    };
    const bool tel = convient(chemin);
    if (tel && chemin.size() < limite_usuelle) return chemin;
    std::wstring court = Chemin_court(chemin);
    if (convient(court)) return court;
    if (tel) return chemin;
    Refuser(chemin);
    return {};
}
// The line with the installed program under its full path, where its bare name would lead elsewhere.
std::wstring Avec_programme_installe(const std::wstring & ligne) {
    const std::wstring_view programme = Programme_de_la_ligne(ligne);
    const std::wstring      chemin    = Programme_masque(programme);
    if (chemin.empty()) return ligne;
    const std::size_t fin  = static_cast<std::size_t>(programme.data() - ligne.data()) + programme.size();
    const bool        cite = fin < ligne.size() && ligne[fin] == L'"';
    return Citer_fichier(chemin) + ligne.substr(fin + (cite ? 1 : 0));
}

void Lancer_ligne(const std::wstring & ligne, const std::wstring & repertoire, bool installe) {
    try {
        const Repertoire_de_travail travail(repertoire.empty() ? Principale().Répertoire_srce.Path()
                                                               : repertoire);
        variables.Tache = Demarrer(Ligne_sure(installe ? Avec_programme_installe(ligne) : ligne));
    } catch (const Erreur_execution &) {
        // What could not be started is the program, whatever file it was to be given.
        variables.Fichier_courant = Nom_du_chemin(Programme_de_la_ligne(ligne));
        throw;
    }
}
}  // namespace

void Lancer(const std::wstring & ligne, const std::wstring & repertoire) {
    Lancer_ligne(ligne, repertoire, false);
}

void Lancer_installe(const std::wstring & ligne, const std::wstring & repertoire) {
    Lancer_ligne(ligne, repertoire, true);
}

std::wstring Programme_de_l_extension(const std::wstring & extension) {
    if (extension.empty()) return {};
    return Programme_associe(Lire_profil({}, Section::extensions, extension, L"", tampon_valeur));
}

std::wstring Chemin_pour(const std::wstring & programme, const std::wstring & chemin) {
    const std::wstring cite = Citer_programme(programme, Programme_existe) + L" ";
    return Transmissible(chemin, [&](const std::wstring & nom) { return cite + nom; });
}

std::wstring Chemin_a_lancer(const std::wstring & chemin) {
    return Transmissible(chemin, [](const std::wstring & nom) { return Citer_fichier(nom); });
}
