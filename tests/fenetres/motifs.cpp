#include "pilote/korvane.h"

using Textes = std::vector<std::wstring>;

// The pattern field narrows both file lists.
class Motifs : public Korvane {
protected:
    void Creer_fichiers(const std::wstring & repertoire) {
        for (const wchar_t * nom : {L"a.txt", L"ab.doc", L"ÉTÉ.TXT", L"sans", L"x.tar.gz", L"z.doc"}) {
            Pilote::Creer_fichier_graine(repertoire + L"\\" + nom, 10, 1);
        }
    }
    void Lancer_avec_fichiers() {
        Creer_fichiers(source);
        Creer_fichiers(destination);
        Lancer_dans_les_dossiers();
    }
    // The field's text is selected whole: the next key takes its place.
    void Prendre_le_motif() {
        Pilote::Cliquer(Controle(L"Sélection_fichiers"));
        ATTENDRE(A_le_focus(L"Sélection_fichiers"));
        Pilote::Frapper(VK_HOME);
        Pilote::Frapper_avec(VK_SHIFT, VK_END);
        Pilote::Reposer(Principale());
    }
    void Les_listes_montrent(const Textes & fichiers) {
        for (const wchar_t * liste : {L"Fichier_srce", L"Fichier_dest"}) {
            EXPECT_TRUE(Pilote::Attendre([&] { return Entrees(liste) == fichiers; }))
                << Pilote::Utf8(liste) << " : " << testing::PrintToString(Entrees(liste));
        }
    }
    void Choisir_predefinie(int rang) {
        const HWND champ = Controle(L"Sélection_fichiers");
        RECT       place = Pilote::Place_ecran(champ);
        Pilote::Cliquer(POINT{place.right - 8, (place.top + place.bottom) / 2});
        EXIGER(Pilote::Deroulee(champ));
        Pilote::Cliquer(Pilote::Point_entree(Pilote::Liste_deroulee(champ), rang));
        ATTENDRE(!Pilote::Deroulee(champ));
        Pilote::Reposer(Principale());
    }
    const Textes tous{L"a.txt", L"ab.doc", L"ÉTÉ.TXT", L"sans", L"x.tar.gz", L"z.doc"};
};

TEST_F(Motifs, les_deux_listes_suivent_chaque_motif_tape) {
    struct Cas {
        const wchar_t * motif;
        Textes          fichiers;
    };
    const Cas cas[] = {
        {L"*.txt", {L"a.txt", L"ÉTÉ.TXT"}},
        {L"*.", {L"sans"}},
        {L"a*", {L"a.txt", L"ab.doc"}},
        {L"?.doc", {L"z.doc"}},
        {L"*.gz; z.*", {L"x.tar.gz", L"z.doc"}},
        {L"été.*", {L"ÉTÉ.TXT"}},
        {L"rien", {}},
        {L"*.*", tous},
    };
    Lancer_avec_fichiers();
    EXPECT_EQ(Lire(L"Sélection_fichiers"), L"*.*");
    for (const Cas & un : cas) {
        SCOPED_TRACE(Pilote::Utf8(un.motif));
        Remplacer_texte(L"Sélection_fichiers", un.motif);
        Les_listes_montrent(un.fichiers);
        EXPECT_EQ(Choisies(), Textes{});
    }
    ATTENDRE(Nom_du_focus() == L"Sélection_fichiers");
}

TEST_F(Motifs, le_motif_reste_quand_on_change_de_repertoire) {
    Creer_source(L"sous\\b.txt", 10);
    Creer_source(L"sous\\c.doc", 10);
    Lancer_avec_fichiers();
    Remplacer_texte(L"Sélection_fichiers", L"*.doc");
    Cliquer_entree(L"Répertoire_srce", L"sous");
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{L"c.doc"});
    EXPECT_EQ(Lire(L"Sélection_fichiers"), L"*.doc");
    EXPECT_EQ(Choisies(), Textes{L"c.doc"});
}

TEST_F(Motifs, un_champ_vide_redevient_tous_les_fichiers) {
    Lancer_avec_fichiers();
    Remplacer_texte(L"Sélection_fichiers", L"a*");
    Les_listes_montrent({L"a.txt", L"ab.doc"});
    Prendre_le_motif();
    Pilote::Frapper(VK_DELETE);
    ATTENDRE(Lire(L"Sélection_fichiers") == L"*.*");
    Les_listes_montrent(tous);
}

TEST_F(Motifs, un_caractere_interdit_est_signale_et_les_listes_gardent_l_ancien_motif) {
    Lancer_avec_fichiers();
    Remplacer_texte(L"Sélection_fichiers", L"a*");
    for (const wchar_t interdit : {L'<', L'|', L'\\', L'"'}) {
        SCOPED_TRACE(static_cast<int>(interdit));
        Pilote::Taper(std::wstring(1, interdit));
        Attendre_boite(L"Gestionnaire de fichiers", L"Caractère de sélection invalide.",
                       MB_OK | MB_ICONEXCLAMATION, IDOK);
        Les_listes_montrent({L"a.txt", L"ab.doc"});
        EXPECT_EQ(Lire(L"Sélection_fichiers"), L"a*");
        ATTENDRE(Nom_du_focus() == L"Sélection_fichiers");
    }
    // The field goes on where it was.
    Pilote::Taper(L".doc");
    ATTENDRE(Lire(L"Sélection_fichiers") == L"a*.doc");
    Les_listes_montrent({L"ab.doc"});
}

TEST_F(Motifs, les_selections_predefinies_portent_leurs_noms_et_donnent_leurs_motifs) {
    Regler(L"Sélections", L"Textes", L"*.txt");
    Regler(L"Sélections", L"Documents et archives", L"*.doc;*.gz");
    Regler(L"Sélections", L"Été", L"é*");
    Lancer_avec_fichiers();
    EXPECT_EQ(Entrees(L"Sélection_fichiers"), (Textes{L"Textes", L"Documents et archives", L"Été"}));
    Choisir_predefinie(1);
    EXPECT_EQ(Lire(L"Sélection_fichiers"), L"*.doc;*.gz");
    Les_listes_montrent({L"ab.doc", L"x.tar.gz", L"z.doc"});
    Choisir_predefinie(0);
    EXPECT_EQ(Lire(L"Sélection_fichiers"), L"*.txt");
    Les_listes_montrent({L"a.txt", L"ÉTÉ.TXT"});
    Choisir_predefinie(2);
    EXPECT_EQ(Lire(L"Sélection_fichiers"), L"é*");
    Les_listes_montrent({L"ÉTÉ.TXT"});
}

TEST_F(Motifs, une_selection_predefinie_qui_porte_le_nom_de_son_motif_s_applique) {
    Regler(L"Sélections", L"*.txt", L"*.txt");
    Lancer_avec_fichiers();
    Choisir_predefinie(0);
    EXPECT_EQ(Lire(L"Sélection_fichiers"), L"*.txt");
    Les_listes_montrent({L"a.txt", L"ÉTÉ.TXT"});
}

TEST_F(Motifs, la_molette_sur_une_liste_fermee_ne_choisit_rien) {
    Regler(L"Sélections", L"Textes", L"*.txt");
    Lancer_avec_fichiers();
    const std::wstring unite = Lire(L"Unité_srce");
    for (const wchar_t * liste : {L"Unité_srce", L"Sélection_fichiers"}) {
        Cliquer(liste);
        ATTENDRE(Pilote::Deroulee(Controle(liste)) || A_le_focus(liste));
        Pilote::Frapper(VK_ESCAPE);
        ATTENDRE(!Pilote::Deroulee(Controle(liste)));
        Pilote::Tourner_molette(Controle(liste), -1);
        Pilote::Tourner_molette(Controle(liste), 1);
        Pilote::Reposer(Principale());
    }
    EXPECT_EQ(Lire(L"Unité_srce"), unite);
    EXPECT_EQ(Lire(L"Sélection_fichiers"), L"*.*");
}

TEST_F(Motifs, une_touche_ou_une_selection_predefinie_vide_la_ligne_de_message) {
    Regler(L"Sélections", L"Tout", L"*.*");
    Lancer_avec_fichiers();
    Choisir({L"a.txt", L"sans"});
    EXPECT_EQ(Lire(L"Ligne_message"), L"   2 fichiers sélectionnés, total = 20 octets.");
    Prendre_le_motif();
    EXPECT_EQ(Lire(L"Ligne_message"), L"   2 fichiers sélectionnés, total = 20 octets.");
    Pilote::Taper(L"*");
    ATTENDRE(Lire(L"Ligne_message").empty());
    EXPECT_EQ(Choisies(), Textes{});
    Choisir({L"a.txt"});
    Choisir_predefinie(0);
    ATTENDRE(Lire(L"Ligne_message").empty());
    EXPECT_EQ(Choisies(), Textes{});
}
