#include "fenetres/effacement.h"

#include <algorithm>
#include <cwctype>

using namespace Pilote;

namespace {

constexpr std::uint32_t attributs_corbeille = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY;

bool Est_code(const std::wstring & nom) { return nom.starts_with(L"crb") && nom.size() == 12; }

}  // namespace

Effacement::Effacement() { Corbeille::Vider(); }

Effacement::~Effacement() {
    Fermer();
    Corbeille::Vider();
}

void Effacement::Creer_cinq() {
    std::uint64_t taille = 100;
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt", L"d.txt", L"e.txt"}) {
        Creer_source(nom, taille, static_cast<std::uint32_t>(taille));
        Date(Source(nom), 126000000000000000ull + taille * 10000000ull);
        taille += 100;
    }
    Retenir();
}

void Effacement::Deposer_jadis(const std::wstring & nom, std::uint64_t taille, int jours, int tirage) {
    char code[16];
    std::snprintf(code, sizeof code, "crb%05d.%03d", jour_ - jours, tirage);
    char octets[16];
    std::snprintf(octets, sizeof octets, "%08llu", static_cast<unsigned long long>(taille));
    const std::string ancien = Existe(Corbeille::Index()) ? Lire_fichier(Corbeille::Index()) : "";
    Creer_fichier(Corbeille::Index(),
                  ancien + code + " " + octets + " " + Utf8(nom) + " " + Utf8(source) + "\\\r\n");
    Creer_source(Large(code), taille);
    Attributs(Source(Large(code)), attributs_corbeille);
}

void Effacement::Attendre_effacement(const std::wstring & fichier, unsigned style, int reponse,
                                     const std::wstring & titre, const std::wstring & repertoire) {
    Attendre_boite(titre,
                   L"Vous allez EFFACER le fichier '" + fichier + L"' du répertoire\r" +
                       (repertoire.empty() ? source : repertoire) + L"\rConfirmez-vous cette commande ?",
                   style, reponse);
}

void Effacement::Attendre_mode(int reponse, const std::wstring & titre) {
    Attendre_dialogue(titre, L"Voulez-vous EFFACER sélectivement ou globalement les fichiers sélectionnés ?",
                      {L"&SELECTIF", L"&GLOBAL", L"&ANNULER"}, reponse);
}

void Effacement::Attendre_trop_grand(const std::wstring & fichier_capitales, int reponse) {
    Attendre_boite(L"EFFACER",
                   L"Attention ! La taille du fichier '" + fichier_capitales +
                       L"' est plus grande que celle de la corbeille; son effacement entrainera la perte des "
                       L"fichiers déjà présent dans celle-ci.\r"
                       L"Voulez-vous agrandir la taille de la corbeille auparavant ?",
                   MB_YESNO | MB_ICONQUESTION, reponse);
}

void Effacement::Effacer_un(const std::wstring & fichier) {
    Choisir_un(fichier);
    Cliquer(L"Effacer");
    Attendre_effacement(fichier, oui_non, IDYES);
    Attendre_fin_commande();
}

void Effacement::Effacer_globalement() {
    Cliquer(L"Effacer");
    Attendre_mode(2);
    Attendre_fin_commande();
}

void Effacement::Verifier_corbeille(const Noms_fichiers & noms, const std::wstring & index) {
    const auto    lignes = Corbeille::Lignes(index);
    std::uint64_t total  = 0;
    Noms_fichiers lus;
    for (const Corbeille::Ligne & ligne : lignes) lus.push_back(ligne.nom);
    ASSERT_EQ(lus, noms);
    for (const Corbeille::Ligne & ligne : lignes) {
        SCOPED_TRACE(ligne.octets);
        const Fiche & fiche = avant.at(L"\\" + ligne.nom);
        EXPECT_TRUE(std::all_of(ligne.code.begin() + 9, ligne.code.end(), std::iswdigit) &&
                    ligne.code[8] == L'.');
        const int jour = std::stoi(ligne.code.substr(3, 5));
        EXPECT_TRUE(jour == jour_ || jour == Corbeille::Jour()) << jour;
        EXPECT_EQ(ligne.taille, fiche.taille);
        EXPECT_EQ(Utf8(ligne.repertoire), Utf8(source + L"\\"));
        ASSERT_TRUE(Existe(ligne.Chemin_code()));
        EXPECT_EQ(Empreinte(ligne.Chemin_code()), fiche.empreinte);
        EXPECT_EQ(Date(ligne.Chemin_code()), fiche.date);
        EXPECT_EQ(Attributs(ligne.Chemin_code()), fiche.attributs | attributs_corbeille);
        total += ligne.taille;
    }
    EXPECT_EQ(Cle_corbeille("Total"), std::to_string(total));
    EXPECT_TRUE(lignes.empty() || (Attributs(index) & FILE_ATTRIBUTE_HIDDEN) != 0);
    const Noms_fichiers presents = Noms(source);
    EXPECT_EQ(std::count_if(presents.begin(), presents.end(), Est_code),
              static_cast<std::ptrdiff_t>(noms.size()))
        << "un fichier de la corbeille que l'index ne connaît pas";
}

void Effacement::Verifier_restants(const Noms_fichiers & noms) {
    Noms_fichiers presents = Noms(source);
    std::erase_if(presents, Est_code);
    EXPECT_EQ(presents, noms);
    EXPECT_EQ(Entrees(L"Fichier_srce"), noms);
    Arbre anciens, actuels = Lire_arbre(source);
    for (const std::wstring & nom : noms) anciens[L"\\" + nom] = avant.at(L"\\" + nom);
    std::erase_if(actuels, [](const auto & entree) { return Est_code(entree.first.substr(1)); });
    EXPECT_EQ(Differences(anciens, actuels), "");
}

void Effacement::Verifier_reprise(const std::wstring & fichier, const std::wstring & octets) {
    EXPECT_EQ(Choisies(), Noms_fichiers{fichier});
    EXPECT_EQ(Utf8(Lire(L"Ligne_message")),
              Utf8(L"   1 fichier sélectionné, total = " + octets + L" octets."));
    const HWND liste = Controle(L"Fichier_srce");
    EXPECT_EQ(Utf8(Entree(liste, Entree_courante(liste))), Utf8(fichier));
}

std::string Effacement::Cle_corbeille(const std::string & cle) const {
    const std::string contenu = Lire_fichier(Fichier_ini());
    const std::size_t section = contenu.find("[Corbeille]");
    const std::size_t debut =
        contenu.find("\n" + cle + "=", section == std::string::npos ? contenu.size() : section);
    const std::size_t suite = section == std::string::npos ? section : contenu.find("\n[", section);
    if (debut == std::string::npos || debut > suite) return "<absente>";
    const std::size_t valeur = debut + cle.size() + 2;
    return contenu.substr(valeur, contenu.find_first_of("\r\n", valeur) - valeur);
}
