#pragma once
#include "visionneuse/decodage.h"

// The code page that the system is set to.
const Page_ansi & Page_systeme();
