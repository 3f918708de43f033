#include "platform/profil.h"
#include "services/banc.h"

namespace {

class Profil : public Banc {
protected:
    std::wstring ini_ = Chemin(L"ESSAI.INI");
};

TEST_F(Profil, une_valeur_ecrite_est_relue) {
    Ecrire_profil(ini_, L"Options", L"Iconisé", L"Répertoire d'été");
    EXPECT_EQ(L"Répertoire d'été", Lire_profil(ini_, L"Options", L"Iconisé", L"", 128));
    EXPECT_NE(std::string::npos, Contenu(ini_).find("Iconis\xE9=R\xE9pertoire d'\xE9t\xE9"));
}

TEST_F(Profil, la_valeur_est_coupee_au_tampon) {
    Ecrire_profil(ini_, L"Options", L"Confirme", L"Ouistiti");
    EXPECT_EQ(L"Oui", Lire_profil(ini_, L"Options", L"Confirme", L"Non", 4));
    EXPECT_EQ(L"O", Lire_profil(ini_, L"Options", L"Confirme", L"Non", 2));
}

TEST_F(Profil, le_defaut_sert_pour_une_cle_ou_un_fichier_absents) {
    EXPECT_EQ(L"Racine", Lire_profil(ini_, L"Options", L"Répertoire", L"Racine", 128));
    EXPECT_FALSE(Present(ini_));
    EXPECT_EQ(L"Non", Lire_profil(ini_, L"Options", L"Confirme", L"Non", 4));
}

TEST_F(Profil, une_ecriture_sans_valeur_retire_la_cle) {
    Ecrire_profil(ini_, L"Corbeille", L"Taille", L"500");
    Ecrire_profil(ini_, L"Corbeille", L"Temps", L"30");
    Ecrire_profil(ini_, L"Corbeille", L"Taille", std::nullopt);
    EXPECT_EQ(L"", Lire_profil(ini_, L"Corbeille", L"Taille", L"", 5));
    EXPECT_EQ((std::wstring(L"Temps\0\0", 7)), Lire_cles(ini_, L"Corbeille"));
}

TEST_F(Profil, la_liste_des_cles_finit_par_deux_zeros) {
    EXPECT_EQ(std::wstring(1, L'\0'), Lire_cles(ini_, L"Boutons"));
    Poser(ini_, "[Boutons]\r\nEdit=x\r\n\xC9t\xE9=y\r\n");
    EXPECT_EQ((std::wstring(L"Edit\0Été\0\0", 10)), Lire_cles(ini_, L"Boutons"));
}

TEST_F(Profil, une_liste_plus_longue_que_le_premier_tampon_arrive_entiere) {
    std::string  contenu = "[Boutons]\r\n";
    std::wstring attendu;
    for (int i = 0; i < 2000; ++i) {
        contenu += "Bouton" + std::to_string(i) + "=x\r\n";
        attendu += L"Bouton" + std::to_wstring(i) + std::wstring(1, L'\0');
    }
    Poser(ini_, contenu);
    EXPECT_TRUE(attendu + std::wstring(1, L'\0') == Lire_cles(ini_, L"Boutons"));
}

TEST_F(Profil, un_fichier_protege_refuse_l_ecriture) {
    Poser(ini_, "[Options]\r\nConfirme=Oui\r\n");
    Regler_attributs(ini_, FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(75, Numero_leve([&] { Ecrire_profil(ini_, L"Options", L"Confirme", L"Non"); }));
    EXPECT_EQ("[Options]\r\nConfirme=Oui\r\n", Contenu(ini_));
    EXPECT_EQ(L"Oui", Lire_profil(ini_, L"Options", L"Confirme", L"", 4));
}

TEST_F(Profil, un_repertoire_absent_refuse_l_ecriture) {
    EXPECT_EQ(75,
              Numero_leve([&] { Ecrire_profil(Chemin(L"absent\\X.INI"), L"Options", L"Confirme", L"Non"); }));
}

TEST_F(Profil, ce_que_la_page_de_codes_ne_tient_pas_n_est_pas_ecrit_en_points_d_interrogation) {
    Ecrire_profil(ini_, L"Boutons", L"?", L"autre bouton");
    EXPECT_EQ(75, Numero_leve([&] { Ecrire_profil(ini_, L"Boutons", L"Ω", L"x"); }));
    EXPECT_EQ(75, Numero_leve([&] { Ecrire_profil(ini_, L"Options", L"Editeur", L"Ω.EXE"); }));
    EXPECT_EQ(L"défaut", Lire_profil(ini_, L"Boutons", L"Ω", L"défaut", 128));
    EXPECT_EQ(L"", Lire_profil(ini_, L"Options", L"Editeur", L"", 128));
}

TEST_F(Profil, un_nom_vide_designe_win_ini) {
    Ecrire_profil(L"WIN.INI", L"Essai des services", L"cle", L"valeur");
    EXPECT_EQ(L"valeur", Lire_profil(L"", L"Essai des services", L"cle", L"", 128));
    EXPECT_EQ((std::wstring(L"cle\0\0", 5)), Lire_cles(L"", L"Essai des services"));
    Ecrire_profil(L"WIN.INI", L"Essai des services", L"cle", std::nullopt);
    EXPECT_EQ(L"3", Lire_profil(L"", L"Essai des services", L"cle", L"3", 128));
}

TEST_F(Profil, un_repertoire_hors_de_la_page_de_codes_garde_ses_reglages_ou_le_dit) {
    Repertoire(L"Ωmega");
    const std::wstring ini    = Chemin(L"Ωmega\\ESSAI.INI");
    const int          numero = Numero_leve([&] { Ecrire_profil(ini, L"Options", L"Confirme", L"Oui"); });
    if (numero == 0) {
        EXPECT_EQ(L"Oui", Lire_profil(ini, L"Options", L"Confirme", L"Non", 4));
        EXPECT_TRUE(Present(ini));
    } else {
        EXPECT_EQ(75, numero);
        EXPECT_EQ(L"Non", Lire_profil(ini, L"Options", L"Confirme", L"Non", 4));
    }
}

ESSAI_UNITE(E, des_reglages_sur_un_support_protege_refusent_l_ecriture) {
    EXPECT_EQ(75, Numero_leve([] { Ecrire_profil(L"e:\\ESSAI.INI", L"Options", L"Confirme", L"Oui"); }));
}

}  // namespace
