#include "toolkit/mesure.h"

#include "platform/windows.h"

int Resolution() {
    static const int points = [] {
        HDC       ecran = GetDC(nullptr);
        const int lus   = GetDeviceCaps(ecran, LOGPIXELSX);
        ReleaseDC(nullptr, ecran);
        return lus > 0 ? lus : 96;
    }();
    return points;
}

int Pixels(int twips) { return MulDiv(twips, Resolution(), 1440); }

int Twips(int pixels) { return MulDiv(pixels, 1440, Resolution()); }
