#include "fenetres/infos.h"

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// Files that vanish, attributes that cannot be set; the summary of a directory.
class Infos_pannes : public Infos {
protected:
    void Attendre_introuvable(const std::wstring & nom_capitales) {
        Attendre_avertissement(L"Un nom de fichier comporte un caractère invalide ou bien le fichier " +
                               nom_capitales +
                               L" est introuvable ou les attributs 'Système/Caché' sont présents.");
    }
    // Nothing is told of a file that is not there, and nothing can be changed.
    void Verifier_vide(const Pilote::Fille & fille, const std::wstring & nom_capitales) {
        EXPECT_TRUE(fille.Ouverte());
        EXPECT_EQ(fille.Titre(), L"Informations sur " + nom_capitales);
        for (const wchar_t * champ : {L"Taille", L"Date_fichier", L"Heure"})
            EXPECT_EQ(fille.Lire(champ), L"");
        for (const wchar_t * coche : {L"Caché", L"Lecture", L"Modifié", L"Système"}) {
            EXPECT_FALSE(fille.Est_actif(coche)) << Utf8(coche);
            EXPECT_FALSE(fille.Est_coche(coche)) << Utf8(coche);
        }
    }
    void Ouvrir_sans_choix(const std::wstring & repertoire) {
        Ouvrir(L"srce", repertoire);
        if (!Lire(L"Ligne_message").empty()) Cliquer(L"Sélecte"), Cliquer(L"Sélecte");
        ATTENDRE(Lire(L"Ligne_message").empty());
    }
    void Attendre_resume(const std::wstring & texte) {
        Cliquer(L"Info");
        Attendre_boite(gestionnaire, texte, MB_OK, IDOK);
        Attendre_fin_commande();
    }
};

TEST_F(Infos_pannes, un_fichier_disparu_entre_deux_autres_est_signale_et_la_fenetre_sert_encore) {
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt"}) Creer_source(nom, 10);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    const auto fille = Ouvrir_infos();
    ASSERT_TRUE(Effacer(Source(L"b.txt")));
    fille.Cliquer(L"Suivant");
    Attendre_introuvable(L"B.TXT");
    Verifier_vide(fille, L"B.TXT");
    EXPECT_FALSE(Sablier());
    fille.Cliquer(L"Suivant");
    Attendre_fichier(fille, L"C.TXT");
    fille.Cliquer(L"Suivant");
    Attendre_fichier(fille, L"A.TXT");
    Fermer_infos(fille);
    Verifier_principale_utilisable();
}

TEST_F(Infos_pannes, le_seul_fichier_choisi_disparu_est_signale_et_la_commande_finit) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    ASSERT_TRUE(Effacer(Source(L"a.txt")));
    Commencer(L"Info");
    Attendre_introuvable(L"A.TXT");
    Attendre_fin_commande();
    EXPECT_FALSE(Attendre([this] { return Fenetre_infos().Ouverte(); }, 500));
    Verifier_principale_utilisable();
}

TEST_F(Infos_pannes, tous_les_fichiers_choisis_disparus_un_seul_est_signale_et_la_commande_finit) {
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt"}) Creer_source(nom, 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"b.txt"});
    for (const wchar_t * nom : {L"a.txt", L"b.txt"}) ASSERT_TRUE(Effacer(Source(nom)));
    Commencer(L"Info");
    Attendre_introuvable(L"A.TXT");
    Attendre_fin_commande();
    EXPECT_FALSE(Attendre([this] { return Fenetre_infos().Ouverte() || !Boite_absente(); }, 500));
    Verifier_principale_utilisable();
}

TEST_F(Infos_pannes, le_premier_de_plusieurs_disparu_est_signale_et_l_on_passe_aux_autres) {
    for (const wchar_t * nom : {L"a.txt", L"b.txt"}) Creer_source(nom, 10);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    ASSERT_TRUE(Effacer(Source(L"a.txt")));
    Commencer(L"Info");
    Attendre_introuvable(L"A.TXT");
    const auto fille = Fenetre_infos();
    fille.Attendre_ouverte();
    Verifier_vide(fille, L"A.TXT");
    fille.Cliquer(L"Suivant");
    Attendre_fichier(fille, L"B.TXT");
    EXPECT_EQ(fille.Lire(L"Taille"), L"10");
    EXPECT_TRUE(fille.Est_actif(L"Lecture"));
    Fermer_infos(fille);
}

TEST_F(Infos_pannes, un_fichier_disparu_avant_l_enregistrement_de_ses_attributs_est_signale) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    const auto fille = Ouvrir_infos();
    fille.Cliquer(L"Lecture");
    ASSERT_TRUE(Effacer(Source(L"a.txt")));
    fille.Cliquer(L"Suivant");
    Attendre_question(IDYES);
    Attendre_introuvable(L"A.TXT");
    Verifier_vide(fille, L"A.TXT");
    EXPECT_TRUE(Boite_absente());
    fille.Cliquer(L"Suivant");
    Attendre_fichier(fille, L"B.TXT");
    Fermer_infos(fille);
}

TEST_F(Infos_pannes, le_repertoire_sans_choix_est_resume) {
    Creer_source(L"deux\\a.txt", 1000);
    Creer_source(L"deux\\b.txt", 2345);
    Creer_source(L"un\\a.txt", 12);
    Creer_source(L"zero\\a.txt", 0);
    Creer_dossier(Source(L"vide"));
    Creer_longue(Source(L"deux de plus\\a.dat"), 3'000'000'000);
    Creer_longue(Source(L"deux de plus\\b.dat"), 3'000'000'001);
    struct Cas {
        const wchar_t * nom;
        const wchar_t * fin;
    };
    const Cas cas[] = {
        {L"deux", L"\rcontient 2 fichiers\rtotalisant  3\u00A0345 octets."},
        {L"un", L"\rcontient 1 fichier\rtotalisant  12 octets."},
        {L"zero", L"\rcontient 1 fichier\rtotalisant  0 octets."},
        {L"vide", L"\rne contient pas de fichier."},
        {L"deux de plus", L"\rcontient 2 fichiers\rtotalisant  6\u00A0000\u00A0000\u00A0001 octets."},
    };
    Lancer_dans_les_dossiers();
    for (const Cas & c : cas) {
        SCOPED_TRACE(Utf8(c.nom));
        Ouvrir_sans_choix(Source(c.nom));
        Attendre_resume(L"Le répertoire " + Source(c.nom) + c.fin);
        EXPECT_FALSE(Sablier());
        ATTENDRE(Nom_du_focus() == L"Info");
    }
    Verifier_principale_utilisable();
}

// What the bin stores in the directory is hidden too, and is no file of it any more.
TEST_F(Infos_pannes, les_fichiers_que_les_listes_ne_montrent_pas_ne_comptent_pas) {
    Creer_source(L"seuls\\cache.txt", 100);
    Creer_source(L"seuls\\systeme.txt", 200);
    Creer_source(L"entre\\cache.txt", 100);
    Creer_source(L"entre\\vu.txt", 30);
    for (const wchar_t * nom : {L"seuls\\cache.txt", L"entre\\cache.txt"})
        Attributs(Source(nom), FILE_ATTRIBUTE_HIDDEN);
    Attributs(Source(L"seuls\\systeme.txt"), FILE_ATTRIBUTE_SYSTEM);
    Lancer_dans_les_dossiers();
    Ouvrir_sans_choix(Source(L"seuls"));
    Attendre_resume(L"Le répertoire " + Source(L"seuls") + L"\rne contient pas de fichier.");
    Ouvrir_sans_choix(Source(L"entre"));
    Attendre_resume(L"Le répertoire " + Source(L"entre") + L"\rcontient 1 fichier\rtotalisant  30 octets.");
}

TEST_F(Infos_pannes, le_resume_compte_aussi_ce_que_le_modele_ne_montre_pas) {
    Creer_source(L"deux\\a.txt", 1000);
    Creer_source(L"deux\\b.doc", 2345);
    Lancer_dans_les_dossiers();
    Ouvrir(L"srce", Source(L"deux"));
    Remplacer_texte(L"Sélection_fichiers", L"*.doc");
    ATTENDRE(Entrees(L"Fichier_srce") == Textes{L"b.doc"});
    if (!Lire(L"Ligne_message").empty()) Cliquer(L"Sélecte"), Cliquer(L"Sélecte");
    ATTENDRE(Lire(L"Ligne_message").empty());
    Attendre_resume(L"Le répertoire " + Source(L"deux") +
                    L"\rcontient 2 fichiers\rtotalisant  3\u00A0345 octets.");
}

class Infos_pannes_DE : public Infos_pannes {
protected:
    Infos_pannes_DE() { Unite::Vider(L'D'); }
};

TEST_F(Infos_pannes_DE, une_racine_est_resumee_sans_barre_double) {
    Creer_fichier(L"D:\\a.txt", "abc");
    Lancer();
    Choisir_unite(L"Unité_srce", L'd');
    if (!Lire(L"Ligne_message").empty()) Cliquer(L"Sélecte"), Cliquer(L"Sélecte");
    Attendre_resume(L"Le répertoire " + Lire(L"Chemin_srce") +
                    L"\rcontient 1 fichier\rtotalisant  3 octets.");
    EXPECT_EQ(Lire(L"Chemin_srce").size(), 3u);
}

TEST_F(Infos_pannes_DE, un_support_en_lecture_seule_refuse_et_les_cases_montrent_ce_que_le_fichier_a) {
    Lancer();
    Ranger_principale();
    Choisir_unite(L"Unité_srce", L'e');
    Choisir({L"gros.dat", L"lisez.txt"});
    const auto avant = Attributs(L"E:\\gros.dat");
    const auto fille = Ouvrir_infos();
    fille.Cliquer(L"Système");
    fille.Cliquer(L"Suivant");
    Attendre_question(IDYES);
    Attendre_avertissement(L"Disquette protégée en écriture\rou fichier verrouillé.");
    EXPECT_EQ(Attributs(L"E:\\gros.dat"), avant);
    EXPECT_TRUE(fille.Ouverte());
    Attendre_fichier(fille, L"GROS.DAT");
    Verifier_cases(fille, avant);
    Fermer_infos(fille);
    Verifier_principale_utilisable();
}
