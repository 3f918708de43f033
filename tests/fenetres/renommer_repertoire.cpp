#include "fenetres/obstacles.h"
#include "fenetres/repertoires.h"
#include "fenetres/systeme_hote.h"

using namespace Pilote;

// Renaming the SOURCE directory, in directory mode.
class Renommer_repertoire : public Repertoires {
protected:
    void Nommer(const std::wstring & chemin, const std::wstring & nom_actuel, const wchar_t * texte,
                const std::wstring & bouton = L"OK") {
        Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du répertoire :\r" + Capitales(chemin),
                        nom_actuel, texte, bouton);
    }
    void Renommer(const std::wstring & chemin, const std::wstring & nom) {
        Cliquer(L"Renommer");
        Nommer(chemin, chemin.substr(chemin.rfind(L'\\') + 1), nom.c_str());
    }
};

TEST_F(Renommer_repertoire, le_volet_suit_et_ce_que_contient_le_repertoire_reste) {
    Creer_source(L"Été\\sous\\a.txt", 100);
    Creer_source(L"Été\\b.txt", 100);
    const auto avant = Lire_arbre(Source(L"Été"));
    Lancer_sur(Source(L"Été"));
    Renommer(Source(L"Été"), L"hiver");
    Verifier_volets(Source(L"hiver"), destination);
    EXPECT_EQ(Utf8(Nom_du_focus()), "Renommer");
    EXPECT_EQ(Noms(source), Textes{L"hiver"});
    EXPECT_EQ(Differences(avant, Lire_arbre(Source(L"hiver"))), "");
    // Once more from where the pane now stands: it is not held by the program itself.
    Renommer(Source(L"hiver"), L"θάλασσα 2");
    Verifier_volets(Source(L"θάλασσα 2"), destination);
    EXPECT_EQ(Noms(source), Textes{L"θάλασσα 2"});
}

TEST_F(Renommer_repertoire, confirme_non_n_en_demande_pas_le_nom) {
    Regler(L"Options", L"Confirme", L"Oui");
    Creer_dossier(Source(L"haut"));
    Lancer_sur(Source(L"haut"));
    Cliquer(L"Renommer");
    Attendre_question(L"RENOMMER", L"le répertoire ", Source(L"haut"), IDNO);
    Attendre_fin_commande();
    EXPECT_FALSE(Fenetre(L"Saisie"));
    Cliquer(L"Renommer");
    Attendre_question(L"RENOMMER", L"le répertoire ", Source(L"haut"), IDYES);
    Nommer(Source(L"haut"), L"haut", L"bas");
    Verifier_volets(Source(L"bas"), destination);
}

TEST_F(Renommer_repertoire, annule_ou_laisse_tel_quel_il_garde_son_nom) {
    struct Cas {
        const wchar_t * texte;
        const wchar_t * bouton;
    };
    Creer_dossier(Source(L"haut"));
    Lancer_sur(Source(L"haut"));
    for (const Cas & cas : {Cas{nullptr, L"OK"}, Cas{nullptr, L"Annuler"}, Cas{L"bas", L"Annuler"}}) {
        Cliquer(L"Renommer");
        Nommer(Source(L"haut"), L"haut", cas.texte, cas.bouton);
        Verifier_volets(Source(L"haut"), destination);
        EXPECT_EQ(Noms(source), Textes{L"haut"});
    }
}

TEST_F(Renommer_repertoire, a_la_racine_rien_ne_se_demande_apres_la_confirmation) {
    for (const wchar_t * option : {L"Non", L"Oui"}) {
        Regler(L"Options", L"Confirme", option);
        Lancer_sur(L"C:\\");
        Cliquer(L"Renommer");
        if (*option == L'O') Attendre_question(L"RENOMMER", L"le répertoire ", L"C:\\", IDYES);
        Attendre_fin_commande();
        EXPECT_TRUE(Boite_absente());
        EXPECT_FALSE(Fenetre(L"Saisie"));
        EXPECT_EQ(Utf8(Lire(L"Chemin_srce")), "C:\\");
        Fermer();
    }
}

TEST_F(Renommer_repertoire, la_destination_suit_quand_elle_montrait_le_repertoire_ou_ce_qu_il_contient) {
    Creer_dossier(Source(L"haut\\milieu\\bas"));
    Creer_dossier(Source(L"trois bis"));
    Lancer_sur(Source(L"haut"));
    Ouvrir(L"dest", Source(L"haut"));
    Renommer(Source(L"haut"), L"un");
    Verifier_volets(Source(L"un"), Source(L"un"));
    Ouvrir(L"dest", Source(L"un\\milieu\\bas"));
    Renommer(Source(L"un"), L"deux");
    Verifier_volets(Source(L"deux"), Source(L"deux\\milieu\\bas"));
    // The one above shows the new name, and one beside keeps its own.
    Ouvrir(L"dest", source);
    Renommer(Source(L"deux"), L"trois");
    Verifier_volets(Source(L"trois"), source);
    Ouvrir(L"dest", Source(L"trois bis"));
    Renommer(Source(L"trois"), L"quatre");
    Verifier_volets(Source(L"quatre"), Source(L"trois bis"));
}

TEST_F(Renommer_repertoire, la_casse_seule_change) {
    Creer_dossier(Source(L"Été"));
    Lancer_sur(Source(L"Été"));
    Renommer(Source(L"Été"), L"ÉTÉ");
    Verifier_volets(Source(L"ÉTÉ"), destination);
    EXPECT_EQ(Noms(source), Textes{L"ÉTÉ"});
}

TEST_F(Renommer_repertoire, un_nom_deja_pris_est_refuse_et_les_deux_restent) {
    Creer_source(L"haut\\a.txt", 10);
    Creer_source(L"pris\\b.txt", 10);
    Creer_source(L"fichier", 10);
    const auto avant = Lire_arbre(source);
    Lancer_sur(Source(L"haut"));
    for (const wchar_t * nom : {L"pris", L"fichier"}) {
        Renommer(Source(L"haut"), nom);
        Attendre_rapport(58, ERROR_ALREADY_EXISTS, L"RENOMMER", Source(L"haut"), destination);
        Verifier_volets(Source(L"haut"), destination);
        EXPECT_EQ(Differences(avant, Lire_arbre(source)), "") << Utf8(nom);
    }
}

TEST_F(Renommer_repertoire, un_nom_qui_menerait_ailleurs_ou_impossible_est_refuse) {
    Creer_dossier(Source(L"haut"));
    Creer_dossier(Source(L"sous"));
    Lancer_sur(Source(L"haut"));
    for (const std::wstring & nom : noms_incorrects) {
        Renommer(Source(L"haut"), nom);
        Attendre_avertissement(L"Nom incorrect.");
        Attendre_fin_commande();
        EXPECT_EQ(Noms(source), (Textes{L"haut", L"sous"})) << Utf8(nom);
    }
    Verifier_volets(Source(L"haut"), destination);
}

TEST_F(Renommer_repertoire, un_repertoire_disparu_donne_le_message_du_fichier_verrouille) {
    Creer_dossier(Source(L"haut"));
    Lancer_sur(Source(L"haut"));
    ASSERT_TRUE(Sur_hote(source, L"rm -r haut"));
    Renommer(Source(L"haut"), L"bas");
    Attendre_avertissement(protege);
    Attendre_fin_commande();
    EXPECT_TRUE(Noms(source).empty());
}

TEST_F(Renommer_repertoire, le_repertoire_qui_le_contenait_disparu_donne_le_meme_message) {
    Creer_dossier(Source(L"haut\\bas"));
    Lancer_sur(Source(L"haut\\bas"));
    ASSERT_TRUE(Sur_hote(source, L"rm -r haut"));
    Renommer(Source(L"haut\\bas"), L"x");
    Attendre_avertissement(protege);
    Attendre_fin_commande();
    EXPECT_TRUE(Noms(source).empty());
}

TEST_F(Renommer_repertoire, un_repertoire_pris_par_un_autre_programme_garde_son_nom) {
    Creer_dossier(Source(L"haut"));
    Lancer_sur(Source(L"haut"));
    {
        const Verrou verrou(Source(L"haut"), repertoire_ouvert);
        ASSERT_TRUE(verrou.Tient());
        Renommer(Source(L"haut"), L"bas");
        Attendre_avertissement(protege);
        Verifier_volets(Source(L"haut"), destination);
    }
    Renommer(Source(L"haut"), L"bas");
    Verifier_volets(Source(L"bas"), destination);
}

TEST_F(Renommer_repertoire, sous_une_racine_la_barre_n_est_pas_doublee) {
    const std::wstring nom = L"avant" + std::to_wstring(GetCurrentProcessId());
    Creer_dossier(L"C:\\" + nom);
    Lancer_sur(L"C:\\" + nom);
    Renommer(L"C:\\" + nom, nom + L" apres");
    Verifier_volets(L"C:\\" + nom + L" apres", destination);
    Fermer();
    EXPECT_TRUE(Effacer(L"C:\\" + nom + L" apres"));
}

TEST_F(Renommer_repertoire, un_chemin_de_plus_de_260_caracteres_se_renomme) {
    std::wstring profond = source;
    for (int i = 0; i < 5; ++i) profond += L"\\" + std::to_wstring(i) + std::wstring(59, L'p');
    Creer_fichier_graine(profond + L"\\a.txt", 500, 3);
    Lancer_sur(profond);
    Cliquer(L"Renommer");
    EXIGER(Fenetre(L"Saisie") && GetForegroundWindow() == Fenetre(L"Saisie"));
    EXPECT_EQ(Utf8(Texte(Controle(L"Saisie", L"Texte"))), "4" + std::string(59, 'p'));
    Taper(L"neuf");
    Frapper(VK_RETURN);
    const std::wstring nouveau = profond.substr(0, profond.rfind(L'\\')) + L"\\neuf";
    Verifier_volets(nouveau, destination);
    EXPECT_TRUE(Existe(nouveau + L"\\a.txt"));
}

class Renommer_repertoire_E : public Renommer_repertoire {};

TEST_F(Renommer_repertoire_E, un_support_en_lecture_seule_garde_ses_noms) {
    Lancer_sur(L"E:\\sous");
    Renommer(L"E:\\sous", L"autre");
    Attendre_avertissement(protege);
    Verifier_volets(L"E:\\sous", destination);
}
