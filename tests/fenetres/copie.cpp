#include "fenetres/commandes.h"

#include <array>
#include <vector>

using namespace Pilote;

namespace {

const wchar_t * const invite_nom =
    L"Vous allez copier un fichier dans son propre répertoire,\rentrez le nom de copie du fichier ";

constexpr std::uint32_t attribut_copie(std::uint32_t attributs) {
    return (attributs & FILE_ATTRIBUTE_READONLY) | FILE_ATTRIBUTE_ARCHIVE;
}

}  // namespace

class Copie : public Commandes {
protected:
    void Demander_nom(const std::wstring & fichier_capitales, const wchar_t * reponse,
                      const std::wstring & bouton = L"OK") {
        Attendre_saisie(L"COPIER", invite_nom + fichier_capitales, L"", reponse, bouton);
    }
};

TEST_F(Copie, chaque_taille_est_copiee_octet_pour_octet_avec_date_et_attributs) {
    const std::uint64_t tailles[] = {1, 8191, 8192, 8193, 16384, 32767, 32768, 65536, 100000, 1048576 + 3};
    for (std::uint64_t taille : tailles) {
        const std::wstring nom = L"f" + std::to_wstring(taille) + L".dat";
        Creer_source(nom, taille, static_cast<std::uint32_t>(taille));
        Date(Source(nom), 126000000000000000ull + taille * 10000000ull);
    }
    Attributs(Source(L"f8192.dat"), FILE_ATTRIBUTE_READONLY);
    Attributs(Source(L"f8193.dat"), FILE_ATTRIBUTE_NORMAL);
    Attributs(Source(L"f100000.dat"), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE);
    auto attendu = Lire_arbre(source);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Copier");
    Attendre_fin_commande();
    Verifier_source_intacte(attendu);
    for (auto & [chemin, fiche] : attendu) fiche.attributs = attribut_copie(fiche.attributs);
    EXPECT_EQ(Differences(attendu, Lire_arbre(destination)), "");
    Verifier_repos(L"Copier");
}

TEST_F(Copie, un_fichier_vide_n_est_pas_cree_et_efface_celui_qu_il_remplace) {
    Creer_source(L"ancien.txt", 0);
    Creer_source(L"nouveau.txt", 0);
    Creer_destination(L"ancien.txt", 50);
    Lancer_dans_les_dossiers();
    Choisir({L"ancien.txt", L"nouveau.txt"});
    Cliquer(L"Copier");
    Attendre_remplacement(L"COPIER", L"ANCIEN.TXT", destination, IDYES);
    Verifier_repos(L"Copier");
    EXPECT_TRUE(Noms(destination).empty());
    EXPECT_EQ(Noms(source).size(), 2u);
}

TEST_F(Copie, le_remplacement_se_demande_fichier_par_fichier) {
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt", L"d.txt"}) {
        Creer_source(nom, 300, 1);
        if (*nom != L'd') Creer_destination(nom, 500, 2);
    }
    Lancer_dans_les_dossiers();
    const std::string neuf   = Lire_fichier(Source(L"a.txt"));
    const std::string ancien = Lire_fichier(Destination(L"a.txt"));
    Choisir_tout();
    Cliquer(L"Copier");
    Attendre_remplacement(L"COPIER", L"A.TXT", destination, IDNO);
    Attendre_remplacement(L"COPIER", L"B.TXT", destination, IDYES);
    Attendre_remplacement(L"COPIER", L"C.TXT", destination, IDCANCEL);
    Verifier_repos(L"Copier");
    EXPECT_EQ(Lire_fichier(Destination(L"a.txt")), ancien) << "non garde l'ancien";
    EXPECT_EQ(Lire_fichier(Destination(L"b.txt")), neuf) << "oui le remplace";
    EXPECT_EQ(Lire_fichier(Destination(L"c.txt")), ancien) << "annuler le garde";
    EXPECT_FALSE(Existe(Destination(L"d.txt"))) << "annuler finit la commande";
}

TEST_F(Copie, remplacer_sans_demander_remplace_sans_un_mot) {
    Regler(L"Options", L"Remplace", L"Non");
    Creer_source(L"a.txt", 300, 1);
    Creer_source(L"b.txt", 40000, 3);
    Creer_destination(L"a.txt", 500, 2);
    Creer_destination(L"b.txt", 500, 2);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Copier");
    Verifier_repos(L"Copier");
    for (const wchar_t * nom : {L"a.txt", L"b.txt"}) {
        EXPECT_EQ(Lire_fichier(Destination(nom)), Lire_fichier(Source(nom))) << Utf8(nom);
    }
}

TEST_F(Copie, un_fichier_en_lecture_seule_ne_se_remplace_pas) {
    Creer_source(L"a.txt", 300, 1);
    Creer_source(L"b.txt", 300, 1);
    Creer_destination(L"a.txt", 500, 2);
    Attributs(Destination(L"a.txt"), FILE_ATTRIBUTE_READONLY);
    const auto avant = Lire_arbre(destination);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Copier");
    Attendre_remplacement(L"COPIER", L"A.TXT", destination, IDYES);
    Attendre_protege(L"A.TXT");
    Verifier_repos(L"Copier");
    EXPECT_EQ(Differences(avant, Lire_arbre(destination)), "");
}

TEST_F(Copie, un_seul_fichier_se_confirme_par_oui_ou_non) {
    Regler(L"Options", L"Confirme", L"Oui");
    Creer_source(L"été.txt", 300);
    Lancer_dans_les_dossiers();
    Choisir_un(L"été.txt");
    Cliquer(L"Copier");
    Attendre_confirmation(L"COPIER", L"été.txt", destination, oui_non, IDNO);
    Verifier_repos(L"Copier");
    EXPECT_TRUE(Noms(destination).empty());
    Cliquer(L"Copier");
    Attendre_confirmation(L"COPIER", L"été.txt", destination, oui_non, IDYES);
    Verifier_repos(L"Copier");
    EXPECT_EQ(Lire_fichier(Destination(L"été.txt")), Lire_fichier(Source(L"été.txt")));
}

TEST_F(Copie, plusieurs_fichiers_se_confirment_par_oui_non_ou_annuler) {
    Regler(L"Options", L"Confirme", L"Oui");
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt", L"d.txt"}) Creer_source(nom, 300);
    Creer_destination(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Copier");
    Attendre_confirmation(L"COPIER", L"a.txt", destination, oui_non_annuler, IDNO);
    Attendre_confirmation(L"COPIER", L"b.txt", destination, oui_non_annuler, IDYES);
    Attendre_remplacement(L"COPIER", L"B.TXT", destination, IDYES);
    Attendre_confirmation(L"COPIER", L"c.txt", destination, oui_non_annuler, IDCANCEL);
    Verifier_repos(L"Copier");
    EXPECT_EQ(Noms(destination), std::vector<std::wstring>{L"b.txt"});
    EXPECT_EQ(Taille_fichier(Destination(L"b.txt")), 300u);
}

TEST_F(Copie, l_invite_montre_en_entier_un_nom_plus_long_qu_une_ligne) {
    const std::wstring nom = std::wstring(200, L'w') + L".dat";
    Creer_source(nom, 10);
    Lancer_vers(L"");
    Choisir_un(nom);
    Commencer(L"Copier");
    EXIGER(Fenetre(L"Saisie"));
    const RECT invite = Place_ecran(Controle(L"Saisie", L"Invite"));
    // Two hundred wide letters take more than four lines of some thirteen pixels.
    EXPECT_GE(invite.bottom - invite.top, 4 * 13);
    EXPECT_GE(Place_ecran(Controle(L"Saisie", L"Texte")).top, invite.bottom);
    Frapper(VK_ESCAPE);
    Attendre_fin_commande();
}

TEST_F(Copie, une_fenetre_reduite_pose_ses_questions_sur_l_ecran) {
    Creer_source(L"a.txt", 10);
    Lancer_vers(L"");
    Choisir_un(L"a.txt");
    ShowWindow(Principale(), SW_MINIMIZE);
    ATTENDRE(IsIconic(Principale()));
    PostMessageW(Controle(L"Copier"), BM_CLICK, 0, 0);
    EXIGER(Fenetre(L"Saisie"));
    const RECT place = Place_ecran(Fenetre(L"Saisie"));
    EXPECT_GE(place.left, 0);
    EXPECT_GE(place.top, 0);
    PostMessageW(Controle(L"Saisie", L"Annuler"), BM_CLICK, 0, 0);
    ATTENDRE(!Fenetre(L"Saisie"));
    ShowWindow(Principale(), SW_RESTORE);
    Attendre_fin_commande();
}

TEST_F(Copie, une_fenetre_au_bord_de_l_ecran_pose_ses_questions_sur_l_ecran) {
    Creer_source(L"a.txt", 10);
    Lancer_vers(L"");
    RECT zone{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &zone, 0);
    const auto entiere = [&](const wchar_t * nom) {
        const RECT place = Place_ecran(Fenetre(nom));
        return place.left >= zone.left && place.top >= zone.top && place.right <= zone.right + 1 &&
               place.bottom <= zone.bottom + 1;
    };
    const auto aller = [&](int x, int y) {
        SetWindowPos(Principale(), nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        Reposer(Principale());
    };
    for (const POINT coin : {POINT{zone.right - 450, zone.bottom - 60}, POINT{-500, zone.bottom - 60}}) {
        aller(20, 10);
        Choisir_un(L"a.txt");
        aller(coin.x, coin.y);
        PostMessageW(Controle(L"Copier"), BM_CLICK, 0, 0);
        EXIGER(Fenetre(L"Saisie"));
        EXPECT_TRUE(entiere(L"Saisie"));
        PostMessageW(Controle(L"Saisie", L"Annuler"), BM_CLICK, 0, 0);
        ATTENDRE(!Fenetre(L"Saisie"));
        Attendre_fin_commande();
        PostMessageW(Controle(L"A_propos"), BM_CLICK, 0, 0);
        EXIGER(Fenetre(L"Apropos"));
        EXPECT_TRUE(entiere(L"Apropos"));
        PostMessageW(Controle(L"Apropos", L"OK"), BM_CLICK, 0, 0);
        ATTENDRE(!Fenetre(L"Apropos"));
    }
}

TEST_F(Copie, dans_son_propre_repertoire_chaque_fichier_recoit_le_nom_demande) {
    Creer_source(L"a.txt", 40000, 1);
    Creer_source(L"été.txt", 200, 2);
    Creer_source(L"pris.txt", 7, 3);
    Lancer_vers(L"");
    Choisir({L"a.txt", L"été.txt"});
    Cliquer(L"Copier");
    Demander_nom(L"A.TXT", L"copie de a.txt");
    Demander_nom(L"ÉTÉ.TXT", L"été.txt");  // itself: asked again
    Demander_nom(L"ÉTÉ.TXT", L"ÉTÉ.TXT");
    Demander_nom(L"ÉTÉ.TXT", L"pris.txt");
    Attendre_remplacement(L"COPIER", L"PRIS.TXT", source, IDYES);
    Verifier_repos(L"Copier");
    EXPECT_EQ(Lire_fichier(Source(L"copie de a.txt")), Lire_fichier(Source(L"a.txt")));
    EXPECT_EQ(Lire_fichier(Source(L"pris.txt")), Lire_fichier(Source(L"été.txt")));
    for (const wchar_t * liste : {L"Fichier_srce", L"Fichier_dest"}) {
        EXPECT_EQ(Entrees(liste).size(), 4u) << Utf8(liste);
        EXPECT_GE(Rang_entree(Controle(liste), L"copie de a.txt"), 0) << Utf8(liste);
    }
}

TEST_F(Copie, sans_nom_la_commande_entiere_finit_sans_un_mot) {
    struct Cas {
        const wchar_t * texte;
        const wchar_t * bouton;
    };
    Creer_source(L"a.txt", 100);
    Creer_source(L"b.txt", 100);
    Lancer_vers(L"");
    const auto avant = Lire_arbre(source);
    for (const Cas & cas : {Cas{nullptr, L"OK"}, Cas{nullptr, L"Annuler"}, Cas{L"c.txt", L"Annuler"}}) {
        Choisir({L"a.txt", L"b.txt"});
        Cliquer(L"Copier");
        Demander_nom(L"A.TXT", cas.texte, cas.bouton);
        Attendre_fin_commande();
        Verifier_source_intacte(avant);
    }
    Verifier_repos(L"Copier");
}

TEST_F(Copie, un_nom_de_copie_qui_n_est_pas_un_simple_nom_est_refuse) {
    Creer_source(L"a.txt", 100);
    Creer_source(L"sous\\b.txt", 100);
    Lancer_vers(L"");
    const auto avant = Lire_arbre(dossier.Chemin());
    for (const wchar_t * nom : {L"sous\\c.txt", L"sous/c.txt", L"..\\c.txt", L"C:c.txt", L"a.txt:flux",
                                L"*.txt", L"c?.txt", L"c<d", L"c|d", L"..", L"\""}) {
        Choisir_un(L"a.txt");
        Cliquer(L"Copier");
        Demander_nom(L"A.TXT", nom);
        Attendre_avertissement(L"Nom incorrect.");
        Attendre_fin_commande();
        EXPECT_EQ(Differences(avant, Lire_arbre(dossier.Chemin())), "") << Utf8(nom);
    }
    Verifier_repos(L"Copier");
}

// The replace prompt of the second file holds the window as the first file left it.
TEST_F(Copie, la_jauge_se_montre_a_partir_de_32768_octets_et_le_titre_fait_place_au_fichier) {
    struct Cas {
        const wchar_t * nom;
        std::uint64_t   taille;
        bool            jauge;
    };
    const Cas cas[] = {{L"court.dat", 32767, false}, {L"égal.dat", 32768, true}, {L"long.dat", 300001, true}};
    for (const Cas & c : cas) Creer_source(c.nom, c.taille);
    Creer_source(L"ôté.txt", 10);
    Creer_destination(L"ôté.txt", 10);
    Lancer_dans_les_dossiers();
    for (const Cas & c : cas) {
        Choisir({c.nom, L"ôté.txt"});
        Cliquer(L"Copier");
        ASSERT_TRUE(Attendre([this] { return !Boite_absente(); }));
        EXPECT_EQ(Utf8(Lire(L"En_cours")), Utf8(L" COPIE le fichier " + Capitales(c.nom) + L" "));
        for (const wchar_t * montre : {L"En_cours", L"Arret"}) EXPECT_TRUE(Se_voit(montre)) << Utf8(montre);
        for (const wchar_t * cache : {L"Titre_dest", L"Croiser"}) EXPECT_FALSE(Se_voit(cache)) << Utf8(cache);
        for (const wchar_t * partie :
             {L"Jauge", L"Ligne_jauge(0)", L"Ligne_jauge(1)", L"Ligne_jauge(2)", L"Ligne_jauge(3)"}) {
            EXPECT_EQ(Se_voit(partie), c.jauge) << Utf8(partie) << " " << Utf8(c.nom);
        }
        EXPECT_EQ(Utf8(Lire(L"Jauge")), c.jauge ? "100%" : "");
        EXPECT_TRUE(Sablier());
        Attendre_remplacement(L"COPIER", L"ÔTÉ.TXT", destination, IDNO);
        Attendre_fin_commande();
    }
    Verifier_repos(L"Copier");
}

TEST_F(Copie, la_jauge_avance_et_l_arret_ne_laisse_rien_de_la_copie) {
    Creer_longue(Source(L"longue.dat"));
    Creer_source(L"z.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Commencer(L"Copier");
    Attendre_commencee();
    ATTENDRE(Se_voit(L"Jauge"));
    EXPECT_NE(Utf8(Lire(L"Jauge")), "") << "la jauge porte son texte dès qu'elle se voit";
    ATTENDRE(!Lire(L"Jauge").empty() && Lire(L"Jauge") != L"0%");
    EXPECT_TRUE(Sablier());
    EXPECT_TRUE(Existe(Destination(L"longue.dat")));
    Commencer(L"Arret");
    Verifier_repos(L"Copier");
    EXPECT_TRUE(Noms(destination).empty()) << "l'arrêt finit la commande et retire la copie entamée";
    EXPECT_EQ(Taille_fichier(Source(L"longue.dat")), std::uint64_t{8} << 30);
}

TEST_F(Copie, un_fichier_n_est_jamais_copie_sur_lui_meme_par_un_autre_nom) {
    Creer_source(L"a.txt", 5000, 1);
    Creer_source(L"b.txt", 100, 2);
    ASSERT_TRUE(Lier(Source(L"a.txt"), Destination(L"a.txt")));
    const auto avant = Lire_arbre(source);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Cliquer(L"Copier");
    Attendre_boite(L"COPIER", L"Le fichier A.TXT\rne peut être copié sur lui-même.", avertissement, IDOK);
    Verifier_repos(L"Copier");
    Verifier_source_intacte(avant);
    EXPECT_EQ(Lire_fichier(Destination(L"a.txt")), Lire_fichier(Source(L"a.txt")));
    EXPECT_EQ(Lire_fichier(Destination(L"b.txt")), Lire_fichier(Source(L"b.txt")))
        << "les autres sont copiés";
}

TEST_F(Copie, le_meme_repertoire_par_une_autre_unite_demande_un_nom) {
    Creer_source(L"a.txt", 5000, 1);
    Regler(L"Options", L"Répertoire", Par_une_autre_unite(source));
    Lancer();
    Ouvrir(L"srce", source);
    Choisir_un(L"a.txt");
    Cliquer(L"Copier");
    Demander_nom(L"A.TXT", L"A.TXT");
    Demander_nom(L"A.TXT", L"b.txt");
    Verifier_repos(L"Copier");
    EXPECT_EQ(Lire_fichier(Source(L"b.txt")), Lire_fichier(Source(L"a.txt")));
    EXPECT_EQ(Noms(source).size(), 2u);
}

class Copie_A : public Copie {
protected:
    Copie_A() {
        Unite::Inserer_disquette(1);
        Unite::Vider(L'A');
    }
    ~Copie_A() override { Unite::Vider(L'A'); }
};

TEST_F(Copie_A, l_espace_libre_suit_la_destination_pendant_la_commande) {
    Creer_source(L"a.dat", 102400);
    Lancer_vers(L"A:\\");
    EXPECT_EQ(Utf8(Lire(L"Espace_libre")), Utf8(L"1\u00A0475 Ko libres "));
    Choisir_un(L"a.dat");
    Cliquer(L"Copier");
    Attendre_fin_commande();
    EXPECT_EQ(Utf8(Lire(L"Espace_libre")), Utf8(L"1\u00A0372 Ko libres "));
    Choisir_unite(L"Unité_srce", L'a');
    EXPECT_EQ(Utf8(Lire(L"Espace_libre")), Utf8(L"1\u00A0372 Ko libres "));
}

TEST_F(Copie_A, a_la_racine_d_une_unite_la_barre_n_est_pas_doublee) {
    Creer_fichier_graine(L"A:\\a.txt", 100, 1);
    Creer_fichier_graine(L"A:\\b.txt", 7, 2);
    Lancer();
    Ouvrir(L"srce", L"A:\\");
    Ouvrir(L"dest", L"A:\\");
    Choisir_un(L"a.txt");
    Cliquer(L"Copier");
    Demander_nom(L"A.TXT", L"b.txt");
    Attendre_remplacement(L"COPIER", L"B.TXT", L"A:\\", IDYES);
    Verifier_repos(L"Copier");
    EXPECT_EQ(Lire_fichier(L"A:\\b.txt"), Lire_fichier(L"A:\\a.txt"));
}
