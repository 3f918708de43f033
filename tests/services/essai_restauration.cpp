#include "platform/poignee.h"
#include "recycle/magasin.h"
#include "services/banc.h"

#include <algorithm>

namespace {

constexpr std::int32_t jour = 45000;

bool Toujours() { return true; }

// What becomes of the records when not all goes well.
class Restauration : public Banc {
protected:
    Restauration() {
        Repertoire(L"index");
        magasin.Ouvrir({Chemin(L"index")});
    }
    std::wstring Index() const { return Chemin(L"index\\KORVANE.CRB"); }
    void         Faire_et_deposer(const std::wstring & nom) {
                Fichier(nom);
                std::size_t deposes = 0;
                magasin.Deposer({{nom, Racine(), 7}}, jour, Toujours, deposes);
    }
    void Ajouter_a_l_index(const std::string & ligne) {
        magasin.Fermer();
        const std::string octets = Contenu(Index()) + ligne;
        Regler_attributs(Index(), FILE_ATTRIBUTE_NORMAL);
        Poser(Index(), octets);
        magasin.Ouvrir({Chemin(L"index")});
    }
    std::wstring Code(std::size_t rang) const { return magasin.Fiches().at(rang).Chemin_code(); }
    // Another program reads it and lets it be renamed, but not be opened for writing.
    static Poignee_fichier Lire_en_partage(const std::wstring & chemin) {
        constexpr DWORD partage = FILE_SHARE_READ | FILE_SHARE_DELETE;
        return Poignee_fichier(
            CreateFileW(chemin.c_str(), GENERIC_READ, partage, nullptr, OPEN_EXISTING, 0, nullptr));
    }
    std::ptrdiff_t Lignes() const {
        const std::string index = Contenu(Index());
        return std::count(index.begin(), index.end(), '\n');
    }

    Magasin magasin;
};

TEST_F(Restauration, la_fiche_d_un_fichier_dont_le_nom_n_est_pas_sur_le_disque_reste_jusqu_a_la_reecriture) {
    Faire_et_deposer(L"a");
    {
        const Poignee_fichier lecteur = Lire_en_partage(Code(0));
        ASSERT_TRUE(lecteur.Valide());
        magasin.Restaurer({0}, Toujours);
        EXPECT_EQ("contenu", Contenu(Chemin(L"a")));
        EXPECT_TRUE(magasin.Fiches().empty());
        EXPECT_EQ(0u, magasin.Total());
        EXPECT_EQ(1, Lignes());
    }
    magasin.Fermer();
    magasin.Ouvrir({Chemin(L"index")});
    EXPECT_TRUE(magasin.Fiches().empty());
    Faire_et_deposer(L"b");
    magasin.Restaurer({0}, Toujours);
    EXPECT_EQ(0, Lignes());
    EXPECT_EQ("contenu", Contenu(Chemin(L"a")));
}

TEST_F(Restauration, un_autre_fichier_restaure_du_repertoire_suffit_pour_que_les_fiches_partent) {
    for (const wchar_t * nom : {L"a", L"b", L"c"}) Faire_et_deposer(nom);
    const Poignee_fichier premier = Lire_en_partage(Code(0));
    const Poignee_fichier dernier = Lire_en_partage(Code(2));
    ASSERT_TRUE(premier.Valide() && dernier.Valide());
    magasin.Restaurer({0, 1, 2}, Toujours);
    EXPECT_TRUE(magasin.Fiches().empty());
    EXPECT_EQ(0, Lignes());
}

TEST_F(Restauration, un_fichier_parti_quitte_la_liste_et_le_total_avec_son_erreur) {
    Faire_et_deposer(L"a");
    Faire_et_deposer(L"b");
    Regler_attributs(Code(0), FILE_ATTRIBUTE_NORMAL);
    ASSERT_TRUE(DeleteFileW(Code(0).c_str()));
    EXPECT_EQ(53, Numero_leve([&] { magasin.Restaurer({0}, Toujours); }));
    ASSERT_EQ(1u, magasin.Fiches().size());
    EXPECT_EQ(L"b", magasin.Fiches()[0].nom);
    EXPECT_EQ(7u, magasin.Total());
}

TEST_F(Restauration, detruire_garde_les_fiches_et_l_index_d_une_unite_qui_ne_repond_pas) {
    const std::string loin = "crb45000.001 00000010 loin.txt Q:\\LOIN\\\r\n";
    Faire_et_deposer(L"a");
    Ajouter_a_l_index(loin);
    const std::wstring code = Code(0);
    EXPECT_TRUE(magasin.Detruire(Toujours));
    EXPECT_FALSE(magasin.Ouvert());
    EXPECT_FALSE(Present(code));
    EXPECT_EQ(loin, Contenu(Index()));
}

TEST_F(Restauration, detruire_nomme_le_fichier_qui_ne_peut_l_etre) {
    Faire_et_deposer(L"a");
    const Poignee_fichier prise(
        CreateFileW(Code(0).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(prise.Valide());
    try {
        magasin.Detruire(Toujours);
        FAIL() << "détruit malgré tout";
    } catch (const Erreur_execution & erreur) {
        EXPECT_EQ(Chemin(L"a"), erreur.chemin);
    }
}

}  // namespace
