#include "app/lignes_commande.h"
#include "platform/fichiers.h"
#include "platform/programmes.h"
#include "platform/textes.h"
#include "services/banc.h"

namespace {

// Starting programs, for real.
class Programmes : public Banc {
protected:
    Programmes() { Changer_repertoire(Racine()); }
    ~Programmes() override { Changer_repertoire(avant_); }

    // A batch file that writes down its first parameter.
    std::wstring Lot(const std::wstring & nom) const { return Fichier(nom, "@echo %1>trace.txt\r\n"); }
    // What it wrote, waited for.
    std::string Trace() const {
        const std::wstring trace = Chemin(L"trace.txt");
        for (int i = 0; i < 1000; ++i, Sleep(5)) {
            if (Present(trace) && Contenu(trace).ends_with("\r\n")) return Contenu(trace);
        }
        return {};
    }

private:
    std::wstring avant_ = Repertoire_courant();
};

TEST_F(Programmes, une_ligne_demarre_dans_le_repertoire_courant) {
    Lot(L"un lot.bat");
    EXPECT_GT(Demarrer(L"\"" + Chemin(L"un lot.bat") + L"\" /S"), 31u);
    EXPECT_EQ(Trace(), "/S\r\n");
}

TEST_F(Programmes, un_fichier_de_commandes_recoit_un_nom_plein_de_signes_et_rien_d_autre_ne_demarre) {
    Lot(L"lot.bat");
    Fichier(L"x.bat", "@echo autre>autre.txt\r\n");
    for (const wchar_t * nom : {L"a&x.bat", L"a|x.bat", L"a^b", L"a,b;c=d", L"(a)", L"a b & x.bat"}) {
        const Existe jamais = [](std::wstring_view) { return false; };
        Demarrer(Ligne_sure(Ligne_association(L"lot.bat", nom, jamais)));
        EXPECT_EQ(Trace(), En_ansi(L"\"" + std::wstring(nom) + L"\"\r\n"));
        DeleteFileW(Chemin(L"trace.txt").c_str());
    }
    // Typed, the sign goes to the batch file, not to the interpreter.
    Demarrer(Ligne_sure(L"lot.bat un & x.bat"));
    EXPECT_EQ(Trace(), "un\r\n");
    Sleep(100);
    EXPECT_FALSE(Present(Chemin(L"autre.txt")));
}

TEST_F(Programmes, ce_qui_ne_peut_demarrer_donne_son_erreur) {
    Fichier(L"faux.exe", "rien de bon");
    EXPECT_EQ(Numero_leve([] { Demarrer(L"absent.exe x"); }), 53);
    EXPECT_EQ(Numero_leve([] { Demarrer(L""); }), 53);
    EXPECT_EQ(Numero_leve([] { Demarrer(L"faux.exe"); }), 5);
    EXPECT_EQ(Numero_leve([] { Demarrer(L"lot.bat θ"); }), 64);
    // A missing directory is told as such by some systems.
    const int numero = Numero_leve([&] { Demarrer(Chemin(L"absent\\a.exe")); });
    EXPECT_TRUE(numero == 53 || numero == 76) << numero;
}

TEST_F(Programmes, un_programme_est_connu_par_son_chemin_ou_la_ou_le_systeme_cherche) {
    Fichier(L"ici.exe");
    Repertoire(L"mes.bat vieux");
    for (const std::wstring & nom : {Chemin(L"ici.exe"), std::wstring(L"ici.exe"), std::wstring(L"ici"),
                                     std::wstring(L"cmd.exe"), std::wstring(L"cmd")})
        EXPECT_TRUE(Programme_existe(nom)) << En_ansi(nom);
    for (const std::wstring & nom :
         {std::wstring(L"absent.exe"), std::wstring(L"mes.bat vieux"), Chemin(L"mes.bat"),
          std::wstring(L"ici.exe /N"), std::wstring(), std::wstring(L"*.exe"), Racine()})
        EXPECT_FALSE(Programme_existe(nom)) << En_ansi(nom);
}

TEST_F(Programmes, un_nom_hors_de_la_page_de_codes_se_transmet_sous_son_nom_court) {
    const std::wstring chemin = Fichier(L"θάλασσα et mer.txt", "grec");
    const std::wstring court  = Chemin_transmissible(chemin);
    EXPECT_TRUE(Tient_en_ansi(court));
    EXPECT_EQ(Contenu(court), "grec");
    EXPECT_EQ(Chemin_court(chemin), court);
    // A bare name stays one.
    EXPECT_TRUE(court.ends_with(L"\\" + Chemin_court(L"θάλασσα et mer.txt")));
    EXPECT_EQ(Chemin_transmissible(Chemin(L"été.txt")), Chemin(L"été.txt"));
    EXPECT_EQ(Chemin_court(Chemin(L"absent θ")), L"");
    EXPECT_EQ(Numero_leve([&] { Chemin_transmissible(Chemin(L"absent θ")); }), 64);
}

TEST_F(Programmes, le_nom_court_d_un_chemin_tres_long_ne_garde_pas_le_prefixe) {
    const std::wstring court = Chemin_court(Profond());
    EXPECT_FALSE(court.empty() || court.starts_with(L"\\\\?\\")) << En_ansi(court);
}

TEST_F(Programmes, le_repertoire_de_travail_ne_dure_que_son_temps) {
    const std::wstring ailleurs = Repertoire(L"ailleurs");
    {
        const Repertoire_de_travail travail(ailleurs);
        EXPECT_EQ(Repertoire_courant(), ailleurs);
    }
    EXPECT_EQ(Repertoire_courant(), Racine());
    EXPECT_EQ(Numero_leve([&] { const Repertoire_de_travail travail(Chemin(L"absent")); }), 76);
    EXPECT_EQ(Repertoire_courant(), Racine());
    const Repertoire_de_travail aucun(L"");
    EXPECT_EQ(Repertoire_courant(), Racine());
}

}  // namespace
