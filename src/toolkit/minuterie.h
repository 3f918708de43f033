#pragma once
#include <cstdint>
#include <functional>

// Raises Timer every `intervalle` milliseconds while it is enabled.
class Minuterie {
public:
    Minuterie() = default;
    ~Minuterie() { Enabled(false); }
    Minuterie(const Minuterie &)             = delete;
    Minuterie & operator=(const Minuterie &) = delete;

    void                  Interval(unsigned intervalle) { intervalle_ = intervalle; }
    void                  Enabled(bool active);
    std::function<void()> Timer;

private:
    unsigned       intervalle_ = 100;
    std::uintptr_t id_         = 0;
};
