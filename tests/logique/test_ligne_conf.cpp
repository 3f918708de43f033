#include "config/ligne_conf.h"

#include <gtest/gtest.h>

TEST(Ligne_conf, le_premier_egal_separe_la_cle_de_la_valeur) {
    const struct {
        const wchar_t * ligne;
        Ligne_conf      attendu;
    } cas[] = {{L"txt=C:\\ED.EXE ^.txt", {L"txt", L"C:\\ED.EXE ^.txt"}},
               {L"&Édition=C:\\A=B.EXE", {L"&Édition", L"C:\\A=B.EXE"}},
               {L"a=", {L"a", L""}},
               {L"=b", {}},
               {L"sans", {}},
               {L"", {}}};
    for (const auto & c : cas)
        EXPECT_EQ(Decouper_ligne(c.ligne), c.attendu) << testing::PrintToString(c.ligne);
    EXPECT_EQ(Ecrire_ligne({L"a", L"b=c"}), L"a=b=c");
}

TEST(Ligne_conf, boutons_permis_pendant_la_saisie) {
    constexpr auto boutons = Section_conf::boutons, selections = Section_conf::selections,
                   associations = Section_conf::associations;
    const struct {
        const wchar_t * ligne;
        Section_conf    section;
        Boutons_permis  attendu;
    } cas[] = {{L"", boutons, {false, false}},           {L"a", boutons, {false, false}},
               {L"=a", boutons, {false, false}},         {L"a=", boutons, {true, false}},
               {L"a=b", boutons, {true, true}},          {L"a=", selections, {false, false}},
               {L"a=*.txt", selections, {false, true}},  {L"txt=", associations, {true, false}},
               {L"txt=a", associations, {true, true}},   {L"t=a", associations, {true, true}},
               {L"html=", associations, {false, false}}, {L"html=a", associations, {false, false}},
               {L"=a", associations, {false, false}}};
    for (const auto & c : cas) {
        EXPECT_EQ(Permettre(c.ligne, c.section), c.attendu) << testing::PrintToString(c.ligne);
    }
}

TEST(Ligne_conf, le_fichier_choisi_compose_la_ligne) {
    EXPECT_EQ(Composer_ligne(L"txt=", L"C:\\APPS\\ED.EXE", Section_conf::associations),
              L"txt=C:\\APPS\\ED.EXE ^.txt");
    EXPECT_EQ(Composer_ligne(L"&Ed=ancien", L"C:\\APPS\\ED.EXE", Section_conf::boutons),
              L"&Ed=C:\\APPS\\ED.EXE");
}
