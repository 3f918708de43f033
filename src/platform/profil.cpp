#include "platform/profil.h"

#include "platform/droits.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/poignee.h"
#include "platform/systeme.h"
#include "platform/textes.h"
#include "platform/transfert.h"
#include "platform/valeur_profil.h"

#include <algorithm>

namespace {

constexpr std::size_t     plus_longue_liste = std::size_t{16} << 20;
constexpr const char *    win_ini           = "WIN.INI";
constexpr const wchar_t * suffixe_copie     = L".krv~";
constexpr const wchar_t * tour_des_reglages = L"KORVANE.INI";
constexpr unsigned        attente_du_tour   = 3000;  // milliseconds
constexpr std::uint64_t   marge_disque      = 8192;  // bytes left free when a file is written again

std::wstring Forme_courte(const std::wstring & chemin) {
    std::wstring court(32768, L'\0');
    const DWORD  lus = GetShortPathNameW(chemin.c_str(), court.data(), static_cast<DWORD>(court.size()));
    court.resize(lus < court.size() ? lus : 0);
    return court;
}

// The name under which the 8-bit functions reach the file. A directory whose name the code page cannot hold is
// reached by its short name, where the disk keeps one; otherwise there is no name and the file is out of reach.
std::optional<std::string> Nom_de_fichier(const std::wstring & fichier) {
    if (fichier.empty()) return win_ini;
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
    const DWORD lus    = fichier == win_ini
                             ? GetProfileStringA(section.c_str(), cle, defaut.c_str(), octets.data(), taille)
                             : GetPrivateProfileStringA(section.c_str(), cle, defaut.c_str(), octets.data(),
                                                        taille, fichier.c_str());
    octets.resize(lus);
    return octets;
}

[[noreturn]] void Refuser(DWORD code, const std::wstring & fichier) {
    const bool plein = code == ERROR_DISK_FULL || code == ERROR_HANDLE_DISK_FULL;
    throw Erreur_execution(plein ? Numero::disque_plein : Numero::acces_fichier, code, fichier);
}

// The value of a key, none when the key is absent: two defaults then give two answers.
std::optional<std::wstring> Valeur_presente(const std::string & nom, const std::string & section,
                                            const std::string & cle) {
    constexpr std::size_t tampon = 65536;
    std::string           valeur = Lire(nom, section, cle.c_str(), "", tampon);
    if (valeur.empty() && !Lire(nom, section, cle.c_str(), "absente", tampon).empty()) return std::nullopt;
    return De_ansi(valeur);
}

// Some systems keep what was written in memory, and answer reads from there.
void Vider_memoire(const std::string & nom) {
    if (nom == win_ini)
        WriteProfileStringA(nullptr, nullptr, nullptr);
    else
        WritePrivateProfileStringA(nullptr, nullptr, nullptr, nom.c_str());
}

// No value removes the key.
void Poser(const std::string & nom, const std::string & section, const std::string & cle, const char * valeur,
           const std::wstring & fichier) {
    const BOOL ecrit = nom == win_ini
                           ? WriteProfileStringA(section.c_str(), cle.c_str(), valeur)
                           : WritePrivateProfileStringA(section.c_str(), cle.c_str(), valeur, nom.c_str());
    if (!ecrit) Refuser(GetLastError(), fichier);
    Vider_memoire(nom);
}

// Writes and looks at what is there: not every failure is reported. Where the system keeps WIN.INI elsewhere than in a file, it
// takes nothing off a value, and what would protect it stays in it.
void Ecrire(const std::string & nom, const std::string & section, const Changement_profil & changement,
            const std::wstring & fichier) {
    const std::string cle = En_ansi(changement.cle);
    if (!changement.valeur) {
        // Some systems refuse to remove a key that is not there. One in a locked file only looks as if it were not.
        if (Valeur_presente(nom, section, cle)) return Poser(nom, section, cle, nullptr, fichier);
        return Exiger_lisible(fichier);
    }
    const std::string valeur   = En_ansi(*changement.valeur);
    const std::string formes[] = {En_ansi(Valeur_protegee(*changement.valeur)), valeur};
    for (const std::string & forme : formes) {
        Poser(nom, section, cle, forme.c_str(), fichier);
        if (Lire(nom, section, cle.c_str(), "", forme.size() + 2) == valeur) return;
    }
    // Nor does it keep outer blanks there, which nothing can then protect.
    const std::wstring lue = De_ansi(Lire(nom, section, cle.c_str(), "", valeur.size() + 2));
    if (nom == win_ini && lue == Sans_blancs(*changement.valeur)) return;
    Refuser(ERROR_WRITE_FAULT, fichier);
}

void Changer_sur_place(const std::string & nom, const std::string & section,
                       const std::vector<Changement_profil> & changements, const std::wstring & fichier) {
    std::vector<Changement_profil> avant;
    try {
        for (const Changement_profil & changement : changements) {
            avant.push_back({changement.cle, Valeur_presente(nom, section, En_ansi(changement.cle))});
            Ecrire(nom, section, changement, fichier);
        }
    } catch (...) {
        std::for_each(avant.rbegin(), avant.rend(), [&](const Changement_profil & etat) {
            Tenter([&] { Ecrire(nom, section, etat, fichier); });
        });
        throw;
    }
}

// The file that will take the place of the one to change; gone when it could not. It is held open meanwhile: the program on another
// machine would take it for one that a power cut left.
class Copie_profil {
public:
    explicit Copie_profil(const std::wstring & fichier)
        : chemin_(fichier + suffixe_copie), forme_(Forme_longue(chemin_)) {
        DeleteFileW(forme_.c_str());  // left by a power cut
        Transfert transfert(fichier);
        transfert.Creer_cible(chemin_);
        while (transfert.Bloc()) {
        }
        transfert.Terminer(false);
        prise_ = Poignee_fichier(CreateFileW(forme_.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                             nullptr, OPEN_EXISTING, 0, nullptr));
        if (prise_.Valide()) return;
        const DWORD code = GetLastError();
        DeleteFileW(forme_.c_str());
        Refuser(code, chemin_);
    }
    ~Copie_profil() {
        prise_ = Poignee_fichier();
        DeleteFileW(forme_.c_str());
    }
    Copie_profil(const Copie_profil &)             = delete;
    Copie_profil & operator=(const Copie_profil &) = delete;

    const std::wstring & Chemin() const { return chemin_; }
    void                 Fixer() const {  // on the disk, before it takes a name that counts
        const Poignee_fichier fichier(CreateFileW(forme_.c_str(), GENERIC_WRITE,
                                                                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                                                  0, nullptr));
        if (!fichier.Valide() || !FlushFileBuffers(fichier.Valeur())) Refuser(GetLastError(), chemin_);
    }
    bool Remplacer(const std::wstring & fichier) {
        prise_ = Poignee_fichier();
        return Tenter([&] { Remplacer_fichier(chemin_, fichier); });
    }

private:
    std::wstring    chemin_;
    std::wstring    forme_;
    Poignee_fichier prise_;
};

// The system writes the whole file again, and not every system tells when the disk was full before the end.
void Exiger_place(const std::wstring & fichier, const std::vector<Changement_profil> & changements) {
    std::uint64_t taille = marge_disque + (Fichier_existe(fichier) ? Longueur_fichier(fichier) : 0);
    for (const Changement_profil & c : changements)
        taille += c.cle.size() + (c.valeur ? c.valeur->size() : 0);
    const std::wstring repertoire = fichier.substr(0, fichier.rfind(L'\\') + 1);
    ULARGE_INTEGER     libre{};
    if (GetDiskFreeSpaceExW(repertoire.c_str(), &libre, nullptr, nullptr) && libre.QuadPart < taille)
        Refuser(ERROR_DISK_FULL, fichier);
}

// What another program writes after the copy was made would be lost with the former file.
bool Inchange(const std::wstring & fichier, const Entree_repertoire & avant) {
    bool inchange = false;
    Tenter([&] {
        const Entree_repertoire etat = Lire_etat(fichier);
        inchange                     = etat.moment == avant.moment && etat.taille == avant.taille;
    });
    return inchange;
}

// False when no copy can be made beside the file, or take its place: another program has it open or has just written it, the
// directory takes no file.
bool Changer_par_copie(const std::wstring & fichier, const std::string & section,
                       const std::vector<Changement_profil> & changements) {
    std::optional<Copie_profil> copie;
    Entree_repertoire           avant;
    try {
        avant = Lire_etat(fichier);
        copie.emplace(fichier);
    } catch (const Erreur_execution & erreur) {
        if (erreur.numero == Numero::disque_plein) throw;
        return false;
    }
    const auto nom = Nom_de_fichier(copie->Chemin());
    if (!nom) return false;
    Exiger_place(fichier, changements);
    for (const Changement_profil & changement : changements) Ecrire(*nom, section, changement, fichier);
    copie->Fixer();
    const Droits droits(fichier);
    if (!Inchange(fichier, avant) || !copie->Remplacer(fichier)) return false;
    droits.Rendre(fichier);
    return true;
}

// A link would become a file of its own; one that is not there yet has nothing to lose.
bool Copiable(const std::string & nom) {
    const DWORD attributs = GetFileAttributesA(nom.c_str());
    return nom != win_ini && attributs != INVALID_FILE_ATTRIBUTES &&
           (attributs & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

void Exiger_possibles(const std::vector<Changement_profil> & changements, const std::wstring & fichier) {
    for (const Changement_profil & c : changements) {
        if (!Tient_en_ansi(c.cle) || (c.valeur && !Tient_en_ansi(*c.valeur)))
            Refuser(ERROR_NO_UNICODE_TRANSLATION, fichier);
        if (std::max(c.cle.size(), c.valeur ? c.valeur->size() : 0) > plus_longue_valeur)
            throw Erreur_execution(Numero::depassement, ERROR_BUFFER_OVERFLOW, fichier);
    }
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

void Exiger_lisible(const std::wstring & fichier) {
    const auto nom = Nom_de_fichier(fichier);
    if (!nom || *nom == win_ini) return;
    const Poignee_fichier ouvert(CreateFileA(nom->c_str(), GENERIC_READ,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, 0, nullptr));
    if (ouvert.Valide()) return;
    const DWORD code = GetLastError();
    if (code != ERROR_FILE_NOT_FOUND && code != ERROR_PATH_NOT_FOUND) Lever_code(code, Acte::ouvrir, fichier);
}

void Changer_profil(const std::wstring & fichier, const wchar_t * section,
                    const std::vector<Changement_profil> & changements) {
    const auto nom = Nom_de_fichier(fichier);
    if (!nom) Refuser(ERROR_NO_UNICODE_TRANSLATION, fichier);
    Exiger_possibles(changements, fichier);
    const Exclusivite tour(tour_des_reglages, attente_du_tour);
    // A file that cannot be written is not always reported by the call: its attribute is looked at first.
    const DWORD attributs = *nom == win_ini ? 0 : GetFileAttributesA(nom->c_str());
    if (attributs != INVALID_FILE_ATTRIBUTES && (attributs & FILE_ATTRIBUTE_READONLY) != 0)
        Refuser(ERROR_ACCESS_DENIED, fichier);
    if (Copiable(*nom) && Changer_par_copie(fichier, En_ansi(section), changements))
        return Vider_memoire(*nom);
    if (*nom != win_ini) Exiger_place(fichier, changements);
    Changer_sur_place(*nom, En_ansi(section), changements, fichier);
}

void Ecrire_profil(const std::wstring & fichier, const wchar_t * section, const std::wstring & cle,
                   const std::optional<std::wstring> & valeur) {
    Changer_profil(fichier, section, {{cle, valeur}});
}
