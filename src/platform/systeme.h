#pragma once
#include <cstdint>
#include <functional>
#include <string>

std::wstring  Repertoire_programme();  // where the executable is, without a final "\" but for a root
std::uint64_t Horloge_ms();  // milliseconds, monotonic: neither midnight nor a change of time moves it
void          Bip();         // the system's default beep

// The name of one running program in the user's session.
class Instance_unique {
public:
    explicit Instance_unique(const wchar_t * nom);
    ~Instance_unique();
    Instance_unique(const Instance_unique &)             = delete;
    Instance_unique & operator=(const Instance_unique &) = delete;
    bool              Deja_lancee() const { return deja_; }

private:
    void * poignee_ = nullptr;
    bool   deja_    = false;
};

std::wstring Repertoire_systeme();          // as GetSystemDirectoryA gives it, without a final "\"
std::wstring Repertoire_donnees_locales();  // the user's, on this machine; empty when there is none
// The local date as a day serial number: days since 30 December 1899.
std::int32_t Jour_serie();

// Keeps the other programs of this machine that ask for the same name waiting while it lives, those of other users too. A longer
// wait than `attente` (milliseconds) gives error 70. `entretemps` is called again and again during the wait.
class Exclusivite {
public:
    explicit Exclusivite(const wchar_t * nom, unsigned attente = 5000,
                         const std::function<void()> & entretemps = {});
    ~Exclusivite();
    Exclusivite(const Exclusivite &)             = delete;
    Exclusivite & operator=(const Exclusivite &) = delete;

private:
    bool Attendre(std::uint64_t attente, const std::function<void()> & entretemps) const;

    void * poignee_ = nullptr;
};
