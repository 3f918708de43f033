#include "fenetres/lots.h"

#include <cstdio>

using namespace Pilote;

namespace {

enum class Geste { clic, echappement, acces };

constexpr unsigned arrets_par_essai = 50;

}  // namespace

// Stops at random moments; each test has a seed of its own, so that its moments can be played again.
class Arrets_D : public Lots, public testing::WithParamInterface<unsigned> {
protected:
    static void TearDownTestSuite() {
        std::printf("%u arrêts (%u en cours de commande), %u pertes, %u copies partielles\n", arrets_,
                    utiles_, pertes_, partielles_);
    }
    void Arreter(Geste geste) {
        switch (geste) {
        case Geste::clic: Commencer(L"Arret"); break;
        case Geste::echappement: Frapper(VK_ESCAPE); break;
        case Geste::acces: Alt(L'a'); break;
        }
    }
    void Attendre_arret() {
        Sleep(10);  // what was sent is under way
        ATTENDRE(Repond(Principale()) && !Sablier());
        ASSERT_TRUE(Boite_absente());
    }
    void Verifier(bool deplace, unsigned numero) {
        const Bilan bilan = Compter();
        EXPECT_EQ(bilan.perdus, 0u) << "arrêt " << numero << ", graine " << GetParam();
        EXPECT_EQ(bilan.partiels, 0u) << "arrêt " << numero << ", graine " << GetParam();
        EXPECT_EQ(bilan.partis, deplace ? bilan.arrives : 0u)
            << "arrêt " << numero << ", graine " << GetParam();
        ++arrets_;
        utiles_ += bilan.arrives < nombre_fichiers;
        pertes_ += bilan.perdus;
        partielles_ += bilan.partiels;
    }

    static inline unsigned arrets_ = 0, utiles_ = 0, pertes_ = 0, partielles_ = 0;
};

TEST_P(Arrets_D, chaque_fichier_reste_entier_et_rien_n_est_entame) {
    const bool      deplace  = GetParam() % 2 == 1;
    const wchar_t * bouton   = deplace ? L"Déplacer" : L"Copier";
    const Geste     gestes[] = {Geste::clic, Geste::echappement, Geste::acces, Geste::clic};
    std::mt19937    hasard(GetParam());
    Lancer_vers(L"D:\\");
    unsigned duree = Mesurer(bouton);
    std::printf("graine %u : %s, %u ms sans arrêt\n", GetParam(), Utf8(bouton).c_str(), duree);
    const unsigned avant = utiles_;
    for (unsigned i = 0; i < arrets_par_essai && !HasFatalFailure(); ++i) {
        if (deplace) Relire_source();
        Cliquer(L"Sélecte");
        Commencer(bouton);
        Sleep(hasard() % (duree + 1));
        Arreter(gestes[i % 4]);
        Attendre_arret();
        const unsigned comptes = utiles_;
        Verifier(deplace, i);
        duree = Ajuster(duree, utiles_ > comptes);
        Remettre();
    }
    EXPECT_GE(utiles_ - avant, arrets_par_essai / 4) << "trop peu d'arrêts tombent pendant la commande";
}

INSTANTIATE_TEST_SUITE_P(Graines, Arrets_D, testing::Range(1u, 7u));
