#include "platform/fichiers.h"
#include "platform/poignee.h"
#include "services/banc.h"

#include <thread>

namespace {

class Modifications : public Banc {};

std::wstring Nom_liste(const std::wstring & repertoire) {
    const auto entrees = Lister(repertoire, false);
    return entrees.size() == 1 ? entrees[0].nom : L"(pas un seul fichier)";
}

TEST_F(Modifications, un_fichier_supprime_disparait) {
    const std::wstring fichier = Fichier(L"Ω nom.txt");
    Supprimer_fichier(fichier);
    EXPECT_FALSE(Present(fichier));
}

TEST_F(Modifications, un_fichier_protege_n_est_pas_supprime) {
    const std::wstring fichier = Fichier(L"protege");
    Regler_attributs(fichier, FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(75, Numero_leve([&] { Supprimer_fichier(fichier); }));
    EXPECT_EQ("contenu", Contenu(fichier));
}

TEST_F(Modifications, une_suppression_refusee_porte_son_numero) {
    const std::wstring    fichier = Fichier(L"tenu");
    const Poignee_fichier tenu(
        CreateFileW(fichier.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_EQ(70, Numero_leve([&] { Supprimer_fichier(fichier); }));
    EXPECT_EQ(53, Numero_leve([&] { Supprimer_fichier(Chemin(L"absent")); }));
    EXPECT_EQ(76, Numero_leve([&] { Supprimer_fichier(Chemin(L"absent\\x")); }));
    EXPECT_EQ(75, Numero_leve([&] { Supprimer_fichier(Racine()); }));
}

TEST_F(Modifications, un_joker_ne_supprime_rien) {
    const std::wstring fichier = Fichier(L"abc");
    EXPECT_NE(0, Numero_leve([&] { Supprimer_fichier(Chemin(L"a?c")); }));
    EXPECT_NE(0, Numero_leve([&] { Supprimer_fichier(Chemin(L"*")); }));
    EXPECT_NE(0, Numero_leve([&] { Renommer_fichier(Chemin(L"a?c"), Chemin(L"x")); }));
    EXPECT_TRUE(Present(fichier));
}

TEST_F(Modifications, un_nom_a_point_final_n_atteint_pas_son_voisin) {
    const std::wstring voisin = Fichier(L"abc", "voisin");
    const std::wstring pointe = Fichier(L"abc.", "pointe");
    Renommer_fichier(pointe, Chemin(L"renomme"));
    EXPECT_EQ("pointe", Contenu(Chemin(L"renomme")));
    Fichier(L"abc.", "encore");
    Supprimer_fichier(pointe);
    EXPECT_EQ("voisin", Contenu(voisin));
}

TEST_F(Modifications, un_fichier_renomme_garde_son_contenu) {
    const std::wstring cible = Chemin(std::wstring(251, L'n') + L".txt");
    Renommer_fichier(Fichier(L"avant"), cible);
    EXPECT_EQ("contenu", Contenu(cible));
    EXPECT_FALSE(Present(Chemin(L"avant")));
}

TEST_F(Modifications, un_fichier_renomme_n_ecrase_rien) {
    const std::wstring source = Fichier(L"source", "s");
    const std::wstring cible  = Fichier(L"cible", "c");
    EXPECT_EQ(58, Numero_leve([&] { Renommer_fichier(source, cible); }));
    EXPECT_EQ(58, Numero_leve([&] { Renommer_fichier(source, Chemin(L"CIBLE")); }));
    EXPECT_EQ("s", Contenu(source));
    EXPECT_EQ("c", Contenu(cible));
}

TEST_F(Modifications, un_renommage_refuse_laisse_tout_en_place) {
    const std::wstring source = Fichier(L"source");
    EXPECT_EQ(76, Numero_leve([&] { Renommer_fichier(source, Chemin(L"absent\\x")); }));
    EXPECT_EQ(53, Numero_leve([&] { Renommer_fichier(Chemin(L"absent"), Chemin(L"x")); }));
    EXPECT_EQ("contenu", Contenu(source));
}

TEST_F(Modifications, changer_la_seule_casse_d_un_nom_fonctionne) {
    const std::wstring source = Fichier(L"été.txt");
    Renommer_fichier(source, Chemin(L"ÉTÉ.TXT"));
    EXPECT_EQ(L"ÉTÉ.TXT", Nom_liste(Racine()));
    EXPECT_EQ("contenu", Contenu(source));
    Renommer_fichier(Chemin(L"ÉTÉ.TXT"), Chemin(L"Été.txt"));
    EXPECT_EQ(L"Été.txt", Nom_liste(Racine()));
}

TEST_F(Modifications, une_casse_changee_sur_un_fichier_tenu_laisse_l_ancien_nom) {
    const std::wstring    source = Fichier(L"tenu");
    const Poignee_fichier tenu(
        CreateFileW(source.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_EQ(70, Numero_leve([&] { Renommer_fichier(source, Chemin(L"TENU")); }));
    EXPECT_EQ(L"tenu", Nom_liste(Racine()));
}

TEST_F(Modifications, un_repertoire_se_renomme_aussi) {
    Renommer_fichier(Repertoire(L"avant"), Chemin(L"apres"));
    EXPECT_TRUE(Present(Chemin(L"apres")));
    Repertoire(L"autre");
    EXPECT_EQ(58, Numero_leve([&] { Renommer_fichier(Chemin(L"apres"), Chemin(L"autre")); }));
}

TEST_F(Modifications, un_remplacement_met_le_nouveau_a_la_place_de_l_ancien) {
    const std::wstring source = Fichier(L"nouveau", "neuf");
    const std::wstring cible  = Fichier(L"ancien", "vieux");
    Remplacer_fichier(source, cible);
    EXPECT_EQ("neuf", Contenu(cible));
    EXPECT_FALSE(Present(source));
}

TEST_F(Modifications, une_cible_protegee_est_remplacee) {
    const std::wstring source = Fichier(L"nouveau", "neuf");
    const std::wstring cible  = Fichier(L"ancien", "vieux");
    Regler_attributs(cible, FILE_ATTRIBUTE_READONLY);
    Remplacer_fichier(source, cible);
    EXPECT_EQ("neuf", Contenu(cible));
}

TEST_F(Modifications, un_remplacement_impossible_laisse_la_cible_et_sa_protection) {
    const std::wstring cible = Fichier(L"ancien", "vieux");
    Regler_attributs(cible, FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(53, Numero_leve([&] { Remplacer_fichier(Chemin(L"absent"), cible); }));
    EXPECT_EQ("vieux", Contenu(cible));
    EXPECT_NE(0u, Attributs(cible) & FILE_ATTRIBUTE_READONLY);
}

TEST_F(Modifications, une_cible_tenue_un_instant_est_attendue) {
    const std::wstring source = Fichier(L"nouveau", "neuf");
    const std::wstring cible  = Fichier(L"ancien", "vieux");
    const HANDLE       h =
        CreateFileW(cible.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    std::thread lecteur([h] {
        Sleep(30);
        CloseHandle(h);
    });
    EXPECT_EQ(0, Numero_leve([&] { Remplacer_fichier(source, cible); }));
    lecteur.join();
    EXPECT_EQ("neuf", Contenu(cible));
}

TEST_F(Modifications, une_cible_tenue_longtemps_est_refusee_en_peu_de_temps) {
    const std::wstring    source = Fichier(L"nouveau", "neuf");
    const std::wstring    cible  = Fichier(L"ancien", "vieux");
    const Poignee_fichier tenu(
        CreateFileW(cible.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    const ULONGLONG debut = GetTickCount64();
    EXPECT_NE(0, Numero_leve([&] { Remplacer_fichier(source, cible); }));
    EXPECT_LT(GetTickCount64() - debut, 1000u);
    EXPECT_EQ("vieux", Contenu(cible));
    EXPECT_EQ("neuf", Contenu(source));
}

TEST_F(Modifications, un_repertoire_se_cree_une_fois) {
    Creer_repertoire(Chemin(L"Ω nouveau"));
    EXPECT_TRUE(Repertoire_existe(Chemin(L"Ω nouveau")));
    EXPECT_EQ(75, Numero_leve([&] { Creer_repertoire(Chemin(L"Ω nouveau")); }));
    EXPECT_EQ(76, Numero_leve([&] { Creer_repertoire(Chemin(L"absent\\x")); }));
    EXPECT_EQ(68, Numero_leve([&] { Creer_repertoire(L"q:\\x"); }));
    Fichier(L"fichier");
    EXPECT_EQ(75, Numero_leve([&] { Creer_repertoire(Chemin(L"fichier")); }));
}

TEST_F(Modifications, un_repertoire_se_cree_et_se_retire_au_dela_de_260_caracteres) {
    const std::wstring chemin = Profond() + L"\\" + std::wstring(200, L'z');
    Creer_repertoire(chemin);
    EXPECT_TRUE(Present(chemin));
    Retirer_repertoire(chemin);
    EXPECT_FALSE(Present(chemin));
}

TEST_F(Modifications, seul_un_repertoire_vide_qui_n_est_pas_courant_se_retire) {
    Repertoire(L"plein");
    Fichier(L"plein\\x");
    Repertoire(L"courant");
    Changer_repertoire(Chemin(L"courant"));
    EXPECT_EQ(75, Numero_leve([&] { Retirer_repertoire(Chemin(L"plein")); }));
    EXPECT_EQ(75, Numero_leve([&] { Retirer_repertoire(Chemin(L"COURANT")); }));
    EXPECT_EQ(76, Numero_leve([&] { Retirer_repertoire(Chemin(L"absent")); }));
    EXPECT_TRUE(Present(Chemin(L"plein")));
    EXPECT_TRUE(Present(Chemin(L"courant")));
}

ESSAI_UNITE(D, un_renommage_vers_un_autre_disque_est_l_erreur_74) {
    const std::wstring source = Fichier(L"source");
    EXPECT_EQ(74, Numero_leve([&] { Renommer_fichier(source, L"d:\\cible_74"); }));
    EXPECT_EQ(74, Numero_leve([&] { Remplacer_fichier(source, L"d:\\cible_74"); }));
    EXPECT_EQ("contenu", Contenu(source));
    EXPECT_FALSE(Present(L"d:\\cible_74"));
}

ESSAI_UNITE(E, rien_ne_change_sur_un_support_protege) {
    const auto fichiers = Lister(L"e:\\", false);
    ASSERT_FALSE(fichiers.empty());
    const std::wstring fichier = L"e:\\" + fichiers[0].nom;
    const std::string  avant   = Contenu(fichier);
    EXPECT_EQ(70, Numero_leve([&] { Supprimer_fichier(fichier); }));
    EXPECT_EQ(70, Numero_leve([&] { Renommer_fichier(fichier, L"e:\\autre"); }));
    EXPECT_EQ(70, Numero_leve([&] { Creer_repertoire(L"e:\\nouveau"); }));
    for (const Entree_repertoire & sous : Lister(L"e:\\", true))
        EXPECT_EQ(70, Numero_leve([&] { Retirer_repertoire(L"e:\\" + sous.nom); }));
    EXPECT_EQ(avant, Contenu(fichier));
    EXPECT_TRUE(Meme_fichier(fichier, fichier));
}

ESSAI_UNITE(F, rien_ne_se_fait_sans_support) {
    EXPECT_EQ(71, Numero_leve([] { Supprimer_fichier(L"f:\\x"); }));
    EXPECT_EQ(71, Numero_leve([] { Creer_repertoire(L"f:\\x"); }));
    EXPECT_EQ(71, Numero_leve([] { Longueur_fichier(L"f:\\x"); }));
    EXPECT_EQ(71, Numero_leve([] { Changer_repertoire(L"f:\\"); }));
}

}  // namespace
