#include "recycle/limites_saisies.h"

#include "app/globals.h"
#include "app/settings.h"
#include "forms/corbeille.h"
#include "platform/chemins.h"
#include "platform/nombres.h"
#include "platform/profil.h"
#include "platform/systeme.h"
#include "toolkit/boites.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {
constexpr int             taille_maximale = 9999;  // kilobytes
constexpr int             temps_maximal   = 999;   // days
constexpr int             chiffres_taille = 4;
constexpr int             chiffres_temps  = 3;
constexpr const wchar_t * refus_taille    = L"La taille de la corbeille doit être comprise entre 1 et "
                                         L"9999,\rexprimée en Kilo-octets de 1024 caractères.";
constexpr const wchar_t * refus_temps =
    L"Le temps de conservation doit être compris entre 1 et 999,\ren nombre de jours calendaires.";

bool Est_chiffre(wchar_t caractere) { return caractere >= L'0' && caractere <= L'9'; }

// What is pasted loses all but its digits.
void Garder_chiffres(const Corbeille & w, Champ_texte & champ) {
    std::wstring texte = champ.Text();
    if (w.Remplissage || std::erase_if(texte, [](wchar_t c) { return !Est_chiffre(c); }) == 0) return;
    Bip();
    champ.Text(texte);
    champ.Selectionner(static_cast<int>(texte.size()), 0);
}

void Brancher_chiffres(Corbeille & w, Champ_texte & champ, int chiffres) {
    champ.Limite(chiffres);
    champ.Change   = [&w, &champ] { Garder_chiffres(w, champ); };
    champ.KeyPress = [](wchar_t & caractere) {
        // Control characters are the field's own, erasing and pasting, or the window's.
        if (caractere < L' ' || Est_chiffre(caractere)) return;
        Bip();
        caractere = 0;
    };
}

bool Est_permise(const std::wstring & texte, int maximum) {
    return std::all_of(texte.begin(), texte.end(), Est_chiffre) && Valeur(texte) >= 1 &&
           Valeur(texte) <= maximum;
}

void Refuser(Champ_texte & champ, const wchar_t * message) {
    Bip();
    Message_boite(message, Boite::ok | Boite::exclamation, titre_gestionnaire);
    champ.SetFocus();
    champ.Selectionner(0, -1);
}

Changement_profil Changement(const wchar_t * cle, const std::wstring & valeur) {
    return {cle, valeur.empty() ? std::nullopt : std::optional(valeur)};
}

// In one step, and the limit that counts before the other one goes: no instant leaves the bin without the one it keeps.
void Ecrire_cles(const std::wstring & taille, const std::wstring & temps) {
    std::vector<Changement_profil> cles{Changement(Cle::taille, taille), Changement(Cle::temps, temps)};
    if (taille.empty()) std::swap(cles.front(), cles.back());
    variables.Fichier_courant = Nom_du_chemin(variables.Fichier_ini);
    Changer_profil(variables.Fichier_ini, Section::corbeille, cles);
    variables.Fichier_courant.clear();
}
}  // namespace

void Brancher_champs_limites(Corbeille & w) {
    Brancher_chiffres(w, w.Taille, chiffres_taille);
    Brancher_chiffres(w, w.Temps, chiffres_temps);
}

void Montrer_limites(Corbeille & w) {
    // What somebody else wrote into the settings is shown as it is.
    w.Remplissage = true;
    w.Taille.Text(variables.Texte_taille_corbeille);
    w.Temps.Text(variables.Texte_temps_corbeille);
    w.Remplissage      = false;
    w.Taille_avant     = w.Taille.Text();
    w.Temps_avant      = w.Temps.Text();
    w.Limites_retirees = false;
}

bool Verifier_limites(Corbeille & w) {
    const std::wstring taille = w.Taille.Text();
    const std::wstring temps  = w.Temps.Text();
    if (!taille.empty()) {
        if (Est_permise(taille, taille_maximale)) return true;
        Refuser(w.Taille, refus_taille);
        return false;
    }
    if (temps.empty() || Est_permise(temps, temps_maximal)) return true;
    Refuser(w.Temps, refus_temps);
    return false;
}

void Enregistrer_limites(Corbeille & w) {
    const std::wstring taille = w.Taille.Text();
    Ecrire_cles(taille, taille.empty() ? w.Temps.Text() : std::wstring());
    if (!taille.empty()) w.Temps.Text(L"");
    Relire_limites();
    w.Limites_retirees = !variables.Corbeille_active;
}

void Rendre_limites(Corbeille & w) {
    if (!w.Limites_retirees) return;
    w.Limites_retirees = false;
    Ecrire_cles(w.Taille_avant, w.Temps_avant);
    Relire_limites();
}

void Relire_limites() {
    Exiger_lisible(variables.Fichier_ini);
    Lire_limites_corbeille();
}
