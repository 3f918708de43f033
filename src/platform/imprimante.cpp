#include "platform/imprimante.h"

#include "platform/bibliotheques.h"
#include "platform/erreur.h"
#include "platform/proprietaire.h"
#include "platform/windows.h"
#include "texte/mise_en_page.h"

#include <algorithm>
#include <vector>
#include <winspool.h>

namespace {
struct Regle_contexte {
    using Type = HDC;
    static Type Invalide() { return nullptr; }
    static void Fermer(Type contexte) noexcept { DeleteDC(contexte); }
};
struct Regle_police {
    using Type = HFONT;
    static Type Invalide() { return nullptr; }
    static void Fermer(Type police) noexcept { DeleteObject(police); }
};

// What the system does not say, or says of its own handle, tells the user nothing.
[[noreturn]] void Lever(DWORD code) {
    const bool muet = code == 0 || code == ERROR_INVALID_HANDLE;
    throw Erreur_execution(Numero::entree_sortie, muet ? DWORD{ERROR_WRITE_FAULT} : code, {});
}

// Not every call leaves a code when it fails: one that an earlier call left must not pass for its own.
template <class Appel> void Exiger(Appel && appel) {
    SetLastError(0);
    if (!appel()) Lever(GetLastError());
}

std::wstring Imprimante_par_defaut() {
    Exiger_bibliotheque(L"winspool.drv");
    // The code that goes with it is that of a missing file.
    DWORD longueur = 0;
    GetDefaultPrinterW(nullptr, &longueur);
    std::wstring nom(longueur, L'\0');
    if (longueur == 0 || !GetDefaultPrinterW(nom.data(), &longueur)) Lever(ERROR_INVALID_PRINTER_NAME);
    nom.resize(longueur - 1);
    return nom;
}

HDC Ouvrir_imprimante() {
    const std::wstring nom = Imprimante_par_defaut();
    SetLastError(0);
    const HDC contexte = CreateDCW(L"WINSPOOL", nom.c_str(), nullptr, nullptr);
    if (!contexte) {
        const DWORD code = GetLastError();
        Lever(code != 0 ? code : DWORD{ERROR_INVALID_PRINTER_NAME});
    }
    return contexte;
}

Feuille Feuille_de(HDC contexte) {
    const auto lire = [contexte](int quoi) { return GetDeviceCaps(contexte, quoi); };
    return {lire(PHYSICALWIDTH), lire(PHYSICALHEIGHT), lire(PHYSICALOFFSETX), lire(PHYSICALOFFSETY),
            lire(HORZRES),       lire(VERTRES),        lire(LOGPIXELSX),      lire(LOGPIXELSY)};
}

HFONT Faire_police(int corps) {
    return CreateFontW(-corps, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_TT_PRECIS,
                       CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FIXED_PITCH | FF_MODERN, L"Courier New");
}
}  // namespace

// A page is kept until it is full: its longest line says how narrow its font is.
struct Imprimante::Etat {
    explicit Etat(const std::wstring & titre);

    void Imprimer_page();
    bool Ajuster_police();
    void Choisir_police(std::size_t colonnes);
    void Ecrire(const std::wstring & ligne, int x, int y) const;
    bool Tient() const;

    Proprietaire<Regle_police>   police;  // outlives the context that it is selected into
    Proprietaire<Regle_contexte> contexte;
    Mise_en_page                 page;
    std::vector<std::wstring>    lignes;
    std::size_t                  pages   = 0;
    bool                         ouverte = false;  // a document is under way
};

Imprimante::Etat::Etat(const std::wstring & titre)
    : contexte(Ouvrir_imprimante()), page(Mettre_en_page(Feuille_de(contexte.Valeur()))) {
    DOCINFOW document{};
    document.cbSize      = sizeof document;
    document.lpszDocName = titre.c_str();
    SetLastError(0);
    ouverte = StartDocW(contexte.Valeur(), &document) > 0;
    if (ouverte) return;
    const DWORD code = GetLastError();
    if (code != ERROR_CANCELLED && code != ERROR_PRINT_CANCELLED) Lever(code);
}

void Imprimante::Etat::Choisir_police(std::size_t colonnes) {
    Proprietaire<Regle_police> nouvelle;
    Exiger([&] {
        nouvelle.Remplacer(Faire_police(Corps_pour(page, colonnes)));
        return nouvelle.Valide() && SelectObject(contexte.Valeur(), nouvelle.Valeur()) != nullptr;
    });
    police = std::move(nouvelle);
}

// Fonts are not always as wide as asked for, and letters of another alphabet come from another font.
bool Imprimante::Etat::Tient() const {
    return std::all_of(lignes.begin(), lignes.end(), [this](const std::wstring & ligne) {
        SIZE etendue{};
        GetTextExtentPoint32W(contexte.Valeur(), ligne.c_str(), static_cast<int>(ligne.size()), &etendue);
        return etendue.cx <= page.largeur;
    });
}

// False when even the smallest font passes the margin.
bool Imprimante::Etat::Ajuster_police() {
    std::size_t longueur = 0;
    for (const std::wstring & ligne : lignes) longueur = std::max(longueur, ligne.size());
    std::size_t colonnes = Colonnes_pour(page, longueur);
    for (;; colonnes = Colonnes_pour(page, colonnes + 1)) {
        Choisir_police(colonnes);
        if (Tient()) return true;
        if (colonnes == colonnes_maximales) return false;
    }
}

void Imprimante::Etat::Ecrire(const std::wstring & ligne, int x, int y) const {
    if (ligne.empty()) return;
    Exiger([&] {
        return ExtTextOutW(contexte.Valeur(), x, y, 0, nullptr, ligne.c_str(),
                           static_cast<UINT>(ligne.size()), nullptr) != FALSE;
    });
}

void Imprimante::Etat::Imprimer_page() {
    if (lignes.empty()) return;
    Exiger([this] { return StartPage(contexte.Valeur()) > 0; });
    // A printer may have one font alone: the margin goes before the text does.
    const int x = Ajuster_police() ? page.gauche : 0;
    SetBkMode(contexte.Valeur(), TRANSPARENT);
    int y = page.haut;
    for (const std::wstring & ligne : lignes) {
        Ecrire(ligne, x, y);
        y += page.interligne;
    }
    lignes.clear();
    Exiger([this] { return EndPage(contexte.Valeur()) > 0; });
    ++pages;
}

Imprimante::Imprimante(const std::wstring & titre) : etat_(std::make_unique<Etat>(titre)) {}

Imprimante::~Imprimante() { Abandonner(); }

bool Imprimante::Abandonnee() const { return !etat_->ouverte; }

std::size_t Imprimante::Colonnes() const { return etat_->page.colonnes; }

std::size_t Imprimante::Lignes() const { return etat_->page.lignes; }

void Imprimante::Ligne(std::wstring_view texte) {
    if (Abandonnee()) return;
    etat_->lignes.emplace_back(texte.substr(0, colonnes_maximales));
    if (etat_->lignes.size() == etat_->page.lignes) etat_->Imprimer_page();
}

void Imprimante::Page_suivante() {
    if (!Abandonnee()) etat_->Imprimer_page();
}

void Imprimante::Terminer() {
    if (Abandonnee()) return;
    etat_->Imprimer_page();
    if (etat_->pages == 0) return Abandonner();
    SetLastError(0);
    if (EndDoc(etat_->contexte.Valeur()) <= 0) {
        const DWORD code = GetLastError();
        Abandonner();
        Lever(code);
    }
    etat_->ouverte = false;
}

void Imprimante::Abandonner() noexcept {
    if (!std::exchange(etat_->ouverte, false)) return;
    AbortDoc(etat_->contexte.Valeur());
    etat_->lignes.clear();
}
