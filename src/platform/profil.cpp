#include "platform/profil.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/textes.h"
#include "platform/windows.h"

#include <algorithm>

namespace {

constexpr std::size_t plus_longue_liste = std::size_t{16} << 20;

std::wstring Forme_courte(const std::wstring & chemin) {
    std::wstring court(32768, L'\0');
    const DWORD  lus = GetShortPathNameW(chemin.c_str(), court.data(), static_cast<DWORD>(court.size()));
    court.resize(lus < court.size() ? lus : 0);
    return court;
}

// The name under which the 8-bit functions reach the file. A directory whose name the code page cannot hold is
// reached by its short name, where the disk keeps one; otherwise there is no name and the file is out of reach.
std::optional<std::string> Nom_de_fichier(const std::wstring & fichier) {
    if (fichier.empty()) return "WIN.INI";
    if (fichier.size() < MAX_PATH && Tient_en_ansi(fichier)) return En_ansi(fichier);
    std::wstring court = Forme_courte(fichier);
    if (const std::size_t barre = fichier.rfind(L'\\'); court.empty() && barre != std::wstring::npos) {
        court = Forme_courte(fichier.substr(0, barre));
        if (!court.empty()) court += fichier.substr(barre);
    }
    if (court.empty() || court.size() >= MAX_PATH || !Tient_en_ansi(court)) return std::nullopt;
    return En_ansi(court);
}

// A null key asks for the list of keys.
std::string Lire(const std::string & fichier, const std::string & section, const char * cle,
                 const std::string & defaut, std::size_t tampon) {
    std::string octets(std::max<std::size_t>(tampon, 1), '\0');
    const auto  taille = static_cast<DWORD>(octets.size());
    const DWORD lus    = fichier == "WIN.INI"
                             ? GetProfileStringA(section.c_str(), cle, defaut.c_str(), octets.data(), taille)
                             : GetPrivateProfileStringA(section.c_str(), cle, defaut.c_str(), octets.data(),
                                                        taille, fichier.c_str());
    octets.resize(lus);
    return octets;
}

[[noreturn]] void Refuser(DWORD code, const std::wstring & fichier) {
    throw Erreur_execution(Numero::acces_fichier, code, fichier);
}

}  // namespace

std::wstring Lire_profil(const std::wstring & fichier, const wchar_t * section, const std::wstring & cle,
                         const std::wstring & defaut, unsigned tampon) {
    const std::size_t permis = tampon > 0 ? tampon - 1 : 0;
    const auto        nom    = Nom_de_fichier(fichier);
    if (!nom || !Tient_en_ansi(cle)) return defaut.substr(0, permis);
    return De_ansi(Lire(*nom, En_ansi(section), En_ansi(cle).c_str(), En_ansi(defaut), tampon));
}

std::wstring Lire_cles(const std::wstring & fichier, const wchar_t * section) {
    const auto  nom = Nom_de_fichier(fichier);
    std::string liste;
    if (nom) {
        // A list that did not fit fills the buffer but for its two final NULs.
        for (std::size_t taille = 4096; taille <= plus_longue_liste; taille *= 2) {
            liste = Lire(*nom, En_ansi(section), nullptr, "", taille);
            if (liste.size() + 2 < taille) break;
        }
    }
    if (!liste.empty() && liste.back() != '\0') liste += '\0';
    liste += '\0';
    return De_ansi(liste);
}

void Ecrire_profil(const std::wstring & fichier, const wchar_t * section, const std::wstring & cle,
                   const std::optional<std::wstring> & valeur) {
    const auto nom = Nom_de_fichier(fichier);
    if (!nom || !Tient_en_ansi(cle) || (valeur && !Tient_en_ansi(*valeur)))
        Refuser(ERROR_NO_UNICODE_TRANSLATION, fichier);
    // A file that cannot be written is not always reported by the call: its attribute is looked at first.
    const DWORD attributs = GetFileAttributesA(nom->c_str());
    if (attributs != INVALID_FILE_ATTRIBUTES && (attributs & FILE_ATTRIBUTE_READONLY) != 0)
        Refuser(ERROR_ACCESS_DENIED, fichier);
    const std::string octets = valeur ? En_ansi(*valeur) : std::string();
    if (!WritePrivateProfileStringA(En_ansi(section).c_str(), En_ansi(cle).c_str(),
                                    valeur ? octets.c_str() : nullptr, nom->c_str()))
        Refuser(GetLastError(), fichier);
}
