#include "fenetres/mesures.h"

#include <cwchar>

int Resolution_ecran() {
    HDC       ecran = GetDC(nullptr);
    const int ppp   = GetDeviceCaps(ecran, LOGPIXELSX);
    ReleaseDC(nullptr, ecran);
    return ppp;
}

int En_pixels(int twips) { return MulDiv(twips, Resolution_ecran(), 1440); }

int En_twips(int pixels) { return MulDiv(pixels, 1440, Resolution_ecran()); }

SIZE Taille_texte(const std::wstring & texte, int largeur) {
    LOGFONTW police{};
    police.lfHeight  = -MulDiv(825, Resolution_ecran(), 7200);
    police.lfCharSet = DEFAULT_CHARSET;
    std::wcscpy(police.lfFaceName, L"MS Shell Dlg 2");
    HDC           dessin = GetDC(nullptr);
    const HGDIOBJ fonte  = CreateFontIndirectW(&police);
    const HGDIOBJ avant  = SelectObject(dessin, fonte);
    RECT          place{0, 0, largeur, 0};
    DrawTextW(dessin, texte.c_str(), -1, &place, DT_CALCRECT | DT_NOPREFIX | (largeur ? DT_WORDBREAK : 0));
    SelectObject(dessin, avant);
    DeleteObject(fonte);
    ReleaseDC(nullptr, dessin);
    return {place.right, place.bottom};
}
