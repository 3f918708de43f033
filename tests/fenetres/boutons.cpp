#include "fenetres/programmes_lances.h"

using namespace Pilote;

using Textes = std::vector<std::wstring>;

// The buttons that the user has programmed.
class Boutons : public Programmes_lances {
protected:
    static constexpr const wchar_t * deprogramme =
        L"Bouton déprogrammé, reprogrammez-le (commande 'Configurer', option 'Boutons') ou relancez KORVANE "
        L"pour supprimer le bouton.";
    static constexpr const wchar_t * sans_extension =
        L"Il manque l'extension du programme ou du fichier paramètré : modifiez avec la commande "
        L"'Configurer', option 'Boutons'.";

    const std::wstring outils     = dossier / L"outils";
    const std::wstring mes_outils = dossier / L"Mes outils";

    void Programmer(const std::wstring & cle, const std::wstring & valeur) {
        Regler(L"Boutons", cle, valeur);
    }
    void Lancer_sur_source() {
        Lancer();
        Ouvrir(L"srce", source);
    }
    // As another program edits the settings; no value removes the entry.
    void Reprogrammer(const std::wstring & cle, const wchar_t * valeur) const {
        EXPECT_TRUE(WritePrivateProfileStringW(L"Boutons", cle.c_str(), valeur, Fichier_ini().c_str()));
    }
    std::wstring Nom_du_bouton(const std::wstring & caption) {
        for (int i = 0; i < 7; ++i) {
            const std::wstring nom = L"Bouton(" + std::to_wstring(i) + L")";
            if (Se_voit(nom) && Lire(nom) == caption) return nom;
        }
        ADD_FAILURE() << "aucun bouton " << Utf8(caption);
        return L"Bouton(0)";
    }
    void   Cliquer_bouton(const std::wstring & caption) { Commencer(Nom_du_bouton(caption)); }
    Textes Captions() const {
        Textes captions;
        for (int i = 0; i < 7; ++i) {
            const std::wstring nom = L"Bouton(" + std::to_wstring(i) + L")";
            if (Se_voit(nom)) captions.push_back(Lire(nom));
        }
        return captions;
    }
    void Passer_aux_suivants() {
        Alt(L'n');
        Reposer(Principale());
    }
    void Attendre_arret(const std::wstring & titre, const std::wstring & texte) {
        Attendre_boite(titre, texte, MB_OK | MB_ICONHAND, IDOK);
    }
    void Attendre_parametres(const std::wstring & titre, const std::wstring & cible,
                             const std::wstring & repertoire, const wchar_t * texte,
                             const std::wstring & bouton = L"OK") {
        Attendre_saisie(titre,
                        L"Entrez le(s) paramètre(s) de la commande " + cible + L"\rRépertoire de travail :" +
                            Capitales(repertoire),
                        L"", texte, bouton);
    }
};

TEST_F(Boutons, un_bouton_lance_son_programme_une_fois_dans_le_repertoire_de_celui_ci) {
    Installer_enregistreur(outils + L"\\X.EXE");
    Installer_enregistreur(outils + L"\\Z.com");
    Installer_enregistreur(mes_outils + L"\\X.EXE");
    Installer_enregistreur(Source(L"ICI.EXE"));
    Installer_lot(outils + L"\\lot.bat", outils + L"\\X.EXE");
    Programmer(L"&Jeu", outils + L"\\X.EXE");
    Programmer(L"Été à Noël", mes_outils + L"\\X.EXE");
    Programmer(L"Cité", L"\"" + mes_outils + L"\\X.EXE\" /N=1 \"b c\"");
    Programmer(L"Pelle && râteau", outils + L"\\Z.com");
    Programmer(L"Sans répertoire", L"ICI.EXE");
    Programmer(L"Lot", outils + L"\\lot.bat");
    Lancer_sur_source();
    EXPECT_EQ(Captions(),
              (Textes{L"&Jeu", L"Été à Noël", L"Cité", L"Pelle && râteau", L"Sans répertoire", L"Lot"}));
    EXPECT_FALSE(Se_voit(L"Bouton_suite"));
    Cliquer_bouton(L"&Jeu");
    Attendre_lance(outils + L"\\X.EXE", outils);
    Alt(L'j');
    Attendre_lance(outils + L"\\X.EXE", outils);
    Cliquer_bouton(L"Été à Noël");
    Attendre_lance(L"\"" + mes_outils + L"\\X.EXE\"", mes_outils);
    Cliquer_bouton(L"Cité");
    Attendre_lance(L"\"" + mes_outils + L"\\X.EXE\" /N=1 \"b c\"", mes_outils);
    // The second click of a double click starts nothing again.
    Double_cliquer(Centre(Controle(Nom_du_bouton(L"Pelle && râteau"))));
    Attendre_lance(outils + L"\\Z.com", outils);
    Cliquer_bouton(L"Sans répertoire");
    Attendre_lance(L"ICI.EXE", source);
    Cliquer_bouton(L"Lot");
    Attendre_lance(L"\"" + outils + L"\\X.EXE\" ", outils, etat_lot);
    EXPECT_TRUE(Est_actif(L"Croiser"));
    EXPECT_TRUE(Boite_absente());
}

TEST_F(Boutons, un_fichier_de_parametres_verrouille_n_est_pas_pris_pour_une_entree_effacee) {
    Installer_enregistreur(outils + L"\\X.EXE");
    for (int i = 1; i <= 8; ++i) Programmer(L"Bouton " + std::to_wstring(i), outils + L"\\X.EXE");
    Lancer_sur_source();
    HANDLE verrou = CreateFileW(Fichier_ini().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(verrou, INVALID_HANDLE_VALUE);
    for (const wchar_t * bouton : {L"Bouton(0)", L"Bouton_suite"}) {
        Commencer(bouton);
        Attendre_avertissement(L"Disquette protégée en écriture\rou fichier verrouillé.");
        EXPECT_EQ(Captions().front(), L"Bouton 1");
    }
    CloseHandle(verrou);
    Cliquer_bouton(L"Bouton 1");
    Attendre_lance(outils + L"\\X.EXE", outils);
}

// The associations of the tests, of an extension that nothing else has.
class Boutons_associations : public Boutons {
protected:
    ~Boutons_associations() override {
        Associer(L"zzd", nullptr);
        Associer(L"zze", nullptr);
    }
    static void Associer(const wchar_t * extension, const wchar_t * valeur) {
        EXPECT_TRUE(WriteProfileStringW(L"Extensions", extension, valeur) || valeur == nullptr);
    }
};

TEST_F(Boutons_associations, un_document_est_ouvert_par_le_programme_associe_dans_le_repertoire_du_document) {
    const std::wstring editeur = mes_outils + L"\\ED.EXE";
    Installer_enregistreur(editeur);
    Installer_enregistreur(outils + L"\\ED.EXE");
    Creer_fichier(dossier / L"Mes notes\\à lire.zzd", "x");
    Creer_source(L"notes.zzd", 1);
    Programmer(L"Lire", dossier / L"Mes notes\\à lire.zzd");
    Programmer(L"Cité", L"\"" + (dossier / L"Mes notes\\à lire.zzd") + L"\" ?");
    Programmer(L"Notes", Source(L"notes.zzd"));
    Programmer(L"Ici", L"notes.zzd");
    Programmer(L"&Inconnu", Source(L"notes.zze"));
    Associer(L"zzd", (editeur + L" /N=1 ^.zzd").c_str());
    Lancer_sur_source();
    const std::wstring ouvreur = L"\"" + editeur + L"\" /N=1 ";
    const std::wstring a_lire  = L"\"" + (dossier / L"Mes notes\\à lire.zzd") + L"\"";
    Cliquer_bouton(L"Lire");
    Attendre_lance(ouvreur + a_lire, dossier / L"Mes notes");
    Cliquer_bouton(L"Cité");
    Attendre_parametres(L"BOUTON 'Cité'", dossier / L"Mes notes\\à lire.zzd", dossier / L"Mes notes",
                        L"vite");
    Attendre_lance(ouvreur + a_lire + L" vite", dossier / L"Mes notes");
    Cliquer_bouton(L"Notes");
    Attendre_lance(ouvreur + Source(L"notes.zzd"), source);
    Cliquer_bouton(L"Ici");
    Attendre_lance(ouvreur + L"notes.zzd", source);
    // No program, then an association that names none, then one.
    for (const wchar_t * valeur : {static_cast<const wchar_t *>(nullptr), L" ^.zze"}) {
        Associer(L"zze", valeur);
        Cliquer_bouton(L"&Inconnu");
        Attendre_arret(
            L"BOUTON 'Inconnu'",
            L"Pas de programme associé aux fichiers\rayant l'extension 'ZZE' :\rutilisez la commande "
            L"'Configurer', option 'Associer' pour le définir.");
    }
    Associer(L"zze", (outils + L"\\ED.EXE ^.zze").c_str());
    Cliquer_bouton(L"&Inconnu");
    Attendre_lance(outils + L"\\ED.EXE " + Source(L"notes.zze"), source);
}

TEST_F(Boutons, la_marque_fait_demander_les_parametres_et_sans_reponse_rien_n_est_lance) {
    Installer_enregistreur(outils + L"\\X.EXE");
    Installer_enregistreur(Source(L"ICI.EXE"));
    Installer_lot(outils + L"\\lot.bat", outils + L"\\X.EXE", L"seul");
    Programmer(L"&Avec", outils + L"\\X.EXE ?");
    Programmer(L"Ici", L"ICI.EXE ?");
    Programmer(L"Lot", outils + L"\\lot.bat ?");
    Installer_enregistreur(outils + L"\\AUTRE.EXE");
    Lancer_sur_source();
    const std::wstring titre = L"BOUTON 'Avec'";
    const std::wstring x     = outils + L"\\X.EXE";
    Cliquer_bouton(L"&Avec");
    Attendre_parametres(titre, x, outils, nullptr);
    Cliquer_bouton(L"&Avec");
    Attendre_parametres(titre, x, outils, L"perdu", L"Annuler");
    Rien_de_plus();
    EXPECT_TRUE(Est_actif(L"Croiser"));
    Cliquer_bouton(L"&Avec");
    Attendre_parametres(titre, x, outils, L"/a");
    Attendre_lance(x + L" /a", outils);
    Cliquer_bouton(L"&Avec");
    Attendre_parametres(titre, x, outils, L"un fichier.txt");
    Attendre_lance(x + L" \"un fichier.txt\"", outils);
    Cliquer_bouton(L"&Avec");
    Attendre_parametres(titre, x, outils, L" ");
    Attendre_lance(x + L" \" \"", outils);
    Cliquer_bouton(L"Ici");
    Attendre_parametres(L"BOUTON 'Ici'", L"ICI.EXE", source, L"é");
    Attendre_lance(L"ICI.EXE é", source);
    // What the command interpreter would take for the end of the command is a parameter like any other.
    Cliquer_bouton(L"Lot");
    Attendre_parametres(L"BOUTON 'Lot'", outils + L"\\lot.bat", outils, L"a&AUTRE.EXE");
    Attendre_lance(L"\"" + outils + L"\\X.EXE\" seul", outils, etat_lot);
    Rien_de_plus();
}

TEST_F(Boutons, une_entree_effacee_ou_sans_extension_est_signalee_et_la_suite_fonctionne) {
    Installer_enregistreur(outils + L"\\X.EXE");
    Programmer(L"&Parti", outils + L"\\X.EXE");
    Programmer(L"Nu", outils + L"\\X");
    Programmer(L"&Bon", outils + L"\\X.EXE");
    Lancer_sur_source();
    Cliquer_bouton(L"&Parti");
    Attendre_lance(outils + L"\\X.EXE", outils);
    Reprogrammer(L"&Parti", nullptr);
    Cliquer_bouton(L"&Parti");
    Attendre_arret(L"BOUTON 'Parti'", deprogramme);
    Cliquer_bouton(L"Nu");
    Attendre_arret(L"BOUTON 'Nu'", sans_extension);
    EXPECT_TRUE(Est_actif(L"Croiser"));
    // What the entry says now holds, without a new start.
    Reprogrammer(L"Nu", (outils + L"\\X.EXE").c_str());
    Cliquer_bouton(L"Nu");
    Attendre_lance(outils + L"\\X.EXE", outils);
    Cliquer_bouton(L"&Bon");
    Attendre_lance(outils + L"\\X.EXE", outils);
}

TEST_F(Boutons, un_programme_qui_ne_part_pas_est_nomme_et_la_fenetre_reste_utilisable) {
    Installer_enregistreur(outils + L"\\X.EXE");
    Creer_fichier(outils + L"\\faux.exe", "ce n'est pas un programme");
    Programmer(L"Ailleurs", dossier / L"absent\\X.EXE ?");
    Programmer(L"Absent", outils + L"\\Pas là.exe");
    Programmer(L"Faux", outils + L"\\faux.exe");
    Programmer(L"Bon", outils + L"\\X.EXE");
    Lancer_sur_source();
    Cliquer_bouton(L"Ailleurs");
    Attendre_avertissement(L"Chemin d'accès introuvable\rou support absent.");
    Cliquer_bouton(L"Absent");
    Attendre_avertissement(
        L"Un nom de fichier comporte un caractère invalide ou bien le fichier PAS LÀ.EXE est "
        L"introuvable ou les attributs 'Système/Caché' sont présents.");
    Cliquer_bouton(L"Faux");
    Attendre_avertissement(L"Fichier non exécutable :FAUX.EXE\rseuls les programmes avec les extensions COM, "
                           L"EXE, BAT ou PIF sont exécutables.");
    EXPECT_TRUE(Est_actif(L"Croiser"));
    ATTENDRE(Nom_du_focus() == Nom_du_bouton(L"Faux"));
    Cliquer_bouton(L"Bon");
    Attendre_lance(outils + L"\\X.EXE", outils);
}

TEST_F(Boutons, quand_les_commandes_se_confirment_non_ne_lance_rien) {
    Regler(L"Options", L"Confirme", L"Oui");
    Installer_enregistreur(outils + L"\\X.EXE");
    Programmer(L"&Jeu", outils + L"\\X.EXE");
    Programmer(L"Nu", L"X");
    Lancer_sur_source();
    const std::wstring question =
        L"Vous allez EXECUTER\rla commande 'Jeu'\r\rConfirmez-vous cette commande ?";
    Cliquer_bouton(L"&Jeu");
    Attendre_boite(gestionnaire, question, oui_non, IDNO);
    Rien_de_plus();
    Cliquer_bouton(L"&Jeu");
    Attendre_boite(gestionnaire, question, oui_non, IDYES);
    Attendre_lance(outils + L"\\X.EXE", outils);
    // What cannot be started is not asked about.
    Cliquer_bouton(L"Nu");
    Attendre_arret(L"BOUTON 'Nu'", sans_extension);
}

TEST_F(Boutons, le_bouton_suivants_fait_defiler_seize_boutons_en_boucle_et_chacun_lance_le_sien) {
    Installer_enregistreur(outils + L"\\X.EXE");
    for (int i = 1; i <= 16; ++i)
        Programmer(L"Bouton " + std::to_wstring(i), outils + L"\\X.EXE " + std::to_wstring(i));
    Lancer_sur_source();
    const Textes premiers = Captions();
    EXPECT_EQ(GetWindowLongW(Controle(L"Bouton(0)"), GWL_STYLE) & BS_LEFT, 0);
    for (int pas = 0; pas < 16; ++pas) {
        Textes attendus;
        for (int i = 0; i < 7; ++i) attendus.push_back(L"Bouton " + std::to_wstring((pas * 7 + i) % 16 + 1));
        EXPECT_EQ(Captions(), attendus) << pas;
        Passer_aux_suivants();
    }
    EXPECT_EQ(Captions(), premiers);
    // Clicks in quick succession count one by one.
    Double_cliquer(Centre(Controle(L"Bouton_suite")));
    ATTENDRE(Captions().front() == L"Bouton 15");
    Cliquer_bouton(L"Bouton 2");
    Attendre_lance(outils + L"\\X.EXE 2", outils);
    // An edited section: the place is kept as long as one of the names shown is there.
    Reprogrammer(L"Bouton 5", nullptr);
    Passer_aux_suivants();
    EXPECT_EQ(Captions().front(), L"Bouton 6");
    WritePrivateProfileStringW(L"Boutons", nullptr, nullptr, Fichier_ini().c_str());
    Passer_aux_suivants();
    EXPECT_EQ(Captions().front(), L"Bouton 6");
    Reprogrammer(L"Neuf", L"X.EXE");
    Passer_aux_suivants();
    EXPECT_EQ(Captions(), Textes{L"Neuf"});
    EXPECT_TRUE(Boite_absente());
}

TEST_F(Boutons, deux_cents_boutons_et_une_valeur_de_mille_caracteres_sont_lus) {
    Installer_enregistreur(outils + L"\\X.EXE");
    const std::wstring longue = outils + L"\\X.EXE " + std::wstring(1000, L'z');
    for (int i = 1; i <= 200; ++i)
        Programmer(L"Élément programmé numéro " + std::to_wstring(i), i == 8 ? longue : L"X.EXE");
    Lancer_sur_source();
    Cliquer(L"Bouton_suite");
    // Too long for its button, which shows the beginning.
    EXPECT_NE(GetWindowLongW(Controle(L"Bouton(0)"), GWL_STYLE) & BS_LEFT, 0);
    Cliquer_bouton(L"Élément programmé numéro 8");
    Attendre_lance(longue, outils);
    for (int pas = 0; pas < 28; ++pas) Passer_aux_suivants();
    EXPECT_EQ(Captions().front(), L"Élément programmé numéro 4");
}
