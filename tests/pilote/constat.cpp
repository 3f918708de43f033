#include "pilote/constat.h"

#include "pilote/attente.h"
#include "pilote/fenetres.h"
#include "pilote/fichiers.h"
#include "pilote/programme.h"
#include "pilote/unites.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <memory>
#include <sstream>

namespace Pilote {

namespace {

constexpr int entrees_montrees = 40;

std::string Sans_controles(const std::wstring & texte) {
    std::string resultat;
    for (char octet : Utf8(texte)) {
        if (octet == '\r')
            resultat += "\\r";
        else if (octet == '\n')
            resultat += "\\n";
        else
            resultat += octet;
    }
    return resultat;
}

void Decrire_entrees(std::ostream & sortie, HWND liste) {
    const int  nombre  = Nombre_entrees(liste);
    const auto choisis = Rangs_selection(liste);
    for (int rang = 0; rang < std::min(nombre, entrees_montrees); ++rang) {
        const bool choisi = std::find(choisis.begin(), choisis.end(), rang) != choisis.end();
        sortie << "          " << (choisi ? "[x] " : "[ ] ") << Sans_controles(Entree(liste, rang)) << "\n";
    }
    if (nombre > entrees_montrees) sortie << "          ... " << nombre << " entrées\n";
}

void Decrire(std::ostream & sortie, HWND fenetre, HWND focus, const char * marge) {
    const RECT place = Place_ecran(fenetre);
    sortie << marge << Utf8(Nom(fenetre)) << " <" << Utf8(Classe(fenetre)) << "> " << place.left << ","
           << place.top << " " << place.right - place.left << "x" << place.bottom - place.top
           << (Visible(fenetre) ? "" : " cachée") << (Active(fenetre) ? "" : " inactive")
           << (fenetre == focus ? " FOCUS" : "") << " \"" << Sans_controles(Texte(fenetre)) << "\"\n";
    const std::wstring classe = Classe(fenetre);
    const bool         liste =
        _wcsicmp(classe.c_str(), L"ListBox") == 0 || _wcsicmp(classe.c_str(), L"ComboBox") == 0;
    if (liste && Visible(fenetre)) Decrire_entrees(sortie, fenetre);
}

std::vector<HWND> Toutes_les_fenetres() {
    std::vector<HWND> fenetres;
    const auto        visite = [](HWND fenetre, LPARAM parametre) -> BOOL {
        if (IsWindowVisible(fenetre)) reinterpret_cast<std::vector<HWND> *>(parametre)->push_back(fenetre);
        return TRUE;
    };
    EnumWindows(visite, reinterpret_cast<LPARAM>(&fenetres));
    return fenetres;
}

struct Image_ecran {
    Image_ecran(int largeur_image, int hauteur_image) : largeur(largeur_image), hauteur(hauteur_image) {
        entete.bmiHeader.biSize     = sizeof entete.bmiHeader;
        entete.bmiHeader.biWidth    = largeur;
        entete.bmiHeader.biHeight   = -hauteur;
        entete.bmiHeader.biPlanes   = 1;
        entete.bmiHeader.biBitCount = 32;
        ecran                       = GetDC(nullptr);
        memoire                     = CreateCompatibleDC(ecran);
        image                       = CreateDIBSection(memoire, &entete, DIB_RGB_COLORS, &points, nullptr, 0);
    }
    ~Image_ecran() {
        DeleteDC(memoire);
        if (image) DeleteObject(image);
        ReleaseDC(nullptr, ecran);
    }
    Image_ecran(const Image_ecran &)             = delete;
    Image_ecran & operator=(const Image_ecran &) = delete;

    bool Prendre() {
        if (!image) return false;
        const HGDIOBJ avant = SelectObject(memoire, image);
        const BOOL    fait  = BitBlt(memoire, 0, 0, largeur, hauteur, ecran, 0, 0, SRCCOPY);
        GdiFlush();
        SelectObject(memoire, avant);
        return fait != 0;
    }
    std::string Octets() const {
        const std::size_t taille = static_cast<std::size_t>(largeur) * static_cast<std::size_t>(hauteur) * 4;
        BITMAPFILEHEADER  fichier{};
        fichier.bfType    = 0x4D42;
        fichier.bfOffBits = sizeof fichier + sizeof entete.bmiHeader;
        fichier.bfSize    = static_cast<DWORD>(fichier.bfOffBits + taille);
        std::string octets(reinterpret_cast<const char *>(&fichier), sizeof fichier);
        octets.append(reinterpret_cast<const char *>(&entete.bmiHeader), sizeof entete.bmiHeader);
        octets.append(static_cast<const char *>(points), taille);
        // The fourth byte of a point is left at will by the screen; some readers take it for transparency.
        for (std::size_t i = fichier.bfOffBits + 3; i < octets.size(); i += 4) octets[i] = '\xff';
        return octets;
    }

    int        largeur, hauteur;
    BITMAPINFO entete{};
    HDC        ecran = nullptr, memoire = nullptr;
    HBITMAP    image  = nullptr;
    void *     points = nullptr;
};

class Temoin : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo & essai) override {
        nom_     = std::string(essai.test_suite_name()) + "." + essai.name();
        constat_ = false;
        std::replace(nom_.begin(), nom_.end(), '/', '_');
    }
    void OnTestPartResult(const testing::TestPartResult & resultat) override {
        if (!resultat.failed() || constat_ || nom_.empty()) return;
        constat_ = true;
        try {
            std::wstring dossier = Environnement(L"KORVANE_ECHECS");
            if (dossier.empty()) dossier = Repertoire_essais() + L"\\echecs";
            Creer_fichier(dossier + L"\\" + Large(nom_) + L".txt", Decrire_ecran());
            Photographier(dossier + L"\\" + Large(nom_) + L".bmp");
        } catch (const std::exception & erreur) {
            std::printf("constat impossible : %s\n", erreur.what());
        }
    }

    std::string nom_;
    bool        constat_ = false;
};

}  // namespace

std::string Decrire_ecran() {
    std::ostringstream sortie;
    const HWND         devant = GetForegroundWindow();
    for (HWND fenetre : Toutes_les_fenetres()) {
        const HWND focus     = Focus(fenetre);
        DWORD      processus = 0;
        GetWindowThreadProcessId(fenetre, &processus);
        sortie << "processus " << processus << (fenetre == devant ? " (devant)" : "")
               << (Sablier(fenetre) ? " sablier" : "") << "\n";
        Decrire(sortie, fenetre, focus, "  ");
        Parcourir(fenetre, [&](HWND enfant) { Decrire(sortie, enfant, focus, "      "); });
    }
    return sortie.str();
}

bool Photographier(const std::wstring & fichier) {
    Image_ecran image(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
    if (!image.Prendre()) return false;
    Creer_fichier(fichier, image.Octets());
    return true;
}

void Constater_les_echecs() {
    testing::UnitTest::GetInstance()->listeners().Append(std::make_unique<Temoin>().release());
}

void Preparer_essais() {
    SetConsoleOutputCP(CP_UTF8);
    SetProcessDPIAware();  // places and pointer in true pixels, whatever the resolution
    Ecarter_essais_sans_unite();
    Constater_les_echecs();
}

}  // namespace Pilote
