#include "fenetres/corbeille.h"
#include "fenetres/mine.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <numeric>

using namespace Pilote;

// The program is ended before each of the calls by which a command changes files, then started again.
class Coupures : public Corbeille {
protected:
    Coupures() {
        Regler(L"Options", L"Répertoire", source);
        for (const wchar_t * nom : {L"a.txt", L"b c.txt", L"Été.dat", L"z"}) {
            Creer_source(nom, 1000 + avant.size(), static_cast<std::uint32_t>(*nom));
            Date(Source(nom), 126000000000000000ull + static_cast<std::uint64_t>(*nom) * 10000000ull);
        }
        avant = Lire_arbre(source);
    }
    static void TearDownTestSuite() {
        std::printf("coupures : %u runs, %u losses (programme tué)\n", morts_, pertes_);
    }

    // `preparer` before each run, on a program that was just started; then `commander`, until it lives through it and `finie`
    // holds; `verifier` on the program started again after each death. How often it died.
    unsigned Tuer_a_chaque_appel(const std::function<void()> & preparer,
                                 const std::function<void()> & commander, const std::function<bool()> & finie,
                                 const std::function<void()> & verifier) {
        for (unsigned rang = 1; rang < 60; ++rang) {
            Fermer();
            Lancer();
            preparer();
            if (HasFailure()) return rang;
            const Mine mine(programme->Poignee(), rang);
            commander();
            EXPECT_TRUE(Attendre([&] { return !programme->Vivant() || finie(); }, 20000)) << rang;
            // The windows of a program that dies go before it does.
            if (!programme->Attendre_fin(200)) {
                EXPECT_LT(mine.Appels(), rang);
                return rang - 1;
            }
            EXPECT_EQ(77u, programme->Code_de_fin());
            ++morts_;
            Fermer();
            Lancer();
            verifier();
            pertes_ += HasFailure();
            EXPECT_FALSE(HasFailure()) << "mort à l'appel " << rang;
        }
        ADD_FAILURE() << "la commande n'en finit pas";
        return 0;
    }
    // Each file is at its place or listed, then given back by the window.
    void Verifier_et_recuperer() {
        const auto fille  = Rouvrir_corbeille();
        const auto listes = fille.Entrees(L"Fichier_effacé");
        for (const auto & [nom, fiche] : avant) {
            const auto places = (Existe(source + nom) ? 1 : 0) + std::ranges::count(listes, source + nom);
            EXPECT_EQ(1, places) << Utf8(nom);
        }
        if (!listes.empty()) {
            Choisir_tous(fille, listes.size());
            Recuperer(fille, 0);
        }
        Terminer(fille);
        EXPECT_TRUE(Lire_arbre(source) == avant);
    }
    static void Choisir_tous(const Pilote::Fille & fille, std::size_t nombre) {
        std::vector<int> rangs(nombre);
        std::iota(rangs.begin(), rangs.end(), 0);
        fille.Choisir(L"Fichier_effacé", rangs);
    }
    void Effacer_tout() {
        Cliquer(L"Effacer");
        Attendre_dialogue(gestionnaire,
                          L"Voulez-vous EFFACER sélectivement ou globalement les fichiers sélectionnés ?",
                          {L"&SELECTIF", L"&GLOBAL", L"&ANNULER"}, 2);
    }
    // The program may die at any moment of this: a window that is gone is no failure.
    bool Est_vide(const wchar_t * fenetre, const wchar_t * liste) const {
        const HWND controle = Controle_nomme(Fenetre(fenetre), liste);
        return controle != nullptr && Nombre_entrees(controle) == 0 && !Sablier();
    }
    bool Source_vide() const { return Est_vide(L"Gestion_Fichiers", L"Fichier_srce"); }

    Arbre                  avant;
    static inline unsigned morts_ = 0, pertes_ = 0;
};

TEST_F(Coupures, effacer_globalement_laisse_chaque_fichier_a_sa_place_ou_dans_la_liste) {
    const unsigned morts =
        Tuer_a_chaque_appel([&] { Choisir_tout(); }, [&] { Effacer_tout(); }, [&] { return Source_vide(); },
                            [&] { Verifier_et_recuperer(); });
    EXPECT_GE(morts, 3 * avant.size() + 1);  // the records, then a name and two rounds of attributes for each
}

TEST_F(Coupures, recuperer_laisse_chaque_fichier_a_sa_place_ou_dans_la_liste) {
    const auto preparer = [&] {
        Choisir_tout();
        Effacer_tout();
        ATTENDRE(Source_vide());
        const auto fille = Rouvrir_corbeille();
        Choisir_tous(fille, avant.size());
    };
    const auto     finie = [&] { return Est_vide(L"Corbeille", L"Fichier_effacé"); };
    const unsigned morts = Tuer_a_chaque_appel(
        preparer, [&] { Fenetre_corbeille().Cliquer(L"Récupérer"); }, finie,
        [&] { Verifier_et_recuperer(); });
    EXPECT_GE(morts, 2 * avant.size() + 2);  // attributes and a name for each, then the index
}

TEST_F(Coupures, renommer_laisse_un_des_deux_noms) {
    const auto verifier = [&] {
        const bool renomme = Existe(Source(L"autre.txt"));
        EXPECT_NE(Existe(Source(L"a.txt")), renomme);
        if (renomme) MoveFileExW(Source(L"autre.txt").c_str(), Source(L"a.txt").c_str(), 0);
        EXPECT_TRUE(Lire_arbre(source) == avant);
    };
    const auto renommer = [&] {
        Cliquer(L"Renommer");
        Attendre_saisie(L"RENOMMER", L"Entrez le nouveau nom du fichier A.TXT", L"a.txt", L"autre.txt");
    };
    EXPECT_GE(Tuer_a_chaque_appel([&] { Choisir_un(L"a.txt"); }, renommer,
                                  [&] { return Existe(Source(L"autre.txt")) && !Sablier(); }, verifier),
              1u);
}

TEST_F(Coupures, supprimer_ne_touche_que_le_repertoire_supprime) {
    const std::wstring sous     = Source(L"sous");
    const auto         preparer = [&] {
        Creer_source(L"sous\\x.txt", 100);
        Creer_source(L"sous\\y.txt", 200);
        Cliquer(L"Mode");
        Ouvrir(L"srce", sous);
        ATTENDRE(Nombre_entrees(Controle(L"Fichier_srce")) == 2);
    };
    const auto supprimer = [&] {
        Cliquer(L"Supprimer");
        Attendre_boite(gestionnaire,
                       L"Vous allez SUPPRIMER\rle répertoire " + Capitales(sous) +
                           L"\r\rConfirmez-vous cette commande ?",
                       oui_non, IDYES);
        Attendre_boite(gestionnaire, L"Le répertoire contient des fichiers,\rvoulez-vous les effacer ?",
                       oui_non, IDYES);
    };
    const auto verifier = [&] {
        EXPECT_TRUE(Effacer(sous));
        EXPECT_TRUE(Lire_arbre(source) == avant);
    };
    EXPECT_GE(Tuer_a_chaque_appel(
                  preparer, supprimer, [&] { return !Existe(sous) && !Sablier(); }, verifier),
              3u);
    EXPECT_TRUE(Lire_arbre(source) == avant);
}
