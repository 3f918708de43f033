#include "fenetres/systeme_hote.h"
#include "pilote/korvane.h"

// A hundred thousand files in one directory, of two bytes each: "f000000" to "f099999".
class Grand_repertoire : public Korvane {
protected:
    static constexpr int      nombre = 100000;
    static constexpr unsigned delai  = 60000;
    // In memory, and made and removed outside: on a disk, or one by one from here, it takes minutes.
    const std::wstring racine   = L"Z:\\dev\\shm";
    const std::wstring nom      = L"korvane-" + std::to_wstring(GetCurrentProcessId());
    const std::wstring fichiers = racine + L"\\" + nom;

    Grand_repertoire() {
        const std::wstring creation =
            L"mkdir " + nom + L" && cd " + nom +
            LR"( && printf '0\n' >f000000 && perl -e 'link "f000000", sprintf("f%06d", $_) for 1..99999')";
        if (!Sur_hote(racine, creation)) ADD_FAILURE() << "fichiers non créés";
        Regler(L"Options", L"Répertoire", fichiers);
        Regler(L"Sélections", L"Derniers", L"f09999*");
    }
    ~Grand_repertoire() override {
        Fermer();
        Sur_hote(racine, L"rm -rf " + nom);
    }
    void La_ligne_devient(const std::wstring & ligne) {
        EXPECT_TRUE(Pilote::Attendre([&] { return Lire(L"Ligne_message") == ligne; }, delai))
            << Pilote::Utf8(Lire(L"Ligne_message"));
    }
};

TEST_F(Grand_repertoire, il_se_montre_se_choisit_en_entier_et_se_parcourt_sans_que_la_fenetre_se_fige) {
    Lancer();
    const HWND liste = Controle(L"Fichier_srce");
    ASSERT_EQ(Pilote::Nombre_entrees(liste), nombre);
    EXPECT_EQ(Pilote::Entree(liste, 0), L"f000000");
    EXPECT_EQ(Pilote::Entree(liste, nombre - 1), L"f099999");
    Cliquer(L"Sélecte");
    La_ligne_devient(L"   100000 fichiers sélectionnés, total = 200\u00A0000 octets.");
    EXPECT_EQ(Pilote::Nombre_selection(liste), nombre);
    EXPECT_TRUE(Pilote::Repond(Principale(), 1000));
    Pilote::Cliquer(Pilote::Point_entree(liste, nombre / 2));
    La_ligne_devient(L"   1 fichier sélectionné, total = 2 octets.");
    Pilote::Frapper_avec(VK_SHIFT, VK_END);
    La_ligne_devient(L"   50000 fichiers sélectionnés, total = 100\u00A0000 octets.");
    const int bas = Pilote::Premiere_visible(liste);
    EXPECT_GT(bas, 99900);
    Pilote::Tourner_molette(liste, 3);
    EXPECT_TRUE(Pilote::Attendre([&] { return Pilote::Premiere_visible(liste) < bas; }));
    EXPECT_TRUE(Pilote::Repond(Principale(), 1000));
    Pilote::Cliquer(Controle(L"Sélection_fichiers"));
    Pilote::Frapper(VK_DOWN);
    Pilote::Frapper(VK_DOWN);
    Pilote::Frapper(VK_RETURN);
    EXPECT_TRUE(Pilote::Attendre([&] { return Pilote::Nombre_entrees(liste) == 10; }, delai));
    EXPECT_EQ(Lire(L"Sélection_fichiers"), L"f09999*");
    La_ligne_devient(L"");
}
