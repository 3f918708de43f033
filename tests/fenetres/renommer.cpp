#include "fenetres/obstacles.h"
#include "fenetres/repertoires.h"

using namespace Pilote;

// Renaming the selected files.
class Renommer : public Repertoires {
protected:
    void Creer_trois() {
        for (const wchar_t * nom : {L"a.txt", L"l'Été.txt", L"z.txt"}) {
            Creer_source(nom, 1000, static_cast<std::uint32_t>(*nom));
        }
        avant = Lire_arbre(source);
    }
    void Nommer(const std::wstring & fichier, const wchar_t * texte, const std::wstring & bouton = L"OK") {
        Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du fichier " + Capitales(fichier), fichier,
                        texte, bouton);
    }
    void Confirmer(const std::wstring & fichier, unsigned style, int reponse) {
        Attendre_boite(gestionnaire,
                       L"Vous allez RENOMMER le fichier '" + fichier + L"' du répertoire\r" + source +
                           L"\rConfirmez-vous cette commande ?",
                       style, reponse);
    }
    void Renommer_un(const std::wstring & fichier, const std::wstring & nom) {
        Choisir_un(fichier);
        Cliquer(L"Renommer");
        Nommer(fichier, nom.c_str());
    }
    // The file of `avant` is the one that has this name now, with its bytes, date and attributes.
    void Verifier_meme(const std::wstring & ancien, const std::wstring & nom) {
        EXPECT_TRUE(Lire_arbre(source).at(L"\\" + nom) == avant.at(L"\\" + ancien)) << Utf8(nom);
    }

    Arbre avant;
};

TEST_F(Renommer, sans_selection_le_dit_et_ne_demande_rien) {
    Creer_trois();
    Lancer_dans_les_dossiers();
    Cliquer(L"Renommer");
    Attendre_boite(L"RENOMMER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", avertissement, IDOK);
    Verifier_repos(L"Renommer");
}

TEST_F(Renommer, un_fichier_garde_octets_date_et_attributs_sous_son_nouveau_nom) {
    Creer_source(L"l'Été.txt", 1000);
    Date(Source(L"l'Été.txt"), 126000000000000000ull);
    Attributs(Source(L"l'Été.txt"), FILE_ATTRIBUTE_READONLY);
    avant = Lire_arbre(source);
    Lancer_dans_les_dossiers();
    Renommer_un(L"l'Été.txt", L"après l'été");
    Verifier_repos(L"Renommer");
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{L"après l'été"});
    EXPECT_EQ(Noms(source), Textes{L"après l'été"});
    Verifier_meme(L"l'Été.txt", L"après l'été");
}

TEST_F(Renommer, annuler_au_deuxieme_laisse_le_premier_renomme_et_finit_la_commande) {
    Creer_trois();
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"l'Été.txt", L"z.txt"});
    Cliquer(L"Renommer");
    Nommer(L"a.txt", L"b.txt");
    Nommer(L"l'Été.txt", L"c.txt", L"Annuler");
    Verifier_repos(L"Renommer");
    EXPECT_EQ(Noms(source), (Textes{L"b.txt", L"l'Été.txt", L"z.txt"}));
    Verifier_meme(L"a.txt", L"b.txt");
}

TEST_F(Renommer, un_nom_vide_finit_la_commande_et_le_meme_nom_passe_au_suivant) {
    Creer_trois();
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"l'Été.txt", L"z.txt"});
    Cliquer(L"Renommer");
    Nommer(L"a.txt", nullptr);
    EXIGER(Fenetre(L"Saisie") && GetForegroundWindow() == Fenetre(L"Saisie"));
    Frapper(VK_DELETE);
    Frapper(VK_RETURN);
    Verifier_repos(L"Renommer");
    EXPECT_EQ(Differences(avant, Lire_arbre(source)), "");
}

TEST_F(Renommer, confirme_non_comme_annuler_finit_la_commande) {
    Regler(L"Options", L"Confirme", L"Oui");
    Creer_trois();
    Lancer_dans_les_dossiers();
    for (const int reponse : {IDNO, IDCANCEL}) {
        Choisir({L"a.txt", L"z.txt"});
        Cliquer(L"Renommer");
        Confirmer(L"a.txt", oui_non_annuler, reponse);
        Verifier_repos(L"Renommer");
    }
    Choisir_un(L"z.txt");
    Cliquer(L"Renommer");
    Confirmer(L"z.txt", oui_non, IDNO);
    Verifier_repos(L"Renommer");
    EXPECT_EQ(Differences(avant, Lire_arbre(source)), "");
    Choisir({L"a.txt", L"z.txt"});
    Cliquer(L"Renommer");
    Confirmer(L"a.txt", oui_non_annuler, IDYES);
    Nommer(L"a.txt", L"b.txt");
    Confirmer(L"z.txt", oui_non_annuler, IDNO);
    Verifier_repos(L"Renommer");
    EXPECT_EQ(Noms(source), (Textes{L"b.txt", L"l'Été.txt", L"z.txt"}));
}

TEST_F(Renommer, le_volet_destination_suit_quand_il_montre_le_meme_repertoire) {
    Creer_trois();
    Lancer_vers(L"");
    Renommer_un(L"a.txt", L"b.txt");
    Verifier_repos(L"Renommer");
    for (const wchar_t * liste : {L"Fichier_srce", L"Fichier_dest"}) {
        EXPECT_EQ(Entrees(liste), (Textes{L"b.txt", L"l'Été.txt", L"z.txt"})) << Utf8(liste);
    }
}

TEST_F(Renommer, la_casse_seule_change) {
    Creer_trois();
    Lancer_dans_les_dossiers();
    Renommer_un(L"a.txt", L"A.TXT");
    Attendre_fin_commande();
    Renommer_un(L"l'Été.txt", L"L'éTÉ.txt");
    Verifier_repos(L"Renommer");
    EXPECT_EQ(Noms(source), (Textes{L"A.TXT", L"L'éTÉ.txt", L"z.txt"}));
    EXPECT_EQ(Entrees(L"Fichier_srce").front(), L"A.TXT");
    Verifier_meme(L"l'Été.txt", L"L'éTÉ.txt");
}

TEST_F(Renommer, un_nom_deja_pris_est_refuse_et_les_deux_restent) {
    Creer_trois();
    Creer_dossier(Source(L"pris"));
    avant = Lire_arbre(source);
    Lancer_dans_les_dossiers();
    for (const wchar_t * nom : {L"z.txt", L"Z.TXT", L"pris"}) {
        Renommer_un(L"a.txt", nom);
        Attendre_rapport(58, ERROR_ALREADY_EXISTS, L"RENOMMER", source, destination);
        Verifier_repos(L"Renommer");
        EXPECT_EQ(Differences(avant, Lire_arbre(source)), "") << Utf8(nom);
    }
}

TEST_F(Renommer, un_nom_qui_menerait_ailleurs_ou_impossible_est_refuse) {
    Creer_trois();
    Creer_dossier(Source(L"sous"));
    const auto tout = Lire_arbre(source);
    Lancer_dans_les_dossiers();
    for (const std::wstring & nom : noms_incorrects) {
        Renommer_un(L"a.txt", nom);
        Attendre_avertissement(L"Nom incorrect.");
        Attendre_fin_commande();
        EXPECT_EQ(Differences(tout, Lire_arbre(source)), "") << Utf8(nom);
    }
    Verifier_repos(L"Renommer");
}

TEST_F(Renommer, les_noms_longs_et_hors_de_la_page_de_codes_vont_et_viennent) {
    Creer_source(L"θάλασσα\u3042.txt", 500);
    avant = Lire_arbre(source);
    Lancer_dans_les_dossiers();
    const std::wstring long1(200, L'w');
    Renommer_un(L"θάλασσα\u3042.txt", long1);
    Attendre_fin_commande();
    EXPECT_EQ(Noms(source), Textes{long1});
    Renommer_un(long1, L"ж \u3042");
    Verifier_repos(L"Renommer");
    Verifier_meme(L"θάλασσα\u3042.txt", L"ж \u3042");
}

TEST_F(Renommer, un_fichier_disparu_ou_pris_donne_le_message_du_fichier_verrouille) {
    Creer_trois();
    Lancer_dans_les_dossiers();
    {
        const Verrou verrou(Source(L"a.txt"));
        ASSERT_TRUE(verrou.Tient());
        Renommer_un(L"a.txt", L"b.txt");
        Attendre_avertissement(protege);
        Verifier_repos(L"Renommer");
    }
    Choisir_un(L"a.txt");
    Cliquer(L"Renommer");
    EXIGER(Fenetre(L"Saisie") != nullptr);
    ASSERT_TRUE(Effacer(Source(L"a.txt")));
    Nommer(L"a.txt", L"b.txt");
    Attendre_avertissement(protege);
    Verifier_repos(L"Renommer");
    EXPECT_EQ(Entrees(L"Fichier_srce"), (Textes{L"l'Été.txt", L"z.txt"}));
    EXPECT_EQ(Noms(source), (Textes{L"l'Été.txt", L"z.txt"}));
}

class Renommer_E : public Renommer {};

TEST_F(Renommer_E, un_support_en_lecture_seule_garde_ses_noms) {
    const auto support = Lire_arbre(L"E:");
    Lancer();
    Ouvrir(L"srce", L"E:\\");
    Choisir_un(L"lisez.txt");
    Cliquer(L"Renommer");
    Nommer(L"lisez.txt", L"lu.txt");
    Attendre_avertissement(protege);
    Verifier_repos(L"Renommer");
    EXPECT_EQ(Differences(support, Lire_arbre(L"E:")), "");
}

class Renommer_A : public Renommer {
protected:
    Renommer_A() {
        Unite::Inserer_disquette(1);
        Unite::Proteger(L'A', false);
        Unite::Vider(L'A');
    }
    ~Renommer_A() override { Unite::Vider(L'A'); }
};

TEST_F(Renommer_A, a_la_racine_d_une_disquette_le_nom_change_et_son_retrait_est_signale) {
    Creer_fichier_graine(L"A:\\a.dat", 100, 1);
    Lancer();
    Ouvrir(L"srce", L"A:\\");
    Renommer_un(L"a.dat", L"b.dat");
    Verifier_repos(L"Renommer");
    EXPECT_EQ(Noms(L"A:\\"), Textes{L"b.dat"});
    Choisir_un(L"b.dat");
    Cliquer(L"Renommer");
    EXIGER(Fenetre(L"Saisie") != nullptr);
    Unite::Retirer_disquette();
    Nommer(L"b.dat", L"c.dat");
    Attendre_avertissement(L"Support absent ou erreur d'accès sur A:");
    Attendre_fin_commande();
    Unite::Inserer_disquette(1);
    EXPECT_EQ(Noms(L"A:\\"), Textes{L"b.dat"});
}
