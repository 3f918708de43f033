#include "platform/fichiers.h"
#include "services/banc.h"

namespace {

class Entree : public Banc {};

TEST_F(Entree, le_nom_est_celui_du_disque_quelle_que_soit_la_casse_demandee) {
    const std::wstring chemin = Fichier(L"Grand Été.TXT", "12345");
    Regler_attributs(chemin, FILE_ATTRIBUTE_READONLY);
    const Entree_repertoire entree = Lire_entree(Chemin(L"grand ÉTÉ.txt"));
    EXPECT_EQ(entree.nom, L"Grand Été.TXT");
    EXPECT_EQ(entree.taille, 5u);
    EXPECT_EQ(entree.attributs & (Attribut::lecture | Attribut::repertoire), Attribut::lecture);
    WIN32_FILE_ATTRIBUTE_DATA lues;
    GetFileAttributesExW(chemin.c_str(), GetFileExInfoStandard, &lues);
    EXPECT_EQ(entree.moment,
              std::uint64_t{lues.ftLastWriteTime.dwHighDateTime} << 32 | lues.ftLastWriteTime.dwLowDateTime);
    Regler_attributs(chemin, FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Entree, un_repertoire_a_son_nom_avec_ou_sans_barre_finale_et_la_racine_n_en_a_pas) {
    Repertoire(L"Sous");
    for (const wchar_t * nom : {L"sous", L"sous\\"}) {
        const Entree_repertoire entree = Lire_entree(Chemin(nom));
        EXPECT_EQ(entree.nom, L"Sous");
        EXPECT_NE(entree.attributs & Attribut::repertoire, 0u);
    }
    const Entree_repertoire racine = Lire_entree(Racine().substr(0, 3));
    EXPECT_EQ(racine.nom, L"");
    EXPECT_NE(racine.attributs & Attribut::repertoire, 0u);
}

TEST_F(Entree, un_chemin_long_et_un_nom_de_tout_alphabet_se_lisent) {
    const std::wstring chemin = Profond() + L"\\Жук.txt";
    Poser(chemin, "123");
    const Entree_repertoire entree = Lire_entree(chemin);
    EXPECT_EQ(entree.nom, L"Жук.txt");
    EXPECT_EQ(entree.taille, 3u);
}

TEST_F(Entree, un_nom_qui_serait_un_modele_est_refuse_et_ne_designe_aucun_autre_fichier) {
    Fichier(L"a.txt");
    for (const wchar_t * nom : {L"?.txt", L"*", L"a*", L"<.txt", L">.txt", L"a\"txt"}) {
        EXPECT_EQ(Numero_leve([&] { Lire_entree(Chemin(nom)); }), Numero::nom_incorrect);
    }
    EXPECT_EQ(Numero_leve([] { Lire_entree(L""); }), Numero::nom_incorrect);
}

TEST_F(Entree, ce_qui_manque_est_dit_par_son_numero) {
    EXPECT_EQ(Numero_leve([&] { Lire_entree(Chemin(L"absent.txt")); }), Numero::fichier_introuvable);
    EXPECT_EQ(Numero_leve([&] { Lire_entree(Chemin(L"absent\\a.txt")); }), Numero::chemin_introuvable);
    EXPECT_EQ(Numero_leve([] { Lire_entree(L"q:\\a.txt"); }), Numero::unite_absente);
}

}  // namespace
