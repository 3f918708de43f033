#include "fenetres/recherche.h"

#include <functional>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

class Recherche_resultats_D : public Recherche {
protected:
    void Creer_sept() {
        for (const wchar_t * nom : {L"LISEZ", L"Ms.TXT", L"zone\\MSDOS.bat", L"zone\\b.TXT", L"Alpha\\c.doc",
                                    L"Alpha\\fond\\ÉTÉ.txt", L"Alpha\\fond\\mS2.Bat"})
            Creer_d(nom);
    }
};

// Breadth first: the root, its directories in their order, then those below.
TEST_F(Recherche_resultats_D, les_fichiers_trouves_sont_montres_en_minuscules_niveau_par_niveau) {
    struct Cas {
        const wchar_t *cherches, *exclus, *affiche;
        Textes         attendus;
    };
    const Cas cas[] = {
        {L".txt", L"", L"*.TXT", {L"d:\\ms.txt", L"d:\\zone\\b.txt", L"d:\\alpha\\fond\\été.txt"}},
        {L".BAT", L"", L"*.BAT", {L"d:\\zone\\msdos.bat", L"d:\\alpha\\fond\\ms2.bat"}},
        {L"ms*", L"", L"MS*.*", {L"d:\\ms.txt", L"d:\\zone\\msdos.bat", L"d:\\alpha\\fond\\ms2.bat"}},
        {L"ms*", L".bat", L"MS*.*", {L"d:\\ms.txt"}},
        {L"ms*", L"MS?.*", L"MS*.*", {L"d:\\ms.txt", L"d:\\zone\\msdos.bat"}},
        {L" ms* ", L" *.bat ", L"MS*.*", {L"d:\\ms.txt"}},
        {L".", L"", L"*.", {L"d:\\lisez"}},
        {L"?.*", L"", L"?.*", {L"d:\\alpha\\c.doc", L"d:\\zone\\b.txt"}},
        {L"été", L"", L"ÉTÉ.*", {L"d:\\alpha\\fond\\été.txt"}},
        {L"MS2.bat", L"", L"MS2.BAT", {L"d:\\alpha\\fond\\ms2.bat"}},
    };
    Creer_sept();
    Lancer_sur_d();
    for (const Cas & c : cas) {
        SCOPED_TRACE(Utf8(std::wstring(c.cherches) + L" sans " + c.exclus));
        const auto resultats = Chercher(c.cherches, c.attendus, c.exclus);
        EXPECT_EQ(Utf8(resultats.Lire(L"Recherche")), Utf8(c.affiche));
        Annuler(resultats);
        Verifier_sans_resultats();
    }
}

TEST_F(Recherche_resultats_D, ce_qui_est_choisi_passe_dans_le_volet_source_avec_son_compte) {
    Creer_d(L"a.txt", 1000);
    Creer_d(L"sous\\b.txt", 200);
    Creer_d(L"sous\\c.txt", 30);
    Lancer_sur_d();
    auto resultats = Chercher(L".txt", {L"d:\\a.txt", L"d:\\sous\\b.txt", L"d:\\sous\\c.txt"});
    resultats.Choisir(L"Liste_sél", {0, 2});
    resultats.Cliquer(L"OK");
    resultats.Attendre_fermee();
    Verifier_resultats_dans_source({L"d:\\a.txt", L"d:\\sous\\c.txt"},
                                   L"   2 fichiers sélectionnés, total = 1\u00A0030 octets.");
    // Another search takes the place of this one.
    resultats = Chercher(L"b*", {L"d:\\sous\\b.txt"});
    resultats.Choisir(L"Liste_sél", {0});
    resultats.Cliquer(L"OK");
    resultats.Attendre_fermee();
    Verifier_resultats_dans_source({L"d:\\sous\\b.txt"}, L"   1 fichier sélectionné, total = 200 octets.");
    Cliquer(L"Quitter");
    Verifier_sans_resultats();
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{L"a.txt"});
    Verifier_principale_utilisable();
}

TEST_F(Recherche_resultats_D, annuler_apres_la_recherche_ne_laisse_rien_dans_la_fenetre_principale) {
    const std::function<void(const Pilote::Fille &)> gestes[] = {
        [](const Pilote::Fille & resultats) { resultats.Cliquer(L"Annule"); },
        [](const Pilote::Fille &) { Frapper(VK_ESCAPE); },
        [](const Pilote::Fille & resultats) { resultats.Fermer_par_la_croix(); },
    };
    Creer_d(L"a.txt");
    Creer_d(L"b.txt");
    Lancer_sur_d();
    for (const auto & geste : gestes) {
        Choisir({L"a.txt"});
        const auto resultats = Chercher(L".txt", {L"d:\\a.txt", L"d:\\b.txt"});
        resultats.Choisir(L"Liste_sél", {0, 1});
        geste(resultats);
        resultats.Attendre_fermee();
        Verifier_sans_resultats();
    }
    Verifier_principale_utilisable();
}

TEST_F(Recherche_resultats_D, ok_sans_choix_laisse_une_fenetre_utilisable) {
    Creer_d(L"a.txt");
    Lancer_sur_d();
    const auto resultats = Chercher(L".txt", {L"d:\\a.txt"});
    Pilote::Cliquer(resultats.Controle(L"OK"));
    resultats.Attendre_fermee();
    Attendre_fin_commande();
    EXPECT_EQ(Entrees(L"Fichier_sél"), Textes{});
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
    EXPECT_TRUE(Se_voit(L"Fichier_srce"));
    Choisir({L"a.txt"});
    Verifier_principale_utilisable();
}

TEST_F(Recherche_resultats_D, la_fenetre_se_place_et_se_parcourt_au_clavier) {
    Creer_d(L"a.txt");
    Creer_d(L"b.txt");
    Lancer_sur_d();
    const auto resultats = Chercher(L".txt", {L"d:\\a.txt", L"d:\\b.txt"});
    Verifier_place(resultats, 4350 + 45, 1100 + 45);
    resultats.Choisir(L"Liste_sél", {0});
    Verifier_clavier_et_disposition(resultats, {L"Liste_sél", L"OK", L"Annule"});
    Frapper_avec(VK_SHIFT, VK_DOWN);
    ATTENDRE(resultats.Choisies(L"Liste_sél").size() == 2);
    Frapper(VK_RETURN);
    resultats.Attendre_fermee();
    Verifier_resultats_dans_source({L"d:\\a.txt", L"d:\\b.txt"},
                                   L"   2 fichiers sélectionnés, total = 20 octets.");
}

TEST_F(Recherche_resultats_D, l_aide_a_le_texte_de_chaque_element) {
    Creer_d(L"a.txt");
    Lancer_sur_d();
    Activer_aide();
    const auto         resultats = Chercher(L".txt", {L"d:\\a.txt"});
    const std::wstring texte = L"  Cette fenêtre vous permet de sélectionner le(s) fichier(s) recherché(s) "
                               L"sur le(la) disque(tte) 'SOURCE' pour "
                               L"lui(leur) appliquer une commande. La première recherche sera plus longue "
                               L"que les suivantes pour mémoriser "
                               L"l'arborescence du disque courant.";
    Verifier_aide(resultats, {{L"", texte}, {L"Libellé1", texte}});
    Frapper(VK_ESCAPE);
    resultats.Attendre_fermee();
    Attendre_rappel_aide();
}

// Hidden files are not listed at the start, system files neither; the search finds the latter.
TEST_F(Recherche_resultats_D, un_fichier_cache_n_est_pas_trouve_quand_les_listes_ne_le_montrent_pas) {
    for (const wchar_t * nom : {L"normal.txt", L"cache.txt", L"systeme.txt", L"lecture.txt"}) Creer_d(nom);
    Attributs(L"D:\\cache.txt", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE);
    Attributs(L"D:\\systeme.txt", FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE);
    Attributs(L"D:\\lecture.txt", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE);
    ASSERT_NE(Attributs(L"D:\\cache.txt") & FILE_ATTRIBUTE_HIDDEN, 0u);
    Lancer_sur_d();
    EXPECT_EQ(Entrees(L"Fichier_srce"), (Textes{L"lecture.txt", L"normal.txt"}));
    Annuler(Chercher(L".txt", {L"d:\\lecture.txt", L"d:\\normal.txt", L"d:\\systeme.txt"}));
}

// What the user does next with the files: they are copied from several directories at once.
TEST_F(Recherche_resultats_D, les_fichiers_trouves_dans_plusieurs_repertoires_se_copient) {
    Creer_d(L"un\\a.txt", 1000);
    Creer_d(L"deux\\b.txt", 2000);
    Creer_dossier(L"D:\\vers");
    Lancer_sur_d();
    Ouvrir(L"dest", L"d:\\vers");
    const auto resultats = Chercher(L".txt", {L"d:\\deux\\b.txt", L"d:\\un\\a.txt"});
    resultats.Choisir(L"Liste_sél", {0, 1});
    resultats.Cliquer(L"OK");
    resultats.Attendre_fermee();
    Cliquer(L"Copier");
    Attendre_fin_commande();
    EXPECT_EQ(Noms(L"D:\\vers"), (Textes{L"a.txt", L"b.txt"}));
    EXPECT_EQ(Empreinte(L"D:\\vers\\a.txt"), Empreinte(L"D:\\un\\a.txt"));
    EXPECT_EQ(Empreinte(L"D:\\vers\\b.txt"), Empreinte(L"D:\\deux\\b.txt"));
    Verifier_sans_resultats();
}

// The information window goes through the files found, wherever they are.
TEST_F(Recherche_resultats_D, les_fichiers_trouves_se_consultent) {
    Creer_d(L"un\\a.txt", 1000);
    Creer_d(L"deux\\a.txt", 2000);
    Lancer_sur_d();
    const auto resultats = Chercher(L"a", {L"d:\\deux\\a.txt", L"d:\\un\\a.txt"});
    resultats.Choisir(L"Liste_sél", {0, 1});
    resultats.Cliquer(L"OK");
    resultats.Attendre_fermee();
    Commencer(L"Info");
    const auto infos = Fille(L"Info_Fichiers");
    infos.Attendre_ouverte();
    for (const wchar_t * taille : {L"2\u00A0000", L"1\u00A0000", L"2\u00A0000"}) {
        EXPECT_EQ(infos.Titre(), L"Informations sur A.TXT");
        ATTENDRE(infos.Lire(L"Taille") == taille);
        infos.Cliquer(L"Suivant");
    }
    infos.Cliquer(L"Fin");
    infos.Attendre_fermee();
    // Looked at, they are still there for the next command.
    Verifier_resultats_dans_source({L"d:\\deux\\a.txt", L"d:\\un\\a.txt"},
                                   L"   2 fichiers sélectionnés, total = 3\u00A0000 octets.");
    EXPECT_TRUE(Est_actif(L"Chercher"));
}
