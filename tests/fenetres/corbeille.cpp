#include "fenetres/corbeille.h"

#include <cstdio>
#include <sstream>

using namespace Pilote;

const std::wstring Corbeille::index        = L"C:\\windows\\system32\\KORVANE.CRB";
const std::wstring Corbeille::nouvel_index = L"C:\\windows\\system32\\KORVANE.NEW";

namespace {

constexpr std::uint64_t contenu_maximal = 1'000'000;  // bytes; a longer file is not written

// The room is not taken: the file is as long as it says and holds nothing.
void Creer_sans_contenu(const std::wstring & chemin, std::uint64_t taille) {
    const HANDLE  fichier = CreateFileW(chemin.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    LARGE_INTEGER fin{};
    fin.QuadPart = static_cast<LONGLONG>(taille);
    EXPECT_TRUE(SetFilePointerEx(fichier, fin, nullptr, FILE_BEGIN) && SetEndOfFile(fichier)) << Utf8(chemin);
    CloseHandle(fichier);
}

std::wstring Nom_code(int jour, int tirage) {
    wchar_t nom[32];
    std::swprintf(nom, 32, L"crb%05d.%03d", jour, tirage);
    return nom;
}

}  // namespace

Corbeille::Corbeille() {
    Nettoyer();
    Regler(L"Corbeille", L"Taille", L"9999");
}

Corbeille::~Corbeille() {
    Fermer();
    Nettoyer();
}

void Corbeille::Nettoyer() {
    EXPECT_TRUE(Attendre([] { return Effacer(index) && Effacer(nouvel_index); }));
    EXPECT_TRUE(Effacer(Donnees_locales()));
}

std::wstring Corbeille::Donnees_locales() { return Environnement(L"LOCALAPPDATA") + L"\\KORVANE"; }

void Corbeille::Mettre(const std::wstring & chemin, std::uint64_t taille, std::uint32_t graine, int jour,
                       int tirage) {
    const std::size_t  barre      = chemin.rfind(L'\\') + 1;
    const std::wstring repertoire = chemin.substr(0, barre);
    const std::wstring code       = Nom_code(jour, tirage);
    if (taille < contenu_maximal)
        Creer_fichier_graine(repertoire + code, taille, graine);
    else
        Creer_sans_contenu(repertoire + code, taille);
    Attributs(repertoire + code, FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    char octets[16];
    std::snprintf(octets, sizeof octets, "%08llu", static_cast<unsigned long long>(taille));
    Ajouter_ligne(Page_systeme(code) + " " + octets + " " + Page_systeme(chemin.substr(barre)) + " " +
                  Page_systeme(repertoire));
}

void Corbeille::Ajouter_ligne(const std::string & ligne) { lignes_.push_back(ligne); }

void Corbeille::Ecrire_index() const {
    std::string contenu;
    for (const std::string & ligne : lignes_) contenu += ligne + "\r\n";
    Creer_fichier(index, contenu);
    Attributs(index, FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN);
}

Pilote::Fille Corbeille::Ouvrir_corbeille() {
    Ecrire_index();
    Lancer_dans_les_dossiers();
    return Rouvrir_corbeille();
}

Pilote::Fille Corbeille::Rouvrir_corbeille() { return Ouvrir_par(L"Corbeille", Fenetre_corbeille()); }

void Corbeille::Recuperer(const Pilote::Fille & fille, std::size_t restants) {
    fille.Cliquer(L"Récupérer");
    Attendre_restants(fille, restants);
}

void Corbeille::Attendre_restants(const Pilote::Fille & fille, std::size_t restants) {
    const HWND liste = fille.Controle(L"Fichier_effacé");
    EXPECT_TRUE(Attendre(
        [&] { return static_cast<std::size_t>(Nombre_entrees(liste)) == restants && !Sablier(); }, 30000))
        << Nombre_entrees(liste) << " fichiers au lieu de " << restants;
}

void Corbeille::Terminer(const Pilote::Fille & fille) {
    fille.Cliquer(L"Fin");
    fille.Attendre_fermee();
    EXPECT_TRUE(Boite_absente());
    ATTENDRE(GetForegroundWindow() == Principale() && Active(Principale()));
}

std::vector<std::string> Corbeille::Lignes_index() const {
    std::vector<std::string> lignes;
    if (!Existe(index)) return lignes;
    std::istringstream contenu(Lire_fichier(index));
    for (std::string ligne; std::getline(contenu, ligne);) {
        EXPECT_TRUE(ligne.ends_with('\r')) << ligne;
        if (ligne.ends_with('\r')) ligne.pop_back();
        lignes.push_back(ligne);
    }
    return lignes;
}

std::wstring Corbeille::Cle(const std::wstring & nom) const {
    wchar_t     valeur[64];
    const DWORD lus =
        GetPrivateProfileStringW(L"Corbeille", nom.c_str(), L"absente", valeur, 64, Fichier_ini().c_str());
    return {valeur, lus};
}

bool Corbeille::En_corbeille(const std::wstring & repertoire, int jour, int tirage) {
    const std::wstring chemin    = repertoire + L"\\" + Nom_code(jour, tirage);
    constexpr DWORD    attributs = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY;
    return Existe(chemin) && (Attributs(chemin) & attributs) == attributs;
}

void Corbeille::Verifier_recupere(const std::wstring & chemin, std::uint64_t taille, std::uint32_t graine,
                                  std::uint32_t attributs) {
    ASSERT_TRUE(Existe(chemin)) << Utf8(chemin);
    EXPECT_TRUE(Lire_fichier(chemin) == Contenu(taille, graine)) << Utf8(chemin);
    EXPECT_EQ(Attributs(chemin), attributs) << Utf8(chemin);
}

int Corbeille::Aujourd_hui() {
    SYSTEMTIME maintenant{}, origine{};
    GetLocalTime(&maintenant);
    origine.wYear = 1899, origine.wMonth = 12, origine.wDay = 30;
    FILETIME a{}, b{};
    maintenant.wHour = maintenant.wMinute = maintenant.wSecond = maintenant.wMilliseconds = 0;
    SystemTimeToFileTime(&maintenant, &a);
    SystemTimeToFileTime(&origine, &b);
    const auto cent_ns = [](const FILETIME & date) {
        return std::uint64_t{date.dwHighDateTime} << 32 | date.dwLowDateTime;
    };
    return static_cast<int>((cent_ns(a) - cent_ns(b)) / 864000000000ull);
}
