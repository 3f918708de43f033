#include "platform/fichiers.h"
#include "platform/poignee.h"
#include "services/magasins.h"

#include <algorithm>
#include <set>

namespace {

constexpr std::uint64_t une_date = 126000000000000000;
constexpr std::uint64_t kilo     = 1024;
constexpr std::uint64_t mega     = 1024 * kilo;

std::uint64_t Date(const std::wstring & chemin) {
    WIN32_FILE_ATTRIBUTE_DATA lues{};
    GetFileAttributesExW(Prefixe(chemin).c_str(), GetFileExInfoStandard, &lues);
    return std::uint64_t{lues.ftLastWriteTime.dwHighDateTime} << 32 | lues.ftLastWriteTime.dwLowDateTime;
}

void Dater(const std::wstring & chemin, std::uint64_t moment) {
    const FILETIME        date = {static_cast<DWORD>(moment), static_cast<DWORD>(moment >> 32)};
    const Poignee_fichier fichier(
        CreateFileW(Prefixe(chemin).c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_TRUE(SetFileTime(fichier.Valeur(), nullptr, nullptr, &date)) << GetLastError();
}

// Long without taking room.
void Etirer(const std::wstring & chemin, std::uint64_t taille) {
    const Poignee_fichier fichier(
        CreateFileW(chemin.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, 0, nullptr));
    LARGE_INTEGER fin;
    fin.QuadPart = static_cast<LONGLONG>(taille);
    EXPECT_TRUE(SetFilePointerEx(fichier.Valeur(), fin, nullptr, FILE_BEGIN) &&
                SetEndOfFile(fichier.Valeur()));
}

TEST_F(Magasins, l_index_est_cree_cache_et_vide) {
    EXPECT_TRUE(magasin.Ouvert());
    EXPECT_EQ(Chemin(L"index"), magasin.Repertoire());
    EXPECT_EQ("", Contenu(Index()));
    EXPECT_NE(0u, Attributs(Index()) & FILE_ATTRIBUTE_HIDDEN);
    EXPECT_TRUE(magasin.Fiches().empty());
    EXPECT_EQ(0u, magasin.Total());
}

TEST_F(Magasins, un_fichier_depose_garde_sa_place_sous_son_code_et_gagne_une_ligne) {
    Fichier(L"RAPPORT.DOC", Octets_varies(12345));
    Deposer(L"RAPPORT.DOC", 12345);
    EXPECT_FALSE(Present(Chemin(L"RAPPORT.DOC")));
    const std::string index = Contenu(Index());
    ASSERT_EQ(1u, magasin.Fiches().size());
    const Fiche & fiche = magasin.Fiches()[0];
    EXPECT_TRUE(fiche.code.starts_with(L"crb45000.") && fiche.code.size() == 12);
    EXPECT_EQ(12345u, magasin.Total());
    EXPECT_EQ(" 00012345 RAPPORT.DOC ", index.substr(12, 22));
    EXPECT_TRUE(index.ends_with("\\\r\n"));
    EXPECT_TRUE(Octets_varies(12345) == Contenu(fiche.Chemin_code()));
    EXPECT_EQ(archive | en_depot, Attributs(fiche.Chemin_code()));
}

TEST_F(Magasins, noms_difficiles_rendus_octet_pour_octet) {
    std::wstring       japonais(255, L'語');
    const std::wstring noms[] = {L"Ωμέγα 文件.txt",
                                 L"deux  blancs .x y",
                                 L" devant",
                                 std::wstring(255, L'n'),
                                 L"-%1 & ' ^;,=+[]{}.txt",
                                 L"œuvre élevée à 5 €.doc",
                                 L"crb45000.001 1 a.txt",
                                 japonais.substr(0, 85),
                                 L"sans extension",
                                 L"a.b.c.d",
                                 L"\xD83D\xDE00 sourire.t",
                                 L"Ã©.txt"};
    for (const std::wstring & nom : noms) {
        Fichier(nom, "octets de " + std::to_string(nom.size()));
        Deposer(nom, Contenu(Chemin(nom)).size());
        EXPECT_FALSE(Present(Chemin(nom))) << testing::PrintToString(nom);
    }
    Rouvrir();
    ASSERT_EQ(std::size(noms), magasin.Fiches().size());
    for (std::size_t i = 0; i < std::size(noms); ++i) EXPECT_EQ(noms[i], magasin.Fiches()[i].nom);
    Tout_rendre();
    EXPECT_TRUE(magasin.Fiches().empty());
    for (const std::wstring & nom : noms) {
        EXPECT_EQ("octets de " + std::to_string(nom.size()), Contenu(Chemin(nom)))
            << testing::PrintToString(nom);
    }
}

TEST_F(Magasins, un_meme_nom_de_plusieurs_repertoires_revient_dans_le_sien) {
    std::vector<Depot> depots;
    for (const wchar_t * nom : {L"un", L"deux", L"un\\sous", L"répertoire 文"}) {
        const std::wstring repertoire = Repertoire(nom);
        Poser(repertoire + L"\\a.txt", std::to_string(depots.size()));
        depots.push_back({L"a.txt", repertoire + (depots.size() % 2 ? L"\\" : L""), 1});
    }
    EXPECT_EQ(4u, Deposer(depots));
    Rouvrir();
    Tout_rendre();
    EXPECT_EQ("0", Contenu(Chemin(L"un\\a.txt")));
    EXPECT_EQ("1", Contenu(Chemin(L"deux\\a.txt")));
    EXPECT_EQ("2", Contenu(Chemin(L"un\\sous\\a.txt")));
    EXPECT_EQ("3", Contenu(Chemin(L"répertoire 文\\a.txt")));
}

TEST_F(Magasins, un_meme_nom_efface_deux_fois_est_la_deux_fois) {
    Fichier(L"a.txt", "premier");
    Deposer(L"a.txt");
    Fichier(L"a.txt", "second.");
    Deposer(L"a.txt");
    ASSERT_EQ(2u, magasin.Fiches().size());
    EXPECT_EQ("premier", Contenu(Code(0)));
    EXPECT_EQ("second.", Contenu(Code(1)));
    magasin.Restaurer({0}, Toujours);
    EXPECT_EQ("premier", Contenu(Chemin(L"a.txt")));
    EXPECT_EQ(58, Numero_leve([&] { magasin.Restaurer({0}, Toujours); }));
    EXPECT_EQ("second.", Contenu(Code(0)));
}

TEST_F(Magasins, la_date_et_les_attributs_d_archive_et_de_systeme_reviennent) {
    const struct {
        std::uint32_t avant, depose, apres;
    } lignes[] = {{archive, archive | en_depot, archive},
                  {archive | FILE_ATTRIBUTE_SYSTEM, archive | FILE_ATTRIBUTE_SYSTEM | en_depot,
                   archive | FILE_ATTRIBUTE_SYSTEM},
                  {archive | FILE_ATTRIBUTE_HIDDEN, archive | en_depot, archive}};
    for (const auto & ligne : lignes) {
        const std::wstring chemin = Fichier(L"a.txt");
        Dater(chemin, une_date);
        Regler_attributs(chemin, ligne.avant);
        Deposer(L"a.txt");
        EXPECT_EQ(ligne.depose, Attributs(Code(0)));
        magasin.Restaurer({0}, Toujours);
        EXPECT_EQ(ligne.apres, Attributs(chemin));
        EXPECT_EQ(une_date, Date(chemin));
        Regler_attributs(chemin, archive);
    }
}

TEST_F(Magasins, un_fichier_en_lecture_seule_est_refuse_et_ceux_d_avant_sont_deposes) {
    Fichier(L"a");
    Fichier(L"b");
    Fichier(L"c");
    Regler_attributs(Chemin(L"b"), archive | FILE_ATTRIBUTE_READONLY);
    std::size_t deposes = 9;
    EXPECT_EQ(75, Numero_leve([&] {
                  magasin.Deposer({{L"a", Racine(), 7}, {L"b", Racine(), 7}, {L"c", Racine(), 7}}, jour,
                                  Toujours, deposes);
              }));
    EXPECT_EQ(1u, deposes);
    EXPECT_EQ("contenu", Contenu(Chemin(L"b")));
    EXPECT_EQ(archive | FILE_ATTRIBUTE_READONLY, Attributs(Chemin(L"b")));
    EXPECT_EQ("contenu", Contenu(Chemin(L"c")));
    Rouvrir();
    ASSERT_EQ(1u, magasin.Fiches().size());
    EXPECT_EQ(1, std::ranges::count(Contenu(Index()), '\n'));
    Regler_attributs(Chemin(L"b"), archive);
}

TEST_F(Magasins, un_fichier_absent_est_une_erreur_sans_ligne) {
    std::size_t deposes = 9;
    EXPECT_EQ(53, Numero_leve([&] { magasin.Deposer({{L"absent", Racine(), 7}}, jour, Toujours, deposes); }));
    EXPECT_EQ(0u, deposes);
    EXPECT_EQ("", Contenu(Index()));
}

TEST_F(Magasins, un_fichier_tenu_par_un_autre_programme_reste_a_sa_place_sans_ligne) {
    Fichier(L"libre");
    const std::wstring    tenu = Fichier(L"tenu");
    const Poignee_fichier prise(
        CreateFileW(tenu.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    std::size_t deposes = 9;
    EXPECT_NE(0, Numero_leve([&] {
                  magasin.Deposer({{L"libre", Racine(), 7}, {L"tenu", Racine(), 7}}, jour, Toujours, deposes);
              }));
    EXPECT_EQ(1u, deposes);
    EXPECT_EQ(1, std::ranges::count(Contenu(Index()), '\n'));
    EXPECT_TRUE(Present(tenu));
    EXPECT_EQ(archive, Attributs(tenu));
}

TEST_F(Magasins, arrete_entre_deux_fichiers_il_ne_garde_que_ceux_d_avant) {
    std::vector<Depot> depots;
    for (int i = 0; i < 10; ++i) {
        Fichier(std::to_wstring(i));
        depots.push_back({std::to_wstring(i), Racine(), 7});
    }
    std::size_t deposes  = 0;
    int         demandes = 0;
    magasin.Deposer(
        depots, jour, [&] { return ++demandes < 4; }, deposes);
    EXPECT_EQ(4, demandes);
    EXPECT_EQ(4u, deposes);
    EXPECT_EQ(4u, magasin.Fiches().size());
    Rouvrir();
    EXPECT_EQ(4u, magasin.Fiches().size());
    for (int i = 4; i < 10; ++i) EXPECT_TRUE(Present(Chemin(std::to_wstring(i)))) << i;
}

TEST_F(Magasins, un_code_pris_par_un_inconnu_est_tire_de_nouveau_et_l_inconnu_reste) {
    for (int i = 0; i < 1000; ++i) {
        if (i != 417) Fichier(Nom_code(jour, i), "inconnu");
    }
    Faire_et_deposer(L"a.txt");
    EXPECT_EQ(L"crb45000.417", magasin.Fiches().at(0).code);
    EXPECT_EQ("contenu", Contenu(Code(0)));
    EXPECT_EQ("inconnu", Contenu(Chemin(L"crb45000.416")));
}

TEST_F(Magasins, les_mille_codes_du_jour_pris_c_est_l_erreur_58) {
    for (int i = 0; i < 1000; ++i) Fichier(Nom_code(jour, i), "inconnu");
    Fichier(L"a.txt");
    std::size_t deposes = 9;
    EXPECT_EQ(58, Numero_leve([&] { magasin.Deposer({{L"a.txt", Racine(), 7}}, jour, Toujours, deposes); }));
    EXPECT_EQ(0u, deposes);
    EXPECT_EQ("contenu", Contenu(Chemin(L"a.txt")));
    EXPECT_EQ("", Contenu(Index()));
    magasin.Deposer({{L"a.txt", Racine(), 7}}, jour + 1, Toujours, deposes);
    EXPECT_EQ(1u, deposes);
    for (int i = 0; i < 1000; ++i) EXPECT_EQ("inconnu", Contenu(Chemin(Nom_code(jour, i)))) << i;
}

TEST_F(Magasins, mille_fichiers_d_un_repertoire_prennent_mille_codes_et_le_suivant_est_refuse) {
    std::vector<Depot> depots;
    for (int i = 0; i <= 1000; ++i) {
        Fichier(std::to_wstring(i), std::to_string(i));
        depots.push_back({std::to_wstring(i), Racine(), std::to_string(i).size()});
    }
    std::size_t  deposes = 0;
    std::wstring fautif;
    try {
        magasin.Deposer(depots, jour, Toujours, deposes);
    } catch (const Erreur_execution & erreur) {
        EXPECT_EQ(58, erreur.numero);
        fautif = erreur.chemin;
    }
    EXPECT_EQ(Chemin(L"1000"), fautif);
    EXPECT_EQ(1000u, magasin.Fiches().size());
    EXPECT_EQ(1000u, deposes);
    EXPECT_EQ("1000", Contenu(Chemin(L"1000")));
    std::set<std::wstring> codes;
    for (const Fiche & fiche : magasin.Fiches()) codes.insert(fiche.code);
    EXPECT_EQ(1000u, codes.size());
}

TEST_F(Magasins, des_tailles_de_neuf_et_dix_chiffres_se_lisent_et_se_rendent) {
    const std::uint64_t tailles[] = {99999999, 100000000, 150 * mega, 3 * 1024 * mega};
    std::uint64_t       total     = 0;
    for (const std::uint64_t taille : tailles) {
        Etirer(Chemin(std::to_wstring(taille)), taille);
        Deposer(std::to_wstring(taille), taille);
        total += taille;
    }
    EXPECT_EQ(total, magasin.Total());
    Rouvrir();
    ASSERT_EQ(4u, magasin.Fiches().size());
    EXPECT_EQ(total, magasin.Total());
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(tailles[i], magasin.Fiches()[i].taille);
        EXPECT_EQ(std::to_wstring(tailles[i]), magasin.Fiches()[i].nom);
    }
    Tout_rendre();
    for (const std::uint64_t taille : tailles) {
        EXPECT_EQ(taille, Longueur_fichier(Chemin(std::to_wstring(taille))));
    }
}

}  // namespace
