#pragma once

// Twips to pixels and back, with the screen's resolution as the process sees it: 1440 twips to the inch.
int Resolution();  // dots per inch
int Pixels(int twips);
int Twips(int pixels);
