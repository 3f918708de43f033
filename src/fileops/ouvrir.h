#pragma once

// A file of the SOURCE pane, or a search result, was double-clicked: a program is executed, another file handed to the program
// that is associated with its extension. Without one the user chooses.
void Ouvrir_fichier();
