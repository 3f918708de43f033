#include "fenetres/infos.h"
#include "fenetres/systeme_hote.h"

#include <functional>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

namespace {

struct Case {
    const wchar_t * nom;
    std::uint32_t   attribut;
};
constexpr Case cases[] = {{L"Caché", FILE_ATTRIBUTE_HIDDEN},
                          {L"Système", FILE_ATTRIBUTE_SYSTEM},
                          {L"Lecture", FILE_ATTRIBUTE_READONLY},
                          {L"Modifié", FILE_ATTRIBUTE_ARCHIVE}};

}  // namespace

Pilote::Fille Infos::Ouvrir_infos() { return Ouvrir_par(L"Info", Fenetre_infos()); }

void Infos::Fermer_infos(const Pilote::Fille & fille) {
    fille.Cliquer(L"Fin");
    fille.Attendre_fermee();
    EXPECT_TRUE(Boite_absente());
    ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
    Attendre_fin_commande();
}

void Infos::Attendre_fichier(const Pilote::Fille & fille, const std::wstring & nom_capitales) {
    EXPECT_TRUE(Attendre([&] { return fille.Titre() == L"Informations sur " + nom_capitales; }))
        << Utf8(fille.Titre());
}

void Infos::Attendre_question(int reponse) {
    Attendre_boite(gestionnaire, L"Voulez-vous enregistrer les modifications d'attributs ?", oui_non,
                   reponse);
}

void Infos::Verifier_cases(const Pilote::Fille & fille, std::uint32_t attributs) {
    for (const Case & c : cases) {
        const bool attendue = (attributs & c.attribut) != 0;
        EXPECT_TRUE(Attendre([&] { return fille.Est_coche(c.nom) == attendue; }))
            << Utf8(c.nom) << " " << attributs;
    }
}

void Infos::Cocher(const Pilote::Fille & fille, std::uint32_t attributs) {
    for (const Case & c : cases) {
        if (fille.Est_coche(c.nom) != ((attributs & c.attribut) != 0)) fille.Cliquer(c.nom);
    }
    Verifier_cases(fille, attributs);
}

std::uint32_t Infos::Attributs_obtenus(std::uint32_t attributs) const {
    const std::wstring temoin = dossier / L"temoin.txt";
    Creer_fichier(temoin, "x");
    Attributs(temoin, attributs);
    const std::uint32_t obtenus = Attributs(temoin);
    EXPECT_TRUE(Effacer(temoin));
    return obtenus;
}

void Infos::Creer_longue(const std::wstring & chemin, std::uint64_t taille) {
    Creer_fichier(chemin, "");
    const HANDLE  fichier = CreateFileW(chemin.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    LARGE_INTEGER fin{};
    fin.QuadPart = static_cast<LONGLONG>(taille);
    EXPECT_TRUE(SetFilePointerEx(fichier, fin, nullptr, FILE_BEGIN) && SetEndOfFile(fichier)) << Utf8(chemin);
    CloseHandle(fichier);
}

std::uint64_t Infos::Moment_local(WORD annee, WORD mois, WORD jour, WORD heure, WORD minute) {
    const SYSTEMTIME local{annee, mois, 0, jour, heure, minute, 7, 0};
    SYSTEMTIME       universel{};
    FILETIME         date{};
    TzSpecificLocalTimeToSystemTime(nullptr, &local, &universel);
    SystemTimeToFileTime(&universel, &date);
    return std::uint64_t{date.dwHighDateTime} << 32 | date.dwLowDateTime;
}

TEST_F(Infos, un_seul_fichier_montre_ses_informations_et_n_a_ni_precedent_ni_suivant) {
    Creer_source(L"été à midi.txt", 1234567);
    Date(Source(L"été à midi.txt"), Moment_local(2003, 2, 9, 7, 5));
    Lancer_dans_les_dossiers();
    Choisir({L"été à midi.txt"});
    const auto fille = Ouvrir_infos();
    Attendre_fichier(fille, L"ÉTÉ À MIDI.TXT");
    EXPECT_EQ(fille.Lire(L"Taille"), L"1\u00A0234\u00A0567");
    EXPECT_EQ(fille.Lire(L"Date_fichier"), L"09/02/03");
    EXPECT_EQ(fille.Lire(L"Heure"), L"7:05");
    Verifier_cases(fille, Attributs(Source(L"été à midi.txt")));
    EXPECT_FALSE(fille.Est_actif(L"Précédent"));
    EXPECT_FALSE(fille.Est_actif(L"Suivant"));
    EXPECT_FALSE(Sablier());
    EXPECT_FALSE(Active(Principale()));
    Fermer_infos(fille);
    Verifier_principale_utilisable();
}

TEST_F(Infos, trois_fichiers_se_parcourent_dans_les_deux_sens_et_en_boucle) {
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt", L"d.txt", L"e.txt"}) Creer_source(nom, 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"c.txt", L"e.txt"});
    const auto fille = Ouvrir_infos();
    Attendre_fichier(fille, L"A.TXT");
    for (const wchar_t * nom : {L"C.TXT", L"E.TXT", L"A.TXT", L"C.TXT"}) {
        fille.Cliquer(L"Suivant");
        Attendre_fichier(fille, nom);
    }
    for (const wchar_t * nom : {L"A.TXT", L"E.TXT", L"C.TXT", L"A.TXT"}) {
        fille.Cliquer(L"Précédent");
        Attendre_fichier(fille, nom);
    }
    Fermer_infos(fille);
}

// A size beyond 32 bits, dates outside the years of the old formats, hours before ten and after noon.
TEST_F(Infos, tailles_dates_et_heures_sont_montrees_justes) {
    struct Cas {
        const wchar_t * nom;
        std::uint64_t   taille, date;
        const wchar_t * taille_montree;
        const wchar_t * date_montree;
        const wchar_t * heure;
    };
    const Cas cas[] = {
        {L"a", 0, Moment_local(1979, 12, 31, 23, 59), L"0", L"31/12/79", L"23:59"},
        {L"b", 1, Moment_local(1980, 1, 1, 0, 0), L"1", L"01/01/80", L"0:00"},
        {L"c", 999, Moment_local(2000, 2, 29, 12, 30), L"999", L"29/02/00", L"12:30"},
        {L"d", 1000, Moment_local(2040, 11, 5, 9, 9), L"1\u00A0000", L"05/11/40", L"9:09"},
        {L"e", 5'000'000'123, Moment_local(2024, 7, 14, 18, 0), L"5\u00A0000\u00A0000\u00A0123", L"14/07/24",
         L"18:00"},
    };
    for (const Cas & c : cas) {
        if (c.taille < 10000)
            Creer_source(c.nom, c.taille);
        else
            Creer_longue(Source(c.nom), c.taille);
        Date(Source(c.nom), c.date);
    }
    Lancer_dans_les_dossiers();
    Choisir_tout();
    const auto fille = Ouvrir_infos();
    for (const Cas & c : cas) {
        SCOPED_TRACE(Utf8(c.nom));
        Attendre_fichier(fille, Capitales(c.nom));
        EXPECT_EQ(fille.Lire(L"Taille"), c.taille_montree);
        EXPECT_EQ(fille.Lire(L"Date_fichier"), c.date_montree);
        EXPECT_EQ(fille.Lire(L"Heure"), c.heure);
        fille.Cliquer(L"Suivant");
    }
    Attendre_fichier(fille, L"A");
    Fermer_infos(fille);
}

// A hidden file is not in the list: it is hidden after it was chosen.
TEST_F(Infos, les_cases_montrent_les_attributs_du_fichier) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    for (const std::uint32_t attributs : {1u, 2u, 4u, 32u, 3u, 6u, 39u}) {
        SCOPED_TRACE(attributs);
        Choisir({L"a.txt"});
        Attributs(Source(L"a.txt"), attributs);
        const auto fille = Ouvrir_infos();
        Verifier_cases(fille, Attributs(Source(L"a.txt")));
        fille.Cliquer(L"Fin");
        fille.Attendre_fermee();
        Attributs(Source(L"a.txt"), FILE_ATTRIBUTE_ARCHIVE);
        Attendre_fin_commande();
        Relire_source();
    }
}

TEST_F(Infos, repondre_non_laisse_le_fichier_tel_quel_et_ne_demande_plus_rien) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"b.txt"});
    const std::uint32_t avant = Attributs(Source(L"a.txt"));
    const auto          fille = Ouvrir_infos();
    fille.Cliquer(L"Caché");
    fille.Cliquer(L"Suivant");
    Attendre_question(IDNO);
    Attendre_fichier(fille, L"B.TXT");
    EXPECT_EQ(Attributs(Source(L"a.txt")), avant);
    fille.Cliquer(L"Suivant");
    Attendre_fichier(fille, L"A.TXT");
    Verifier_cases(fille, avant);
    Fermer_infos(fille);
    EXPECT_EQ(Attributs(Source(L"a.txt")), avant);
}

// The value is built from the four boxes alone; what else the file had is gone.
TEST_F(Infos, repondre_oui_donne_au_fichier_exactement_les_attributs_coches) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt", L"b.txt"});
    const auto fille = Ouvrir_infos();
    for (const std::uint32_t attributs : {1u, 6u, 33u, 39u, 4u, 3u, 32u}) {
        SCOPED_TRACE(attributs);
        Attendre_fichier(fille, L"A.TXT");
        Cocher(fille, attributs);
        fille.Cliquer(L"Suivant");
        Attendre_question(IDYES);
        Attendre_fichier(fille, L"B.TXT");
        EXPECT_EQ(Attributs(Source(L"a.txt")), Attributs_obtenus(attributs));
        fille.Cliquer(L"Précédent");
        Attendre_fichier(fille, L"A.TXT");
        Verifier_cases(fille, Attributs_obtenus(attributs));
    }
    Fermer_infos(fille);
    EXPECT_EQ(Lire_fichier(Source(L"a.txt")), Contenu(10, 1));
}

TEST_F(Infos, une_case_cliquee_deux_fois_demande_encore) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    const auto fille = Ouvrir_infos();
    for (int fois = 0; fois < 2; ++fois) {
        fille.Cliquer(L"Système");
        fille.Reposer();
    }
    fille.Cliquer(L"Fin");
    Attendre_question(IDNO);
    fille.Attendre_fermee();
}

TEST_F(Infos, le_bouton_echappement_et_la_croix_ferment_et_demandent_d_abord_ce_qui_n_est_pas_enregistre) {
    const std::function<void(const Pilote::Fille &)> gestes[] = {
        [](const Pilote::Fille & fille) { fille.Cliquer(L"Fin"); },
        [](const Pilote::Fille &) { Frapper(VK_ESCAPE); },
        [](const Pilote::Fille & fille) { fille.Fermer_par_la_croix(); },
    };
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    for (const auto & geste : gestes) {
        for (const int reponse : {IDNO, IDYES}) {
            Relire_source();
            Choisir({L"a.txt"});
            const bool protege = Attributs(Source(L"a.txt")) & FILE_ATTRIBUTE_READONLY;
            const auto fille   = Ouvrir_infos();
            fille.Cliquer(L"Lecture");
            geste(fille);
            Attendre_question(reponse);
            fille.Attendre_fermee();
            Attendre_fin_commande();
            EXPECT_EQ((Attributs(Source(L"a.txt")) & FILE_ATTRIBUTE_READONLY) != 0,
                      protege != (reponse == IDYES));
        }
    }
    Verifier_principale_utilisable();
}

TEST_F(Infos, avec_la_confirmation_la_commande_se_demande_et_non_n_ouvre_rien) {
    const std::wstring question =
        L"Vous allez CONSULTER\rles informations sur les fichiers\r\rConfirmez-vous cette commande ?";
    Regler(L"Options", L"Confirme", L"Oui");
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    Cliquer(L"Info");
    Attendre_boite(gestionnaire, question, oui_non, IDNO);
    Attendre_fin_commande();
    EXPECT_FALSE(Fenetre_infos().Ouverte());
    Alt(L'i');
    Attendre_boite(gestionnaire, question, oui_non, IDYES);
    Fenetre_infos().Attendre_ouverte();
    Fermer_infos(Fenetre_infos());
}

TEST_F(Infos, un_fichier_rendu_cache_quitte_la_liste_une_fois_la_fenetre_fermee) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    const auto fille = Ouvrir_infos();
    fille.Cliquer(L"Caché");
    fille.Cliquer(L"Fin");
    Attendre_question(IDYES);
    fille.Attendre_fermee();
    ATTENDRE(Entrees(L"Fichier_srce") == Textes{L"b.txt"});
    EXPECT_TRUE(Attributs(Source(L"a.txt")) & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(Infos, les_champs_ne_se_modifient_pas_et_cedent_le_focus) {
    Creer_source(L"a.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir({L"a.txt"});
    const auto fille = Ouvrir_infos();
    for (const wchar_t * champ : {L"Taille", L"Date_fichier", L"Heure"}) {
        const std::wstring avant = fille.Lire(champ);
        Pilote::Cliquer(fille.Controle(champ));
        fille.Reposer();
        EXPECT_NE(fille.Nom_du_focus(), champ);
        Taper(L"9");
        Frapper(VK_DELETE);
        fille.Reposer();
        EXPECT_EQ(fille.Lire(champ), avant) << Utf8(champ);
    }
    Fermer_infos(fille);
}

TEST_F(Infos, la_fenetre_s_ouvre_a_sa_place_et_se_parcourt_au_clavier) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    const auto fille = Ouvrir_infos();
    Verifier_place(fille, 430 + 45, 430 + 45);
    Verifier_clavier_et_disposition(
        fille, {L"Suivant", L"Fin", L"Caché", L"Lecture", L"Modifié", L"Système", L"Précédent"});
    for (const wchar_t * nom :
         {L"Caché", L"Lecture", L"Modifié", L"Système", L"Précédent", L"Suivant", L"Fin"})
        EXPECT_NE(fille.Lire(nom).find(L'&'), std::wstring::npos) << Utf8(nom);
    Fermer_infos(fille);
}

TEST_F(Infos, l_aide_a_le_texte_de_chaque_element) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    Activer_aide();
    const auto fille = Ouvrir_infos();
    Verifier_aide(
        fille,
        {{L"Caché",
          L"  Cette case indique, si elle est cochée, que le fichier ne sera pas visible dans les listes de "
          L"fichiers (sauf si l'option 'Lister les fichiers cachés' est validée)."},
         {L"Lecture",
          L"  Cette case indique, si elle est cochée, que le fichier ne peut pas être modifié ou effacé, "
          L"vous ne pouvez que le lire ou l'exécuter."},
         {L"Modifié",
          L"  Cette case indique, si elle est cochée, que le fichier a été créé ou modifié après la "
          L"dernière sauvegarde."},
         {L"Système", L"  Cette case indique, si elle est cochée, que le fichier est réservé au système."},
         {L"Taille",
          L"  Ce champ indique la taille du fichier en octets (un octet = un caractère), vous ne pouvez pas "
          L"la modifier."},
         {L"Précédent",
          L"  Ce bouton permet, lorsque plusieurs fichiers sont sélectionnés, de les consulter en "
          L"remontant la liste. Arrivé au premier fichier, vous passez au dernier et ainsi de suite."},
         {L"Suivant",
          L"  Ce bouton permet, lorsque plusieurs fichiers sont sélectionnés, de les consulter en "
          L"descendant la liste. Arrivé au dernier fichier, vous passez au premier et ainsi de suite."}});
    Frapper(VK_ESCAPE);
    fille.Attendre_fermee();
    Attendre_rappel_aide();
}

// The next file is shown without the focus moving: its boxes can be changed by the keyboard, file after file.
TEST_F(Infos, une_lettre_d_acces_passe_au_suivant_et_laisse_le_focus_sur_sa_case) {
    Creer_source(L"a.txt", 10);
    Creer_source(L"b.txt", 10);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    const auto fille = Ouvrir_infos();
    while (fille.Nom_du_focus() != L"Lecture" && !HasFailure()) {
        const std::wstring avant = fille.Nom_du_focus();
        Frapper(VK_TAB);
        ATTENDRE(fille.Nom_du_focus() != avant);
    }
    for (const wchar_t * nom : {L"B.TXT", L"A.TXT"}) {
        Alt(L's');
        Attendre_fichier(fille, nom);
        fille.Reposer();
        ATTENDRE(fille.Nom_du_focus() == L"Lecture");
    }
    Frapper(VK_SPACE);
    ATTENDRE(fille.Est_coche(L"Lecture"));
    Alt(L's');
    Attendre_question(IDNO);
    Attendre_fichier(fille, L"B.TXT");
    ATTENDRE(fille.Nom_du_focus() == L"Lecture");
    Fermer_infos(fille);
}

TEST_F(Infos, deux_clics_rapides_passent_deux_fichiers) {
    for (const wchar_t * nom : {L"a.txt", L"b.txt", L"c.txt", L"d.txt"}) Creer_source(nom, 10);
    Lancer_dans_les_dossiers();
    Choisir_tout();
    const auto fille = Ouvrir_infos();
    Pilote::Double_cliquer(Centre(fille.Controle(L"Suivant")));
    Attendre_fichier(fille, L"C.TXT");
    Pilote::Double_cliquer(Centre(fille.Controle(L"Précédent")));
    Attendre_fichier(fille, L"A.TXT");
    Fermer_infos(fille);
}

// The count takes more room than the columns it has for small numbers.
TEST_F(Infos, dix_mille_fichiers_choisis_se_parcourent) {
    ASSERT_TRUE(Sur_hote(source, L"seq -f f%05g 1 10000 | xargs touch"));
    Lancer_dans_les_dossiers();
    Choisir_tout();
    EXPECT_NE(Lire(L"Ligne_message").find(L"10000 fichiers"), std::wstring::npos)
        << Utf8(Lire(L"Ligne_message"));
    const auto fille = Ouvrir_infos();
    Attendre_fichier(fille, L"F00001");
    EXPECT_TRUE(fille.Est_actif(L"Suivant"));
    fille.Cliquer(L"Précédent");
    Attendre_fichier(fille, L"F10000");
    fille.Cliquer(L"Suivant");
    Attendre_fichier(fille, L"F00001");
    Fermer_infos(fille);
}
