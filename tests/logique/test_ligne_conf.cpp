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
               {L" md =x", {L"md", L"x"}},  // a key has no blanks around it in the file
               {L"&Tout voir= x ", {L"&Tout voir", L" x "}},
               {L"  =x", {L"", L"x"}},
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
               {L"=a", associations, {false, false}},    {L"md = ", associations, {true, false}},
               {L" md=a", associations, {true, true}},   {L"md  =a", associations, {false, false}},
               {L"a= \t", boutons, {true, false}},       {L"a= ", selections, {false, false}},
               {L"  =a", boutons, {false, false}},       {L";a=b", boutons, {false, false}},
               {L" ;a=b", selections, {false, false}},   {L"[a]=b", boutons, {false, false}},
               {L"a;[=b", boutons, {true, true}},        {L"a==", boutons, {true, true}}};
    for (const auto & c : cas) {
        EXPECT_EQ(Permettre(c.ligne, c.section), c.attendu) << testing::PrintToString(c.ligne);
    }
}

TEST(Ligne_conf, le_fichier_choisi_compose_la_ligne) {
    EXPECT_EQ(Composer_ligne(L"txt=", L"C:\\APPS\\ED.EXE", Section_conf::associations),
              L"txt=C:\\APPS\\ED.EXE ^.txt");
    EXPECT_EQ(Composer_ligne(L"&Ed=ancien", L"C:\\APPS\\ED.EXE", Section_conf::boutons),
              L"&Ed=C:\\APPS\\ED.EXE");
    EXPECT_EQ(Composer_ligne(L"md =", L"C:\\ED.EXE", Section_conf::associations), L"md=C:\\ED.EXE ^.md");
}

TEST(Ligne_conf, la_casse_des_lettres_simples_ne_fait_pas_une_autre_cle) {
    EXPECT_TRUE(Meme_cle(L"Tout Voir", L"tOUT vOIR"));
    EXPECT_TRUE(Meme_cle(L"", L""));
    EXPECT_FALSE(Meme_cle(L"Voir", L"Voir1"));
    EXPECT_FALSE(Meme_cle(L"Voir1", L"Voir"));
    EXPECT_FALSE(Meme_cle(L"Été", L"été"));
    EXPECT_FALSE(Meme_cle(L"[", L"{"));
}
