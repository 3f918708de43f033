#include "fenetres/programmes_lances.h"

#include <sstream>

using namespace Pilote;

namespace {
constexpr const wchar_t * variable     = L"KORVANE_ENREGISTREMENT";
constexpr unsigned        delai_depart = 20000;  // milliseconds; a busy machine starts programs slowly
}  // namespace

Programmes_lances::Programmes_lances() { SetEnvironmentVariableW(variable, enregistrement_.c_str()); }

Programmes_lances::~Programmes_lances() { SetEnvironmentVariableW(variable, nullptr); }

void Programmes_lances::Installer_enregistreur(const std::wstring & chemin) const {
    const std::wstring modele = Repertoire_essais() + L"\\enregistreur.exe";
    Creer_dossier(chemin.substr(0, chemin.rfind(L'\\')));
    ASSERT_TRUE(Lier(modele, chemin) || CopyFileW(modele.c_str(), chemin.c_str(), TRUE)) << Utf8(chemin);
}

void Programmes_lances::Installer_lot(const std::wstring & chemin, const std::wstring & enregistreur,
                                      const std::wstring & arguments) {
    Creer_fichier(chemin, "@\"" + Utf8(enregistreur) + "\" " + Utf8(arguments) + "\r\n");
}

std::vector<Programmes_lances::Lance> Programmes_lances::Lire_enregistrement() const {
    std::vector<Lance> lances;
    if (!Existe(enregistrement_)) return lances;
    std::istringstream texte(Lire_fichier(enregistrement_));
    // The end of a line is written last.
    for (std::string ligne; std::getline(texte, ligne) && !texte.eof();) {
        std::istringstream champs(ligne);
        std::string        chemin, commande, repertoire, etat;
        std::getline(champs, chemin, '\t');
        std::getline(champs, commande, '\t');
        std::getline(champs, repertoire, '\t');
        std::getline(champs, etat, '\t');
        lances.push_back({Large(chemin), Large(commande), Large(repertoire), std::stoi(etat)});
    }
    return lances;
}

std::vector<Programmes_lances::Lance> Programmes_lances::Attendre_lances(std::size_t nombre) const {
    Reposer(Principale());
    EXPECT_TRUE(Attendre([&] { return Lire_enregistrement().size() >= nombre; }, delai_depart))
        << Lire_enregistrement().size() << " programmes lancés au lieu de " << nombre;
    auto lances = Lire_enregistrement();
    EXPECT_LE(lances.size(), nombre) << Utf8(lances.empty() ? std::wstring() : lances.back().ligne);
    return lances;
}

void Programmes_lances::Attendre_lance(const std::wstring & ligne, const std::wstring & repertoire,
                                       int etat) {
    const auto lances = Attendre_lances(++vus_);
    ASSERT_EQ(lances.size(), vus_);
    EXPECT_EQ(Utf8(lances.back().ligne), Utf8(ligne));
    EXPECT_EQ(Utf8(Capitales(lances.back().repertoire)), Utf8(Capitales(repertoire)));
    EXPECT_EQ(lances.back().etat, etat);
}
