#include "search/astuce_resultats.h"

#include "app/fenetre_fille.h"
#include "app/fenetres.h"
#include "app/globals.h"
#include "forms/cherche_fichier.h"
#include "forms/gestion_fichiers.h"
#include "search/modeles.h"

namespace {
constexpr int hauteur_ligne = 255;  // twips of a tip of one line
constexpr int ecart         = 60;

std::size_t sautes = 0;

bool A_dire(const Cherche_Fichier & c, const Controle * controle) {
    return controle == &c.Mess_infos && sautes > 0;
}

void Completer_aide(const Controle & controle) {
    if (!variables.Aide_active) return;
    variables.Texte_aide = controle.Aide() + L" " + Libelle_sautes(sautes);
    Principale().Fenêtre.Caption(variables.Texte_aide);
}

// Above the progress line: under the pointer the buttons would cover it.
void Montrer_sautes(Cherche_Fichier & c) {
    c.Tip.Caption(Libelle_sautes(sautes));
    c.Tip.Placer(c.Mess_infos.Left(), c.Mess_infos.Top() - hauteur_ligne - ecart, c.Mess_infos.Width(),
                 hauteur_ligne);
    c.Tip.Visible(true);
}
}  // namespace

void Brancher_astuce_resultats(Cherche_Fichier & c) {
    Brancher_astuce(c, c.Liste_sél, c.Tip);
    c.Liste_sél.Click = [&c] { c.Tip.Visible(false); };
    c.MouseMove       = [&c, suivre = c.MouseMove](Controle * controle) {
        suivre(controle);
        if (!A_dire(c, controle)) return;
        Completer_aide(*controle);
        Montrer_sautes(c);
    };
}

void Noter_sautes(std::size_t nombre) { sautes = nombre; }
