#include "fenetres/configuration.h"

#include <functional>

using namespace Pilote;

class Configuration_fenetre : public Configuration {};

TEST_F(Configuration_fenetre, s_ouvre_a_sa_place_et_se_parcourt_au_clavier) {
    Regler(L"Boutons", L"Un", L"C:\\UN.EXE");
    const auto editeur = Lancer_et_ouvrir();
    Verifier_place(editeur, 1200, 1200);
    Verifier_clavier_et_disposition(editeur, {L"Ligne_conf", L"Fin", L"Boutons", L"Liste_conf"});
    Choisir_ligne(editeur, 0);
    editeur.Cliquer(L"Ligne_conf");
    Verifier_clavier_et_disposition(editeur, {L"Ligne_conf", L"Parcourir", L"Enregistrer", L"Effacer", L"Fin",
                                              L"Boutons", L"Liste_conf"});
    // Tab goes through the options without choosing another section.
    Alt(L'a');
    ATTENDRE(editeur.Est_coche(L"Associer") && editeur.Nom_du_focus() == L"Ligne_conf");
    Verifier_clavier_et_disposition(editeur, {L"Ligne_conf", L"Fin", L"Associer", L"Liste_conf"});
    EXPECT_EQ(Utf8(editeur.Titre()), Utf8(L"Liste des Associations"));
    Alt(L's');
    ATTENDRE(editeur.Titre() == L"Liste des Sélections");
    Alt(L'b');
    ATTENDRE(editeur.Titre() == L"Liste des Boutons");
    Frapper_avec(VK_SHIFT, VK_TAB);
    Frapper_avec(VK_SHIFT, VK_TAB);
    ATTENDRE(editeur.Nom_du_focus() == L"Boutons");
    Frapper(VK_DOWN);
    ATTENDRE(editeur.Titre() == L"Liste des Sélections" && editeur.Nom_du_focus() == L"Ligne_conf");
    Fermer_editeur(editeur, false);
}

TEST_F(Configuration_fenetre, entree_enregistre_echappement_et_la_croix_ferment_et_avertissent) {
    const std::function<void(const Pilote::Fille &)> gestes[] = {
        [](const Pilote::Fille &) { Frapper(VK_ESCAPE); },
        [](const Pilote::Fille & editeur) { editeur.Fermer_par_la_croix(); },
        [](const Pilote::Fille &) { Alt(L'f'); }};
    Lancer();
    Textes lignes;
    for (const auto & geste : gestes) {
        const auto editeur = Ouvrir_editeur();
        // Nothing to save: Enter does nothing.
        editeur.Remplacer(L"Ligne_conf", L"a=");
        Frapper(VK_RETURN);
        editeur.Reposer();
        EXPECT_EQ(editeur.Lire(L"Ligne_conf"), L"a=");
        lignes.push_back(L"B" + std::to_wstring(lignes.size()) + L"=x");
        editeur.Remplacer(L"Ligne_conf", lignes.back());
        Frapper(VK_RETURN);
        Attendre_lignes(editeur, lignes);
        EXPECT_EQ(editeur.Lire(L"Ligne_conf"), L"");
        geste(editeur);
        Attendre_avis_relancer();
        editeur.Attendre_fermee();
        ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
    }
    // Typed and not saved: nothing changed.
    const auto editeur = Ouvrir_editeur();
    editeur.Remplacer(L"Ligne_conf", L"a=b");
    Frapper(VK_ESCAPE);
    editeur.Attendre_fermee();
    EXPECT_TRUE(Boite_absente());
    EXPECT_EQ(Section_du_fichier("Boutons"), lignes);
    Verifier_principale_utilisable();
}

TEST_F(Configuration_fenetre, avec_la_confirmation_la_commande_se_demande_et_non_n_ouvre_rien) {
    const std::wstring question =
        L"Vous allez CONFIGURER\rles boutons, les sélections et les associations\r\r"
        L"Confirmez-vous cette commande ?";
    Regler(L"Options", L"Confirme", L"Oui");
    Lancer();
    Cliquer(L"Configurer");
    Attendre_boite(gestionnaire, question, oui_non, IDNO);
    Attendre_fin_commande();
    EXPECT_FALSE(Editeur().Ouverte());
    Alt(L'g');
    Attendre_boite(gestionnaire, question, oui_non, IDYES);
    Editeur().Attendre_ouverte();
    Fermer_editeur(Editeur(), false);
}

TEST_F(Configuration_fenetre, une_ligne_trop_longue_pour_la_liste_se_lit_entiere_sous_le_pointeur) {
    Regler(L"Boutons", L"Court", L"C:\\UN.EXE");
    const std::wstring valeur = L"C:\\" + std::wstring(120, L'w') + L"\\PROG.EXE";
    Regler(L"Boutons", L"Long", valeur);
    const auto editeur = Lancer_et_ouvrir();
    const HWND liste   = editeur.Controle(L"Liste_conf");
    Pointer(Point_entree(liste, 1));
    ATTENDRE(editeur.Se_voit(L"Tip") && editeur.Lire(L"Tip") == L"Long=" + valeur);
    Pointer(Point_entree(liste, 0));
    ATTENDRE(!editeur.Se_voit(L"Tip"));
    Fermer_editeur(editeur, false);
}

TEST_F(Configuration_fenetre, l_aide_a_le_texte_de_chaque_element) {
    Regler(L"Boutons", L"Un", L"C:\\UN.EXE");
    Lancer();
    Activer_aide();
    const auto editeur = Ouvrir_editeur();
    Choisir_ligne(editeur, 0);
    Verifier_aide(
        editeur,
        {{L"Liste_conf",
          L"  Cette liste permet de visualiser les 'Boutons', 'Sélections' ou 'Associations' enregistrées. "
          L"Lorsque vous sélectionnez une ligne dans cette liste, celle-ci est automatiquement recopiée dans "
          L"le champ de saisie afin de la modifier ou de l'effacer."},
         {L"Ligne_conf",
          L"  Ce champ permet de saisir une ligne de configuration pour l'enregistrer dans la liste ou de "
          L"modifier une ligne qui vient d'être sélectionnée dans la liste."},
         {L"Parcourir", L"  Ce bouton permet de composer la ligne pour ensuite l'enregistrer dans la liste."},
         {L"Enregistrer",
          L"  Ce bouton permet d'ENREGISTRER la ligne qui vient d'être saisie ou modifiée, celle-ci sera "
          L"effective au prochain lancement de KORVANE."},
         {L"Effacer",
          L"  Ce bouton permet d'EFFACER une ligne sélectionnée dans la liste des 'Boutons', 'Sélections' ou "
          L"'Associations' enregistrées; ceci ne sera effectif qu'au prochain lancement de KORVANE."},
         {L"Boutons",
          L"  Ce bouton permet d'afficher tous les 'Boutons' existants avec leurs paramètres dans la liste."},
         {L"Sélections",
          L"  Ce bouton permet d'afficher toutes les 'Sélections' existantes avec leurs paramètres dans la "
          L"liste."},
         {L"Associer",
          L"  Ce bouton permet d'afficher toutes les 'Associations' existantes dans la liste."}});
    Frapper(VK_ESCAPE);
    editeur.Attendre_fermee();
    Attendre_rappel_aide();
}
