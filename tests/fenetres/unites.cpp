#include "pilote/korvane.h"

#include <cwchar>

using Textes = std::vector<std::wstring>;

// What the drive lists hold, and what becomes of a drive that cannot be opened.
class Unites_ADEF : public Korvane {
protected:
    // The whole of a pane as it was before the drive was asked for.
    struct Volet {
        std::wstring unite, chemin;
        Textes       repertoires, fichiers;

        bool operator==(const Volet &) const = default;
    };
    Volet Lire_volet(const std::wstring & cote) const {
        return {Lire(L"Unité_" + cote), Lire(L"Chemin_" + cote), Entrees(L"Répertoire_" + cote),
                Entrees(L"Fichier_" + cote)};
    }
    void Support_absent(const std::wstring & unite) {
        Attendre_boite(L"Gestionnaire de fichiers", L"Support absent ou erreur d'accès sur " + unite,
                       MB_OK | MB_ICONEXCLAMATION, IDOK);
    }
    void Derouler(const std::wstring & liste) {
        Cliquer(liste);
        EXIGER(Pilote::Deroulee(Controle(liste)));
    }
};

TEST_F(Unites_ADEF, les_deux_listes_montrent_les_unites_dans_l_ordre_et_l_etiquette_des_seuls_disques_fixes) {
    Lancer();
    const Textes attendues{L"a:", L"c:", L"d: [DONNEES]", L"e:", L"f:", L"z:"};
    EXPECT_EQ(Entrees(L"Unité_srce"), attendues);
    EXPECT_EQ(Entrees(L"Unité_dest"), attendues);
    EXPECT_EQ(Lire(L"Unité_srce"), L"c:");
}

TEST_F(Unites_ADEF, une_unite_sans_support_est_signalee_et_chaque_volet_reste_comme_il_etait) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"sous\\b.txt", 10);
    Creer_destination(L"c.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    const Volet avant_srce = Lire_volet(L"srce");
    const Volet avant_dest = Lire_volet(L"dest");
    for (const wchar_t * liste : {L"Unité_srce", L"Unité_dest"}) {
        Choisir_unite(liste, L'f');
        Support_absent(L"F:");
        ATTENDRE(Nom_du_focus() == liste);
        EXPECT_TRUE(Lire_volet(L"srce") == avant_srce)
            << Pilote::Utf8(Lire(L"Unité_srce") + L" " + Lire(L"Chemin_srce"));
        EXPECT_TRUE(Lire_volet(L"dest") == avant_dest)
            << Pilote::Utf8(Lire(L"Unité_dest") + L" " + Lire(L"Chemin_dest"));
    }
    EXPECT_EQ(Choisies(), Textes{L"a.txt"});
    Cliquer_entree(L"Répertoire_srce", L"sous");
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{L"b.txt"});
}

TEST_F(Unites_ADEF, une_disquette_retiree_reste_dans_la_liste_et_s_ouvre_une_fois_remise) {
    Pilote::Unite::Inserer_disquette(1);
    Pilote::Unite::Vider(L'A');
    Pilote::Creer_fichier(L"A:\\un.txt", "1");
    Pilote::Unite::Retirer_disquette();
    Lancer();
    Choisir_unite(L"Unité_srce", L'a');
    Support_absent(L"A:");
    EXPECT_EQ(Lire(L"Unité_srce"), L"c:");
    EXPECT_EQ(Entrees(L"Unité_srce").front(), L"a:");
    Pilote::Unite::Inserer_disquette(1);
    Choisir_unite(L"Unité_srce", L'a');
    ATTENDRE(Entrees(L"Fichier_srce") == Textes{L"un.txt"});
    EXPECT_EQ(Lire(L"Unité_srce"), L"a:");
}

TEST_F(Unites_ADEF, la_liste_est_mise_a_jour_en_se_deroulant_et_une_unite_disparue_entre_temps_est_signalee) {
    Lancer();
    const Textes avant = Entrees(L"Unité_dest");
    ASSERT_TRUE(DefineDosDeviceW(0, L"Q:", destination.c_str())) << GetLastError();
    Derouler(L"Unité_dest");
    ATTENDRE(Entrees(L"Unité_dest").size() == avant.size() + 1);
    const HWND combinee = Controle(L"Unité_dest");
    const int  rang     = Pilote::Nombre_entrees(combinee) - 2;  // before Z:
    EXPECT_EQ(Pilote::Entree(combinee, rang).substr(0, 2), L"q:");
    ASSERT_TRUE(DefineDosDeviceW(DDD_REMOVE_DEFINITION, L"Q:", nullptr));
    Pilote::Cliquer(Pilote::Point_entree(Pilote::Liste_deroulee(combinee), rang));
    Support_absent(L"Q:");
    EXPECT_EQ(Lire(L"Unité_dest"), L"c:");
    EXPECT_EQ(_wcsicmp(Lire(L"Chemin_dest").c_str(), dossier.Chemin().c_str()), 0);
    Derouler(L"Unité_dest");
    ATTENDRE(Entrees(L"Unité_dest") == avant);
    Pilote::Frapper(VK_ESCAPE);
}

TEST_F(Unites_ADEF, un_support_en_lecture_seule_se_parcourt) {
    Lancer();
    Choisir_unite(L"Unité_srce", L'e');
    ATTENDRE(Entrees(L"Fichier_srce") == (Textes{L"gros.dat", L"lisez.txt"}));
    EXPECT_EQ(Lire(L"Unité_srce"), L"e:");
    EXPECT_EQ(Entrees(L"Répertoire_srce").back(), L"sous");
    Choisir({L"lisez.txt"});
    EXPECT_EQ(Lire(L"Ligne_message"), L"   1 fichier sélectionné, total = 14 octets.");
}

TEST_F(Unites_ADEF, la_touche_entree_signale_une_disquette_retiree_et_relit_celle_qui_la_remplace) {
    Pilote::Unite::Inserer_disquette(1);
    Pilote::Unite::Vider(L'A');
    Pilote::Creer_fichier(L"A:\\un.txt", "1");
    Lancer();
    for (const wchar_t * cote : {L"srce", L"dest"}) {
        const std::wstring unite    = std::wstring(L"Unité_") + cote,
                           fichiers = std::wstring(L"Fichier_") + cote;
        Pilote::Unite::Inserer_disquette(1);
        Choisir_unite(unite, L'a');
        ATTENDRE(Entrees(fichiers) == Textes{L"un.txt"});
        Pilote::Unite::Retirer_disquette();
        Pilote::Frapper(VK_RETURN);
        Support_absent(L"A:");
        EXPECT_EQ(Entrees(fichiers), Textes{L"un.txt"});
        Pilote::Unite::Inserer_disquette(1);
        Pilote::Creer_fichier(L"A:\\deux.txt", "2");
        Pilote::Frapper(VK_RETURN);
        ATTENDRE((Entrees(fichiers) == Textes{L"deux.txt", L"un.txt"}));
        Pilote::Effacer(L"A:\\deux.txt");
    }
}
