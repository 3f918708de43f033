#pragma once
#include "platform/systeme.h"

#include <functional>
#include <string>
#include <vector>

class Fenetre;

// Texts handed over between the running copies of one program in the user's session.
class Remise {
public:
    // Announces this copy under the program's name.
    explicit Remise(const wchar_t * nom);
    ~Remise();
    Remise(const Remise &)             = delete;
    Remise & operator=(const Remise &) = delete;

    // Hands a text to another copy that is open, which may come to the front then; waits for one that is only starting. False when
    // there is none, or when it does not take it within a few seconds.
    bool Confier(const std::wstring & texte) const;
    // From now on this copy takes texts: each is handed to `suite` once the event being treated is over, after that window was
    // brought to the front.
    void Accepter(Fenetre & fenetre, std::function<void(const std::wstring &)> suite);

private:
    friend struct Rappels_remise;
    void * Autre_copie() const;
    bool   Recevoir(const void * donnees);
    void   Transmettre();

    std::wstring                              nom_;
    Instance_unique                           annonce_;
    void *                                    poignee_ = nullptr;
    Fenetre *                                 fenetre_ = nullptr;
    std::function<void(const std::wstring &)> suite_;
    std::vector<std::wstring>                 recus_;
};
