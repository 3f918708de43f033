#pragma once
#include <cstdint>
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
