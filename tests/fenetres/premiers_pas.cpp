#include "pilote/korvane.h"

#include <cwchar>

// The program starts, shows directories and copies: what every other scenario takes for granted.
class Premiers_pas : public Korvane {};

TEST_F(Premiers_pas, les_deux_volets_montrent_le_repertoire_de_depart) {
    Pilote::Creer_fichier_graine(dossier / L"été.txt", 10, 1);
    Lancer();
    for (const wchar_t * liste : {L"Fichier_srce", L"Fichier_dest"}) {
        EXPECT_EQ(Entrees(liste), std::vector<std::wstring>{L"été.txt"}) << Pilote::Utf8(liste);
    }
    EXPECT_EQ(_wcsicmp(Lire(L"Chemin_srce").c_str(), dossier.Chemin().c_str()), 0)
        << Pilote::Utf8(Lire(L"Chemin_srce"));
    EXPECT_TRUE(Lire(L"Ligne_message").empty());
}

TEST_F(Premiers_pas, trois_fichiers_choisis_sont_copies_octet_pour_octet) {
    Creer_source(L"a.txt", 100, 1);
    Creer_source(L"b.dat", 70000, 2);
    Creer_source(L"c.txt", 8192, 3);
    Creer_source(L"d.txt", 5, 4);
    const auto avant = Pilote::Lire_arbre(source);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"b.dat", L"d.txt"});
    Cliquer(L"Copier");
    Attendre_fin_commande();
    EXPECT_EQ(Pilote::Noms(destination), (std::vector<std::wstring>{L"a.txt", L"b.dat", L"d.txt"}));
    EXPECT_EQ(Pilote::Empreinte(Destination(L"b.dat")), Pilote::Empreinte(Source(L"b.dat")));
    EXPECT_EQ(Pilote::Differences(avant, Pilote::Lire_arbre(source)), "");
    ATTENDRE(Entrees(L"Fichier_dest").size() == 3);
}

TEST_F(Premiers_pas, quitter_demande_confirmation_et_non_ramene_a_la_fenetre) {
    Lancer();
    Cliquer(L"Quitter");
    Attendre_boite(L"Gestionnaire de fichiers", L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                   MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDNO);
    ATTENDRE(GetForegroundWindow() == Principale());
    EXPECT_TRUE(programme->Vivant());
}

TEST_F(Premiers_pas, quitter_confirme_finit_le_programme) {
    Lancer();
    Cliquer(L"Quitter");
    Attendre_boite(L"Gestionnaire de fichiers", L"Voulez-vous QUITTER\rle Gestionnaire de fichiers ?",
                   MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDYES);
    EXPECT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(programme->Code_de_fin(), 0u);
}
