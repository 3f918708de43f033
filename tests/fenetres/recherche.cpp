#include "fenetres/recherche.h"

#include "fenetres/systeme_hote.h"

#include <cwctype>

using namespace Pilote;
using Textes = std::vector<std::wstring>;

Recherche::Recherche() {
    if (Unite::Presente(L'D')) Unite::Vider(L'D');
}

Recherche::~Recherche() {
    Fermer();
    if (Unite::Presente(L'D')) Unite::Vider(L'D');
}

void Recherche::Lancer_sur_d() {
    Regler(L"Options", L"Répertoire", L"d:\\");
    Lancer();
    if (HasFatalFailure()) return;
    ASSERT_EQ(Lire(L"Unité_srce").substr(0, 2), L"d:");
    Ranger_principale();
}

void Recherche::Creer_d(const std::wstring & nom, std::uint64_t taille) {
    Creer_fichier_graine(L"D:\\" + nom, taille, static_cast<std::uint32_t>(nom.size()));
}

void Recherche::Creer_foret(wchar_t lettre) {
    EXPECT_TRUE(Sur_hote(std::wstring(1, lettre) + L":\\",
                         L"seq -f branche%02g/rameau 10 69 | while read -r r; do "
                         L"seq -f $r%03g 0 59; done | xargs mkdir -p"));
}

Pilote::Fille Recherche::Ouvrir_demande() {
    Commencer(L"Chercher");
    const auto demande = Demande();
    demande.Attendre_ouverte();
    return demande;
}

void Recherche::Saisir(const Pilote::Fille & demande, const std::wstring & cherches,
                       const std::wstring & exclus) {
    exclus.empty() ? demande.Vider(L"Fichiers_exclus") : demande.Remplacer(L"Fichiers_exclus", exclus);
    cherches.empty() ? demande.Vider(L"Fichiers_cherchés")
                     : demande.Remplacer(L"Fichiers_cherchés", cherches);
}

void Recherche::Lancer_recherche(const std::wstring & cherches, const std::wstring & exclus) {
    const auto demande = Ouvrir_demande();
    Saisir(demande, cherches, exclus);
    Pilote::Cliquer(demande.Controle(L"OK"));
}

void Recherche::Attendre_choix(const Pilote::Fille & resultats) {
    EXPECT_TRUE(Attendre([&] { return resultats.Titre() == choix && resultats.Se_voit(L"OK"); }, 20000))
        << Utf8(resultats.Titre()) << (Boite_absente() ? "" : ", une boîte est là");
    resultats.Attendre_ouverte();
}

Pilote::Fille Recherche::Chercher(const std::wstring & cherches, const Textes & attendus,
                                  const std::wstring & exclus) {
    Lancer_recherche(cherches, exclus);
    const auto resultats = Resultats();
    Attendre_choix(resultats);
    EXPECT_EQ(resultats.Entrees(L"Liste_sél"), attendus);
    const std::wstring s = attendus.size() > 1 ? L"s" : L"";
    EXPECT_EQ(resultats.Lire(L"Mess_infos"),
              std::to_wstring(attendus.size()) + L" fichier" + s + L" trouvé" + s);
    return resultats;
}

void Recherche::Attendre_rien_trouve(const std::wstring & modele, const std::wstring & unite) {
    Attendre_boite(gestionnaire,
                   L"Pas de fichier correspondant à '" + modele + L"'\r                  sur le disque " +
                       unite,
                   MB_OK | MB_ICONINFORMATION, IDOK);
    Resultats().Attendre_fermee();
}

void Recherche::Annuler(const Pilote::Fille & fille) {
    Pilote::Cliquer(fille.Controle(L"Annule"));
    fille.Attendre_fermee();
    ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
    Attendre_fin_commande();
}

void Recherche::Verifier_sans_resultats() {
    Attendre_fin_commande();
    EXPECT_TRUE(Se_voit(L"Fichier_srce"));
    EXPECT_FALSE(Se_voit(L"Fichier_sél"));
    EXPECT_EQ(Entrees(L"Fichier_sél"), Textes{});
    EXPECT_EQ(Choisies(), Textes{});
    EXPECT_EQ(Lire(L"Ligne_message"), L"");
    EXPECT_TRUE(Se_voit(L"Croiser") && Est_actif(L"Croiser"));
}

void Recherche::Verifier_resultats_dans_source(const Textes & chemins, const std::wstring & ligne) {
    Attendre_fin_commande();
    ATTENDRE(Se_voit(L"Fichier_sél"));
    EXPECT_FALSE(Se_voit(L"Fichier_srce"));
    EXPECT_EQ(Entrees(L"Fichier_sél"), chemins);
    EXPECT_EQ(Choisies(L"Fichier_sél"), chemins);
    ATTENDRE(Lire(L"Ligne_message") == ligne);
    EXPECT_TRUE(Se_voit(L"Croiser") && Est_actif(L"Croiser"));
}
