#include "fenetres/programmes_lances.h"
#include "fenetres/systeme_hote.h"

#include <algorithm>

using namespace Pilote;

using Textes = std::vector<std::wstring>;

// Commands typed under the panes.
class Ligne_de_commande : public Programmes_lances {
protected:
    const std::wstring invite = source + L">";

    void Lancer_sur_source() {
        Lancer();
        Ouvrir(L"srce", source);
    }
    std::wstring Ligne() const { return Lire(L"Ligne_commande"); }
    void         Ouvrir_ligne() {
                Cliquer(L"Prompt");
                EXIGER(Se_voit(L"Ligne_commande") && A_le_focus(L"Ligne_commande") && Ligne() == invite);
    }
    // Typed where the caret is, then Enter.
    void Saisir(const std::wstring & texte) {
        Taper(texte);
        Frapper(VK_RETURN);
        Reposer(Principale());
    }
    void Attendre_introuvable(const std::wstring & commande_capitales) {
        Attendre_avertissement(L"Fichier " + commande_capitales +
                               L" ou .EXE introuvable dans le répertoire :\r" + Capitales(source));
    }
    void Derouler() {
        RECT place = Place_ecran(Controle(L"Ligne_commande"));
        Pilote::Cliquer(POINT{place.right - 8, (place.top + place.bottom) / 2});
        EXIGER(Deroulee(Controle(L"Ligne_commande")));
    }
    void Attendre_invite_seule() { ATTENDRE(Ligne() == invite); }
};

TEST_F(Ligne_de_commande, le_bouton_ouvre_la_ligne_a_l_invite_et_quitter_la_ligne_la_cache) {
    Lancer_sur_source();
    EXPECT_FALSE(Se_voit(L"Ligne_commande"));
    Ouvrir_ligne();
    Taper(L"rien");
    ATTENDRE(Ligne() == invite + L"rien");
    // The access key opens nothing anew.
    Alt(L'l');
    Reposer(Principale());
    EXPECT_EQ(Ligne(), invite + L"rien");
    Frapper(VK_ESCAPE);
    ATTENDRE(!Se_voit(L"Ligne_commande") && A_le_focus(L"Répertoire_srce"));
    Alt(L'l');
    ATTENDRE(Se_voit(L"Ligne_commande") && A_le_focus(L"Ligne_commande") && Ligne() == invite);
    Frapper(VK_TAB);
    ATTENDRE(!Se_voit(L"Ligne_commande"));
    Ouvrir_ligne();
    Pilote::Cliquer(Controle(L"Chemin_srce"));
    ATTENDRE(!Se_voit(L"Ligne_commande") && A_le_focus(L"Chemin_srce"));
    // The prompt follows the SOURCE directory.
    Ouvrir(L"srce", dossier.Chemin());
    Cliquer(L"Prompt");
    ATTENDRE(Ligne() == dossier.Chemin() + L">");
}

TEST_F(Ligne_de_commande, ce_qui_est_tape_reste_quand_une_autre_fenetre_passe_devant) {
    Lancer_sur_source();
    Ouvrir_ligne();
    Taper(L"a moitie");
    ATTENDRE(Ligne() == invite + L"a moitie");
    HWND autre = CreateWindowExW(0, L"STATIC", L"autre", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 50, 50,
                                 nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(autre);
    ATTENDRE(GetForegroundWindow() == autre);
    EXPECT_TRUE(Se_voit(L"Ligne_commande"));
    SetForegroundWindow(Principale());
    DestroyWindow(autre);
    ATTENDRE(A_le_focus(L"Ligne_commande"));
    Taper(L" tape");
    ATTENDRE(Ligne() == invite + L"a moitie tape");
}

TEST_F(Ligne_de_commande, la_commande_part_dans_le_repertoire_source_ses_arguments_entre_guillemets) {
    Installer_enregistreur(Source(L"X.EXE"));
    Installer_enregistreur(dossier / L"Mes outils\\É.EXE");
    Installer_enregistreur(dossier / L"Mes.EXE");
    Lancer_sur_source();
    Ouvrir_ligne();
    const std::wstring                          outil = dossier / L"Mes outils\\É.EXE";
    const std::wstring                          cite  = L"\"" + outil + L"\"";
    const std::pair<std::wstring, std::wstring> cas[] = {
        {L"X.EXE", L"X.EXE"},
        {L"  X   ", L"X"},
        {L"X notes.txt", L"X \"notes.txt\""},
        {L"X un deux trois", L"X \"un deux trois\""},
        {L"X \"un deux\"", L"X \"un deux\""},
        {L"X a>b", L"X \"a>b\""},
        {cite + L" a b", cite + L" \"a b\""},
        {outil + L" a b", cite + L" \"a b\""},
        {outil, cite},
        {cite, cite},
    };
    // The command that was run is marked: what is typed takes its place.
    for (const auto & [tape, attendue] : cas) {
        SCOPED_TRACE(Utf8(tape));
        Saisir(tape);
        Attendre_lance(attendue, source);
        EXPECT_EQ(Ligne(), invite + tape);
    }
    // Enter alone runs it again.
    Frapper(VK_RETURN);
    Attendre_lance(cite, source);
    EXPECT_TRUE(Se_voit(L"Ligne_commande"));
    EXPECT_TRUE(Est_actif(L"Croiser"));
    EXPECT_TRUE(Boite_absente());
}

TEST_F(Ligne_de_commande, une_commande_vide_ou_sans_invite_ne_fait_rien) {
    Installer_enregistreur(Source(L"X.EXE"));
    Lancer_sur_source();
    Ouvrir_ligne();
    Saisir(L"");
    Saisir(L"   ");
    Remplacer_texte(L"Ligne_commande", L"X.EXE");
    Saisir(L"");
    Rien_de_plus();
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(Entrees(L"Ligne_commande"), Textes{});
    // Any ">" is a prompt.
    Remplacer_texte(L"Ligne_commande", L">X.EXE");
    Saisir(L"");
    Attendre_lance(L"X.EXE", source);
    EXPECT_EQ(Entrees(L"Ligne_commande"), Textes{L"X.EXE"});
}

TEST_F(Ligne_de_commande, un_programme_absent_est_essaye_avec_com_et_alors_seulement_signale) {
    Installer_enregistreur(Source(L"Y.COM"));
    Installer_enregistreur(dossier / L"Mes outils\\Y.COM");
    Lancer_sur_source();
    Ouvrir_ligne();
    Saisir(L"Y");
    Attendre_lance(L"Y.COM", source);
    Saisir(L"Y un deux");
    Attendre_lance(L"Y.COM \"un deux\"", source);
    Saisir(L"\"" + (dossier / L"Mes outils\\Y") + L"\" z");
    Attendre_lance(L"\"" + (dossier / L"Mes outils\\Y.COM") + L"\" \"z\"", source);
    for (const wchar_t * commande : {L"absent", L"était là"}) {
        Saisir(commande);
        Attendre_introuvable(Capitales(commande));
        // The line waits with what was typed, to be mended.
        ATTENDRE(A_le_focus(L"Ligne_commande"));
        EXPECT_TRUE(Se_voit(L"Ligne_commande"));
        EXPECT_EQ(Ligne(), invite + commande);
        Frapper(VK_DOWN);
        Frapper(VK_UP);
        Frapper(VK_DOWN);
        Attendre_invite_seule();
    }
    EXPECT_TRUE(Est_actif(L"Croiser"));
    Rien_de_plus();
}

TEST_F(Ligne_de_commande, les_autres_echecs_sont_signales_par_leur_message) {
    Creer_source(L"notes.txt", 10);
    Lancer_sur_source();
    Ouvrir_ligne();
    Saisir(L"notes.txt");
    Attendre_avertissement(
        L"Fichier non exécutable :NOTES.TXT\rseuls les programmes avec les extensions COM, "
        L"EXE, BAT ou PIF sont exécutables.");
    ATTENDRE(A_le_focus(L"Ligne_commande"));
    ASSERT_TRUE(Sur_hote(dossier.Chemin(), L"mv source ailleurs"));
    Saisir(L"");
    Attendre_avertissement(L"Chemin d'accès introuvable\rou support absent.");
    EXPECT_TRUE(Est_actif(L"Croiser"));
    ATTENDRE(A_le_focus(L"Ligne_commande"));
}

TEST_F(Ligne_de_commande, dans_un_repertoire_trop_long_rien_ne_part_ailleurs_a_sa_place) {
    std::wstring fond = source;
    for (int i = 0; i < 30; ++i) fond += L"\\répertoire" + std::to_wstring(i);
    Creer_dossier(fond);
    Installer_enregistreur(Source(L"X.EXE"));
    Regler(L"Boutons", L"Bouton", L"X.EXE ?");
    Lancer_sur_source();
    Remplacer_texte(L"Chemin_srce", fond);
    Frapper(VK_RETURN);
    ATTENDRE(A_le_focus(L"Fichier_srce"));
    const std::wstring message =
        L"Le chemin du répertoire de travail est trop long pour y lancer une commande.";
    Cliquer(L"Prompt");
    ATTENDRE(Ligne() == fond + L">");
    Saisir(Source(L"X.EXE"));
    Attendre_avertissement(message);
    ATTENDRE(A_le_focus(L"Ligne_commande"));
    EXPECT_EQ(Ligne(), fond + L">" + Source(L"X.EXE"));
    Commencer(L"Bouton(0)");
    Attendre_avertissement(message);
    Rien_de_plus();
}

TEST_F(Ligne_de_commande, la_trente_et_unieme_commande_chasse_la_plus_ancienne_de_la_liste) {
    Installer_enregistreur(Source(L"X.EXE"));
    Lancer_sur_source();
    Ouvrir_ligne();
    Textes attendues;
    for (int i = 1; i <= 31; ++i) {
        // A start answers questions before the keys that wait: only what it started tells that it is over.
        Saisir(L"X " + std::to_wstring(i));
        Attendre_lance(L"X \"" + std::to_wstring(i) + L"\"", source);
        if (HasFailure()) return;
        attendues.push_back(L"X " + std::to_wstring(i));
        EXPECT_EQ(Entrees(L"Ligne_commande").size(), std::min<std::size_t>(attendues.size(), 30));
    }
    attendues.erase(attendues.begin());
    EXPECT_EQ(Entrees(L"Ligne_commande"), attendues);
    // The arrows stop at both ends.
    for (int i = 0; i < 35; ++i) Frapper(VK_UP);
    ATTENDRE(Ligne() == invite + L"X 2");
    Frapper(VK_DOWN);
    ATTENDRE(Ligne() == invite + L"X 3");
    for (int i = 0; i < 35; ++i) Frapper(VK_DOWN);
    Attendre_invite_seule();
}

TEST_F(Ligne_de_commande, les_fleches_et_la_liste_rappellent_les_commandes_qui_repartent_par_entree) {
    Installer_enregistreur(Source(L"X.EXE"));
    Lancer_sur_source();
    Ouvrir_ligne();
    Frapper(VK_UP);
    Reposer(Principale());
    EXPECT_EQ(Ligne(), invite);
    for (const wchar_t * lettre : {L"a", L"b", L"c"}) {
        Saisir(std::wstring(L"X ") + lettre);
        Attendre_lance(std::wstring(L"X \"") + lettre + L"\"", source);
    }
    Frapper(VK_UP);
    Frapper(VK_UP);
    ATTENDRE(Ligne() == invite + L"X b");
    Saisir(L"is");
    Attendre_lance(L"X \"bis\"", source);
    // Chosen in the list, with the mouse then with the keys: the prompt comes before it, and nothing starts by itself.
    Derouler();
    Pilote::Cliquer(Point_entree(Liste_deroulee(Controle(L"Ligne_commande")), 0));
    ATTENDRE(Ligne() == invite + L"X a");
    Rien_de_plus();
    Frapper(VK_RETURN);
    Attendre_lance(L"X \"a\"", source);
    Derouler();
    Frapper(VK_HOME);
    Frapper(VK_DOWN);
    Frapper(VK_RETURN);
    ATTENDRE(!Deroulee(Controle(L"Ligne_commande")));
    Rien_de_plus();
    const std::wstring choisie = Ligne();
    EXPECT_TRUE(choisie.starts_with(invite + L"X ")) << Utf8(choisie);
    // Escape closes the list, then the line.
    Derouler();
    Frapper(VK_DOWN);
    Frapper(VK_ESCAPE);
    ATTENDRE(!Deroulee(Controle(L"Ligne_commande")) && Ligne() == choisie);
    EXPECT_TRUE(Se_voit(L"Ligne_commande"));
    Frapper(VK_ESCAPE);
    ATTENDRE(!Se_voit(L"Ligne_commande"));
    // What was typed is remembered as long as the program runs.
    Ouvrir_ligne();
    Frapper(VK_UP);
    ATTENDRE(Ligne() == invite + L"X a");
}

TEST_F(Ligne_de_commande, un_lot_ne_lance_que_la_commande_tapee) {
    Installer_enregistreur(Source(L"X.EXE"));
    Installer_enregistreur(Source(L"AUTRE.EXE"));
    Installer_lot(Source(L"lot.bat"), Source(L"X.EXE"));
    Installer_lot(Source(L"muet.bat"), Source(L"X.EXE"), L"seul");
    Lancer_sur_source();
    Ouvrir_ligne();
    Saisir(L"lot.bat a&AUTRE.EXE");
    Attendre_lance(L"\"" + Source(L"X.EXE") + L"\" \"a&AUTRE.EXE\"", source, etat_lot);
    Saisir(L"muet.bat \"a\" & AUTRE.EXE");
    Attendre_lance(L"\"" + Source(L"X.EXE") + L"\" seul", source, etat_lot);
    Saisir(L"lot&AUTRE.EXE");
    Attendre_introuvable(L"LOT&AUTRE.EXE");
    Rien_de_plus();
}

TEST_F(Ligne_de_commande, pendant_une_commande_rien_ne_s_ouvre_ni_ne_part) {
    Installer_enregistreur(Source(L"X.EXE"));
    Regler(L"Boutons", L"&Jeu", Source(L"X.EXE"));
    Creer_longue(Source(L"longue.dat"));
    Lancer_dans_les_dossiers();
    Choisir({L"longue.dat"});
    Commencer(L"Copier");
    Attendre_commencee();
    Commencer(L"Prompt");
    Commencer(L"Bouton(0)");
    Alt(L'l');
    Alt(L'j');
    Reposer(Principale());
    EXPECT_FALSE(Se_voit(L"Ligne_commande"));
    Commencer(L"Arret");
    Attendre_fin_commande();
    Rien_de_plus();
    EXPECT_FALSE(Se_voit(L"Ligne_commande"));
}
