#include "services/scene.h"

#include "platform/poignee.h"
#include "recycle/magasin.h"
#include "services/banc.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr std::uint32_t apres_retour = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_SYSTEM;

struct Vu {
    std::string   octets;
    std::uint64_t date      = 0;
    std::uint32_t attributs = 0;

    bool operator==(const Vu &) const = default;
};
// Files by their names below the root, as spelled on the disk; directories end with a "\".
using Vue = std::map<std::wstring, Vu>;

std::uint64_t En_64(const FILETIME & date) {
    return std::uint64_t{date.dwHighDateTime} << 32 | date.dwLowDateTime;
}

void Regarder(const std::wstring & racine, const std::wstring & sous, Vue & vue) {
    WIN32_FIND_DATAW        trouve;
    const Poignee_recherche recherche(
        FindFirstFileW((Prefixe(racine) + L"\\" + sous + L"*").c_str(), &trouve));
    if (!recherche.Valide()) return;
    do {
        const std::wstring nom = trouve.cFileName;
        if (nom == L"." || nom == L"..") continue;
        if ((trouve.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            vue[sous + nom + L"\\"] = {};
            Regarder(racine, sous + nom + L"\\", vue);
        } else {
            vue[sous + nom] = {Contenu(racine + L"\\" + sous + nom), En_64(trouve.ftLastWriteTime),
                               trouve.dwFileAttributes};
        }
    } while (FindNextFileW(recherche.Valeur(), &trouve));
}

Vue Regarder(const std::wstring & racine) {
    Vue vue;
    Regarder(racine, L"", vue);
    return vue;
}

std::string Utf8(const std::wstring & texte) {
    std::string octets(texte.size() * 3, '\0');
    octets.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, texte.c_str(), static_cast<int>(texte.size()), octets.data(),
                            static_cast<int>(octets.size()), nullptr, nullptr)));
    return octets;
}

void Dater(const std::wstring & chemin, std::uint64_t moment) {
    const FILETIME        date = {static_cast<DWORD>(moment), static_cast<DWORD>(moment >> 32)};
    const Poignee_fichier fichier(
        CreateFileW(Prefixe(chemin).c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_TRUE(SetFileTime(fichier.Valeur(), nullptr, nullptr, &date)) << GetLastError();
}

// Hidden and read-only together are refused by some file systems unless set one after the other.
void Attribuer(const std::wstring & chemin, std::uint32_t attributs) {
    Regler_attributs(chemin, attributs & ~std::uint32_t{FILE_ATTRIBUTE_READONLY});
    if ((attributs & FILE_ATTRIBUTE_READONLY) != 0) Regler_attributs(chemin, attributs);
}

// Another case of a name takes two steps on some file systems, with a name of its own between them.
bool Entre_deux_noms(const std::wstring & vu, const Scene::Fichier & fichier) {
    const std::size_t barre = fichier.nom.rfind(L'\\') + 1;
    return !fichier.autre.empty() && vu.substr(0, barre) + L"~krv" == vu.substr(0, barre + 4) &&
           CompareStringOrdinal(fichier.nom.c_str(), -1, fichier.autre.c_str(), -1, TRUE) == CSTR_EQUAL;
}

// One comparison of a scene with what a start shows of it.
class Comparaison {
public:
    Comparaison(const Scene & scene, const Vue & vue, const std::vector<Fiche> & fiches)
        : scene_(scene), vue_(vue), fiches_(fiches) {}

    std::vector<std::string> defauts;

    void Chaque_fichier() {
        for (const Scene::Fichier & fichier : scene_.Fichiers()) {
            const std::size_t places = Places(fichier);
            const auto        listes = std::ranges::count_if(fiches_, [&](const Fiche & f) {
                const std::wstring avant = f.Chemin_avant();
                return avant == scene_.Racine() + L"\\" + fichier.nom ||
                       (!fichier.autre.empty() && avant == scene_.Racine() + L"\\" + fichier.autre);
            });
            const std::size_t total  = places + static_cast<std::size_t>(listes);
            const bool        manque = total == 0 && fichier.sort == Scene::Sort::garder;
            if (manque) Noter("perdu : ", fichier.nom);
            if (total > 1) Noter("en double : ", fichier.nom);
        }
    }
    // No file but those of the scene and those that the index names.
    void Rien_d_autre(const std::wstring & index) {
        for (const auto & [nom, vu] : vue_) {
            const std::wstring chemin = scene_.Racine() + L"\\" + nom;
            const bool         liste =
                std::ranges::any_of(fiches_, [&](const Fiche & f) { return f.Chemin_code() == chemin; });
            if (!liste && !nom.ends_with(L'\\') && !connus_.contains(nom) && nom != index)
                Noter("de trop : ", nom);
        }
    }
    void Lignes_etrangeres(const std::string & index, const std::vector<std::string> & lignes) {
        std::size_t debut = 0;
        for (const std::string & ligne : lignes) {
            const std::size_t trouvee = index.find(ligne, debut);
            if (trouvee == std::string::npos) {
                defauts.push_back("ligne perdue : " + ligne);
            } else {
                debut = trouvee + ligne.size();
            }
        }
    }

private:
    void Noter(const char * defaut, const std::wstring & nom) { defauts.push_back(defaut + Utf8(nom)); }

    std::size_t Places(const Scene::Fichier & fichier) {
        std::size_t places = 0;
        for (const auto & [nom, vu] : vue_) {
            if (nom != fichier.nom && nom != fichier.autre && !Entre_deux_noms(nom, fichier)) continue;
            ++places;
            connus_[nom] = true;
            if (vu.octets != fichier.octets) Noter("abîmé : ", nom);
            if (vu.date != fichier.date) Noter("autre date : ", nom);
            // What was about to be destroyed had lost its attributes.
            const std::uint32_t compares =
                fichier.sort == Scene::Sort::perissable ? FILE_ATTRIBUTE_ARCHIVE : ~std::uint32_t{0};
            const std::uint32_t vus = vu.attributs & compares;
            if (vus != (fichier.attributs & compares) &&
                vus != (fichier.attributs & apres_retour & compares)) {
                Noter(("attributs " + std::to_string(vu.attributs) + " : ").c_str(), nom);
            }
        }
        return places;
    }

    const Scene &                scene_;
    const Vue &                  vue_;
    const std::vector<Fiche> &   fiches_;
    std::map<std::wstring, bool> connus_;
};

void Rendre_tout(Magasin & magasin, std::vector<std::string> & defauts) {
    std::vector<std::size_t> tous(magasin.Fiches().size());
    for (std::size_t i = 0; i < tous.size(); ++i) tous[i] = i;
    if (tous.empty()) return;
    magasin.Restaurer(tous, [] { return true; });
    if (!magasin.Fiches().empty() || magasin.Total() != 0)
        defauts.emplace_back("la corbeille n'est pas vide");
}

}  // namespace

Scene::Fichier & Scene::Poser(const std::wstring & nom, std::size_t taille, std::uint32_t attributs) {
    Fichier fichier;
    fichier.nom       = nom;
    fichier.octets    = Octets_varies(taille);
    fichier.date      = 126000000000000000 + fichiers_.size() * 600000000;
    fichier.attributs = attributs;
    if (taille > 0) fichier.octets[0] = static_cast<char>('a' + fichiers_.size());
    fichiers_.push_back(fichier);
    return fichiers_.back();
}

Scene::Fichier & Scene::Ranger(const std::wstring & nom, std::size_t taille, std::int32_t jour,
                               std::uint32_t attributs) {
    Fichier & fichier = Poser(nom, taille, attributs);
    wchar_t   code[24];
    std::swprintf(code, 24, L"crb%d.%03d", static_cast<int>(jour), static_cast<int>(fichiers_.size()));
    fichier.code = code;
    lignes_.push_back(Fiche_de(fichier));
    return fichier;
}

void Scene::Ligne(const std::string & ligne, bool etrangere) {
    lignes_.push_back(ligne);
    if (etrangere) etrangeres_.push_back(ligne);
}

std::string Scene::Lignes() const {
    std::string tout;
    for (const std::string & ligne : lignes_) tout += ligne;
    return tout;
}

std::string Scene::Fiche_de(const Fichier & fichier) const {
    const std::size_t barre = fichier.nom.rfind(L'\\') + 1;
    char              taille[24];
    std::snprintf(taille, sizeof taille, " %08u ", static_cast<unsigned>(fichier.octets.size()));
    return Utf8(fichier.code) + taille + Utf8(fichier.nom.substr(barre)) + " " +
           Utf8(Chemin(fichier.nom.substr(0, barre))) + "\r\n";
}

// Where the file is at the beginning, below the root.
std::wstring Scene::Place_de(const Fichier & fichier) {
    if (fichier.code.empty()) return fichier.nom;
    return fichier.nom.substr(0, fichier.nom.rfind(L'\\') + 1) + fichier.code;
}

std::uint32_t Scene::Attributs_de(const Fichier & fichier) {
    return fichier.code.empty() ? fichier.attributs
                                : fichier.attributs | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY;
}

void Scene::Installer_fichier(const Fichier & fichier) const {
    const std::wstring chemin = Chemin(Place_de(fichier));
    CreateDirectoryW(Prefixe(chemin.substr(0, chemin.rfind(L'\\'))).c_str(), nullptr);
    ::Poser(chemin, fichier.octets);
    Dater(chemin, fichier.date);
    if (Attributs_de(fichier) != FILE_ATTRIBUTE_ARCHIVE) Attribuer(chemin, Attributs_de(fichier));
}

// What the last run left as it should be stays: making files anew is most of what a run costs.
void Scene::Installer() const {
    Vue         vue      = Regarder(racine_);
    std::size_t inconnus = 0;
    for (const auto & [nom, vu] : vue) {
        inconnus += nom.ends_with(L'\\') && nom != L"un\\" && nom != L"deux\\" && nom != L"index\\";
    }
    if (inconnus > 0) {
        Vider_repertoire(racine_);
        vue.clear();
    }
    std::vector<const Fichier *> manquants;
    for (const Fichier & fichier : fichiers_) {
        const auto vu = vue.find(Place_de(fichier));
        if (vu != vue.end() && vu->second == Vu{fichier.octets, fichier.date, Attributs_de(fichier)}) {
            vue.erase(vu);
        } else {
            manquants.push_back(&fichier);
        }
    }
    for (const auto & [nom, vu] : vue) {
        SetFileAttributesW(Prefixe(Chemin(nom)).c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(Prefixe(Chemin(nom)).c_str());
    }
    for (const Fichier * fichier : manquants) Installer_fichier(*fichier);
    Installer_index();
}

void Scene::Installer_index() const {
    CreateDirectoryW(Chemin(L"index").c_str(), nullptr);
    if (avec_index_) {
        ::Poser(Chemin(L"index\\KORVANE.CRB"), Lignes());
        Regler_attributs(Chemin(L"index\\KORVANE.CRB"), FILE_ATTRIBUTE_HIDDEN);
    }
    for (const auto & [nom, lignes] : autres_index_) ::Poser(Chemin(nom), lignes);
}

std::vector<std::string> Scene::Comparer(const Magasin & magasin, const std::wstring & index) const {
    const Vue                vue    = Regarder(racine_);
    const std::vector<Fiche> fiches = magasin.Fiches();
    Comparaison              comparaison(*this, vue, fiches);
    comparaison.Chaque_fichier();
    comparaison.Rien_d_autre(index);
    const auto lignes = vue.find(index);
    comparaison.Lignes_etrangeres(lignes != vue.end() ? lignes->second.octets : "", etrangeres_);
    return comparaison.defauts;
}

std::vector<std::string> Scene::Redemarrer() const {
    std::vector<std::string> defauts;
    try {
        Magasin                   magasin;
        std::vector<std::wstring> places;
        for (const std::wstring & place : places_) places.push_back(Chemin(place));
        const std::wstring index = places_.back() + L"\\KORVANE.CRB";
        magasin.Ouvrir(places);
        magasin.Fermer();
        const Vue mendee = Regarder(racine_);
        magasin.Ouvrir(places);
        if (mendee != Regarder(racine_)) defauts.emplace_back("un second départ change encore quelque chose");
        for (std::string & defaut : Comparer(magasin, index)) defauts.push_back(std::move(defaut));
        Rendre_tout(magasin, defauts);
        for (std::string & defaut : Comparer(magasin, index)) defauts.push_back(std::move(defaut));
    } catch (const Erreur_execution & erreur) {
        defauts.push_back("erreur " + std::to_string(erreur.numero) + " (" +
                          std::to_string(erreur.code_systeme) + ") " + Utf8(erreur.chemin));
    }
    return defauts;
}
