#include "app/settings.h"

#include "app/cles_profil.h"
#include "app/globals.h"
#include "platform/nombres.h"
#include "platform/profil.h"
#include "platform/systeme.h"
#include "platform/textes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {
// Characters of a read buffer, terminator included. The yes/no, colour and limit buffers cut a longer value
// on purpose.
constexpr unsigned tampon_texte   = 4096;
constexpr unsigned tampon_oui_non = 4;
constexpr unsigned tampon_couleur = 2;
constexpr unsigned tampon_taille  = 5;
constexpr unsigned tampon_temps   = 4;
constexpr unsigned tampon_bordure = 3;

std::wstring Lire(const wchar_t * section, const std::wstring & cle, const wchar_t * defaut,
                  unsigned tampon) {
    std::wstring valeur    = Lire_profil(variables.Fichier_ini, section, cle, defaut, tampon);
    variables.Longueur_lue = valeur.size();
    return valeur;
}

struct Option {
    std::wstring_view cle;
    const wchar_t *   defaut;
    unsigned          tampon;
};

constexpr std::array<Option, 8> options{{
    {Cle::editeur, Defaut::editeur, tampon_texte},
    {Cle::visualiseur, Defaut::visualiseur, tampon_texte},
    {Cle::confirme, L"Non", tampon_oui_non},
    {Cle::remplace, L"Oui", tampon_oui_non},
    {Cle::iconise, L"Non", tampon_oui_non},
    {Cle::aide, L"Non", tampon_oui_non},
    {Cle::repertoire, L"Racine", tampon_texte},
    {Cle::couleur, L"0", tampon_couleur},
}};

// A limit of the recycle bin; its buffer holds no more digits than it may have. 0 for what is no whole number from 1 on.
int Limite(const std::wstring & texte) {
    const bool chiffres =
        std::all_of(texte.begin(), texte.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
    return chiffres ? static_cast<int>(Valeur(texte)) : 0;
}
}  // namespace

void Situer_profil() {
    // The directory counts up to its first run of two blanks. A root keeps its "\", and the paths made from
    // it two of them.
    std::wstring repertoire = Repertoire_programme();
    repertoire.resize(std::min(repertoire.find(L"  "), repertoire.size()));
    variables.Unite_programme  = repertoire.substr(0, 2);
    variables.Prefixe_fichiers = repertoire + L"\\KORVANE.";
    variables.Fichier_ini      = repertoire + L"\\KORVANE.INI";
}

std::wstring Lire_option(const wchar_t * cle) {
    const auto option =
        std::find_if(options.begin(), options.end(), [&](const Option & o) { return o.cle == cle; });
    return Lire(Section::options, cle, option->defaut, option->tampon);
}

void Lire_iconise() { variables.Option_iconise = Lire_option(Cle::iconise); }

bool Demarrage_iconise() { return Est_oui(variables.Option_iconise); }

void Lire_bordure() {
    const std::wstring bordure = Lire_profil({}, Section::windows, Cle::bordure, L"3", tampon_bordure);
    variables.Longueur_lue     = bordure.size();
    variables.Bordure          = Valeur(bordure);
}

void Lire_options_commandes() {
    variables.Editeur               = Majuscules(Lire_option(Cle::editeur));
    variables.Visualiseur           = Majuscules(Lire_option(Cle::visualiseur));
    variables.Confirme_commande     = Est_oui(Lire_option(Cle::confirme));
    variables.Confirme_remplacement = Est_oui(Lire_option(Cle::remplace));
    variables.Option_aide           = Lire_option(Cle::aide);
}

void Lire_limites_corbeille() {
    variables.Taille_corbeille            = 0;
    variables.Temps_corbeille             = 0;
    variables.Corbeille_active            = false;
    variables.Limite_corbeille_incorrecte = false;
    variables.Texte_temps_corbeille.clear();
    variables.Texte_taille_corbeille = Lire(Section::corbeille, Cle::taille, L"", tampon_taille);
    if (!variables.Texte_taille_corbeille.empty()) {
        variables.Taille_corbeille = Limite(variables.Texte_taille_corbeille);
    } else {
        variables.Texte_temps_corbeille = Lire(Section::corbeille, Cle::temps, L"", tampon_temps);
        if (variables.Texte_temps_corbeille.empty()) return;
        variables.Temps_corbeille = static_cast<std::int16_t>(Limite(variables.Texte_temps_corbeille));
    }
    variables.Corbeille_active            = true;
    variables.Limite_corbeille_incorrecte = variables.Taille_corbeille == 0 && variables.Temps_corbeille == 0;
}

void Lire_couleur() { variables.Option_couleur = Lire_option(Cle::couleur); }

void Lire_repertoire_initial() { variables.Repertoire_initial = Majuscules(Lire_option(Cle::repertoire)); }

std::vector<std::wstring> Cles_section(const wchar_t * section) {
    const std::wstring liste = Lire_cles(variables.Fichier_ini, section);
    variables.Longueur_lue   = liste.size();
    return Decouper_cles(liste);
}

std::wstring Valeur_cle(const wchar_t * section, const std::wstring & cle) {
    return Lire(section, cle, L"", tampon_valeur);
}
