#include "fenetres/commandes.h"
#include "fenetres/obstacles.h"
#include "fenetres/recherche.h"
#include "pilote/imprimante.h"

#include <vector>

using namespace Pilote;
using Titres = std::vector<std::wstring>;

namespace {

Titres Titres_de(const std::vector<Travail> & travaux) {
    Titres titres;
    for (const Travail & travail : travaux) titres.push_back(travail.titre);
    return titres;
}

}  // namespace

class Impressions : public Commandes {
protected:
    void Ecrire(const std::wstring & nom, const std::string & octets) const {
        Creer_fichier(Source(nom), octets);
    }
    // Starts on "source" with these files selected.
    void Lancer_choisis() {
        Lancer_dans_les_dossiers();
        if (HasFatalFailure()) return;
        Choisir_tout();
    }
    void Attendre_imprimer(const std::wstring & fichier, unsigned style, int reponse) {
        Attendre_boite(gestionnaire,
                       L"Vous allez IMPRIMER le fichier '" + fichier + L"' du répertoire\r" + source +
                           L"\rConfirmez-vous cette commande ?",
                       style, reponse);
    }
    // Lines of sixty characters, so many that their printing lasts.
    void Ecrire_longue(const std::wstring & nom) const {
        std::string octets = "premier\r\n";
        for (int i = 0; i < 60000; ++i)
            octets += "ligne " + std::to_string(i) + std::string(48, '.') + "\r\n";
        Ecrire(nom, octets + "dernier\r\n");
    }

    Imprimante_essai imprimante;
};

TEST_F(Impressions, chaque_fichier_est_un_travail_a_son_nom_et_un_fichier_vide_n_en_est_pas_un) {
    Ecrire(L"a b.txt", "\xE9t\xE9\r\n\r\n\x80 fin sans retour");
    Ecrire(L"c.dat", std::string("\xFF\xFE\x53\x01\n\0", 6));
    Ecrire(L"vide.txt", "");
    Ecrire(L"été.txt", "\xEF\xBB\xBF\xC3\xA9t\xC3\xA9\nsuite\r");
    const auto avant = Lire_arbre(source);
    Lancer_choisis();
    Cliquer(L"Imprimer");
    Verifier_repos(L"Imprimer");
    const auto travaux = imprimante.Travaux();
    ASSERT_EQ(Titres_de(travaux), (Titres{L"Korvane - A B.TXT", L"Korvane - C.DAT", L"Korvane - ÉTÉ.TXT"}));
    EXPECT_EQ(travaux[0].pages, std::vector<std::string>{"été\n\n€ fin sans retour\n"});
    EXPECT_EQ(travaux[1].pages, std::vector<std::string>{"œ\n"});
    EXPECT_EQ(travaux[2].pages, std::vector<std::string>{"été\nsuite\n"});
    Verifier_source_intacte(avant);
}

TEST_F(Impressions, une_bibliotheque_deposee_aupres_du_programme_ou_des_fichiers_n_est_pas_chargee) {
    Ecrire(L"a.txt", "un\r\n");
    Lancer_choisis();
    for (const std::wstring & repertoire : {source, dossier / L"programme"})
        Creer_fichier(repertoire + L"\\WINSPOOL.DRV", "autre chose");
    Cliquer(L"Imprimer");
    Verifier_repos(L"Imprimer");
    EXPECT_EQ(Titres_de(imprimante.Travaux()), Titres{L"Korvane - A.TXT"});
}

TEST_F(Impressions, une_ligne_est_coupee_a_160_caracteres_et_le_saut_de_page_tourne_la_page) {
    Ecrire(L"a.txt", "x" + std::string(158, 'o') + "yz\r\n\ta\fb" + std::string("\0c", 2) + "\r\n" +
                         std::string(1000000, 'm'));
    Lancer_choisis();
    Cliquer(L"Imprimer");
    Attendre_fin_commande();
    const auto travaux = imprimante.Travaux();
    ASSERT_EQ(travaux.size(), 1u);
    ASSERT_EQ(travaux[0].pages.size(), 2u);
    EXPECT_TRUE(travaux[0].pages[0].starts_with("x" + std::string(158, 'o') + "y\n")) << travaux[0].pages[0];
    EXPECT_TRUE(travaux[0].pages[0].ends_with("   a\n")) << travaux[0].pages[0];
    EXPECT_TRUE(travaux[0].pages[1].starts_with("b c\n")) << travaux[0].pages[1];
    EXPECT_TRUE(travaux[0].pages[1].ends_with("\n" + std::string(160, 'm') + "\n")) << travaux[0].pages[1];
}

TEST_F(Impressions, non_passe_au_fichier_suivant_et_annuler_finit_la_commande) {
    Regler(L"Options", L"Confirme", L"Oui");
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt", L"d.txt"}) Ecrire(nom, "texte");
    Lancer_choisis();
    Cliquer(L"Imprimer");
    Attendre_imprimer(L"a.txt", oui_non_annuler, IDNO);
    Attendre_imprimer(L"b.txt", oui_non_annuler, IDYES);
    Attendre_imprimer(L"c.txt", oui_non_annuler, IDCANCEL);
    Verifier_repos(L"Imprimer");
    EXPECT_EQ(Titres_de(imprimante.Travaux()), Titres{L"Korvane - B.TXT"});
    Choisir_un(L"d.txt");
    Cliquer(L"Imprimer");
    Attendre_imprimer(L"d.txt", oui_non, IDNO);
    Verifier_repos(L"Imprimer");
    EXPECT_EQ(imprimante.Nombre(), 1u);
}

// The question about the second file holds the window as the first file left it.
TEST_F(Impressions, la_jauge_compte_chaque_ligne_et_deux_caracteres_de_fin) {
    struct Cas {
        const wchar_t * nom;
        std::string     octets;
        const wchar_t * jauge;
    };
    const Cas cas[] = {{L"a.txt", "abc\r\n\r\n", L"100%"},
                       {L"b.txt", "a\nb\nc", L"100%"},
                       {L"c.txt", std::string("\xFF\xFE\x61\0\r\0\n\0", 8), L"75%"}};
    Regler(L"Options", L"Confirme", L"Oui");
    for (const Cas & c : cas) Ecrire(c.nom, c.octets);
    Ecrire(L"z.txt", "texte");
    Lancer_dans_les_dossiers();
    for (const Cas & c : cas) {
        Choisir({c.nom, L"z.txt"});
        Cliquer(L"Imprimer");
        Attendre_imprimer(c.nom, oui_non_annuler, IDYES);
        ASSERT_TRUE(Attendre([this] { return !Boite_absente(); }));
        EXPECT_EQ(Utf8(Lire(L"En_cours")), Utf8(L" IMPRIME le fichier " + Capitales(c.nom) + L" "));
        for (const wchar_t * montre : {L"Jauge", L"Ligne_jauge(0)", L"Arret", L"En_cours"}) {
            EXPECT_TRUE(Se_voit(montre)) << Utf8(montre);
        }
        EXPECT_EQ(Utf8(Lire(L"Jauge")), Utf8(c.jauge)) << Utf8(c.nom);
        Attendre_imprimer(L"z.txt", oui_non_annuler, IDNO);
        Attendre_fin_commande();
    }
    Verifier_repos(L"Imprimer");
}

TEST_F(Impressions, sans_fichier_choisi_un_avis_le_dit_et_rien_ne_s_imprime) {
    Ecrire(L"a.txt", "texte");
    Lancer_dans_les_dossiers();
    Cliquer(L"Imprimer");
    Attendre_boite(L"IMPRIMER", L"Pas de fichier(s) 'SOURCE' sélectionné(s).", avertissement, IDOK);
    Attendre_fin_commande();
    EXPECT_EQ(imprimante.Nombre(), 0u);
}

TEST_F(Impressions, l_arret_finit_le_document_avec_ce_qui_est_imprime_et_la_commande) {
    Ecrire_longue(L"longue.txt");
    Ecrire(L"z.txt", "texte");
    Lancer_choisis();
    Commencer(L"Imprimer");
    Attendre_commencee();
    EXPECT_EQ(Utf8(Lire(L"En_cours")), Utf8(L" IMPRIME le fichier LONGUE.TXT "));
    EXPECT_TRUE(Sablier());
    ATTENDRE(Se_voit(L"Jauge") && Lire(L"Jauge") != L"" && Lire(L"Jauge") != L"0%");
    for (const wchar_t * bord : {L"Ligne_jauge(0)", L"Ligne_jauge(3)"}) EXPECT_TRUE(Se_voit(bord));
    Commencer(L"Arret");
    Verifier_repos(L"Imprimer");
    const auto travaux = imprimante.Travaux();
    ASSERT_EQ(Titres_de(travaux), Titres{L"Korvane - LONGUE.TXT"});
    EXPECT_TRUE(travaux[0].pages.front().starts_with("premier\nligne 0..."));
    EXPECT_EQ(travaux[0].pages.back().find("dernier"), std::string::npos);
}

TEST_F(Impressions, un_arret_pendant_qu_un_document_finit_ne_commence_pas_le_suivant) {
    Regler(L"Options", L"Confirme", L"Oui");
    for (const wchar_t * nom : {L"a.txt", L"b.txt"}) Ecrire(nom, "texte");
    Lancer_choisis();
    imprimante.Retenir(true);
    Cliquer(L"Imprimer");
    Attendre_imprimer(L"a.txt", oui_non_annuler, IDYES);
    ATTENDRE(imprimante.Retient());
    for (const wchar_t * montre : {L"Arret", L"En_cours"}) {
        EXPECT_TRUE(Se_voit(montre)) << Utf8(montre);
        EXPECT_FALSE(GetUpdateRect(Controle(montre), nullptr, FALSE)) << Utf8(montre);
    }
    Commencer(L"Arret");
    imprimante.Retenir(false);
    Verifier_repos(L"Imprimer");
    EXPECT_EQ(Titres_de(imprimante.Travaux()), Titres{L"Korvane - A.TXT"});
}

TEST_F(Impressions, echappement_arrete_aussi_une_ligne_sans_fin) {
    Creer_longue(Source(L"longue.dat"));
    Lancer_choisis();
    Commencer(L"Imprimer");
    Attendre_commencee();
    Frapper(VK_ESCAPE);
    Verifier_repos(L"Imprimer");
    EXPECT_EQ(imprimante.Nombre(), 0u);
}

TEST_F(Impressions, windows_qui_s_arrete_finit_le_programme_sans_document_a_moitie) {
    Ecrire_longue(L"longue.txt");
    Lancer_choisis();
    Commencer(L"Imprimer");
    ATTENDRE(Lire(L"Jauge").size() == 2 && Lire(L"Jauge") != L"0%");
    DWORD_PTR accord = 0;
    SendMessageTimeoutW(Principale(), WM_ENDSESSION, TRUE, 0, SMTO_NORMAL, 10000, &accord);
    EXPECT_TRUE(programme->Attendre_fin(5000));
    EXPECT_EQ(imprimante.Nombre(), 0u);
}

TEST_F(Impressions, une_imprimante_en_panne_finit_la_commande_par_un_rapport) {
    Ecrire(L"a.txt", "texte");
    Ecrire(L"b.txt", "texte");
    Lancer_choisis();
    imprimante.Tomber_en_panne(true);
    Cliquer(L"Imprimer");
    Attendre_rapport(57, ERROR_WRITE_FAULT, L"IMPRIMER", source, destination);
    Verifier_repos(L"Imprimer");
    EXPECT_EQ(imprimante.Nombre(), 0u);
    imprimante.Tomber_en_panne(false);
    Choisir_un(L"b.txt");
    Cliquer(L"Imprimer");
    Verifier_repos(L"Imprimer");
    EXPECT_EQ(Titres_de(imprimante.Travaux()), Titres{L"Korvane - B.TXT"});
}

TEST_F(Impressions, un_fichier_illisible_ou_disparu_finit_la_commande_par_son_message) {
    Ecrire(L"a.txt", "texte");
    Ecrire(L"b.txt", "texte");
    Ecrire(L"c.txt", "texte");
    Lancer_choisis();
    {
        const Verrou verrou(Source(L"b.txt"));
        Cliquer(L"Imprimer");
        Attendre_avertissement(L"Disquette protégée en écriture\rou fichier verrouillé.");
        Attendre_fin_commande();
    }
    EXPECT_EQ(Titres_de(imprimante.Travaux()), Titres{L"Korvane - A.TXT"});
    Choisir_un(L"c.txt");
    ASSERT_TRUE(Effacer(Source(L"c.txt")));
    Cliquer(L"Imprimer");
    Attendre_avertissement(L"Un nom de fichier comporte un caractère invalide ou bien le fichier C.TXT est "
                           L"introuvable ou les attributs 'Système/Caché' sont présents.");
    Verifier_repos(L"Imprimer");
    EXPECT_EQ(imprimante.Nombre(), 1u);
}

class Impression_absente : public Commandes {};

TEST_F(Impression_absente, sans_imprimante_un_rapport_le_dit_et_la_fenetre_revient_au_repos) {
    Creer_source(L"a.txt", 100);
    Creer_source(L"b.txt", 100);
    Creer_source(L"vide.txt", 0);
    Lancer_dans_les_dossiers();
    Choisir_un(L"vide.txt");
    Cliquer(L"Imprimer");
    Verifier_repos(L"Imprimer");
    Choisir_tout();
    Cliquer(L"Imprimer");
    Attendre_rapport(57, ERROR_INVALID_PRINTER_NAME, L"IMPRIMER", source, destination);
    Verifier_repos(L"Imprimer");
}

class Impression_resultats_D : public Recherche {
protected:
    Imprimante_essai imprimante;
};

TEST_F(Impression_resultats_D,
       les_fichiers_trouves_s_impriment_de_leur_repertoire_et_celui_qui_manque_attend) {
    Creer_fichier(L"D:\\un\\A été.txt", "un\r\n");
    Creer_fichier(L"D:\\deux\\b.txt", "deux\r\n");
    Lancer_sur_d();
    const auto resultats = Chercher(L".txt", {L"d:\\deux\\b.txt", L"d:\\un\\a été.txt"});
    Frapper_avec(VK_CONTROL, 'A');
    ATTENDRE(resultats.Choisies(L"Liste_sél").size() == 2);
    resultats.Cliquer(L"OK");
    resultats.Attendre_fermee();
    Attendre_fin_commande();
    ATTENDRE(Se_voit(L"Fichier_sél"));
    {
        const Verrou verrou(L"D:\\un\\A été.txt");
        Cliquer(L"Imprimer");
        Attendre_boite(gestionnaire, L"Disquette protégée en écriture\rou fichier verrouillé.", avertissement,
                       IDOK);
        Attendre_fin_commande();
    }
    EXPECT_TRUE(Lire(L"Ligne_message").starts_with(L"   1 fichier sélectionné"))
        << Utf8(Lire(L"Ligne_message"));
    Cliquer(L"Imprimer");
    Verifier_sans_resultats();
    const auto travaux = imprimante.Travaux();
    ASSERT_EQ(Titres_de(travaux), (Titres{L"Korvane - B.TXT", L"Korvane - A ÉTÉ.TXT"}));
    EXPECT_EQ(travaux[0].pages, std::vector<std::string>{"deux\n"});
    EXPECT_EQ(travaux[1].pages, std::vector<std::string>{"un\n"});
}
