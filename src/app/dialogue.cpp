#include "app/dialogue.h"

#include "app/fenetres.h"
#include "app/globals.h"
#include "forms/dialogue.h"
#include "forms/gestion_fichiers.h"
#include "platform/nombres.h"
#include "toolkit/application.h"
#include "toolkit/ecran.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {
constexpr int marge           = 240;  // twips around what the window holds
constexpr int ecart_boutons   = 120;
constexpr int largeur_bouton  = 1440;
constexpr int hauteur_bouton  = 375;
constexpr int hauteur_minimum = 480;  // of the message: the picture's
constexpr int sans_icone      = 240;  // left edge of the message
constexpr int avec_icone      = 960;

// Repainting puts the window where it belongs and the focus on the button of the Tag.
void Form_Paint() {
    Dialogue &               d       = *fenetres.dialogue;
    const Gestion_Fichiers & f       = Principale();
    const int                bordure = static_cast<int>(15 * variables.Bordure);
    Placer_a_l_ecran(d, f.Left() + 1300 + bordure, f.Top() + 1900 + bordure, f);
    const auto choisi = static_cast<int>(Valeur(d.Tag));
    if (choisi >= 1 && choisi <= 3 && d.Tag == Avec_signe(choisi)) {
        d.Boutons[static_cast<std::size_t>(choisi - 1)]->SetFocus();
    }
}

void Repondre(int bouton) {
    fenetres.dialogue->Tag = Avec_signe(bouton);
    fenetres.dialogue->Hide();
}

int Largeur_bouton(const Dialogue & d, const std::wstring & caption) {
    const int voulue = static_cast<int>(std::ceil(d.Largeur_texte(caption + L" ")));
    return std::max(largeur_bouton, voulue + marge);
}

// Buttons given, from left to right, in one row below the message; returns the right edge of the last.
int Aligner_boutons(Dialogue & d, const std::array<std::wstring, 3> & captions, int gauche, int haut) {
    int x = gauche;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        Bouton_commande & bouton = *d.Boutons[i];
        bouton.Visible(false);
        if (captions[i].empty()) continue;
        const int largeur = Largeur_bouton(d, captions[i]);
        bouton.Caption(captions[i]);
        bouton.Placer(x, haut, largeur, hauteur_bouton);
        bouton.Visible(true);
        x += largeur + ecart_boutons;
    }
    return x - ecart_boutons;
}

void Disposer(Dialogue & d, const std::wstring & message, const std::array<std::wstring, 3> & captions,
              bool icone) {
    const int gauche  = icone ? avec_icone : sans_icone;
    const int largeur = Dialogue::largeur - gauche - marge;
    const int hauteur =
        std::max(hauteur_minimum, static_cast<int>(std::ceil(d.Hauteur_texte(message, largeur))) + 30);
    d.Texte.Caption(message);
    d.Texte.Placer(gauche, marge, largeur, hauteur);
    const int haut   = marge + hauteur + marge;
    const int droite = Aligner_boutons(d, captions, gauche, haut);
    d.Move(d.Left(), d.Top(), std::max(Dialogue::largeur, droite + marge) + d.Cadre_horizontal,
           haut + hauteur_bouton + marge + d.Cadre_vertical);
}

// A button that stands alone closes a notice, under a wording of its own.
void Remplacer_bouton_seul(std::array<std::wstring, 3> & captions) {
    const auto donnes =
        std::count_if(captions.begin(), captions.end(), [](const auto & c) { return !c.empty(); });
    if (donnes == 0) captions[2] = L"    OK   ";
}
}  // namespace

int Choix_bouton(const std::wstring & message, const std::wstring & bouton1, const std::wstring & bouton2,
                 const std::wstring & bouton3, const std::wstring & icone, const std::wstring & titre,
                 int defaut) {
    Dialogue &                  d = *fenetres.dialogue;
    std::array<std::wstring, 3> captions{bouton1, bouton2, bouton3};
    Remplacer_bouton_seul(captions);
    const auto image = static_cast<Image::Icone>(static_cast<int>(Valeur(icone)));
    d.Icone.Picture(image);
    d.Icone.Visible(image != Image::Icone::aucune);
    Disposer(d, message, captions, image != Image::Icone::aucune);
    d.Caption(titre);
    // A button that does not show cannot have the focus.
    d.Tag = Avec_signe(captions[static_cast<std::size_t>(defaut - 1)].empty() ? 3 : defaut);
    Form_Paint();
    Fenetre * devant = Application::Devant();
    d.Show_modal(devant == nullptr ? Principale() : *devant);
    // A program that ends meanwhile has had no answer.
    return Application::Terminee() ? 3 : static_cast<int>(Valeur(d.Tag));
}

void Brancher_dialogue(Dialogue & d) {
    d.Bouton1.Brancher([] { Repondre(1); });
    d.Bouton2.Brancher([] { Repondre(2); });
    d.Bouton3.Brancher([] { Repondre(3); });
    d.Paint   = Form_Paint;
    d.KeyDown = [](int & touche, int) {
        if (touche != Touche::echap) return;
        touche = 0;
        Repondre(3);
    };
    d.QueryUnload = [](bool & refus, Fermeture fermeture) {
        if (fermeture == Fermeture::systeme) return;
        refus = true;
        Repondre(3);
    };
}
