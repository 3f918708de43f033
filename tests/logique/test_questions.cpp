#include "fileops/questions.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

TEST(Questions, copier_et_deplacer_disent_d_ou_vers_ou) {
    EXPECT_EQ(Question_commande(L"COPIER", L"a.txt", L"c:\\travail", L"d:\\"),
              L"Vous allez COPIER le fichier 'a.txt' du répertoire\rc:\\travail\rvers le répertoire\rd:\\\r"
              L"Confirmez-vous cette commande ?");
}

TEST(Questions, une_commande_sans_destination_dit_seulement_d_ou) {
    EXPECT_EQ(
        Question_commande(L"EFFACER", L"a.txt", L"c:\\travail", L""),
        L"Vous allez EFFACER le fichier 'a.txt' du répertoire\rc:\\travail\rConfirmez-vous cette commande ?");
}

TEST(Questions, le_remplacement_montre_le_fichier_et_le_repertoire) {
    EXPECT_EQ(Question_remplacement(L"ÉTÉ.TXT", L"D:\\COPIES"),
              L"Le fichier ÉTÉ.TXT\rexiste déjà dans le répertoire\rD:\\COPIES\rvoulez-vous le remplacer ?");
}

TEST(Questions, la_copie_sur_place_demande_un_nom) {
    EXPECT_EQ(Question_nom_copie(L"A.TXT"), L"Vous allez copier un fichier dans son propre répertoire,\r"
                                            L"entrez le nom de copie du fichier A.TXT");
}

TEST(Questions, le_nombre_de_disquettes_garde_la_place_de_son_signe) {
    EXPECT_EQ(Question_disquettes(3),
              L"L'ensemble des fichiers sélectionnés vont être copiés sur 3 disquettes de "
              L"1,44 Mo.\rVoulez-vous continuer ?");
}

TEST(Questions, une_unite_trop_petite_est_nommee) {
    EXPECT_EQ(Question_place(L"C:"),
              L"L'ensemble des fichiers sélectionnés ne peut être copiés sur C: , à moins "
              L"qu'il y ait des fichiers en remplacement.\rVoulez-vous continuer ?");
}

TEST(Questions, un_fichier_plus_grand_que_la_corbeille_est_nomme) {
    EXPECT_EQ(Question_trop_grand(L"ÉTÉ.TXT"),
              L"Attention ! La taille du fichier 'ÉTÉ.TXT' est plus grande que celle de la corbeille; son "
              L"effacement entrainera la perte des fichiers déjà présent dans celle-ci.\r"
              L"Voulez-vous agrandir la taille de la corbeille auparavant ?");
}

TEST(Questions, un_repertoire_est_confirme_par_son_chemin) {
    EXPECT_EQ(Question_repertoire(L"SUPPRIMER", L"le répertoire ", L"C:\\ÉTÉ"),
              L"Vous allez SUPPRIMER\rle répertoire C:\\ÉTÉ\r\rConfirmez-vous cette commande ?");
    EXPECT_EQ(Question_repertoire(L"CREER", L"un répertoire sous ", L"C:\\"),
              L"Vous allez CREER\run répertoire sous C:\\\r\rConfirmez-vous cette commande ?");
}

TEST(Questions, le_nombre_de_sous_repertoires_garde_la_place_de_son_signe) {
    EXPECT_EQ(Refus_sous_repertoires(1),
              L"Le répertoire contient  1 sous-répertoire(s),\ril faut d'abord le(s) supprimer.");
    EXPECT_EQ(Refus_sous_repertoires(40000),
              L"Le répertoire contient  40000 sous-répertoire(s),\ril faut d'abord le(s) supprimer.");
}

TEST(Questions, un_nom_est_demande_pour_ce_que_l_on_cree_ou_renomme) {
    EXPECT_EQ(Question_nom_cree(L"C:\\"), L"Entrez le nom du répertoire à créer sous :\rC:\\");
    EXPECT_EQ(Question_nouveau_nom_fichier(L"A.TXT"), L"Entrez le nouveau nom du fichier A.TXT");
    EXPECT_EQ(Question_nouveau_nom_repertoire(L"C:\\ÉTÉ"), L"Entrez le nouveau nom du répertoire :\rC:\\ÉTÉ");
}

TEST(Questions, seules_les_unites_apres_b_ont_une_corbeille) {
    for (const wchar_t * avec : {L"c:\\", L"C:\\travail", L"z:", L"Z:\\a"}) {
        EXPECT_TRUE(Unite_avec_corbeille(avec)) << testing::PrintToString(avec);
    }
    for (const wchar_t * sans :
         {L"a:\\", L"A:\\travail", L"b:\\", L"B:", L"\\\\serveur\\partage", L"", L"c", L"{:\\"}) {
        EXPECT_FALSE(Unite_avec_corbeille(sans)) << testing::PrintToString(sans);
    }
}

TEST(Questions, le_libelle_en_cours_met_la_commande_au_present) {
    EXPECT_EQ(Libelle_en_cours(L"COPIER", L"A.TXT"), L" COPIE le fichier A.TXT ");
    EXPECT_EQ(Libelle_en_cours(L"DEPLACER", L"A.TXT"), L" DEPLACE le fichier A.TXT ");
    EXPECT_EQ(Libelle_en_cours(L"", L"A.TXT"), L"  le fichier A.TXT ");
}

TEST(Place, le_total_doit_rester_en_dessous_de_ce_qui_est_libre) {
    EXPECT_TRUE(Tient(0, 0.001));
    EXPECT_FALSE(Tient(0, 0));
    EXPECT_TRUE(Tient(999'999, 1000));
    EXPECT_FALSE(Tient(1'000'000, 1000));
    EXPECT_FALSE(Tient(1'024'000, 1000));
    EXPECT_TRUE(Tient(5'000'000'000, 5'000'000.001));
    EXPECT_FALSE(Tient(std::numeric_limits<std::uint64_t>::max(), 20e9));
}

TEST(Place, le_nombre_de_disquettes_est_arrondi_au_plus_pres_apres_une_demie) {
    struct Cas {
        std::uint64_t total;
        std::int64_t  disquettes;
    };
    const std::vector<Cas> table = {
        {0, 0},
        {1, 1},
        {729'000, 1},
        {1'457'999, 1},
        {1'458'000, 2},  // 1.5: halves go to the even number
        {1'458'001, 2},
        {2'915'999, 2},
        {2'916'000, 2},  // 2.5
        {2'916'001, 3},
        {4'374'000, 4},  // 3.5
        {14'580'000'000'000, 10'000'000},
    };
    for (const Cas & cas : table) EXPECT_EQ(Disquettes(cas.total), cas.disquettes) << cas.total;
}
