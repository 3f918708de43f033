#include "coupures/interception.h"
#include "platform/lecture.h"
#include "platform/poignee.h"
#include "services/banc.h"

#include <vector>

namespace {

using Textes  = std::vector<std::wstring>;
using Avancee = Lecture::Avancee;

class Lectures : public Banc {};

Textes Lignes(Lecture & lecture) {
    Textes lignes;
    for (Avancee a = lecture.Avancer(); a != Avancee::fin; a = lecture.Avancer()) {
        if (a == Avancee::ligne) lignes.push_back(lecture.Ligne());
    }
    EXPECT_EQ(Avancee::fin, lecture.Avancer());
    return lignes;
}

Textes Lignes(const std::wstring & chemin) {
    Lecture lecture(chemin, 160);
    return Lignes(lecture);
}

TEST_F(Lectures, chaque_codage_se_lit_selon_sa_marque) {
    const struct {
        std::string octets;
        Textes      lignes;
    } lignes[] = {{"", {}},
                  {"\xE9t\xE9\r\n\x80", {L"été", L"€"}},
                  {"\xEF\xBB\xBF\xC3\xA9t\xC3\xA9\n\xE2\x82\xAC\n", {L"été", L"€"}},
                  {"\xEF\xBB\xBF", {}},
                  {"\xEF\xBB\xBF"
                   "a\xFFz",
                   {L"a\xFFFDz"}},
                  {std::string("\xFF\xFE\xE9\0\r\0\n\0\xAC\x20", 10), {L"é", L"€"}},
                  {std::string("\xFE\xFF\0\xE9\0\r\0\n\x20\xAC", 10), {L"é", L"€"}}};
    for (const auto & ligne : lignes)
        EXPECT_EQ(ligne.lignes, Lignes(Fichier(L"texte", ligne.octets))) << ligne.octets;
}

TEST_F(Lectures, une_ligne_plus_longue_que_les_blocs_se_lit_par_etapes_et_dit_sa_longueur) {
    Lecture lecture(Fichier(L"long", std::string(1000000, 'x') + "\r\nfin"), 160);
    EXPECT_EQ(1000005u, lecture.Longueur());
    int blocs = 0;
    while (lecture.Avancer() == Avancee::bloc) ++blocs;
    EXPECT_EQ(1000000 / 65536, blocs);
    EXPECT_EQ(1000002u, lecture.Octets());
    EXPECT_EQ(std::wstring(640, L'x'), lecture.Ligne());
    EXPECT_EQ((Textes{L"fin"}), Lignes(lecture));
}

TEST_F(Lectures, la_fin_d_une_ligne_compte_pour_deux_caracteres) {
    Lecture octets(Fichier(L"octets", "abc\n"), 160);
    ASSERT_EQ(Avancee::ligne, octets.Avancer());
    EXPECT_EQ(5u, octets.Octets());
    Lecture mots(Fichier(L"mots", std::string("\xFF\xFE\x61\0\r\0\n\0", 8)), 160);
    ASSERT_EQ(Avancee::ligne, mots.Avancer());
    EXPECT_EQ(6u, mots.Octets());
}

TEST_F(Lectures, ce_qui_s_ajoute_apres_l_ouverture_n_est_pas_lu_et_ce_qui_part_ne_manque_pas) {
    const std::wstring chemin = Fichier(L"journal", "un\r\ndeux\r\n");
    Lecture            lecture(chemin, 160);
    {
        const Poignee_fichier ajout(CreateFileW(chemin.c_str(), FILE_APPEND_DATA,
                                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                                nullptr, OPEN_EXISTING, 0, nullptr));
        DWORD                 ecrits = 0;
        EXPECT_TRUE(WriteFile(ajout.Valeur(), "trois\r\n", 7, &ecrits, nullptr));
    }
    EXPECT_TRUE(DeleteFileW(chemin.c_str()));
    EXPECT_EQ((Textes{L"un", L"deux"}), Lignes(lecture));
    Lecture coupee(Fichier(L"coupe", std::string(100000, '\n')), 160);
    EXPECT_EQ(Avancee::ligne, coupee.Avancer());
    const Poignee_fichier coupe(CreateFileW(Chemin(L"coupe").c_str(), GENERIC_WRITE,
                                            FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0,
                                            nullptr));
    EXPECT_TRUE(SetEndOfFile(coupe.Valeur()));
    EXPECT_EQ(65535u, Lignes(coupee).size());
}

BOOL WINAPI Lecture_en_panne(HANDLE, LPVOID, DWORD, LPDWORD, LPOVERLAPPED) {
    SetLastError(ERROR_CRC);
    return FALSE;
}

TEST_F(Lectures, une_lecture_qui_echoue_n_est_pas_la_fin_du_texte) {
    Lecture lecture(Fichier(L"abime", std::string(100000, 'x')), 160);
    ASSERT_EQ(Avancee::bloc, lecture.Avancer());
    const Interception::Detournement panne("ReadFile", &Lecture_en_panne);
    EXPECT_EQ(57, Numero_leve([&] { lecture.Avancer(); }));
}

TEST_F(Lectures, ce_qui_ne_s_ouvre_pas_dit_pourquoi) {
    const std::wstring    chemin = Fichier(L"pris");
    const Poignee_fichier verrou(
        CreateFileW(chemin.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_EQ(70, Numero_leve([&] { Lignes(chemin); }));
    EXPECT_EQ(53, Numero_leve([&] { Lignes(Chemin(L"absent")); }));
    EXPECT_EQ(76, Numero_leve([&] { Lignes(Chemin(L"absent\\x")); }));
    EXPECT_EQ(75, Numero_leve([&] { Lignes(Racine()); }));
    EXPECT_EQ(52, Numero_leve([&] { Lignes(L"nul"); }));
}

TEST_F(Lectures, un_chemin_profond_se_lit) {
    const std::wstring chemin = Profond() + L"\\été.txt";
    Poser(chemin, "là");
    EXPECT_EQ(1u, Lignes(chemin).size());
}

ESSAI_UNITE(F, une_unite_sans_support_refuse_la_lecture_par_l_erreur_71) {
    EXPECT_EQ(71, Numero_leve([] { const Lecture lecture(L"f:\\absent.txt", 160); }));
}

}  // namespace
