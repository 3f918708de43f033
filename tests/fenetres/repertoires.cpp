#include "fenetres/repertoires.h"

using namespace Pilote;

Repertoires::~Repertoires() {
    Fermer();
    Corbeille::Vider();
}

void Repertoires::Lancer_sur(const std::wstring & repertoire_source) {
    Lancer();
    if (HasFatalFailure()) return;
    Ouvrir(L"srce", repertoire_source);
    Ouvrir(L"dest", destination);
    Cliquer(L"Mode");
    ATTENDRE(Se_voit(L"Créer") && Se_voit(L"Supprimer"));
}

void Repertoires::Attendre_question(const std::wstring & commande, const std::wstring & objet,
                                    const std::wstring & chemin, int reponse) {
    Attendre_boite(gestionnaire,
                   L"Vous allez " + commande + L"\r" + objet + Capitales(chemin) +
                       L"\r\rConfirmez-vous cette commande ?",
                   oui_non, reponse);
}

void Repertoires::Verifier_volets(const std::wstring & source_attendue,
                                  const std::wstring & destination_attendue) {
    Attendre_fin_commande();
    for (const wchar_t * montre : {L"Titre_dest", L"Croiser"}) EXPECT_TRUE(Se_voit(montre)) << Utf8(montre);
    for (const wchar_t * cache : {L"Arret", L"En_cours", L"Jauge"})
        EXPECT_FALSE(Se_voit(cache)) << Utf8(cache);
    EXPECT_EQ(GetForegroundWindow(), Principale());
    Verifier_volet(L"srce", source_attendue);
    Verifier_volet(L"dest", destination_attendue);
}

void Repertoires::Verifier_volet(const std::wstring & cote, const std::wstring & attendu) {
    SCOPED_TRACE(Utf8(cote));
    EXPECT_EQ(Utf8(Lire(L"Chemin_" + cote)), Utf8(attendu));
    // The open directory stands last but for what it holds.
    Textes fichiers, sous;
    for (const std::wstring & nom : Noms(attendu)) {
        const auto attributs = Attributs(attendu + L"\\" + nom);
        if ((attributs & FILE_ATTRIBUTE_DIRECTORY) != 0)
            sous.push_back(nom);
        else if ((attributs & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) == 0)
            fichiers.push_back(nom);
    }
    EXPECT_EQ(Entrees(L"Fichier_" + cote), fichiers);
    const Textes lus = Entrees(L"Répertoire_" + cote);
    ASSERT_GT(lus.size(), sous.size());
    EXPECT_EQ(Textes(lus.end() - static_cast<std::ptrdiff_t>(sous.size()), lus.end()), sous);
    const std::wstring & ouvert = lus[lus.size() - sous.size() - 1];
    const std::wstring   nom    = attendu.substr(attendu.rfind(L'\\') + 1);
    EXPECT_EQ(Utf8(ouvert), Utf8(nom.empty() ? attendu : nom));
}

void Repertoires::Aller_au_clavier(const std::wstring & controle) {
    for (int i = 0; i < 60 && !A_le_focus(controle); ++i) {
        Frapper(VK_TAB);
        Reposer(Principale());
    }
    EXPECT_TRUE(A_le_focus(controle)) << Utf8(controle);
}
