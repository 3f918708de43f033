#include "fenetres/corbeille.h"

#include <cstring>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

class Corbeille_limites : public Corbeille {
protected:
    // Three files of 600 bytes, erased ten, five and no days ago.
    void Mettre_trois() {
        Mettre(Source(L"un.txt"), 600, 1, aujourd_hui - 10, 1);
        Mettre(Source(L"deux.txt"), 600, 2, aujourd_hui - 5, 2);
        Mettre(Source(L"trois.txt"), 600, 3, aujourd_hui, 3);
    }
    void Fixer(const Pilote::Fille & fille, const std::wstring & taille, const std::wstring & temps) {
        taille.empty() ? fille.Vider(L"Taille") : fille.Remplacer(L"Taille", taille);
        temps.empty() ? fille.Vider(L"Temps") : fille.Remplacer(L"Temps", temps);
    }
    // What is allowed for the field that holds something else.
    void Attendre_refus(const std::wstring & champ) {
        Attendre_avertissement(champ == L"Taille"
                                   ? L"La taille de la corbeille doit être comprise entre 1 et 9999,\r"
                                     L"exprimée en Kilo-octets de 1024 caractères."
                                   : L"Le temps de conservation doit être compris entre 1 et 999,\r"
                                     L"en nombre de jours calendaires.");
    }
    // No other box comes, and the window stays.
    void Verifier_seule_boite(const Pilote::Fille & fille) {
        EXPECT_FALSE(Attendre([this] { return !Boite_absente(); }, 400));
        EXPECT_TRUE(fille.Ouverte());
    }
    void Attendre_perte(int reponse) {
        Attendre_boite(
            gestionnaire,
            L"Attention ! La corbeille contient des fichiers que vous allez perdre si vous ne saisissez "
            L"pas une taille ou un temps.\rConfirmez-vous la suppression de la corbeille ?",
            oui_non, reponse);
    }
    Textes Restants() const {
        Textes restants;
        for (const std::wstring & nom : Noms(source)) restants.push_back(nom.substr(nom.size() - 3));
        return restants;
    }

    static bool Mettre_au_presse_papiers(const std::wstring & texte) {
        if (!OpenClipboard(nullptr)) return false;
        EmptyClipboard();
        const std::size_t octets = (texte.size() + 1) * sizeof(wchar_t);
        const HGLOBAL     bloc   = GlobalAlloc(GMEM_MOVEABLE, octets);
        std::memcpy(GlobalLock(bloc), texte.c_str(), octets);
        GlobalUnlock(bloc);
        const bool fait = SetClipboardData(CF_UNICODETEXT, bloc) != nullptr;
        CloseClipboard();
        return fait;
    }

    const int aujourd_hui = Aujourd_hui();
};

TEST_F(Corbeille_limites, la_fermeture_enregistre_une_seule_des_deux_limites_et_la_taille_l_emporte) {
    struct Cas {
        const wchar_t *taille, *temps;
        const wchar_t *cle_taille, *cle_temps;
    };
    const Cas cas[] = {
        {L"500", L"", L"500", L"absente"},   {L"", L"30", L"absente", L"30"},
        {L"120", L"15", L"120", L"absente"}, {L"9999", L"", L"9999", L"absente"},
        {L"", L"999", L"absente", L"999"},   {L"1", L"1", L"1", L"absente"},
        {L"", L"1", L"absente", L"1"},       {L"", L"", L"absente", L"absente"},
    };
    Ecrire_index();
    Lancer_dans_les_dossiers();
    for (const Cas & c : cas) {
        SCOPED_TRACE(Utf8(std::wstring(c.taille) + L" / " + c.temps));
        const auto fille = Rouvrir_corbeille();
        Fixer(fille, c.taille, c.temps);
        Terminer(fille);
        EXPECT_EQ(Utf8(Cle(L"Taille")), Utf8(c.cle_taille));
        EXPECT_EQ(Utf8(Cle(L"Temps")), Utf8(c.cle_temps));
        const auto encore   = Rouvrir_corbeille();
        const auto attendue = [](const std::wstring & cle) { return cle == L"absente" ? L"" : cle; };
        EXPECT_EQ(Utf8(encore.Lire(L"Taille")), Utf8(attendue(c.cle_taille)));
        EXPECT_EQ(Utf8(encore.Lire(L"Temps")), Utf8(attendue(c.cle_temps)));
        Terminer(encore);
    }
}

TEST_F(Corbeille_limites, les_champs_ne_prennent_que_des_chiffres_quatre_et_trois) {
    const auto fille = Ouvrir_corbeille();
    fille.Vider(L"Taille");
    Taper(L"a1-2,b3 4.567é");
    ATTENDRE(fille.Lire(L"Taille") == L"1234");
    fille.Vider(L"Temps");
    Taper(L"x9+8z76");
    ATTENDRE(fille.Lire(L"Temps") == L"987");
    EXPECT_TRUE(fille.Ouverte());
}

TEST_F(Corbeille_limites, un_texte_colle_ne_garde_que_ses_chiffres) {
    const auto fille = Ouvrir_corbeille();
    fille.Vider(L"Taille");
    ASSERT_TRUE(Mettre_au_presse_papiers(L"a1 2b"));
    Frapper_avec(VK_CONTROL, 'V');
    ATTENDRE(fille.Lire(L"Taille") == L"12");
    Frapper(VK_RETURN);
    fille.Attendre_fermee();
    EXPECT_EQ(Cle(L"Taille"), L"12");
}

// Escape and the corner leave without touching the limits, even those that a refused destruction had already taken away.
TEST_F(Corbeille_limites, renoncer_laisse_les_limites_comme_elles_etaient) {
    Mettre_trois();
    auto fille = Ouvrir_corbeille();
    for (const bool clavier : {true, false}) {
        Fixer(fille, L"1", L"");
        clavier ? Frapper(VK_ESCAPE) : fille.Fermer_par_la_croix();
        fille.Attendre_fermee();
        EXPECT_EQ(Cle(L"Taille"), L"9999");
        fille = Rouvrir_corbeille();
        EXPECT_EQ(fille.Lire(L"Taille"), L"9999");
    }
    Fixer(fille, L"", L"");
    fille.Cliquer(L"Fin");
    Attendre_perte(IDNO);
    EXPECT_EQ(Cle(L"Taille"), L"absente");
    Frapper(VK_ESCAPE);
    fille.Attendre_fermee();
    EXPECT_EQ(Cle(L"Taille"), L"9999");
    EXPECT_EQ(Lignes_index(), Lignes());
    EXPECT_EQ(Restants().size(), 3u);
}

TEST_F(Corbeille_limites, des_reglages_proteges_en_ecriture_sont_signales_et_la_fenetre_reste) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    Attributs(Fichier_ini(), FILE_ATTRIBUTE_READONLY);
    Fixer(fille, L"1", L"");
    fille.Cliquer(L"Fin");
    Attendre_protege(L"KORVANE.INI");
    EXPECT_TRUE(fille.Ouverte());
    EXPECT_EQ(Cle(L"Taille"), L"9999");
    EXPECT_EQ(Lignes_index(), Lignes());
    Attributs(Fichier_ini(), FILE_ATTRIBUTE_ARCHIVE);
    Fixer(fille, L"50", L"");
    Terminer(fille);
    EXPECT_EQ(Cle(L"Taille"), L"50");
}

// Read as they are then, they would be no limits at all: the bin would be out of use, and the next erasure final.
TEST_F(Corbeille_limites, des_reglages_verrouilles_laissent_la_corbeille_en_service_avec_sa_limite) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    HANDLE verrou = CreateFileW(Fichier_ini().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(verrou, INVALID_HANDLE_VALUE);
    Fixer(fille, L"1", L"");
    fille.Cliquer(L"Fin");
    Attendre_protege(L"KORVANE.INI");
    CloseHandle(verrou);
    fille.Fermer_par_la_croix();
    fille.Attendre_fermee();
    const auto rouverte = Rouvrir_corbeille();
    EXPECT_EQ(rouverte.Lire(L"Taille"), L"9999");
    Attendre_restants(rouverte, 3);
}

// The defaults of the start are no limits either.
TEST_F(Corbeille_limites,
       des_limites_que_le_demarrage_n_a_pu_lire_le_sont_avant_d_effacer_et_d_ouvrir_la_fenetre) {
    Creer_source(L"a.txt", 10);
    Mettre_trois();
    Terminer(Ouvrir_corbeille());
    Fermer();
    HANDLE verrou = CreateFileW(Fichier_ini().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(verrou, INVALID_HANDLE_VALUE);
    programme = std::make_unique<Programme>(dossier / L"programme\\KORVANE.EXE", L"", dossier.Chemin());
    const std::wstring message = L"Disquette protégée en écriture\rou fichier verrouillé.";
    Attendre_avertissement(message);
    Attendre_pret();
    Ouvrir(L"srce", source);
    Choisir({L"a.txt"});
    for (const wchar_t * bouton : {L"Effacer", L"Corbeille"}) {
        Cliquer(bouton);
        Attendre_avertissement(message);
    }
    EXPECT_TRUE(Existe(Source(L"a.txt")));
    EXPECT_FALSE(Fenetre_corbeille().Ouverte());
    CloseHandle(verrou);
    const auto fille = Rouvrir_corbeille();
    EXPECT_EQ(fille.Lire(L"Taille"), L"9999");
    Attendre_restants(fille, 3);
    Terminer(fille);
    EXPECT_EQ(Cle(L"Taille"), L"9999");
}

TEST_F(Corbeille_limites, zero_est_refuse_la_fenetre_reste_et_rien_n_est_ecrit_ni_purge) {
    Mettre_trois();
    const auto                                        fille   = Ouvrir_corbeille();
    const std::pair<const wchar_t *, const wchar_t *> refus[] = {
        {L"0", L""}, {L"0000", L""}, {L"", L"0"}, {L"", L"000"}};
    for (const auto & [taille, temps] : refus) {
        Fixer(fille, taille, temps);
        fille.Cliquer(L"Fin");
        SCOPED_TRACE(Utf8(std::wstring(taille) + L" / " + temps));
        Attendre_refus(*taille ? L"Taille" : L"Temps");
        EXPECT_TRUE(fille.Ouverte());
        ATTENDRE(fille.Nom_du_focus() == (*taille ? L"Taille" : L"Temps"));
        EXPECT_EQ(Cle(L"Taille"), L"9999");
    }
    EXPECT_EQ(Lignes_index(), Lignes());
    Fixer(fille, L"2", L"");
    Terminer(fille);
    EXPECT_EQ(Cle(L"Taille"), L"2");
}

TEST_F(Corbeille_limites, une_taille_plus_petite_purge_les_plus_anciens_a_la_fermeture) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    Fixer(fille, L"1", L"");
    Terminer(fille);
    EXPECT_EQ(Restants(), Textes{L"003"});
    EXPECT_EQ(Lignes_index(), std::vector<std::string>{Lignes()[2]});
    EXPECT_EQ(Cle(L"Total"), L"600");
}

TEST_F(Corbeille_limites, un_temps_plus_court_purge_les_fichiers_perimes_et_garde_le_dernier) {
    struct Cas {
        const wchar_t * jours;
        std::size_t     restants;
    };
    Mettre_trois();
    Ecrire_index();
    Lancer_dans_les_dossiers();
    for (const Cas & cas : {Cas{L"10", 3}, Cas{L"9", 2}, Cas{L"4", 1}, Cas{L"1", 1}}) {
        SCOPED_TRACE(Utf8(cas.jours));
        const auto fille = Rouvrir_corbeille();
        Fixer(fille, L"", cas.jours);
        Terminer(fille);
        EXPECT_EQ(Restants().size(), cas.restants);
        const auto toutes = Lignes();
        EXPECT_EQ(Lignes_index(),
                  std::vector<std::string>(toutes.end() - static_cast<int>(cas.restants), toutes.end()));
        EXPECT_EQ(Cle(L"Total"), std::to_wstring(cas.restants * 600));
    }
}

TEST_F(Corbeille_limites, vider_les_deux_champs_avec_des_fichiers_demande_et_non_garde_tout) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    Fixer(fille, L"", L"");
    fille.Cliquer(L"Fin");
    Attendre_perte(IDNO);
    EXPECT_TRUE(fille.Ouverte());
    EXPECT_EQ(Cle(L"Taille"), L"absente");
    EXPECT_EQ(Cle(L"Temps"), L"absente");
    EXPECT_EQ(Lignes_index(), Lignes());
    EXPECT_EQ(Restants().size(), 3u);
    // A limit filled in again puts the bin in use again.
    Fixer(fille, L"50", L"");
    Terminer(fille);
    EXPECT_EQ(Cle(L"Taille"), L"50");
    EXPECT_EQ(Lignes_index(), Lignes());
    const auto encore = Rouvrir_corbeille();
    EXPECT_EQ(encore.Entrees(L"Fichier_effacé").size(), 3u);
    Terminer(encore);
}

TEST_F(Corbeille_limites, repondre_oui_detruit_les_fichiers_l_index_et_le_total) {
    Mettre_trois();
    Creer_source(L"a.txt", 1);
    const auto fille = Ouvrir_corbeille();
    Fixer(fille, L"", L"");
    fille.Cliquer(L"Fin");
    Attendre_perte(IDYES);
    fille.Attendre_fermee();
    EXPECT_EQ(Noms(source), Textes{L"a.txt"});
    EXPECT_FALSE(Existe(index));
    for (const wchar_t * cle : {L"Taille", L"Temps", L"Total"}) EXPECT_EQ(Cle(cle), L"absente") << Utf8(cle);
    Verifier_principale_utilisable();
    // The bin is not in use any more: an erasure says so.
    Choisir({L"a.txt"});
    Cliquer(L"Effacer");
    Attendre_boite(L"Attention !  Corbeille absente",
                   L"Vous allez EFFACER le fichier 'a.txt' du répertoire\r" + source +
                       L"\rConfirmez-vous cette commande ?",
                   oui_non, IDNO);
    Attendre_fin_commande();
}

TEST_F(Corbeille_limites, vider_les_champs_d_une_corbeille_vide_ferme_sans_question) {
    const auto fille = Ouvrir_corbeille();
    Fixer(fille, L"", L"");
    Terminer(fille);
    EXPECT_EQ(Cle(L"Taille"), L"absente");
}

// What the user wrote into the settings by hand must not cost a file.
TEST_F(Corbeille_limites, une_limite_incorrecte_des_reglages_est_montree_et_ne_purge_rien_avant_correction) {
    Mettre_trois();
    Regler(L"Corbeille", L"Taille", L"0");
    const auto fille = Ouvrir_corbeille();
    EXPECT_EQ(fille.Lire(L"Taille"), L"0");
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé").size(), 3u);
    EXPECT_EQ(Lignes_index(), Lignes());
    Fixer(fille, L"1", L"");
    Terminer(fille);
    EXPECT_EQ(Lignes_index(), std::vector<std::string>{Lignes()[2]});
}

TEST_F(Corbeille_limites, un_texte_des_reglages_qui_n_est_pas_un_nombre_est_montre_et_refuse) {
    for (const auto & [cle, texte] : {std::pair{L"Taille", L"abc"}, {L"Taille", L"-5"}, {L"Temps", L"abc"}}) {
        SCOPED_TRACE(Utf8(std::wstring(cle) + L"=" + texte));
        Fermer();
        Ne_pas_regler(L"Corbeille", L"Taille");
        Regler(L"Corbeille", cle, texte);
        if (Lignes().empty()) Mettre_trois();
        const auto fille = Ouvrir_corbeille();
        EXPECT_EQ(fille.Lire(cle), texte);
        EXPECT_EQ(fille.Entrees(L"Fichier_effacé").size(), 3u);
        fille.Cliquer(L"Fin");
        Attendre_refus(cle);
        ATTENDRE(fille.Nom_du_focus() == cle);
        EXPECT_EQ(Cle(cle), texte);
        EXPECT_EQ(Lignes_index(), Lignes());
        Frapper(VK_ESCAPE);
        fille.Attendre_fermee();
    }
    EXPECT_EQ(Restants().size(), 3u);
}

TEST_F(Corbeille_limites, entree_dans_un_champ_ne_ferme_et_ne_demande_qu_une_fois) {
    Mettre_trois();
    const auto fille = Ouvrir_corbeille();
    for (const wchar_t * champ : {L"Taille", L"Temps"}) {
        Fixer(fille, L"", L"");
        fille.Remplacer(champ, L"0");
        Frapper(VK_RETURN);
        Attendre_refus(champ);
        Verifier_seule_boite(fille);
        fille.Vider(champ);
        Frapper(VK_RETURN);
        Attendre_perte(IDNO);
        Verifier_seule_boite(fille);
    }
    EXPECT_EQ(Lignes_index(), Lignes());
    fille.Remplacer(L"Temps", L"999");
    Frapper(VK_RETURN);
    fille.Attendre_fermee();
    EXPECT_EQ(Cle(L"Temps"), L"999");
}

// The question is about what would be lost: files without a byte stay where they are, and can be restored later.
TEST_F(Corbeille_limites, une_corbeille_de_fichiers_vides_se_ferme_sans_question_et_les_garde) {
    Mettre(Source(L"un.txt"), 0, 1, aujourd_hui, 1);
    Mettre(Source(L"deux.txt"), 0, 1, aujourd_hui, 2);
    const auto fille = Ouvrir_corbeille();
    Fixer(fille, L"", L"");
    Terminer(fille);
    EXPECT_EQ(Cle(L"Taille"), L"absente");
    EXPECT_EQ(Lignes_index(), Lignes());
    EXPECT_EQ(Restants().size(), 2u);
    auto encore = Rouvrir_corbeille();
    EXPECT_EQ(encore.Entrees(L"Fichier_effacé"), Textes{});
    Fixer(encore, L"100", L"");
    Terminer(encore);
    encore = Rouvrir_corbeille();
    EXPECT_EQ(encore.Entrees(L"Fichier_effacé").size(), 2u);
}

TEST_F(Corbeille_limites, un_fichier_tenu_par_un_autre_programme_est_nomme_et_reste_avec_la_fenetre) {
    Mettre_trois();
    const auto         fille = Ouvrir_corbeille();
    const std::wstring code  = Source(L"crb" + std::to_wstring(aujourd_hui - 5) + L".002");
    const HANDLE       prise =
        CreateFileW(code.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(prise, INVALID_HANDLE_VALUE);
    Fixer(fille, L"", L"");
    fille.Cliquer(L"Fin");
    Attendre_perte(IDYES);
    Attendre_avertissement(L"Disquette protégée en écriture\rou fichier verrouillé.");
    EXPECT_TRUE(fille.Ouverte());
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé"), Textes{Source(L"deux.txt")});
    EXPECT_TRUE(En_corbeille(source, aujourd_hui - 5, 2));
    EXPECT_EQ(Lignes_index(), std::vector<std::string>{Lignes()[1]});
    EXPECT_EQ(Cle(L"Total"), L"600");
    CloseHandle(prise);
    fille.Cliquer(L"Fin");
    Attendre_perte(IDYES);
    fille.Attendre_fermee();
    EXPECT_EQ(Noms(source), Textes{});
    EXPECT_FALSE(Existe(index));
}

// The disk that a record names may be plugged in again: the bin can be given up without it, and its file is not forgotten.
TEST_F(Corbeille_limites, une_unite_absente_n_empeche_pas_de_renoncer_a_la_corbeille) {
    Mettre_trois();
    const std::string loin = "crb" + std::to_string(aujourd_hui) + ".004 00000010 loin.txt Q:\\LOIN\\";
    Ajouter_ligne(loin);
    const auto fille = Ouvrir_corbeille();
    EXPECT_EQ(fille.Entrees(L"Fichier_effacé").size(), 4u);
    Fixer(fille, L"", L"");
    fille.Cliquer(L"Fin");
    Attendre_perte(IDYES);
    fille.Attendre_fermee();
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(Noms(source), Textes{});
    EXPECT_EQ(Lignes_index(), std::vector<std::string>{loin});
    EXPECT_EQ(Cle(L"Total"), L"absente");
    Verifier_principale_utilisable();
}
