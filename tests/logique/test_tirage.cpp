#include "recycle/tirage.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <vector>

namespace {
// Gives these numbers one after the other, then the last one for ever.
Hasard Suite(std::vector<double> nombres) {
    return [nombres = std::move(nombres), i = std::size_t{0}]() mutable {
        return i + 1 < nombres.size() ? nombres[i++] : nombres.back();
    };
}
}  // namespace

TEST(Tirage, le_numero_est_la_partie_entiere_de_mille_fois_le_nombre) {
    const Numeros_pris aucun;
    EXPECT_EQ(aucun.Tirer(Suite({0.0})), 0);
    EXPECT_EQ(aucun.Tirer(Suite({0.0075})), 7);
    EXPECT_EQ(aucun.Tirer(Suite({0.9999})), 999);
}

TEST(Tirage, un_numero_pris_est_tire_de_nouveau) {
    Numeros_pris pris;
    pris.Prendre(7);
    pris.Prendre(500);
    EXPECT_EQ(pris.Tirer(Suite({0.0075, 0.5005, 0.1235})), 123);
}

TEST(Tirage, un_hasard_qui_se_repete_finit_par_donner_un_numero_libre) {
    Numeros_pris pris;
    for (int n = 990; n < 1000; ++n) pris.Prendre(n);
    EXPECT_EQ(pris.Tirer(Suite({0.995})), 0);
}

TEST(Tirage, un_hasard_hors_de_ses_bornes_donne_un_numero_valable) {
    const Numeros_pris aucun;
    for (const double n :
         {-1.0, 1.0, 7.5, -1e300, 1e300, std::nan(""), std::numeric_limits<double>::infinity()}) {
        const auto numero = aucun.Tirer(Suite({n}));
        ASSERT_TRUE(numero) << n;
        EXPECT_TRUE(*numero >= 0 && *numero < Numeros_pris::nombre) << n;
    }
}

TEST(Tirage, mille_tirages_donnent_mille_numeros_et_le_suivant_aucun) {
    Numeros_pris  pris;
    std::set<int> vus;
    double        n = 0;
    for (int i = 0; i < Numeros_pris::nombre; ++i) {
        const auto numero = pris.Tirer([&] { return n = std::fmod(n + 0.618034, 1.0); });
        ASSERT_TRUE(numero) << i;
        EXPECT_TRUE(vus.insert(*numero).second) << *numero;
        pris.Prendre(*numero);
    }
    EXPECT_TRUE(pris.Tous());
    EXPECT_FALSE(pris.Tirer(Suite({0.5})));
}

TEST(Tirage, les_noms_codes_du_jour_sont_reconnus_sans_egard_a_la_casse) {
    EXPECT_EQ(Numero_du_jour(L"crb35000.007", 35000), 7);
    EXPECT_EQ(Numero_du_jour(L"CRB35000.999", 35000), 999);
    for (const wchar_t * autre : {L"", L"crb35001.007", L"crb35000.07", L"crb35000.0077", L"crb35000.x07",
                                  L"crb35000_007", L"xrb35000.007", L"crb35000.007 "})
        EXPECT_FALSE(Numero_du_jour(autre, 35000)) << testing::PrintToString(std::wstring(autre));
}
