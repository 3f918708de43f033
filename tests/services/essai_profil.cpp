#include "coupures/interception.h"
#include "platform/poignee.h"
#include "platform/profil.h"
#include "services/banc.h"

#include <sddl.h>

#include <string>
#include <thread>

using namespace Interception;

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

TEST_F(Profil, ce_qui_est_relu_est_ce_qui_a_ete_ecrit) {
    const std::wstring valeurs[] = {L"\"C:\\Program Files\\A.EXE\"",
                                    L"'a'",
                                    L" a ",
                                    L"\"a\" b",
                                    L"a=b;c[d]",
                                    L"été",
                                    std::wstring(1000, L'é'),
                                    L"\"",
                                    L"",
                                    std::wstring(32000, L'à'),
                                    L' ' + std::wstring(31998, L'x') + L' '};
    for (const std::wstring & valeur : valeurs) {
        SCOPED_TRACE(valeur.size());
        EXPECT_EQ(0, Numero_leve([&] { Ecrire_profil(ini_, L"Boutons", L"&Été", valeur); }));
        EXPECT_TRUE(valeur == Lire_profil(ini_, L"Boutons", L"&Été", L"", 65535));
    }
}

TEST_F(Profil, une_valeur_trop_longue_pour_le_systeme_est_refusee_et_se_lit) {
    const std::string avant = "[Boutons]\r\nUn=" + std::string(60000, 'v') + "\r\n";
    Poser(ini_, avant);
    EXPECT_EQ(std::wstring(60000, L'v'), Lire_profil(ini_, L"Boutons", L"Un", L"", 65535));
    EXPECT_EQ(6, Numero_leve([&] { Ecrire_profil(ini_, L"Boutons", L"Un", std::wstring(32001, L'w')); }));
    EXPECT_TRUE(avant == Contenu(ini_));
}

TEST_F(Profil, l_ordre_des_changements_est_celui_de_la_section) {
    Poser(ini_, "[Options]\r\nAide=Oui\r\n[Boutons]\r\nUn=1\r\n; remarque\r\nDeux=2\r\n[Fin]\r\nx=y\r\n");
    Changer_profil(ini_, L"Boutons", {{L"Un", std::nullopt}, {L"Un", L"11"}, {L"Deux", std::nullopt}});
    EXPECT_EQ("[Options]\r\nAide=Oui\r\n[Boutons]\r\n; remarque\r\nUn=11\r\n[Fin]\r\nx=y\r\n", Contenu(ini_));
    EXPECT_FALSE(Present(ini_ + L".krv~"));
}

TEST_F(Profil, un_changement_refuse_laisse_le_fichier_entier) {
    const std::string avant = "[Boutons]\r\nUn=1\r\nDeux=2\r\n";
    Poser(ini_, avant);
    for (const wchar_t * valeur : {L"Ω", L"1\r\nTrois=3"}) {
        EXPECT_EQ(75, Numero_leve([&] {
                      Changer_profil(ini_, L"Boutons", {{L"Un", std::nullopt}, {L"Trois", valeur}});
                  }));
        EXPECT_EQ(avant, Contenu(ini_));
    }
    EXPECT_FALSE(Present(ini_ + L".krv~"));
}

// Killed or refused at any call of its own, the program leaves one of the two files, whole.
TEST_F(Profil, une_mort_ou_une_panne_a_tout_appel_laisse_l_ancien_fichier_ou_le_nouveau) {
    const std::string avant = "[Boutons]\r\nUn=1\r\nDeux=2\r\n[Fin]\r\nx=y\r\n";
    const std::string apres = "[Boutons]\r\nDeux=2\r\nTrois=3\r\n[Fin]\r\nx=y\r\n";
    for (const Effet effet :
         {Effet::mourir_avant, Effet::mourir_pendant, Effet::mourir_apres, Effet::echouer}) {
        bool atteint = true;
        for (unsigned rang = 1; atteint; ++rang) {
            Poser(ini_, avant);
            int erreur              = 0;
            atteint                 = Jouer({effet, rang, ERROR_DISK_FULL, false}, Fin::fil, [&] {
                          erreur = Numero_leve([&] {
                              Changer_profil(ini_, L"Boutons", {{L"Trois", L"3"}, {L"Un", std::nullopt}});
                          });
                      }).atteint;
            const std::string reste = Contenu(ini_);
            EXPECT_TRUE(reste == apres || (reste == avant && (erreur != 0 || effet != Effet::echouer)))
                << rang << " " << reste;
            EXPECT_TRUE(atteint || rang > 5) << rang;
        }
    }
}

TEST_F(Profil, une_copie_abandonnee_ne_gene_pas_et_une_copie_impossible_non_plus) {
    Poser(ini_, "[Boutons]\r\nUn=1\r\n");
    Poser(ini_ + L".krv~", "[Boutons]\r\nAncien=1\r\n");
    Ecrire_profil(ini_, L"Boutons", L"Deux", L"2");
    EXPECT_EQ("[Boutons]\r\nUn=1\r\nDeux=2\r\n", Contenu(ini_));
    EXPECT_FALSE(Present(ini_ + L".krv~"));
    Repertoire(L"ESSAI.INI.krv~");
    Ecrire_profil(ini_, L"Boutons", L"Un", std::nullopt);
    EXPECT_EQ("[Boutons]\r\nDeux=2\r\n", Contenu(ini_));
}

TEST_F(Profil, deux_programmes_qui_ecrivent_en_meme_temps_gardent_les_cles_l_un_de_l_autre) {
    constexpr int nombre = 15;
    Poser(ini_, "[Options]\r\nAide=Oui\r\n");
    const auto ecrire = [this](const wchar_t * section) {
        for (int i = 0; i < nombre; ++i)
            EXPECT_EQ(0,
                      Numero_leve([&] { Ecrire_profil(ini_, section, L"Cle" + std::to_wstring(i), L"x"); }));
    };
    { const std::jthread un(ecrire, L"Un"), deux(ecrire, L"Deux"); }
    for (const wchar_t * section : {L"Un", L"Deux"})
        for (int i = 0; i < nombre; ++i)
            EXPECT_EQ(L"x", Lire_profil(ini_, section, L"Cle" + std::to_wstring(i), L"", 9)) << i;
    EXPECT_EQ(L"Oui", Lire_profil(ini_, L"Options", L"Aide", L"", 9));
    EXPECT_FALSE(Present(ini_ + L".krv~"));
}

// The copy of a program on another machine, which has its own turns.
TEST_F(Profil, la_copie_qu_un_autre_programme_prepare_reste_la_sienne) {
    Poser(ini_, "[Boutons]\r\nUn=1\r\n");
    Poser(ini_ + L".krv~", "[Boutons]\r\nUn=1\r\nAutre=2\r\n");
    const Poignee_fichier prise(CreateFileW((ini_ + L".krv~").c_str(), GENERIC_READ,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                            nullptr));
    Ecrire_profil(ini_, L"Boutons", L"Deux", L"2");
    EXPECT_EQ("[Boutons]\r\nUn=1\r\nDeux=2\r\n", Contenu(ini_));
    EXPECT_EQ("[Boutons]\r\nUn=1\r\nAutre=2\r\n", Contenu(ini_ + L".krv~"));
}

TEST_F(Profil, un_fichier_cache_garde_ses_attributs_ses_remarques_et_l_ordre_de_ses_sections) {
    Poser(ini_, "; tête\r\n[Étrangère]\r\nz=1\r\n[Boutons]\r\n;Un=0\r\nUn=1\r\n[Fin]\r\nx=y\r\n");
    const std::uint32_t attributs = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
    Regler_attributs(ini_, attributs);
    Ecrire_profil(ini_, L"Boutons", L"Un", L"2");
    EXPECT_EQ("; tête\r\n[Étrangère]\r\nz=1\r\n[Boutons]\r\n;Un=0\r\nUn=2\r\n[Fin]\r\nx=y\r\n",
              Contenu(ini_));
    EXPECT_EQ(attributs, Attributs(ini_));
}

// The mark of other users' rights, which a new file in that directory would not have.
TEST_F(Profil, un_fichier_que_d_autres_peuvent_ecrire_le_reste) {
    const auto droits = [](const std::wstring & chemin) {
        std::string octets(1024, '\0');
        DWORD       taille = 0;
        EXPECT_TRUE(
            GetFileSecurityW(chemin.c_str(), DACL_SECURITY_INFORMATION, octets.data(), 1024, &taille));
        return octets.substr(0, taille);
    };
    Poser(ini_, "[Boutons]\r\nUn=1\r\n");
    const std::string    habituels   = droits(ini_);
    PSECURITY_DESCRIPTOR descripteur = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;WD)", SDDL_REVISION_1,
                                                                     &descripteur, nullptr));
    EXPECT_TRUE(SetFileSecurityW(ini_.c_str(), DACL_SECURITY_INFORMATION, descripteur));
    LocalFree(descripteur);
    const std::string donnes = droits(ini_);
    ASSERT_NE(habituels, donnes);
    Ecrire_profil(ini_, L"Boutons", L"Un", L"2");
    EXPECT_EQ("[Boutons]\r\nUn=2\r\n", Contenu(ini_));
    EXPECT_TRUE(donnes == droits(ini_));
}

// The copy's name is longer than what the file's own calls take.
TEST_F(Profil, un_chemin_presque_trop_long_ne_laisse_pas_de_copie) {
    const std::wstring haut = Repertoire(std::wstring(100, L'h'));
    const std::wstring bas  = haut + L"\\" + std::wstring(257 - haut.size() - 11, L'b');
    ASSERT_TRUE(CreateDirectoryW(Prefixe(bas).c_str(), nullptr));
    const std::wstring ini = bas + L"\\ESSAI.INI";
    Poser(ini, "[Boutons]\r\nUn=1\r\n");
    Ecrire_profil(ini, L"Boutons", L"Deux", L"2");
    EXPECT_EQ("[Boutons]\r\nUn=1\r\nDeux=2\r\n", Contenu(ini));
    EXPECT_FALSE(Present(ini + L".krv~"));
}

TEST_F(Profil, un_fichier_ouvert_ailleurs_s_ecrit_sur_place_et_un_fichier_verrouille_le_dit) {
    Poser(ini_, "[Boutons]\r\nUn=1\r\n");
    const auto tenir = [&](DWORD partage) {
        return Poignee_fichier(
            CreateFileW(ini_.c_str(), GENERIC_READ, partage, nullptr, OPEN_EXISTING, 0, nullptr));
    };
    {
        const auto ouvert = tenir(FILE_SHARE_READ | FILE_SHARE_WRITE);
        Ecrire_profil(ini_, L"Boutons", L"Deux", L"2");
        EXPECT_EQ("[Boutons]\r\nUn=1\r\nDeux=2\r\n", Contenu(ini_));
        Exiger_lisible(ini_);
    }
    {
        const auto verrouille = tenir(0);
        EXPECT_EQ(70, Numero_leve([&] { Exiger_lisible(ini_); }));
        EXPECT_EQ(75, Numero_leve([&] { Ecrire_profil(ini_, L"Boutons", L"Trois", L"3"); }));
        EXPECT_EQ(70, Numero_leve([&] { Ecrire_profil(ini_, L"Boutons", L"Un", std::nullopt); }));
    }
    EXPECT_EQ("[Boutons]\r\nUn=1\r\nDeux=2\r\n", Contenu(ini_));
    EXPECT_FALSE(Present(ini_ + L".krv~"));
    Exiger_lisible(Chemin(L"absent.INI"));
}

TEST_F(Profil, un_fichier_en_utf_16_garde_ses_caracteres) {
    const std::wstring texte = L"\uFEFF[Boutons]\r\nUn=Ω\r\n";
    Poser(ini_, std::string(reinterpret_cast<const char *>(texte.data()), texte.size() * 2));
    Ecrire_profil(ini_, L"Boutons", L"Été", L"é");
    EXPECT_EQ(L"é", Lire_profil(ini_, L"Boutons", L"Été", L"", 128));
    const std::string  octets = Contenu(ini_);
    const std::wstring apres(reinterpret_cast<const wchar_t *>(octets.data()), octets.size() / 2);
    EXPECT_EQ(L"\uFEFF[Boutons]\r\nUn=Ω\r\nÉté=é\r\n", apres);
}

// A file of that name in the current directory is another one.
TEST_F(Profil, win_ini_s_ecrit_quel_que_soit_le_repertoire_courant) {
    Poser(Chemin(L"WIN.INI"), "[x]\r\n");
    Regler_attributs(Chemin(L"WIN.INI"), FILE_ATTRIBUTE_READONLY);
    SetCurrentDirectoryW(Racine().c_str());
    for (const wchar_t * valeur : {L"\"C:\\A.EXE\" ^.krv", L"'C:\\A.EXE ^.krv'", L" C:\\A.EXE ^.krv"}) {
        Changer_profil(L"WIN.INI", L"Extensions", {{L"krv", std::nullopt}, {L"krv", valeur}});
        const std::wstring lue = Lire_profil(L"", L"Extensions", L"krv", L"", 128);
        // Some systems drop a blank in front, there alone.
        EXPECT_TRUE(lue == valeur || (valeur[0] == L' ' && lue == valeur + 1));
    }
    // A failure gives the key its value back.
    EXPECT_EQ(
        75, Numero_leve([] {
            Changer_profil(L"WIN.INI", L"Essai des services", {{L"cle", L"1"}});
            Changer_profil(L"WIN.INI", L"Essai des services", {{L"cle", std::nullopt}, {L"x", L"1\r\n2"}});
        }));
    EXPECT_EQ(L"1", Lire_profil(L"", L"Essai des services", L"cle", L"", 128));
    WriteProfileStringW(L"Essai des services", nullptr, nullptr);
    Ecrire_profil(L"WIN.INI", L"Extensions", L"krv", std::nullopt);
    EXPECT_EQ(L"", Lire_profil(L"", L"Extensions", L"krv", L"", 128));
    Regler_attributs(Chemin(L"WIN.INI"), FILE_ATTRIBUTE_NORMAL);
}

ESSAI_UNITE(A, sur_un_disque_plein_les_reglages_restent_entiers) {
    Vider_repertoire(L"a:");
    std::string avant = "[Boutons]\r\nUn=1\r\n[Options]\r\n";
    for (int i = 0; i < 400; ++i) avant += "Cle" + std::to_string(i) + "=valeur\r\n";
    Poser(L"a:\\ESSAI.INI", avant);
    ULARGE_INTEGER libre{};
    GetDiskFreeSpaceExW(L"a:\\", &libre, nullptr, nullptr);
    for (const std::uint64_t reste : {0, 4096, 8192, 12288}) {
        Poser(L"a:\\plein", std::string(static_cast<std::size_t>(libre.QuadPart - reste), 'x'));
        EXPECT_EQ(61, Numero_leve([] {
                      Ecrire_profil(L"a:\\ESSAI.INI", L"Boutons", L"Un", std::wstring(6000, L'v'));
                  }));
        EXPECT_TRUE(avant == Contenu(L"a:\\ESSAI.INI")) << reste;
        EXPECT_FALSE(Present(L"a:\\ESSAI.INI.krv~"));
    }
    Vider_repertoire(L"a:");
}

// The copy cannot be made, and writing in place would cut the file.
ESSAI_UNITE(A, un_disque_plein_laisse_les_reglages_entiers_quand_aucune_copie_n_est_possible) {
    const std::wstring ini   = L"A:\\ESSAI.INI";
    const std::string  avant = "[Boutons]\r\nUn=1\r\n";
    Vider_repertoire(L"A:\\");
    Poser(ini, avant);
    ASSERT_TRUE(CreateDirectoryW((ini + L".krv~").c_str(), nullptr));
    ULARGE_INTEGER libre{};
    ASSERT_TRUE(GetDiskFreeSpaceExW(L"A:\\", &libre, nullptr, nullptr));
    Poser(L"A:\\BOURRE.DAT", std::string(static_cast<std::size_t>(libre.QuadPart), 'x'));
    for (const wchar_t * nom : {L"A:\\ESSAI.INI", L"A:\\NOUVEAU.INI"})
        EXPECT_EQ(61, Numero_leve([&] {
                      Changer_profil(nom, L"Boutons", {{L"Deux", std::wstring(6000, L'x')}});
                  }));
    EXPECT_EQ(avant, Contenu(ini));
    EXPECT_FALSE(Present(L"A:\\NOUVEAU.INI"));
    Vider_repertoire(L"A:\\");
}

}  // namespace
