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
    EXPECT_TRUE(fille.Ouverte());
    EXPECT_FALSE(Sablier());
    // The next one is reached whatever the window shows now.
    for (int pas = 0; pas < 2 && fille.Titre() != L"Informations sur C.TXT"; ++pas) fille.Cliquer(L"Suivant");
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
    if (Attendre([this] { return Fenetre_infos().Ouverte(); }, 500)) Fermer_infos(Fenetre_infos());
    Verifier_principale_utilisable();
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
    for (int pas = 0; pas < 3 && !Boite_absente(); ++pas)
        Repondre_boite(Boite_visible(programme->Numero()), IDOK);
    EXPECT_TRUE(fille.Ouverte());
    if (fille.Titre() != L"Informations sur B.TXT") fille.Cliquer(L"Suivant");
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
        Ouvrir(L"srce", Source(c.nom));
        if (!Lire(L"Ligne_message").empty()) Cliquer(L"Sélecte"), Cliquer(L"Sélecte");
        ATTENDRE(Lire(L"Ligne_message").empty());
        Attendre_resume(L"Le répertoire " + Source(c.nom) + c.fin);
        EXPECT_FALSE(Sablier());
        EXPECT_EQ(Nom_du_focus(), L"Info");
    }
    Verifier_principale_utilisable();
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
    if (fille.Titre() != L"Informations sur GROS.DAT") fille.Cliquer(L"Précédent");
    Attendre_fichier(fille, L"GROS.DAT");
    Verifier_cases(fille, avant);
    Fermer_infos(fille);
    Verifier_principale_utilisable();
}
