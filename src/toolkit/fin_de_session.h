#pragma once
#include "toolkit/application.h"

#include <functional>
#include <utility>

// While it lives, Windows shutting down undoes what is half made before the process ends.
class Abandon_en_fin_de_session {
public:
    explicit Abandon_en_fin_de_session(std::function<void()> defaire) {
        Application::Fin_de_session(std::move(defaire));
    }
    ~Abandon_en_fin_de_session() { Application::Fin_de_session(nullptr); }
    Abandon_en_fin_de_session(const Abandon_en_fin_de_session &)             = delete;
    Abandon_en_fin_de_session & operator=(const Abandon_en_fin_de_session &) = delete;
};
