#include "visionneuse/arguments.h"

#include <gtest/gtest.h>

using Noms = std::vector<std::wstring>;

TEST(Arguments, les_blancs_separent_et_les_guillemets_tiennent_ensemble) {
    struct Cas {
        const wchar_t * ligne;
        bool            rejoindre;
        Noms            fichiers;
    };
    const Cas cas[] = {
        {L"", false, {}},
        {L"   ", false, {}},
        {L"\"\" \"   \"", false, {}},
        {L"ovl", true, {}},
        {L"ovl C:\\A.TXT \"C:\\B C.TXT\"", true, {L"C:\\A.TXT", L"C:\\B C.TXT"}},
        {L"  ovl  A", true, {L"A"}},
        {L"A ovl", false, {L"A", L"ovl"}},
        {L"\"ovl\" A", false, {L"ovl", L"A"}},
        {L"ovlA", false, {L"ovlA"}},
        {L"\"A B", false, {L"A B"}},
        {L"C:\\\"Mes docs\"\\a.txt", false, {L"C:\\Mes docs\\a.txt"}},
        {L"A\tB\"\"", false, {L"A", L"B"}},
    };
    for (const Cas & attendu : cas)
        EXPECT_EQ(Lire_arguments(attendu.ligne), (Arguments{attendu.rejoindre, attendu.fichiers}))
            << testing::PrintToString(attendu.ligne);
}

TEST(Arguments, ce_qui_est_emballe_se_deballe_sans_les_noms_blancs) {
    const Noms noms{L"C:\\a b.txt", L"D:\\\u00E9t\u00E9"};
    EXPECT_EQ(Deballer(Emballer(noms)), noms);
    EXPECT_EQ(Emballer({}), L"");
    EXPECT_EQ(Deballer(L""), Noms{});
    EXPECT_EQ(Deballer(std::wstring(L"\0\0a\0 \0b|\0", 8)), (Noms{L"a", L"b|"}));
}
