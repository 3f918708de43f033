#include "coupures/interception.h"
#include "platform/canal.h"
#include "services/banc.h"

using namespace Interception;

namespace {

class Canal : public Banc {
protected:
    const std::wstring chemin = Chemin(L"canal.txt");
};

constexpr std::uint32_t cache = FILE_ATTRIBUTE_HIDDEN;

TEST_F(Canal, un_fichier_absent_est_cree_avec_ses_attributs) {
    Canal_ajout canal;
    EXPECT_FALSE(canal.Ouvert());
    canal.Ouvrir(chemin, cache);
    EXPECT_TRUE(canal.Ouvert());
    EXPECT_EQ(0u, canal.Longueur());
    EXPECT_NE(0u, Attributs(chemin) & cache);
    canal.Fermer();
    EXPECT_FALSE(canal.Ouvert());
    EXPECT_TRUE(DeleteFileW(chemin.c_str()));
}

TEST_F(Canal, ce_qui_est_ajoute_vient_a_la_fin_de_ce_qui_est_la) {
    Poser(chemin, "avant\r\n");
    Canal_ajout canal;
    canal.Ouvrir(chemin, 0);
    canal.Ajouter("un\r\n");
    EXPECT_EQ("avant\r\nun\r\n", canal.Lire_tout());
    canal.Ajouter("");
    canal.Ajouter(std::string("d\0x\r\n", 5));
    EXPECT_EQ(16u, canal.Longueur());
    EXPECT_EQ(std::string("avant\r\nun\r\nd\0x\r\n", 16), Contenu(chemin));
}

TEST_F(Canal, ce_qu_un_autre_a_ajoute_n_est_pas_ecrase) {
    Canal_ajout a, b;
    a.Ouvrir(chemin, 0);
    b.Ouvrir(chemin, 0);
    a.Ajouter("a");
    b.Ajouter("b");
    a.Ajouter("A");
    EXPECT_EQ("abA", b.Lire_tout());
}

TEST_F(Canal, couper_revient_a_une_longueur_passee) {
    Canal_ajout canal;
    canal.Ouvrir(chemin, 0);
    canal.Ajouter("garder");
    const std::uint64_t longueur = canal.Longueur();
    canal.Ajouter("jeter");
    canal.Tronquer(longueur);
    EXPECT_EQ("garder", Contenu(chemin));
    canal.Ajouter("!");
    EXPECT_EQ("garder!", Contenu(chemin));
}

TEST_F(Canal, ouvert_il_peut_etre_lu_renomme_et_supprime_par_d_autres) {
    Canal_ajout canal;
    canal.Ouvrir(chemin, 0);
    canal.Ajouter("x");
    EXPECT_EQ("x", Contenu(chemin));
    EXPECT_TRUE(canal.A_sa_place());
    EXPECT_TRUE(MoveFileExW(chemin.c_str(), Chemin(L"ailleurs").c_str(), 0));
    EXPECT_FALSE(canal.A_sa_place());
    Poser(chemin, "un autre");
    EXPECT_FALSE(canal.A_sa_place());
}

TEST_F(Canal, ce_qui_ne_s_ouvre_pas_porte_son_numero) {
    Repertoire(L"repertoire");
    Poser(Chemin(L"protege"), "x");
    Regler_attributs(Chemin(L"protege"), FILE_ATTRIBUTE_READONLY);
    Canal_ajout canal;
    EXPECT_EQ(75, Numero_leve([&] { canal.Ouvrir(Chemin(L"repertoire"), 0); }));
    EXPECT_EQ(76, Numero_leve([&] { canal.Ouvrir(Chemin(L"absent\\x"), 0); }));
    EXPECT_EQ(68, Numero_leve([&] { canal.Ouvrir(L"q:\\x", 0); }));
    EXPECT_NE(0, Numero_leve([&] { canal.Ouvrir(Chemin(L"protege"), 0); }));
    EXPECT_FALSE(canal.Ouvert());
}

TEST_F(Canal, un_chemin_tres_long_s_ouvre) {
    const std::wstring profond = Profond() + L"\\canal.txt";
    Canal_ajout        canal;
    canal.Ouvrir(profond, cache);
    canal.Ajouter("loin");
    EXPECT_EQ("loin", Contenu(profond));
}

TEST_F(Canal, un_ajout_est_une_seule_ecriture_fixee_avant_le_retour) {
    Canal_ajout canal;
    canal.Ouvrir(chemin, 0);
    const Constat constat = Jouer({}, Fin::fil, [&] { canal.Ajouter(Octets_varies(100000)); });
    EXPECT_EQ((std::vector<std::string>{"WriteFile", "FlushFileBuffers"}), constat.noms);
}

TEST_F(Canal, apres_un_ajout_manque_le_fichier_est_comme_avant) {
    for (const Effet effet : {Effet::echouer, Effet::ecrire_court}) {
        for (unsigned rang = 1;; ++rang) {
            Poser(chemin, "avant");
            Canal_ajout canal;
            canal.Ouvrir(chemin, 0);
            int           erreur  = 0;
            const Constat constat = Jouer({effet, rang, ERROR_DISK_FULL, false}, Fin::fil, [&] {
                erreur = Numero_leve([&] { canal.Ajouter("une suite assez longue"); });
            });
            if (!constat.atteint) break;
            if (effet == Effet::ecrire_court && constat.noms[rang - 1] != "WriteFile") continue;
            EXPECT_EQ(61, erreur) << rang;
            EXPECT_EQ("avant", Contenu(chemin)) << rang;
        }
    }
}

TEST_F(Canal, ecrire_un_fichier_le_remplace_en_entier) {
    Poser(chemin, "un vieux contenu plus long");
    Regler_attributs(chemin, FILE_ATTRIBUTE_HIDDEN);
    Ecrire_fichier(chemin, "neuf", cache);
    EXPECT_EQ("neuf", Contenu(chemin));
    EXPECT_NE(0u, Attributs(chemin) & cache);
    Ecrire_fichier(chemin, "", 0);
    EXPECT_EQ("", Contenu(chemin));
    EXPECT_EQ(0u, Attributs(chemin) & cache);
}

TEST_F(Canal, un_fichier_en_lecture_seule_est_remplace_aussi) {
    Poser(chemin, "vieux");
    Regler_attributs(chemin, FILE_ATTRIBUTE_READONLY);
    Ecrire_fichier(chemin, "neuf", 0);
    EXPECT_EQ("neuf", Contenu(chemin));
}

TEST_F(Canal, un_fichier_qui_ne_peut_etre_ecrit_n_est_pas_laisse_a_moitie) {
    const std::string octets = Octets_varies(3000000);
    for (const Effet effet : {Effet::echouer, Effet::ecrire_court}) {
        for (unsigned rang = 1;; ++rang) {
            int           erreur  = 0;
            const Constat constat = Jouer({effet, rang, ERROR_DISK_FULL, false}, Fin::fil, [&] {
                erreur = Numero_leve([&] { Ecrire_fichier(chemin, octets, cache); });
            });
            if (!constat.atteint) break;
            EXPECT_TRUE((erreur != 0 ? "(absent)" : octets) == Contenu(chemin)) << rang;
            Vider_repertoire(Racine());
        }
    }
}

ESSAI_UNITE(A, sur_une_disquette_pleine_l_ajout_est_refuse_et_defait) {
    Vider_repertoire(L"a:");
    Canal_ajout canal;
    canal.Ouvrir(L"a:\\canal", 0);
    canal.Ajouter("une ligne\r\n");
    EXPECT_EQ(61, Numero_leve([&] { canal.Ajouter(Octets_varies(2000000)); }));
    EXPECT_EQ("une ligne\r\n", canal.Lire_tout());
    canal.Fermer();
    EXPECT_EQ(61, Numero_leve([&] { Ecrire_fichier(L"a:\\tout", Octets_varies(2000000), 0); }));
    EXPECT_FALSE(Present(L"a:\\tout"));
    Vider_repertoire(L"a:");
}

ESSAI_UNITE(E, sur_un_support_protege_le_canal_ne_s_ouvre_pas) {
    Canal_ajout canal;
    EXPECT_EQ(70, Numero_leve([&] { canal.Ouvrir(L"e:\\canal", 0); }));
    EXPECT_EQ(70, Numero_leve([&] { canal.Ouvrir(L"e:\\lisez.txt", 0); }));
    EXPECT_FALSE(canal.Ouvert());
}

ESSAI_UNITE(F, sur_une_unite_sans_support_le_canal_ne_s_ouvre_pas) {
    Canal_ajout canal;
    EXPECT_EQ(71, Numero_leve([&] { canal.Ouvrir(L"f:\\canal", 0); }));
}

}  // namespace
