#include "forms/apropos.h"
#include "forms/dialogue.h"
#include "forms/gestion_fichiers.h"
#include "services/banc.h"

#include <cwctype>
#include <functional>
#include <set>

namespace {

constexpr int pas_de_grille = 15;  // twips, a pixel at 96 points by inch

void Parcourir(const Fenetre & fenetre, const std::function<void(const Controle &)> & visite) {
    struct Passage {
        const Fenetre &                               fenetre;
        const std::function<void(const Controle &)> & visite;
    } passage{fenetre, visite};
    const auto appel = [](HWND poignee, LPARAM parametre) -> BOOL {
        const auto & p = *reinterpret_cast<const Passage *>(parametre);
        if (const Controle * controle = p.fenetre.Controle_de(poignee)) p.visite(*controle);
        return TRUE;
    };
    EnumChildWindows(fenetre.Poignee(), appel, reinterpret_cast<LPARAM>(&passage));
}

std::string Ascii(const std::wstring & texte) { return {texte.begin(), texte.end()}; }

void Verifier_fenetre(const Fenetre & fenetre) {
    SCOPED_TRACE(Ascii(fenetre.Nom()));
    std::set<std::wstring> noms{L"nom", L"sablier"};  // window properties of the toolkit's own
    int                    nombre = 0;
    Parcourir(fenetre, [&](const Controle & controle) {
        ++nombre;
        for (const int mesure : {controle.Left(), controle.Top(), controle.Width(), controle.Height()}) {
            EXPECT_EQ(mesure % pas_de_grille, 0) << Ascii(controle.Nom());
        }
        std::wstring nom = controle.Nom();
        for (wchar_t & lettre : nom) lettre = static_cast<wchar_t>(std::towlower(lettre));
        EXPECT_TRUE(noms.insert(nom).second) << Ascii(nom) << " existe déjà, à la casse près";
        if (controle.Aide().empty()) return;
        EXPECT_EQ(controle.Aide().substr(0, 2), L"  ") << Ascii(controle.Nom());
        EXPECT_NE(controle.Aide()[2], L' ') << Ascii(controle.Nom());
    });
    EXPECT_GE(nombre, 5);
}

}  // namespace

// Names are atoms, which the system compares without regard to case.
TEST(Disposition_des_formulaires, tout_est_sur_la_grille_et_chaque_nom_est_unique) {
    Verifier_fenetre(Gestion_Fichiers());
    Verifier_fenetre(Apropos());
    Verifier_fenetre(Dialogue());
}
