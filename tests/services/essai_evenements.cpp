#include "services/banc.h"
#include "toolkit/application.h"
#include "toolkit/controles.h"
#include "toolkit/fenetre.h"
#include "toolkit/listes.h"
#include "toolkit/listes_disque.h"

#include <memory>
#include <vector>

namespace {

// One control of each kind; the window is never shown.
struct Fenetre_essai : Fenetre {
    Fenetre_essai() : Fenetre(L"Essai", L"Essai", 6000, 6000, Bordure::dialogue) {}

    Champ_texte       Champ{*this, {L"Champ", 0, 0, 1500, 330}};
    Case_a_cocher     Case{*this, {L"Case", 0, 0, 1500, 330}};
    Bouton_option     Premiere{*this, {L"Premiere", 0, 0, 1500, 330}, true};
    Bouton_option     Seconde{*this, {L"Seconde", 0, 0, 1500, 330}};
    Bouton_option     Autre_groupe{*this, {L"Autre_groupe", 0, 0, 1500, 330}, true};
    Liste             Simple{*this, {L"Simple", 0, 0, 1500, 1500}, false};
    Liste             Multiple{*this, {L"Multiple", 0, 0, 1500, 1500}, true};
    Liste_combinee    Combinee{*this, {L"Combinee", 0, 0, 1500, 330}, true};
    Barre_defilement  Barre{*this, {L"Barre", 0, 0, 1500, 255}};
    Liste_unites      Unites{*this, {L"Unites", 0, 0, 1500, 330}};
    Liste_repertoires Repertoires{*this, {L"Repertoires", 0, 0, 1500, 1500}};
    Liste_fichiers    Fichiers{*this, {L"Fichiers", 0, 0, 1500, 1500}};
};

}  // namespace

// Which assignments raise which events.
class Evenements : public Banc {
protected:
    Evenements() : f(std::make_unique<Fenetre_essai>()) {
        for (Liste * liste : {&f->Simple, &f->Multiple}) {
            for (const wchar_t * texte : {L"un", L"deux", L"trois"}) liste->AddItem(texte);
        }
        for (const wchar_t * texte : {L"*.txt", L"*.bmp"}) f->Combinee.AddItem(texte);
    }
    std::function<void()> Compter() {
        return [this] { ++nombre; };
    }

    std::unique_ptr<Fenetre_essai> f;
    int                            nombre = 0;
};

TEST_F(Evenements, un_texte_affecte_n_en_leve_que_s_il_differe) {
    f->Champ.Change    = Compter();
    f->Combinee.Change = Compter();
    f->Champ.Text(L"a");
    EXPECT_EQ(nombre, 1);
    f->Champ.Text(L"a");
    EXPECT_EQ(nombre, 1);
    f->Champ.Text(L"A");
    EXPECT_EQ(nombre, 2);
    f->Combinee.Text(L"*.txt");
    f->Combinee.Text(L"*.txt");
    EXPECT_EQ(nombre, 3);
    EXPECT_EQ(f->Combinee.Text(), L"*.txt");
}

TEST_F(Evenements, une_entree_courante_affectee_leve_click_si_elle_change) {
    f->Simple.Click   = Compter();
    f->Multiple.Click = Compter();
    f->Combinee.Click = Compter();
    EXPECT_EQ(f->Simple.ListIndex(), -1);
    EXPECT_EQ(f->Multiple.ListIndex(), -1);
    f->Simple.ListIndex(1);
    f->Simple.ListIndex(1);
    EXPECT_EQ(nombre, 1);
    f->Multiple.ListIndex(2);
    f->Multiple.ListIndex(2);
    EXPECT_EQ(nombre, 2);
    EXPECT_FALSE(f->Multiple.Selected(2));
    f->Combinee.ListIndex(1);
    f->Combinee.ListIndex(1);
    EXPECT_EQ(nombre, 3);
    EXPECT_EQ(f->Combinee.Text(), L"*.bmp");
}

TEST_F(Evenements, une_entree_choisie_leve_click_si_son_etat_change) {
    f->Multiple.Click = Compter();
    f->Multiple.Selected(0, true);
    f->Multiple.Selected(0, true);
    f->Multiple.Selected(2, true);
    EXPECT_EQ(nombre, 2);
    EXPECT_EQ(f->Multiple.Selection(), (std::vector<int>{0, 2}));
    f->Multiple.Selected(1, false);
    EXPECT_EQ(nombre, 2);
    f->Multiple.Selected(0, false);
    EXPECT_EQ(nombre, 3);
    f->Multiple.Selected(99, true);
    EXPECT_EQ(nombre, 3);
}

TEST_F(Evenements, les_cases_les_options_et_les_barres_en_levent_quand_elles_changent) {
    f->Case.Click     = Compter();
    f->Premiere.Click = Compter();
    f->Seconde.Click  = Compter();
    f->Barre.Change   = Compter();
    f->Case.Value(true);
    f->Case.Value(true);
    EXPECT_EQ(nombre, 1);
    f->Premiere.Value(true);
    EXPECT_EQ(nombre, 2);
    f->Seconde.Value(true);
    EXPECT_EQ(nombre, 3);
    EXPECT_TRUE(f->Seconde.Value() && !f->Premiere.Value());
    f->Barre.Bornes(0, 9);
    f->Barre.Value(12);
    EXPECT_EQ(f->Barre.Value(), 9);
    f->Barre.Value(9);
    EXPECT_EQ(nombre, 4);
}

TEST_F(Evenements, une_option_affectee_quitte_les_autres_de_son_groupe_actives_ou_non) {
    f->Premiere.Enabled(false);
    f->Premiere.Value(true);
    f->Autre_groupe.Value(true);
    f->Seconde.Value(true);
    EXPECT_TRUE(f->Seconde.Value() && !f->Premiere.Value() && f->Autre_groupe.Value());
    f->Premiere.Value(true);
    EXPECT_TRUE(!f->Seconde.Value() && f->Premiere.Value() && f->Autre_groupe.Value());
    f->Premiere.Value(false);
    EXPECT_TRUE(!f->Seconde.Value() && !f->Premiere.Value());
}

TEST_F(Evenements, une_unite_affectee_ne_compte_que_par_sa_lettre_et_une_unite_absente_leve_l_erreur_68) {
    f->Unites.Drive(L"c:");
    f->Unites.Change = Compter();
    f->Unites.Drive(L"C:\\n'importe quoi");
    EXPECT_EQ(nombre, 0);
    f->Unites.Drive(L"z");
    EXPECT_EQ(nombre, 1);
    EXPECT_EQ(f->Unites.Drive().substr(0, 2), L"z:");
    EXPECT_EQ(Numero_leve([&] { f->Unites.Drive(L"q:"); }), 68);
    EXPECT_EQ(f->Unites.Drive().substr(0, 2), L"z:");
    EXPECT_EQ(nombre, 1);
}

TEST_F(Evenements, un_repertoire_affecte_leve_change_s_il_differe_sans_regard_a_la_casse) {
    const std::wstring sous = Repertoire(L"Sous");
    f->Repertoires.Path(Racine());
    f->Repertoires.Change = Compter();
    f->Repertoires.Path(sous);
    f->Repertoires.Path(Chemin(L"SOUS"));
    f->Repertoires.Path(sous + L"\\");
    EXPECT_EQ(nombre, 1);
    EXPECT_EQ(f->Repertoires.Path(), sous);
    EXPECT_EQ(Numero_leve([&] { f->Repertoires.Path(Chemin(L"absent\\plus")); }), 76);
    EXPECT_EQ(f->Repertoires.Path(), sous);
    EXPECT_EQ(nombre, 1);
    f->Repertoires.ListIndex(-2);
    EXPECT_EQ(nombre, 1);
    EXPECT_EQ(f->Repertoires.List(f->Repertoires.ListIndex()), Racine());
    f->Repertoires.Refresh();
    EXPECT_EQ(nombre, 1);
}

TEST_F(Evenements, un_chemin_de_fichiers_leve_pathchange_et_un_motif_impossible_l_erreur_380) {
    Fichier(L"a.txt");
    Fichier(L"b.bmp");
    f->Fichiers.PathChange = Compter();
    f->Fichiers.Click      = Compter();
    f->Fichiers.Path(Racine());
    f->Fichiers.Path(Racine());
    EXPECT_EQ(nombre, 1);
    f->Fichiers.Pattern(L"*.txt ; *.BMP");
    EXPECT_EQ(f->Fichiers.ListCount(), 2);
    EXPECT_EQ(Numero_leve([&] { f->Fichiers.Pattern(L"*.t|t"); }), 380);
    EXPECT_EQ(f->Fichiers.Pattern(), L"*.txt ; *.BMP");
    EXPECT_EQ(f->Fichiers.ListCount(), 2);
    EXPECT_EQ(nombre, 1);
}

TEST_F(Evenements, relire_garde_le_chemin_et_les_entrees_choisies_qui_existent_encore_et_n_en_leve_aucun) {
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt"}) Fichier(nom);
    f->Fichiers.Path(Racine());
    f->Fichiers.Selected(1, true);
    f->Fichiers.Selected(2, true);
    f->Fichiers.PathChange = Compter();
    f->Fichiers.Click      = Compter();
    DeleteFileW(Chemin(L"b.txt").c_str());
    Fichier(L"aa.txt");
    f->Fichiers.Refresh();
    EXPECT_EQ(nombre, 0);
    EXPECT_EQ(f->Fichiers.ListCount(), 3);
    ASSERT_EQ(f->Fichiers.Selection(), std::vector<int>{2});
    EXPECT_EQ(f->Fichiers.List(2), L"c.txt");
    EXPECT_EQ(f->Fichiers.Path(), Racine());
}

TEST_F(Evenements, une_liste_de_fichiers_laisse_de_cote_les_attributs_qu_elle_ne_montre_pas) {
    Regler_attributs(Fichier(L"cache.txt"), FILE_ATTRIBUTE_HIDDEN);
    Regler_attributs(Fichier(L"systeme.txt"), FILE_ATTRIBUTE_SYSTEM);
    Regler_attributs(Fichier(L"lecture.txt"), FILE_ATTRIBUTE_READONLY);
    Regler_attributs(Fichier(L"modifie.txt"), FILE_ATTRIBUTE_ARCHIVE);
    Regler_attributs(Fichier(L"normal.txt"), FILE_ATTRIBUTE_NORMAL);
    f->Fichiers.Path(Racine());
    const auto noms = [&] {
        std::vector<std::wstring> lus;
        for (const Entree_repertoire & entree : f->Fichiers.Entrees()) lus.push_back(entree.nom);
        return lus;
    };
    using Textes = std::vector<std::wstring>;
    EXPECT_EQ(noms(), (Textes{L"lecture.txt", L"modifie.txt", L"normal.txt"}));
    f->Fichiers.Hidden(true);
    f->Fichiers.System(true);
    EXPECT_EQ(noms(), (Textes{L"cache.txt", L"lecture.txt", L"modifie.txt", L"normal.txt", L"systeme.txt"}));
    f->Fichiers.ReadOnly(false);
    EXPECT_EQ(noms(), (Textes{L"cache.txt", L"modifie.txt", L"normal.txt", L"systeme.txt"}));
    // Some disks give every file the archive attribute.
    Textes sans_archive;
    for (const wchar_t * nom : {L"cache.txt", L"modifie.txt", L"normal.txt", L"systeme.txt"}) {
        if ((Attributs(Chemin(nom)) & FILE_ATTRIBUTE_ARCHIVE) == 0) sans_archive.emplace_back(nom);
    }
    f->Fichiers.Archive(false);
    EXPECT_EQ(noms(), sans_archive);
    f->Fichiers.Archive(true);
    f->Fichiers.Hidden(false);
    f->Fichiers.Normal(false);
    for (const Entree_repertoire & entree : f->Fichiers.Entrees()) {
        EXPECT_NE(entree.attributs & (Attribut::systeme | Attribut::modifie), 0u);
    }
    f->Fichiers.Archive(false);
    EXPECT_TRUE(!f->Fichiers.Hidden() && f->Fichiers.System() && !f->Fichiers.ReadOnly() &&
                !f->Fichiers.Archive());
}
