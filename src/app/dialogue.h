#pragma once
#include <string>

struct Dialogue;

// Asks a question with up to three buttons, in front of the main window; an empty caption leaves its button
// out. The third is the cancelling choice, which Escape gives. `icone` is "16" stop, "32" question, "48"
// exclamation, "64" information, or empty. Returns 1 to 3. `defaut` is the button that has the focus when the
// window opens.
int Choix_bouton(const std::wstring & message, const std::wstring & bouton1, const std::wstring & bouton2,
                 const std::wstring & bouton3, const std::wstring & icone, const std::wstring & titre,
                 int defaut = 1);

void Brancher_dialogue(Dialogue & d);
