#include "fenetres/visionneuse.h"
#include "pilote/unites.h"

#include <algorithm>
#include <vector>

using namespace Pilote;

namespace {

// A viewer that hands its files over ends by itself.
void Rejoindre(const std::wstring & arguments, const std::wstring & repertoire) {
    const Programme autre(Executable_visionneuse(), L"ovl " + arguments, repertoire);
    EXPECT_TRUE(autre.Attendre_fin(10000)) << Utf8(arguments);
    EXPECT_EQ(autre.Code_de_fin(), 0u);
}

}  // namespace

TEST_F(Visionneuse, ce_qui_ne_peut_etre_lu_est_dit_dans_la_vue_et_les_autres_fichiers_restent_utilisables) {
    Creer(L"bon.txt", "lisible");
    Creer(L"vide.txt", "");
    Creer_dossier(Chemin(L"rep"));
    Creer(L"exclusif.txt", "x");
    const HANDLE reserve =
        CreateFileW(Chemin(L"exclusif.txt").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    Lancer(L"\"\" \"   \" absent.txt rep vide.txt exclusif.txt nulle\\part.txt a?b.txt bon.txt");
    struct Cas {
        const wchar_t * nom;
        const wchar_t * lu;
    };
    const Cas cas[] = {{L"absent.txt", L"Ce fichier n'existe pas (ou n'existe plus)."},
                       {L"rep", L"C'est un répertoire : il n'y a pas de texte à montrer."},
                       {L"vide.txt", L"Ce fichier est vide."},
                       {L"exclusif.txt", L"un autre programme s'en réserve l'usage."},
                       {L"part.txt", L"Le répertoire de ce fichier n'existe pas."},
                       {L"a?b.txt", L"Ce nom ne peut pas être celui d'un fichier."},
                       {L"bon.txt", L"lisible"}};
    EXPECT_EQ(Entrees(Fenetre().Controle(L"Fichiers")).size(), std::size(cas));
    for (int rang = 0; rang < static_cast<int>(std::size(cas)); ++rang) {
        if (rang > 0) Choisir(L"Fichiers", rang);
        EXPECT_EQ(Utf8(Fenetre().Titre()), Utf8(std::wstring(cas[rang].nom) + L" - Visionneuse"));
        EXPECT_TRUE(Montre(cas[rang].lu)) << Utf8(cas[rang].nom) << " : " << Utf8(Lu());
        EXPECT_EQ(Boite_visible(programme->Numero()), nullptr);
        const bool lisible = rang == 2 || rang == 6;
        EXPECT_EQ(Fenetre().Est_actif(L"Suivant"), lisible) << Utf8(cas[rang].nom);
        EXPECT_EQ(Entree_courante(Fenetre().Controle(L"Affichage")), lisible ? 0 : -1) << Utf8(cas[rang].nom);
        // Keys that move, search or show otherwise do no harm where there is nothing.
        for (const int touche : {VK_NEXT, VK_F4, VK_F4}) Pilote::Frapper(static_cast<WORD>(touche));
        Frapper_ctrl(VK_END);
    }
    // A file that has become readable is read again.
    CloseHandle(reserve);
    Choisir(L"Fichiers", 3);
    EXPECT_TRUE(Montre(L"x\r\n"));
}

// Whoever meets the new end first, the window tells of it.
TEST_F(Visionneuse, un_fichier_raccourci_juste_avant_d_etre_parcouru_a_aussitot_sa_nouvelle_taille) {
    Creer(L"a.txt", std::string(490000, '\n') + "zorro" + std::string(510000, '\n'));
    Lancer_fichiers({L"a.txt"});
    ATTENDRE(Position().starts_with(L"Ligne 1 sur "));
    Fenetre().Remplacer(L"Recherche", L"zorro");
    const HANDLE ecrit = CreateFileW(Chemin(L"a.txt").c_str(), GENERIC_WRITE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                     OPEN_EXISTING, 0, nullptr);
    SetFilePointer(ecrit, 490005, nullptr, FILE_BEGIN);
    SetEndOfFile(ecrit);
    CloseHandle(ecrit);
    Frapper(VK_F3);
    EXPECT_TRUE(Lu().ends_with(L"\r\nzorro\r\n"));
    ATTENDRE(Etat().starts_with(L"490"));
    ATTENDRE(Position().ends_with(L" - 100 %") && Position().find(L" sur 490") != std::wstring::npos);
}

TEST_F(Visionneuse, des_noms_de_toute_sorte_et_de_toute_longueur_s_ouvrent) {
    const std::wstring long_dossier = Chemin(L"100% d'\u00E9t\u00E9 & fils") + L"\\" +
                                      std::wstring(120, L'l') + L"\\" + std::wstring(120, L'm');
    const std::wstring noms[] = {Chemin(L"\u6F22\u5B57 \U0001F600.txt"), Chemin(L"a & b %TEMP% 'c' ^.txt"),
                                 Chemin(L"ovl"), long_dossier + L"\\au bout.txt"};
    Creer_dossier(long_dossier);
    std::wstring arguments = L"ovl";
    for (const std::wstring & nom : noms) {
        Creer_fichier(nom, "contenu");
        arguments += L" \"" + nom + L"\"";
    }
    Lancer(arguments);
    for (int rang = 0; rang < static_cast<int>(std::size(noms)); ++rang) {
        if (rang > 0) Choisir(L"Fichiers", rang);
        EXPECT_EQ(Utf8(Lu()), "contenu\r\n") << Utf8(noms[rang]);
        EXPECT_EQ(Utf8(Fenetre().Titre()),
                  Utf8(noms[rang].substr(noms[rang].rfind(L'\\') + 1) + L" - Visionneuse"));
    }
}

TEST_F(Visionneuse, des_milliers_de_fichiers_sont_dans_la_liste_sans_attendre) {
    std::wstring arguments;
    for (int i = 0; i < 6000; ++i) arguments += L" " + std::to_wstring(i);
    const ULONGLONG debut = GetTickCount64();
    Lancer(arguments + L" 7 8 9");
    EXPECT_LT(GetTickCount64() - debut, 3000u);
    EXPECT_EQ(Nombre_entrees(Fenetre().Controle(L"Fichiers")), 6000);
}

TEST_F(Visionneuse, sans_fichier_elle_attend_et_un_fichier_absent_revenu_se_relit_par_F5) {
    Lancer(L"");
    EXPECT_EQ(Utf8(Fenetre().Titre()), "Visionneuse");
    EXPECT_EQ(Utf8(Lu()), Utf8(L"Aucun fichier n'est ouvert."));
    EXPECT_FALSE(Fenetre().Est_actif(L"Imprimer"));
    Rejoindre(L"plus_tard.txt", dossier.Chemin());
    EXPECT_TRUE(Montre(L"Ce fichier n'existe pas"));
    Creer(L"plus_tard.txt", "le voici");
    Frapper(VK_F5);
    EXPECT_EQ(Lu(), L"le voici\r\n");
}

TEST_F(Visionneuse, ovl_confie_les_fichiers_a_celle_qui_est_ouverte) {
    Creer(L"un.txt", "premier");
    Creer(L"deux \u00E9t\u00E9.txt", "deuxieme");
    Creer(L"trois.txt", "troisieme");
    // None is open yet: this one stays.
    Lancer(L"ovl " + Chemin(L"un.txt"));
    EXPECT_EQ(Lu(), L"premier\r\n");
    PostMessageW(Fenetre().Fenetre(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
    EXIGER(IsIconic(Fenetre().Fenetre()));
    Rejoindre(L"\"deux \u00E9t\u00E9.txt\" trois.txt", dossier.Chemin());
    EXPECT_TRUE(Montre(L"deuxieme"));
    EXPECT_FALSE(IsIconic(Fenetre().Fenetre()));
    ATTENDRE(GetForegroundWindow() == Fenetre().Fenetre());
    EXPECT_EQ(Entrees(Fenetre().Controle(L"Fichiers")).size(), 3u);
    // What is in the list already is shown again, not listed twice.
    Rejoindre(Chemin(L"UN.TXT"), dossier.Chemin());
    EXPECT_TRUE(Montre(L"premier"));
    EXPECT_EQ(Entrees(Fenetre().Controle(L"Fichiers")).size(), 3u);
    // Without "ovl" another window opens.
    const Programme seule(Executable_visionneuse(), Chemin(L"trois.txt"), dossier.Chemin());
    const Fille     autre(seule.Numero(), L"Visionneuse");
    autre.Attendre_ouverte();
    EXPECT_EQ(Texte(autre.Controle(L"Vue")), L"troisieme\r\n");
}

TEST_F(Visionneuse, ce_qu_un_autre_programme_lui_envoie_de_travers_est_refuse) {
    Creer(L"a.txt", "un");
    Lancer_fichiers({L"a.txt"});
    const HWND reception = FindWindowExW(HWND_MESSAGE, nullptr, L"PELMIRA_Remise", nullptr);
    ASSERT_NE(reception, nullptr);
    const ULONG_PTR    marque = 0x4B52564E;
    const std::wstring texte(600000, L'a');
    const auto         envoyer = [&](ULONG_PTR sorte, std::size_t octets) {
        COPYDATASTRUCT donnees{sorte, static_cast<DWORD>(octets), const_cast<wchar_t *>(texte.data())};
        DWORD_PTR      pris = 7;
        EXPECT_NE(SendMessageTimeoutW(reception, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&donnees),
                                              SMTO_NORMAL, 5000, &pris),
                          0);
        return pris;
    };
    EXPECT_EQ(envoyer(0, 2), 0u);
    EXPECT_EQ(envoyer(marque, 3), 0u);
    EXPECT_EQ(envoyer(marque, 2 * texte.size()), 0u);
    EXPECT_EQ(envoyer(marque, 0), 1u);
    EXPECT_EQ(Lu(), L"un\r\n");
    EXPECT_EQ(Nombre_entrees(Fenetre().Controle(L"Fichiers")), 1);
    // A name of any length is a name all the same.
    EXPECT_EQ(envoyer(marque, 80000), 1u);
    ATTENDRE(Nombre_entrees(Fenetre().Controle(L"Fichiers")) == 2);
    EXPECT_TRUE(Montre(L"\n\n"));
    EXPECT_EQ(Boite_visible(programme->Numero()), nullptr);
}

TEST_F(Visionneuse, plusieurs_lancees_a_la_fois_par_ovl_ne_font_qu_une_fenetre) {
    std::vector<std::unique_ptr<Programme>> lancees;
    for (int i = 0; i < 4; ++i) {
        const std::wstring nom = L"f" + std::to_wstring(i) + L".txt";
        Creer(nom, std::to_string(i));
        lancees.push_back(
            std::make_unique<Programme>(Executable_visionneuse(), L"ovl " + nom, dossier.Chemin()));
    }
    const auto vivantes = [&] {
        return std::count_if(lancees.begin(), lancees.end(), [](const auto & l) { return l->Vivant(); });
    };
    ASSERT_TRUE(Attendre([&] { return vivantes() == 1; }, 15000));
    const auto restee =
        std::find_if(lancees.begin(), lancees.end(), [](const auto & l) { return l->Vivant(); });
    const Fille fenetre((*restee)->Numero(), L"Visionneuse");
    fenetre.Attendre_ouverte();
    ATTENDRE(Nombre_entrees(fenetre.Controle(L"Fichiers")) == 4);
}

TEST_F(Visionneuse, des_fichiers_confies_pendant_une_recherche_attendent_qu_elle_finisse) {
    ASSERT_NO_FATAL_FAILURE(Creer_immense(L"grand.bin", 1ULL << 31, "FIN"));
    Creer(L"autre.txt", "autre fichier");
    Lancer_fichiers({L"grand.bin"});
    Fenetre().Remplacer(L"Recherche", L"zzz");
    Pilote::Frapper(VK_F3);
    EXIGER(Sablier(Fenetre().Fenetre()));
    Rejoindre(L"autre.txt", dossier.Chemin());
    EXPECT_TRUE(Sablier(Fenetre().Fenetre()));
    EXPECT_TRUE(Premiere_ligne().starts_with(L"00000000"));
    Fenetre().Cliquer(L"Arrêter");
    EXPECT_TRUE(Montre(L"autre fichier"));
}

TEST_F(Visionneuse, un_fichier_vide_ne_s_imprime_pas_et_l_on_demande_avant_d_en_imprimer_un_tres_long) {
    Creer(L"vide.txt", "");
    Creer(L"long.txt", std::string(300000, 'a'));
    Lancer_fichiers({L"vide.txt", L"long.txt"});
    Pilote::Frapper_avec(VK_CONTROL, 'P');
    Attendre_boite(L"Imprimer", L"Ce fichier est vide : il n'y a rien à imprimer.",
                   MB_OK | MB_ICONINFORMATION);
    Choisir(L"Fichiers", 1);
    Pilote::Cliquer(Fenetre().Controle(L"Imprimer"));
    const HWND boite = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(boite, nullptr);
    EXPECT_NE(Lire_boite(boite).texte.find(L"environ 100 pages"), std::wstring::npos);
    EXPECT_TRUE(Repondre_boite(boite, IDNO));
    ATTENDRE(Fenetre().Est_actif(L"Imprimer"));
}

class Visionneuse_DR : public Visionneuse {
protected:
    Visionneuse_DR() { Unite::Vider(L'D'); }
    ~Visionneuse_DR() override {
        programme.reset();
        Unite::Remettre_disque();
    }
};

TEST_F(Visionneuse_DR, un_disque_arrache_pendant_qu_un_de_ses_fichiers_se_montre_est_dit_et_se_relit_remis) {
    Creer_fichier(L"D:\\long.txt", std::string(8 * 1024 * 1024, 'a') + "\r\nfin");
    Creer(L"autre.txt", "autre");
    Lancer(L"D:\\long.txt " + Chemin(L"autre.txt"));
    EXPECT_TRUE(Premiere_ligne().starts_with(L"aaa"));
    Unite::Arracher_disque();
    Frapper_ctrl(VK_END);
    EXPECT_TRUE(Montre(L"D:\\long.txt\n\n"));
    EXPECT_EQ(Boite_visible(programme->Numero()), nullptr);
    EXPECT_FALSE(Fenetre().Est_actif(L"Imprimer"));
    Frapper(VK_F5);
    EXPECT_TRUE(Montre(L"D:\\long.txt\n\n"));
    Choisir(L"Fichiers", 1);
    EXPECT_EQ(Lu(), L"autre\r\n");
    Unite::Remettre_disque();
    Choisir(L"Fichiers", 0);
    Frapper_ctrl(VK_END);
    EXPECT_TRUE(Montre(L"fin\r\n"));
}

class Visionneuse_F : public Visionneuse {};

TEST_F(Visionneuse_F, une_unite_sans_disque_est_dite_dans_la_vue) {
    Lancer(L"F:\\x.txt");
    EXPECT_TRUE(Montre(L"L'unité n'est pas prête : il n'y a pas de disque."));
}
