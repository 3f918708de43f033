#include "platform/valeur_profil.h"

#include <gtest/gtest.h>

TEST(Valeur_profil, ce_que_la_lecture_enleverait_est_protege_par_des_guillemets) {
    const struct {
        const wchar_t *valeur, *ecrite;
    } cas[] = {{L"C:\\A=B.EXE ?", L"C:\\A=B.EXE ?"},
               {L"", L""},
               {L" a", L"\" a\""},
               {L"a\t", L"\"a\t\""},
               {L"a\u00A0", L"\"a\u00A0\""},
               {L"\"a b\"", L"\"\"a b\"\""},
               {L"'a'", L"\"'a'\""},
               {L"\"a\" b", L"\"a\" b"},
               {L"\"a'", L"\"a'"},
               {L"\"", L"\""},
               {L"\"\"", L"\"\"\"\""},
               {L" \"a\" ", L"\" \"a\" \""},
               {L"a\x1A", L"\"a\x1A\""}};
    for (const auto & c : cas) {
        EXPECT_EQ(Valeur_protegee(c.valeur), c.ecrite);
        EXPECT_EQ(Valeur_lue(Valeur_protegee(c.valeur)), c.valeur);
    }
}

TEST(Valeur_profil, la_lecture_enleve_les_blancs_puis_une_paire_de_guillemets) {
    const struct {
        const wchar_t *ecrite, *lue;
    } cas[] = {{L"  a b  ", L"a b"}, {L" \"a\" ", L"a"}, {L"\" a \"", L" a "},
               {L"'a'", L"a"},       {L"\"a'", L"\"a'"}, {L"\"\"a\"\"", L"\"a\""},
               {L"  ", L""},         {L"\"", L"\""},     {L"\"\"", L""}};
    for (const auto & c : cas) EXPECT_EQ(Valeur_lue(c.ecrite), c.lue) << testing::PrintToString(c.ecrite);
}
