#include "fenetres/systeme_hote.h"
#include "pilote/korvane.h"

#include <cwchar>

using Textes = std::vector<std::wstring>;

// Names and directories that are out of the ordinary.
class Noms : public Korvane {
protected:
    void Tout_choisir_et(const wchar_t * commande) {
        Cliquer(L"Sélecte");
        Cliquer(commande);
        Attendre_fin_commande();
    }
};

class Noms_D : public Noms {
protected:
    Noms_D() { Pilote::Unite::Vider(L'D'); }
};

TEST_F(Noms_D, des_noms_hors_de_la_page_de_codes_se_montrent_se_copient_et_se_deplacent) {
    const Textes noms{L"été œuf €.txt", L"Ωmega.txt",      L"Ж лес.txt",
                      L"日本語.txt",    L"\U0001F600.txt", L"a & b 'c' %d ; #.txt"};
    for (std::size_t i = 0; i < noms.size(); ++i)
        Creer_source(noms[i], 1000 + i, static_cast<std::uint32_t>(i));
    Pilote::Creer_dossier(Source(L"Дом 家"));
    const auto avant = Pilote::Lire_arbre(source);
    Lancer();
    Ouvrir(L"srce", source);
    Choisir_unite(L"Unité_dest", L'd');
    Textes montres = Entrees(L"Fichier_srce");
    EXPECT_TRUE(std::is_permutation(montres.begin(), montres.end(), noms.begin(), noms.end()));
    EXPECT_EQ(Entrees(L"Répertoire_srce").back(), L"Дом 家");
    Tout_choisir_et(L"Copier");
    for (const std::wstring & nom : noms)
        EXPECT_EQ(Pilote::Empreinte(L"D:\\" + nom), Pilote::Empreinte(Source(nom)));
    EXPECT_EQ(Pilote::Differences(avant, Pilote::Lire_arbre(source)), "");
    Pilote::Unite::Vider(L'D');
    Tout_choisir_et(L"Déplacer");
    for (const std::wstring & nom : noms) {
        EXPECT_FALSE(Pilote::Existe(Source(nom))) << Pilote::Utf8(nom);
        EXPECT_EQ(Pilote::Empreinte(L"D:\\" + nom), avant.at(L"\\" + nom).empreinte) << Pilote::Utf8(nom);
    }
}

TEST_F(Noms_D, des_noms_de_255_caracteres_se_copient_et_se_deplacent) {
    const Textes noms{std::wstring(251, L'n') + L".txt", std::wstring(255, L'q')};
    for (const std::wstring & nom : noms) Creer_source(nom, 40000, static_cast<std::uint32_t>(nom.size()));
    const auto avant = Pilote::Lire_arbre(source);
    Lancer();
    Ouvrir(L"srce", source);
    Choisir_unite(L"Unité_dest", L'd');
    EXPECT_EQ(Entrees(L"Fichier_srce"), noms);
    Tout_choisir_et(L"Copier");
    EXPECT_EQ(Pilote::Noms(L"D:\\"), noms);
    EXPECT_EQ(Pilote::Differences(avant, Pilote::Lire_arbre(source)), "");
    Pilote::Unite::Vider(L'D');
    Tout_choisir_et(L"Déplacer");
    EXPECT_EQ(Pilote::Noms(L"D:\\"), noms);
    EXPECT_EQ(Pilote::Noms(source), Textes{});
    for (const std::wstring & nom : noms)
        EXPECT_EQ(Pilote::Empreinte(L"D:\\" + nom), avant.at(L"\\" + nom).empreinte);
}

TEST_F(Noms, des_chemins_de_plus_de_260_caracteres_se_parcourent_se_copient_et_se_deplacent) {
    const std::wstring long_nom = std::wstring(150, L'l');
    const std::wstring profond  = Source(long_nom) + L"\\" + std::wstring(150, L'p');
    const std::wstring arrivee  = Destination(long_nom);
    const std::wstring nom      = std::wstring(120, L'f') + L".dat";
    Pilote::Creer_fichier_graine(profond + L"\\" + nom, 50000, 7);
    Pilote::Creer_fichier_graine(profond + L"\\court.txt", 10, 8);
    Pilote::Creer_dossier(arrivee);
    const auto avant = Pilote::Lire_arbre(profond);
    Lancer();
    Ouvrir(L"srce", profond);
    Ouvrir(L"dest", arrivee);
    EXPECT_EQ(_wcsicmp(Lire(L"Chemin_srce").c_str(), profond.c_str()), 0);
    EXPECT_EQ(Entrees(L"Fichier_srce"), (Textes{L"court.txt", nom}));
    Tout_choisir_et(L"Copier");
    EXPECT_EQ(Pilote::Noms(arrivee), (Textes{L"court.txt", nom}));
    EXPECT_EQ(Pilote::Differences(avant, Pilote::Lire_arbre(profond)), "");
    EXPECT_EQ(Pilote::Empreinte(arrivee + L"\\" + nom), avant.at(L"\\" + nom).empreinte);
    for (const std::wstring & fichier : {std::wstring(L"court.txt"), nom})
        Pilote::Effacer(arrivee + L"\\" + fichier);
    Cliquer(L"Croiser");
    ATTENDRE(_wcsicmp(Lire(L"Chemin_dest").c_str(), profond.c_str()) == 0);
    Cliquer(L"Croiser");
    ATTENDRE(_wcsicmp(Lire(L"Chemin_srce").c_str(), profond.c_str()) == 0);
    Tout_choisir_et(L"Déplacer");
    EXPECT_EQ(Pilote::Noms(profond), Textes{});
    EXPECT_EQ(Pilote::Empreinte(arrivee + L"\\" + nom), avant.at(L"\\" + nom).empreinte);
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{});
}

TEST_F(Noms, les_fichiers_caches_et_systeme_ne_sont_pas_montres_et_restent_en_place) {
    struct Cas {
        const wchar_t * nom;
        std::uint32_t   attributs;
    };
    const Cas cas[] = {{L"archive.txt", FILE_ATTRIBUTE_ARCHIVE},
                       {L"cache.txt", FILE_ATTRIBUTE_HIDDEN},
                       {L"lecture.txt", FILE_ATTRIBUTE_READONLY},
                       {L"normal.txt", FILE_ATTRIBUTE_NORMAL},
                       {L"systeme.txt", FILE_ATTRIBUTE_SYSTEM},
                       {L"tout.txt", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM}};
    for (const Cas & un : cas) {
        Creer_source(un.nom, 10);
        Pilote::Attributs(Source(un.nom), un.attributs);
    }
    Lancer_dans_les_dossiers();
    const Textes montres{L"archive.txt", L"lecture.txt", L"normal.txt"};
    EXPECT_EQ(Entrees(L"Fichier_srce"), montres);
    Tout_choisir_et(L"Copier");
    EXPECT_EQ(Pilote::Noms(destination), montres);
    EXPECT_EQ(Pilote::Noms(source).size(), 6u);
}

// Only reachable by a name that is taken as it is: the system drops final points and blanks.
TEST_F(Noms, des_noms_finissant_par_un_point_ou_un_blanc_se_copient_sous_leur_nom) {
    ASSERT_TRUE(Sur_hote(source, L"printf un >'point.' && printf deux >'blanc ' && printf trois >point"));
    const Textes noms = Pilote::Noms(source);
    Lancer_dans_les_dossiers();
    EXPECT_EQ(Entrees(L"Fichier_srce"), noms);
    Choisir({L"point.", L"blanc "});
    Cliquer(L"Copier");
    Attendre_fin_commande();
    EXPECT_EQ(Pilote::Noms(destination).size(), 2u);
    EXPECT_TRUE(Sur_hote(destination, L"test \"$(cat 'point.')\" = un && test \"$(cat 'blanc ')\" = deux"));
    EXPECT_TRUE(Sur_hote(destination, L"rm 'point.' 'blanc '") && Sur_hote(source, L"rm 'point.' 'blanc '"));
}

TEST_F(Noms, un_repertoire_illisible_est_signale_et_les_volets_restent) {
    Creer_source(L"a.txt", 10);
    Pilote::Creer_dossier(Source(L"interdit"));
    Pilote::Creer_dossier(Destination(L"interdit"));
    ASSERT_TRUE(Sur_hote(dossier.Chemin(), L"chmod 000 source/interdit destination/interdit"));
    Lancer_dans_les_dossiers();
    for (const wchar_t * cote : {L"srce", L"dest"}) {
        const std::wstring liste  = std::wstring(L"Répertoire_") + cote;
        const std::wstring chemin = Lire(std::wstring(L"Chemin_") + cote);
        const Textes       avant  = Entrees(liste);
        Cliquer_entree(liste, L"interdit");
        Attendre_boite(L"Gestionnaire de fichiers", L"Disquette protégée en écriture\rou fichier verrouillé.",
                       MB_OK | MB_ICONEXCLAMATION, IDOK);
        EXPECT_EQ(Lire(std::wstring(L"Chemin_") + cote), chemin);
        EXPECT_EQ(Entrees(liste), avant);
        ATTENDRE(Nom_du_focus() == liste);
    }
    EXPECT_EQ(Entrees(L"Fichier_srce"), Textes{L"a.txt"});
    // The pane goes on from where it stands.
    Cliquer_entree(L"Répertoire_srce", L"source");
    EXPECT_EQ(Choisies(), Textes{L"a.txt"});
    Sur_hote(dossier.Chemin(), L"chmod 700 source/interdit destination/interdit");
}

TEST_F(Noms, un_repertoire_disparu_est_signale_quand_on_l_ouvre) {
    Creer_source(L"sous\\a.txt", 10);
    Lancer_dans_les_dossiers();
    ASSERT_TRUE(Pilote::Effacer(Source(L"sous")));
    Cliquer_entree(L"Répertoire_srce", L"sous");
    Attendre_boite(L"Gestionnaire de fichiers", L"Chemin d'accès introuvable\rou support absent.",
                   MB_OK | MB_ICONEXCLAMATION, IDOK);
    EXPECT_EQ(_wcsicmp(Lire(L"Chemin_srce").c_str(), source.c_str()), 0);
}
