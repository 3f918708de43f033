#include "config/valeurs_options.h"

#include <gtest/gtest.h>

namespace {
constexpr const wchar_t * defaut = L"NOTEPAD.EXE";
}  // namespace

TEST(Valeurs_options, un_nom_de_programme_vide_ou_blanc_redevient_celui_par_defaut) {
    const std::wstring douze(12, L' ');
    for (const std::wstring & champ : {std::wstring(), std::wstring(L" "), std::wstring(L" \t "), douze,
                                       std::wstring(300, L' '), douze + L"ED.EXE"}) {
        EXPECT_EQ(Programme_ecrit(champ, defaut), defaut) << champ.size();
    }
    // Read back, these are nothing too.
    for (const wchar_t * champ : {L"\xA0 \xA0", L"\"\"", L" \" \" "})
        EXPECT_EQ(Programme_ecrit(champ, defaut), defaut);
}

TEST(Valeurs_options, un_nom_de_programme_perd_les_blancs_qui_l_entourent_et_eux_seuls) {
    EXPECT_EQ(Programme_ecrit(L"ed.exe", defaut), L"ed.exe");
    EXPECT_EQ(Programme_ecrit(L"  C:\\Mes outils\\Éd 2.exe /x \t", defaut), L"C:\\Mes outils\\Éd 2.exe /x");
    EXPECT_EQ(Programme_ecrit(L" \"C:\\Mes outils\\ed.exe\" ", defaut), L"\"C:\\Mes outils\\ed.exe\"");
    EXPECT_EQ(Programme_ecrit(std::wstring(11, L' ') + L"e", defaut), L"e");
    EXPECT_EQ(Programme_ecrit(L"e" + std::wstring(40, L' '), defaut), L"e");
}

TEST(Valeurs_options, les_deux_mots_du_repertoire_se_lisent_dans_toutes_les_casses) {
    for (const wchar_t * texte : {L"courant", L"Courant", L"COURANT", L"cOuRaNt"})
        EXPECT_EQ(Depart_lu(texte), Depart::courant);
    for (const wchar_t * texte : {L"racine", L"Racine", L"RACINE"})
        EXPECT_EQ(Depart_lu(texte), Depart::racine);
    for (const wchar_t * texte :
         {L"D:\\DATA", L"", L"Couran", L"Courants", L"Racine ", L"C:\\Racine", L"ŗacine"})
        EXPECT_EQ(Depart_lu(texte), Depart::choisi);
}

TEST(Valeurs_options, le_repertoire_s_ecrit_par_un_mot_ou_par_son_chemin_qui_ne_peut_etre_vide) {
    EXPECT_EQ(Depart_ecrit(Depart::racine, L"D:\\DATA"), L"Racine");
    EXPECT_EQ(Depart_ecrit(Depart::courant, L"D:\\DATA"), L"Courant");
    EXPECT_EQ(Depart_ecrit(Depart::choisi, L"D:\\DATA"), L"D:\\DATA");
    EXPECT_EQ(Depart_ecrit(Depart::choisi, L" D:\\Mes données "), L"D:\\Mes données");
    EXPECT_EQ(Depart_ecrit(Depart::choisi, L" \"D:\\Mes données\" "), L"D:\\Mes données");
    EXPECT_EQ(Depart_ecrit(Depart::choisi, L"\""), L"\"");
    EXPECT_EQ(Depart_ecrit(Depart::choisi, L"\" \""), L"Courant");
    EXPECT_EQ(Depart_ecrit(Depart::choisi, L""), L"Courant");
    EXPECT_EQ(Depart_ecrit(Depart::choisi, L"  \t"), L"Courant");
}

TEST(Valeurs_options, oui_et_non_s_ecrivent_en_toutes_lettres) {
    EXPECT_STREQ(Oui_non(true), L"Oui");
    EXPECT_STREQ(Oui_non(false), L"Non");
}
