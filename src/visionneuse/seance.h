#pragma once
#include "toolkit/application.h"
#include "toolkit/minuterie.h"
#include "toolkit/remise.h"
#include "visionneuse/document.h"
#include "visionneuse/fenetre_visionneuse.h"

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

// The viewer at work: its window, its files, the one that is shown.
class Seance {
public:
    Seance();
    ~Seance();
    Seance(const Seance &)             = delete;
    Seance & operator=(const Seance &) = delete;

    void Recevoir(Remise & remise);                           // files that another copy hands over
    void Ouvrir(const std::vector<std::wstring> & fichiers);  // adds them and shows the first of them
    void Montrer_fenetre();

private:
    // Long work is on: the window answers to its stop button alone, whatever shows may be scrolled by nothing else.
    class Occupation {
    public:
        explicit Occupation(Seance & seance);
        ~Occupation();
        Occupation(const Occupation &)             = delete;
        Occupation & operator=(const Occupation &) = delete;

    private:
        Seance &                     seance_;
        Application::Sablier         sablier_;
        Application::Entree_reservee entree_;
    };

    void Brancher();
    void Brancher_touches();
    bool Raccourci(int touche);
    bool Raccourci_ctrl(int touche);
    void Disposer();
    // Runs it and reports what it ends with: nothing may pass through a call of the system's.
    void Proteger(const std::function<void()> & corps);
    // Once the event being treated is over: what had to wait for it.
    void Suite();

    int          Ajouter(const std::wstring & chemin);  // its rank in the list
    void         Montrer(int rang);
    void         Montrer_contenu(std::uint64_t position, bool nouveau);
    void         Reprendre_contenu();  // the same place, rows made again
    void         Passer_a(Affichage mode);
    void         Changer_mode();
    void         Basculer_hexa();
    void         Panne(const std::exception & faute);
    void         Dire_etat(const std::wstring & texte);
    void         Dire_position();
    std::wstring Description() const;
    bool         Utilisable() const { return document_ && !en_panne_ && !occupee_; }

    void Compter_lignes();
    void Surveiller();

    void Parcourir();
    void Chercher();
    void Chercher_texte(const std::wstring & texte);
    void Aller_chercher();
    void Copier();
    void Tout_choisir();
    void Imprimer();
    void Imprimer_document(const std::wstring & titre);
    bool Continuer(const std::wstring & travail, std::uint64_t position);  // false: stop

    // Names that differ by case alone are the same file's.
    struct Sans_casse {
        bool operator()(const std::wstring & a, const std::wstring & b) const;
    };

    Fenetre_visionneuse                     f;
    std::vector<std::wstring>               fichiers_;
    std::map<std::wstring, int, Sans_casse> rangs_;  // of the files in the list
    int                                     courant_ = -1;
    std::unique_ptr<Document>               document_;
    std::unique_ptr<Contenu_rangees>        rangees_;
    Minuterie                               compte_;
    Minuterie                               veille_;
    bool                                    en_panne_ = false;  // the file shown cannot be read any more
    bool                                    occupee_  = false;
    bool                                    arret_    = false;  // the work in progress is to end
    bool                                    fermer_   = false;  // and the window after it
    std::vector<std::wstring>               en_attente_;        // files that came meanwhile
};
