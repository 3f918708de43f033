#pragma once

struct Gestion_Fichiers;

// The configuration editor: buttons, selections, associations.
void Brancher_configuration(Gestion_Fichiers & f);
