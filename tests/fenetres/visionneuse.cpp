#include "fenetres/visionneuse.h"

using namespace Pilote;

std::wstring Executable_visionneuse() {
    const std::wstring korvane = Environnement(L"KORVANE_EXE");
    const std::wstring dossier =
        korvane.empty() ? Repertoire_essais() : korvane.substr(0, korvane.rfind(L'\\'));
    return dossier + L"\\PELMIRA.EXE";
}

void Visionneuse::Creer(const std::wstring & nom, const std::string & contenu) const {
    Creer_fichier(Chemin(nom), contenu);
}

void Visionneuse::Creer_immense(const std::wstring & nom, std::uint64_t taille,
                                const std::string & fin) const {
    const HANDLE fichier =
        CreateFileW(Chemin(nom).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(fichier, INVALID_HANDLE_VALUE);
    LARGE_INTEGER ou;
    ou.QuadPart  = static_cast<LONGLONG>(taille - fin.size());
    DWORD ecrits = 0;
    EXPECT_TRUE(SetFilePointerEx(fichier, ou, nullptr, FILE_BEGIN));
    EXPECT_TRUE(WriteFile(fichier, fin.data(), static_cast<DWORD>(fin.size()), &ecrits, nullptr));
    CloseHandle(fichier);
}

void Visionneuse::Lancer(const std::wstring & arguments) {
    Ecarter_pointeur();
    programme = std::make_unique<Programme>(Executable_visionneuse(), arguments, dossier.Chemin());
    Fenetre().Attendre_ouverte();
}

void Visionneuse::Lancer_fichiers(std::initializer_list<std::wstring> noms) {
    std::wstring arguments;
    for (const std::wstring & nom : noms) arguments += L" \"" + Chemin(nom) + L"\"";
    Lancer(arguments);
}

bool Visionneuse::Montre(const std::wstring & texte) const {
    return Pilote::Attendre([&] { return Lu().find(texte) != std::wstring::npos; });
}

void Visionneuse::Frapper(WORD touche) const {
    Pilote::Frapper(touche);
    Reposer(Fenetre().Fenetre());
}

void Visionneuse::Frapper_ctrl(WORD touche) const {
    Frapper_avec(VK_CONTROL, touche);
    Reposer(Fenetre().Fenetre());
}

void Visionneuse::Choisir(const std::wstring & liste, int rang) const {
    const HWND combinee = Fenetre().Controle(liste);
    Pilote::Cliquer(combinee);
    EXIGER(Deroulee(combinee) && Liste_deroulee(combinee));
    Pilote::Cliquer(Point_entree(Liste_deroulee(combinee), rang));
    ATTENDRE(!Deroulee(combinee));
    Reposer(combinee);
}

void Visionneuse::Chercher(const std::wstring & texte) const {
    Fenetre().Remplacer(L"Recherche", texte);
    Frapper(VK_F3);
}

void Visionneuse::Attendre_boite(const std::wstring & titre, const std::wstring & texte, unsigned style,
                                 int reponse) const {
    const Boite attendue{titre, texte, style};
    const HWND  boite = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(boite, nullptr) << "aucune boîte ; attendue : " << attendue;
    EXPECT_EQ(Lire_boite(boite), attendue);
    EXPECT_TRUE(Repondre_boite(boite, reponse));
    Reposer(Fenetre().Fenetre());
}

namespace {

const std::string utf8_marque = "\xEF\xBB\xBF"
                                "\xC3\xA9t\xC3\xA9 \xE2\x82\xAC\r\nfin";
const std::string utf16_petit("\xFF\xFE\xE9\0t\0\xE9\0\r\0\n\0f\0i\0n\0", 18);
const std::string utf16_grand("\xFE\xFF\0\xE9\0t\0\xE9\0\r\0\n\0f\0i\0n", 18);

// Lines "1" to "n".
std::string Numerotees(int nombre) {
    std::string texte;
    for (int i = 1; i <= nombre; ++i) texte += "ligne " + std::to_string(i) + "\r\n";
    return texte;
}

std::wstring Presse_papiers() {
    std::wstring colle;
    EXPECT_TRUE(Attendre([] { return OpenClipboard(nullptr) != FALSE; }));
    if (const HANDLE memoire = GetClipboardData(CF_UNICODETEXT)) {
        colle = static_cast<const wchar_t *>(GlobalLock(memoire));
        GlobalUnlock(memoire);
    }
    CloseClipboard();
    return colle;
}

}  // namespace

TEST_F(Visionneuse,
       chaque_codage_est_reconnu_et_un_fichier_qui_n_est_pas_du_texte_est_montre_en_hexadecimal) {
    Creer(L"ansi.txt", "\xE9t\xE9 \x80\r\nfin");
    Creer(L"utf8.txt", utf8_marque);
    Creer(L"nu.txt", utf8_marque.substr(3));
    Creer(L"petit.txt", utf16_petit);
    Creer(L"grand.txt", utf16_grand);
    Creer(L"binaire.exe", std::string("MZ\0\xE9", 4) + "abcdefghijklm");
    struct Cas {
        const wchar_t * nom;
        const wchar_t * lu;
        int             mode;
    };
    const Cas cas[] = {{L"ansi.txt", L"été €\r\nfin\r\n", 0},
                       {L"utf8.txt", L"été €\r\nfin\r\n", 1},
                       {L"nu.txt", L"été €\r\nfin\r\n", 1},
                       {L"petit.txt", L"été\r\nfin\r\n", 2},
                       {L"grand.txt", L"été\r\nfin\r\n", 3},
                       {L"binaire.exe",
                        L"00000000  4D 5A 00 E9 61 62 63 64  65 66 67 68 69 6A 6B 6C  MZ.éabcdefghijkl\r\n"
                        L"00000010  6D                                                m\r\n",
                        4}};
    Lancer_fichiers({L"ansi.txt", L"utf8.txt", L"nu.txt", L"petit.txt", L"grand.txt", L"binaire.exe"});
    EXPECT_EQ(Entrees(Fenetre().Controle(L"Fichiers")).size(), std::size(cas));
    for (int rang = 0; rang < static_cast<int>(std::size(cas)); ++rang) {
        const Cas & attendu = cas[rang];
        if (rang > 0) Choisir(L"Fichiers", rang);
        EXPECT_EQ(Utf8(Fenetre().Titre()), Utf8(std::wstring(attendu.nom) + L" - Visionneuse"));
        EXPECT_EQ(Utf8(Lu()), Utf8(attendu.lu)) << Utf8(attendu.nom);
        EXPECT_EQ(Entree_courante(Fenetre().Controle(L"Affichage")), attendu.mode) << Utf8(attendu.nom);
    }
}

TEST_F(Visionneuse, le_codage_se_change_dans_la_liste_et_l_hexadecimal_par_F4) {
    Creer(L"a.txt", "\xC3\xA9");
    Lancer_fichiers({L"a.txt"});
    EXPECT_EQ(Utf8(Lu()), Utf8(L"é\r\n"));
    Choisir(L"Affichage", 0);
    EXPECT_EQ(Utf8(Lu()), Utf8(L"\u00C3\u00A9\r\n"));
    Frapper(VK_F4);
    EXPECT_EQ(Premiere_ligne().substr(0, 15), L"00000000  C3 A9");
    Frapper(VK_F4);
    EXPECT_EQ(Utf8(Lu()), Utf8(L"é\r\n"));
}

TEST_F(Visionneuse, la_recherche_reprend_en_UTF_16_d_ou_elle_en_etait_en_hexadecimal) {
    std::string texte = utf16_grand + std::string("\0\n", 2);
    for (const char lettre : std::string("zorro")) texte += std::string(1, '\0') + lettre;
    Creer(L"a.txt", texte);
    Lancer_fichiers({L"a.txt"});
    Frapper(VK_F4);
    // The second byte of a character.
    Chercher(L"t");
    Frapper(VK_F4);
    EXPECT_EQ(Utf8(Lu()), Utf8(L"été\r\nfin\r\nzorro\r\n"));
    Chercher(L"zorro");
    EXPECT_EQ(Boite_visible(programme->Numero()), nullptr);
    Frapper(VK_F3);
    EXPECT_EQ(Utf8(Etat()), Utf8(L"Recherche reprise au début du fichier."));
}

TEST_F(Visionneuse, les_touches_parcourent_le_fichier_et_la_position_se_lit_en_bas) {
    Creer(L"long.txt", Numerotees(500));
    Lancer_fichiers({L"long.txt"});
    ATTENDRE(Position().starts_with(L"Ligne 1 sur 500"));
    Frapper(VK_DOWN);
    EXPECT_EQ(Premiere_ligne(), L"ligne 2");
    Frapper(VK_UP);
    EXPECT_EQ(Premiere_ligne(), L"ligne 1");
    Frapper(VK_NEXT);
    const std::wstring page = Premiere_ligne();
    EXPECT_NE(page, L"ligne 1");
    Frapper(VK_PRIOR);
    EXPECT_EQ(Premiere_ligne(), L"ligne 1");
    Frapper_ctrl(VK_END);
    EXPECT_TRUE(Lu().ends_with(L"ligne 500\r\n"));
    EXPECT_TRUE(Position().ends_with(L"100 %")) << Utf8(Position());
    Frapper_ctrl(VK_HOME);
    EXPECT_EQ(Premiere_ligne(), L"ligne 1");
    Tourner_molette(Vue(), -1);
    ATTENDRE(Premiere_ligne() == L"ligne 4");
}

TEST_F(Visionneuse, une_longue_ligne_tient_dans_la_fenetre_avec_le_retour_a_la_ligne) {
    std::string texte;
    for (int i = 0; i < 100; ++i) texte += "mot" + std::to_string(i) + " ";
    Creer(L"a.txt", texte + "\r\nsuite");
    Lancer_fichiers({L"a.txt"});
    EXPECT_EQ(Premiere_ligne().size(), texte.size());
    Fenetre().Cliquer(L"Retour");
    EXPECT_LT(Premiere_ligne().size(), 200u);
    EXPECT_TRUE(Premiere_ligne().ends_with(L" "));
    EXPECT_TRUE(Montre(L"mot99 \r\nsuite"));
    const std::size_t avant = Premiere_ligne().size();
    SetWindowPos(Fenetre().Fenetre(), nullptr, 0, 0, 1000, 500, SWP_NOMOVE | SWP_NOZORDER);
    ATTENDRE(Premiere_ligne().size() > avant + 10);
    Fenetre().Cliquer(L"Retour");
    EXPECT_EQ(Premiere_ligne().size(), texte.size());
}

TEST_F(Visionneuse, la_recherche_avance_reprend_au_debut_et_dit_ce_qui_est_introuvable) {
    Creer(L"a.txt", Numerotees(200) + "l'\xC9t\xE9\r\n" + Numerotees(200));
    Lancer_fichiers({L"a.txt"});
    Frapper_ctrl('F');
    ATTENDRE(Fenetre().Nom_du_focus() == L"Recherche");
    Taper(L"éTé");
    ATTENDRE(Fenetre().Lire(L"Recherche") == L"éTé");
    Frapper(VK_RETURN);
    EXPECT_TRUE(Montre(L"l'Été"));
    const std::wstring trouvee = Lu();
    Frapper(VK_F3);
    EXPECT_EQ(Utf8(Etat()), Utf8(L"Recherche reprise au début du fichier."));
    EXPECT_EQ(Lu(), trouvee);
    Fenetre().Cliquer(L"Vue");
    Frapper_ctrl(VK_HOME);
    Chercher(L"ligne 77");
    EXPECT_TRUE(Montre(L"ligne 77\r\n"));
    Fenetre().Remplacer(L"Recherche", L"introuvable");
    Pilote::Frapper(VK_F3);
    Attendre_boite(L"Rechercher", L"Texte introuvable : «\u00A0introuvable\u00A0».",
                   MB_OK | MB_ICONINFORMATION);
    EXPECT_TRUE(Fenetre().Est_actif(L"Suivant"));
    EXPECT_FALSE(Fenetre().Est_actif(L"Arrêter"));
}

TEST_F(Visionneuse, la_selection_du_clavier_ou_de_la_souris_est_copiee_dans_le_presse_papiers) {
    Creer(L"a.txt", "un\ndeux\ntrois");
    Creer(L"b.bin", std::string("M\0Z", 3));
    Lancer_fichiers({L"a.txt", L"b.bin"});
    Frapper_ctrl('A');
    Frapper_ctrl('C');
    ATTENDRE(Presse_papiers() == L"un\r\ndeux\r\ntrois");
    // From the beginning to below the last row, at the left edge: the start of that row.
    const RECT place = Place_ecran(Vue());
    Glisser({place.left + 6, place.top + 6}, {place.left + 6, place.top + 200}, Vue());
    Frapper_ctrl('C');
    ATTENDRE(Presse_papiers() == L"un\r\ndeux\r\n");
    Choisir(L"Fichiers", 1);
    Frapper_ctrl('A');
    Frapper_ctrl('C');
    ATTENDRE(Presse_papiers() == L"4D 00 5A");
}

TEST_F(Visionneuse, un_glisser_que_le_fichier_relu_interrompt_rend_la_souris_aux_autres_controles) {
    Creer(L"a.txt", Numerotees(50));
    Lancer_fichiers({L"a.txt"});
    const DWORD fil     = GetWindowThreadProcessId(Vue(), nullptr);
    const auto  capture = [fil] {
        GUITHREADINFO etat{};
        etat.cbSize = sizeof etat;
        EXPECT_TRUE(GetGUIThreadInfo(fil, &etat));
        return etat.hwndCapture;
    };
    PostMessageW(Vue(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 20));
    EXIGER(capture() == Vue());
    Frapper(VK_F5);
    EXPECT_EQ(capture(), nullptr);
    // The button went up where the window was not told.
    PostMessageW(Vue(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 20));
    EXIGER(capture() == Vue());
    PostMessageW(Vue(), WM_MOUSEMOVE, 0, MAKELPARAM(60, 60));
    ATTENDRE(capture() == nullptr);
}

TEST_F(Visionneuse, une_ligne_d_un_million_de_caracteres_se_parcourt_sans_attendre) {
    Creer(L"a.txt", std::string(1000000, 'x') + "\r\nfin");
    Lancer_fichiers({L"a.txt"});
    const ULONGLONG debut = GetTickCount64();
    for (const int touche : {VK_RIGHT, VK_END, VK_HOME, VK_NEXT, VK_DOWN}) Frapper(static_cast<WORD>(touche));
    Fenetre().Cliquer(L"Retour");
    Fenetre().Cliquer(L"Vue");
    Frapper_ctrl(VK_END);
    EXPECT_TRUE(Lu().ends_with(L"x\r\nfin\r\n"));
    EXPECT_LT(GetTickCount64() - debut, 2000u);
}

TEST_F(Visionneuse, echap_la_croix_et_le_bouton_la_ferment) {
    Creer(L"a.txt", "x");
    Lancer_fichiers({L"a.txt"});
    EXPECT_EQ(Fenetre().Defauts(), "");
    const std::vector<std::wstring> tour{L"Vue",       L"Fichiers", L"Ouvrir",    L"Imprimer", L"Fermer",
                                         L"Affichage", L"Retour",   L"Recherche", L"Suivant"};
    EXPECT_EQ(Fenetre().Tour_du_clavier(false), tour);
    Pilote::Frapper(VK_ESCAPE);
    EXPECT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(programme->Code_de_fin(), 0u);
    Lancer_fichiers({L"a.txt"});
    Fenetre().Fermer_par_la_croix();
    EXPECT_TRUE(programme->Attendre_fin(5000));
    Lancer_fichiers({L"a.txt"});
    Alt(L'f');
    EXPECT_TRUE(programme->Attendre_fin(5000));
}

TEST_F(Visionneuse, deux_giga_octets_s_ouvrent_tout_de_suite_et_leur_fin_est_atteinte_de_meme) {
    constexpr std::uint64_t taille = 2ULL * 1024 * 1024 * 1024 + 16;
    ASSERT_NO_FATAL_FAILURE(Creer_immense(L"grand.bin", taille, "FIN DU FICHIER.."));
    const ULONGLONG debut = GetTickCount64();
    Lancer_fichiers({L"grand.bin"});
    EXPECT_TRUE(Premiere_ligne().starts_with(L"00000000  00 00"));
    Frapper_ctrl(VK_END);
    EXPECT_TRUE(Lu().ends_with(L"FIN DU FICHIER..\r\n"));
    EXPECT_TRUE(Lu().find(L"80000000  46") != std::wstring::npos);
    // As text it is one line without an end.
    Choisir(L"Affichage", 0);
    EXPECT_TRUE(Lu().find(L"FIN DU FICHIER") != std::wstring::npos);
    Frapper_ctrl(VK_HOME);
    Frapper_ctrl(VK_END);
    EXPECT_TRUE(Lu().find(L"FIN DU FICHIER") != std::wstring::npos);
    EXPECT_LT(GetTickCount64() - debut, 4000u);
    // A search through it can be stopped, and nothing else can be started meanwhile.
    Frapper_ctrl(VK_HOME);
    Fenetre().Remplacer(L"Recherche", L"zzz");
    Pilote::Frapper(VK_F3);
    EXIGER(Sablier(Fenetre().Fenetre()));
    EXPECT_TRUE(Etat().starts_with(L"Recherche - "));
    SetWindowPos(Fenetre().Fenetre(), nullptr, 0, 0, 900, 600, SWP_NOMOVE | SWP_NOZORDER);
    Pilote::Frapper(VK_F5);
    Pilote::Frapper(VK_ESCAPE);
    ATTENDRE(!Sablier(Fenetre().Fenetre()));
    ATTENDRE(Etat() == L"Recherche arrêtée.");
    // The frame closes it even then.
    Pilote::Frapper(VK_F3);
    EXIGER(Sablier(Fenetre().Fenetre()));
    Fenetre().Fermer_par_la_croix();
    EXPECT_TRUE(programme->Attendre_fin(5000));
}

TEST_F(Visionneuse, un_fichier_en_lecture_seule_ou_ecrit_par_un_autre_programme_s_ouvre_et_n_est_pas_touche) {
    Creer(L"lecture.txt", "protege");
    Date(Chemin(L"lecture.txt"), 132000000000000000ull);
    Attributs(Chemin(L"lecture.txt"), FILE_ATTRIBUTE_READONLY);
    const Arbre  avant = Lire_arbre(dossier.Chemin());
    const HANDLE ecrit =
        CreateFileW(Chemin(L"journal.txt").c_str(), GENERIC_WRITE,
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, CREATE_NEW, 0, nullptr);
    DWORD n = 0;
    WriteFile(ecrit, "debut\r\n", 7, &n, nullptr);
    Lancer_fichiers({L"lecture.txt", L"journal.txt"});
    EXPECT_EQ(Lu(), L"protege\r\n");
    Choisir(L"Fichiers", 1);
    EXPECT_EQ(Lu(), L"debut\r\n");
    // What is written while it shows comes to show.
    WriteFile(ecrit, "suite\r\n", 7, &n, nullptr);
    EXPECT_TRUE(Montre(L"debut\r\nsuite\r\n"));
    // Another program may shorten it and delete it.
    SetFilePointer(ecrit, 2, nullptr, FILE_BEGIN);
    SetEndOfFile(ecrit);
    ATTENDRE(Lu() == L"de\r\n");
    SetFilePointer(ecrit, 0, nullptr, FILE_BEGIN);
    SetEndOfFile(ecrit);
    ATTENDRE(Lu() == L"Ce fichier est vide.");
    WriteFile(ecrit, "repris", 6, &n, nullptr);
    ATTENDRE(Lu() == L"repris\r\n");
    CloseHandle(ecrit);
    EXPECT_TRUE(DeleteFileW(Chemin(L"journal.txt").c_str()));
    Frapper(VK_ESCAPE);
    EXPECT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(Differences(avant, Lire_arbre(dossier.Chemin())), "");
    Attributs(Chemin(L"lecture.txt"), FILE_ATTRIBUTE_NORMAL);
}
