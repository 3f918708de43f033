#include "fenetres/commandes.h"
#include "fenetres/systeme_hote.h"
#include "pilote/korvane.h"

#include <cwchar>

using Textes = std::vector<std::wstring>;

// Paths and names of directories typed into the path fields.
class Saisie_chemin : public Korvane {
protected:
    static constexpr const wchar_t * gestionnaire  = L"Gestionnaire de fichiers";
    static constexpr unsigned        question      = MB_YESNOCANCEL | MB_ICONQUESTION;
    static constexpr unsigned        avertissement = MB_OK | MB_ICONEXCLAMATION;

    void Taper_dans(const std::wstring & cote, const std::wstring & texte) {
        Remplacer_texte(L"Chemin_" + cote, texte);
        EXIGER(Lire(L"Chemin_" + cote) == texte);
    }
    void Saisir(const std::wstring & cote, const std::wstring & texte) {
        Taper_dans(cote, texte);
        Pilote::Frapper(VK_RETURN);
    }
    // The pane is in that directory: field, lists and drive say so.
    void Montre(const std::wstring & cote, const std::wstring & repertoire, const Textes & fichiers) {
        const auto meme = [&] { return _wcsicmp(Lire(L"Chemin_" + cote).c_str(), repertoire.c_str()) == 0; };
        EXPECT_TRUE(Pilote::Attendre(meme))
            << Pilote::Utf8(Lire(L"Chemin_" + cote)) << " au lieu de " << Pilote::Utf8(repertoire);
        EXPECT_TRUE(Pilote::Attendre([&] { return Entrees(L"Fichier_" + cote) == fichiers; }))
            << Pilote::Utf8(cote) << " : " << Entrees(L"Fichier_" + cote).size() << " fichiers";
        EXPECT_EQ(towlower(Lire(L"Unité_" + cote)[0]), towlower(repertoire[0]));
    }
    // It went there, and the user goes on in the files.
    void Arrive(const std::wstring & cote, const std::wstring & repertoire, const Textes & fichiers) {
        Montre(cote, repertoire, fichiers);
        ATTENDRE(A_le_focus(L"Fichier_" + cote));
        EXPECT_TRUE(Boite_absente());
        EXPECT_EQ(Lire(L"Ligne_message"), L"");
    }
    void Incorrect() {
        Attendre_boite(gestionnaire, L"Chemin ou nom de répertoire incorrect.", avertissement, IDOK);
    }
    void Propose(const std::wstring & chemin_capitales, int reponse) {
        Attendre_boite(gestionnaire, chemin_capitales + L"\r\rEst-ce le chemin que vous désirez ?", question,
                       reponse);
    }
};

TEST_F(Saisie_chemin, un_chemin_qui_existe_est_ouvert_sans_question_dans_chaque_volet) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"sous\\b.txt", 1);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    Saisir(L"srce", Source(L"sous"));
    Arrive(L"srce", Source(L"sous"), {L"b.txt"});
    Montre(L"dest", destination, {});
    EXPECT_EQ(Choisies(), Textes{});
    Saisir(L"dest", source);
    Arrive(L"dest", source, {L"a.txt"});
    Montre(L"srce", Source(L"sous"), {L"b.txt"});
}

TEST_F(Saisie_chemin, un_chemin_colle_avec_ses_guillemets_ses_blancs_ou_ses_barres_est_compris) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"Nom long\\b.txt", 1);
    Lancer_dans_les_dossiers();
    std::wstring obliques = Source(L"Nom long");
    for (wchar_t & c : obliques) c = c == L'\\' ? L'/' : c;
    std::wstring capitales = Source(L"Nom long");
    for (wchar_t & c : capitales) c = static_cast<wchar_t>(towupper(c));
    const Textes saisies = {
        L"\"" + Source(L"Nom long") + L"\"",
        L"  " + Source(L"Nom long") + L"  ",
        Source(L"Nom long\\"),
        obliques,
        L"\"" + obliques + L"/\" ",
        capitales,
        Source(L"Nom long\\..\\Nom long"),
    };
    for (const std::wstring & saisie : saisies) {
        SCOPED_TRACE(Pilote::Utf8(saisie));
        Saisir(L"srce", source);
        Arrive(L"srce", source, {L"a.txt"});
        Saisir(L"srce", saisie);
        Arrive(L"srce", Source(L"Nom long"), {L"b.txt"});
        // As spelled on disk, but for the drive.
        EXPECT_EQ(Lire(L"Chemin_srce").substr(1), Source(L"Nom long").substr(1));
    }
}

TEST_F(Saisie_chemin, un_chemin_relatif_part_du_repertoire_source) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"sous\\fond\\b.txt", 1);
    Lancer_dans_les_dossiers();
    Saisir(L"srce", L"sous");
    Arrive(L"srce", Source(L"sous"), {});
    Saisir(L"srce", L"fond\\..\\fond");
    Arrive(L"srce", Source(L"sous\\fond"), {L"b.txt"});
    Saisir(L"dest", L"..\\..");
    Arrive(L"dest", source, {L"a.txt"});
    Saisir(L"srce", L"\\");
    ATTENDRE(Lire(L"Chemin_srce").size() == 3);
}

TEST_F(Saisie_chemin, le_repertoire_deja_ouvert_se_confirme_sans_rien_changer) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Saisir(L"srce", source + L"\\");
    Arrive(L"srce", source, {L"a.txt"});
    Saisir(L"srce", L".");
    Arrive(L"srce", source, {L"a.txt"});
}

TEST_F(Saisie_chemin, seule_la_touche_entree_emmene_le_volet) {
    Creer_source(L"sous\\b.txt", 1);
    Lancer_dans_les_dossiers();
    Taper_dans(L"srce", Source(L"sous"));
    Pilote::Frapper(VK_HOME);
    Pilote::Frapper(VK_END);
    Pilote::Frapper(VK_DOWN);
    Pilote::Reposer(Principale());
    EXPECT_EQ(Lire(L"Chemin_srce"), Source(L"sous"));
    EXPECT_EQ(Entrees(L"Répertoire_srce").back(), L"sous");
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{});
    EXPECT_TRUE(A_le_focus(L"Chemin_srce"));
}

TEST_F(Saisie_chemin, un_champ_quitte_sans_entree_montre_a_nouveau_le_chemin_du_volet) {
    Creer_source(L"sous\\b.txt", 1);
    Lancer_dans_les_dossiers();
    for (const std::wstring cote : {L"srce", L"dest"}) {
        const std::wstring avant = Lire(L"Chemin_" + cote);
        Taper_dans(cote, Source(L"sous"));
        Pilote::Frapper(VK_TAB);
        ATTENDRE(Lire(L"Chemin_" + cote) == avant);
        Taper_dans(cote, L"autre");
        Cliquer(L"Répertoire_" + cote);
        ATTENDRE(Lire(L"Chemin_" + cote) != L"autre");
    }
}

TEST_F(Saisie_chemin, ce_qui_est_tape_reste_quand_une_autre_fenetre_passe_devant) {
    Lancer_dans_les_dossiers();
    Taper_dans(L"srce", L"a moitie tape");
    HWND autre = CreateWindowExW(0, L"STATIC", L"autre", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 50, 50,
                                 nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(autre);
    ATTENDRE(GetForegroundWindow() == autre);
    SetForegroundWindow(Principale());
    DestroyWindow(autre);
    ATTENDRE(A_le_focus(L"Chemin_srce"));
    EXPECT_EQ(Lire(L"Chemin_srce"), L"a moitie tape");
}

TEST_F(Saisie_chemin, en_mode_repertoire_un_chemin_s_ouvre_aussi) {
    Creer_source(L"sous\\b.txt", 1);
    Lancer_dans_les_dossiers();
    Cliquer(L"Mode");
    ATTENDRE(Lire(L"Mode") == L" &Mode fichier");
    Saisir(L"srce", Source(L"sous"));
    Arrive(L"srce", Source(L"sous"), {L"b.txt"});
    EXPECT_EQ(Lire(L"Mode"), L" &Mode fichier");
    EXPECT_FALSE(Est_actif(L"Copier"));
}

TEST_F(Saisie_chemin, ce_qui_ne_peut_nommer_un_repertoire_est_refuse_aussitot) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    const std::wstring avant = Lire(L"Chemin_srce");
    for (const std::wstring & saisie :
         {source + L"\\absent\\plus loin", std::wstring(L"*"), std::wstring(L"  "), std::wstring(L"c:absent"),
          std::wstring(L"sou?ce")}) {
        SCOPED_TRACE(Pilote::Utf8(saisie));
        Saisir(L"srce", saisie);
        Incorrect();
        ATTENDRE(Lire(L"Chemin_srce") == avant);
        ATTENDRE(A_le_focus(L"Chemin_srce"));
    }
    // The pane stayed where it was, its selection too.
    EXPECT_EQ(Choisies(), Textes{L"a.txt"});
    EXPECT_EQ(Lire(L"Ligne_message"), L"   1 fichier sélectionné, total = 10 octets.");
}

TEST_F(Saisie_chemin, une_unite_qui_n_existe_pas_est_signalee_sous_l_etiquette_du_champ) {
    Lancer_dans_les_dossiers();
    const std::wstring avant = Lire(L"Chemin_dest");
    Saisir(L"dest", L"q:\\travail");
    Attendre_boite(gestionnaire, L"Support absent ou erreur d'accès sur Q:", avertissement, IDOK);
    ATTENDRE(Lire(L"Chemin_dest") == avant);
    EXPECT_EQ(Lire(L"Unité_dest").substr(0, 1), L"c");
}

TEST_F(Saisie_chemin, un_repertoire_qui_refuse_l_acces_est_signale_et_le_volet_reste) {
    Creer_source(L"secret\\a.txt", 1);
    ASSERT_TRUE(Sur_hote(source, L"chmod 000 secret"));
    Lancer_dans_les_dossiers();
    const std::wstring avant = Lire(L"Chemin_srce");
    Saisir(L"srce", Source(L"secret"));
    Attendre_boite(gestionnaire, L"Disquette protégée en écriture\rou fichier verrouillé.", avertissement,
                   IDOK);
    ATTENDRE(Lire(L"Chemin_srce") == avant);
    EXPECT_TRUE(Sur_hote(source, L"chmod 755 secret"));
}

TEST_F(Saisie_chemin, un_chemin_de_plus_de_260_caracteres_s_ouvre_et_un_chemin_relatif_en_part) {
    std::wstring fond = L"niveau";
    for (int i = 0; i < 30; ++i) fond += L"\\repertoire" + std::to_wstring(i);
    Creer_source(fond + L"\\dessous\\a.txt", 1);
    Lancer_dans_les_dossiers();
    Saisir(L"srce", Source(fond));
    Arrive(L"srce", Source(fond), {});
    Saisir(L"srce", L"dessous");
    Arrive(L"srce", Source(fond + L"\\dessous"), {L"a.txt"});
    Saisir(L"srce", L"..\\..");
    Arrive(L"srce", Source(fond.substr(0, fond.rfind(L'\\'))), {});
}

// Names looked up on a disk of their own.
class Saisie_chemin_D : public Saisie_chemin {
protected:
    Saisie_chemin_D() {
        Pilote::Unite::Vider(L'D');
        Pilote::Creer_fichier(L"D:\\WINDOWS\\SYSTEM\\s.txt", "1");
        Pilote::Creer_fichier(L"D:\\WINDOWS\\SYSTEM\\COLOR\\c.txt", "12");
        Pilote::Creer_fichier(L"D:\\JEUX\\Color\\j.txt", "123");
        Pilote::Creer_fichier(L"D:\\JEUX\\Été Ωμέγα\\o.txt", "123");
    }
    void Lancer_sur_d() {
        Lancer_dans_les_dossiers();
        Saisir(L"srce", L"d:");
        Arrive(L"srce", L"d:\\", {});
    }
};

TEST_F(Saisie_chemin_D, une_unite_seule_ouvre_son_repertoire_courant_et_la_liste_des_unites_suit) {
    Lancer_dans_les_dossiers();
    Saisir(L"srce", L"D:\\JEUX");
    Arrive(L"srce", L"d:\\JEUX", {});
    Saisir(L"srce", source);
    Arrive(L"srce", source, {});
    Saisir(L"srce", L"d:");
    Arrive(L"srce", L"d:\\JEUX", {});
    const std::wstring sur_c = Lire(L"Espace_libre");
    Saisir(L"dest", L"D:\\JEUX\\Color");
    Arrive(L"dest", L"d:\\JEUX\\Color", {L"j.txt"});
    // The free space is that of the drive now shown.
    EXPECT_NE(Lire(L"Espace_libre"), sur_c);
}

TEST_F(Saisie_chemin_D, un_nom_seul_est_cherche_sur_tout_le_disque_et_propose) {
    Lancer_sur_d();
    Saisir(L"srce", L"System");
    Propose(L"D:\\WINDOWS\\SYSTEM", IDYES);
    Arrive(L"srce", L"d:\\WINDOWS\\SYSTEM", {L"s.txt"});
    EXPECT_FALSE(Sablier());
}

TEST_F(Saisie_chemin_D, la_recherche_porte_sur_l_unite_du_volet) {
    Lancer_sur_d();
    Saisir(L"dest", L"System\\Color");
    Incorrect();
    Saisir(L"dest", L"d:\\");
    Arrive(L"dest", L"d:\\", {});
    Saisir(L"dest", L"System\\Color");
    Propose(L"D:\\WINDOWS\\SYSTEM\\COLOR", IDYES);
    Arrive(L"dest", L"d:\\WINDOWS\\SYSTEM\\COLOR", {L"c.txt"});
    Montre(L"srce", L"d:\\", {});
}

TEST_F(Saisie_chemin_D, parmi_plusieurs_le_plus_proche_de_la_racine_vient_d_abord_et_non_passe_au_suivant) {
    Lancer_sur_d();
    Saisir(L"srce", L"COLOR");
    Propose(L"D:\\JEUX\\COLOR", IDNO);
    Propose(L"D:\\WINDOWS\\SYSTEM\\COLOR", IDYES);
    Arrive(L"srce", L"d:\\WINDOWS\\SYSTEM\\COLOR", {L"c.txt"});
}

TEST_F(Saisie_chemin_D, annuler_ou_le_dernier_non_laissent_le_volet_ou_il_etait) {
    Lancer_sur_d();
    Saisir(L"srce", L"color");
    Propose(L"D:\\JEUX\\COLOR", IDCANCEL);
    ATTENDRE(Lire(L"Chemin_srce").size() == 3);
    Saisir(L"srce", L"color");
    Propose(L"D:\\JEUX\\COLOR", IDNO);
    Propose(L"D:\\WINDOWS\\SYSTEM\\COLOR", IDNO);
    Pilote::Reposer(Principale());
    EXPECT_TRUE(Boite_absente());
    Montre(L"srce", L"d:\\", {});
    ATTENDRE(A_le_focus(L"Chemin_srce"));
}

TEST_F(Saisie_chemin_D, la_fin_d_un_chemin_suffit_avec_ses_guillemets_et_ses_barres) {
    Lancer_sur_d();
    Saisir(L"srce", L"d:\\jeux");
    Arrive(L"srce", L"d:\\JEUX", {});
    for (const std::wstring saisie : {L"windows/system/color/", L"\"system\\color\\\"", L"\\SYSTEM\\COLOR"}) {
        SCOPED_TRACE(Pilote::Utf8(saisie));
        Saisir(L"srce", saisie);
        Propose(L"D:\\WINDOWS\\SYSTEM\\COLOR", IDCANCEL);
    }
    Saisir(L"srce", L"stem\\color");
    Incorrect();
}

TEST_F(Saisie_chemin_D, un_nom_hors_de_la_page_de_codes_est_trouve) {
    Lancer_sur_d();
    Saisir(L"srce", L"été ωΜΈΓΑ");
    Propose(L"D:\\JEUX\\ÉTÉ ΩΜΈΓΑ", IDYES);
    Arrive(L"srce", L"d:\\JEUX\\Été Ωμέγα", {L"o.txt"});
}

TEST_F(Saisie_chemin_D, un_nom_absent_du_disque_est_refuse_et_la_fenetre_reste_utilisable) {
    Lancer_sur_d();
    Saisir(L"srce", L"introuvable");
    Incorrect();
    Montre(L"srce", L"d:\\", {});
    EXPECT_TRUE(Se_voit(L"Titre_dest"));
    EXPECT_TRUE(Se_voit(L"Croiser"));
    EXPECT_FALSE(Se_voit(L"En_cours"));
    EXPECT_FALSE(Se_voit(L"Arret"));
    Saisir(L"srce", L"JEUX");
    Arrive(L"srce", L"d:\\JEUX", {});
}

TEST_F(Saisie_chemin_D,
       l_arborescence_memorisee_sert_aux_recherches_suivantes_et_ce_qui_a_disparu_n_est_pas_propose) {
    Lancer_sur_d();
    Saisir(L"srce", L"color");
    Propose(L"D:\\JEUX\\COLOR", IDCANCEL);
    // Made and removed by another program: the disk is not read again for it.
    Pilote::Creer_dossier(L"D:\\JEUX\\NEUF\\ENCORE");
    ASSERT_TRUE(Pilote::Effacer(L"D:\\JEUX\\Color"));
    Saisir(L"srce", L"encore");
    Incorrect();
    Saisir(L"srce", L"color");
    Propose(L"D:\\WINDOWS\\SYSTEM\\COLOR", IDYES);
    Arrive(L"srce", L"d:\\WINDOWS\\SYSTEM\\COLOR", {L"c.txt"});
}

// Whether a directory is still there is asked when its turn comes, and there may be none left.
TEST_F(Saisie_chemin_D, un_homonyme_disparu_pendant_la_question_n_est_pas_propose) {
    Lancer_sur_d();
    Saisir(L"srce", L"color");
    ATTENDRE(!Boite_absente());
    ASSERT_TRUE(Pilote::Effacer(L"D:\\WINDOWS\\SYSTEM\\COLOR"));
    Propose(L"D:\\JEUX\\COLOR", IDNO);
    ATTENDRE(Lire(L"Chemin_srce").size() == 3);
    EXPECT_TRUE(Boite_absente());
    ASSERT_TRUE(Pilote::Effacer(L"D:\\JEUX\\Color"));
    Saisir(L"srce", L"color");
    Incorrect();
}

class Saisie_chemin_F : public Saisie_chemin {};

TEST_F(Saisie_chemin_F, une_unite_sans_support_est_signalee_et_le_volet_reste) {
    Lancer_dans_les_dossiers();
    const std::wstring avant = Lire(L"Chemin_srce");
    for (const std::wstring saisie : {L"f:", L"F:\\travail"}) {
        Saisir(L"srce", saisie);
        Attendre_boite(gestionnaire, L"Support absent ou erreur d'accès sur F:", avertissement, IDOK);
        ATTENDRE(Lire(L"Chemin_srce") == avant);
        EXPECT_EQ(Lire(L"Unité_srce").substr(0, 1), L"c");
    }
}

// A tree that takes a while to be walked.
class Saisie_chemin_longue : public Saisie_chemin {
protected:
    Saisie_chemin_longue() {
        Pilote::Creer_dossier(source + L"\\grand");
        Sur_hote(source + L"\\grand", L"mkdir -p $(seq -f 'a%g/b' 3000) && for i in $(seq 1 10); do mkdir -p "
                                      L"$(seq -f \"c$i/d%g\" 2000); done");
    }
    ~Saisie_chemin_longue() override {
        Fermer();
        Sur_hote(source, L"rm -rf grand");
    }
};

TEST_F(Saisie_chemin_longue, le_parcours_montre_ou_il_en_est_et_s_arrete_au_bouton) {
    Lancer_dans_les_dossiers();
    const std::wstring avant = Lire(L"Chemin_srce");
    for (int fois = 0; fois < 2; ++fois) {
        Saisir(L"srce", L"nulle part");
        EXIGER(Se_voit(L"Arret"));
        EXPECT_TRUE(Sablier());
        EXPECT_TRUE(Se_voit(L"En_cours"));
        EXPECT_FALSE(Se_voit(L"Titre_dest"));
        EXPECT_FALSE(Se_voit(L"Croiser"));
        ATTENDRE(Lire(L"En_cours").starts_with(L"c:\\"));
        if (fois == 0)
            Cliquer(L"Arret");
        else
            Pilote::Frapper(VK_ESCAPE);
        EXPECT_TRUE(Pilote::Attendre([&] { return !Sablier(); }, 1000));
        Pilote::Reposer(Principale());
        // A walk that was stopped finds nothing, and says nothing.
        EXPECT_TRUE(Boite_absente());
        EXPECT_EQ(Lire(L"Chemin_srce"), avant);
        EXPECT_FALSE(Se_voit(L"Arret"));
        EXPECT_FALSE(Se_voit(L"En_cours"));
        EXPECT_TRUE(Se_voit(L"Titre_dest"));
        EXPECT_TRUE(Se_voit(L"Croiser"));
    }
    // What was walked so far is not the whole disk: the next lookup walks it again, to its end.
    Saisir(L"srce", L"c10\\d2000");
    EXPECT_TRUE(Pilote::Attendre([&] { return !Boite_absente(); }, 60000));
    Attendre_boite(gestionnaire,
                   Capitales(source) + L"\\GRAND\\C10\\D2000\r\rEst-ce le chemin que vous désirez ?",
                   question, IDCANCEL);
}
