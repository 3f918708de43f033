#pragma once
#include <functional>
#include <string>

class Bouton_commande;
class Controle;
class Fenetre;

// The process's event loop and what belongs to the whole program.
namespace Application {

void Initialiser();  // once, first: error mode, control classes
int  Boucler();      // runs until Terminer; returns the exit code
void Terminer();     // ends the event loop, modal ones included
bool Terminee();

void Titre(const std::wstring & titre);  // the program's title, owner of its message boxes' task
const std::wstring & Titre();

// Lets pending events run, when the last look at them is more than 10 ms old; `toujours` looks in any case.
void Laisser_passer(bool toujours = false);

// Sleeps until an event comes, at most that many milliseconds, then lets events run.
void Patienter(unsigned millisecondes);

// While it lives, mouse buttons and keys reach this control alone (and message boxes); Escape and its access key press it.
// The focus goes back to where it was.
class Entree_reservee {
public:
    explicit Entree_reservee(Bouton_commande & bouton);
    ~Entree_reservee();
    Entree_reservee(const Entree_reservee &)             = delete;
    Entree_reservee & operator=(const Entree_reservee &) = delete;

private:
    Bouton_commande * avant_;
    Controle *        focus_;  // control of the program that had the focus, or null
};

// The hourglass pointer while it lives, on every window but over the button that input is reserved to.
class Sablier {
public:
    Sablier();
    ~Sablier();
    Sablier(const Sablier &)             = delete;
    Sablier & operator=(const Sablier &) = delete;
};

// The window in front: the active one, else the last one shown that takes input; null before the first.
Fenetre * Devant();

// Called when Windows shuts the session down, before the process ends: undoes what is half made. Null for nothing.
// The process ends right after it.
void Fin_de_session(std::function<void()> defaire);

}  // namespace Application
