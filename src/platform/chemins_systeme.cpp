#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/poignee.h"
#include "platform/windows.h"

#include <algorithm>
#include <string_view>

namespace {

// A directory must leave room for a short name in it, so its limit is lower than a file's.
constexpr std::size_t plus_long_sans_prefixe = MAX_PATH - 12 - 1;

bool Avec_unite(std::wstring_view chemin) { return chemin.size() >= 2 && chemin[1] == L':'; }

bool Avec_prefixe(std::wstring_view chemin) {
    return chemin.starts_with(L"\\\\?\\") || chemin.starts_with(L"\\\\.\\");
}

bool Barre(wchar_t c) { return c == L'\\' || c == L'/'; }

bool Absolu(std::wstring_view chemin) {
    if (Avec_unite(chemin)) return chemin.size() >= 3 && Barre(chemin[2]);
    return chemin.size() >= 2 && Barre(chemin[0]) && Barre(chemin[1]);
}

std::vector<std::wstring_view> Morceaux(std::wstring_view chemin) {
    std::vector<std::wstring_view> morceaux;
    while (!chemin.empty()) {
        const std::size_t barre = std::min(chemin.find_first_of(L"\\/"), chemin.size());
        if (barre != 0) morceaux.push_back(chemin.substr(0, barre));
        chemin.remove_prefix(std::min(barre + 1, chemin.size()));
    }
    return morceaux;
}

// Names that the system takes for a device whatever their extension.
bool Peripherique(std::wstring_view nom) {
    std::wstring base(nom.substr(0, nom.find_first_of(L".:")));
    while (!base.empty() && base.back() == L' ') base.pop_back();
    const auto est = [&](const wchar_t * autre) {
        return CompareStringOrdinal(base.c_str(), -1, autre, -1, TRUE) == CSTR_EQUAL;
    };
    if (est(L"CON") || est(L"PRN") || est(L"AUX") || est(L"NUL")) return true;
    if (base.size() != 4 || base[3] < L'0' || base[3] > L'9') return false;
    base.pop_back();
    return est(L"COM") || est(L"LPT");
}

// True for a name that reaches the disk as written only behind the long-path prefix.
bool Nom_deforme(std::wstring_view nom) {
    if (nom == L"." || nom == L"..") return false;
    if (nom.back() == L'.' || nom.back() == L' ') return true;
    return (nom.size() == 3 || nom.size() == 4 || nom.find_first_of(L". :") <= 4) && Peripherique(nom);
}

// Behind the prefix the system resolves nothing: ".", ".." and doubled bars must be gone.
std::wstring Prefixer(std::wstring_view chemin) {
    const bool                     reseau = !Avec_unite(chemin);
    const std::size_t              fixes  = reseau ? 2 : 1;  // "c:", or server and share
    std::vector<std::wstring_view> retenus;
    for (const std::wstring_view morceau : Morceaux(chemin)) {
        if (morceau == L"..") {
            if (retenus.size() > fixes) retenus.pop_back();
        } else if (morceau != L".") {
            retenus.push_back(morceau);
        }
    }
    std::wstring forme = reseau ? L"\\\\?\\UNC" : L"\\\\?";
    for (const std::wstring_view morceau : retenus) forme.append(L"\\").append(morceau);
    if (retenus.size() == fixes || Barre(chemin.back())) forme += L'\\';
    return forme;
}

// Never asked for the length first: with no buffer, or one of just the length, some systems overrun it for "d:".
std::wstring Resoudre(const std::wstring & chemin) {
    constexpr DWORD marge = MAX_PATH;
    std::wstring    complet;
    DWORD           lus = 0;
    for (DWORD taille = marge * 4; lus + marge > complet.size(); taille = lus + marge * 2) {
        complet.resize(taille);
        lus = GetFullPathNameW(chemin.c_str(), taille, complet.data(), nullptr);
        if (lus == 0) Lever_code(ERROR_INVALID_NAME, Acte::ouvrir, chemin);
    }
    complet.resize(lus);
    // "d:" may resolve with a final bar that nobody wrote.
    if (!Barre(chemin.back()) && complet.size() > 3 && complet.back() == L'\\') complet.pop_back();
    return complet;
}

// The entry's own spelling; as given where the directory above cannot be read.
std::wstring Nom_exact(const std::wstring & chemin, std::wstring_view nom) {
    WIN32_FIND_DATAW        trouve;
    const Poignee_recherche recherche(FindFirstFileExW(Forme_longue(chemin).c_str(), FindExInfoBasic, &trouve,
                                                       FindExSearchNameMatch, nullptr, 0));
    return recherche.Valide() ? std::wstring(trouve.cFileName) : std::wstring(nom);
}

}  // namespace

std::wstring Forme_longue(const std::wstring & chemin) {
    if (chemin.empty() || Avec_prefixe(chemin)) return chemin;
    if (!Absolu(chemin)) {
        const std::wstring complet = Resoudre(chemin);
        return Absolu(complet) && !Avec_prefixe(complet) ? Forme_longue(complet) : complet;
    }
    bool besoin = chemin.size() >= plus_long_sans_prefixe;
    if (!besoin) {
        const auto morceaux = Morceaux(chemin);
        besoin = std::any_of(morceaux.begin() + (morceaux.empty() ? 0 : 1), morceaux.end(), Nom_deforme);
    }
    return besoin ? Prefixer(chemin) : chemin;
}

std::wstring Chemin_complet(const std::wstring & chemin) {
    if (chemin.empty()) Lever_code(ERROR_INVALID_NAME, Acte::ouvrir, chemin);
    if (Avec_prefixe(chemin)) return chemin;
    // The system drops final points and blanks; what really ends so on the disk keeps them.
    const wchar_t fin = chemin.back();
    if (Absolu(chemin) && (fin == L' ' || fin == L'.') && Nom_deforme(Morceaux(chemin).back()) &&
        GetFileAttributesW(Forme_longue(chemin).c_str()) != INVALID_FILE_ATTRIBUTES)
        return chemin;
    return Resoudre(chemin);
}

std::wstring Nom_sur_disque(const std::wstring & repertoire) {
    std::wstring complet = Chemin_complet(repertoire);
    if (complet.find_first_of(L"?*") != std::wstring::npos)
        Lever_code(ERROR_INVALID_NAME, Acte::lister, repertoire);
    const DWORD attributs = GetFileAttributesW(Forme_longue(complet).c_str());
    if (attributs == INVALID_FILE_ATTRIBUTES) {
        const DWORD code = GetLastError();
        Lever_code(code == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : code, Acte::lister, repertoire);
    }
    if ((attributs & FILE_ATTRIBUTE_DIRECTORY) == 0)
        Lever_code(ERROR_PATH_NOT_FOUND, Acte::lister, repertoire);

    const auto   morceaux = Morceaux(complet);
    const bool   unite    = Avec_unite(complet);
    std::wstring exact    = unite ? std::wstring(morceaux[0]) + L"\\" : L"\\\\";
    if (unite)
        exact[0] = static_cast<wchar_t>(exact[0] >= L'a' && exact[0] <= L'z' ? exact[0] - 32 : exact[0]);
    for (std::size_t i = unite ? 1 : 0; i < morceaux.size(); ++i) {
        if (!Barre(exact.back())) exact += L'\\';
        const bool partage = !unite && i < 2;  // server and share are not entries of a directory
        exact +=
            partage ? std::wstring(morceaux[i]) : Nom_exact(exact + std::wstring(morceaux[i]), morceaux[i]);
    }
    return exact;
}

std::wstring Repertoire_courant() {
    std::wstring chemin(GetCurrentDirectoryW(0, nullptr), L'\0');
    const DWORD  lus = GetCurrentDirectoryW(static_cast<DWORD>(chemin.size()), chemin.data());
    if (lus == 0 || lus >= chemin.size()) Lever_derniere_erreur(Acte::lister, {});
    chemin.resize(lus);
    return chemin;
}

void Changer_repertoire(const std::wstring & chemin) {
    const std::wstring complet = Chemin_complet(chemin);
    // Behind the prefix a directory cannot be current, and without it another one would be.
    if (Forme_longue(complet) != complet) return;
    if (!SetCurrentDirectoryW(complet.c_str())) {
        const DWORD code = GetLastError();
        Lever_code(code == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : code, Acte::lister, chemin);
    }
    // The current directory of each drive lives in these variables, where "d:" is looked up.
    if (Avec_unite(complet)) {
        const wchar_t variable[] = {L'=', static_cast<wchar_t>(complet[0] & ~0x20), L':', L'\0'};
        SetEnvironmentVariableW(variable, complet.c_str());
    }
}
