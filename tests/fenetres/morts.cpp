#include "fenetres/lots.h"

#include <cstdio>

using namespace Pilote;

namespace {

constexpr unsigned morts_par_essai = 25;

}  // namespace

// The process is killed at random moments of a move to another drive. A half-made target may stay, since nobody is left to
// remove it: its source must then be whole.
class Morts_D : public Lots, public testing::WithParamInterface<unsigned> {
protected:
    static void TearDownTestSuite() {
        std::printf("%u morts (%u en cours de commande), %u pertes, %u copies inachevées\n", morts_, utiles_,
                    pertes_, partielles_);
    }
    void Verifier(unsigned numero) {
        const Bilan bilan = Compter();
        EXPECT_EQ(bilan.perdus, 0u) << "mort " << numero << ", graine " << GetParam();
        EXPECT_LE(bilan.partiels, 1u) << "mort " << numero << ", graine " << GetParam();
        ++morts_;
        utiles_ += bilan.partis < nombre_fichiers;
        pertes_ += bilan.perdus;
        partielles_ += bilan.partiels;
    }

    static inline unsigned morts_ = 0, utiles_ = 0, pertes_ = 0, partielles_ = 0;
};

TEST_P(Morts_D, chaque_fichier_est_entier_quelque_part) {
    std::mt19937 hasard(GetParam());
    Lancer_vers(L"D:\\");
    unsigned duree = Mesurer(L"Déplacer");
    std::printf("graine %u : Déplacer, %u ms sans mort\n", GetParam(), duree);
    const unsigned avant = utiles_;
    for (unsigned i = 0; i < morts_par_essai && !HasFatalFailure(); ++i) {
        if (programme)
            Relire_source();
        else
            Lancer_vers(L"D:\\");
        Cliquer(L"Sélecte");
        Commencer(L"Déplacer");
        Sleep(hasard() % (duree + 1));
        programme->Tuer();
        Fermer();
        const unsigned comptes = utiles_;
        Verifier(i);
        duree = Ajuster(duree, utiles_ > comptes);
        Remettre();
    }
    EXPECT_GE(utiles_ - avant, morts_par_essai / 4) << "trop peu de morts tombent pendant la commande";
}

INSTANTIATE_TEST_SUITE_P(Graines, Morts_D, testing::Range(101u, 105u));
