#include "platform/fichiers.h"
#include "platform/transfert.h"
#include "services/banc.h"

#include <cstdint>

namespace {

class Transferts : public Banc {};

std::size_t Blocs(Transfert & transfert) {
    std::size_t nombre = 0;
    while (transfert.Bloc()) ++nombre;
    return nombre;
}

void Copier(const std::wstring & source, const std::wstring & cible, bool durable = false) {
    Transfert transfert(source);
    transfert.Creer_cible(cible);
    Blocs(transfert);
    transfert.Terminer(durable);
}

void Dater(const std::wstring & chemin, std::uint64_t moment) {
    const FILETIME        date = {static_cast<DWORD>(moment), static_cast<DWORD>(moment >> 32)};
    const Poignee_fichier fichier(
        CreateFileW(chemin.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_TRUE(SetFileTime(fichier.Valeur(), nullptr, nullptr, &date)) << GetLastError();
}

// As another program writes to a file that is being copied.
Poignee_fichier Ouvrir_a_cote(const std::wstring & chemin) {
    Poignee_fichier fichier(CreateFileW(chemin.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                        nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_TRUE(fichier.Valide()) << GetLastError();
    return fichier;
}

TEST_F(Transferts, chaque_longueur_se_copie_en_blocs_de_8192_octets) {
    const struct {
        std::size_t longueur, blocs;
    } lignes[] = {{0, 0},     {1, 1},     {8191, 1},    {8192, 1},    {8193, 2},
                  {65536, 8}, {65537, 9}, {131072, 16}, {600000, 74}, {9000001, 1099}};
    for (const auto & ligne : lignes) {
        const std::string  octets = Octets_varies(ligne.longueur);
        const std::wstring source = Fichier(L"source", octets);
        const std::wstring cible  = Chemin(L"cible" + std::to_wstring(ligne.longueur));
        Transfert          transfert(source);
        EXPECT_EQ(ligne.longueur, transfert.Longueur());
        transfert.Creer_cible(cible);
        EXPECT_EQ(ligne.blocs, Blocs(transfert)) << ligne.longueur;
        transfert.Terminer(false);
        EXPECT_TRUE(octets == Contenu(cible)) << ligne.longueur;
    }
}

TEST_F(Transferts, la_copie_reprend_la_date_et_les_attributs_et_recoit_archive) {
    const std::wstring source = Fichier(L"source");
    const FILETIME     date   = {0x12345600, 0x01D00000};
    HANDLE h = CreateFileW(source.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    SetFileTime(h, nullptr, nullptr, &date);
    CloseHandle(h);
    Ecrire_attributs(source, Attribut::lecture | Attribut::cache | Attribut::systeme);
    Copier(source, Chemin(L"cible"), true);
    WIN32_FILE_ATTRIBUTE_DATA lues;
    ASSERT_TRUE(GetFileAttributesExW(Chemin(L"cible").c_str(), GetFileExInfoStandard, &lues));
    EXPECT_EQ(0, CompareFileTime(&date, &lues.ftLastWriteTime));
    const DWORD attendus =
        FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
    EXPECT_EQ(attendus, lues.dwFileAttributes);
}

TEST_F(Transferts, une_copie_inachevee_ne_laisse_rien) {
    const std::wstring source = Fichier(L"source", Octets_varies(200000));
    {
        Transfert transfert(source);
        transfert.Creer_cible(Chemin(L"cible"));
        EXPECT_TRUE(transfert.Bloc());
        EXPECT_TRUE(Present(Chemin(L"cible")));
    }
    EXPECT_FALSE(Present(Chemin(L"cible")));
    EXPECT_TRUE(Octets_varies(200000) == Contenu(source));
}

TEST_F(Transferts, une_copie_abandonnee_libere_les_deux_fichiers_aussitot) {
    const std::wstring source = Fichier(L"source", Octets_varies(200000));
    Transfert          transfert(source);
    transfert.Creer_cible(Chemin(L"cible"));
    transfert.Bloc();
    transfert.Abandonner();
    EXPECT_FALSE(Present(Chemin(L"cible")));
    EXPECT_TRUE(DeleteFileW(source.c_str()));
    EXPECT_FALSE(transfert.Bloc());
}

TEST_F(Transferts, abandonner_apres_la_fin_garde_la_copie) {
    const std::wstring source = Fichier(L"source");
    Transfert          transfert(source);
    transfert.Creer_cible(Chemin(L"cible"));
    transfert.Terminer(false);
    transfert.Abandonner();
    EXPECT_EQ("contenu", Contenu(Chemin(L"cible")));
}

TEST_F(Transferts, terminer_copie_ce_qui_reste) {
    const std::string  octets = Octets_varies(1000000);
    const std::wstring source = Fichier(L"source", octets);
    Transfert          transfert(source);
    transfert.Creer_cible(Chemin(L"cible"));
    transfert.Bloc();
    transfert.Terminer(true);
    EXPECT_TRUE(octets == Contenu(Chemin(L"cible")));
}

TEST_F(Transferts, une_cible_existante_n_est_ni_ecrasee_ni_supprimee) {
    const std::wstring source = Fichier(L"source");
    const std::wstring cible  = Fichier(L"cible", "vieux");
    Repertoire(L"repertoire");
    EXPECT_EQ(58, Numero_leve([&] { Copier(source, cible); }));
    EXPECT_EQ(58, Numero_leve([&] { Copier(source, source); }));
    EXPECT_EQ(75, Numero_leve([&] { Copier(source, Chemin(L"repertoire")); }));
    EXPECT_EQ("vieux", Contenu(cible));
    EXPECT_EQ("contenu", Contenu(source));
}

TEST_F(Transferts, une_source_qui_ne_s_ouvre_pas_porte_son_numero) {
    const std::wstring    tenu = Fichier(L"tenu");
    const Poignee_fichier prise(
        CreateFileW(tenu.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_EQ(53, Numero_leve([&] { Transfert t(Chemin(L"absent")); }));
    EXPECT_EQ(76, Numero_leve([&] { Transfert t(Chemin(L"absent\\x")); }));
    EXPECT_EQ(75, Numero_leve([&] { Transfert t(Racine()); }));
    EXPECT_EQ(70, Numero_leve([&] { Transfert t(tenu); }));
    EXPECT_EQ(68, Numero_leve([&] { Transfert t(L"q:\\x"); }));
    EXPECT_EQ(52, Numero_leve([&] { Transfert t(L"NUL"); }));
    EXPECT_NE(0, Numero_leve([&] { Transfert t(Chemin(L"te?u")); }));
}

TEST_F(Transferts, une_cible_impossible_porte_son_numero) {
    const std::wstring source = Fichier(L"source");
    EXPECT_EQ(76, Numero_leve([&] { Copier(source, Chemin(L"absent\\x")); }));
    EXPECT_EQ(64, Numero_leve([&] { Copier(source, Chemin(L"a|b")); }));
    EXPECT_EQ(64, Numero_leve([&] { Copier(source, Chemin(std::wstring(300, L'x'))); }));
    EXPECT_EQ(68, Numero_leve([&] { Copier(source, L"q:\\x"); }));
}

TEST_F(Transferts, les_noms_difficiles_se_copient) {
    const std::wstring profond = Profond();
    const std::wstring noms[]  = {L"Ωμέγα 文件.txt", std::wstring(255, L'n'), L"final.", L"aux.txt",
                                  L"-étrange %1 & '"};
    for (const std::wstring & nom : noms) {
        const std::wstring source = Fichier(nom, "octets de la source");
        Copier(source, profond + L"\\" + nom);
        EXPECT_EQ("octets de la source", Contenu(profond + L"\\" + nom)) << testing::PrintToString(nom);
    }
    EXPECT_EQ(5u, Lister(profond, false).size());
}

TEST_F(Transferts, une_source_qui_grandit_est_copiee_jusqu_a_sa_fin) {
    const std::wstring source = Fichier(L"source", Octets_varies(100000));
    Transfert          transfert(source);
    transfert.Creer_cible(Chemin(L"cible"));
    transfert.Bloc();
    const Poignee_fichier ajout(CreateFileW(source.c_str(), FILE_APPEND_DATA,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                            nullptr));
    ASSERT_TRUE(ajout.Valide());
    DWORD ecrits = 0;
    WriteFile(ajout.Valeur(), "la suite", 8, &ecrits, nullptr);
    transfert.Terminer(false);
    EXPECT_TRUE(Octets_varies(100000) + "la suite" == Contenu(Chemin(L"cible")));
}

TEST_F(Transferts, une_source_reecrite_pendant_la_copie_fait_echouer_la_seule_copie_durable) {
    for (const bool durable : {false, true}) {
        const std::wstring source = Fichier(L"source", Octets_varies(100000));
        Dater(source, 126000000000000000);
        const std::wstring cible = Chemin(durable ? L"durable" : L"simple");
        Transfert          transfert(source);
        transfert.Creer_cible(cible, durable);
        Blocs(transfert);
        const Poignee_fichier autre  = Ouvrir_a_cote(source);
        DWORD                 ecrits = 0;
        ASSERT_TRUE(WriteFile(autre.Valeur(), "autre", 5, &ecrits, nullptr));
        EXPECT_EQ(durable ? 57 : 0, Numero_leve([&] { transfert.Terminer(durable); }));
        EXPECT_EQ(!durable, Present(cible));
        EXPECT_TRUE("autre" + Octets_varies(100000).substr(5) == Contenu(source));
    }
}

TEST_F(Transferts, une_source_raccourcie_pendant_la_copie_ne_donne_jamais_une_copie_courte) {
    for (const bool durable : {false, true}) {
        const std::wstring source = Fichier(L"source", Octets_varies(100000));
        Transfert          transfert(source);
        transfert.Creer_cible(Chemin(L"cible"), durable);
        EXPECT_TRUE(transfert.Bloc());
        const Poignee_fichier autre = Ouvrir_a_cote(source);
        SetFilePointer(autre.Valeur(), 70000, nullptr, FILE_BEGIN);
        ASSERT_TRUE(SetEndOfFile(autre.Valeur()));
        EXPECT_EQ(57, Numero_leve([&] { transfert.Terminer(durable); })) << durable;
        EXPECT_FALSE(Present(Chemin(L"cible"))) << durable;
        EXPECT_TRUE(Octets_varies(100000).substr(0, 70000) == Contenu(source)) << durable;
    }
}

// A medium that refuses some dates, and attributes if it is told so.
struct Support {
    std::int64_t  premiere_date;
    bool          attributs_refuses;
    std::int64_t  date      = -1;
    std::uint32_t attributs = 0;

    bool Poser(std::int64_t date_demandee, std::uint32_t attributs_demandes) {
        if (date_demandee != 0 && date_demandee < premiere_date) return false;
        if (attributs_refuses && attributs_demandes != 0) return false;
        date      = date_demandee;
        attributs = attributs_demandes;
        return true;
    }
};

TEST_F(Transferts, ce_qu_un_support_refuse_de_la_date_et_des_attributs_est_laisse) {
    constexpr std::int64_t  annee_1980 = 119600064000000000;
    constexpr std::int64_t  jamais     = INT64_MAX;
    constexpr std::uint32_t cache      = Attribut::cache;
    const struct {
        std::int64_t  voulue, premiere;
        bool          refus;
        std::int64_t  date;
        std::uint32_t attributs;
    } lignes[] = {{annee_1980 - 1, 1, false, annee_1980 - 1, cache},
                  {annee_1980 - 1, annee_1980, false, annee_1980, cache},
                  {annee_1980 + 9, annee_1980, false, annee_1980 + 9, cache},
                  {annee_1980 - 1, jamais, false, 0, cache},
                  {annee_1980 + 9, jamais, false, 0, cache},
                  {annee_1980 + 9, 1, true, -1, 0}};
    for (const auto & ligne : lignes) {
        Support support{ligne.premiere, ligne.refus};
        Poser_au_mieux(ligne.voulue, cache,
                       [&](auto date, auto attributs) { return support.Poser(date, attributs); });
        EXPECT_EQ(ligne.date, support.date) << ligne.voulue << " " << ligne.premiere;
        EXPECT_EQ(ligne.attributs, support.attributs) << ligne.voulue << " " << ligne.premiere;
    }
}

TEST_F(Transferts, ce_qui_s_ecrit_entre_deux_vidages_suit_leur_duree) {
    constexpr std::uint64_t ko = 1024;
    const struct {
        std::uint64_t avant;
        double        duree;
        std::uint64_t apres;
    } lignes[] = {{256 * ko, 0.051, 128 * ko},   {64 * ko, 3.0, 64 * ko},     {256 * ko, 0.009, 512 * ko},
                  {8192 * ko, 0.001, 8192 * ko}, {256 * ko, 0.010, 256 * ko}, {256 * ko, 0.050, 256 * ko}};
    for (const auto & ligne : lignes) {
        EXPECT_EQ(ligne.apres, Intervalle_suivant(ligne.avant, ligne.duree))
            << ligne.avant << " " << ligne.duree;
    }
}

TEST_F(Transferts, une_source_qui_change_apres_sa_fin_fait_echouer_la_copie_durable) {
    const std::wstring source = Fichier(L"source", "court");
    Transfert          transfert(source);
    transfert.Creer_cible(Chemin(L"cible"));
    while (transfert.Bloc()) {
    }
    const Poignee_fichier ajout(CreateFileW(source.c_str(), FILE_APPEND_DATA,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                            nullptr));
    DWORD                 ecrits = 0;
    WriteFile(ajout.Valeur(), "x", 1, &ecrits, nullptr);
    EXPECT_EQ(57, Numero_leve([&] { transfert.Terminer(true); }));
    EXPECT_FALSE(Present(Chemin(L"cible")));
    EXPECT_EQ("courtx", Contenu(source));
}

ESSAI_UNITE(A, une_disquette_pleine_est_l_erreur_61_et_ne_garde_rien) {
    Vider_repertoire(L"a:");
    const std::string  octets = Octets_varies(2000000);
    const std::wstring source = Fichier(L"gros", octets);
    EXPECT_EQ(61, Numero_leve([&] { Copier(source, L"a:\\gros"); }));
    EXPECT_FALSE(Present(L"a:\\gros"));
    EXPECT_TRUE(octets == Contenu(source));
    Copier(Fichier(L"petit"), L"a:\\petit", true);
    EXPECT_EQ("contenu", Contenu(L"a:\\petit"));
    Vider_repertoire(L"a:");
}

ESSAI_UNITE(A, la_cible_est_partie_des_que_l_erreur_est_levee) {
    Vider_repertoire(L"a:");
    Transfert transfert(Fichier(L"gros", Octets_varies(2000000)));
    transfert.Creer_cible(L"a:\\gros");
    EXPECT_EQ(61, Numero_leve([&] {
                  while (transfert.Bloc()) {
                  }
              }));
    EXPECT_FALSE(Present(L"a:\\gros"));
}

ESSAI_UNITE(D, une_copie_durable_sur_un_autre_disque_est_entiere) {
    const std::string octets = Octets_varies(5000000);
    Copier(Fichier(L"source", octets), L"d:\\copie", true);
    EXPECT_TRUE(octets == Contenu(L"d:\\copie"));
    DeleteFileW(L"d:\\copie");
}

ESSAI_UNITE(E, un_support_protege_refuse_la_copie_par_l_erreur_70) {
    const std::wstring source = Fichier(L"source");
    EXPECT_EQ(70, Numero_leve([&] { Copier(source, L"e:\\copie"); }));
    EXPECT_FALSE(Present(L"e:\\copie"));
}

ESSAI_UNITE(F, une_unite_sans_support_refuse_la_copie_par_l_erreur_71) {
    const std::wstring source = Fichier(L"source");
    EXPECT_EQ(71, Numero_leve([&] { Copier(source, L"f:\\copie"); }));
    EXPECT_EQ(71, Numero_leve([&] { Copier(L"f:\\source", Chemin(L"copie")); }));
    EXPECT_FALSE(Present(Chemin(L"copie")));
}

}  // namespace
