#include "fenetres/commandes.h"
#include "fenetres/obstacles.h"

#include <utility>
#include <vector>

using namespace Pilote;

namespace {

const wchar_t * const protege     = L"Disquette protégée en écriture\rou fichier verrouillé.";
const wchar_t * const introuvable = L"Chemin d'accès introuvable\rou support absent.";

using Noms_fichiers = std::vector<std::wstring>;

std::wstring Support_absent(const std::wstring & unite) {
    return L"Support absent ou erreur d'accès sur " + unite;
}

// Nobody may read the file while it lives. The right to change that is asked for beforehand: afterwards it may be refused.
class Interdiction {
public:
    explicit Interdiction(const std::wstring & chemin)
        : fichier_(CreateFileW(chemin.c_str(), WRITE_DAC,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                               0, nullptr)) {
        Permettre(FILE_GENERIC_WRITE | DELETE);
    }
    ~Interdiction() {
        Permettre(FILE_ALL_ACCESS);
        CloseHandle(fichier_);
    }
    Interdiction(const Interdiction &)             = delete;
    Interdiction & operator=(const Interdiction &) = delete;

private:
    void Permettre(DWORD acces) const {
        SID_IDENTIFIER_AUTHORITY autorite = SECURITY_WORLD_SID_AUTHORITY;
        PSID                     tous     = nullptr;
        AllocateAndInitializeSid(&autorite, 1, SECURITY_WORLD_RID, 0, 0, 0, 0, 0, 0, 0, &tous);
        alignas(ACL) char   place[256];
        ACL *               droits = reinterpret_cast<ACL *>(place);
        SECURITY_DESCRIPTOR descripteur;
        InitializeAcl(droits, sizeof place, ACL_REVISION);
        AddAccessAllowedAce(droits, ACL_REVISION, acces, tous);
        InitializeSecurityDescriptor(&descripteur, SECURITY_DESCRIPTOR_REVISION);
        SetSecurityDescriptorDacl(&descripteur, TRUE, droits, FALSE);
        EXPECT_TRUE(SetKernelObjectSecurity(fichier_, DACL_SECURITY_INFORMATION, &descripteur));
        FreeSid(tous);
    }

    HANDLE fichier_;
};

}  // namespace

class Fautes : public Commandes {
protected:
    // Three files; the prompt for the second one holds the command in its middle.
    void Creer_trois(const std::wstring & repertoire_destination) {
        for (const wchar_t * nom : {L"a.dat", L"b.dat", L"c.dat"}) {
            Creer_source(nom, 60000, static_cast<std::uint32_t>(*nom));
        }
        Creer_fichier_graine(repertoire_destination + L"\\b.dat", 500, 9);
        avant = Lire_arbre(source);
    }
    void Verifier_apres_faute(const std::wstring & bouton) {
        Verifier_repos(bouton);
        Verifier_source_intacte(avant);
    }

    Arbre avant;
};

TEST_F(Fautes, une_source_verrouillee_ou_illisible_finit_la_commande_sans_cible) {
    Creer_trois(destination);
    const std::string ancien = Lire_fichier(Destination(L"b.dat"));
    Lancer_dans_les_dossiers();
    Choisir_tout();
    {
        const Verrou verrou(Source(L"b.dat"));
        Cliquer(L"Copier");
        Attendre_remplacement(L"COPIER", L"B.DAT", destination, IDYES);
        Attendre_avertissement(protege);
        Verifier_repos(L"Copier");
    }
    Verifier_source_intacte(avant);
    EXPECT_EQ(Noms(destination), (Noms_fichiers{L"a.dat", L"b.dat"}));
    EXPECT_EQ(Lire_fichier(Destination(L"b.dat")), ancien)
        << "une source illisible ne coûte pas l'ancienne cible";
    const Interdiction interdiction(Source(L"a.dat"));
    Effacer(Destination(L"a.dat"));
    Choisir_un(L"a.dat");
    Cliquer(L"Copier");
    Attendre_avertissement(protege);
    Verifier_repos(L"Copier");
    EXPECT_EQ(Noms(destination), Noms_fichiers{L"b.dat"});
}

TEST_F(Fautes, le_repertoire_destination_disparu_en_cours_de_commande_est_signale) {
    for (const wchar_t * bouton : {L"Copier", L"Déplacer"}) {
        Creer_trois(destination);
        if (!programme) Lancer_dans_les_dossiers();
        const bool deplace = *bouton == L'D';
        Relire_source();
        if (deplace)
            Choisir({L"b.dat", L"c.dat"});
        else
            Choisir_tout();
        Cliquer(bouton);
        const HWND boite = Attendre_boite_visible(programme->Numero(), 5000);
        ASSERT_NE(boite, nullptr);
        ASSERT_TRUE(Effacer(destination));
        Attendre_remplacement(deplace ? L"DEPLACER" : L"COPIER", L"B.DAT", destination, IDYES);
        Attendre_avertissement(introuvable);
        Verifier_apres_faute(bouton);
        EXPECT_FALSE(Existe(destination)) << "rien n'est recréé";
    }
}

TEST_F(Fautes, une_source_disparue_ne_coute_pas_la_cible) {
    Creer_trois(destination);
    Lancer_dans_les_dossiers();
    Choisir({L"b.dat", L"c.dat"});
    Cliquer(L"Copier");
    ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
    for (const wchar_t * nom : {L"b.dat", L"c.dat"}) ASSERT_TRUE(Effacer(Source(nom)));
    Attendre_remplacement(L"COPIER", L"B.DAT", destination, IDYES);
    Attendre_avertissement(
        L"Un nom de fichier comporte un caractère invalide ou bien le fichier B.DAT est introuvable "
        L"ou les attributs 'Système/Caché' sont présents.");
    Verifier_repos(L"Copier");
    EXPECT_EQ(Noms(destination), Noms_fichiers{L"b.dat"});
    EXPECT_EQ(Taille_fichier(Destination(L"b.dat")), 500u);
}

class Fautes_A : public Fautes {
protected:
    Fautes_A() {
        for (int disquette : {2, 1}) {
            Unite::Inserer_disquette(disquette);
            Unite::Proteger(L'A', false);
            Unite::Vider(L'A');
        }
    }
    void Attendre_pleine(int reponse) {
        Attendre_boite(gestionnaire, L"Disquette dans A: pleine :\rinsérez la disquette suivante.",
                       ok_annuler, reponse);
    }
    void Attendre_jeu(const std::wstring & commande, int reponse) {
        Attendre_boite(commande,
                       L"L'ensemble des fichiers sélectionnés vont être copiés sur 2 disquettes de 1,44 Mo.\r"
                       L"Voulez-vous continuer ?",
                       oui_non, reponse);
    }
    void Creer_deux() {
        Creer_source(L"un.dat", 900000, 1);
        Creer_source(L"deux.dat", 900001, 2);
        avant = Lire_arbre(source);
    }
    std::uint64_t Empreinte_avant(const std::wstring & nom) { return avant.at(L"\\" + nom).empreinte; }
};

TEST_F(Fautes_A, la_copie_continue_sur_la_disquette_suivante_avec_le_meme_fichier) {
    Creer_deux();
    Lancer_vers(L"A:\\");
    Choisir_tout();
    Cliquer(L"Copier");
    Attendre_jeu(L"COPIER", IDNO);
    Verifier_apres_faute(L"Copier");
    EXPECT_TRUE(Noms(L"A:\\").empty()) << "non finit la commande avant toute écriture";
    Choisir_tout();
    Cliquer(L"Copier");
    Attendre_jeu(L"COPIER", IDYES);
    ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
    EXPECT_EQ(Noms(L"A:\\"), Noms_fichiers{L"deux.dat"}) << "le fichier entamé est retiré avant la question";
    Unite::Inserer_disquette(2);
    Attendre_pleine(IDOK);
    Verifier_apres_faute(L"Copier");
    EXPECT_EQ(Noms(L"A:\\"), Noms_fichiers{L"un.dat"});
    EXPECT_EQ(Empreinte(L"A:\\un.dat"), Empreinte_avant(L"un.dat"));
    EXPECT_EQ(Entrees(L"Fichier_dest"), Noms_fichiers{L"un.dat"});
    Unite::Inserer_disquette(1);
    EXPECT_EQ(Empreinte(L"A:\\deux.dat"), Empreinte_avant(L"deux.dat"));
}

TEST_F(Fautes_A, un_deplacement_sur_disquettes_ne_retire_que_les_sources_copiees) {
    Creer_deux();
    Lancer_vers(L"A:\\");
    Choisir_tout();
    Cliquer(L"Déplacer");
    Attendre_jeu(L"DEPLACER", IDYES);
    Attendre_pleine(IDOK);  // the same diskette is still there
    Attendre_pleine(IDCANCEL);
    Verifier_repos(L"Déplacer");
    EXPECT_EQ(Noms(source), Noms_fichiers{L"un.dat"});
    EXPECT_EQ(Empreinte(Source(L"un.dat")), Empreinte_avant(L"un.dat"));
    EXPECT_EQ(Noms(L"A:\\"), Noms_fichiers{L"deux.dat"});
    EXPECT_EQ(Empreinte(L"A:\\deux.dat"), Empreinte_avant(L"deux.dat"));
}

TEST_F(Fautes_A, une_seule_disquette_qui_deborde_est_un_manque_de_place) {
    Creer_source(L"un.dat", 900000, 1);
    avant = Lire_arbre(source);
    Unite::Remplir(L'A', 400000);
    Lancer_vers(L"A:\\");
    Choisir_tout();
    Cliquer(L"Copier");
    Attendre_manque_de_place(L"COPIER", L"A:", IDYES);
    Attendre_pleine(IDCANCEL);
    Verifier_apres_faute(L"Copier");
    EXPECT_EQ(Noms(L"A:\\"), Noms_fichiers{L".occupe"});
}

TEST_F(Fautes_A, une_disquette_protegee_ne_recoit_ni_ne_rend_rien) {
    Creer_trois(L"A:");
    Unite::Proteger(L'A', true);
    Lancer_vers(L"A:\\");
    for (const wchar_t * bouton : {L"Copier", L"Déplacer"}) {
        Choisir_un(L"a.dat");
        Cliquer(bouton);
        Attendre_avertissement(protege);
        Verifier_apres_faute(bouton);
        Choisir_un(L"b.dat");
        Cliquer(bouton);
        Attendre_remplacement(*bouton == L'D' ? L"DEPLACER" : L"COPIER", L"B.DAT", L"A:\\", IDYES);
        Attendre_avertissement(protege);
        Verifier_apres_faute(bouton);
        EXPECT_EQ(Noms(L"A:\\"), Noms_fichiers{L"b.dat"});
        EXPECT_EQ(Taille_fichier(L"A:\\b.dat"), 500u);
    }
    Unite::Proteger(L'A', false);
}

TEST_F(Fautes_A, une_disquette_retiree_en_cours_de_commande_est_signalee) {
    Creer_trois(L"A:");
    Lancer_vers(L"A:\\");
    for (const wchar_t * bouton : {L"Copier", L"Déplacer"}) {
        Relire_source();
        Choisir({L"b.dat", L"c.dat"});
        Cliquer(bouton);
        ASSERT_NE(Attendre_boite_visible(programme->Numero(), 5000), nullptr);
        Unite::Retirer_disquette();
        Attendre_remplacement(*bouton == L'D' ? L"DEPLACER" : L"COPIER", L"B.DAT", L"A:\\", IDYES);
        Attendre_avertissement(Support_absent(L"A:"));
        Verifier_apres_faute(bouton);
        Unite::Inserer_disquette(1);
        EXPECT_EQ(Noms(L"A:\\"), Noms_fichiers{L"b.dat"});
        EXPECT_EQ(Taille_fichier(L"A:\\b.dat"), 500u);
    }
}

TEST_F(Fautes_A, une_disquette_source_retiree_est_signalee) {
    for (const wchar_t * nom : {L"a.dat", L"b.dat"})
        Creer_fichier_graine(std::wstring(L"A:\\") + nom, 60000, 4);
    const auto contenu = Lire_arbre(L"A:");
    Lancer();
    Ouvrir(L"srce", L"A:\\");
    Ouvrir(L"dest", destination);
    for (const wchar_t * bouton : {L"Copier", L"Déplacer"}) {
        Choisir_tout();
        Unite::Retirer_disquette();
        Cliquer(bouton);
        Attendre_avertissement(Support_absent(L"A:"));
        Attendre_fin_commande();
        EXPECT_EQ(Utf8(Nom_du_focus()), Utf8(bouton));
        EXPECT_TRUE(Noms(destination).empty());
        Unite::Inserer_disquette(1);
        EXPECT_EQ(Differences(contenu, Lire_arbre(L"A:")), "");
    }
}

class Fautes_D : public Fautes {
protected:
    Fautes_D() { Unite::Vider(L'D'); }
    ~Fautes_D() override { Unite::Vider(L'D'); }
};

TEST_F(Fautes_D, un_disque_plein_abandonne_l_operation_sans_reste) {
    Creer_source(L"a.dat", 300000, 1);
    Creer_source(L"b.dat", 400000, 2);
    avant = Lire_arbre(source);
    Unite::Remplir(L'D', 450000);
    Lancer_vers(L"D:\\");
    Choisir_tout();
    Cliquer(L"Copier");
    Attendre_manque_de_place(L"COPIER", L"D:", IDYES);
    Attendre_avertissement(L"Disque D: plein :\ropération abandonnée.");
    Verifier_apres_faute(L"Copier");
    EXPECT_EQ(Noms(L"D:\\"), (Noms_fichiers{L".occupe", L"a.dat"}));
    EXPECT_EQ(Empreinte(L"D:\\a.dat"), Empreinte(Source(L"a.dat")));
}

TEST_F(Fautes_D, un_disque_protege_ne_recoit_rien) {
    Creer_trois(L"D:");
    Unite::Proteger(L'D', true);
    Lancer_vers(L"D:\\");
    Choisir({L"b.dat", L"c.dat"});
    Cliquer(L"Déplacer");
    Attendre_remplacement(L"DEPLACER", L"B.DAT", L"D:\\", IDYES);
    Attendre_avertissement(protege);
    Verifier_apres_faute(L"Déplacer");
    EXPECT_EQ(Taille_fichier(L"D:\\b.dat"), 500u);
    Fermer();
    Unite::Proteger(L'D', false);
}

TEST_F(Fautes_D, un_disque_arrache_au_milieu_d_un_deplacement_laisse_la_source) {
    Creer_source(L"a.dat", 40u << 20, 1);
    Creer_source(L"b.dat", 100, 2);
    avant = Lire_arbre(source);
    Lancer_vers(L"D:\\");
    Choisir_tout();
    Commencer(L"Déplacer");
    EXIGER(Existe(L"D:\\a.dat") && Taille_fichier(L"D:\\a.dat") > 0);
    {
        const Suspension suspension(programme->Poignee());
        Unite::Arracher_disque();
    }
    Attendre_avertissement(Support_absent(L"D:"));
    Verifier_apres_faute(L"Déplacer");
    Fermer();
    Unite::Remettre_disque();
}

TEST_F(Fautes_D, un_disque_source_arrache_au_milieu_d_une_copie_ne_laisse_pas_de_reste) {
    Creer_longue(L"D:\\longue.dat");
    Lancer();
    Ouvrir(L"srce", L"D:\\");
    Ouvrir(L"dest", destination);
    Choisir_tout();
    Commencer(L"Copier");
    EXIGER(Existe(Destination(L"longue.dat")) && Taille_fichier(Destination(L"longue.dat")) > 0);
    {
        const Suspension suspension(programme->Poignee());
        Unite::Arracher_disque();
    }
    Attendre_avertissement(Support_absent(L"D:"));
    Attendre_fin_commande();
    EXPECT_TRUE(Noms(destination).empty());
    Fermer();
    Unite::Remettre_disque();
}

class Fautes_E : public Fautes {};

TEST_F(Fautes_E, un_support_en_lecture_seule_se_copie_mais_ne_se_deplace_pas) {
    const auto support = Lire_arbre(L"E:");
    Lancer();
    Ouvrir(L"srce", L"E:\\");
    Ouvrir(L"dest", destination);
    Choisir({L"gros.dat", L"lisez.txt"});
    Cliquer(L"Copier");
    Attendre_fin_commande();
    for (const wchar_t * nom : {L"gros.dat", L"lisez.txt"}) {
        EXPECT_EQ(Empreinte(Destination(nom)), support.at(std::wstring(L"\\") + nom).empreinte) << Utf8(nom);
        ASSERT_TRUE(Effacer(Destination(nom)));
    }
    Choisir({L"gros.dat", L"lisez.txt"});
    Cliquer(L"Déplacer");
    Attendre_avertissement(protege);
    Verifier_repos(L"Déplacer");
    EXPECT_EQ(Differences(support, Lire_arbre(L"E:")), "");
}

TEST_F(Fautes_E, un_support_en_lecture_seule_ne_recoit_rien) {
    const auto support = Lire_arbre(L"E:");
    Creer_source(L"a.dat", 100);
    Creer_source(L"lisez.txt", 100);
    avant = Lire_arbre(source);
    Lancer_vers(L"E:\\");
    for (const wchar_t * bouton : {L"Copier", L"Déplacer"}) {
        Choisir_un(L"a.dat");
        Cliquer(bouton);
        Attendre_avertissement(protege);
        Verifier_apres_faute(bouton);
        Choisir_un(L"lisez.txt");
        Cliquer(bouton);
        Attendre_remplacement(*bouton == L'D' ? L"DEPLACER" : L"COPIER", L"LISEZ.TXT", L"E:\\", IDYES);
        Attendre_avertissement(protege);
        Verifier_apres_faute(bouton);
    }
    EXPECT_EQ(Differences(support, Lire_arbre(L"E:")), "");
}

class Fautes_F : public Fautes {};

TEST_F(Fautes_F, une_unite_sans_support_est_signalee_et_la_copie_va_ou_le_volet_est_reste) {
    Creer_source(L"a.dat", 100);
    avant = Lire_arbre(source);
    Lancer_dans_les_dossiers();
    for (const wchar_t * liste : {L"Unité_dest", L"Unité_srce"}) {
        Choisir_unite(liste, L'f');
        Attendre_avertissement(Support_absent(L"F:"));
        Attendre_fin_commande();
    }
    Choisir_un(L"a.dat");
    Cliquer(L"Copier");
    Verifier_apres_faute(L"Copier");
    EXPECT_EQ(Lire_fichier(Destination(L"a.dat")), Lire_fichier(Source(L"a.dat")));
}
