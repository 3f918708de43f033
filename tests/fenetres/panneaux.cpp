#include "pilote/korvane.h"

#include <cwchar>
#include <winternl.h>

using Textes = std::vector<std::wstring>;

namespace {

bool Meme_chemin(const std::wstring & a, const std::wstring & b) {
    return _wcsicmp(a.c_str(), b.c_str()) == 0;
}

// The current directory of another process, without a final "\" but for a root; from its start parameters.
std::wstring Repertoire_courant(HANDLE processus) {
    using Interroger = NTSTATUS(NTAPI *)(HANDLE, PROCESSINFOCLASS, void *, ULONG, ULONG *);
    const auto                interroger       = reinterpret_cast<Interroger>(reinterpret_cast<void *>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryInformationProcess")));
    constexpr std::size_t     place_parametres = 0x20;  // in the process's block
    constexpr std::size_t     place_repertoire = 0x38;  // in its parameters
    PROCESS_BASIC_INFORMATION base{};
    const char *              parametres = nullptr;
    UNICODE_STRING            texte{};
    interroger(processus, ProcessBasicInformation, &base, sizeof base, nullptr);
    const auto * bloc = reinterpret_cast<const char *>(base.PebBaseAddress);
    ReadProcessMemory(processus, bloc + place_parametres, &parametres, sizeof parametres, nullptr);
    ReadProcessMemory(processus, parametres + place_repertoire, &texte, sizeof texte, nullptr);
    std::wstring chemin(texte.Length / sizeof(wchar_t), L'\0');
    ReadProcessMemory(processus, texte.Buffer, chemin.data(), texte.Length, nullptr);
    if (chemin.size() > 3 && chemin.back() == L'\\') chemin.pop_back();
    return chemin;
}

}  // namespace

// The two panes: what a click, a key or a command opens in them, and how their lists keep in step.
class Panneaux : public Korvane {
protected:
    // A pane shows this directory everywhere; the SOURCE one is where the process stands.
    void Montre(const std::wstring & cote, const std::wstring & repertoire, const Textes & fichiers) {
        EXPECT_TRUE(Pilote::Attendre([&] { return Meme_chemin(Lire(L"Chemin_" + cote), repertoire); }))
            << Pilote::Utf8(Lire(L"Chemin_" + cote)) << " au lieu de " << Pilote::Utf8(repertoire);
        EXPECT_TRUE(Pilote::Attendre([&] { return Entrees(L"Fichier_" + cote) == fichiers; }))
            << Pilote::Utf8(cote) << " : " << Entrees(L"Fichier_" + cote).size() << " fichiers";
        EXPECT_EQ(Lire(L"Unité_" + cote).substr(0, 1), repertoire.substr(0, 1));
        if (cote == L"srce") {
            EXPECT_TRUE(Meme_chemin(Repertoire_courant(programme->Poignee()), repertoire))
                << Pilote::Utf8(Repertoire_courant(programme->Poignee()));
        }
    }
    void Refus_destination() {
        Attendre_boite(L"Gestionnaire de fichiers",
                       L"Sélectionnez le fichier dans la liste 'SOURCE'\r"
                       L"ou bien cliquez sur le bouton de permutation :\r"
                       L"cette liste sert uniquement de contrôle visuel.",
                       MB_OK | MB_ICONINFORMATION, IDOK);
    }
    void Refus_selection() {
        Attendre_boite(L"Gestionnaire de fichiers",
                       L"Sélection non autorisée en mode répertoire :\rcliquez sur le bouton 'Mode fichier'.",
                       MB_OK | MB_ICONINFORMATION, IDOK);
    }
    void Passer_en_mode_repertoire() {
        Cliquer(L"Mode");
        ATTENDRE(Lire(L"Mode") == L" &Mode fichier");
    }
    // The disk's letter is in lower case in the lists.
    std::wstring Sur_c(const std::wstring & chemin) const { return L"c" + chemin.substr(1); }
};

TEST_F(Panneaux, un_clic_sur_un_repertoire_l_ouvre_et_choisit_son_premier_fichier_du_cote_source_seulement) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"sous\\c.txt", 1);
    Creer_source(L"sous\\B.txt", 20);
    Lancer_dans_les_dossiers();
    Cliquer_entree(L"Répertoire_srce", L"sous");
    Montre(L"srce", Sur_c(Source(L"sous")), {L"B.txt", L"c.txt"});
    Montre(L"dest", Sur_c(destination), {});
    EXPECT_EQ(Choisies(), Textes{L"B.txt"});
    EXPECT_EQ(Lire(L"Ligne_message"), L"   1 fichier sélectionné, total = 20 octets.");
    Ouvrir(L"dest", Source(L"sous"));
    Montre(L"dest", Sur_c(Source(L"sous")), {L"B.txt", L"c.txt"});
    EXPECT_EQ(Choisies(L"Fichier_dest"), Textes{});
}

TEST_F(Panneaux, un_clic_dans_l_arborescence_destination_relit_aussi_la_source_et_annule_sa_selection) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Cliquer(L"Sélecte");
    Creer_source(L"b.txt", 10);
    Cliquer_entree(L"Répertoire_dest", L"destination");
    Montre(L"srce", Sur_c(source), {L"a.txt", L"b.txt"});
    EXPECT_EQ(Choisies(), Textes{});
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
    EXPECT_EQ(Lire(L"Sélecte"), L"&Sélectionner tout");
}

TEST_F(Panneaux, l_arborescence_montre_la_racine_le_chemin_ouvert_puis_ses_sous_repertoires_caches_compris) {
    for (const wchar_t * nom : {L"zéro", L"Alpha", L"beta"}) Pilote::Creer_dossier(Source(nom));
    Pilote::Attributs(Source(L"beta"), FILE_ATTRIBUTE_HIDDEN);
    Lancer_dans_les_dossiers();
    const Textes entrees = Entrees(L"Répertoire_srce");
    ASSERT_GE(entrees.size(), 5u);
    EXPECT_TRUE(Meme_chemin(entrees.front(), L"c:\\"));
    EXPECT_EQ(Textes(entrees.end() - 4, entrees.end()), (Textes{L"source", L"Alpha", L"beta", L"zéro"}));
    EXPECT_EQ(Entrees(L"Répertoire_srce")[static_cast<std::size_t>(
                  Pilote::Entree_courante(Controle(L"Répertoire_srce")))],
              L"source");
}

TEST_F(Panneaux, les_fleches_n_ouvrent_rien_et_entree_ouvre_le_repertoire_courant) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"sous\\b.txt", 1);
    Lancer_dans_les_dossiers();
    Pilote::Frapper(VK_DOWN);
    Pilote::Reposer(Principale());
    ATTENDRE(Nom_du_focus() == L"Répertoire_dest");
    Montre(L"dest", Sur_c(destination), {});
    Cliquer_entree(L"Répertoire_srce", L"source");
    Pilote::Frapper(VK_DOWN);
    Pilote::Reposer(Principale());
    const HWND liste = Controle(L"Répertoire_srce");
    EXPECT_EQ(Pilote::Entree(liste, Pilote::Entree_courante(liste)), L"sous");
    Montre(L"srce", Sur_c(source), {L"a.txt"});
    Pilote::Frapper(VK_RETURN);
    Montre(L"srce", Sur_c(Source(L"sous")), {L"b.txt"});
    EXPECT_EQ(Choisies(), Textes{L"b.txt"});
    ATTENDRE(Nom_du_focus() == L"Répertoire_srce");
}

TEST_F(Panneaux, un_repertoire_vide_ne_laisse_rien_de_choisi_ni_de_compte) {
    Creer_source(L"a.txt", 10);
    Pilote::Creer_dossier(Source(L"vide"));
    Lancer_dans_les_dossiers();
    Cliquer_entree(L"Répertoire_srce", L"vide");
    Montre(L"srce", Sur_c(Source(L"vide")), {});
    EXPECT_EQ(Choisies(), Textes{});
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
}

TEST_F(Panneaux, un_double_clic_ne_descend_que_d_un_niveau) {
    Creer_source(L"un\\deux\\trois\\x.txt", 1);
    Pilote::Creer_dossier(Source(L"un\\autre"));
    Lancer_dans_les_dossiers();
    Double_cliquer_entree(L"Répertoire_srce", L"un");
    Montre(L"srce", Sur_c(Source(L"un")), {});
    EXPECT_EQ(Entrees(L"Répertoire_srce").back(), L"deux");
}

TEST_F(Panneaux, reprendre_la_meme_unite_ne_change_rien_mais_entree_y_relit_le_volet) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    Creer_source(L"b.txt", 10);
    Choisir_unite(L"Unité_srce", L'c');
    Montre(L"srce", Sur_c(source), {L"a.txt"});
    EXPECT_EQ(Choisies(), Textes{L"a.txt"});
    ATTENDRE(Nom_du_focus() == L"Unité_srce");
    Pilote::Frapper(VK_RETURN);
    Montre(L"srce", Sur_c(source), {L"a.txt", L"b.txt"});
    EXPECT_EQ(Choisies(), Textes{});
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
}

TEST_F(Panneaux, copier_suit_ce_que_la_liste_contient_quand_elle_est_relue) {
    Lancer_dans_les_dossiers();
    EXPECT_FALSE(Est_actif(L"Copier"));
    Creer_source(L"a.txt", 10);
    Choisir_unite(L"Unité_srce", L'c');
    Pilote::Frapper(VK_RETURN);
    Montre(L"srce", Sur_c(source), {L"a.txt"});
    EXPECT_TRUE(Est_actif(L"Copier"));
}

TEST_F(Panneaux, permuter_sur_une_unite_echange_les_volets_et_relit_la_source) {
    Creer_source(L"a.txt", 10);
    Creer_destination(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Creer_destination(L"c.txt", 10);
    Cliquer(L"Croiser");
    Montre(L"srce", Sur_c(destination), {L"b.txt", L"c.txt"});
    Montre(L"dest", Sur_c(source), {L"a.txt"});
    EXPECT_EQ(Choisies(), Textes{});
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
}

TEST_F(Panneaux, permuter_deux_volets_du_meme_repertoire_relit_la_source) {
    Regler(L"Options", L"Répertoire", source);
    Creer_source(L"a.txt", 10);
    Lancer();
    Choisir({L"a.txt"});
    Creer_source(L"b.txt", 10);
    Cliquer(L"Croiser");
    Montre(L"srce", Sur_c(source), {L"a.txt", L"b.txt"});
    EXPECT_EQ(Choisies(), Textes{});
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
}

TEST_F(Panneaux, la_liste_destination_refuse_chaque_clic_dans_les_deux_modes) {
    Creer_destination(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    for (int i = 0; i < 2; ++i) {
        Cliquer_entree(L"Fichier_dest", L"a.txt");
        Refus_destination();
        ATTENDRE(Nom_du_focus() == L"Fichier_dest");
    }
    Passer_en_mode_repertoire();
    Cliquer_entree(L"Fichier_dest", L"a.txt");
    Refus_destination();
    EXPECT_EQ(Choisies(L"Fichier_dest"), Textes{});
}

TEST_F(Panneaux, le_bouton_mode_change_les_libelles_les_boutons_et_le_titre_dans_les_deux_sens) {
    struct Etat {
        const wchar_t * libelle;
        const wchar_t * titre;
        bool            fichiers;
    };
    const Etat etats[] = {
        {L" &Mode répertoire", L"Gestionnaire de fichiers  (Mode fichier)   ", true},
        {L" &Mode fichier", L"Gestionnaire de fichiers  (Mode répertoire)", false},
        {L" &Mode répertoire", L"Gestionnaire de fichiers  (Mode fichier)   ", true},
    };
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    for (const Etat & etat : etats) {
        EXPECT_EQ(Lire(L"Mode"), etat.libelle);
        EXPECT_EQ(Pilote::Texte(Principale()), etat.titre);
        for (const wchar_t * bouton : {L"Copier", L"Effacer"})
            EXPECT_EQ(Se_voit(bouton), etat.fichiers) << etat.fichiers;
        for (const wchar_t * bouton : {L"Créer", L"Supprimer"})
            EXPECT_EQ(Se_voit(bouton), !etat.fichiers) << etat.fichiers;
        for (const wchar_t * bouton : {L"Déplacer", L"Sélecte"})
            EXPECT_EQ(Est_actif(bouton), etat.fichiers) << etat.fichiers;
        Cliquer(L"Mode");
        Pilote::Reposer(Principale());
        EXPECT_EQ(Lire(L"Ligne_message"), L"");
        EXPECT_EQ(Choisies(), Textes{});
    }
}

TEST_F(Panneaux, en_mode_repertoire_un_clic_dans_les_fichiers_est_refuse_des_que_le_bouton_est_enfonce) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Passer_en_mode_repertoire();
    const HWND  liste = Controle(L"Fichier_srce");
    const POINT point = Pilote::Point_entree(liste, 0);
    Pilote::Pointer(point);
    Pilote::Presser(point);
    EXIGER(!Boite_absente());
    Pilote::Lacher(point);
    Refus_selection();
    EXPECT_EQ(Choisies(), Textes{});
    Cliquer_entree(L"Fichier_srce", L"a.txt");
    Refus_selection();
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
}

TEST_F(Panneaux, en_mode_repertoire_le_clavier_et_l_ouverture_d_un_repertoire_ne_choisissent_aucun_fichier) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Creer_source(L"sous\\c.txt", 10);
    Lancer_dans_les_dossiers();
    Passer_en_mode_repertoire();
    Cliquer_entree(L"Répertoire_srce", L"source");
    EXPECT_EQ(Choisies(), Textes{});
    Pilote::Frapper(VK_TAB);
    EXIGER(A_le_focus(L"Fichier_srce"));
    for (const WORD touche : {WORD{VK_DOWN}, WORD{VK_UP}, WORD{VK_SPACE}, WORD{VK_END}}) {
        Pilote::Frapper(touche);
        Pilote::Reposer(Principale());
        EXPECT_EQ(Choisies(), Textes{}) << touche;
    }
    Pilote::Frapper_avec(VK_CONTROL, 'A');
    Pilote::Reposer(Principale());
    EXPECT_EQ(Choisies(), Textes{});
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
    Cliquer_entree(L"Répertoire_srce", L"sous");
    Montre(L"srce", Sur_c(Source(L"sous")), {L"c.txt"});
    EXPECT_EQ(Choisies(), Textes{});
}

class Panneaux_D : public Panneaux {
protected:
    Panneaux_D() {
        Pilote::Unite::Vider(L'D');
        Pilote::Creer_fichier(L"D:\\racine.txt", "12345");
        Pilote::Creer_fichier(L"D:\\travail\\d.txt", "123");
    }
};

TEST_F(Panneaux_D, changer_l_unite_source_ouvre_le_volet_et_annule_la_selection) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir_unite(L"Unité_srce", L'd');
    Montre(L"srce", L"d:\\", {L"racine.txt"});
    Montre(L"dest", Sur_c(destination), {});
    EXPECT_EQ(Choisies(), Textes{});
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
    // A drive remembers its current directory.
    Choisir_unite(L"Unité_srce", L'c');
    Montre(L"srce", Sur_c(source), {L"a.txt"});
}

TEST_F(Panneaux_D, changer_l_unite_destination_laisse_la_source_et_sa_selection) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    Choisir_unite(L"Unité_dest", L'd');
    Montre(L"dest", L"d:\\", {L"racine.txt"});
    Montre(L"srce", Sur_c(source), {L"a.txt"});
    EXPECT_EQ(Choisies(), Textes{L"a.txt"});
    EXPECT_EQ(Lire(L"Ligne_message"), L"   1 fichier sélectionné, total = 10 octets.");
}

TEST_F(Panneaux_D, permuter_sur_deux_unites_echange_aussi_les_unites) {
    Creer_source(L"a.txt", 10);
    Lancer();
    Ouvrir(L"srce", source);
    Ouvrir(L"dest", L"D:\\travail");
    for (int i = 0; i < 2; ++i) {
        Cliquer(L"Croiser");
        Montre(L"srce", i == 0 ? L"d:\\travail" : Sur_c(source), {i == 0 ? L"d.txt" : L"a.txt"});
        Montre(L"dest", i == 0 ? Sur_c(source) : L"d:\\travail", {i == 0 ? L"a.txt" : L"d.txt"});
    }
}

class Panneaux_A : public Panneaux {};

TEST_F(Panneaux_A, un_clic_sur_la_racine_relit_la_disquette_changee) {
    Pilote::Unite::Inserer_disquette(2);
    Pilote::Unite::Vider(L'A');
    Pilote::Creer_fichier(L"A:\\autre\\x.txt", "1");
    Pilote::Creer_fichier(L"A:\\deux.txt", "12");
    Pilote::Unite::Inserer_disquette(1);
    Pilote::Unite::Vider(L'A');
    Pilote::Creer_fichier(L"A:\\un.txt", "1");
    Lancer();
    Ouvrir(L"srce", source);
    Choisir_unite(L"Unité_srce", L'a');
    Montre(L"srce", L"a:\\", {L"un.txt"});
    Pilote::Unite::Inserer_disquette(2);
    Cliquer_entree(L"Répertoire_srce", L"a:\\");
    Montre(L"srce", L"a:\\", {L"deux.txt"});
    EXPECT_EQ(Entrees(L"Répertoire_srce").back(), L"autre");
    EXPECT_EQ(Choisies(), Textes{L"deux.txt"});
    Pilote::Unite::Inserer_disquette(1);
}
