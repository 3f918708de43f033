#include "fenetres/recherche.h"

#include <functional>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// The request, on a drive without files: each search that starts ends by saying that it found nothing.
class Recherche_demande_D : public Recherche {
protected:
    // The window is still there after a message, this field emptied or not, and has the focus.
    void Verifier_reste(const std::wstring & focus, const std::wstring & cherches,
                        const std::wstring & exclus) {
        const auto demande = Demande();
        EXPECT_TRUE(demande.Ouverte());
        ATTENDRE(demande.Nom_du_focus() == focus);
        EXPECT_EQ(Utf8(demande.Lire(L"Fichiers_cherchés")), Utf8(cherches));
        EXPECT_EQ(Utf8(demande.Lire(L"Fichiers_exclus")), Utf8(exclus));
        EXPECT_FALSE(Resultats().Ouverte());
    }
};

TEST_F(Recherche_demande_D, la_fenetre_s_ouvre_a_sa_place_nomme_l_unite_et_attend_le_modele) {
    Lancer_sur_d();
    const auto demande = Ouvrir_demande();
    Verifier_place(demande, 2220 + 15, 1100 + 15);
    EXPECT_EQ(demande.Lire(L"Label_Message"), L"Entrez le modèle ou le type de fichiers à rechercher sur D:");
    ATTENDRE(demande.Nom_du_focus() == L"Fichiers_cherchés");
    EXPECT_EQ(demande.Lire(L"Fichiers_cherchés") + demande.Lire(L"Fichiers_exclus"), L"");
    EXPECT_FALSE(Active(Principale()));
    Annuler(demande);
    EXPECT_TRUE(Se_voit(L"Croiser") && Est_actif(L"Croiser"));
    Choisir_unite(L"Unité_srce", L'c');
    EXPECT_EQ(Ouvrir_demande().Lire(L"Label_Message"),
              L"Entrez le modèle ou le type de fichiers à rechercher sur C:");
}

TEST_F(Recherche_demande_D, chaque_modele_est_complete_puis_cherche_et_garde_jusqu_a_la_fois_suivante) {
    struct Cas {
        const wchar_t *saisi, *cherche;
    };
    const Cas cas[] = {
        {L".bat", L"*.bat"}, {L"*.BAT", L"*.BAT"},     {L"ms*", L"ms*.*"},   {L".", L"*."},
        {L"*.", L"*."},      {L"?.?", L"?.?"},         {L"?", L"?.*"},       {L"été", L"été.*"},
        {L".xyz", L"*.xyz"}, {L"a b.c d", L"a b.c d"}, {L"a.b.c", L"a.b.c"}, {L"*a*", L"*a*.*"}};
    Lancer_sur_d();
    for (const Cas & c : cas) {
        SCOPED_TRACE(Utf8(c.saisi));
        Lancer_recherche(c.saisi);
        Attendre_rien_trouve(c.cherche);
        const auto demande = Ouvrir_demande();
        EXPECT_EQ(Utf8(demande.Lire(L"Fichiers_cherchés")), Utf8(c.cherche));
        // It is all selected: what is typed takes its place.
        Taper(L"z");
        ATTENDRE(demande.Lire(L"Fichiers_cherchés") == L"z");
        Annuler(demande);
    }
    Verifier_principale_utilisable();
}

TEST_F(Recherche_demande_D, un_modele_qui_ne_nomme_rien_est_refuse_et_son_champ_vide) {
    Lancer_sur_d();
    const auto demande = Ouvrir_demande();
    for (const wchar_t * refuse : {L"*.*", L"*", L"..", L"...", L"**", L".*", L"*.**"}) {
        SCOPED_TRACE(Utf8(refuse));
        Saisir(demande, refuse, L"");
        demande.Cliquer(L"OK");
        Attendre_avertissement(L"Nom ou extension de fichier incorrect.");
        Verifier_reste(L"Fichiers_cherchés", L"", L"");
        Saisir(demande, L"a", refuse);
        demande.Cliquer(L"OK");
        Attendre_avertissement(L"Nom ou extension de fichier incorrect.");
        Verifier_reste(L"Fichiers_exclus", L"a", L"");
    }
    Saisir(demande, L"a", L"");
    demande.Cliquer(L"OK");
    Attendre_rien_trouve(L"a.*");
    Verifier_principale_utilisable();
}

TEST_F(Recherche_demande_D, une_exclusion_qui_annule_la_recherche_est_refusee_en_tenant_compte_de_la_casse) {
    struct Cas {
        const wchar_t *cherches, *exclus;
        const wchar_t *cherches_apres, *exclus_apres;
        bool           refuse;
    };
    const Cas cas[] = {{L"*.bat", L".bat", L"*.bat", L"*.bat", true},
                       {L"*.bat", L"*.doc", L"*.bat", L"*.doc", false},
                       {L"*.BAT", L".bat", L"*.BAT", L"*.bat", false},
                       {L"ms*", L"m", L"ms*.*", L"m.*", false},
                       {L"ms*", L"m*", L"ms*.*", L"m*.*", true},
                       {L"a?.txt", L"a*", L"a?.txt", L"a*.*", true},
                       {L".", L"*.", L"*.", L"*.", true},
                       {L".txt", L".", L"*.txt", L"*.", false},
                       {L"ab.txt", L"??.txt", L"ab.txt", L"??.txt", true},
                       {L"abc.txt", L"??.txt", L"abc.txt", L"??.txt", false}};
    Lancer_sur_d();
    for (const Cas & c : cas) {
        SCOPED_TRACE(Utf8(std::wstring(c.cherches) + L" sans " + c.exclus));
        const auto demande = Ouvrir_demande();
        Saisir(demande, c.cherches, c.exclus);
        demande.Cliquer(L"OK");
        if (c.refuse) {
            Attendre_avertissement(L"Les fichiers exclus annulent les fichiers recherchés.");
            Verifier_reste(L"Fichiers_exclus", c.cherches_apres, c.exclus_apres);
            Annuler(demande);
        } else {
            Attendre_rien_trouve(c.cherches_apres);
        }
    }
}

TEST_F(Recherche_demande_D, sans_modele_ok_ferme_sans_chercher_et_trois_gestes_renoncent) {
    const std::function<void(const Pilote::Fille &)> gestes[] = {
        [](const Pilote::Fille & demande) { demande.Cliquer(L"OK"); },
        [](const Pilote::Fille &) { Frapper(VK_RETURN); },
        [](const Pilote::Fille & demande) { demande.Cliquer(L"Annule"); },
        [](const Pilote::Fille &) { Frapper(VK_ESCAPE); },
        [](const Pilote::Fille & demande) { demande.Fermer_par_la_croix(); },
    };
    Lancer_sur_d();
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(i);
        const auto demande = Ouvrir_demande();
        Saisir(demande, i < 2 ? L"" : L"a", L"");
        gestes[i](demande);
        demande.Attendre_fermee();
        EXPECT_FALSE(Resultats().Ouverte());
        EXPECT_TRUE(Boite_absente());
        Verifier_sans_resultats();
    }
    Verifier_principale_utilisable();
}

TEST_F(Recherche_demande_D, avec_la_confirmation_la_commande_se_demande_et_non_n_ouvre_rien) {
    const std::wstring question = L"Vous allez CHERCHER\rdes fichiers\r\rConfirmez-vous cette commande ?";
    Regler(L"Options", L"Confirme", L"Oui");
    Lancer_sur_d();
    Cliquer(L"Chercher");
    Attendre_boite(gestionnaire, question, oui_non, IDNO);
    Attendre_fin_commande();
    EXPECT_FALSE(Demande().Ouverte());
    Cliquer(L"Chercher");
    Attendre_boite(gestionnaire, question, oui_non, IDYES);
    Demande().Attendre_ouverte();
    Annuler(Demande());
}

TEST_F(Recherche_demande_D, le_clavier_suffit) {
    Lancer_sur_d();
    Alt(L'h');
    const auto demande = Demande();
    demande.Attendre_ouverte();
    Verifier_clavier_et_disposition(demande, {L"Fichiers_cherchés", L"Fichiers_exclus", L"OK", L"Annule"});
    Taper(L".xyz");
    Frapper(VK_RETURN);
    Attendre_rien_trouve(L"*.xyz");
    Verifier_sans_resultats();
}

TEST_F(Recherche_demande_D, l_aide_a_le_texte_de_chaque_element) {
    Lancer_sur_d();
    Activer_aide();
    const auto demande = Ouvrir_demande();
    Verifier_aide(demande,
                  {{L"Fichiers_cherchés",
                    L"  Ce champ permet de saisir le modèle ou le type de fichiers recherchés. Vous pouvez "
                    L"utiliser les caractères "
                    L"'*' et '?' et omettre '*' s'il est seul devant le point ou omettre '.*' à la suite du "
                    L"nom de fichier. "
                    L"Exemples : '.bat' est équivalent à '*.bat' ou '*.BAT',  'ms*' est équivalent à "
                    L"'ms*.*'.\rPour rechercher des "
                    L"fichiers sans extension, saisissez par exemple '*.' ou plus simplement '.'"},
                   {L"Fichiers_exclus", L"  Ce champ permet de saisir le modèle ou le type de fichiers qui "
                                        L"ne doivent pas apparaître dans le résultat "
                                        L"de la recherche. Voir l'aide sur 'Chercher le(s) fichier(s)' pour "
                                        L"l'utilisation des caractères génériques."}});
    Frapper(VK_ESCAPE);
    demande.Attendre_fermee();
    Attendre_rappel_aide();
}
