#include "pilote/fenetres.h"

#include <cwchar>

namespace Pilote {

namespace {

// A process that hangs must not hang its test.
LRESULT Envoyer(HWND fenetre, UINT message, WPARAM mot = 0, LPARAM large = 0, LRESULT sans_reponse = 0) {
    DWORD_PTR resultat = 0;
    if (!fenetre || !SendMessageTimeoutW(fenetre, message, mot, large, SMTO_ABORTIFHUNG, 3000, &resultat)) {
        return sans_reponse;
    }
    return static_cast<LRESULT>(resultat);
}

bool Est_combinee(HWND fenetre) { return _wcsicmp(Classe(fenetre).c_str(), L"ComboBox") == 0; }

bool A_selection_multiple(HWND liste) {
    return (GetWindowLongW(liste, GWL_STYLE) & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) != 0;
}

}  // namespace

std::wstring Nom(HWND fenetre) {
    const auto atome =
        static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(fenetre ? GetPropW(fenetre, L"nom") : nullptr));
    wchar_t texte[256];
    return atome && GlobalGetAtomNameW(atome, texte, 256) ? texte : L"";
}

std::wstring Classe(HWND fenetre) {
    wchar_t texte[256];
    return fenetre && GetClassNameW(fenetre, texte, 256) ? texte : L"";
}

std::wstring Texte(HWND fenetre) {
    if (!fenetre) return L"";
    const LRESULT longueur = Envoyer(fenetre, WM_GETTEXTLENGTH, 0, 0, -1);
    if (longueur < 0) return L"<sans réponse>";
    std::wstring  texte(static_cast<std::size_t>(longueur) + 1, L'\0');
    const LRESULT lus = Envoyer(fenetre, WM_GETTEXT, texte.size(), reinterpret_cast<LPARAM>(texte.data()));
    texte.resize(static_cast<std::size_t>(lus));
    return texte;
}

bool Visible(HWND fenetre) { return fenetre && IsWindowVisible(fenetre); }

bool Active(HWND fenetre) { return fenetre && IsWindowEnabled(fenetre); }

bool Cochee(HWND bouton) { return Envoyer(bouton, BM_GETCHECK) == BST_CHECKED; }

RECT Place_ecran(HWND fenetre) {
    RECT place{};
    if (fenetre) GetWindowRect(fenetre, &place);
    return place;
}

COLORREF Point_ecran(POINT point) {
    HDC            ecran   = GetDC(nullptr);
    const COLORREF couleur = GetPixel(ecran, point.x, point.y);
    ReleaseDC(nullptr, ecran);
    return couleur;
}

RECT Place_client(HWND controle) {
    RECT place = Place_ecran(controle);
    if (controle) MapWindowPoints(nullptr, GetParent(controle), reinterpret_cast<POINT *>(&place), 2);
    return place;
}

bool Sablier(HWND principale) { return principale && GetPropW(principale, L"sablier"); }

bool Repond(HWND fenetre, unsigned delai) {
    DWORD_PTR resultat = 0;
    return fenetre && SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, delai, &resultat);
}

std::vector<HWND> Fenetres(DWORD processus) {
    struct Recherche {
        DWORD             processus;
        std::vector<HWND> trouvees;
    } recherche{processus, {}};
    const auto visite = [](HWND fenetre, LPARAM parametre) -> BOOL {
        auto & r            = *reinterpret_cast<Recherche *>(parametre);
        DWORD  proprietaire = 0;
        GetWindowThreadProcessId(fenetre, &proprietaire);
        if (proprietaire == r.processus && IsWindowVisible(fenetre)) r.trouvees.push_back(fenetre);
        return TRUE;
    };
    EnumWindows(visite, reinterpret_cast<LPARAM>(&recherche));
    return recherche.trouvees;
}

HWND Fenetre_nommee(DWORD processus, const std::wstring & nom) {
    for (HWND fenetre : Fenetres(processus)) {
        if (Nom(fenetre) == nom) return fenetre;
    }
    return nullptr;
}

void Parcourir(HWND fenetre, const std::function<void(HWND)> & visite) {
    const auto appel = [](HWND enfant, LPARAM parametre) -> BOOL {
        (*reinterpret_cast<const std::function<void(HWND)> *>(parametre))(enfant);
        return TRUE;
    };
    if (fenetre) EnumChildWindows(fenetre, appel, reinterpret_cast<LPARAM>(&visite));
}

HWND Controle_nomme(HWND fenetre, const std::wstring & nom) {
    HWND trouve = nullptr;
    Parcourir(fenetre, [&](HWND enfant) {
        if (!trouve && Nom(enfant) == nom) trouve = enfant;
    });
    return trouve;
}

std::vector<HWND> Controles(HWND fenetre) {
    std::vector<HWND> resultat;
    Parcourir(fenetre, [&](HWND enfant) {
        if (!Nom(enfant).empty()) resultat.push_back(enfant);
    });
    return resultat;
}

HWND Focus(HWND fenetre) {
    GUITHREADINFO etat{};
    etat.cbSize = sizeof etat;
    return GetGUIThreadInfo(GetWindowThreadProcessId(fenetre, nullptr), &etat) ? etat.hwndFocus : nullptr;
}

int Nombre_entrees(HWND liste) {
    return static_cast<int>(Envoyer(liste, Est_combinee(liste) ? CB_GETCOUNT : LB_GETCOUNT));
}

std::wstring Entree(HWND liste, int rang) {
    const bool    combinee = Est_combinee(liste);
    const auto    mot      = static_cast<WPARAM>(rang);
    const LRESULT longueur = Envoyer(liste, combinee ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, mot, 0, -1);
    if (longueur < 0) return L"";
    std::wstring  texte(static_cast<std::size_t>(longueur) + 1, L'\0');
    const LRESULT lus =
        Envoyer(liste, combinee ? CB_GETLBTEXT : LB_GETTEXT, mot, reinterpret_cast<LPARAM>(texte.data()));
    texte.resize(static_cast<std::size_t>(lus < 0 ? 0 : lus));
    return texte;
}

std::vector<std::wstring> Entrees(HWND liste) {
    std::vector<std::wstring> textes;
    const int                 nombre = Nombre_entrees(liste);
    for (int rang = 0; rang < nombre; ++rang) textes.push_back(Entree(liste, rang));
    return textes;
}

int Rang_entree(HWND liste, const std::wstring & texte) {
    const int nombre = Nombre_entrees(liste);
    for (int rang = 0; rang < nombre; ++rang) {
        if (_wcsicmp(Entree(liste, rang).c_str(), texte.c_str()) == 0) return rang;
    }
    return -1;
}

int Entree_courante(HWND liste) {
    if (Est_combinee(liste)) return static_cast<int>(Envoyer(liste, CB_GETCURSEL, 0, 0, -1));
    if (Nombre_entrees(liste) == 0) return -1;
    return static_cast<int>(
        Envoyer(liste, A_selection_multiple(liste) ? LB_GETCARETINDEX : LB_GETCURSEL, 0, 0, -1));
}

bool Deroulee(HWND combinee) { return Envoyer(combinee, CB_GETDROPPEDSTATE) != 0; }

// The combo box cannot be asked across processes for its list; it is the visible one of its process.
HWND Liste_deroulee(HWND combinee) {
    DWORD processus = 0;
    GetWindowThreadProcessId(combinee, &processus);
    for (HWND fenetre : Fenetres(processus)) {
        if (_wcsicmp(Classe(fenetre).c_str(), L"ComboLBox") == 0) return fenetre;
    }
    return nullptr;
}

int Nombre_selection(HWND liste) { return static_cast<int>(Envoyer(liste, LB_GETSELCOUNT, 0, 0, 0)); }

std::vector<int> Rangs_selection(HWND liste) {
    std::vector<int> rangs(
        static_cast<std::size_t>(Nombre_selection(liste) > 0 ? Nombre_selection(liste) : 0));
    if (rangs.empty()) return rangs;
    const LRESULT lus = Envoyer(liste, LB_GETSELITEMS, rangs.size(), reinterpret_cast<LPARAM>(rangs.data()));
    rangs.resize(static_cast<std::size_t>(lus < 0 ? 0 : lus));
    return rangs;
}

std::vector<std::wstring> Selection(HWND liste) {
    std::vector<std::wstring> textes;
    for (int rang : Rangs_selection(liste)) textes.push_back(Entree(liste, rang));
    return textes;
}

int Premiere_visible(HWND liste) { return static_cast<int>(Envoyer(liste, LB_GETTOPINDEX)); }

}  // namespace Pilote
