#include "pilote/unites.h"

#include "pilote/attente.h"
#include "pilote/fichiers.h"
#include "platform/windows.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <stdexcept>

namespace Pilote {

namespace {

// The drives' keeper outside Windows reads a request from a file, and removes it when the answer stands in
// another.
void Commander(const std::wstring & commande) {
    const std::wstring dossier = Environnement(L"KORVANE_UNITES");
    if (dossier.empty()) throw std::runtime_error("aucune unité d'essai pour : " + Utf8(commande));
    const std::wstring demande = dossier + L"\\commande";
    Creer_fichier(demande + L".neuf", Utf8(commande) + "\n");
    MoveFileExW((demande + L".neuf").c_str(), demande.c_str(), MOVEFILE_REPLACE_EXISTING);
    if (!Attendre([&] { return !Existe(demande); }, 20000))
        throw std::runtime_error("sans réponse : " + Utf8(commande));
    const std::string reponse = Lire_fichier(dossier + L"\\reponse");
    if (reponse.substr(0, 4) != "fait") throw std::runtime_error(Utf8(commande) + " : " + reponse);
}

std::wstring Lettre(wchar_t lettre) { return std::wstring(1, static_cast<wchar_t>(lettre | 0x20)); }

// The letters at the end of a suite's name, after its last "_", when they are all drives.
std::string Unites_requises(const std::string & suite) {
    const std::size_t trait = suite.rfind('_');
    if (trait == std::string::npos || trait + 1 == suite.size()) return "";
    const std::string fin = suite.substr(trait + 1);
    return fin.find_first_not_of("ADEFR") == std::string::npos ? fin : "";
}

char Unite_manquante(const std::string & suite) {
    for (char lettre : Unites_requises(suite)) {
        if (!Unite::Presente(static_cast<wchar_t>(lettre))) return lettre;
    }
    return 0;
}

}  // namespace

namespace Unite {

bool Presente(wchar_t lettre) {
    const wchar_t nom[] = {L'K', L'O', L'R', L'V', L'A', L'N', L'E', L'_', lettre, 0};
    return Environnement(nom) == L"1";
}

void Inserer_disquette(int numero) { Commander(L"disquette " + std::to_wstring(numero)); }

void Retirer_disquette() { Commander(L"disquette 0"); }

void Vider(wchar_t lettre) { Commander(L"vider " + Lettre(lettre)); }

void Remplir(wchar_t lettre, std::uint64_t libres) {
    Commander(L"remplir " + Lettre(lettre) + L" " + std::to_wstring(libres));
}

void Proteger(wchar_t lettre, bool protegee) {
    Commander((protegee ? L"proteger " : L"deproteger ") + Lettre(lettre));
}

void Arracher_disque() { Commander(L"arracher d"); }

void Remettre_disque() { Commander(L"remettre d"); }

}  // namespace Unite

void Ecarter_essais_sans_unite() {
    std::string  filtre     = GTEST_FLAG_GET(filter);
    char         separation = filtre.find('-') == std::string::npos ? '-' : ':';
    const auto & ensemble   = *testing::UnitTest::GetInstance();
    for (int i = 0; i < ensemble.total_test_suite_count(); ++i) {
        const testing::TestSuite & suite    = *ensemble.GetTestSuite(i);
        const char                 manquant = Unite_manquante(suite.name());
        if (!manquant) continue;
        for (int j = 0; j < suite.total_test_count(); ++j) {
            std::printf("[ laisse   ] %s.%s (unité %c: absente)\n", suite.name(),
                        suite.GetTestInfo(j)->name(), manquant);
        }
        filtre += separation + std::string(suite.name()) + ".*";
        separation = ':';
    }
    GTEST_FLAG_SET(filter, filtre);
}

}  // namespace Pilote
