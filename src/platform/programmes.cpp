#include "platform/programmes.h"

#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "platform/windows.h"

namespace {
constexpr unsigned          dernier_echec   = 31;  // WinExec's answers up to it are error codes
constexpr DWORD             longueur_chemin = 32768;
constexpr std::wstring_view prefixe_long    = L"\\\\?\\";
constexpr std::wstring_view prefixe_reseau  = L"\\\\?\\UNC\\";

// `code` is what WinExec answered: 0 stands for a lack of memory, 11 for a file that is no program. `raison` is the system's.
[[noreturn]] void Refuser(unsigned code, DWORD raison, const std::wstring & ligne) {
    // Newer reasons, such as rights that are wanting, hide behind 0.
    if (code == 0) Lever_code(raison == 0 ? ERROR_NOT_ENOUGH_MEMORY : raison, Acte::ouvrir, ligne);
    if (code == ERROR_BAD_FORMAT) throw Erreur_execution(Numero::appel_incorrect, code, ligne);
    Lever_code(code, Acte::ouvrir, ligne);
}
std::wstring Repertoire_windows() {
    std::wstring chemin(longueur_chemin, L'\0');
    chemin.resize(GetWindowsDirectoryW(chemin.data(), longueur_chemin));
    return chemin;
}

std::wstring Variable_path() {
    std::wstring valeur(longueur_chemin, L'\0');
    const DWORD  lus = GetEnvironmentVariableW(L"PATH", valeur.data(), longueur_chemin);
    valeur.resize(lus < longueur_chemin ? lus : 0);
    return valeur;
}
}  // namespace

unsigned Demarrer(const std::wstring & ligne) {
    if (!Tient_en_ansi(ligne)) throw Erreur_execution(Numero::nom_incorrect, 0, ligne);
    SetLastError(ERROR_SUCCESS);
    const unsigned reponse = WinExec(En_ansi(ligne).c_str(), SW_SHOWNORMAL);
    const DWORD    raison  = GetLastError();
    if (reponse <= dernier_echec) Refuser(reponse, raison, ligne.substr(ligne.starts_with(L'"') ? 1 : 0));
    return reponse;
}

std::wstring Chemin_transmissible(const std::wstring & chemin) {
    if (Tient_en_ansi(chemin)) return chemin;
    std::wstring court = Chemin_court(chemin);
    if (court.empty() || !Tient_en_ansi(court)) throw Erreur_execution(Numero::nom_incorrect, 0, chemin);
    return court;
}

std::wstring Chemin_court(const std::wstring & chemin) {
    std::wstring court(longueur_chemin, L'\0');
    DWORD        lus = GetShortPathNameW(chemin.c_str(), court.data(), longueur_chemin);
    if (lus == 0) lus = GetShortPathNameW(Forme_longue(chemin).c_str(), court.data(), longueur_chemin);
    court.resize(lus);
    // The long-path prefix is of no use to other programs.
    return court.starts_with(prefixe_reseau) ? L"\\\\" + court.substr(prefixe_reseau.size())
           : court.starts_with(prefixe_long) ? court.substr(prefixe_long.size())
                                             : court;
}

bool Programme_existe(std::wstring_view programme) {
    const std::wstring nom(programme);
    if (Fichier_existe(nom)) return true;
    std::wstring chemin(longueur_chemin, L'\0');
    chemin.resize(SearchPathW(nullptr, nom.c_str(), L".EXE", longueur_chemin, chemin.data(), nullptr));
    return !chemin.empty() && Fichier_existe(chemin);
}

std::wstring Programme_masque(std::wstring_view nom) {
    if (nom.empty() || nom.find_first_of(L"\\/:") != std::wstring_view::npos) return {};
    std::wstring programme(nom);
    if (nom.find(L'.') == std::wstring_view::npos) programme += L".EXE";
    // Beside our own program is where the system looks first.
    if (!Fichier_existe(Joindre(Repertoire_courant(), programme)) ||
        Fichier_existe(Joindre(Repertoire_programme(), programme)))
        return {};
    const std::wstring repertoires =
        Repertoire_systeme() + L";" + Repertoire_windows() + L";" + Variable_path();
    std::wstring chemin(longueur_chemin, L'\0');
    chemin.resize(SearchPathW(repertoires.c_str(), programme.c_str(), nullptr, longueur_chemin, chemin.data(),
                              nullptr));
    return chemin;
}

Repertoire_de_travail::Repertoire_de_travail(const std::wstring & repertoire) {
    if (repertoire.empty()) return;
    avant_ = Repertoire_courant();
    Changer_repertoire(repertoire);
}

Repertoire_de_travail::~Repertoire_de_travail() {
    if (!avant_.empty()) Tenter([this] { Changer_repertoire(avant_); });
}
