#include "toolkit/boites.h"

#include "platform/bibliotheques.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/windows.h"
#include "toolkit/application.h"
#include "toolkit/controles.h"
#include "toolkit/ecran.h"
#include "toolkit/fenetre.h"
#include "toolkit/interne.h"

#include <algorithm>
#include <cderr.h>
#include <commdlg.h>

namespace {
constexpr int marge          = 150;
constexpr int largeur_saisie = 6000;

// The text prompt: its text, one field, "OK" and "Annuler".
struct Saisie : Fenetre {
    Saisie(const std::wstring & invite, const std::wstring & titre, int hauteur_invite)
        : Fenetre(L"Saisie", titre.c_str(), largeur_saisie, hauteur_invite + 1230, Bordure::dialogue),
          Invite(*this, {L"Invite", marge, marge, largeur_saisie - 2 * marge, hauteur_invite, invite.c_str()},
                 Alignement::gauche, false, true),
          Texte(*this, {L"Texte", marge, hauteur_invite + 270, largeur_saisie - 2 * marge, 330}),
          OK(*this, {L"OK", 2610, hauteur_invite + 735, 1560, 360, L"OK"}),
          Annuler(*this, {L"Annuler", 4290, hauteur_invite + 735, 1560, 360, L"Annuler"}) {
        OK.Brancher([this] {
            reponse = Texte.Text();
            Hide();
        });
        Annuler.Brancher([this] { Hide(); });
        Defaut(OK);
        Annulation(Annuler);
    }

    Etiquette       Invite;
    Champ_texte     Texte;
    Bouton_commande OK;
    Bouton_commande Annuler;
    std::wstring    reponse;
};

// The system takes a blank before a pattern for a part of it.
std::wstring Filtre_systeme(std::wstring filtre) {
    for (std::size_t blanc = filtre.find(L"; "); blanc != filtre.npos; blanc = filtre.find(L"; ", blanc))
        filtre.erase(blanc + 1, 1);
    std::replace(filtre.begin(), filtre.end(), L'|', L'\0');
    filtre.push_back(L'\0');
    return filtre;
}

// Cancelled, a dialog leaves no error; otherwise it could not be shown, or the choice does not fit.
void Signaler_echec_dialogue() {
    switch (CommDlgExtendedError()) {
    case 0: return;
    case FNERR_BUFFERTOOSMALL: throw Erreur_execution(Numero::nom_incorrect, ERROR_FILENAME_EXCED_RANGE, {});
    case CDERR_MEMALLOCFAILURE:
    case CDERR_MEMLOCKFAILURE: throw Erreur_execution(Numero::memoire, 0, {});
    default: throw Erreur_execution(Numero::entree_sortie, 0, {});
    }
}

// The current directory is the SOURCE directory: browsing must not move it, and not every system's dialog puts it back.
class Repertoire_garde {
public:
    Repertoire_garde() : avant_(Repertoire_courant()) {}
    ~Repertoire_garde() {
        Tenter([this] {
            if (Repertoire_courant() != avant_) Changer_repertoire(avant_);
        });
    }
    Repertoire_garde(const Repertoire_garde &)             = delete;
    Repertoire_garde & operator=(const Repertoire_garde &) = delete;

private:
    std::wstring avant_;
};
}  // namespace

int Message_boite(const std::wstring & texte, unsigned style, const std::wstring & titre) {
    Fenetre * proprietaire = Application::Devant();
    return MessageBoxW(proprietaire == nullptr ? nullptr : proprietaire->Poignee(), texte.c_str(),
                       titre.c_str(), style | MB_SETFOREGROUND);
}

std::wstring Demander_texte(const std::wstring & invite, const std::wstring & titre,
                            const std::wstring & defaut) {
    Fenetre * proprietaire = Application::Devant();
    if (proprietaire == nullptr) return {};
    const double hauteur = proprietaire->Hauteur_texte(invite, largeur_saisie - 2 * marge);
    Saisie       saisie(invite, titre, std::max(390, static_cast<int>(hauteur) + 30));
    Placer_a_l_ecran(saisie, proprietaire->Left() + (proprietaire->Width() - saisie.Width()) / 2,
                     proprietaire->Top() + 1900, *proprietaire);
    saisie.Texte.Text(defaut);
    saisie.Texte.Selectionner(0, -1);
    saisie.Texte.SetFocus();
    saisie.Show_modal(*proprietaire);
    return saisie.reponse;
}

std::wstring Choisir_fichier(const std::wstring & titre, const std::wstring & filtre) {
    Exiger_bibliotheque(L"comdlg32.dll");
    Fenetre *          proprietaire = Application::Devant();
    const std::wstring types        = Filtre_systeme(filtre);
    std::wstring       chemin(32768, L'\0');
    OPENFILENAMEW      demande{};
    demande.lStructSize = sizeof demande;
    demande.hwndOwner   = proprietaire == nullptr ? nullptr : proprietaire->Poignee();
    demande.lpstrFilter = types.c_str();
    demande.lpstrFile   = chemin.data();
    demande.nMaxFile    = static_cast<DWORD>(chemin.size());
    demande.lpstrTitle  = titre.c_str();
    demande.Flags       = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    const Repertoire_garde repertoire;
    if (GetOpenFileNameW(&demande) == FALSE) {
        Signaler_echec_dialogue();
        return {};
    }
    chemin.resize(chemin.find(L'\0'));
    return chemin;
}
