#include "app/globals.h"
#include "app/settings.h"
#include "services/banc.h"

#include <ostream>

// What the settings file gives, key by key, from a file really written and read through the system.
class Reglages : public Banc {
protected:
    Reglages() {
        variables             = Variables{};
        variables.Fichier_ini = Chemin(L"KORVANE.INI");
    }
    ~Reglages() override { variables = Variables{}; }

    // A file with that line alone in a section, in the system's code page.
    void Ecrire(const std::string & section, const std::string & ligne) const {
        Poser(variables.Fichier_ini, "[" + section + "]\r\n" + ligne + "\r\n");
    }
};

namespace {
struct Oui_non {
    const char * valeur;
    bool         oui;
};
constexpr Oui_non valeurs[] = {{"Oui", true},       {"oui", true},  {"OUI", true},     {"Ouais", false},
                               {"oUi merci", true}, {"O", false},   {"Non", false},    {"Ou", false},
                               {"1", false},        {"Oui.", true}, {"non oui", false}};
}  // namespace

TEST_F(Reglages, oui_se_lit_sur_trois_lettres_de_toute_casse) {
    for (const Oui_non & cas : valeurs) {
        Ecrire("Options", std::string("Confirme=") + cas.valeur);
        Lire_options_commandes();
        EXPECT_EQ(variables.Confirme_commande, cas.oui) << cas.valeur;
        Ecrire("Options", std::string("Remplace=") + cas.valeur);
        Lire_options_commandes();
        EXPECT_EQ(variables.Confirme_remplacement, cas.oui) << cas.valeur;
        Ecrire("Options", std::string("Iconis\xE9=") + cas.valeur);
        Lire_iconise();
        EXPECT_EQ(Demarrage_iconise(), cas.oui) << cas.valeur;
    }
}

TEST_F(Reglages, un_fichier_absent_et_une_valeur_vide_donnent_les_valeurs_par_defaut) {
    const auto verifier = [](const char * etat) {
        SCOPED_TRACE(etat);
        Lire_iconise();
        Lire_options_commandes();
        Lire_limites_corbeille();
        Lire_couleur();
        Lire_repertoire_initial();
        EXPECT_EQ(variables.Editeur, L"NOTEPAD.EXE");
        EXPECT_EQ(variables.Visualiseur, L"PELMIRA.EXE");
        EXPECT_FALSE(variables.Confirme_commande);
        EXPECT_TRUE(variables.Confirme_remplacement);
        EXPECT_FALSE(Demarrage_iconise());
        EXPECT_EQ(variables.Option_aide, L"Non");
        EXPECT_EQ(variables.Option_couleur, L"0");
        EXPECT_EQ(variables.Repertoire_initial, L"RACINE");
        EXPECT_FALSE(variables.Corbeille_active);
        EXPECT_TRUE(Cles_section(Section::boutons).empty());
        EXPECT_TRUE(Cles_section(Section::selections).empty());
    };
    verifier("sans fichier");
    EXPECT_FALSE(Present(variables.Fichier_ini));
    Poser(variables.Fichier_ini, "[Autre]\r\nEditeur=VI.EXE\r\n");
    verifier("sans section");
    Poser(variables.Fichier_ini, "");
    verifier("fichier vide");
}

TEST_F(Reglages, les_programmes_et_le_repertoire_sont_mis_en_capitales_accents_compris) {
    Poser(variables.Fichier_ini, "[Options]\r\nEditeur=\xE9"
                                 "diteur.exe\r\nVisualiseur=  voir.exe  \r\nR\xE9pertoire=d:\\\xE9t\xE9\r\n");
    Lire_options_commandes();
    Lire_repertoire_initial();
    EXPECT_EQ(variables.Editeur, L"ÉDITEUR.EXE");
    EXPECT_EQ(variables.Visualiseur, L"VOIR.EXE");
    EXPECT_EQ(variables.Repertoire_initial, L"D:\\ÉTÉ");
}

TEST_F(Reglages, une_valeur_plus_longue_que_sa_place_est_coupee) {
    Poser(variables.Fichier_ini,
          "[Options]\r\nCouleur=12\r\nAide en ligne=Ouiche\r\n[Corbeille]\r\nTaille=12345\r\n");
    Lire_couleur();
    Lire_options_commandes();
    Lire_limites_corbeille();
    EXPECT_EQ(variables.Option_couleur, L"1");
    EXPECT_EQ(variables.Option_aide, L"Oui");
    EXPECT_EQ(variables.Texte_taille_corbeille, L"1234");
    EXPECT_EQ(variables.Taille_corbeille, 1234);
    EXPECT_TRUE(variables.Corbeille_active);
}

TEST_F(Reglages, la_taille_de_la_corbeille_l_emporte_sur_le_temps) {
    Poser(variables.Fichier_ini, "[Corbeille]\r\nTemps=30\r\nTaille=500\r\n");
    Lire_limites_corbeille();
    EXPECT_TRUE(variables.Corbeille_active);
    EXPECT_EQ(variables.Taille_corbeille, 500);
    EXPECT_EQ(variables.Temps_corbeille, 0);
    EXPECT_EQ(variables.Texte_temps_corbeille, L"");
}

TEST_F(Reglages, le_temps_seul_limite_la_corbeille_a_trois_chiffres) {
    for (const auto & [valeur, jours] : {std::pair{"1", 1}, {"30", 30}, {"007", 7}, {"9999", 999}}) {
        Ecrire("Corbeille", std::string("Temps=") + valeur);
        Lire_limites_corbeille();
        EXPECT_TRUE(variables.Corbeille_active) << valeur;
        EXPECT_FALSE(variables.Limite_corbeille_incorrecte) << valeur;
        EXPECT_EQ(variables.Temps_corbeille, jours) << valeur;
    }
}

TEST_F(Reglages, une_limite_qui_n_est_pas_un_nombre_laisse_la_corbeille_en_service_sans_limite) {
    for (const char * cle : {"Taille", "Temps"}) {
        for (const char * valeur : {"0", "000", "x", "7 j", "-5", "+5", "1.5", "5k", "1e3"}) {
            Ecrire("Corbeille", std::string(cle) + "=" + valeur);
            Lire_limites_corbeille();
            EXPECT_TRUE(variables.Corbeille_active) << cle << valeur;
            EXPECT_TRUE(variables.Limite_corbeille_incorrecte) << cle << valeur;
            EXPECT_EQ(variables.Taille_corbeille, 0) << cle << valeur;
            EXPECT_EQ(variables.Temps_corbeille, 0) << cle << valeur;
        }
    }
    Ecrire("Corbeille", "Taille=9999");
    Lire_limites_corbeille();
    EXPECT_FALSE(variables.Limite_corbeille_incorrecte);
    EXPECT_EQ(variables.Taille_corbeille, 9999);
}

TEST_F(Reglages, les_cles_gardent_l_ordre_du_fichier) {
    Poser(variables.Fichier_ini, "[Boutons]\r\nZorro=A.EXE\r\n\xC9"
                                 "diter=B.EXE ^ x\r\nAller=\r\n[S\xE9lections]\r\nTout=*.*\r\n");
    EXPECT_EQ(Cles_section(Section::boutons), (std::vector<std::wstring>{L"Zorro", L"Éditer", L"Aller"}));
    EXPECT_EQ(Valeur_cle(Section::boutons, L"Éditer"), L"B.EXE ^ x");
    EXPECT_EQ(Valeur_cle(Section::boutons, L"Aller"), L"");
    EXPECT_EQ(Valeur_cle(Section::selections, L"Tout"), L"*.*");
}

TEST_F(Reglages, une_section_longue_est_lue_entiere) {
    std::string section = "[Boutons]\r\n";
    for (int i = 0; i < 600; ++i) section += "Bouton numero " + std::to_string(i) + "=PROG.EXE\r\n";
    Poser(variables.Fichier_ini, section);
    const auto cles = Cles_section(Section::boutons);
    ASSERT_EQ(cles.size(), 600u);
    EXPECT_EQ(cles.back(), L"Bouton numero 599");
}

TEST_F(Reglages, le_profil_est_dans_le_repertoire_du_programme) {
    Situer_profil();
    const std::wstring & prefixe = variables.Prefixe_fichiers;
    EXPECT_EQ(variables.Fichier_ini, prefixe + L"INI");
    EXPECT_EQ(variables.Unite_programme, prefixe.substr(0, 2));
    EXPECT_EQ(prefixe.substr(prefixe.size() - 9), L"\\KORVANE.");
}
