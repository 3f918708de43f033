#include "fenetres/configuration.h"

#include <algorithm>
#include <commctrl.h>
#include <sstream>

using namespace Pilote;

namespace {

constexpr int champ_nom  = 1148;
constexpr int liste_type = 1136;

std::wstring De_page_systeme(const std::string & octets) {
    std::wstring texte(octets.size(), L'\0');
    const int    lus = MultiByteToWideChar(CP_ACP, 0, octets.data(), static_cast<int>(octets.size()),
                                           texte.data(), static_cast<int>(texte.size()));
    texte.resize(static_cast<std::size_t>(lus));
    return texte;
}

}  // namespace

Configuration::Configuration() { Oublier_associations(); }

Configuration::~Configuration() {
    Fermer();
    Oublier_associations();
}

void Configuration::Oublier_associations() {
    WriteProfileStringW(L"Extensions", nullptr, nullptr);
    WriteProfileStringW(nullptr, nullptr, nullptr);
}

void Configuration::Associer(const wchar_t * extension, const wchar_t * valeur) {
    EXPECT_TRUE(WriteProfileStringW(L"Extensions", extension, valeur));
    WriteProfileStringW(nullptr, nullptr, nullptr);
}

std::wstring Configuration::Association(const wchar_t * extension) {
    wchar_t valeur[512];
    WriteProfileStringW(nullptr, nullptr, nullptr);
    return {valeur, GetProfileStringW(L"Extensions", extension, L"absente", valeur, 512)};
}

Pilote::Fille Configuration::Ouvrir_editeur() { return Ouvrir_par(L"Configurer", Editeur()); }

Pilote::Fille Configuration::Lancer_et_ouvrir() {
    Lancer();
    return Ouvrir_editeur();
}

void Configuration::Attendre_avis_relancer() {
    Attendre_boite(gestionnaire,
                   L"KORVANE doit être relancé pour prendre en compte les modifications effectuées.",
                   MB_OK | MB_ICONASTERISK, IDOK);
}

void Configuration::Fermer_editeur(const Pilote::Fille & editeur, bool relancer) {
    editeur.Cliquer(L"Fin");
    if (relancer) Attendre_avis_relancer();
    editeur.Attendre_fermee();
    EXPECT_TRUE(Boite_absente());
    ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
}

void Configuration::Montrer(const Pilote::Fille & editeur, const std::wstring & option) {
    editeur.Cliquer(option);
    ATTENDRE(editeur.Est_coche(option) && editeur.Nom_du_focus() == L"Ligne_conf");
}

void Configuration::Choisir_ligne(const Pilote::Fille & editeur, int rang) {
    const HWND liste = editeur.Controle(L"Liste_conf");
    Pilote::Cliquer(Point_entree(liste, rang));
    ATTENDRE(editeur.Lire(L"Ligne_conf") == Entree(liste, rang));
}

void Configuration::Coller(const Pilote::Fille & editeur, const std::wstring & ligne) {
    SendMessageW(editeur.Controle(L"Ligne_conf"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(ligne.c_str()));
    ATTENDRE(editeur.Lire(L"Ligne_conf") == ligne);
}

void Configuration::Enregistrer(const Pilote::Fille & editeur, const std::wstring & ligne) {
    Coller(editeur, ligne);
    editeur.Cliquer(L"Enregistrer");
    ATTENDRE(editeur.Lire(L"Ligne_conf").empty() && editeur.Nom_du_focus() == L"Ligne_conf");
    EXPECT_FALSE(editeur.Est_actif(L"Enregistrer"));
    EXPECT_FALSE(editeur.Est_actif(L"Effacer"));
}

void Configuration::Attendre_lignes(const Pilote::Fille & editeur, const Textes & lignes) {
    if (Attendre([&] { return editeur.Entrees(L"Liste_conf") == lignes; })) return;
    std::ostringstream lues;
    for (const std::wstring & ligne : editeur.Entrees(L"Liste_conf")) lues << Utf8(ligne) << "\n";
    ADD_FAILURE() << "la liste :\n" << lues.str();
}

void Configuration::Attendre_permis(const Pilote::Fille & editeur, bool parcourir, bool enregistrer) {
    EXPECT_TRUE(Attendre([&] {
        return editeur.Est_actif(L"Parcourir") == parcourir &&
               editeur.Est_actif(L"Enregistrer") == enregistrer;
    })) << Utf8(editeur.Lire(L"Ligne_conf"));
}

Configuration::Textes Configuration::Section_du_fichier(const std::string & section) const {
    Textes             lignes;
    std::istringstream contenu(Lire_fichier(Fichier_ini()));
    bool               dedans = false;
    for (std::string ligne; std::getline(contenu, ligne);) {
        if (ligne.ends_with('\r')) ligne.pop_back();
        if (ligne.starts_with('['))
            dedans = ligne == "[" + section + "]";
        else if (dedans && !ligne.empty())
            lignes.push_back(De_page_systeme(ligne));
    }
    return lignes;
}

HWND Configuration::Dialogue_systeme() const {
    for (HWND fenetre : Pilote::Fenetres(programme->Numero())) {
        if (Classe(fenetre) == L"#32770" && GetDlgItem(fenetre, liste_type)) return fenetre;
    }
    return nullptr;
}

HWND Configuration::Attendre_dialogue_systeme(const std::wstring & titre, const Textes & types) {
    ATTENDRE(Dialogue_systeme() != nullptr && GetForegroundWindow() == Dialogue_systeme());
    const HWND dialogue = Dialogue_systeme();
    Reposer(dialogue);
    EXPECT_EQ(Utf8(Texte(dialogue)), Utf8(titre));
    EXPECT_EQ(Pilote::Entrees(GetDlgItem(dialogue, liste_type)), types);
    return dialogue;
}

void Configuration::Proposer(HWND dialogue, const std::wstring & chemin) {
    HWND champ = GetDlgItem(dialogue, champ_nom);
    while (HWND enfant = FindWindowExW(champ, nullptr, nullptr, nullptr)) champ = enfant;
    SendMessageW(champ, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(chemin.c_str()));
    PostMessageW(dialogue, WM_COMMAND, IDOK, 0);
}

int Configuration::Fichiers_montres(HWND dialogue) {
    int nombre = -1;
    Parcourir(dialogue, [&](HWND fenetre) {
        if (Classe(fenetre) == L"SysListView32")
            nombre = static_cast<int>(SendMessageW(fenetre, LVM_GETITEMCOUNT, 0, 0));
    });
    return nombre;
}

void Configuration::Choisir_fichier(HWND dialogue, const std::wstring & chemin) {
    Proposer(dialogue, chemin);
    ATTENDRE(Dialogue_systeme() == nullptr && GetForegroundWindow() == Editeur().Fenetre());
}

void Configuration::Annuler_dialogue(HWND dialogue) {
    PostMessageW(dialogue, WM_COMMAND, IDCANCEL, 0);
    ATTENDRE(Dialogue_systeme() == nullptr && GetForegroundWindow() == Editeur().Fenetre());
}

TEST_F(Configuration, chaque_option_montre_sa_section_dans_l_ordre_du_fichier_et_vide_le_champ) {
    for (const wchar_t * cle : {L"Zoo", L"Arbre", L"&Été"}) Regler(L"Boutons", cle, L"C:\\A=B.EXE");
    Regler(L"Boutons", L"Sans valeur", L"");
    Regler(L"Sélections", L"Textes", L"*.txt;*.doc");
    Associer(L"txt", L"C:\\WINDOWS\\NOTEPAD.EXE ^.txt");
    struct Cas {
        const wchar_t *option, *titre, *label;
        Textes         lignes;
    };
    const Cas cas[] = {
        {L"Boutons",
         L"Liste des Boutons",
         L"Nouveau Bouton",
         {L"Zoo=C:\\A=B.EXE", L"Arbre=C:\\A=B.EXE", L"&Été=C:\\A=B.EXE"}},
        {L"Sélections", L"Liste des Sélections", L"Nouvelle Sélection", {L"Textes=*.txt;*.doc"}},
        {L"Associer",
         L"Liste des Associations",
         L"Nouvelle Association",
         {L"txt=C:\\WINDOWS\\NOTEPAD.EXE ^.txt"}}};
    const auto editeur = Lancer_et_ouvrir();
    for (const Cas & c : cas) {
        SCOPED_TRACE(Utf8(c.option));
        if (&c != cas) Montrer(editeur, c.option);
        EXPECT_TRUE(editeur.Est_coche(c.option));
        EXPECT_EQ(Utf8(editeur.Titre()), Utf8(c.titre));
        EXPECT_EQ(Utf8(editeur.Lire(L"Label_conf")), Utf8(c.label));
        EXPECT_EQ(editeur.Lire(L"Ligne_conf"), L"");
        ATTENDRE(editeur.Nom_du_focus() == L"Ligne_conf");
        for (const wchar_t * bouton : {L"Parcourir", L"Enregistrer", L"Effacer"})
            EXPECT_FALSE(editeur.Est_actif(bouton)) << Utf8(bouton);
        Attendre_lignes(editeur, c.lignes);
        Choisir_ligne(editeur, 0);
        Attendre_permis(editeur, c.option != std::wstring(L"Sélections"), true);
        EXPECT_TRUE(editeur.Est_actif(L"Effacer"));
    }
    Fermer_editeur(editeur, false);
    Ouvrir_editeur();
    EXPECT_EQ(Utf8(editeur.Titre()), Utf8(L"Liste des Boutons"));
    EXPECT_TRUE(editeur.Est_coche(L"Boutons") && !editeur.Est_coche(L"Associer"));
    EXPECT_EQ(editeur.Lire(L"Ligne_conf"), L"");
    Attendre_lignes(editeur, cas[0].lignes);
    Fermer_editeur(editeur, false);
    Verifier_principale_utilisable();
}

TEST_F(Configuration, les_boutons_suivent_la_ligne_pendant_la_saisie) {
    struct Cas {
        const wchar_t *option, *ligne;
        bool           parcourir, enregistrer;
    };
    const Cas    cas[]   = {{L"Boutons", L"a", false, false},      {L"Boutons", L"=a", false, false},
                            {L"Boutons", L"a=", true, false},      {L"Boutons", L"a= ", true, false},
                            {L"Boutons", L"a=b", true, true},      {L"Boutons", L";a=b", false, false},
                            {L"Boutons", L"[a=b", false, false},   {L"Sélections", L"a=", false, false},
                            {L"Sélections", L"a=b", false, true},  {L"Sélections", L"=b", false, false},
                            {L"Associer", L"txt=", true, false},   {L"Associer", L"txt=a", true, true},
                            {L"Associer", L"html=", false, false}, {L"Associer", L"html=a", false, false},
                            {L"Associer", L"=a", false, false},    {L"Associer", L"c=a", true, true}};
    const auto   editeur = Lancer_et_ouvrir();
    std::wstring option  = L"Boutons";
    for (const Cas & c : cas) {
        SCOPED_TRACE(Utf8(c.ligne));
        if (option != c.option) Montrer(editeur, option = c.option);
        editeur.Remplacer(L"Ligne_conf", c.ligne);
        Attendre_permis(editeur, c.parcourir, c.enregistrer);
    }
    editeur.Vider(L"Ligne_conf");
    Attendre_permis(editeur, false, false);
    Fermer_editeur(editeur, false);
}

TEST_F(Configuration, une_ligne_choisie_se_copie_dans_le_champ_le_curseur_au_debut) {
    Regler(L"Boutons", L"Un", L"C:\\UN.EXE");
    Regler(L"Boutons", L"Deux", L"C:\\DEUX.EXE ?");
    const auto editeur = Lancer_et_ouvrir();
    Choisir_ligne(editeur, 1);
    EXPECT_EQ(SendMessageW(editeur.Controle(L"Ligne_conf"), EM_GETSEL, 0, 0), 0);
    EXPECT_TRUE(editeur.Est_actif(L"Effacer"));
    ATTENDRE(editeur.Nom_du_focus() == L"Liste_conf");
    Frapper(VK_UP);
    ATTENDRE(editeur.Lire(L"Ligne_conf") == L"Un=C:\\UN.EXE");
    Frapper(VK_RETURN);
    ATTENDRE(editeur.Nom_du_focus() == L"Ligne_conf");
    editeur.Reposer();
    EXPECT_EQ(editeur.Lire(L"Ligne_conf"), L"Un=C:\\UN.EXE");
    Taper(L"1");
    ATTENDRE(editeur.Lire(L"Ligne_conf") == L"1Un=C:\\UN.EXE");
    Fermer_editeur(editeur, false);
    EXPECT_EQ(Section_du_fichier("Boutons"), (Textes{L"Un=C:\\UN.EXE", L"Deux=C:\\DEUX.EXE ?"}));
}

TEST_F(Configuration, une_ligne_nouvelle_va_a_la_fin_et_une_ligne_modifiee_quitte_sa_place) {
    for (const wchar_t * cle : {L"Un", L"Deux", L"Trois"}) Regler(L"Boutons", cle, L"C:\\A.EXE");
    const auto editeur = Lancer_et_ouvrir();
    Enregistrer(editeur, L"&Été = C:\\A=B\\É.EXE");
    Textes attendues{L"Un=C:\\A.EXE", L"Deux=C:\\A.EXE", L"Trois=C:\\A.EXE", L"&Été= C:\\A=B\\É.EXE"};
    Attendre_lignes(editeur, attendues);
    // Another key.
    Choisir_ligne(editeur, 0);
    Enregistrer(editeur, L"Premier=C:\\P.EXE");
    attendues.erase(attendues.begin());
    attendues.push_back(L"Premier=C:\\P.EXE");
    Attendre_lignes(editeur, attendues);
    // The same key, another value; then another case of it.
    for (const wchar_t * ligne : {L"Deux=C:\\D.EXE", L"DEUX=C:\\D.EXE"}) {
        Choisir_ligne(editeur, ligne[1] == L'e' ? 0 : 3);
        Enregistrer(editeur, ligne);
        if (ligne[1] == L'e')
            attendues.erase(attendues.begin());
        else
            attendues.pop_back();
        attendues.push_back(ligne);
        Attendre_lignes(editeur, attendues);
    }
    // A key that exists, without its line being chosen; and a line that takes the key of another one.
    Enregistrer(editeur, L"trois=C:\\T.EXE");
    attendues = {L"&Été= C:\\A=B\\É.EXE", L"Premier=C:\\P.EXE", L"DEUX=C:\\D.EXE", L"trois=C:\\T.EXE"};
    Attendre_lignes(editeur, attendues);
    Choisir_ligne(editeur, 2);
    Enregistrer(editeur, L"&Été=C:\\E.EXE");
    attendues = {L"Premier=C:\\P.EXE", L"trois=C:\\T.EXE", L"&Été=C:\\E.EXE"};
    Attendre_lignes(editeur, attendues);
    Montrer(editeur, L"Sélections");
    Montrer(editeur, L"Boutons");
    Attendre_lignes(editeur, attendues);
    EXPECT_EQ(Section_du_fichier("Boutons"), attendues);
    Fermer_editeur(editeur, true);
}

TEST_F(Configuration, effacer_retire_la_ligne_du_fichier_jusqu_a_la_derniere) {
    Regler(L"Boutons", L"Autre", L"X.EXE");
    for (const wchar_t * cle : {L"Un", L"Deux", L"Trois"}) Regler(L"Sélections", cle, L"*.a");
    const auto editeur = Lancer_et_ouvrir();
    Montrer(editeur, L"Sélections");
    for (const Textes & reste : {Textes{L"Un=*.a", L"Trois=*.a"}, Textes{L"Un=*.a"}}) {
        Choisir_ligne(editeur, 1);
        editeur.Cliquer(L"Effacer");
        Attendre_lignes(editeur, reste);
        EXPECT_FALSE(editeur.Est_actif(L"Effacer"));
        ATTENDRE(editeur.Nom_du_focus() == L"Ligne_conf");
    }
    EXPECT_EQ(editeur.Lire(L"Ligne_conf"), L"Trois=*.a");
    Choisir_ligne(editeur, 0);
    editeur.Cliquer(L"Effacer");
    Attendre_lignes(editeur, {});
    EXPECT_EQ(Section_du_fichier(std::string("S\xE9lections")), Textes{});
    EXPECT_EQ(Section_du_fichier("Boutons"), Textes{L"Autre=X.EXE"});
    // What was erased last is in the field still.
    editeur.Cliquer(L"Enregistrer");
    Attendre_lignes(editeur, {L"Un=*.a"});
    Fermer_editeur(editeur, true);
}

TEST_F(Configuration, les_associations_vont_dans_win_ini_et_ne_demandent_pas_de_relancer) {
    Associer(L"wri", L"C:\\WINDOWS\\WRITE.EXE ^.wri");
    Associer(L"bmp", L"C:\\P.EXE ^.bmp");
    const std::string avant   = (Lancer(), Lire_fichier(Fichier_ini()));
    const auto        editeur = Ouvrir_editeur();
    Montrer(editeur, L"Associer");
    Enregistrer(editeur, L"md =C:\\ED.EXE ^.md");
    Choisir_ligne(editeur, 0);
    Enregistrer(editeur, L"doc=C:\\WINDOWS\\WRITE.EXE ^.doc");
    Attendre_lignes(editeur, {L"wri=C:\\WINDOWS\\WRITE.EXE ^.wri", L"md=C:\\ED.EXE ^.md",
                              L"doc=C:\\WINDOWS\\WRITE.EXE ^.doc"});
    Choisir_ligne(editeur, 0);
    editeur.Cliquer(L"Effacer");
    Attendre_lignes(editeur, {L"md=C:\\ED.EXE ^.md", L"doc=C:\\WINDOWS\\WRITE.EXE ^.doc"});
    EXPECT_EQ(Association(L"wri"), L"absente");
    EXPECT_EQ(Association(L"bmp"), L"absente");
    EXPECT_EQ(Association(L"md"), L"C:\\ED.EXE ^.md");
    Fermer_editeur(editeur, false);
    EXPECT_EQ(Lire_fichier(Fichier_ini()), avant);
}

TEST_F(Configuration, parcourir_compose_la_ligne_d_un_bouton_et_annuler_la_laisse) {
    const Textes types{L"Tous les fichiers (*.*)", L"Programmes", L"Fichiers texte"};
    Creer_source(L"été n°1.exe", 10);
    Lancer_dans_les_dossiers();
    const auto editeur = Ouvrir_editeur();
    Coller(editeur, L"&Été=ancien");
    editeur.Cliquer(L"Parcourir");
    Annuler_dialogue(Attendre_dialogue_systeme(L"Parcourir pour le bouton '&Été'", types));
    EXPECT_EQ(editeur.Lire(L"Ligne_conf"), L"&Été=ancien");
    ATTENDRE(editeur.Nom_du_focus() == L"Ligne_conf");
    editeur.Cliquer(L"Parcourir");
    Choisir_fichier(Attendre_dialogue_systeme(L"Parcourir pour le bouton '&Été'", types),
                    Source(L"été n°1.exe"));
    ATTENDRE(editeur.Lire(L"Ligne_conf") == L"&Été=" + Source(L"été n°1.exe"));
    ATTENDRE(editeur.Nom_du_focus() == L"Ligne_conf");
    Attendre_permis(editeur, true, true);
    // The caret is where the mark of the parameters goes.
    Taper(L" ?");
    ATTENDRE(editeur.Lire(L"Ligne_conf") == L"&Été=" + Source(L"été n°1.exe") + L" ?");
    editeur.Cliquer(L"Enregistrer");
    Attendre_lignes(editeur, {L"&Été=" + Source(L"été n°1.exe") + L" ?"});
    Fermer_editeur(editeur, true);
}

TEST_F(Configuration, parcourir_ne_charge_pas_une_bibliotheque_deposee_aupres_du_programme_ou_des_fichiers) {
    Lancer_dans_les_dossiers();
    for (const std::wstring & repertoire : {source, dossier / L"programme"})
        Creer_fichier(repertoire + L"\\COMDLG32.DLL", "autre chose");
    const auto editeur = Ouvrir_editeur();
    Coller(editeur, L"Un=");
    editeur.Cliquer(L"Parcourir");
    Annuler_dialogue(Attendre_dialogue_systeme(
        L"Parcourir pour le bouton 'Un'", {L"Tous les fichiers (*.*)", L"Programmes", L"Fichiers texte"}));
    Fermer_editeur(editeur, false);
}

TEST_F(Configuration, parcourir_compose_une_association_avec_sa_marque) {
    const Textes       types{L"Programmes", L"Tous les fichiers (*.*)"};
    const std::wstring profond = dossier / (std::wstring(60, L'p') + L"\\" + std::wstring(60, L'q'));
    Creer_dossier(profond);
    for (const wchar_t * nom : {L"ED.EXE", L"b.com", L"c.bat", L"d.pif", L"e.txt", L"f.exe.doc"})
        Creer_fichier(profond + L"\\" + nom, "x");
    const auto editeur = Lancer_et_ouvrir();
    Montrer(editeur, L"Associer");
    for (const wchar_t * ligne : {L"txt=", L"md =ancien ^.md"}) {
        const std::wstring cle = ligne[0] == L't' ? L"txt" : L"md";
        Coller(editeur, ligne);
        editeur.Cliquer(L"Parcourir");
        const HWND dialogue =
            Attendre_dialogue_systeme(L"Parcourir pour les fichiers de type '" + cle + L"'", types);
        // Programs of every kind, and they alone.
        Proposer(dialogue, profond);
        ATTENDRE(Fichiers_montres(dialogue) == 4);
        Choisir_fichier(dialogue, profond + L"\\ED.EXE");
        ATTENDRE(editeur.Lire(L"Ligne_conf") == cle + L"=" + profond + L"\\ED.EXE ^." + cle);
        editeur.Cliquer(L"Enregistrer");
        ATTENDRE(Association(cle.c_str()) == profond + L"\\ED.EXE ^." + cle);
    }
    Fermer_editeur(editeur, false);
}

TEST_F(Configuration, deux_cents_lignes_et_mille_caracteres_restent_entiers_dans_les_deux_sens) {
    const std::wstring longue(1000, L'é');
    Textes             attendues;
    for (int i = 0; i < 200; ++i) {
        const std::wstring cle = L"Sélection n°" + std::to_wstring(i);
        Regler(L"Sélections", cle, i == 100 ? longue : L"*.txt");
        attendues.push_back(cle + L"=" + (i == 100 ? longue : L"*.txt"));
    }
    const auto editeur = Lancer_et_ouvrir();
    Montrer(editeur, L"Sélections");
    Attendre_lignes(editeur, attendues);
    const std::wstring tres_longue(30000, L'à');
    Enregistrer(editeur, L"Très longue=" + tres_longue);
    attendues.push_back(L"Très longue=" + tres_longue);
    Choisir_ligne(editeur, 100);
    Enregistrer(editeur, L"Sélection n°100=" + longue + L"=");
    attendues.erase(attendues.begin() + 100);
    attendues.push_back(L"Sélection n°100=" + longue + L"=");
    EXPECT_TRUE(Attendre([&] { return editeur.Entrees(L"Liste_conf") == attendues; }));
    EXPECT_TRUE(Section_du_fichier("S\xE9lections") == attendues);
    Fermer_editeur(editeur, true);
}

TEST_F(Configuration, les_blancs_et_les_guillemets_d_une_valeur_sont_relus_tels_qu_enregistres) {
    const auto   editeur = Lancer_et_ouvrir();
    const Textes lignes{L"a=\"C:\\Program Files\\A.EXE\"", L"b='x'", L"c= y ", L"d=\"x\" ?", L"e=;x[1]"};
    for (const std::wstring & ligne : lignes) Enregistrer(editeur, ligne);
    Attendre_lignes(editeur, lignes);
    // A second time round changes nothing either.
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        Choisir_ligne(editeur, 0);
        editeur.Cliquer(L"Enregistrer");
        ATTENDRE(editeur.Lire(L"Ligne_conf").empty());
    }
    Attendre_lignes(editeur, lignes);
    Fermer_editeur(editeur, true);
}

TEST_F(Configuration, un_bouton_et_une_selection_enregistres_se_voient_au_lancement_suivant) {
    const auto editeur = Lancer_et_ouvrir();
    Enregistrer(editeur, L"&Bloc-notes=C:\\WINDOWS\\NOTEPAD.EXE");
    Montrer(editeur, L"Sélections");
    Enregistrer(editeur, L"Tous les textes=*.txt;*.doc");
    Fermer_editeur(editeur, true);
    EXPECT_FALSE(Se_voit(L"Bouton(0)"));
    Fermer();
    programme = std::make_unique<Programme>(dossier / L"programme\\KORVANE.EXE", L"", dossier / L"programme");
    Attendre_pret();
    EXPECT_TRUE(Se_voit(L"Bouton(0)"));
    EXPECT_EQ(Lire(L"Bouton(0)"), L"&Bloc-notes");
    const Textes selections = Entrees(L"Sélection_fichiers");
    EXPECT_EQ(std::count(selections.begin(), selections.end(), L"Tous les textes"), 1);
}
