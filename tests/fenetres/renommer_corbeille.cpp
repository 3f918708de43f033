#include "fenetres/repertoires.h"

using namespace Pilote;

// A directory that has files in the recycle bin takes another name.
class Renommer_corbeille : public Repertoires {};

TEST_F(Renommer_corbeille,
       les_fichiers_effaces_du_repertoire_restent_dans_la_corbeille_sous_son_nouveau_nom) {
    Regler(L"Corbeille", L"Taille", L"9999");
    Creer_source(L"haut\\a.txt", 100, 7);
    const std::uint64_t empreinte = Empreinte(Source(L"haut\\a.txt"));
    Lancer();
    Ouvrir(L"dest", destination);
    Ouvrir(L"srce", Source(L"haut"));
    Choisir({L"a.txt"});
    Cliquer(L"Effacer");
    Attendre_boite(gestionnaire,
                   L"Vous allez EFFACER le fichier 'a.txt' du répertoire\r" + Source(L"haut") +
                       L"\rConfirmez-vous cette commande ?",
                   oui_non, IDYES);
    Attendre_fin_commande();
    Cliquer(L"Mode");
    Cliquer(L"Renommer");
    Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du répertoire :\r" + Capitales(Source(L"haut")),
                    L"haut", L"θάλασσα", L"OK");
    Verifier_volets(Source(L"θάλασσα"), destination);
    const auto lignes = Corbeille::Lignes();
    ASSERT_EQ(lignes.size(), 1u);
    EXPECT_EQ(Utf8(lignes[0].repertoire), Utf8(Source(L"θάλασσα") + L"\\"));
    EXPECT_EQ(Empreinte(lignes[0].Chemin_code()), empreinte);
}
