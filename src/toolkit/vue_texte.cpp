#include "toolkit/vue_texte.h"

#include "platform/windows.h"
#include "toolkit/fenetre.h"
#include "toolkit/interne.h"
#include "toolkit/mesure.h"

#include <algorithm>
#include <utility>

namespace {
constexpr int echelle = 1 << 24;  // of the vertical scroll bar: its positions have 32 bits, the content's 64

const wchar_t * Classe_vue() {
    static const wchar_t * nom = [] {
        WNDCLASSEXW classe{};
        classe.cbSize        = sizeof classe;
        classe.lpfnWndProc   = DefWindowProcW;
        classe.hInstance     = Module();
        classe.hCursor       = LoadCursorW(nullptr, IDC_IBEAM);
        classe.lpszClassName = L"Korvane_Vue";
        RegisterClassExW(&classe);
        return classe.lpszClassName;
    }();
    return nom;
}

HFONT Police_fixe() {
    return CreateFontW(-MulDiv(10, Resolution(), 72), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                       DEFAULT_QUALITY, FIXED_PITCH | FF_MODERN, L"Consolas");
}

int A_l_echelle(std::uint64_t position, std::uint64_t longueur) {
    if (longueur <= static_cast<std::uint64_t>(echelle)) return static_cast<int>(position);
    return static_cast<int>(static_cast<double>(position) / static_cast<double>(longueur) * echelle);
}

std::uint64_t De_l_echelle(int place, std::uint64_t longueur) {
    if (longueur <= static_cast<std::uint64_t>(echelle))
        return static_cast<std::uint64_t>(std::max(place, 0));
    return static_cast<std::uint64_t>(static_cast<double>(place) / echelle * static_cast<double>(longueur));
}

int Place_de_la_poignee(HWND vue, int barre) {
    SCROLLINFO etat{};
    etat.cbSize = sizeof etat;
    etat.fMask  = SIF_TRACKPOS;
    return GetScrollInfo(vue, barre, &etat) != FALSE ? etat.nTrackPos : 0;
}

bool Enfoncee(int touche) { return GetKeyState(touche) < 0; }
}  // namespace

Vue_texte::Vue_texte(Fenetre & fenetre, const Place & place)
    : Controle(fenetre, place, {Classe_vue(), WS_VSCROLL | WS_HSCROLL, WS_EX_CLIENTEDGE, true}),
      police_(Police_fixe()) {
    BackColor(couleur_fond_fenetre);
    ForeColor(couleur_texte_fenetre);
    Mesurer();
    Regler_barres();
}

Vue_texte::~Vue_texte() { DeleteObject(police_); }

void Vue_texte::Mesurer() {
    HDC           dessin = GetDC(Poignee());
    const HGDIOBJ avant  = SelectObject(dessin, police_);
    TEXTMETRICW   mesures{};
    GetTextMetricsW(dessin, &mesures);
    SelectObject(dessin, avant);
    ReleaseDC(Poignee(), dessin);
    pas_x_ = std::max<int>(mesures.tmAveCharWidth, 1);
    pas_y_ = std::max<int>(mesures.tmHeight, 1);
    RECT interieur{};
    GetClientRect(Poignee(), &interieur);
    retrait_ = Pixels(45);
    largeur_ = interieur.right - retrait_;
    hauteur_ = interieur.bottom;
}

// A content that cannot be read, or a lack of memory, must not pass through the system's call of the window.
void Vue_texte::Proteger(const std::function<void()> & corps) {
    try {
        corps();
    } catch (const std::exception & faute) {
        rangees_.clear();
        if (Panne) Panne(faute);
    }
}

void Vue_texte::Contenu(Contenu_rangees * contenu, std::uint64_t position) {
    contenu_ = contenu;
    avis_.clear();
    premiere_ = position;
    colonne_  = 0;
    ancre_ = curseur_ = 0;
    Lacher();
    Relire();
}

void Vue_texte::Remplacer(Contenu_rangees * contenu) {
    contenu_ = contenu;
    avis_.clear();
    Relire();
    Defiler_cote(colonne_);
}

void Vue_texte::Avis(const std::wstring & texte) {
    avis_    = texte;
    contenu_ = nullptr;
    rangees_.clear();
    Regler_barres();
    InvalidateRect(Poignee(), nullptr, FALSE);
}

void Vue_texte::Relire() {
    page_connue_ = false;
    Aller(premiere_);
}

int Vue_texte::Rangees_entieres() const { return std::max(hauteur_ / pas_y_, 1); }

unsigned Vue_texte::Colonnes() const { return static_cast<unsigned>(std::max(largeur_ / pas_x_, 8)); }

std::uint64_t Vue_texte::Apres_derniere() const {
    return rangees_.empty() ? premiere_ : rangees_.back().suite;
}

std::uint64_t Vue_texte::Precedente(std::uint64_t position) const {
    return position > contenu_->Debut() ? contenu_->Lire(position - 1).debut : contenu_->Debut();
}

// Top row of the page that ends with the content.
std::uint64_t Vue_texte::Derniere_page() {
    if (page_connue_) return page_;
    page_ = contenu_->Longueur();
    for (int i = 0; i < Rangees_entieres() && page_ > contenu_->Debut(); ++i) page_ = Precedente(page_);
    page_        = std::max(page_, contenu_->Debut());
    page_connue_ = true;
    return page_;
}

void Vue_texte::Charger() {
    rangees_.clear();
    if (contenu_ == nullptr) return;
    const auto    voulues  = static_cast<std::size_t>(hauteur_ / pas_y_) + 1;
    std::uint64_t position = premiere_;
    while (rangees_.size() < voulues && position < contenu_->Longueur()) {
        rangees_.push_back(contenu_->Lire(position));
        position = std::max(rangees_.back().suite, position + 1);
    }
}

void Vue_texte::Aller(std::uint64_t position) {
    Proteger([&] {
        if (contenu_ != nullptr && contenu_->Longueur() > contenu_->Debut()) {
            const std::uint64_t dernier = contenu_->Longueur() - 1;
            premiere_ = contenu_->Lire(std::clamp(position, contenu_->Debut(), dernier)).debut;
            premiere_ = std::min(premiere_, Derniere_page());
        }
        Charger();
    });
    Regler_barres();
    InvalidateRect(Poignee(), nullptr, FALSE);
    if (Defile) Defile();
}

void Vue_texte::Defiler(int rangees) {
    if (contenu_ == nullptr) return;
    std::uint64_t position = premiere_;
    Proteger([&] {
        for (int i = 0; i < rangees && position < contenu_->Longueur(); ++i)
            position = contenu_->Lire(position).suite;
        for (int i = 0; i > rangees; --i) position = Precedente(position);
    });
    // A content that could not be read is no longer there.
    if (contenu_ != nullptr) Aller(position);
}

void Vue_texte::Defiler_cote(int colonne) {
    const int maximum = std::max(static_cast<int>(Plus_longue()) - largeur_ / pas_x_ + 1, 0);
    colonne_          = std::clamp(colonne, 0, std::max(maximum, 0));
    Regler_barres();
    InvalidateRect(Poignee(), nullptr, FALSE);
}

std::size_t Vue_texte::Plus_longue() const {
    std::size_t longueur = 0;
    for (const Rangee & rangee : rangees_) longueur = std::max(longueur, rangee.texte.size());
    return longueur;
}

void Vue_texte::Regler_barres() {
    SCROLLINFO etat{};
    etat.cbSize = sizeof etat;
    etat.fMask  = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    if (contenu_ != nullptr && contenu_->Longueur() > contenu_->Debut()) {
        const std::uint64_t longueur = contenu_->Longueur();
        etat.nMax                    = static_cast<int>(std::min<std::uint64_t>(longueur, echelle));
        etat.nPos                    = A_l_echelle(premiere_, longueur);
        // The last page reaches the end of the bar, however short its rows are.
        const bool fin = page_connue_ && premiere_ >= page_;
        const int  vue = A_l_echelle(std::min(Apres_derniere(), longueur), longueur) - etat.nPos;
        etat.nPage     = static_cast<UINT>(fin ? etat.nMax - etat.nPos + 1 : std::max(vue, 1));
    }
    SetScrollInfo(Poignee(), SB_VERT, &etat, TRUE);
    etat.nMax  = static_cast<int>(Plus_longue());
    etat.nPage = static_cast<UINT>(largeur_ / pas_x_);
    etat.nPos  = colonne_;
    SetScrollInfo(Poignee(), SB_HORZ, &etat, TRUE);
}

void Vue_texte::Barre_verticale(unsigned code) {
    if (contenu_ == nullptr) return;
    const std::uint64_t longueur = contenu_->Longueur();
    switch (code) {
    case SB_LINEUP: Defiler(-1); break;
    case SB_LINEDOWN: Defiler(1); break;
    case SB_PAGEUP: Defiler(1 - std::max(Rangees_entieres(), 2)); break;
    case SB_PAGEDOWN: Defiler(std::max(Rangees_entieres(), 2) - 1); break;
    case SB_TOP: Aller(0); break;
    case SB_BOTTOM: Aller(longueur); break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: Aller(De_l_echelle(Place_de_la_poignee(Poignee(), SB_VERT), longueur)); break;
    default: break;
    }
}

void Vue_texte::Barre_horizontale(unsigned code) {
    const int page = std::max(largeur_ / pas_x_ - 1, 1);
    switch (code) {
    case SB_LINELEFT: Defiler_cote(colonne_ - 1); break;
    case SB_LINERIGHT: Defiler_cote(colonne_ + 1); break;
    case SB_PAGELEFT: Defiler_cote(colonne_ - page); break;
    case SB_PAGERIGHT: Defiler_cote(colonne_ + page); break;
    case SB_LEFT: Defiler_cote(0); break;
    case SB_RIGHT: Defiler_cote(static_cast<int>(Plus_longue())); break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: Defiler_cote(Place_de_la_poignee(Poignee(), SB_HORZ)); break;
    default: break;
    }
}

bool Vue_texte::Touche_cote(int touche) {
    const int cran = 4;
    switch (touche) {
    case VK_LEFT: Defiler_cote(colonne_ - cran); return true;
    case VK_RIGHT: Defiler_cote(colonne_ + cran); return true;
    case VK_HOME: Defiler_cote(0); return true;
    case VK_END: Defiler_cote(static_cast<int>(Plus_longue())); return true;
    default: return false;
    }
}

bool Vue_texte::Touche_frappee(int touche) {
    const bool ctrl = Enfoncee(VK_CONTROL);
    switch (touche) {
    case VK_UP: Barre_verticale(SB_LINEUP); return true;
    case VK_DOWN: Barre_verticale(SB_LINEDOWN); return true;
    case VK_PRIOR: Barre_verticale(SB_PAGEUP); return true;
    case VK_NEXT: Barre_verticale(SB_PAGEDOWN); return true;
    case VK_HOME:
        if (ctrl) Barre_verticale(SB_TOP);
        return Touche_cote(touche);
    case VK_END:
        if (!ctrl) return Touche_cote(touche);
        Barre_verticale(SB_BOTTOM);
        return true;
    default: return Touche_cote(touche);
    }
}

Plage_octets Vue_texte::Selection() const { return {std::min(ancre_, curseur_), std::max(ancre_, curseur_)}; }

void Vue_texte::Selectionner(const Plage_octets & plage) {
    ancre_   = plage.debut;
    curseur_ = plage.fin;
    InvalidateRect(Poignee(), nullptr, FALSE);
}

void Vue_texte::Montrer(const Plage_octets & plage) {
    Selectionner(plage);
    const auto entiere = std::min(rangees_.size(), static_cast<std::size_t>(Rangees_entieres()));
    if (entiere == 0 || plage.debut < premiere_ || plage.debut >= rangees_[entiere - 1].suite) {
        Aller(plage.debut);
        // A few rows before it say where it stands.
        Defiler(-Rangees_entieres() / 3);
    }
    for (const Rangee & rangee : rangees_) {
        if (plage.debut < rangee.debut || plage.debut >= rangee.suite) continue;
        const auto octet = static_cast<std::uint32_t>(plage.debut - rangee.debut);
        const auto place = std::find(rangee.octets.begin(), rangee.octets.end(), octet);
        const auto debut = static_cast<int>(place - rangee.octets.begin());
        const int  vues  = largeur_ / pas_x_;
        if (debut < colonne_ || debut + static_cast<int>(plage.fin - plage.debut) > colonne_ + vues)
            Defiler_cote(std::max(debut - vues / 3, 0));
        return;
    }
}

// The byte whose left edge is nearest.
std::uint64_t Vue_texte::Position_sous(int x, int y) const {
    if (rangees_.empty()) return premiere_;
    const int      rang    = std::clamp(y / pas_y_, 0, static_cast<int>(rangees_.size()) - 1);
    const Rangee & rangee  = rangees_[static_cast<std::size_t>(rang)];
    const int      colonne = std::max(colonne_ + (x - retrait_ + pas_x_ / 2) / pas_x_, 0);
    const auto     place   = std::min(static_cast<std::size_t>(colonne), rangee.octets.size() - 1);
    const auto     trouve =
        std::find_if(rangee.octets.begin() + static_cast<std::ptrdiff_t>(place), rangee.octets.end(),
                     [](std::uint32_t octet) { return octet != hors_octets; });
    return rangee.debut + (trouve == rangee.octets.end() ? 0 : *trouve);
}

// Beyond the upper or lower edge the content follows the mouse.
void Vue_texte::Tirer(int x, int y) {
    if (y < 0) Defiler(-1);
    if (y >= hauteur_) Defiler(1);
    if (contenu_ == nullptr) return;
    curseur_ = Position_sous(x, std::clamp(y, 0, std::max(hauteur_ - 1, 0)));
    InvalidateRect(Poignee(), nullptr, FALSE);
}

// Ends a drag; false when none is on.
bool Vue_texte::Lacher() {
    if (!std::exchange(tire_, false)) return false;
    if (GetCapture() == Poignee()) ReleaseCapture();
    return true;
}

bool Vue_texte::Souris(unsigned message, std::uintptr_t mot, std::intptr_t large) {
    const int x = static_cast<short>(LOWORD(large));
    const int y = static_cast<short>(HIWORD(large));
    switch (message) {
    case WM_LBUTTONDOWN:
        ::SetFocus(Poignee());
        if (contenu_ == nullptr) return true;
        tire_    = true;
        curseur_ = Position_sous(x, y);
        if ((mot & MK_SHIFT) == 0) ancre_ = curseur_;
        SetCapture(Poignee());
        InvalidateRect(Poignee(), nullptr, FALSE);
        return true;
    case WM_MOUSEMOVE:
        // The button may have gone up while long work kept the mouse away.
        if ((mot & MK_LBUTTON) == 0) Lacher();
        if (tire_) Tirer(x, y);
        return tire_;
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED: return Lacher();
    default: return false;
    }
}

void Vue_texte::Molette(int crans) {
    UINT lignes = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lignes, 0);
    reste_ += crans;
    const int entiers = reste_ / WHEEL_DELTA;
    reste_ -= entiers * WHEEL_DELTA;
    const int page = std::max(Rangees_entieres() - 1, 1);
    Defiler(-entiers * (lignes == WHEEL_PAGESCROLL ? page : std::min(static_cast<int>(lignes), page)));
}

std::wstring Vue_texte::Texte_visible() const {
    if (!avis_.empty()) return avis_;
    std::wstring texte;
    for (const Rangee & rangee : rangees_) {
        for (const wchar_t element : rangee.texte) {
            if (element != suite_de_caractere) texte += element;
        }
        texte += L"\r\n";
    }
    return texte;
}

bool Vue_texte::Rendre_texte(unsigned message, std::uintptr_t mot, std::intptr_t large,
                             std::intptr_t & resultat) const {
    const std::wstring texte = Texte_visible();
    resultat                 = static_cast<std::intptr_t>(texte.size());
    if (message == WM_GETTEXTLENGTH) return true;
    if (mot == 0) return true;
    const std::size_t copies = std::min(texte.size(), static_cast<std::size_t>(mot) - 1);
    auto *            place  = reinterpret_cast<wchar_t *>(large);
    std::copy_n(texte.begin(), copies, place);
    place[copies] = L'\0';
    resultat      = static_cast<std::intptr_t>(copies);
    return true;
}

bool Vue_texte::Traiter(unsigned message, std::uintptr_t mot, std::intptr_t large, std::intptr_t & resultat) {
    switch (message) {
    case WM_ERASEBKGND: resultat = 1; return true;
    case WM_PAINT: Peindre(); return true;
    case WM_SIZE:
        Mesurer();
        page_connue_ = false;
        // The lines of a notice are broken elsewhere.
        InvalidateRect(Poignee(), nullptr, FALSE);
        if (Taille) Taille();
        return false;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE: InvalidateRect(Poignee(), nullptr, FALSE); return false;
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH: return Rendre_texte(message, mot, large, resultat);
    case WM_VSCROLL: Barre_verticale(LOWORD(mot)); return true;
    case WM_HSCROLL: Barre_horizontale(LOWORD(mot)); return true;
    case WM_MOUSEWHEEL: Molette(static_cast<short>(HIWORD(mot))); return true;
    case WM_KEYDOWN: return Touche_frappee(static_cast<int>(mot));
    default: return Souris(message, mot, large);
    }
}

bool Vue_texte::Message(unsigned message, std::uintptr_t mot, std::intptr_t large, std::intptr_t & resultat) {
    resultat    = 0;
    bool traite = true;
    Proteger([&] { traite = Traiter(message, mot, large, resultat); });
    return traite;
}
