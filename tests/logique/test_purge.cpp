#include "recycle/purge.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr std::int32_t aujourd_hui = 45000;
constexpr std::int64_t ko          = 1024;

struct Efface {
    std::int64_t taille;
    std::int32_t age;  // days
};

struct Cas {
    const char *        nom;
    Limites_corbeille   limites;
    std::vector<Efface> fichiers;  // oldest first
    const char *        attendu;   // one letter a file: g kept, d destroyed
};

std::string Purger(const Cas & cas) {
    std::vector<Fiche> fiches;
    for (const Efface & fichier : cas.fichiers)
        fiches.push_back({Nom_code(aujourd_hui - fichier.age, 0), static_cast<std::uint64_t>(fichier.taille),
                          L"x", L"C:\\"});
    std::string resultat;
    for (const bool part : A_detruire(fiches, cas.limites, aujourd_hui)) resultat += part ? 'd' : 'g';
    return resultat;
}

const Cas table[] = {
    {"vide", {1, 0}, {}, ""},
    {"aucune limite", {0, 0}, {{5000, 900}, {5000, 900}}, "gg"},
    {"limites négatives", {-1, -1}, {{5000, 900}, {5000, 900}}, "gg"},
    {"un fichier plus grand que la limite", {1, 0}, {{5000, 900}}, "g"},
    {"un fichier périmé", {0, 1}, {{5000, 900}}, "g"},
    {"exactement la limite", {2, 0}, {{ko, 3}, {ko, 2}}, "gg"},
    {"un octet de trop", {2, 0}, {{ko, 3}, {ko, 2}, {1, 1}}, "dgg"},
    {"unités de 1024", {1, 0}, {{1, 3}, {1023, 1}}, "gg"},
    {"les plus anciens seulement", {2, 0}, {{ko, 9}, {ko, 8}, {ko, 7}, {ko, 6}}, "ddgg"},
    {"le dernier trop grand emporte les autres", {1, 0}, {{1, 2}, {1, 1}, {2000, 0}}, "ddg"},
    {"un vide ne libère rien", {1, 0}, {{0, 3}, {1000, 2}, {1000, 1}}, "ddg"},
    {"au temps seul", {0, 10}, {{1, 12}, {1, 11}, {1, 10}, {1, 9}}, "ddgg"},
    {"le dernier jour compte", {0, 1}, {{1, 2}, {1, 1}, {1, 0}}, "dgg"},
    {"le plus récent périmé reste", {0, 5}, {{1, 900}, {1, 800}}, "dg"},
    {"un périmé derrière un récent", {0, 5}, {{1, 2}, {1, 800}, {1, 0}}, "gdg"},
    {"une date à venir", {0, 5}, {{1, -3}, {1, 900}, {1, 0}}, "gdg"},
    {"les deux : dans la taille rien ne part", {9, 5}, {{ko, 900}, {ko, 0}}, "gg"},
    {"les deux : trop grand mais récent", {1, 5}, {{ko, 5}, {ko, 4}, {ko, 3}}, "ggg"},
    {"les deux : trop grand et périmé", {1, 5}, {{ko, 7}, {ko, 6}, {ko, 5}, {ko, 4}}, "ddgg"},
    {"les deux : s'arrête quand la taille est tenue", {2, 5}, {{ko, 9}, {ko, 8}, {ko, 7}}, "dgg"},
    {"au-delà de 16 bits", {9999, 0}, {{ko, 2}, {9999 * ko, 1}}, "dg"},
    {"9999 Ko tout juste", {9999, 0}, {{9998 * ko, 2}, {ko, 1}}, "gg"},
    {"au-delà de 32 bits", {9999, 0}, {{5'000'000'000, 3}, {5'000'000'000, 2}, {ko, 1}}, "ddg"},
    {"limite au-delà de 32 bits", {4'194'304, 0}, {{4'294'967'296, 2}, {0, 1}}, "gg"},
    {"une somme au-delà de 64 bits garde plutôt",
     {1, 0},
     {{INT64_MAX, 4}, {INT64_MAX, 3}, {INT64_MAX, 2}, {1, 1}},
     "ddgg"},
};

}  // namespace

TEST(Purge, chaque_cas_garde_et_detruit_ce_qu_il_doit) {
    for (const Cas & cas : table) EXPECT_EQ(Purger(cas), cas.attendu) << cas.nom;
}

TEST(Purge, mille_fichiers_se_reduisent_a_la_limite) {
    Cas cas{"", {100, 0}, std::vector<Efface>(1000, Efface{ko, 1}), ""};
    EXPECT_EQ(Purger(cas), std::string(900, 'd') + std::string(100, 'g'));
}

TEST(Purge, la_limite_de_taille_se_compare_en_unites_de_1024) {
    const Limites_corbeille limites{9999, 0};
    EXPECT_TRUE(limites.Respectee(10'238'976));
    EXPECT_FALSE(limites.Respectee(10'238'977));
    EXPECT_FALSE((Limites_corbeille{0, 5}.Respectee(0)));
}

TEST(Purge, une_somme_trop_grande_pour_son_type_ne_redevient_pas_petite) {
    EXPECT_EQ(Somme_des_tailles({}), 0u);
    EXPECT_EQ(Somme_des_tailles({{L"", 3, L"", L""}, {L"", 4, L"", L""}}), 7u);
    EXPECT_EQ(Somme_des_tailles({{L"", UINT64_MAX, L"", L""}, {L"", 4, L"", L""}}), UINT64_MAX);
}
