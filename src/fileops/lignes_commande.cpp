#include "fileops/lignes_commande.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {
constexpr std::wstring_view                compagnon = L"PELMIRA.EXE";
constexpr std::array<std::wstring_view, 4> programmes{L"EXE", L"COM", L"BAT", L"PIF"};
constexpr wchar_t                          guillemet         = L'"';
constexpr std::size_t                      max_extension     = 3;
constexpr std::wstring_view                marque_parametres = L" ?";

std::wstring Entre_guillemets(std::wstring_view texte) { return guillemet + std::wstring(texte) + guillemet; }

bool Contient(std::wstring_view texte, wchar_t caractere) {
    return texte.find(caractere) != std::wstring_view::npos;
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

// Where a program's path ends: after its extension, at a blank or at the end. The whole text when no extension shows it.
std::size_t Fin_programme(std::wstring_view texte) {
    const std::wstring capitales = Capitales(texte);
    for (std::size_t point = capitales.find(L'.'); point != std::wstring::npos;
         point             = capitales.find(L'.', point + 1)) {
        const std::wstring_view extension = std::wstring_view(capitales).substr(point + 1, max_extension);
        const std::size_t       fin       = point + 1 + max_extension;
        const bool              entiere   = fin == texte.size() || (fin < texte.size() && texte[fin] == L' ');
        if (entiere && std::find(programmes.begin(), programmes.end(), extension) != programmes.end())
            return fin;
    }
    return texte.size();
}

// A line's program: up to the closing quote when it begins with one, else up to the first blank.
std::size_t Longueur_premier_mot(std::wstring_view ligne) {
    if (!ligne.empty() && ligne.front() == guillemet) {
        const std::size_t fin = ligne.find(guillemet, 1);
        return fin == std::wstring_view::npos ? ligne.size() : fin + 1;
    }
    return std::min(ligne.find(L' '), ligne.size());
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
}  // namespace

bool Est_executable(std::wstring_view nom) {
    const std::wstring extension = Extension_capitales(nom);
    return std::find(programmes.begin(), programmes.end(), extension) != programmes.end();
}

std::wstring Extension_capitales(std::wstring_view nom) {
    const std::size_t barre = nom.rfind(L'\\');
    const std::size_t point = nom.rfind(L'.');
    if (point == std::wstring_view::npos) return {};
    if (barre != std::wstring_view::npos && barre > point) return {};
    return Capitales(nom.substr(point + 1));
}

std::wstring Citer_fichier(std::wstring_view chemin) {
    return Contient(chemin, L' ') ? Entre_guillemets(chemin) : std::wstring(chemin);
}

std::wstring Citer_programme(std::wstring_view programme) {
    if (programme.empty() || programme.front() == guillemet) return std::wstring(programme);
    const std::size_t fin = Fin_programme(programme);
    return Citer_fichier(programme.substr(0, fin)) + std::wstring(programme.substr(fin));
}

std::wstring Citer_parametres(std::wstring_view parametres) {
    return Contient(parametres, guillemet) ? std::wstring(parametres) : Citer_fichier(parametres);
}

std::optional<std::wstring> Groupe_fichiers::Ajouter(std::wstring_view chemin) {
    const std::wstring          argument = Citer_fichier(chemin);
    std::optional<std::wstring> pleine;
    if (!liste_.empty() && liste_.size() + argument.size() >= limite) pleine = std::exchange(liste_, {});
    liste_ += L" " + argument;
    return pleine;
}

std::wstring Ligne_visualiseur(std::wstring_view visualiseur, std::wstring_view liste) {
    return Citer_programme(visualiseur) + (visualiseur == compagnon ? L" ovl" : L" ") + std::wstring(liste);
}

bool Editeur_groupe(std::wstring_view editeur) { return editeur == compagnon; }

std::wstring Ligne_editeur(std::wstring_view editeur, std::wstring_view liste_ou_fichier) {
    const std::wstring programme = Citer_programme(editeur);
    if (Editeur_groupe(editeur)) return programme + std::wstring(liste_ou_fichier);
    return programme + L" " + Citer_fichier(liste_ou_fichier);
}

std::wstring Ligne_execution(std::wstring_view chemin, std::wstring_view parametres) {
    const bool separes = Contient(parametres, L' ') || Contient(parametres, guillemet);
    return Citer_fichier(chemin) + (separes ? L" " : L"") + Citer_parametres(parametres);
}

std::wstring Programme_associe(std::wstring_view valeur) {
    return std::wstring(Ebarber(valeur.substr(0, std::min(valeur.find(L" ^"), valeur.size()))));
}

std::wstring Ligne_association(std::wstring_view programme, std::wstring_view fichier) {
    return Citer_programme(programme) + L" " + Citer_fichier(fichier);
}

Commande_bouton Lire_bouton(std::wstring_view valeur) {
    Commande_bouton commande;
    commande.parametres = valeur.find(marque_parametres) != std::wstring_view::npos;
    if (commande.parametres) valeur.remove_suffix(marque_parametres.size());
    commande.cible          = Ebarber(valeur);
    const std::size_t point = Point_extension(commande.cible);
    const std::size_t barre = commande.cible.rfind(L'\\', point);
    if (barre != std::wstring::npos) commande.repertoire = commande.cible.substr(0, barre);
    if (!commande.repertoire.empty() && commande.repertoire.front() == guillemet)
        commande.repertoire.erase(0, 1);
    // A drive's root keeps its "\": without it the name would be that of the drive's current directory.
    if (commande.repertoire.size() == 2 && commande.repertoire[1] == L':') commande.repertoire += L'\\';
    if (point != std::wstring::npos)
        commande.extension = Capitales(commande.cible.substr(point + 1, max_extension));
    return commande;
}

std::wstring Commande_saisie(std::wstring_view texte) {
    const std::size_t invite = texte.find(L'>');
    return invite == std::wstring_view::npos ? std::wstring()
                                             : std::wstring(Ebarber(texte.substr(invite + 1)));
}

std::wstring Ligne_saisie(std::wstring_view commande) {
    const std::size_t fin = Longueur_premier_mot(commande);
    if (fin == commande.size()) return std::wstring(commande);
    const std::wstring_view arguments = commande.substr(fin + 1);
    const bool              tels      = Contient(arguments, guillemet);
    return std::wstring(commande.substr(0, fin)) + L" " +
           (tels ? std::wstring(arguments) : Entre_guillemets(arguments));
}

std::wstring Avec_com(std::wstring_view ligne) {
    std::size_t fin = Longueur_premier_mot(ligne);
    if (fin > 1 && ligne[fin - 1] == guillemet) --fin;
    return std::wstring(ligne.substr(0, fin)) + L".COM" + std::wstring(ligne.substr(fin));
}

std::wstring Proteger_interprete(std::wstring_view ligne) {
    std::wstring protegee;
    bool         cite = false;
    for (const wchar_t caractere : ligne) {
        if (caractere == guillemet) cite = !cite;
        if (!cite && std::wstring_view(L"&|<>^").find(caractere) != std::wstring_view::npos) protegee += L'^';
        protegee += caractere;
    }
    return protegee;
}
