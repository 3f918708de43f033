#include "fenetres/montre.h"

#include <sstream>

using namespace Pilote;

void Montre::Lancer_vitrine(const std::vector<std::wstring> & arguments) {
    std::wstring ligne = L"\"journal=" + journal_ + L"\"";
    for (const std::wstring & argument : arguments) ligne += L" \"" + argument + L"\"";
    Ecarter_pointeur();
    programme = std::make_unique<Programme>(Repertoire_essais() + L"\\vitrine.exe", ligne, dossier.Chemin());
    Attendre_pret();
}

std::vector<std::wstring> Montre::Journal() const {
    std::vector<std::wstring> lignes;
    if (!Existe(journal_)) return lignes;
    std::istringstream octets(Lire_fichier(journal_));
    for (std::string ligne; std::getline(octets, ligne);) lignes.push_back(Large(ligne));
    return lignes;
}

void Montre::Attendre_ligne(const std::wstring & ligne) const {
    const auto derniere = [&] {
        const auto lignes = Journal();
        return lignes.empty() ? std::wstring() : lignes.back();
    };
    EXPECT_TRUE(Attendre([&] { return derniere() == ligne; }))
        << "dernière ligne \"" << Utf8(derniere()) << "\", attendue \"" << Utf8(ligne) << "\"";
}
