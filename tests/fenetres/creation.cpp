#include "fenetres/repertoires.h"
#include "fenetres/systeme_hote.h"

using namespace Pilote;

// Making a directory under SOURCE.
class Creation : public Repertoires {
protected:
    void Nommer(const std::wstring & chemin, const wchar_t * texte, const std::wstring & bouton = L"OK") {
        Attendre_saisie(L"CREER", L"Entrez le nom du répertoire à créer sous :\r" + Capitales(chemin), L"",
                        texte, bouton);
    }
    void Creer(const std::wstring & nom, const std::wstring & sous) {
        Cliquer(L"Créer");
        Nommer(sous, nom.c_str());
        Attendre_fin_commande();
    }
};

TEST_F(Creation, sans_confirmation_le_nom_se_demande_tout_de_suite_et_le_volet_montre_le_repertoire) {
    Creer_source(L"a.txt", 10);
    Lancer_sur(source);
    Creer(L"nouveau", source);
    Verifier_volets(source, destination);
    EXPECT_EQ(Noms(source), (Textes{L"a.txt", L"nouveau"}));
    EXPECT_EQ(Utf8(Nom_du_focus()), Utf8(L"Créer"));
    Cliquer_entree(L"Répertoire_srce", L"nouveau");
    EXPECT_EQ(Utf8(Lire(L"Chemin_srce")), Utf8(Source(L"nouveau")));
}

TEST_F(Creation, avec_confirmation_non_n_en_demande_pas_le_nom) {
    Regler(L"Options", L"Confirme", L"Oui");
    Lancer_sur(source);
    Cliquer(L"Créer");
    Attendre_question(L"CREER", L"un répertoire sous ", source, IDNO);
    Attendre_fin_commande();
    EXPECT_FALSE(Fenetre(L"Saisie"));
    Cliquer(L"Créer");
    Attendre_question(L"CREER", L"un répertoire sous ", source, IDYES);
    Nommer(source, L"Été");
    Verifier_volets(source, destination);
    EXPECT_EQ(Noms(source), Textes{L"Été"});
}

TEST_F(Creation, sans_nom_ou_annulee_elle_finit_sans_un_mot) {
    struct Cas {
        const wchar_t * texte;
        const wchar_t * bouton;
    };
    Lancer_sur(source);
    for (const Cas & cas : {Cas{nullptr, L"OK"}, Cas{nullptr, L"Annuler"}, Cas{L"nouveau", L"Annuler"}}) {
        Cliquer(L"Créer");
        Nommer(source, cas.texte, cas.bouton);
        Verifier_volets(source, destination);
        EXPECT_TRUE(Noms(source).empty());
    }
}

TEST_F(Creation, le_clavier_suffit) {
    Lancer_sur(source);
    Alt(L'C');
    EXIGER(Fenetre(L"Saisie") && GetForegroundWindow() == Fenetre(L"Saisie"));
    Taper(L"au clavier");
    Frapper(VK_RETURN);
    Verifier_volets(source, destination);
    EXPECT_EQ(Noms(source), Textes{L"au clavier"});
    Alt(L'C');
    EXIGER(Fenetre(L"Saisie") && GetForegroundWindow() == Fenetre(L"Saisie"));
    Taper(L"non");
    Frapper(VK_ESCAPE);
    Verifier_volets(source, destination);
    EXPECT_EQ(Noms(source), Textes{L"au clavier"});
}

TEST_F(Creation, les_deux_volets_montrent_le_repertoire_quand_ils_sont_au_meme_endroit) {
    Lancer_sur(source);
    Ouvrir(L"dest", source);
    Creer(L"nouveau", source);
    Verifier_volets(source, source);
    EXPECT_EQ(Noms(source), Textes{L"nouveau"});
}

TEST_F(Creation, a_la_racine_la_barre_n_est_pas_doublee) {
    const std::wstring nom = L"nouveau" + std::to_wstring(GetCurrentProcessId());
    Lancer_sur(L"C:\\");
    Creer(nom, L"C:\\");
    EXPECT_TRUE(Existe(L"C:\\" + nom));
    EXPECT_GE(Rang_entree(Controle(L"Répertoire_srce"), nom), 0);
    Cliquer_entree(L"Répertoire_srce", nom);
    EXPECT_EQ(Utf8(Lire(L"Chemin_srce")), Utf8(L"C:\\" + nom));
    Fermer();
    EXPECT_TRUE(Effacer(L"C:\\" + nom));
}

TEST_F(Creation, un_nom_deja_pris_est_refuse_et_ce_qui_le_porte_reste) {
    Creer_source(L"fichier", 10);
    Creer_source(L"Répertoire\\a.txt", 10);
    const auto avant = Lire_arbre(source);
    Lancer_sur(source);
    for (const wchar_t * nom : {L"fichier", L"RÉPERTOIRE"}) {
        Cliquer(L"Créer");
        Nommer(source, nom);
        Attendre_avertissement(caches);
        Verifier_volets(source, destination);
        EXPECT_EQ(Differences(avant, Lire_arbre(source)), "") << Utf8(nom);
    }
}

TEST_F(Creation, un_nom_qui_menerait_ailleurs_ou_impossible_est_refuse) {
    Creer_dossier(Source(L"sous"));
    const auto avant = Lire_arbre(dossier.Chemin());
    Lancer_sur(source);
    for (const std::wstring & nom : noms_incorrects) {
        Cliquer(L"Créer");
        Nommer(source, nom.c_str());
        Attendre_avertissement(L"Nom incorrect.");
        Attendre_fin_commande();
        EXPECT_EQ(Noms(source), Textes{L"sous"}) << Utf8(nom);
    }
    Verifier_volets(source, destination);
    EXPECT_TRUE(Noms(destination).empty() && Noms(Source(L"sous")).empty());
}

TEST_F(Creation, un_nom_avec_des_blancs_ou_hors_de_la_page_de_codes_convient) {
    Lancer_sur(source);
    for (const wchar_t * nom : {L" deux  blancs", L"θάλασσα", L".point", L"a.b.c"}) Creer(nom, source);
    Verifier_volets(source, destination);
    EXPECT_EQ(Noms(source).size(), 4u);
    EXPECT_TRUE(Existe(Source(L"θάλασσα")));
    EXPECT_TRUE(Existe(Source(L" deux  blancs")));
}

TEST_F(Creation, un_chemin_trop_long_pour_l_invite_y_est_raccourci_et_pas_sur_le_disque) {
    const std::wstring long1   = L"un répertoire au nom assez long",
                       long2   = L"un autre répertoire encore plus long";
    const std::wstring profond = Source(long1 + L"\\" + long1 + L"\\" + long2);
    Creer_dossier(profond);
    Lancer_sur(profond);
    Creer(L"nouveau", L"C:\\ . . .\\" + long2);
    Verifier_volets(profond, destination);
    EXPECT_TRUE(Existe(profond + L"\\nouveau"));
}

TEST_F(Creation, au_dela_de_260_caracteres_le_repertoire_se_cree_et_s_ouvre) {
    std::wstring profond = source;
    for (int i = 0; i < 5; ++i) profond += L"\\" + std::to_wstring(i) + std::wstring(59, L'p');
    Creer_dossier(profond);
    Lancer_sur(profond);
    Cliquer(L"Créer");
    EXIGER(Fenetre(L"Saisie") && GetForegroundWindow() == Fenetre(L"Saisie"));
    Taper(L"nouveau");
    Frapper(VK_RETURN);
    Verifier_volets(profond, destination);
    Cliquer_entree(L"Répertoire_srce", L"nouveau");
    EXPECT_EQ(Utf8(Lire(L"Chemin_srce")), Utf8(profond + L"\\nouveau"));
}

TEST_F(Creation, le_repertoire_disparu_entre_temps_est_introuvable) {
    Creer_dossier(Source(L"haut"));
    Lancer_sur(Source(L"haut"));
    ASSERT_TRUE(Sur_hote(source, L"rmdir haut"));
    Cliquer(L"Créer");
    Nommer(Source(L"haut"), L"bas");
    Attendre_avertissement(introuvable);
    Attendre_fin_commande();
    EXPECT_FALSE(Existe(Source(L"haut")));
}

class Creation_D : public Creation {
protected:
    Creation_D() { Unite::Vider(L'D'); }
    ~Creation_D() override { Unite::Vider(L'D'); }
};

TEST_F(Creation_D, sur_un_disque_plein_rien_n_est_cree) {
    // A directory still finds a block where files find none, but no entry.
    ASSERT_TRUE(
        Sur_hote(L"D:\\", L"mkdir .plein && cd .plein && { seq 20000 | xargs touch 2>/dev/null; true; }"));
    Lancer_sur(L"D:\\");
    Ouvrir(L"dest", L"D:\\");
    Cliquer(L"Créer");
    Nommer(L"D:\\", L"nouveau");
    Attendre_avertissement(L"Disque D: plein :\ropération abandonnée.");
    Attendre_fin_commande();
    EXPECT_FALSE(Existe(L"D:\\nouveau"));
}

class Creation_E : public Creation {};

TEST_F(Creation_E, sur_un_support_en_lecture_seule_rien_n_est_cree) {
    const auto support = Lire_arbre(L"E:");
    Lancer_sur(L"E:\\");
    Cliquer(L"Créer");
    Nommer(L"E:\\", L"nouveau");
    Attendre_avertissement(protege);
    Attendre_fin_commande();
    EXPECT_EQ(Differences(support, Lire_arbre(L"E:")), "");
}
