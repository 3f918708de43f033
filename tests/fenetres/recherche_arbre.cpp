#include "fenetres/recherche.h"
#include "fenetres/systeme_hote.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>
#include <set>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// The walk through the drive's directories: when it is done, what it goes through, how it is stopped.
class Recherche_arbre_D : public Recherche {
protected:
    // Reads the progress line until the search waits for a choice; the captions on the way go to `titres`.
    std::set<std::wstring> Suivre_recherche(std::set<std::wstring> & titres) {
        std::set<std::wstring> lignes;
        const auto             resultats = Resultats();
        const bool             finie     = Attendre(
            [&] {
                const HWND fenetre = resultats.Fenetre();
                if (!fenetre) return false;
                titres.insert(Texte(fenetre));
                lignes.insert(Texte(Controle_nomme(fenetre, L"Mess_infos")));
                return titres.contains(choix);
            },
            30000);
        EXPECT_TRUE(finie);
        Attendre_choix(resultats);
        return lignes;
    }
    static std::size_t Repertoires_montres(const std::set<std::wstring> & lignes) {
        std::size_t nombre = 0;
        for (const std::wstring & ligne : lignes)
            nombre += ligne.starts_with(L"d:\\") || ligne.starts_with(L"D:\\");
        return nombre;
    }
};

TEST_F(Recherche_arbre_D, la_premiere_recherche_montre_les_repertoires_parcourus_la_seconde_non) {
    Creer_foret(L'D');
    Creer_d(L"branche69\\rameau059\\fin.txt");
    Lancer_sur_d();
    std::set<std::wstring> titres;
    Lancer_recherche(L"fin");
    EXPECT_GT(Repertoires_montres(Suivre_recherche(titres)), 1u);
    EXPECT_EQ(titres, (std::set<std::wstring>{attente, choix}));
    EXPECT_EQ(Resultats().Entrees(L"Liste_sél"), Textes{L"d:\\branche69\\rameau059\\fin.txt"});
    Annuler(Resultats());
    Lancer_recherche(L"fin");
    EXPECT_EQ(Repertoires_montres(Suivre_recherche(titres)), 0u);
    EXPECT_EQ(Resultats().Entrees(L"Liste_sél"), Textes{L"d:\\branche69\\rameau059\\fin.txt"});
    Annuler(Resultats());
}

// A directory made behind the program's back is seen once the tree is walked again: by another drive in between, or because the
// program itself changed a directory.
TEST_F(Recherche_arbre_D, l_arborescence_gardee_est_reprise_apres_creer_renommer_et_supprimer) {
    const std::pair<const char *, std::function<void()>> commandes[] = {
        {"créer",
         [this] {
             Cliquer(L"Créer");
             Attendre_saisie(L"CREER", L"Entrez le nom du répertoire à créer sous :\rD:\\", L"", L"neuf");
         }},
        {"renommer",
         [this] {
             Ouvrir(L"srce", L"d:\\ancien");
             Cliquer(L"Renommer");
             Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du répertoire :\rD:\\ANCIEN", L"ancien",
                             L"nouveau");
         }},
        {"supprimer",
         [this] {
             Ouvrir(L"srce", L"d:\\nouveau");
             Cliquer(L"Supprimer");
             Attendre_boite(
                 gestionnaire,
                 L"Vous allez SUPPRIMER\rle répertoire D:\\NOUVEAU\r\rConfirmez-vous cette commande ?",
                 oui_non, IDYES);
         }},
    };
    Creer_dossier(L"D:\\ancien");
    Creer_d(L"vu.txt");
    Lancer_sur_d();
    Textes attendus{L"d:\\vu.txt"};
    Annuler(Chercher(L".txt", attendus));
    for (const auto & [nom, commande] : commandes) {
        SCOPED_TRACE(nom);
        const std::wstring cache = L"derriere " + Large(nom).substr(0, 3);
        Creer_d(cache + L"\\x.txt");
        Annuler(Chercher(L".txt", attendus));
        Cliquer(L"Mode");
        commande();
        Attendre_fin_commande();
        Cliquer(L"Mode");
        attendus.push_back(L"d:\\" + cache + L"\\x.txt");
        std::sort(attendus.begin() + 1, attendus.end());
        Annuler(Chercher(L".txt", attendus));
    }
}

class Recherche_arbre_DE : public Recherche_arbre_D {
protected:
    // Another drive is searched in between: the next search walks D: anew.
    void Oublier_arborescence() {
        Choisir_unite(L"Unité_srce", L'e');
        Lancer_recherche(L".xyz");
        Attendre_rien_trouve(L"*.xyz", L"E:");
        Choisir_unite(L"Unité_srce", L'd');
    }
};

TEST_F(Recherche_arbre_DE, changer_d_unite_entre_deux_recherches_reprend_l_arborescence) {
    Creer_d(L"a.txt");
    Lancer_sur_d();
    Annuler(Chercher(L".txt", {L"d:\\a.txt"}));
    Creer_d(L"sous\\b.txt");
    Annuler(Chercher(L".txt", {L"d:\\a.txt"}));
    Choisir_unite(L"Unité_srce", L'e');
    Annuler(Chercher(L".txt", {L"e:\\lisez.txt"}));
    Lancer_recherche(L".xyz");
    Attendre_rien_trouve(L"*.xyz", L"E:");
    Choisir_unite(L"Unité_srce", L'd');
    Annuler(Chercher(L".txt", {L"d:\\a.txt", L"d:\\sous\\b.txt"}));
}

TEST_F(Recherche_arbre_DE, annuler_pendant_le_parcours_ferme_et_la_suite_se_contente_de_ce_qui_fut_parcouru) {
    Creer_foret(L'D');
    Creer_d(L"racine.txt");
    Creer_d(L"branche69\\rameau059\\fin.txt");
    Lancer_sur_d();
    for (const bool clavier : {true, false}) {
        bool partielle = false;
        // A walk that was over before the key or the click has reached the far end of the disk, and proves nothing.
        for (int essai = 0; essai < 10 && !partielle; ++essai) {
            Choisir({L"racine.txt"});
            Lancer_recherche(L".txt");
            const auto resultats = Resultats();
            EXIGER(resultats.Ouverte());
            if (clavier)
                Frapper(VK_ESCAPE);
            else
                Pilote::Cliquer(resultats.Controle(L"Annule"));
            EXPECT_TRUE(Attendre([&] { return !resultats.Ouverte(); }, 2000));
            Verifier_sans_resultats();
            // No later walk takes the place of the one that was stopped.
            std::set<std::wstring> titres;
            Lancer_recherche(L".txt");
            EXPECT_EQ(Repertoires_montres(Suivre_recherche(titres)), 0u);
            partielle = resultats.Entrees(L"Liste_sél") == Textes{L"d:\\racine.txt"};
            Annuler(resultats);
            Oublier_arborescence();
        }
        EXPECT_TRUE(partielle);
    }
    Verifier_principale_utilisable();
}

// A search is content with a part of the disk; a directory looked up by its name must be found wherever it is.
TEST_F(Recherche_arbre_D, un_nom_de_repertoire_est_cherche_sur_tout_le_disque_apres_un_parcours_annule) {
    Creer_foret(L'D');
    Creer_dossier(L"D:\\branche69\\rameau059\\loin");
    Creer_d(L"racine.txt");
    Lancer_sur_d();
    Lancer_recherche(L".txt");
    const auto resultats = Resultats();
    EXIGER(resultats.Ouverte());
    Frapper(VK_ESCAPE);
    resultats.Attendre_fermee();
    std::set<std::wstring> titres;
    Lancer_recherche(L".txt");
    ASSERT_EQ(Repertoires_montres(Suivre_recherche(titres)), 0u);
    Annuler(Resultats());
    Remplacer_texte(L"Chemin_srce", L"loin");
    Frapper(VK_RETURN);
    Attendre_boite(gestionnaire, L"D:\\BRANCHE69\\RAMEAU059\\LOIN\r\rEst-ce le chemin que vous désirez ?",
                   MB_YESNOCANCEL | MB_ICONQUESTION, IDCANCEL);
}

// Each of them on a disk to walk anew.
TEST_F(Recherche_arbre_DE, la_croix_et_alt_f4_annulent_le_parcours) {
    const std::function<void(const Pilote::Fille &)> gestes[] = {
        [](const Pilote::Fille & resultats) {
            PostMessageW(resultats.Fenetre(), WM_SYSCOMMAND, SC_CLOSE, 0);
        },
        [](const Pilote::Fille &) { Frapper_avec(VK_MENU, VK_F4); },
    };
    Creer_foret(L'D');
    Creer_d(L"branche69\\rameau059\\fin.txt");
    Lancer_sur_d();
    for (const auto & geste : gestes) {
        Lancer_recherche(L"fin");
        const auto resultats = Resultats();
        EXIGER(resultats.Ouverte());
        geste(resultats);
        EXPECT_TRUE(Attendre([&] { return !resultats.Ouverte(); }, 2000));
        Verifier_sans_resultats();
        Oublier_arborescence();
    }
    Verifier_principale_utilisable();
}

// The list fills while the search goes on, and ends as long as the progress line says.
TEST_F(Recherche_arbre_D, la_liste_grandit_pendant_la_recherche) {
    constexpr LRESULT nombre = 10000;
    ASSERT_TRUE(Sur_hote(L"D:\\",
                         L"for i in $(seq 100); do mkdir r$i && (cd r$i && touch $(seq -f 'f%g.txt' 100)); "
                         L"done"));
    Lancer_sur_d();
    // The walk for the tree lists nothing.
    Lancer_recherche(L".xyz");
    Attendre_rien_trouve(L"*.xyz");
    Lancer_recherche(L".txt");
    const auto        resultats = Resultats();
    std::set<LRESULT> longueurs;
    const auto        finie = [&] {
        const HWND fenetre = resultats.Fenetre();
        if (!fenetre) return false;
        longueurs.insert(SendMessageW(Controle_nomme(fenetre, L"Liste_sél"), LB_GETCOUNT, 0, 0));
        return Texte(fenetre) == choix;
    };
    EXPECT_TRUE(Attendre(finie, 30000));
    longueurs.erase(0);
    ASSERT_GE(longueurs.size(), 2u);
    EXPECT_LT(*longueurs.begin(), nombre);
    EXPECT_EQ(SendMessageW(resultats.Controle(L"Liste_sél"), LB_GETCOUNT, 0, 0), nombre);
    EXPECT_EQ(resultats.Lire(L"Mess_infos"), L"10000 fichiers trouvés");
    Annuler(resultats);
}

TEST_F(Recherche_arbre_D, pendant_la_recherche_ok_est_cache_et_annule_a_le_focus) {
    Creer_foret(L'D');
    Lancer_sur_d();
    bool vue = false;
    for (int essai = 0; essai < 10 && !vue; ++essai) {
        Lancer_recherche(L".txt");
        const auto resultats = Resultats();
        EXIGER(resultats.Ouverte());
        const auto sur_annule = [&] { return resultats.Nom_du_focus() == L"Annule"; };
        const bool premier    = Attendre([&] { return sur_annule() || !Boite_absente(); });
        const bool ok_visible = Visible(resultats.Controle(L"OK"));
        Pilote::Cliquer(resultats.Controle(L"Liste_sél"));
        const bool revenu = Attendre([&] { return sur_annule() || !Boite_absente(); });
        // Looked at last: a search that had ended by then proves nothing.
        vue = Boite_absente() && resultats.Titre() == attente;
        if (vue) {
            EXPECT_FALSE(ok_visible);
            EXPECT_TRUE(premier);
            EXPECT_TRUE(revenu);
        }
        Attendre_rien_trouve(L"*.txt");
        Verifier_sans_resultats();
    }
    EXPECT_TRUE(vue);
}

// Loops of links, a directory that cannot be read, eighty levels, a path beyond 260 characters, names outside the code page.
TEST_F(Recherche_arbre_D, un_disque_difficile_est_parcouru_jusqu_au_bout_et_ses_fichiers_se_copient) {
    std::wstring profond = L"D:";
    for (int niveau = 1; niveau <= 80; ++niveau) profond += L"\\niveau" + std::to_wstring(niveau);
    const Textes noms{profond + L"\\fond.txt", L"D:\\Ж лес 日本\\ДОМ.txt", L"D:\\ferme\\secret.txt",
                      L"D:\\ouvert\\vu.txt"};
    for (std::size_t i = 0; i < noms.size(); ++i)
        Creer_fichier_graine(noms[i], 1000 + i, static_cast<std::uint32_t>(i + 1));
    ASSERT_TRUE(Sur_hote(L"D:\\", L"ln -s . ici && ln -s .. ouvert/haut && ln -s ../ouvert niveau1/cote && "
                                  L"chmod 000 ferme"));
    Creer_dossier(L"D:\\vers");
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    std::wstring minuscules = profond + L"\\fond.txt";
    CharLowerBuffW(minuscules.data(), static_cast<DWORD>(minuscules.size()));
    const auto resultats = Chercher(L".txt", {L"d:\\ouvert\\vu.txt", L"d:\\ж лес 日本\\дом.txt", minuscules});
    resultats.Choisir(L"Liste_sél", {0, 1, 2});
    resultats.Cliquer(L"OK");
    resultats.Attendre_fermee();
    Cliquer(L"Copier");
    Attendre_fin_commande();
    EXPECT_TRUE(Boite_absente());
    for (const std::size_t i : {0u, 1u, 3u}) {
        const std::wstring nom = noms[i].substr(noms[i].rfind(L'\\') + 1);
        ASSERT_TRUE(Existe(L"D:\\vers\\" + nom)) << Utf8(nom);
        EXPECT_EQ(Lire_fichier(L"D:\\vers\\" + nom), Contenu(1000 + i, static_cast<std::uint32_t>(i + 1)));
    }
    EXPECT_TRUE(Sur_hote(L"D:\\", L"chmod 755 ferme"));
}

// How many were left out is said where the progress is, to a user who asks for help and to one who does not.
TEST_F(Recherche_arbre_D, les_repertoires_illisibles_sont_comptes_sur_la_ligne_d_avancement) {
    Creer_d(L"vu.txt");
    Creer_d(L"ferme un\\x.txt");
    Creer_d(L"ferme deux\\x.txt");
    ASSERT_TRUE(Sur_hote(L"D:\\", L"chmod 000 ferme*"));
    Lancer_sur_d();
    Activer_aide();
    Ranger_principale();
    const auto resultats = Chercher(L".txt", {L"d:\\vu.txt"});
    Pointer(resultats.Controle(L"Mess_infos"));
    EXPECT_TRUE(Attendre([&] { return Lire(L"Fenêtre").find(L" 2 répertoires ") != std::wstring::npos; }))
        << Utf8(Lire(L"Fenêtre"));
    EXPECT_TRUE(resultats.Se_voit(L"Tip"));
    EXPECT_NE(resultats.Lire(L"Tip").find(L"2 répertoires "), std::wstring::npos);
    Annuler(resultats);
    EXPECT_TRUE(Sur_hote(L"D:\\", L"chmod 755 ferme*"));
}

// Two drives take turns, so that each search walks anew.
class Recherche_arrets_AD : public Recherche {
protected:
    ~Recherche_arrets_AD() override {
        Fermer();
        Unite::Vider(L'A');
    }
};

TEST_F(Recherche_arrets_AD, une_disquette_retiree_est_signalee_et_une_autre_est_parcourue_a_nouveau) {
    for (const int numero : {2, 1}) {
        Unite::Inserer_disquette(numero);
        Unite::Vider(L'A');
        Creer_fichier(L"A:\\sous " + std::to_wstring(numero) + L"\\a.txt", "x");
    }
    Lancer_sur_d();
    Choisir_unite(L"Unité_srce", L'a');
    Annuler(Chercher(L".txt", {L"a:\\sous 1\\a.txt"}));
    Unite::Retirer_disquette();
    Lancer_recherche(L".txt");
    Attendre_avertissement(L"Support absent ou erreur d'accès sur A:");
    Resultats().Attendre_fermee();
    Attendre_fin_commande();
    EXPECT_FALSE(Se_voit(L"Fichier_sél"));
    Unite::Inserer_disquette(2);
    Pilote::Cliquer(Point_entree(Controle(L"Répertoire_srce"), 0));
    Attendre_fin_commande();
    Annuler(Chercher(L".txt", {L"a:\\sous 2\\a.txt"}));
    // Nothing is left of what was known of the first one: it is walked again, though its first level is the same.
    Unite::Retirer_disquette();
    Lancer_recherche(L".txt");
    Attendre_avertissement(L"Support absent ou erreur d'accès sur A:");
    Resultats().Attendre_fermee();
    Attendre_fin_commande();
    Unite::Inserer_disquette(2);
    Creer_fichier(L"A:\\sous 2\\dessous\\b.txt", "x");
    Annuler(Chercher(L".txt", {L"a:\\sous 2\\a.txt", L"a:\\sous 2\\dessous\\b.txt"}));
    Unite::Vider(L'A');
    Unite::Inserer_disquette(1);
}

// Without its medium the drive refuses every directory that is left: that is no disk with unreadable directories.
TEST_F(Recherche_arrets_AD, une_disquette_retiree_pendant_le_parcours_le_finit_et_rien_n_est_garde) {
    Unite::Inserer_disquette(1);
    Unite::Vider(L'A');
    ASSERT_TRUE(Sur_hote(L"A:\\", L"for i in $(seq 8); do mkdir -p $(seq -f \"b$i/r%g\" 1000); done"));
    Creer_fichier(L"A:\\a.txt", "x");
    Lancer_sur_d();
    Choisir_unite(L"Unité_srce", L'a');
    Lancer_recherche(L".txt");
    const auto resultats = Resultats();
    EXIGER(resultats.Ouverte() && resultats.Lire(L"Mess_infos").size() > 3);
    Unite::Retirer_disquette();
    Attendre_avertissement(L"Support absent ou erreur d'accès sur A:");
    resultats.Attendre_fermee();
    Attendre_fin_commande();
    EXPECT_TRUE(Est_actif(L"Chercher"));
    Unite::Inserer_disquette(1);
    Unite::Vider(L'A');
    Creer_fichier(L"A:\\neuf\\c.txt", "x");
    Annuler(Chercher(L".txt", {L"a:\\neuf\\c.txt"}));
    Verifier_principale_utilisable();
}

TEST_F(Recherche_arrets_AD, cent_arrets_a_des_moments_quelconques_laissent_une_fenetre_utilisable) {
    constexpr unsigned arrets = 100;
    Unite::Inserer_disquette(1);
    Unite::Vider(L'A');
    Creer_foret(L'A');
    Creer_foret(L'D');
    Creer_d(L"branche69\\rameau059\\fin.txt");
    Lancer_sur_d();
    Choisir_unite(L"Unité_dest", L'a');
    Lancer_recherche(L"fin");
    Attendre_choix(Resultats());
    Annuler(Resultats());
    std::mt19937 hasard(4202);
    unsigned     pendant = 0, portee = 120;
    for (unsigned i = 0; i < arrets && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        Pilote::Cliquer(Controle(L"Croiser"));
        ATTENDRE(Lire(L"Unité_srce").front() == (i % 2 ? L'd' : L'a'));
        Attendre_fin_commande();
        Pilote::Cliquer(Controle(L"Chercher"));
        EXIGER(Demande().Ouverte() && GetForegroundWindow() == Demande().Fenetre());
        Frapper(VK_RETURN);
        EXIGER(Resultats().Ouverte());
        Dormir(hasard() % portee);
        // Too late on A:, the search says that it found nothing; too late on D:, it waits for a choice.
        const bool encore = Resultats().Titre() == attente && Boite_absente();
        pendant += encore;
        if (!encore) portee = portee * 3 / 4 + 1;
        Frapper(VK_ESCAPE);
        ATTENDRE(!Resultats().Ouverte() && Active(Principale()) && Boite_absente() && Est_actif(L"Chercher"));
        Reposer(Principale());
        EXPECT_FALSE(Se_voit(L"Fichier_sél"));
        EXPECT_FALSE(Sablier());
    }
    std::printf("%u arrêts, %u pendant la recherche\n", arrets, pendant);
    EXPECT_GE(pendant, arrets / 3);
    Attendre_fin_commande();
    Verifier_sans_resultats();
    Verifier_principale_utilisable();
}
