#include "platform/numeros.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr Acte tous[] = {Acte::ouvrir,   Acte::lire,
                         Acte::ecrire,   Acte::supprimer,
                         Acte::renommer, Acte::creer_repertoire,
                         Acte::lister,   Acte::retirer_repertoire};

struct Sens {
    std::uint32_t code;
    Acte          acte;
    int           numero;
};

void verifier(const std::vector<Sens> & table) {
    for (const Sens & sens : table) {
        EXPECT_EQ(Numero_erreur(sens.code, sens.acte), sens.numero)
            << "code " << sens.code << ", act " << static_cast<int>(sens.acte);
    }
}

}  // namespace

TEST(Numeros, un_code_a_le_meme_numero_pour_tous_les_actes) {
    struct Ligne {
        std::uint32_t code;
        int           numero;
    };
    const std::vector<Ligne> table = {
        {3, 76},    {4, 67},   {8, 7},   {11, 5},   {14, 7},   {15, 68},   {17, 74},   {19, 70},   {21, 71},
        {33, 70},   {38, 62},  {39, 61}, {53, 68},  {55, 68},  {64, 68},   {67, 68},   {112, 61},  {123, 64},
        {145, 75},  {161, 64}, {193, 5}, {206, 64}, {267, 76}, {1005, 71}, {1112, 71}, {1167, 71}, {1231, 68},
        {1295, 61}, {23, 57},  {25, 57}, {27, 57},  {29, 57},  {30, 57},   {31, 57},   {1117, 57}, {1392, 57},
    };
    for (const Ligne & ligne : table) {
        for (const Acte acte : tous) {
            EXPECT_EQ(Numero_erreur(ligne.code, acte), ligne.numero)
                << "code " << ligne.code << ", act " << static_cast<int>(acte);
        }
    }
}

TEST(Numeros, un_code_inconnu_est_une_erreur_de_peripherique) {
    for (const std::uint32_t code : {0U, 1U, 9999U, 0xFFFFFFFFU}) {
        for (const Acte acte : tous) EXPECT_EQ(Numero_erreur(code, acte), 57) << code;
    }
}

TEST(Numeros, un_acces_refuse_depend_de_ce_qui_se_faisait) {
    verifier({{5, Acte::ouvrir, 70},
              {5, Acte::lire, 70},
              {5, Acte::lister, 70},
              {5, Acte::ecrire, 75},
              {5, Acte::supprimer, 75},
              {5, Acte::renommer, 75},
              {5, Acte::creer_repertoire, 75},
              {5, Acte::retirer_repertoire, 75}});
}

TEST(Numeros, ce_qui_manque_est_un_fichier_ou_un_repertoire) {
    verifier({{2, Acte::ouvrir, 53},
              {2, Acte::supprimer, 53},
              {2, Acte::renommer, 53},
              {2, Acte::lister, 76},
              {2, Acte::creer_repertoire, 76},
              {2, Acte::retirer_repertoire, 76}});
}

TEST(Numeros, ce_qui_existe_deja_est_un_fichier_ou_un_repertoire) {
    for (const std::uint32_t code : {80U, 183U}) {
        verifier({{code, Acte::renommer, 58}, {code, Acte::ouvrir, 58}, {code, Acte::creer_repertoire, 75}});
    }
}

TEST(Numeros, un_repertoire_en_service_ne_se_retire_pas) {
    verifier({{32, Acte::retirer_repertoire, 75},
              {16, Acte::retirer_repertoire, 75},
              {32, Acte::ouvrir, 70},
              {32, Acte::supprimer, 70},
              {32, Acte::renommer, 70}});
}
