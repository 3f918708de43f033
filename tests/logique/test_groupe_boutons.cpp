#include "browser/groupe_boutons.h"

#include <gtest/gtest.h>

namespace {
using Noms = std::vector<std::wstring>;

constexpr std::size_t places = 7;

Noms Numeros(int premier, int dernier) {
    Noms noms;
    for (int i = premier; i <= dernier; ++i) noms.push_back(std::to_wstring(i));
    return noms;
}
}  // namespace

TEST(Groupe_boutons, sans_bouton_montre_le_premier_groupe_vient) {
    EXPECT_EQ(Groupe_suivant(Numeros(1, 16), {}, places), Numeros(1, 7));
    EXPECT_EQ(Groupe_suivant(Numeros(1, 3), {}, places), Numeros(1, 3));
    EXPECT_EQ(Groupe_suivant({}, {}, places), Noms{});
    EXPECT_EQ(Groupe_suivant({}, Numeros(1, 7), places), Noms{});
}

TEST(Groupe_boutons, les_noms_qui_suivent_viennent_et_apres_le_dernier_les_premiers) {
    const Noms noms    = Numeros(1, 16);
    Noms       montres = Groupe_suivant(noms, Numeros(1, 7), places);
    EXPECT_EQ(montres, Numeros(8, 14));
    montres = Groupe_suivant(noms, montres, places);
    EXPECT_EQ(montres, (Noms{L"15", L"16", L"1", L"2", L"3", L"4", L"5"}));
    montres = Groupe_suivant(noms, montres, places);
    EXPECT_EQ(montres, Numeros(6, 12));
}

TEST(Groupe_boutons, des_pas_repetes_montrent_tous_les_noms_et_reviennent_au_premier_groupe) {
    for (int nombre = 1; nombre <= 40; ++nombre) {
        SCOPED_TRACE(nombre);
        const Noms noms    = Numeros(1, nombre);
        const Noms premier = Groupe_suivant(noms, {}, places);
        Noms       montres = premier;
        Noms       vus;
        for (int pas = 0; pas < nombre; ++pas) {
            EXPECT_EQ(montres.size(), std::min<std::size_t>(places, noms.size()));
            EXPECT_EQ(Noms_distincts(montres), montres);
            vus.insert(vus.end(), montres.begin(), montres.end());
            montres = Groupe_suivant(noms, montres, places);
        }
        EXPECT_EQ(Noms_distincts(vus).size(), noms.size());
        EXPECT_EQ(montres, premier);
    }
}

TEST(Groupe_boutons, sept_noms_ou_moins_restent_les_memes) {
    EXPECT_EQ(Groupe_suivant(Numeros(1, 7), Numeros(1, 7), places), Numeros(1, 7));
    EXPECT_EQ(Groupe_suivant(Numeros(1, 2), Numeros(1, 2), places), Numeros(1, 2));
}

TEST(Groupe_boutons, un_nom_retire_entre_temps_ne_fait_pas_perdre_la_place) {
    Noms noms = Numeros(1, 16);
    noms.erase(noms.begin() + 6);
    EXPECT_EQ(Groupe_suivant(noms, Numeros(1, 7), places), Numeros(8, 14));
    EXPECT_EQ(Groupe_suivant(Numeros(20, 40), Numeros(1, 7), places), Numeros(20, 26));
    EXPECT_EQ(Groupe_suivant(Numeros(1, 3), Numeros(1, 7), places), Numeros(1, 3));
}

TEST(Groupe_boutons, un_nom_ecrit_deux_fois_ne_compte_qu_une_fois) {
    EXPECT_EQ(Noms_distincts({L"a", L"b", L"a", L"A", L"b"}), (Noms{L"a", L"b", L"A"}));
    EXPECT_EQ(Noms_distincts({}), Noms{});
}

TEST(Groupe_boutons, le_nom_cite_n_a_plus_la_marque_de_la_touche_d_acces) {
    EXPECT_EQ(Nom_bouton(L"&Editeur"), L"Editeur");
    EXPECT_EQ(Nom_bouton(L"É&té"), L"Été");
    EXPECT_EQ(Nom_bouton(L"Sans"), L"Sans");
    EXPECT_EQ(Nom_bouton(L"Fin&"), L"Fin");
    EXPECT_EQ(Nom_bouton(L"Pelle && râteau"), L"Pelle & râteau");
    EXPECT_EQ(Nom_bouton(L"&&&X"), L"&X");
    EXPECT_EQ(Nom_bouton(L"&"), L"");
    EXPECT_EQ(Nom_bouton(L""), L"");
}
