#include "fenetres/commandes.h"
#include "fenetres/systeme_hote.h"

#include <vector>

using namespace Pilote;

namespace {

const wchar_t * const sur_lui_meme = L"Le répertoire 'DESTINATION' est le même que le répertoire 'SOURCE' ; "
                                     L"il est interdit de déplacer un fichier sur lui-même.";

using Noms_fichiers = std::vector<std::wstring>;

}  // namespace

class Deplacement : public Commandes {
protected:
    void Creer_cinq() {
        std::uint64_t taille = 100;
        for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt", L"d.txt", L"e.txt"}) {
            Creer_source(nom, taille, static_cast<std::uint32_t>(taille));
            taille += 100;
        }
    }
    // This entry alone is selected, counted, and has the list's cursor.
    void Verifier_reprise(const std::wstring & fichier, const std::wstring & octets) {
        EXPECT_EQ(Choisies(), Noms_fichiers{fichier});
        EXPECT_EQ(Utf8(Lire(L"Ligne_message")),
                  Utf8(L"   1 fichier sélectionné, total = " + octets + L" octets."));
        const HWND liste = Controle(L"Fichier_srce");
        EXPECT_EQ(Utf8(Entree(liste, Entree_courante(liste))), Utf8(fichier));
    }
};

TEST_F(Deplacement, sur_une_unite_le_fichier_change_de_repertoire_et_le_suivant_prend_sa_place) {
    Creer_cinq();
    Date(Source(L"b.txt"), 126000000000000000ull);
    Attributs(Source(L"b.txt"), FILE_ATTRIBUTE_READONLY);
    const auto fiche = Lire_arbre(source)[L"\\b.txt"];
    Lancer_dans_les_dossiers();
    Choisir_un(L"b.txt");
    Cliquer(L"Déplacer");
    Attendre_fin_commande();
    EXPECT_EQ(Lire_arbre(destination)[L"\\b.txt"], fiche);
    EXPECT_EQ(Entrees(L"Fichier_srce"), (Noms_fichiers{L"a.txt", L"c.txt", L"d.txt", L"e.txt"}));
    EXPECT_EQ(Entrees(L"Fichier_dest"), Noms_fichiers{L"b.txt"});
    Verifier_reprise(L"c.txt", L"300");
    EXPECT_EQ(Utf8(Nom_du_focus()), "Déplacer");
    // The keyboard alone goes on from there.
    Frapper(VK_RETURN);
    Attendre_fin_commande();
    EXPECT_EQ(Entrees(L"Fichier_dest"), (Noms_fichiers{L"b.txt", L"c.txt"}));
    Verifier_reprise(L"d.txt", L"400");
}

TEST_F(Deplacement, apres_le_dernier_de_la_liste_c_est_le_precedent_qui_est_repris) {
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Choisir_un(L"e.txt");
    Cliquer(L"Déplacer");
    Attendre_fin_commande();
    Verifier_reprise(L"d.txt", L"400");
}

TEST_F(Deplacement, plusieurs_fichiers_partent_et_un_seul_reste_choisi) {
    Creer_cinq();
    Lancer_dans_les_dossiers();
    Choisir({L"b.txt", L"d.txt"});
    Cliquer(L"Déplacer");
    Attendre_fin_commande();
    EXPECT_EQ(Noms(source), (Noms_fichiers{L"a.txt", L"c.txt", L"e.txt"}));
    EXPECT_EQ(Noms(destination), (Noms_fichiers{L"b.txt", L"d.txt"}));
    EXPECT_EQ(Choisies().size(), 1u) << "le fichier repris ne rejoint jamais la commande";
    EXPECT_TRUE(Lire(L"Ligne_message").starts_with(L"   1 fichier sélectionné"));
}

TEST_F(Deplacement, tout_deplacer_vide_la_liste_et_la_ligne) {
    Creer_cinq();
    const auto avant = Lire_arbre(source);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Déplacer");
    Verifier_repos(L"Déplacer");
    EXPECT_TRUE(Noms(source).empty());
    EXPECT_TRUE(Entrees(L"Fichier_srce").empty());
    EXPECT_TRUE(Lire(L"Ligne_message").empty());
    EXPECT_EQ(Differences(avant, Lire_arbre(destination)), "");
    EXPECT_EQ(Utf8(Lire(L"Sélecte")), "&Sélectionner tout");
}

TEST_F(Deplacement, sur_une_unite_le_remplacement_se_demande) {
    Creer_cinq();
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt"}) Creer_destination(nom, 7);
    const std::string b = Lire_fichier(Source(L"b.txt"));
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Déplacer");
    Attendre_remplacement(L"DEPLACER", L"A.TXT", destination, IDNO);
    Attendre_remplacement(L"DEPLACER", L"B.TXT", destination, IDYES);
    Attendre_remplacement(L"DEPLACER", L"C.TXT", destination, IDCANCEL);
    Attendre_fin_commande();
    EXPECT_EQ(Noms(source), (Noms_fichiers{L"a.txt", L"c.txt", L"d.txt", L"e.txt"}));
    EXPECT_EQ(Lire_fichier(Destination(L"b.txt")), b);
    EXPECT_EQ(Taille_fichier(Destination(L"a.txt")), 7u);
    EXPECT_EQ(Taille_fichier(Destination(L"c.txt")), 7u);
    EXPECT_EQ(Noms(destination).size(), 3u);
}

TEST_F(Deplacement, un_fichier_en_lecture_seule_ne_se_remplace_pas) {
    Creer_cinq();
    Creer_destination(L"b.txt", 7);
    Attributs(Destination(L"b.txt"), FILE_ATTRIBUTE_READONLY);
    const auto avant = Lire_arbre(source), avant_la_bas = Lire_arbre(destination);
    Lancer_dans_les_dossiers();
    Choisir({L"b.txt", L"c.txt"});
    Cliquer(L"Déplacer");
    Attendre_remplacement(L"DEPLACER", L"B.TXT", destination, IDYES);
    Attendre_protege(L"B.TXT");
    Verifier_repos(L"Déplacer");
    Verifier_source_intacte(avant);
    EXPECT_EQ(Differences(avant_la_bas, Lire_arbre(destination)), "");
}

TEST_F(Deplacement, un_repertoire_du_meme_nom_ne_se_remplace_pas) {
    Creer_cinq();
    Creer_destination(L"b.txt\\dedans.txt", 7);
    const auto avant = Lire_arbre(source), avant_la_bas = Lire_arbre(destination);
    Lancer_dans_les_dossiers();
    Choisir({L"b.txt", L"c.txt"});
    Cliquer(L"Déplacer");
    Attendre_protege(L"B.TXT");
    Verifier_repos(L"Déplacer");
    Verifier_source_intacte(avant);
    EXPECT_EQ(Differences(avant_la_bas, Lire_arbre(destination)), "");
}

TEST_F(Deplacement, confirme_et_sans_remplacement_demande) {
    Regler(L"Options", L"Confirme", L"Oui");
    Regler(L"Options", L"Remplace", L"Non");
    Creer_cinq();
    Creer_destination(L"b.txt", 7);
    const std::string b = Lire_fichier(Source(L"b.txt"));
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"b.txt", L"c.txt", L"d.txt"});
    Cliquer(L"Déplacer");
    Attendre_confirmation(L"DEPLACER", L"a.txt", destination, oui_non_annuler, IDNO);
    Attendre_confirmation(L"DEPLACER", L"b.txt", destination, oui_non_annuler, IDYES);
    Attendre_confirmation(L"DEPLACER", L"c.txt", destination, oui_non_annuler, IDCANCEL);
    Attendre_fin_commande();
    EXPECT_EQ(Noms(source), (Noms_fichiers{L"a.txt", L"c.txt", L"d.txt", L"e.txt"}));
    EXPECT_EQ(Lire_fichier(Destination(L"b.txt")), b);
}

TEST_F(Deplacement, dans_son_propre_repertoire_rien_n_est_deplace) {
    Creer_cinq();
    const auto avant = Lire_arbre(source);
    Lancer_vers(L"");
    Choisir({L"a.txt", L"b.txt"});
    Cliquer(L"Déplacer");
    Attendre_boite(L"DEPLACER", sur_lui_meme, avertissement, IDOK);
    Verifier_repos(L"Déplacer");
    Verifier_source_intacte(avant);
}

TEST_F(Deplacement, dans_son_propre_repertoire_par_une_autre_unite_rien_n_est_deplace) {
    Creer_cinq();
    const auto avant = Lire_arbre(source);
    Regler(L"Options", L"Répertoire", Par_une_autre_unite(source));
    Lancer();
    Ouvrir(L"srce", source);
    Choisir_tout();
    Cliquer(L"Déplacer");
    Attendre_boite(L"DEPLACER", sur_lui_meme, avertissement, IDOK);
    Verifier_repos(L"Déplacer");
    Verifier_source_intacte(avant);
}

TEST_F(Deplacement, dans_son_propre_repertoire_devenu_inaccessible_rien_n_est_deplace) {
    Creer_cinq();
    const auto avant = Lire_arbre(source);
    Lancer_vers(L"");
    Choisir({L"a.txt", L"b.txt"});
    ASSERT_TRUE(Sur_hote(dossier.Chemin(), L"mv source ailleurs"));
    Cliquer(L"Déplacer");
    ATTENDRE(!Boite_absente());
    ASSERT_TRUE(Sur_hote(dossier.Chemin(), L"mv ailleurs source"));
    Attendre_boite(L"DEPLACER", sur_lui_meme, avertissement, IDOK);
    Verifier_repos(L"Déplacer");
    Verifier_source_intacte(avant);
}

TEST_F(Deplacement, sur_un_autre_nom_du_meme_fichier_ses_octets_restent) {
    Creer_source(L"a.txt", 5000);
    const std::string octets = Lire_fichier(Source(L"a.txt"));
    ASSERT_TRUE(Lier(Source(L"a.txt"), Destination(L"a.txt")));
    Lancer_dans_les_dossiers();
    Choisir_un(L"a.txt");
    Cliquer(L"Déplacer");
    Attendre_boite(L"DEPLACER", L"Le fichier A.TXT\rne peut être déplacé sur lui-même.", avertissement, IDOK);
    Verifier_repos(L"Déplacer");
    EXPECT_EQ(Lire_fichier(Source(L"a.txt")), octets);
    EXPECT_EQ(Lire_fichier(Destination(L"a.txt")), octets);
}

class Deplacement_D : public Deplacement {
protected:
    Deplacement_D() { Unite::Vider(L'D'); }
    ~Deplacement_D() override { Unite::Vider(L'D'); }
};

TEST_F(Deplacement_D, vers_une_autre_unite_la_copie_est_entiere_et_la_source_part) {
    for (std::uint64_t taille : {1u, 8192u, 32767u, 32768u, 70001u}) {
        Creer_source(std::to_wstring(taille) + L".dat", taille, static_cast<std::uint32_t>(taille));
        Date(Source(std::to_wstring(taille) + L".dat"), 126000000000000000ull);
    }
    Creer_source(L"vide.txt", 0);
    auto attendu = Lire_arbre(source);
    attendu.erase(L"\\vide.txt");
    for (auto & [chemin, fiche] : attendu) fiche.attributs = FILE_ATTRIBUTE_ARCHIVE;
    Lancer_vers(L"D:\\");
    Choisir_tout();
    Cliquer(L"Déplacer");
    Verifier_repos(L"Déplacer");
    EXPECT_EQ(Noms(source), Noms_fichiers{L"vide.txt"}) << "un fichier vide n'est pas copié : il reste";
    EXPECT_EQ(Differences(attendu, Lire_arbre(L"D:")), "");
    EXPECT_EQ(Entrees(L"Fichier_dest").size(), 5u);
}

TEST_F(Deplacement_D, un_fichier_en_lecture_seule_est_refuse_avant_toute_copie) {
    Creer_source(L"a.txt", 100);
    Creer_source(L"zélé.txt", 100);
    Creer_source(L"m.txt", 100);
    Creer_fichier_graine(L"D:\\zélé.txt", 50, 9);
    Attributs(Source(L"zélé.txt"), FILE_ATTRIBUTE_READONLY);
    Lancer_vers(L"D:\\");
    Choisir({L"a.txt", L"m.txt", L"zélé.txt"});
    Cliquer(L"Déplacer");
    Attendre_protege(L"ZÉLÉ.TXT");
    Verifier_repos(L"Déplacer");
    EXPECT_EQ(Noms(source), Noms_fichiers{L"zélé.txt"});
    EXPECT_EQ(Taille_fichier(L"D:\\zélé.txt"), 50u);
}

TEST_F(Deplacement_D, entre_unites_le_titre_la_jauge_et_le_remplacement_sont_ceux_de_la_copie) {
    Creer_source(L"a.dat", 40000);
    Creer_source(L"b.dat", 40000);
    Creer_fichier_graine(L"D:\\b.dat", 5, 9);
    Lancer_vers(L"D:\\");
    Choisir_tout();
    Cliquer(L"Déplacer");
    ASSERT_TRUE(Attendre([this] { return !Boite_absente(); }));
    EXPECT_EQ(Utf8(Lire(L"En_cours")), Utf8(L" DEPLACE le fichier A.DAT "));
    EXPECT_EQ(Utf8(Lire(L"Jauge")), "100%");
    EXPECT_TRUE(Se_voit(L"En_cours") && Se_voit(L"Jauge") && Se_voit(L"Arret") && !Se_voit(L"Titre_dest"));
    Attendre_remplacement(L"DEPLACER", L"B.DAT", L"D:\\", IDNO);
    Verifier_repos(L"Déplacer");
    EXPECT_EQ(Noms(source), Noms_fichiers{L"b.dat"});
    EXPECT_EQ(Taille_fichier(L"D:\\b.dat"), 5u);
}

TEST_F(Deplacement_D, la_place_se_verifie_une_fois_entre_unites) {
    Creer_source(L"a.dat", 80000, 1);
    Creer_source(L"b.dat", 80000, 2);
    const auto avant = Lire_arbre(source);
    Unite::Remplir(L'D', 120000);
    Lancer_vers(L"D:\\");
    Choisir_tout();
    Cliquer(L"Déplacer");
    Attendre_manque_de_place(L"DEPLACER", L"D:", IDNO);
    Verifier_repos(L"Déplacer");
    Verifier_source_intacte(avant);
    Choisir_tout();
    Cliquer(L"Déplacer");
    Attendre_manque_de_place(L"DEPLACER", L"D:", IDYES);
    Attendre_avertissement(L"Disque D: plein :\ropération abandonnée.");
    Verifier_repos(L"Déplacer");
    EXPECT_EQ(Noms(source), Noms_fichiers{L"b.dat"}) << "le premier tient, le second reste";
    EXPECT_EQ(Empreinte(Source(L"b.dat")), avant.at(L"\\b.dat").empreinte);
    EXPECT_EQ(Empreinte(L"D:\\a.dat"), avant.at(L"\\a.dat").empreinte);
    EXPECT_FALSE(Existe(L"D:\\b.dat"));
}

TEST_F(Deplacement_D, sur_une_unite_pleine_un_deplacement_interne_ne_demande_rien) {
    Creer_fichier_graine(L"D:\\de\\a.dat", 500000, 1);
    Creer_dossier(L"D:\\vers");
    Unite::Remplir(L'D', 20000);
    Lancer();
    Ouvrir(L"srce", L"D:\\de");
    Ouvrir(L"dest", L"D:\\vers");
    Choisir_un(L"a.dat");
    Cliquer(L"Déplacer");
    Verifier_repos(L"Déplacer");
    EXPECT_TRUE(Noms(L"D:\\de").empty());
    EXPECT_EQ(Taille_fichier(L"D:\\vers\\a.dat"), 500000u);
}

// One letter may lead to two volumes: the second disk stands for the DESTINATION directory.
TEST_F(Deplacement_D, vers_un_autre_volume_de_la_meme_unite_la_copie_remplace_le_renommage) {
    Creer_cinq();
    const auto avant = Lire_arbre(source);
    ASSERT_TRUE(
        Sur_hote(dossier.Chemin(), L"rmdir destination && ln -s \"$WINEPREFIX/dosdevices/d:\" destination"));
    Creer_fichier_graine(L"D:\\c.txt", 7, 9);
    Lancer_dans_les_dossiers();
    Choisir({L"b.txt", L"c.txt"});
    Cliquer(L"Déplacer");
    Attendre_remplacement(L"DEPLACER", L"C.TXT", destination, IDYES);
    Attendre_fin_commande();
    EXPECT_EQ(Noms(source), (Noms_fichiers{L"a.txt", L"d.txt", L"e.txt"}));
    EXPECT_EQ(Noms(L"D:"), (Noms_fichiers{L"b.txt", L"c.txt"}));
    for (const wchar_t * nom : {L"b.txt", L"c.txt"}) {
        EXPECT_EQ(Empreinte(std::wstring(L"D:\\") + nom), avant.at(std::wstring(L"\\") + nom).empreinte)
            << Utf8(nom);
    }
    Fermer();
    EXPECT_TRUE(Sur_hote(dossier.Chemin(), L"rm destination"));
}
