#include "app/lignes_commande.h"

#include "platform/chemins.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {
constexpr std::wstring_view                compagnon = L"PELMIRA.EXE";
constexpr std::array<std::wstring_view, 4> programmes{L"EXE", L"COM", L"BAT", L"PIF"};
constexpr std::array<std::wstring_view, 2> lots{L"BAT", L"CMD"};
constexpr wchar_t                          guillemet         = L'"';
constexpr wchar_t                          premier_imprime   = L' ';
constexpr std::size_t                      max_extension     = 3;
constexpr std::wstring_view                marque_parametres = L" ?";
constexpr std::wstring_view                blancs            = L" \t";
// Signs that end a command for the interpreter, and those that end a word or mean something in a batch file besides.
constexpr std::wstring_view fins_de_commande = L"&|<>^";
constexpr std::wstring_view signes           = L" &|<>^(),;=!\u00A0";

std::wstring Entre_guillemets(std::wstring_view texte) { return guillemet + std::wstring(texte) + guillemet; }

bool Contient(std::wstring_view texte, wchar_t caractere) {
    return texte.find(caractere) != std::wstring_view::npos;
}

bool Contient_un(std::wstring_view texte, std::wstring_view caracteres) {
    return texte.find_first_of(caracteres) != std::wstring_view::npos;
}

template <std::size_t N> bool Parmi(const std::array<std::wstring_view, N> & liste, std::wstring_view texte) {
    return std::find(liste.begin(), liste.end(), texte) != liste.end();
}

std::wstring_view Ebarber(std::wstring_view texte) {
    const std::size_t debut = texte.find_first_not_of(L' ');
    if (debut == std::wstring_view::npos) return {};
    return texte.substr(debut, texte.find_last_not_of(L' ') - debut + 1);
}

wchar_t Capitale(wchar_t lettre) {
    return lettre >= L'a' && lettre <= L'z' ? static_cast<wchar_t>(lettre - L'a' + L'A') : lettre;
}

std::wstring Capitales(std::wstring_view texte) {
    std::wstring resultat(texte);
    std::transform(resultat.begin(), resultat.end(), resultat.begin(), Capitale);
    return resultat;
}

wchar_t En_blanc(wchar_t caractere) { return caractere < premier_imprime ? L' ' : caractere; }

bool Commence_cite(std::wstring_view texte) { return !texte.empty() && texte.front() == guillemet; }

bool Finit_par_extension(std::wstring_view capitales) {
    const std::size_t taille = capitales.size();
    return taille > max_extension && capitales[taille - max_extension - 1] == L'.' &&
           Parmi(programmes, capitales.substr(taille - max_extension));
}

// Where a program's path may end before `texte` does: at a blank, behind its extension or before a switch, whose "/" is no
// part of a name. The last one first.
std::vector<std::size_t> Fins_possibles(std::wstring_view texte) {
    const std::wstring       capitales = Capitales(texte);
    std::vector<std::size_t> fins;
    for (std::size_t blanc = capitales.rfind(L' '); blanc != std::wstring::npos && blanc > 0;
         blanc             = capitales.rfind(L' ', blanc - 1)) {
        const bool option = blanc + 1 < capitales.size() && capitales[blanc + 1] == L'/';
        if (option || Finit_par_extension(std::wstring_view(capitales).substr(0, blanc)))
            fins.push_back(blanc);
    }
    return fins;
}

// Where the path of a program or of a document ends in a text that parameters may follow. The longest that the disk knows: a
// directory's name may look like a program ("C:\my.bat old\letter.txt").
std::size_t Fin_programme(std::wstring_view texte, const Existe & existe) {
    const std::vector<std::size_t> fins = Fins_possibles(texte);
    if (fins.empty() || existe(texte)) return texte.size();
    const auto trouve =
        std::find_if(fins.begin(), fins.end(), [&](std::size_t fin) { return existe(texte.substr(0, fin)); });
    return trouve == fins.end() ? texte.size() : *trouve;
}

// A line's program: up to the closing quote when it begins with one, else up to the first blank.
std::size_t Longueur_premier_mot(std::wstring_view ligne) {
    if (Commence_cite(ligne)) {
        const std::size_t fin = ligne.find(guillemet, 1);
        return fin == std::wstring_view::npos ? ligne.size() : fin + 1;
    }
    return std::min(ligne.find_first_of(blancs), ligne.size());
}

// Where the program of a typed command ends: at the first blank, or behind it where the disk knows a program by that path.
std::size_t Fin_programme_saisi(std::wstring_view commande, const Existe & existe) {
    const std::size_t mot = Longueur_premier_mot(commande);
    if (Commence_cite(commande) || !Contient(commande.substr(0, mot), L'\\')) return mot;
    std::vector<std::size_t> fins = Fins_possibles(commande);
    if (Est_executable(commande) || Extension_capitales(commande).empty())
        fins.insert(fins.begin(), commande.size());
    const auto trouve = std::find_if(fins.begin(), fins.end(),
                                     [&](std::size_t fin) { return existe(commande.substr(0, fin)); });
    return trouve == fins.end() ? mot : *trouve;
}

// The point of a button's value: the first one that does not stand in a directory's name.
std::size_t Point_extension(std::wstring_view valeur) {
    std::size_t point = valeur.find(L'.');
    while (point != std::wstring_view::npos) {
        const std::size_t suite = valeur.find_first_of(L"\\ .", point + 1);
        if (suite == std::wstring_view::npos || valeur[suite] != L'\\') return point;
        point = valeur.find(L'.', suite);
    }
    return point;
}

// The point of a file's name, the last one.
std::size_t Point_du_nom(std::wstring_view chemin) {
    const std::size_t point = chemin.rfind(L'.');
    return Contient(chemin.substr(std::min(point, chemin.size())), L'\\') ? std::wstring_view::npos : point;
}

// The path at the beginning of a button's value, without quotes.
std::wstring_view Chemin_vise(std::wstring_view cible, const Existe & existe) {
    if (!Commence_cite(cible)) return cible.substr(0, Fin_programme(cible, existe));
    const std::size_t fin = cible.find(guillemet, 1);
    return cible.substr(1, fin == std::wstring_view::npos ? fin : fin - 1);
}

std::wstring Repertoire_vise(std::wstring_view chemin, std::size_t point) {
    const std::size_t barre = chemin.rfind(L'\\', point);
    if (barre == std::wstring_view::npos) return {};
    // A drive's root keeps its "\": without it the name would be that of the drive's current directory.
    const bool racine = barre == 0 || (barre == 2 && chemin[1] == L':');
    return std::wstring(chemin.substr(0, racine ? barre + 1 : barre));
}
}  // namespace

bool Est_executable(std::wstring_view nom) { return Parmi(programmes, Extension_capitales(nom)); }

std::wstring Extension_capitales(std::wstring_view nom) { return Capitales(Extension_du_nom(nom)); }

std::wstring Citer_fichier(std::wstring_view chemin) {
    return Contient(chemin, L' ') && !Contient(chemin, guillemet) ? Entre_guillemets(chemin)
                                                                  : std::wstring(chemin);
}

std::wstring Citer_programme(std::wstring_view programme, const Existe & existe) {
    if (programme.empty() || Commence_cite(programme)) return std::wstring(programme);
    const std::size_t fin = Fin_programme(programme, existe);
    return Citer_fichier(programme.substr(0, fin)) + std::wstring(programme.substr(fin));
}

std::wstring Citer_parametres(std::wstring_view parametres) { return Citer_fichier(parametres); }

std::wstring_view Programme_de_la_ligne(std::wstring_view ligne) {
    ligne.remove_prefix(std::min(ligne.find_first_not_of(blancs), ligne.size()));
    std::wstring_view programme = ligne.substr(0, Longueur_premier_mot(ligne));
    if (!Commence_cite(programme)) return programme;
    programme.remove_prefix(1);
    return programme.substr(0, programme.find(guillemet));
}

bool Lance_interprete(std::wstring_view ligne) {
    const std::wstring_view programme = Programme_de_la_ligne(ligne);
    // The system drops what stands behind the name: "A.BAT. " is A.BAT.
    const std::size_t fin = programme.find_last_not_of(L" .");
    return fin != std::wstring_view::npos && Parmi(lots, Extension_capitales(programme.substr(0, fin + 1)));
}

std::wstring Citer_argument(std::wstring_view programme, std::wstring_view chemin) {
    const bool cite =
        Lance_interprete(programme) && Contient_un(chemin, signes) && !Contient(chemin, guillemet);
    return cite ? Entre_guillemets(chemin) : Citer_fichier(chemin);
}

bool Serait_developpe(std::wstring_view ligne) {
    // A variable stands between two of them.
    return Lance_interprete(ligne) && std::count(ligne.begin(), ligne.end(), L'%') > 1;
}

std::wstring Proteger_interprete(std::wstring_view ligne) {
    const std::size_t fin = Longueur_premier_mot(ligne);
    // The system looks for the program before the interpreter reads the line: in its name nothing can be escaped.
    const std::wstring_view programme = ligne.substr(0, fin);
    std::wstring            protegee(programme);
    if (!Commence_cite(programme) && Contient_un(programme, signes)) protegee = Entre_guillemets(programme);
    // A switch that is attached to a name in quotes is part of the name for some interpreters.
    if (Commence_cite(programme) && fin < ligne.size() && !Contient(blancs, ligne[fin])) protegee += L' ';
    bool cite = false;
    for (const wchar_t caractere : ligne.substr(fin)) {
        if (caractere == guillemet) cite = !cite;
        if (!cite && Contient(fins_de_commande, caractere)) protegee += L'^';
        protegee += En_blanc(caractere);
    }
    return protegee;
}

std::wstring Ligne_sure(std::wstring_view ligne) {
    return Lance_interprete(ligne) ? Proteger_interprete(ligne) : std::wstring(ligne);
}

std::optional<std::wstring> Groupe_fichiers::Ajouter(std::wstring_view chemin) {
    const std::wstring          argument = Citer_argument(programme_, chemin);
    std::optional<std::wstring> pleine;
    if (!liste_.empty() && liste_.size() + argument.size() >= limite) pleine = std::exchange(liste_, {});
    liste_ += L" " + argument;
    return pleine;
}

std::wstring Ligne_visualiseur(std::wstring_view visualiseur, std::wstring_view liste,
                               const Existe & existe) {
    return Citer_programme(visualiseur, existe) + (visualiseur == compagnon ? L" ovl" : L" ") +
           std::wstring(liste);
}

bool Editeur_groupe(std::wstring_view editeur) { return editeur == compagnon; }

std::wstring Ligne_editeur(std::wstring_view editeur, std::wstring_view liste_ou_fichier,
                           const Existe & existe) {
    const std::wstring programme = Citer_programme(editeur, existe);
    if (Editeur_groupe(editeur)) return programme + std::wstring(liste_ou_fichier);
    return programme + L" " + Citer_argument(programme, liste_ou_fichier);
}

std::wstring Ligne_execution(std::wstring_view chemin, std::wstring_view saisie) {
    std::wstring typees(saisie);
    std::transform(typees.begin(), typees.end(), typees.begin(), En_blanc);
    const std::wstring_view parametres = Ebarber(typees);
    if (parametres.empty()) return Citer_fichier(chemin);
    if (Contient(parametres, L' ') || Contient(parametres, guillemet))
        return Citer_fichier(chemin) + L" " + Citer_parametres(parametres);
    return Entre_guillemets(chemin) + std::wstring(parametres);
}

std::wstring Programme_associe(std::wstring_view valeur) {
    return std::wstring(Ebarber(valeur.substr(0, std::min(valeur.find(L" ^"), valeur.size()))));
}

std::wstring Ligne_association(std::wstring_view programme, std::wstring_view fichier,
                               const Existe & existe) {
    const std::wstring cite = Citer_programme(programme, existe);
    return cite + L" " + Citer_argument(cite, fichier);
}

Commande_bouton Lire_bouton(std::wstring_view valeur, const Existe & existe) {
    Commande_bouton commande;
    commande.parametres = valeur.find(marque_parametres) != std::wstring_view::npos;
    if (commande.parametres) valeur.remove_suffix(marque_parametres.size());
    const std::wstring_view cible  = Ebarber(valeur);
    const std::wstring_view chemin = Chemin_vise(cible, existe);
    const bool              seul   = chemin.size() + 2 >= cible.size();
    commande.cible                 = Commence_cite(cible) && seul ? chemin : cible;
    const bool        connu        = !chemin.empty() && existe(chemin);
    const std::size_t point        = connu ? Point_du_nom(chemin) : Point_extension(chemin);
    commande.repertoire            = Repertoire_vise(chemin, point);
    if (point != std::wstring_view::npos)
        commande.extension = Capitales(chemin.substr(point + 1, max_extension));
    return commande;
}

std::wstring Commande_saisie(std::wstring_view texte) {
    const std::size_t invite = texte.find(L'>');
    if (invite == std::wstring_view::npos) return {};
    std::wstring commande(texte.substr(invite + 1));
    std::transform(commande.begin(), commande.end(), commande.begin(), En_blanc);
    return std::wstring(Ebarber(commande));
}

std::wstring Ligne_saisie(std::wstring_view commande, const Existe & existe) {
    if (!Contient(commande, L' ')) return std::wstring(commande);
    const std::size_t fin       = Fin_programme_saisi(commande, existe);
    std::wstring      programme = Citer_fichier(commande.substr(0, fin));
    if (fin == commande.size()) return programme;
    const std::wstring_view arguments = commande.substr(fin + (commande[fin] == L' ' ? 1 : 0));
    const bool              tels      = Contient(arguments, guillemet);
    return programme + L" " + (tels ? std::wstring(arguments) : Entre_guillemets(arguments));
}

std::wstring Avec_com(std::wstring_view ligne) {
    std::size_t fin = Longueur_premier_mot(ligne);
    if (fin > 1 && ligne[fin - 1] == guillemet) --fin;
    return std::wstring(ligne.substr(0, fin)) + L".COM" + std::wstring(ligne.substr(fin));
}
