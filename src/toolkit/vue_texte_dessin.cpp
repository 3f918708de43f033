#include "platform/windows.h"
#include "toolkit/interne.h"
#include "toolkit/mesure.h"
#include "toolkit/vue_texte.h"

#include <algorithm>

namespace {
void Remplir(HDC dessin, const RECT & place, COLORREF couleur) {
    SetBkColor(dessin, couleur);
    ExtTextOutW(dessin, 0, 0, ETO_OPAQUE, &place, L"", 0, nullptr);
}

void Ecrire_avis(HDC dessin, RECT place, const std::wstring & avis) {
    InflateRect(&place, -Pixels(240), -Pixels(240));
    DrawTextW(dessin, avis.c_str(), static_cast<int>(avis.size()), &place,
              DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL);
}
}  // namespace

bool Vue_texte::Choisie(const Rangee & rangee, std::size_t colonne) const {
    const std::uint32_t octet = rangee.octets[colonne];
    if (octet == hors_octets) return false;
    const std::uint64_t position = rangee.debut + octet;
    const Plage_octets  choix    = Selection();
    return position >= choix.debut && position < choix.fin;
}

// Each element is set at its own column: a font that lacks a character takes it from another one, of another width.
void Vue_texte::Peindre_troncon(void * dessin, const Rangee & rangee, std::size_t de, std::size_t a, int y,
                                bool choisi) const {
    auto *           hdc = static_cast<HDC>(dessin);
    std::wstring     texte;
    std::vector<INT> pas;
    for (std::size_t i = de; i < a; ++i) {
        if (rangee.texte[i] == suite_de_caractere && !pas.empty()) {
            pas.back() += pas_x_;
        } else {
            texte += rangee.texte[i] == suite_de_caractere ? L' ' : rangee.texte[i];
            pas.push_back(pas_x_);
        }
    }
    const int  x = retrait_ + (static_cast<int>(de) - colonne_) * pas_x_;
    const RECT place{x, y, x + static_cast<int>(a - de) * pas_x_, y + pas_y_};
    SetTextColor(hdc, choisi ? GetSysColor(COLOR_HIGHLIGHTTEXT) : Rouge_vert_bleu(ForeColor()));
    SetBkColor(hdc, choisi ? GetSysColor(COLOR_HIGHLIGHT) : Rouge_vert_bleu(BackColor()));
    ExtTextOutW(hdc, x, y, ETO_OPAQUE | ETO_CLIPPED, &place, texte.c_str(), static_cast<UINT>(texte.size()),
                pas.data());
}

// Only the columns that show are drawn, however long the row is.
void Vue_texte::Peindre_rangee(void * dessin, const Rangee & rangee, int y, int droite) const {
    const std::size_t fin     = std::min(rangee.texte.size(), static_cast<std::size_t>(colonne_) +
                                                                  static_cast<std::size_t>(droite / pas_x_) + 1);
    std::size_t       colonne = static_cast<std::size_t>(colonne_);
    while (colonne < fin) {
        const bool  choisi = Choisie(rangee, colonne);
        std::size_t apres  = colonne + 1;
        while (apres < fin && Choisie(rangee, apres) == choisi) ++apres;
        Peindre_troncon(dessin, rangee, colonne, apres, y, choisi);
        colonne = apres;
    }
    const int x = retrait_ + (static_cast<int>(std::max(colonne, fin)) - colonne_) * pas_x_;
    Remplir(static_cast<HDC>(dessin), {0, y, retrait_, y + pas_y_}, Rouge_vert_bleu(BackColor()));
    Remplir(static_cast<HDC>(dessin), {std::max(x, 0), y, droite, y + pas_y_}, Rouge_vert_bleu(BackColor()));
}

void Vue_texte::Peindre() {
    PAINTSTRUCT   peinture{};
    HDC           dessin = BeginPaint(Poignee(), &peinture);
    const HGDIOBJ avant  = SelectObject(dessin, police_);
    RECT          place{};
    GetClientRect(Poignee(), &place);
    // Nothing drawn is read here: a fault of the medium cannot come in the middle of a picture.
    int y = 0;
    try {
        for (const Rangee & rangee : rangees_) {
            Peindre_rangee(dessin, rangee, y, place.right);
            y += pas_y_;
        }
    } catch (const std::exception &) {
        // Out of memory: the rows left stay blank.
    }
    Remplir(dessin, {0, y, place.right, std::max<LONG>(place.bottom, y)}, Rouge_vert_bleu(BackColor()));
    SetTextColor(dessin, Rouge_vert_bleu(ForeColor()));
    if (!avis_.empty()) Ecrire_avis(dessin, place, avis_);
    // Who goes from control to control with the keys sees that the view is reached.
    const bool cache = (SendMessageW(Poignee(), WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) != 0;
    if (A_le_focus() && !cache) DrawFocusRect(dessin, &place);
    SelectObject(dessin, avant);
    EndPaint(Poignee(), &peinture);
}
