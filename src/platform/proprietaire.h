#pragma once
#include <utility>

// Move-only owner of a system handle. The rule says what is invalid and how to close; closing keeps the last
// error. Needs no system header, so that a class that holds one can be used everywhere.
template <class Regle> class Proprietaire {
public:
    using Type = typename Regle::Type;

    Proprietaire() = default;
    explicit Proprietaire(Type valeur) : valeur_(valeur) {}
    Proprietaire(Proprietaire && autre) noexcept : valeur_(autre.Ceder()) {}
    Proprietaire & operator=(Proprietaire && autre) noexcept {
        if (this != &autre) Remplacer(autre.Ceder());
        return *this;
    }
    ~Proprietaire() { Remplacer(Regle::Invalide()); }

    Type Valeur() const { return valeur_; }
    bool Valide() const { return valeur_ != Regle::Invalide(); }
    Type Ceder() { return std::exchange(valeur_, Regle::Invalide()); }
    void Remplacer(Type valeur) noexcept {
        if (Valide()) Regle::Fermer(valeur_);
        valeur_ = valeur;
    }

private:
    Type valeur_ = Regle::Invalide();
};

struct Regle_fichier {
    using Type = void *;
    static Type Invalide();
    static void Fermer(Type poignee) noexcept;
};
struct Regle_recherche {
    using Type = void *;
    static Type Invalide();
    static void Fermer(Type poignee) noexcept;
};
struct Regle_objet {
    using Type = void *;
    static Type Invalide() { return nullptr; }
    static void Fermer(Type poignee) noexcept;
};

using Poignee_fichier   = Proprietaire<Regle_fichier>;
using Poignee_recherche = Proprietaire<Regle_recherche>;
using Poignee_objet     = Proprietaire<Regle_objet>;
