#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "platform/unites.h"
#include "services/banc.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace {

std::optional<Unite> Trouver(wchar_t lettre) {
    for (const Unite & unite : Unites_presentes())
        if (unite.lettre == lettre) return unite;
    return std::nullopt;
}

std::uint64_t Moment(WORD annee, WORD mois, WORD jour, WORD heure, WORD minute) {
    SYSTEMTIME local{}, utc;
    local.wYear   = annee;
    local.wMonth  = mois;
    local.wDay    = jour;
    local.wHour   = heure;
    local.wMinute = minute;
    FILETIME date;
    TzSpecificLocalTimeToSystemTime(nullptr, &local, &utc);
    SystemTimeToFileTime(&utc, &date);
    return std::uint64_t{date.dwHighDateTime} << 32 | date.dwLowDateTime;
}

// A setting of the user's, put back at the end.
struct Reglage {
    Reglage(LCTYPE quoi, const wchar_t * valeur) : quoi_(quoi) {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, quoi, ancien_, 16);
        EXPECT_TRUE(SetLocaleInfoW(LOCALE_USER_DEFAULT, quoi, valeur));
    }
    ~Reglage() { SetLocaleInfoW(LOCALE_USER_DEFAULT, quoi_, ancien_); }
    LCTYPE  quoi_;
    wchar_t ancien_[16];
};

TEST(Unites, elles_viennent_dans_l_ordre_et_en_minuscules) {
    const auto unites = Unites_presentes();
    ASSERT_FALSE(unites.empty());
    for (std::size_t i = 0; i < unites.size(); ++i) {
        EXPECT_TRUE(unites[i].lettre >= L'a' && unites[i].lettre <= L'z');
        EXPECT_EQ((std::wstring{unites[i].lettre, L':'}), unites[i].texte.substr(0, 2));
        EXPECT_TRUE(i == 0 || unites[i - 1].lettre < unites[i].lettre);
    }
}

TEST(Unites, un_disque_fixe_montre_son_etiquette_entre_crochets) {
    const auto c = Trouver(L'c');
    ASSERT_TRUE(c);
    wchar_t nom[261] = L"";
    GetVolumeInformationW(L"c:\\", nom, 261, nullptr, nullptr, nullptr, nullptr, 0);
    EXPECT_EQ(Genre_unite::fixe, c->genre);
    EXPECT_EQ(*nom ? std::wstring(L"c: [") + nom + L"]" : L"c:", c->texte);
}

TEST(Unites, la_place_libre_est_celle_du_disque_et_zero_sans_disque) {
    ULARGE_INTEGER libre;
    GetDiskFreeSpaceExW(L"c:\\", &libre, nullptr, nullptr);
    const auto lue    = static_cast<double>(Octets_libres(L"c:\\"));
    const auto exacte = static_cast<double>(libre.QuadPart);
    EXPECT_NEAR(exacte, lue, 2e9);
    EXPECT_EQ(0u, Octets_libres(L"q:\\"));
}

ESSAI_UNITE(A, une_disquette_est_amovible_et_sans_etiquette) {
    const auto a = Trouver(L'a');
    ASSERT_TRUE(a);
    EXPECT_EQ(Genre_unite::amovible, a->genre);
    EXPECT_EQ(L"a:", a->texte);
    EXPECT_LE(Octets_libres(L"a:\\"), 1474560u);
}

ESSAI_UNITE(D, le_second_disque_montre_son_etiquette) {
    const auto d = Trouver(L'd');
    ASSERT_TRUE(d);
    EXPECT_EQ(L"d: [DONNEES]", d->texte);
}

ESSAI_UNITE(E, un_cederom_est_amovible_et_sans_etiquette) {
    const auto e = Trouver(L'e');
    ASSERT_TRUE(e);
    EXPECT_EQ(L"e:", e->texte);
}

ESSAI_UNITE(F, une_unite_sans_support_est_listee_et_n_a_pas_de_place) {
    ASSERT_TRUE(Trouver(L'f'));
    EXPECT_EQ(0u, Octets_libres(L"f:\\"));
}

TEST(Textes, la_page_de_codes_tient_les_accents_et_rien_d_autre) {
    EXPECT_EQ("\xE9t\xE9", En_ansi(L"été"));
    EXPECT_EQ(L"été", De_ansi("\xE9t\xE9"));
    EXPECT_EQ("?", En_ansi(L"Ω"));
    EXPECT_TRUE(Tient_en_ansi(L"œuvre €"));
    EXPECT_FALSE(Tient_en_ansi(L"Ωmega"));
    // A letter that only looks alike is another name.
    EXPECT_FALSE(Tient_en_ansi(L"Ā"));
    EXPECT_TRUE(Tient_en_ansi(L""));
}

TEST(Textes, les_capitales_gardent_leurs_accents) {
    EXPECT_EQ(L"ÉTÉ À NOËL.TXT", Majuscules(L"été à Noël.txt"));
    EXPECT_EQ(L"été à noël.txt", Minuscules(L"ÉTÉ À NOËL.TXT"));
    EXPECT_EQ(L"", Majuscules(L""));
    EXPECT_EQ(L'É', Majuscule(L'é'));
    EXPECT_EQ(L'Ω', Majuscule(L'ω'));
    EXPECT_EQ(L'1', Majuscule(L'1'));
}

TEST(Textes, les_noms_s_ordonnent_sans_la_casse_et_l_accent_pres_de_sa_lettre) {
    std::vector<std::wstring> noms = {L"zèbre", L"Fin", L"été",   L"Eta", L"etz",
                                      L"a",     L"B",   L"a.txt", L"_x",  L"1"};
    std::sort(noms.begin(), noms.end(),
              [](const auto & a, const auto & b) { return Comparer_sans_casse(a, b) < 0; });
    EXPECT_EQ((std::vector<std::wstring>{L"1", L"a", L"a.txt", L"B", L"Eta", L"été", L"etz", L"Fin", L"zèbre",
                                         L"_x"}),
              noms);
    EXPECT_EQ(0, Comparer_sans_casse(L"ÉTÉ.txt", L"été.TXT"));
    EXPECT_NE(0, Comparer_sans_casse(L"ete", L"été"));
    EXPECT_LT(Comparer_sans_casse(L"ab", L"abc"), 0);
    EXPECT_GT(Comparer_sans_casse(L"b", L"A"), 0);
}

TEST(Textes, les_milliers_prennent_le_separateur_de_l_utilisateur) {
    const Reglage separateur(LOCALE_STHOUSAND, L"'");
    EXPECT_EQ(L"0", Format_milliers(0));
    EXPECT_EQ(L"999", Format_milliers(999));
    EXPECT_EQ(L"1'000", Format_milliers(1000));
    EXPECT_EQ(L"123'456'789", Format_milliers(123456789));
    EXPECT_EQ(L"18'446'744'073'709'551'615", Format_milliers(UINT64_MAX));
}

TEST(Textes, un_separateur_change_sert_aussitot) {
    const Reglage un(LOCALE_STHOUSAND, L"'");
    EXPECT_EQ(L"1'000", Format_milliers(1000));
    const Reglage deux(LOCALE_STHOUSAND, L"\u00A0");
    EXPECT_EQ(L"1\u00A0000", Format_milliers(1000));
}

TEST(Textes, date_et_heure_suivent_l_utilisateur) {
    const Reglage date(LOCALE_SDATE, L"/");
    const Reglage heure(LOCALE_STIME, L":");
    EXPECT_EQ(L"05/03/99", Format_date(Moment(1999, 3, 5, 9, 7)));
    EXPECT_EQ(L"9:07", Format_heure(Moment(1999, 3, 5, 9, 7)));
    EXPECT_EQ(L"31/12/24", Format_date(Moment(2024, 12, 31, 23, 59)));
    EXPECT_EQ(L"23:59", Format_heure(Moment(2024, 12, 31, 23, 59)));
    EXPECT_EQ(L"0:00", Format_heure(Moment(2024, 7, 1, 0, 0)));
    EXPECT_EQ(L"", Format_date(UINT64_MAX));
}

TEST(Systeme, le_repertoire_du_programme_contient_le_programme) {
    wchar_t chemin[MAX_PATH];
    GetModuleFileNameW(nullptr, chemin, MAX_PATH);
    const std::wstring repertoire = Repertoire_programme();
    EXPECT_TRUE(Repertoire_existe(repertoire));
    EXPECT_EQ(repertoire, std::wstring(chemin).substr(0, repertoire.size()));
    EXPECT_TRUE(repertoire.size() == 3 || repertoire.back() != L'\\');
}

TEST(Systeme, l_horloge_avance_du_temps_ecoule) {
    const std::uint64_t debut = Horloge_ms();
    Sleep(100);
    const std::uint64_t duree = Horloge_ms() - debut;
    EXPECT_GE(duree, 80u);
    EXPECT_LT(duree, 5000u);
}

TEST(Systeme, un_second_exemplaire_se_reconnait_tant_que_le_premier_dure) {
    {
        const Instance_unique premier(L"Essai des services");
        EXPECT_FALSE(premier.Deja_lancee());
        const Instance_unique second(L"Essai des services");
        EXPECT_TRUE(second.Deja_lancee());
        EXPECT_FALSE(Instance_unique(L"Un autre nom").Deja_lancee());
    }
    EXPECT_FALSE(Instance_unique(L"Essai des services").Deja_lancee());
}

TEST(Erreurs, le_texte_est_celui_du_systeme_sans_fin_de_ligne) {
    const std::wstring texte = Erreur_execution(76, ERROR_PATH_NOT_FOUND, L"x").Texte();
    ASSERT_FALSE(texte.empty());
    EXPECT_GT(texte.back(), L' ');
    EXPECT_EQ(texte, Erreur_execution(76, 0, L"x").Texte());
    EXPECT_NE(texte, Erreur_execution(53, ERROR_FILE_NOT_FOUND, L"x").Texte());
    EXPECT_EQ(L"Erreur système 987654321", Erreur_execution(57, 987654321, L"x").Texte());
}

TEST(Erreurs, la_derniere_erreur_du_systeme_est_prise_avant_tout) {
    try {
        SetLastError(ERROR_SHARING_VIOLATION);
        Lever_derniere_erreur(Acte::ouvrir, L"c:\\x");
    } catch (const Erreur_execution & erreur) {
        EXPECT_EQ(70, erreur.numero);
        EXPECT_EQ(DWORD{ERROR_SHARING_VIOLATION}, erreur.code_systeme);
        EXPECT_EQ(L"c:\\x", erreur.chemin);
    }
}

}  // namespace
