#include "app/globals.h"
#include "platform/fichiers.h"
#include "platform/parcours.h"
#include "search/arborescence.h"
#include "search/recherche.h"
#include "services/banc.h"

#include <algorithm>
#include <vector>

namespace {

using Liste = std::vector<std::wstring>;

class Enumeration : public Banc {};

TEST_F(Enumeration, une_visite_qui_refuse_la_suite_est_la_derniere) {
    for (const wchar_t * nom : {L"a", L"b", L"c", L"d"}) Fichier(nom);
    int visites = 0;
    EXPECT_FALSE(Enumerer(Racine(), [&](const Entree_vue &) { return ++visites < 2; }));
    EXPECT_EQ(2, visites);
    EXPECT_TRUE(Enumerer(Racine(), [&](const Entree_vue &) { return ++visites < 100; }));
    EXPECT_EQ(6, visites);
}

TEST_F(Enumeration, chaque_entree_dit_ce_qu_elle_est) {
    Fichier(L"fichier", "12345");
    Repertoire(L"sous");
    Liste vues;
    Enumerer(Racine(), [&](const Entree_vue & vue) {
        EXPECT_FALSE(vue.lien);
        EXPECT_NE(0u, vue.moment);
        vues.push_back(std::wstring(vue.nom) + (vue.repertoire ? L" repertoire" : L" ") +
                       (vue.repertoire ? L"" : std::to_wstring(vue.taille)));
        return true;
    });
    std::sort(vues.begin(), vues.end());
    EXPECT_EQ((Liste{L"fichier 5", L"sous repertoire"}), vues);
}

TEST_F(Enumeration, un_repertoire_vide_n_a_rien_et_un_repertoire_absent_est_une_erreur) {
    Repertoire(L"vide");
    int        vues   = 0;
    const auto visite = [&](const Entree_vue &) { return ++vues != 0; };
    EXPECT_TRUE(Enumerer(Racine() + L"\\vide", visite));
    EXPECT_EQ(0, vues);
    EXPECT_EQ(76, Numero_leve([&] { Enumerer(Racine() + L"\\absent", visite); }));
}

bool Toujours(const Arbre &, std::size_t) { return true; }

Liste Chemins() {
    Liste chemins;
    for (std::size_t i = 0; i < Arborescence().Nombre(); ++i) chemins.push_back(Arborescence().Chemin(i));
    return chemins;
}

void Preparer_d() {
    Vider_repertoire(L"d:");
    for (const wchar_t * nom : {L"d:\\zone", L"d:\\Alpha", L"d:\\été", L"d:\\zone\\b", L"d:\\zone\\A",
                                L"d:\\Alpha\\fond", L"d:\\Alpha\\fond\\cache"})
        CreateDirectoryW(nom, nullptr);
    Poser(L"d:\\fichier.txt", "x");
    Regler_attributs(L"d:\\Alpha\\fond\\cache", FILE_ATTRIBUTE_HIDDEN);
    variables.Arborescence_perimee = false;
}

ESSAI_UNITE(D, l_arborescence_va_niveau_par_niveau_dans_l_ordre_des_listes) {
    Preparer_d();
    EXPECT_TRUE(Relever_arborescence(L"d:", Toujours));
    EXPECT_EQ((Liste{L"d:\\", L"d:\\Alpha", L"d:\\été", L"d:\\zone", L"d:\\Alpha\\fond", L"d:\\zone\\A",
                     L"d:\\zone\\b", L"d:\\Alpha\\fond\\cache"}),
              Chemins());
    EXPECT_EQ(0u, Repertoires_sautes());
    EXPECT_TRUE(Arborescence_entiere());
    EXPECT_TRUE(Arborescence_valide(L"D: [DONNEES]"));
    EXPECT_FALSE(Arborescence_valide(L"c:"));
}

ESSAI_UNITE(D, un_repertoire_change_par_le_programme_perime_l_arborescence_jusqu_au_prochain_parcours) {
    Preparer_d();
    Relever_arborescence(L"d:", Toujours);
    variables.Arborescence_perimee = true;
    EXPECT_FALSE(Arborescence_valide(L"d:"));
    Relever_arborescence(L"d:", Toujours);
    EXPECT_TRUE(Arborescence_valide(L"d:"));
}

ESSAI_UNITE(D, un_parcours_arrete_laisse_ce_qu_il_a_lu) {
    Preparer_d();
    const auto deux_repertoires = [](const Arbre &, std::size_t index) { return index < 2; };
    EXPECT_FALSE(Relever_arborescence(L"d:", deux_repertoires));
    EXPECT_EQ((Liste{L"d:\\", L"d:\\Alpha", L"d:\\été", L"d:\\zone", L"d:\\Alpha\\fond"}), Chemins());
    EXPECT_TRUE(Arborescence_valide(L"d:"));
    // The same tree with its end is another one.
    EXPECT_FALSE(Arborescence_entiere());
    EXPECT_TRUE(Relever_arborescence(L"d:", Toujours));
    EXPECT_TRUE(Arborescence_entiere());
}

ESSAI_UNITE(D, un_long_repertoire_laisse_la_main_en_chemin) {
    Vider_repertoire(L"d:");
    for (int i = 0; i < 600; ++i) Poser(L"d:\\f" + std::to_wstring(i), "");
    int regards = 0;
    EXPECT_FALSE(Relever_arborescence(L"d:", [&](const Arbre &, std::size_t) { return ++regards < 2; }));
    EXPECT_EQ(2, regards);
}

// Its names are added to the tree by the thousand: the stop button does not wait for the last of them.
ESSAI_UNITE(D, les_noms_d_un_tres_long_repertoire_laissent_la_main_en_chemin) {
    constexpr int nombre = 5000;
    Vider_repertoire(L"d:");
    for (int i = 0; i < nombre; ++i) CreateDirectoryW((L"d:\\r" + std::to_wstring(i)).c_str(), nullptr);
    const auto au_premier_ajout = [](const Arbre & arbre, std::size_t) { return arbre.Nombre() == 1; };
    EXPECT_FALSE(Relever_arborescence(L"d:", au_premier_ajout));
    EXPECT_GT(Arborescence().Nombre(), 1u);
    EXPECT_LE(Arborescence().Nombre(), static_cast<std::size_t>(nombre));
    Vider_repertoire(L"d:");
}

ESSAI_UNITE(D, un_repertoire_disparu_pendant_le_parcours_est_saute_sans_passer_pour_illisible) {
    Preparer_d();
    const auto retirer = [](const Arbre & arbre, std::size_t index) {
        if (arbre.Chemin(index) == L"d:\\été") RemoveDirectoryW(L"d:\\été");
        return true;
    };
    EXPECT_TRUE(Relever_arborescence(L"d:", retirer));
    EXPECT_EQ(0u, Repertoires_sautes());
    EXPECT_EQ(8u, Arborescence().Nombre());
}

ESSAI_UNITE(D, un_refus_saute_son_repertoire_et_une_unite_perdue_finit_le_parcours) {
    const auto saute = [](int numero, std::size_t index) {
        return Repertoire_saute(Erreur_execution(numero, 0, L"d:\\zone"), index);
    };
    Preparer_d();
    Relever_arborescence(L"d:", Toujours);
    const std::size_t nombre = Arborescence().Nombre();
    EXPECT_TRUE(saute(Numero::permission_refusee, 3));
    EXPECT_TRUE(saute(Numero::nom_incorrect, 3));
    EXPECT_FALSE(saute(Numero::chemin_introuvable, 3));
    EXPECT_EQ(nombre, Arborescence().Nombre());
    for (const int numero : {Numero::unite_absente, Numero::disque_non_pret, Numero::memoire}) {
        EXPECT_EQ(numero, Numero_leve([&] { saute(numero, 3); }));
        EXPECT_EQ(0u, Arborescence().Nombre());
        Relever_arborescence(L"d:", Toujours);
    }
    EXPECT_EQ(Numero::permission_refusee, Numero_leve([&] { saute(Numero::permission_refusee, 0); }));
    EXPECT_EQ(0u, Arborescence().Nombre());
}

Liste Trouves(const Demande_recherche & demande, Bilan_recherche & bilan) {
    Liste trouves;
    bilan = Rechercher(
        demande,
        [&](const Fichier_trouve & fichier) {
            trouves.push_back(fichier.chemin + L" " + std::to_wstring(fichier.taille.value_or(0)));
        },
        [] { return true; });
    std::sort(trouves.begin(), trouves.end());
    return trouves;
}

ESSAI_UNITE(D, la_recherche_donne_les_chemins_du_disque_et_les_longueurs_et_les_caches_sur_demande) {
    Preparer_d();
    Poser(L"d:\\zone\\Vu.TXT", "12345");
    Poser(L"d:\\zone\\Cache.txt", "12");
    Regler_attributs(L"d:\\zone\\Cache.txt", FILE_ATTRIBUTE_HIDDEN);
    ASSERT_NE(0u, Attributs(L"d:\\zone\\Cache.txt") & FILE_ATTRIBUTE_HIDDEN);
    Relever_arborescence(L"d:", Toujours);
    Bilan_recherche bilan;
    EXPECT_EQ((Liste{L"d:\\fichier.txt 1", L"d:\\zone\\Vu.TXT 5"}), Trouves({L"*.txt", L"", false}, bilan));
    EXPECT_EQ((Liste{L"d:\\fichier.txt 1", L"d:\\zone\\Cache.txt 2", L"d:\\zone\\Vu.TXT 5"}),
              Trouves({L"*.txt", L"", true}, bilan));
    EXPECT_TRUE(bilan.entiere);
}

// One listing of each directory gives what two gave: the same files in the same order.
ESSAI_UNITE(D, chercher_en_relevant_donne_l_arborescence_et_les_fichiers_d_une_recherche_qui_la_suit) {
    Preparer_d();
    for (int i = 0; i < 40; ++i)
        for (const wchar_t * ou : {L"d:\\", L"d:\\zone\\", L"d:\\Alpha\\fond\\cache\\"})
            Poser(ou + std::to_wstring(i * 7 % 40) + (i % 2 ? L".txt" : L".doc"), "12");
    Regler_attributs(L"d:\\zone\\7.txt", FILE_ATTRIBUTE_HIDDEN);
    Liste      en_relevant, ensuite;
    const auto vers = [](Liste & liste) {
        return [&](const Fichier_trouve & fichier) { liste.push_back(fichier.chemin); };
    };
    const Demande_recherche demande{L"*.txt", L"1?.*", false};
    const Bilan_recherche   bilan = Relever_et_rechercher(L"d:", demande, vers(en_relevant), Toujours);
    EXPECT_TRUE(bilan.entiere);
    EXPECT_EQ(0u, bilan.sautes);
    EXPECT_EQ(8u, Arborescence().Nombre());
    EXPECT_TRUE(Arborescence_valide(L"d:") && Arborescence_entiere());
    EXPECT_TRUE(Rechercher(demande, vers(ensuite), [] { return true; }).entiere);
    EXPECT_EQ(ensuite, en_relevant);
    // Of 20 in each of three directories one was hidden and 5 were left out, and the root has one more.
    EXPECT_EQ(3 * 15 - 1 + 1u, en_relevant.size());
}

ESSAI_UNITE(D, une_recherche_arretee_en_relevant_laisse_ce_qu_elle_a_parcouru) {
    Preparer_d();
    const auto deux_repertoires = [](const Arbre &, std::size_t index) { return index < 2; };
    const auto rien             = [](const Fichier_trouve &) {};
    EXPECT_FALSE(Relever_et_rechercher(L"d:", {L"*.txt", L"", false}, rien, deux_repertoires).entiere);
    EXPECT_EQ(5u, Arborescence().Nombre());
    EXPECT_TRUE(Arborescence_valide(L"d:"));
    EXPECT_FALSE(Arborescence_entiere());
}

// Nothing in it answers to the pattern: the search looks at the events all the same.
ESSAI_UNITE(D, une_recherche_s_arrete_au_milieu_d_un_grand_repertoire_ou_rien_ne_repond) {
    Preparer_d();
    for (int i = 0; i < 600; ++i) Poser(L"d:\\zone\\" + std::to_wstring(i), "");
    Relever_arborescence(L"d:", Toujours);
    const std::size_t repertoires = Arborescence().Nombre();
    std::size_t       regards     = 0;
    const auto        rien        = [](const Fichier_trouve &) {};
    EXPECT_TRUE(Rechercher({L"*.xyz", L"", false}, rien, [&] { return ++regards != 0; }).entiere);
    EXPECT_GE(regards, repertoires + 2);
}

ESSAI_UNITE(D, un_repertoire_disparu_depuis_le_parcours_n_est_pas_dit_illisible) {
    Preparer_d();
    Relever_arborescence(L"d:", Toujours);
    RemoveDirectoryW(L"d:\\été");
    Bilan_recherche bilan;
    EXPECT_EQ(Liste{L"d:\\fichier.txt 1"}, Trouves({L"*.txt", L"", false}, bilan));
    EXPECT_TRUE(bilan.entiere);
    EXPECT_EQ(0u, bilan.sautes);
}

ESSAI_UNITE(A, un_autre_support_n_a_pas_l_arborescence_du_premier) {
    Vider_repertoire(L"a:");
    CreateDirectoryW(L"a:\\un", nullptr);
    Relever_arborescence(L"a:", Toujours);
    EXPECT_TRUE(Arborescence_valide(L"a:"));
    // What another diskette shows at first sight.
    RemoveDirectoryW(L"a:\\un");
    EXPECT_FALSE(Arborescence_valide(L"a:"));
    CreateDirectoryW(L"a:\\deux", nullptr);
    EXPECT_FALSE(Arborescence_valide(L"a:"));
    Vider_repertoire(L"a:");
}

ESSAI_UNITE(F, une_unite_sans_support_est_l_erreur_71_et_ne_garde_rien) {
    EXPECT_EQ(71, Numero_leve([] { Relever_arborescence(L"f:", Toujours); }));
    EXPECT_EQ(0u, Arborescence().Nombre());
    EXPECT_FALSE(Arborescence_valide(L"f:"));
}

}  // namespace
