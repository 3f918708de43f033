#include "fenetres/lots.h"

using namespace Pilote;

namespace {

bool Entier(const std::wstring & chemin, std::uint64_t empreinte) {
    return Existe(chemin) && Empreinte(chemin) == empreinte;
}

}  // namespace

Lots::Lots() : modele_(dossier / L"modele") {
    Unite::Vider(L'D');
    for (unsigned i = 0; i < nombre_fichiers; ++i) {
        const std::wstring nom = L"lot" + std::to_wstring(i) + L".dat";
        Creer_fichier_graine(modele_ + L"\\" + nom, 200001u + i * 260003u, i + 1);
        empreintes_[nom] = Empreinte(modele_ + L"\\" + nom);
    }
    Remettre();
}

Lots::~Lots() {
    Fermer();
    Unite::Vider(L'D');
}

void Lots::Remettre() {
    for (const auto & [nom, empreinte] : empreintes_) {
        EXPECT_TRUE(Effacer(L"D:\\" + nom));
        if (!Existe(Source(nom))) CopyFileW((modele_ + L"\\" + nom).c_str(), Source(nom).c_str(), TRUE);
    }
    EXPECT_EQ(Noms(L"D:\\"), std::vector<std::wstring>());
}

unsigned Lots::Mesurer(const std::wstring & bouton) {
    Choisir_tout();
    const ULONGLONG debut = GetTickCount64();
    Commencer(bouton);
    ATTENDRE(Existe(L"D:\\lot0.dat"));
    ATTENDRE(!Sablier());
    const auto duree = static_cast<unsigned>(GetTickCount64() - debut);
    EXPECT_EQ(Compter().arrives, nombre_fichiers);
    Remettre();
    return duree;
}

unsigned Lots::Ajuster(unsigned duree, bool pendant) {
    return pendant ? duree + duree / 8 + 1 : duree * 3 / 4;
}

Lots::Bilan Lots::Compter() const {
    Bilan bilan;
    for (const auto & [nom, empreinte] : empreintes_) {
        const std::wstring cible    = L"D:\\" + nom;
        const bool         en_place = Entier(Source(nom), empreinte);
        const bool         arrive   = Entier(cible, empreinte);
        bilan.perdus += !en_place && !arrive;
        bilan.partiels += !arrive && Existe(cible);
        bilan.arrives += arrive;
        bilan.partis += !Existe(Source(nom));
    }
    return bilan;
}
