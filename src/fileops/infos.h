#pragma once

struct Gestion_Fichiers;

// What is known of the SOURCE files: the sum of a directory, or one selected file after the other with its attributes.
void Brancher_infos(Gestion_Fichiers & f);
