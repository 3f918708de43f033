#include "app/globals.h"
#include "platform/poignee.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "recycle/corbeille.h"
#include "services/banc.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <utility>

namespace {

bool Toujours() { return true; }

// The program's bin over the system's own directories, emptied before and after.
class Corbeilles : public Banc {
protected:
    Corbeilles() {
        variables             = Variables{};
        variables.Fichier_ini = Chemin(L"KORVANE.INI");
        Vider();
    }
    ~Corbeilles() override {
        Vider();
        variables = Variables{};
    }

    static std::wstring Index() { return Repertoire_systeme() + L"\\KORVANE.CRB"; }
    static std::wstring Secours() { return Repertoire_donnees_locales() + L"\\KORVANE"; }

    static void Vider() {
        Magasin_corbeille().Fermer();
        for (const std::wstring & chemin : {Index(), Secours() + L"\\KORVANE.CRB"}) {
            SetFileAttributesW(chemin.c_str(), FILE_ATTRIBUTE_NORMAL);
            DeleteFileW(chemin.c_str());
            RemoveDirectoryW(chemin.c_str());
        }
        RemoveDirectoryW(Secours().c_str());
    }

    Depot Deposable(const std::wstring & nom, std::uint64_t taille) const {
        const Poignee_fichier fichier(
            CreateFileW(Fichier(nom).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        LARGE_INTEGER fin;
        fin.QuadPart = static_cast<LONGLONG>(taille);
        EXPECT_TRUE(SetFilePointerEx(fichier.Valeur(), fin, nullptr, FILE_BEGIN) &&
                    SetEndOfFile(fichier.Valeur()));
        return {nom, Racine(), taille};
    }
    std::string Total_garde() const {
        char              valeur[32] = "";
        const std::string ini        = En_ansi(variables.Fichier_ini);
        GetPrivateProfileStringA("Corbeille", "Total", "rien", valeur, 32, ini.c_str());
        return valeur;
    }
    void Ecrire_total(const std::string & total) const {
        Poser(variables.Fichier_ini, "[Corbeille]\r\nTotal=" + total + "\r\n");
    }
};

TEST_F(Corbeilles, un_total_inchange_ne_fait_pas_ecrire_les_reglages) {
    variables.Corbeille_active = true;
    variables.Taille_corbeille = 9999;
    Ouvrir_corbeille();
    const std::size_t deposes = Deposer_fichiers({Deposable(L"a", 300)}, Toujours);
    EXPECT_EQ(deposes, 1u);
    Ecrire_total("300");
    // Settings that are written are another file under the same name.
    const auto fichier = [] {
        const Poignee_fichier ini(CreateFileW(variables.Fichier_ini.c_str(), GENERIC_READ, FILE_SHARE_READ,
                                              nullptr, OPEN_EXISTING, 0, nullptr));
        BY_HANDLE_FILE_INFORMATION lu{};
        EXPECT_TRUE(GetFileInformationByHandle(ini.Valeur(), &lu));
        return std::pair(lu.nFileIndexHigh, lu.nFileIndexLow);
    };
    const auto avant = fichier();
    Purger_corbeille();
    EXPECT_EQ(fichier(), avant);
    Ecrire_total("30");
    Purger_corbeille();
    EXPECT_EQ(Total_garde(), "300");
}

}  // namespace

TEST_F(Corbeilles, elle_s_ouvre_dans_le_repertoire_systeme) {
    Ouvrir_corbeille();
    EXPECT_TRUE(Magasin_corbeille().Ouvert());
    EXPECT_EQ(variables.Chemin_corbeille, Repertoire_systeme() + L"\\KORVANE.");
    EXPECT_TRUE(Present(Index()));
}

TEST_F(Corbeilles, sans_le_repertoire_systeme_elle_va_chez_l_utilisateur) {
    ASSERT_TRUE(CreateDirectoryW(Index().c_str(), nullptr));
    Ouvrir_corbeille();
    EXPECT_EQ(variables.Chemin_corbeille, Secours() + L"\\KORVANE.");
    EXPECT_EQ(Deposer_fichiers({Deposable(L"a", 7)}, Toujours), 1u);
    EXPECT_FALSE(Present(Chemin(L"a")));
}

TEST_F(Corbeilles, sans_aucune_place_l_ouverture_est_muette_et_l_exigence_refuse) {
    ASSERT_TRUE(CreateDirectoryW(Index().c_str(), nullptr));
    CreateDirectoryW(Secours().c_str(), nullptr);
    ASSERT_TRUE(CreateDirectoryW((Secours() + L"\\KORVANE.CRB").c_str(), nullptr));
    Ouvrir_corbeille();
    EXPECT_FALSE(Magasin_corbeille().Ouvert());
    EXPECT_EQ(variables.Chemin_corbeille, L"");
    EXPECT_NE(Numero_leve([&] { Deposer_fichiers({Deposable(L"a", 7)}, Toujours); }), 0);
    EXPECT_EQ(Contenu(Chemin(L"a")), "contenu");
}

TEST_F(Corbeilles, le_total_suit_l_index_et_non_les_reglages) {
    Ecrire_total("99999999");
    Ouvrir_corbeille();
    EXPECT_EQ(variables.Total_corbeille, 0);
    Deposer_fichiers({Deposable(L"a", 12345), Deposable(L"b", 5)}, Toujours);
    EXPECT_EQ(variables.Total_corbeille, 12350);
    EXPECT_EQ(Total_garde(), "99999999");
    Purger_corbeille();
    EXPECT_EQ(Total_garde(), "12350");
    for (const char * faux : {"-5", "0", "x", "12"}) {
        Ecrire_total(faux);
        variables.Total_corbeille = -1;
        Ouvrir_corbeille();
        EXPECT_EQ(variables.Total_corbeille, 12350) << faux;
    }
}

TEST_F(Corbeilles, ce_que_32_bits_ne_comptent_pas_est_refuse_avant_que_rien_ne_soit_fait) {
    Ouvrir_corbeille();
    EXPECT_EQ(Deposer_fichiers({Deposable(L"a", 2147483000), Deposable(L"b", 647)}, Toujours), 2u);
    EXPECT_EQ(variables.Total_corbeille, 2147483647);
    EXPECT_EQ(Numero_leve([&] { Deposer_fichiers({Deposable(L"c", 1)}, Toujours); }), 6);
    EXPECT_EQ(Contenu(Chemin(L"c")), "c");
    EXPECT_EQ(Deposer_fichiers({Deposable(L"vide", 0)}, Toujours), 1u);
    EXPECT_EQ(Magasin_corbeille().Fiches().size(), 3u);
}

TEST_F(Corbeilles, d_un_lot_trop_grand_le_debut_qui_tient_est_depose) {
    Ouvrir_corbeille();
    EXPECT_EQ(Numero_leve([&] {
                  Deposer_fichiers({Deposable(L"a", 7), Deposable(L"b", 3'000'000'000), Deposable(L"c", 7)},
                                   Toujours);
              }),
              6);
    EXPECT_EQ(variables.Total_corbeille, 7);
    EXPECT_FALSE(Present(Chemin(L"a")));
    EXPECT_TRUE(Present(Chemin(L"b")) && Present(Chemin(L"c")));
}

TEST_F(Corbeilles, une_erreur_en_chemin_laisse_un_total_juste) {
    Ouvrir_corbeille();
    EXPECT_EQ(Numero_leve([&] {
                  Deposer_fichiers({Deposable(L"a", 7), {L"absent", Racine(), 9}}, Toujours);
              }),
              53);
    EXPECT_EQ(variables.Total_corbeille, 7);
}

TEST_F(Corbeilles, la_purge_suit_la_limite_et_laisse_le_total_de_ce_qui_reste) {
    Ouvrir_corbeille();
    Deposer_fichiers({Deposable(L"a", 1000), Deposable(L"b", 1000), Deposable(L"c", 24)}, Toujours);
    variables.Taille_corbeille = 1;
    Purger_corbeille();
    EXPECT_EQ(variables.Total_corbeille, 1024);
    EXPECT_EQ(Total_garde(), "1024");
    EXPECT_EQ(variables.Date_du_jour, Jour_serie());
    ASSERT_EQ(Magasin_corbeille().Fiches().size(), 2u);
    EXPECT_EQ(Magasin_corbeille().Fiches()[0].nom, L"b");
}

// Events run during a purge, as the stop button's would; no command can start meanwhile.
TEST_F(Corbeilles, les_evenements_passent_pendant_la_purge_et_peuvent_l_arreter) {
    constexpr std::size_t fichiers = 900;
    Ouvrir_corbeille();
    std::vector<Depot> depots;
    for (std::size_t i = 0; i < fichiers; ++i) depots.push_back(Deposable(std::to_wstring(i), 1000));
    ASSERT_EQ(Deposer_fichiers(depots, Toujours), fichiers);
    variables.Taille_corbeille = 1;
    const UINT_PTR minuterie   = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) {
        EXPECT_TRUE(variables.Garde);
        variables.Arret_demande = true;
    });
    Purger_corbeille();
    KillTimer(nullptr, minuterie);
    EXPECT_TRUE(variables.Arret_demande);
    EXPECT_FALSE(variables.Garde);
    const std::size_t restants = Magasin_corbeille().Fiches().size();
    EXPECT_GT(restants, 1u);
    EXPECT_LT(restants, fichiers);
    EXPECT_EQ(Total_garde(), std::to_string(restants * 1000));
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(Contenu(Index()), '\n')), restants);
    variables.Arret_demande = false;
    Purger_corbeille();
    EXPECT_EQ(Magasin_corbeille().Fiches().size(), 1u);
}

TEST_F(Corbeilles, une_limite_incorrecte_ne_purge_rien) {
    Ouvrir_corbeille();
    Deposer_fichiers({Deposable(L"a", 5000), Deposable(L"b", 5000)}, Toujours);
    variables.Taille_corbeille            = 1;
    variables.Limite_corbeille_incorrecte = true;
    Purger_corbeille();
    EXPECT_EQ(Magasin_corbeille().Fiches().size(), 2u);
    EXPECT_EQ(Total_garde(), "10000");
}

TEST_F(Corbeilles, un_fichier_plus_grand_que_la_limite_se_compte_en_1024) {
    variables.Taille_corbeille = 9999;
    EXPECT_FALSE(Plus_grand_que_corbeille(10'238'976));
    EXPECT_TRUE(Plus_grand_que_corbeille(10'238'977));
    variables.Taille_corbeille = 0;
    EXPECT_FALSE(Plus_grand_que_corbeille(UINT64_MAX));
}

TEST_F(Corbeilles, une_corbeille_fermee_ne_touche_pas_aux_reglages) {
    Ecrire_total("77");
    variables.Total_corbeille = 77;
    Magasin_corbeille().Fermer();
    Purger_corbeille();
    EXPECT_EQ(variables.Total_corbeille, 77);
    EXPECT_EQ(Total_garde(), "77");
}

TEST(Jour, il_compte_depuis_le_30_decembre_1899) {
    SYSTEMTIME origine{}, local{};
    origine.wYear  = 1970;
    origine.wMonth = 1;
    origine.wDay   = 1;
    FILETIME debut, maintenant;
    SystemTimeToFileTime(&origine, &debut);
    GetLocalTime(&local);
    SystemTimeToFileTime(&local, &maintenant);
    const auto en_64 = [](const FILETIME & f) {
        return std::uint64_t{f.dwHighDateTime} << 32 | f.dwLowDateTime;
    };
    // 1 January 1970 is day 25569; a day has 864,000,000,000 units.
    const auto attendu = 25569 + (en_64(maintenant) - en_64(debut)) / 864000000000;
    EXPECT_EQ(static_cast<std::uint64_t>(Jour_serie()), attendu);
}

TEST(Exclusivites, celle_d_un_autre_fait_attendre_jusqu_a_ce_qu_elle_finisse) {
    const HANDLE      prise = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<bool> finie = false;
    std::thread       autre([&] {
        const Exclusivite tour(L"essai des services");
        SetEvent(prise);
        Sleep(300);
        finie = true;
    });
    WaitForSingleObject(prise, 5000);
    {
        const Exclusivite tour(L"essai des services");
        EXPECT_TRUE(finie);
    }
    autre.join();
    CloseHandle(prise);
}

TEST(Exclusivites, celle_qui_ne_finit_pas_est_l_erreur_70) {
    const HANDLE prise = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const HANDLE fini  = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread  autre([&] {
        const Exclusivite tour(L"essai des services");
        SetEvent(prise);
        WaitForSingleObject(fini, 20000);
    });
    WaitForSingleObject(prise, 5000);
    EXPECT_EQ(Numero_leve([] { const Exclusivite tour(L"essai des services", 200); }), 70);
    // Events run meanwhile, and do not make it longer.
    int                 passages = 0;
    const std::uint64_t debut    = Horloge_ms();
    EXPECT_EQ(Numero_leve([&] { const Exclusivite tour(L"essai des services", 300, [&] { ++passages; }); }),
              70);
    EXPECT_GE(passages, 2);
    EXPECT_LT(Horloge_ms() - debut, 3000u);
    SetEvent(fini);
    autre.join();
    CloseHandle(prise);
    CloseHandle(fini);
}
