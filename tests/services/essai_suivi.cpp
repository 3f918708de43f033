#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "recycle/magasin.h"
#include "services/banc.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr std::int32_t jour = 45000;

bool Toujours() { return true; }

// A directory of the bench takes another name while the bin holds files of it.
class Suivi : public Banc {
protected:
    Suivi() {
        for (const wchar_t * nom : {L"index", L"haut", L"haut\\bas", L"haut bis"}) Repertoire(nom);
        magasin.Ouvrir({Chemin(L"index")});
        for (const wchar_t * dossier : {L"haut bis", L"haut", L"haut\\bas"}) Faire_et_deposer(dossier);
    }
    void Faire_et_deposer(const std::wstring & dossier) {
        std::size_t deposes = 0;
        Fichier(dossier + L"\\a.txt");
        magasin.Deposer({{L"a.txt", Chemin(dossier), 7}}, jour, Toujours, deposes);
    }
    void Renommer(const std::wstring & ancien, const std::wstring & nouveau) {
        magasin.Suivre_repertoire(Chemin(ancien), Chemin(nouveau),
                                  [&] { Renommer_fichier(Chemin(ancien), Chemin(nouveau)); });
    }
    std::vector<std::wstring> Repertoires() const {
        std::vector<std::wstring> lus;
        for (const Fiche & fiche : magasin.Fiches())
            lus.push_back(fiche.repertoire.substr(Racine().size() + 1));
        return lus;
    }
    void Tout_rendre() {
        std::vector<std::size_t> tous(magasin.Fiches().size());
        for (std::size_t i = 0; i < tous.size(); ++i) tous[i] = i;
        magasin.Restaurer(tous, Toujours);
    }
    std::size_t Lignes() const {
        const std::string octets = Contenu(Chemin(L"index\\KORVANE.CRB"));
        return static_cast<std::size_t>(std::count(octets.begin(), octets.end(), '\n'));
    }

    Magasin magasin;
};

using Noms_lus = std::vector<std::wstring>;

}  // namespace

TEST_F(Suivi, les_fichiers_du_repertoire_et_de_dessous_se_recuperent_sous_son_nouveau_nom) {
    Renommer(L"haut", L"Ωμέγα 2");
    EXPECT_EQ(Repertoires(), (Noms_lus{L"haut bis\\", L"Ωμέγα 2\\", L"Ωμέγα 2\\bas\\"}));
    EXPECT_EQ(magasin.Total(), 21u);
    Tout_rendre();
    for (const wchar_t * nom : {L"haut bis\\a.txt", L"Ωμέγα 2\\a.txt", L"Ωμέγα 2\\bas\\a.txt"})
        EXPECT_TRUE(Fichier_existe(Chemin(nom)));
    EXPECT_TRUE(magasin.Fiches().empty());
    EXPECT_EQ(Lignes(), 0u);
}

TEST_F(Suivi, un_autre_programme_relit_les_memes) {
    Renommer(L"haut", L"neuf");
    const Noms_lus attendus = Repertoires();
    magasin.Fermer();
    magasin.Ouvrir({Chemin(L"index")});
    EXPECT_EQ(Repertoires(), attendus);
}

TEST_F(Suivi, deux_fois_de_suite_et_retour_au_premier_nom) {
    Renommer(L"haut", L"un");
    Renommer(L"un", L"deux");
    Renommer(L"deux", L"haut");
    EXPECT_EQ(Repertoires().size(), 3u);
    Tout_rendre();
    EXPECT_TRUE(Fichier_existe(Chemin(L"haut\\a.txt")));
    EXPECT_TRUE(Fichier_existe(Chemin(L"haut\\bas\\a.txt")));
}

TEST_F(Suivi, la_casse_seule_ne_touche_pas_a_l_index) {
    const std::string avant = Contenu(Chemin(L"index\\KORVANE.CRB"));
    Renommer(L"haut", L"HAUT");
    EXPECT_EQ(Contenu(Chemin(L"index\\KORVANE.CRB")), avant);
    Tout_rendre();
    EXPECT_TRUE(Fichier_existe(Chemin(L"HAUT\\bas\\a.txt")));
}

TEST_F(Suivi, un_renommage_refuse_ne_laisse_aucune_ligne) {
    const std::string avant = Contenu(Chemin(L"index\\KORVANE.CRB"));
    EXPECT_THROW(Renommer(L"haut", L"haut bis"), Erreur_execution);
    EXPECT_EQ(Contenu(Chemin(L"index\\KORVANE.CRB")), avant);
    EXPECT_EQ(Repertoires(), (Noms_lus{L"haut bis\\", L"haut\\", L"haut\\bas\\"}));
}

TEST_F(Suivi, une_coupure_avant_le_renommage_laisse_les_fichiers_sous_l_ancien_nom) {
    const std::string avant = Contenu(Chemin(L"index\\KORVANE.CRB"));
    EXPECT_THROW(magasin.Suivre_repertoire(Chemin(L"haut"), Chemin(L"neuf"),
                                           [&] {
                                               EXPECT_EQ(Lignes(), 5u) << "les deux noms";
                                               // What a start would make of the index as it is at this instant.
                                               Magasin autre;
                                               Poser(Repertoire(L"copie") + L"\\KORVANE.CRB",
                                                     Contenu(Chemin(L"index\\KORVANE.CRB")));
                                               autre.Ouvrir({Chemin(L"copie")});
                                               EXPECT_EQ(autre.Fiches(), magasin.Fiches());
                                               EXPECT_EQ(Contenu(Chemin(L"copie\\KORVANE.CRB")), avant);
                                               throw Erreur_execution(Numero::acces_fichier, 5, {});
                                           }),
                 Erreur_execution);
    EXPECT_EQ(Lignes(), 3u);
}

TEST_F(Suivi, une_coupure_apres_le_renommage_laisse_l_ordre_d_effacement) {
    const std::wstring index = Chemin(L"index\\KORVANE.CRB");
    std::string        coupe;
    magasin.Suivre_repertoire(Chemin(L"haut bis"), Chemin(L"zz"), [&] {
        Renommer_fichier(Chemin(L"haut bis"), Chemin(L"zz"));
        coupe = Contenu(index);
    });
    magasin.Fermer();
    const std::string acheve = Contenu(index);
    Regler_attributs(index, FILE_ATTRIBUTE_NORMAL);
    Poser(index, coupe);
    magasin.Ouvrir({Chemin(L"index")});
    EXPECT_EQ(Repertoires(), (Noms_lus{L"zz\\", L"haut\\", L"haut\\bas\\"}));
    EXPECT_EQ(Contenu(index), acheve);
    EXPECT_EQ(Lignes(), 3u);
}

TEST_F(Suivi, une_purge_apres_le_renommage_detruit_le_plus_ancien) {
    Renommer(L"haut bis", L"zz");
    EXPECT_EQ(Repertoires(), (Noms_lus{L"zz\\", L"haut\\", L"haut\\bas\\"}));
    int demandes = 0;
    magasin.Purger({0, 1}, jour + 100, [&] { return ++demandes > 1; });
    EXPECT_EQ(Repertoires(), (Noms_lus{L"haut\\", L"haut\\bas\\"}));
    EXPECT_EQ(Lignes(), 2u);
    magasin.Purger({0, 1}, jour + 100, Toujours);
    Tout_rendre();
    EXPECT_TRUE(Fichier_existe(Chemin(L"haut\\bas\\a.txt")));
    EXPECT_FALSE(Fichier_existe(Chemin(L"haut\\a.txt")));
}

// The same name, length and coded name in two directories that are both there are two files.
TEST_F(Suivi, deux_fichiers_pareils_de_deux_repertoires_restent_deux) {
    magasin.Fermer();
    std::string racine;
    for (const wchar_t lettre : Racine()) racine += static_cast<char>(lettre);
    const std::string lignes = "crb45000.001 00000007 x.txt " + racine + "\\haut\\\r\n" +
                               "crb45000.001 00000007 x.txt " + racine + "\\haut bis\\\r\n" +
                               "crb45000.001 00000007 x.txt " + racine + "\\parti\\\r\n";
    Regler_attributs(Chemin(L"index\\KORVANE.CRB"), FILE_ATTRIBUTE_NORMAL);
    Poser(Chemin(L"index\\KORVANE.CRB"), lignes);
    for (const wchar_t * dossier : {L"haut", L"haut bis"}) Fichier(dossier + std::wstring(L"\\crb45000.001"));
    magasin.Ouvrir({Chemin(L"index")});
    EXPECT_EQ(Repertoires(), (Noms_lus{L"haut\\", L"haut bis\\", L"parti\\"}));
    EXPECT_EQ(Contenu(Chemin(L"index\\KORVANE.CRB")), lignes);
}

// What was deleted since the index was read is not followed as if it were there, nor listed under a directory that is gone.
TEST_F(Suivi, une_fiche_qui_a_perdu_son_fichier_ne_suit_pas_son_repertoire) {
    const std::wstring code = magasin.Fiches().at(2).Chemin_code();
    Regler_attributs(code, FILE_ATTRIBUTE_NORMAL);
    ASSERT_TRUE(DeleteFileW(code.c_str()));
    Renommer(L"haut", L"neuf");
    EXPECT_EQ(Repertoires(), (Noms_lus{L"haut bis\\", L"neuf\\"}));
    EXPECT_EQ(Lignes(), 2u);
}

// A directory that is gone and another that has one of its records, not all, are two directories.
TEST_F(Suivi, un_repertoire_qui_n_a_pas_toutes_les_fiches_d_un_autre_n_en_est_pas_le_nouveau_nom) {
    magasin.Fermer();
    std::string racine;
    for (const wchar_t lettre : Racine()) racine += static_cast<char>(lettre);
    const std::string lignes = "crb45000.001 00000007 x.txt " + racine + "\\parti\\\r\n" +
                               "crb45000.002 00000007 y.txt " + racine + "\\parti\\\r\n" +
                               "crb45000.001 00000007 x.txt " + racine + "\\haut\\\r\n";
    Regler_attributs(Chemin(L"index\\KORVANE.CRB"), FILE_ATTRIBUTE_NORMAL);
    Poser(Chemin(L"index\\KORVANE.CRB"), lignes);
    Fichier(L"haut\\crb45000.001");
    magasin.Ouvrir({Chemin(L"index")});
    EXPECT_EQ(Repertoires(), (Noms_lus{L"parti\\", L"parti\\", L"haut\\"}));
    EXPECT_EQ(Contenu(Chemin(L"index\\KORVANE.CRB")), lignes);
}

// Both names of a directory of a drive that does not answer: its files are listed once, and both lines kept.
TEST_F(Suivi, deux_noms_d_un_repertoire_d_une_unite_absente_ne_se_listent_qu_une_fois) {
    magasin.Fermer();
    const std::string lignes = "crb45000.001 00000007 x.txt q:\\ancien\\bas\\\r\n"
                               "crb45000.001 00000007 x.txt q:\\nouveau\\bas\\\r\n"
                               "crb45000.001 00000007 x.txt q:\\ailleurs\\\r\n";
    Regler_attributs(Chemin(L"index\\KORVANE.CRB"), FILE_ATTRIBUTE_NORMAL);
    Poser(Chemin(L"index\\KORVANE.CRB"), lignes);
    magasin.Ouvrir({Chemin(L"index")});
    ASSERT_EQ(magasin.Fiches().size(), 2u);
    EXPECT_EQ(magasin.Total(), 14u);
    EXPECT_EQ(Contenu(Chemin(L"index\\KORVANE.CRB")), lignes);
}

// The rewrite that follows the renaming fails; the next one knows the former line of what was given back in between.
TEST_F(Suivi, un_fichier_rendu_apres_une_reecriture_manquee_ne_revient_pas_sous_l_ancien_nom) {
    const std::wstring index = Chemin(L"index\\KORVANE.NEW");
    magasin.Suivre_repertoire(Chemin(L"haut bis"), Chemin(L"zz"), [&] {
        Renommer_fichier(Chemin(L"haut bis"), Chemin(L"zz"));
        Repertoire(L"index\\KORVANE.NEW");  // in the way of the rewrite
    });
    EXPECT_EQ(Lignes(), 4u);
    EXPECT_EQ(Repertoires(), (Noms_lus{L"zz\\", L"haut\\", L"haut\\bas\\"}));
    ASSERT_TRUE(RemoveDirectoryW(index.c_str()));
    magasin.Restaurer({0}, Toujours);
    EXPECT_TRUE(Fichier_existe(Chemin(L"zz\\a.txt")));
    EXPECT_EQ(Repertoires(), (Noms_lus{L"haut\\", L"haut\\bas\\"}));
    EXPECT_EQ(Lignes(), 2u);
}
