#include "fenetres/corbeille.h"
#include "fenetres/systeme_hote.h"

using namespace Pilote;

// What was restored before the stop has left the list and the index; the rest is there, and can be restored.
TEST_F(Corbeille, echap_pendant_une_recuperation_l_arrete_et_la_fenetre_reste_ouverte) {
    constexpr int fichiers = 5000;
    ASSERT_TRUE(Sur_hote(source,
                         L"for r in 0 1 2 3 4 5 6 7 8 9; do mkdir $r; (cd $r && seq -f crb45000.%03g 0 499 | "
                         L"xargs touch); done"));
    for (int i = 0; i < fichiers; ++i) {
        const std::string ordre = std::to_string(1000 + i % 500).substr(1);
        Ajouter_ligne("crb45000." + ordre + " 00000000 f" + std::to_string(i) + ".txt " + Utf8(source) +
                      "\\" + std::to_string(i / 500) + "\\");
    }
    const auto fille = Ouvrir_corbeille();
    const HWND liste = fille.Controle(L"Fichier_effacé");
    Pilote::Cliquer(Point_entree(liste, 0));
    Frapper_avec(VK_CONTROL, 'A');
    ATTENDRE(Nombre_selection(liste) == fichiers);
    Frapper(VK_RETURN);
    ATTENDRE(Sablier() && Existe(Source(L"0\\f0.txt")));
    Frapper(VK_ESCAPE);
    EXPECT_TRUE(Attendre([&] { return !Sablier(); }, 30000));
    EXPECT_TRUE(fille.Ouverte() && Boite_absente());
    const int restants = Nombre_entrees(liste);
    EXPECT_GT(restants, 0);
    EXPECT_LT(restants, fichiers);
    EXPECT_EQ(Lignes_index().size(), static_cast<std::size_t>(restants));
    const int suivant = fichiers - restants;
    EXPECT_EQ(Entree(liste, 0),
              Source(std::to_wstring(suivant / 500)) + L"\\f" + std::to_wstring(suivant) + L".txt");
    EXPECT_FALSE(fille.Est_actif(L"Récupérer"));
    Frapper(VK_ESCAPE);
    fille.Attendre_fermee();
}
