#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/textes.h"
#include "platform/windows.h"
#include "toolkit/interne.h"
#include "toolkit/listes_disque.h"
#include "toolkit/mesure.h"

#include <algorithm>

namespace {
constexpr int retrait_niveau = 150;  // twips a level
constexpr int largeur_image  = 240;  // twips, picture and the gap behind it

bool Est_unite_seule(const std::wstring & texte) {
    return texte.size() >= 2 && texte[1] == L':' && (texte.size() == 2 || texte[2] == L' ');
}

// The directory that an assigned text means: an entry of a drive list means the drive's current directory.
std::wstring Resoudre(const std::wstring & texte) {
    if (texte.empty()) throw Erreur_execution(Numero::chemin_introuvable, ERROR_PATH_NOT_FOUND, texte);
    if (!Est_unite_seule(texte)) return Chemin_complet(texte);
    const std::wstring courant = Chemin_complet(texte.substr(0, 2));
    // Another medium may not have the directory that was current on the one before.
    return Repertoire_existe(courant) ? courant : texte.substr(0, 2) + L"\\";
}

std::vector<std::wstring> Noms_tries(std::vector<Entree_repertoire> & repertoires) {
    std::vector<std::wstring> noms;
    noms.reserve(repertoires.size());
    for (Entree_repertoire & entree : repertoires) noms.push_back(std::move(entree.nom));
    std::sort(noms.begin(), noms.end(),
              [](const std::wstring & a, const std::wstring & b) { return Comparer_sans_casse(a, b) < 0; });
    return noms;
}

// Root, ..., the directory itself. A network path's root is its share.
std::vector<std::wstring> Chaine(const std::wstring & chemin) {
    std::vector<std::wstring> chaine;
    std::size_t               racine = chemin.find(L'\\');
    if (chemin.starts_with(L"\\\\")) {
        racine = chemin.find(L'\\', 2);
        if (racine != std::wstring::npos) racine = chemin.find(L'\\', racine + 1);
    }
    if (racine == std::wstring::npos || racine + 1 >= chemin.size()) return {chemin};
    const bool reseau = chemin.front() == L'\\';
    chaine.push_back(chemin.substr(0, reseau ? racine : racine + 1));
    for (std::size_t fin = chemin.find(L'\\', racine + 1); fin != std::wstring::npos;
         fin             = chemin.find(L'\\', fin + 1)) {
        chaine.push_back(chemin.substr(0, fin));
    }
    chaine.push_back(chemin);
    return chaine;
}

void Dessiner_dossier(HDC hdc, int x, int y, int cote, bool ouvert) {
    const HGDIOBJ pinceau = SelectObject(hdc, GetStockObject(DC_BRUSH));
    const HGDIOBJ plume   = SelectObject(hdc, GetStockObject(DC_PEN));
    SetDCPenColor(hdc, RGB(0x80, 0x60, 0x10));
    SetDCBrushColor(hdc, RGB(0xF5, 0xC8, 0x48));
    const auto  p       = [&](int a, int b) { return POINT{x + a * cote / 12, y + b * cote / 12}; };
    const POINT corps[] = {p(0, 3), p(1, 2), p(4, 2), p(5, 3), p(11, 3), p(11, 10), p(0, 10)};
    Polygon(hdc, corps, 7);
    if (ouvert) {
        SetDCBrushColor(hdc, RGB(0xFF, 0xE6, 0x94));
        const POINT rabat[] = {p(3, 5), p(13, 5), p(11, 10), p(0, 10)};
        Polygon(hdc, rabat, 4);
    }
    SelectObject(hdc, plume);
    SelectObject(hdc, pinceau);
}
}  // namespace

Liste_repertoires::Liste_repertoires(Fenetre & fenetre, const Place & place)
    : Liste(fenetre, place, false, true) {}

void Liste_repertoires::Path(const std::wstring & chemin) {
    const std::wstring complet = Sans_barre_finale(Resoudre(chemin));
    if (!path_.empty() && Comparer_sans_casse(complet, path_) == 0) return;
    Contenu_repertoire contenu = Lire_repertoire(complet);
    path_                      = Nom_sur_disque(complet);
    chaine_                    = Chaine(path_);
    sous_repertoires_          = Noms_tries(contenu.repertoires);
    fichiers_                  = std::move(contenu.fichiers);
    Montrer(-1);
    if (Change) Change();
    fichiers_ = {};  // whoever follows has taken them; later they would be out of date
}

void Liste_repertoires::Refresh() {
    if (path_.empty()) return;
    Contenu_repertoire        contenu = Lire_repertoire(path_);
    std::vector<std::wstring> noms    = Noms_tries(contenu.repertoires);
    if (noms == sous_repertoires_) return;
    const int          index = ListIndex();
    const std::wstring choisi =
        index >= 0 ? sous_repertoires_[static_cast<std::size_t>(index)] : std::wstring();
    sous_repertoires_ = std::move(noms);
    const auto trouve = std::find(sous_repertoires_.begin(), sous_repertoires_.end(), choisi);
    if (index < 0)
        Montrer(index);
    else
        Montrer(trouve == sous_repertoires_.end() ? -1
                                                  : static_cast<int>(trouve - sous_repertoires_.begin()));
}

void Liste_repertoires::Montrer(int index) {
    std::vector<std::wstring>    noms;
    std::vector<const wchar_t *> textes;
    noms.reserve(chaine_.size() + sous_repertoires_.size());
    for (const std::wstring & chemin : chaine_) {
        const bool racine = &chemin == &chaine_.front();
        noms.push_back(racine ? chemin : std::wstring(Nom_du_chemin(chemin)));
    }
    noms.insert(noms.end(), sous_repertoires_.begin(), sous_repertoires_.end());
    textes.reserve(noms.size());
    for (const std::wstring & nom : noms) textes.push_back(nom.c_str());
    Remplir(textes);
    ListIndex(index);
    // The open directory is in view with what follows it.
    const int ouverte = static_cast<int>(chaine_.size()) - 1;
    if (index == -1) TopIndex(std::max(0, ouverte - 1));
}

int Liste_repertoires::ListIndex() const {
    return static_cast<int>(Envoyer(LB_GETCURSEL)) - static_cast<int>(chaine_.size());
}

void Liste_repertoires::ListIndex(int index) {
    Envoyer(LB_SETCURSEL, static_cast<WPARAM>(index) + chaine_.size());
}

int Liste_repertoires::ListCount() const { return static_cast<int>(sous_repertoires_.size()); }

std::wstring Liste_repertoires::List(int index) const {
    if (index >= 0) {
        const auto rang = static_cast<std::size_t>(index);
        return rang < sous_repertoires_.size() ? Joindre(path_, sous_repertoires_[rang]) : std::wstring();
    }
    const int rang = static_cast<int>(chaine_.size()) + index;
    return rang >= 0 ? chaine_[static_cast<std::size_t>(rang)] : std::wstring();
}

void Liste_repertoires::Notification(unsigned) {
    // Arrows only move the current entry; the mouse and Enter open it.
}

void Liste_repertoires::Apres_message(unsigned message, std::uintptr_t mot, std::intptr_t large) {
    Liste::Apres_message(message, mot, large);
    if (message == WM_LBUTTONDOWN) pressee_ = true;
    if (message != WM_LBUTTONUP || !pressee_) return;
    // The second click of a double one belongs to the list that the first has already replaced.
    pressee_ = false;
    // Released outside the list, or below the last entry, the button opens nothing.
    bool coupee = false;
    if (Entree_survolee(coupee) >= 0 && Click) Click();
}

std::size_t Liste_repertoires::Profondeur(int ligne) const {
    return std::min(static_cast<std::size_t>(ligne), chaine_.size());
}

int Liste_repertoires::Retrait(int ligne) const {
    return Pixels(static_cast<int>(Profondeur(ligne)) * retrait_niveau + largeur_image);
}

void Liste_repertoires::Dessiner(const void * dessin) {
    const auto & demande = *static_cast<const DRAWITEMSTRUCT *>(dessin);
    if (demande.itemID == static_cast<UINT>(-1)) return;
    const int  ligne  = static_cast<int>(demande.itemID);
    const bool choisi = (demande.itemState & ODS_SELECTED) != 0;
    HDC        hdc    = demande.hDC;
    RECT       place  = demande.rcItem;
    FillRect(hdc, &place, GetSysColorBrush(choisi ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    const int cote = place.bottom - place.top - Pixels(15);
    const int x    = place.left + Pixels(15 + static_cast<int>(Profondeur(ligne)) * retrait_niveau);
    Dessiner_dossier(hdc, x, place.top, cote, static_cast<std::size_t>(ligne) < chaine_.size());
    SetBkMode(hdc, TRANSPARENT);
    SetTextColor(hdc, GetSysColor(choisi ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    const std::wstring texte = Liste::List(ligne);
    RECT               zone  = place;
    zone.left += Retrait(ligne);
    DrawTextW(hdc, texte.c_str(), static_cast<int>(texte.size()), &zone,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if ((demande.itemState & ODS_FOCUS) != 0) DrawFocusRect(hdc, &place);
}
