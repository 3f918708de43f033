#include "fenetres/commandes.h"

using namespace Pilote;

std::wstring Capitales(const std::wstring & texte) {
    std::wstring resultat = texte;
    CharUpperBuffW(resultat.data(), static_cast<DWORD>(resultat.size()));
    return resultat;
}

std::wstring Par_une_autre_unite(const std::wstring & chemin) {
    using Traduction       = char *(CDECL *)(const wchar_t *);
    const HMODULE systeme  = GetModuleHandleW(L"kernel32.dll");
    const auto    traduire = reinterpret_cast<Traduction>(
        reinterpret_cast<void *>(GetProcAddress(systeme, "wine_get_unix_file_name")));
    if (!traduire) throw std::runtime_error("aucune autre unité ne montre " + Utf8(chemin));
    char *       hote     = traduire(chemin.c_str());
    std::wstring resultat = L"Z:" + Large(hote);
    HeapFree(GetProcessHeap(), 0, hote);
    for (wchar_t & c : resultat) c = c == L'/' ? L'\\' : c;
    return resultat;
}

void Commandes::Lancer_vers(const std::wstring & repertoire_destination) {
    Regler(L"Options", L"Répertoire", source);
    Lancer();
    if (HasFatalFailure() || repertoire_destination.empty()) return;
    Ouvrir(L"dest", repertoire_destination);
}

void Commandes::Relire_source() {
    const HWND liste = Controle(L"Répertoire_srce");
    Pilote::Cliquer(Point_entree(liste, Rang_entree(liste, source.substr(source.rfind(L'\\') + 1))));
    Reposer(liste);
}

void Commandes::Choisir_tout() {
    Cliquer(L"Sélecte");
    const HWND liste = Controle(L"Fichier_srce");
    ATTENDRE(Nombre_selection(liste) == Nombre_entrees(liste));
}

void Commandes::Commencer(const std::wstring & bouton) { Pilote::Cliquer(Controle(bouton)); }

void Commandes::Attendre_commencee() { EXIGER(Se_voit(L"Arret") && Se_voit(L"En_cours")); }

void Commandes::Attendre_protege(const std::wstring & fichier_capitales) {
    Attendre_avertissement(
        L"Le fichier " + fichier_capitales +
        L"est protégé contre l'écriture :\rmodifiez son attribut et relancez l'opération.");
}

void Commandes::Attendre_remplacement(const std::wstring & commande, const std::wstring & fichier_capitales,
                                      const std::wstring & repertoire, int reponse) {
    Attendre_boite(commande,
                   L"Le fichier " + fichier_capitales + L"\rexiste déjà dans le répertoire\r" +
                       Capitales(repertoire) + L"\rvoulez-vous le remplacer ?",
                   oui_non_annuler, reponse);
}

void Commandes::Attendre_confirmation(const std::wstring & commande, const std::wstring & fichier,
                                      const std::wstring & repertoire_destination, unsigned style,
                                      int reponse) {
    Attendre_boite(gestionnaire,
                   L"Vous allez " + commande + L" le fichier '" + fichier + L"' du répertoire\r" + source +
                       L"\rvers le répertoire\r" + repertoire_destination +
                       L"\rConfirmez-vous cette commande ?",
                   style, reponse);
}

void Commandes::Attendre_rapport(int numero, unsigned code, const std::wstring & commande,
                                 const std::wstring & repertoire_source,
                                 const std::wstring & repertoire_destination) {
    wchar_t systeme[512] = L"";
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, systeme, 512,
                   nullptr);
    std::wstring texte = systeme;
    texte.erase(texte.find_last_not_of(L"\r\n ") + 1);
    const std::wstring genre = Se_voit(L"Créer") ? L" (répertoire)" : L" (fichier)";
    Attendre_boite(L"Erreur détectée par KORVANE",
                   L"Veuillez noter et transmettre à l'auteur. Merci\r\r" + texte + L" (code = " +
                       std::to_wstring(numero) + L")\rCommande: " + commande + genre + L"\rSource: " +
                       repertoire_source + L"\rDestination: " + repertoire_destination +
                       L"\rEditeur: NOTEPAD.EXE\rVisualiseur: PELMIRA.EXE",
                   rapport, IDOK);
}

void Commandes::Attendre_manque_de_place(const std::wstring & commande, const std::wstring & unite,
                                         int reponse) {
    Attendre_boite(commande,
                   L"L'ensemble des fichiers sélectionnés ne peut être copiés sur " + unite +
                       L" , à moins qu'il y ait des fichiers en remplacement.\rVoulez-vous continuer ?",
                   oui_non, reponse);
}

void Commandes::Verifier_repos(const std::wstring & bouton) {
    Attendre_fin_commande();
    for (const wchar_t * montre : {L"Titre_dest", L"Croiser"}) EXPECT_TRUE(Se_voit(montre)) << Utf8(montre);
    for (const wchar_t * cache : {L"Arret", L"En_cours", L"Jauge", L"Ligne_jauge(0)", L"Ligne_jauge(3)"}) {
        EXPECT_FALSE(Se_voit(cache)) << Utf8(cache);
    }
    EXPECT_EQ(Utf8(Nom_du_focus()), Utf8(bouton));
    EXPECT_EQ(GetForegroundWindow(), Principale());
    const HWND liste = Controle(L"Fichier_srce");
    if (Nombre_entrees(liste) == 0) return;
    Pilote::Cliquer(Point_entree(liste, 0));
    ATTENDRE(Lire(L"Ligne_message").starts_with(L"   1 fichier sélectionné, total = "));
}

void Commandes::Verifier_source_intacte(const Arbre & avant) const {
    EXPECT_EQ(Differences(avant, Lire_arbre(source)), "");
}

void Commandes::Creer_longue(const std::wstring & chemin) {
    const HANDLE  fichier = CreateFileW(chemin.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    LARGE_INTEGER fin;
    fin.QuadPart = std::int64_t{8} << 30;
    EXPECT_TRUE(SetFilePointerEx(fichier, fin, nullptr, FILE_BEGIN) && SetEndOfFile(fichier)) << Utf8(chemin);
    CloseHandle(fichier);
}
