#pragma once

// Shows the search request. True when a search is asked for: its patterns are in Modele_cherche and in the window.
bool Demander_recherche();
