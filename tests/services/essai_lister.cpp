#include "platform/fichiers.h"
#include "platform/poignee.h"
#include "services/banc.h"

#include <algorithm>
#include <vector>

namespace {

std::vector<std::wstring> Noms(const std::wstring & repertoire, bool repertoires) {
    std::vector<std::wstring> noms;
    for (const Entree_repertoire & entree : Lister(repertoire, repertoires)) noms.push_back(entree.nom);
    std::sort(noms.begin(), noms.end());
    return noms;
}

using Liste = std::vector<std::wstring>;

class Listage : public Banc {};

TEST_F(Listage, un_repertoire_vide_donne_une_liste_vide) {
    EXPECT_EQ(Liste{}, Noms(Racine(), false));
    EXPECT_EQ(Liste{}, Noms(Racine(), true));
}

TEST_F(Listage, fichiers_et_repertoires_sont_separes) {
    Fichier(L"b.txt");
    Fichier(L"A.txt");
    Repertoire(L"sous");
    EXPECT_EQ((Liste{L"A.txt", L"b.txt"}), Noms(Racine(), false));
    EXPECT_EQ(Liste{L"sous"}, Noms(Racine(), true));
}

TEST_F(Listage, un_fichier_cache_est_liste_avec_son_attribut_sa_taille_et_sa_date) {
    const std::wstring chemin = Fichier(L"cache.sys", "12345");
    Regler_attributs(chemin, Attribut::cache | Attribut::systeme);
    WIN32_FILE_ATTRIBUTE_DATA lues;
    GetFileAttributesExW(chemin.c_str(), GetFileExInfoStandard, &lues);
    const auto entrees = Lister(Racine(), false);
    ASSERT_EQ(1u, entrees.size());
    EXPECT_EQ(5u, entrees[0].taille);
    EXPECT_EQ(Attribut::cache | Attribut::systeme, entrees[0].attributs & 7u);
    EXPECT_EQ(std::uint64_t{lues.ftLastWriteTime.dwHighDateTime} << 32 | lues.ftLastWriteTime.dwLowDateTime,
              entrees[0].moment);
}

TEST_F(Listage, les_noms_hors_de_la_page_de_codes_et_de_255_caracteres_arrivent_entiers) {
    const std::wstring grec = L"Ωμέγα – 文件.txt";
    const std::wstring long_nom(255, L'n');
    Fichier(grec);
    Fichier(long_nom);
    EXPECT_EQ((Liste{long_nom, grec}), Noms(Racine(), false));
}

TEST_F(Listage, un_repertoire_au_dela_de_260_caracteres_est_liste) {
    const std::wstring profond = Profond();
    Poser(profond + L"\\fond.txt", "x");
    EXPECT_EQ(Liste{L"fond.txt"}, Noms(profond, false));
    EXPECT_EQ(Liste{L"fond.txt"}, Noms(profond + L"\\", false));
}

TEST_F(Listage, un_repertoire_dont_le_nom_finit_par_un_point_est_liste_et_non_son_voisin) {
    Repertoire(L"voisin");
    const std::wstring pointe = Repertoire(L"voisin.");
    Poser(pointe + L"\\dedans", "x");
    EXPECT_EQ(Liste{}, Noms(Chemin(L"voisin"), false));
    EXPECT_EQ(Liste{L"dedans"}, Noms(pointe, false));
}

TEST_F(Listage, un_repertoire_absent_est_l_erreur_76) {
    EXPECT_EQ(76, Numero_leve([&] { Lister(Chemin(L"absent"), false); }));
    EXPECT_EQ(76, Numero_leve([&] { Lister(Chemin(L"absent\\plus\\loin"), true); }));
    EXPECT_EQ(76, Numero_leve([&] { Lister(L"", true); }));
}

TEST_F(Listage, un_fichier_pris_pour_un_repertoire_est_l_erreur_76) {
    Fichier(L"fichier");
    EXPECT_EQ(76, Numero_leve([&] { Lister(Chemin(L"fichier"), false); }));
}

TEST_F(Listage, un_joker_dans_le_chemin_ne_designe_aucun_repertoire) {
    Repertoire(L"abc");
    EXPECT_EQ(76, Numero_leve([&] { Lister(Chemin(L"a?c"), false); }));
    EXPECT_EQ(76, Numero_leve([&] { Lister(Chemin(L"*"), false); }));
}

// Keeps everybody out of a directory while it lives: an empty access list. It is given back through a handle that was opened
// before, since nothing opens any more.
class Acces_ferme {
public:
    explicit Acces_ferme(const std::wstring & chemin)
        : repertoire_(CreateFileW(chemin.c_str(), GENERIC_READ | READ_CONTROL | WRITE_DAC,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {
        EXPECT_TRUE(Regler(0));
    }
    ~Acces_ferme() { EXPECT_TRUE(Regler(GENERIC_ALL)); }
    Acces_ferme(const Acces_ferme &)             = delete;
    Acces_ferme & operator=(const Acces_ferme &) = delete;

private:
    bool Regler(DWORD acces) const {
        SECURITY_DESCRIPTOR descripteur;
        alignas(ACL) BYTE   espace[256];
        alignas(DWORD) BYTE tous[SECURITY_MAX_SID_SIZE];
        DWORD               taille = sizeof tous;
        auto * const        liste  = reinterpret_cast<ACL *>(espace);
        InitializeSecurityDescriptor(&descripteur, SECURITY_DESCRIPTOR_REVISION);
        InitializeAcl(liste, sizeof espace, ACL_REVISION);
        CreateWellKnownSid(WinWorldSid, nullptr, tous, &taille);
        if (acces != 0) AddAccessAllowedAce(liste, ACL_REVISION, acces, tous);
        SetSecurityDescriptorDacl(&descripteur, TRUE, liste, FALSE);
        return SetKernelObjectSecurity(repertoire_.Valeur(), DACL_SECURITY_INFORMATION, &descripteur) !=
               FALSE;
    }

    Poignee_fichier repertoire_;
};

TEST_F(Listage, un_repertoire_qui_ne_peut_etre_lu_est_l_erreur_70_et_son_parent_le_liste) {
    const std::wstring ferme = Repertoire(L"ferme");
    Fichier(L"ferme\\dedans");
    {
        const Acces_ferme acces(ferme);
        EXPECT_EQ(70, Numero_leve([&] { Lister(ferme, false); }));
        EXPECT_EQ(70, Numero_leve([&] { Lister(ferme, true); }));
        EXPECT_EQ(Liste{L"ferme"}, Noms(Racine(), true));
    }
    EXPECT_EQ(Liste{L"dedans"}, Noms(ferme, false));
}

TEST_F(Listage, une_unite_absente_est_l_erreur_68) {
    EXPECT_EQ(68, Numero_leve([] { Lister(L"q:\\", true); }));
    EXPECT_EQ(68, Numero_leve([] { Lister(L"q:\\dossier", true); }));
}

ESSAI_UNITE(A, la_racine_d_une_disquette_vide_donne_une_liste_vide) {
    Vider_repertoire(L"a:");
    EXPECT_EQ(Liste{}, Noms(L"a:\\", false));
    EXPECT_EQ(Liste{}, Noms(L"a:\\", true));
}

ESSAI_UNITE(E, un_support_protege_se_liste) {
    EXPECT_EQ(0, Numero_leve([] { Lister(L"e:\\", false); }));
}

ESSAI_UNITE(F, une_unite_sans_support_est_l_erreur_71) {
    EXPECT_EQ(71, Numero_leve([] { Lister(L"f:\\", false); }));
    EXPECT_EQ(71, Numero_leve([] { Lister(L"f:\\dossier", true); }));
    EXPECT_FALSE(Repertoire_existe(L"f:\\"));
}

}  // namespace
