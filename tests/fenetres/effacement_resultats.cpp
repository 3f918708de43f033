#include "fenetres/recherche.h"
#include "pilote/corbeille.h"

#include <map>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

// Erasing and renaming the files of a search, each in its own directory.
class Effacement_resultats_D : public Recherche {
protected:
    Effacement_resultats_D() {
        Corbeille::Vider();
        Regler(L"Corbeille", L"Taille", L"9999");
        Creer_d(L"un\\A été.txt", 1000);
        Creer_d(L"un\\b.txt", 200);
        Creer_d(L"un\\dessous\\b.txt", 30);
        for (const wchar_t * nom : {L"un\\A été.txt", L"un\\b.txt", L"un\\dessous\\b.txt"}) {
            empreintes[nom] = Empreinte(L"D:\\" + std::wstring(nom));
        }
    }
    ~Effacement_resultats_D() override {
        Fermer();
        Corbeille::Vider();
    }
    void Lancer_avec_trois() {
        Lancer_sur_d();
        const auto resultats = Chercher(L".txt", trois);
        Frapper_avec(VK_CONTROL, 'A');
        ATTENDRE(resultats.Choisies(L"Liste_sél") == trois);
        resultats.Cliquer(L"OK");
        resultats.Attendre_fermee();
        Attendre_fin_commande();
        ATTENDRE(Se_voit(L"Fichier_sél"));
    }
    void Attendre_effacement(const std::wstring & nom, const std::wstring & repertoire, unsigned style,
                             int reponse) {
        Attendre_boite(gestionnaire,
                       L"Vous allez EFFACER le fichier '" + nom + L"' du répertoire\r" + repertoire +
                           L"\rConfirmez-vous cette commande ?",
                       style, reponse);
    }
    void Attendre_mode(int reponse) {
        Attendre_dialogue(gestionnaire,
                          L"Voulez-vous EFFACER sélectivement ou globalement les fichiers sélectionnés ?",
                          {L"&SELECTIF", L"&GLOBAL", L"&ANNULER"}, reponse);
    }
    // What the index holds, below the root of D:, in its order; each with its bytes under its coded name.
    Textes Gardes() const {
        Textes gardes;
        for (const Corbeille::Ligne & ligne : Corbeille::Lignes()) {
            gardes.push_back((ligne.repertoire + ligne.nom).substr(3));
            EXPECT_EQ(Empreinte(ligne.Chemin_code()), empreintes.at(gardes.back())) << ligne.octets;
        }
        return gardes;
    }

    const Textes trois = {L"d:\\un\\a été.txt", L"d:\\un\\b.txt", L"d:\\un\\dessous\\b.txt"};
    std::map<std::wstring, std::uint64_t> empreintes;
};

TEST_F(Effacement_resultats_D, globalement_chacun_va_a_la_corbeille_sous_le_nom_qu_il_a_sur_le_disque) {
    Lancer_avec_trois();
    Cliquer(L"Effacer");
    Attendre_mode(2);
    Verifier_sans_resultats();
    EXPECT_EQ(Gardes(), (Textes{L"un\\A été.txt", L"un\\b.txt", L"un\\dessous\\b.txt"}));
    for (const wchar_t * nom : {L"D:\\un\\A été.txt", L"D:\\un\\b.txt", L"D:\\un\\dessous\\b.txt"}) {
        EXPECT_FALSE(Existe(nom)) << Utf8(nom);
    }
}

TEST_F(Effacement_resultats_D, la_touche_suppr_demande_et_chaque_question_nomme_le_repertoire_du_fichier) {
    Lancer_avec_trois();
    // Not in the directory list, where the same key removes the SOURCE directory.
    ATTENDRE(A_le_focus(L"Fichier_sél"));
    Frapper(VK_DELETE);
    Attendre_mode(1);
    Attendre_effacement(L"A été.txt", L"d:\\un", oui_non_annuler, IDNO);
    Attendre_effacement(L"b.txt", L"d:\\un", oui_non_annuler, IDYES);
    Attendre_effacement(L"b.txt", L"d:\\un\\dessous", oui_non_annuler, IDCANCEL);
    Attendre_fin_commande();
    EXPECT_EQ(Gardes(), Textes{L"un\\b.txt"});
    EXPECT_TRUE(Existe(L"D:\\un\\A été.txt") && Existe(L"D:\\un\\dessous\\b.txt"));
}

TEST_F(Effacement_resultats_D, renommer_propose_le_nom_du_disque_et_renomme_chacun_chez_lui) {
    Lancer_avec_trois();
    Cliquer(L"Renommer");
    Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du fichier A ÉTÉ.TXT", L"A été.txt", L"C.txt");
    Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du fichier B.TXT", L"b.txt", L"d.txt");
    Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du fichier B.TXT", L"b.txt", L"E.txt");
    Attendre_fin_commande();
    EXPECT_EQ(Noms(L"D:\\un"), (Textes{L"C.txt", L"d.txt", L"dessous"}));
    EXPECT_EQ(Noms(L"D:\\un\\dessous"), Textes{L"E.txt"});
}
