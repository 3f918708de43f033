#include "visionneuse/visionneuse.h"

extern "C" int __stdcall wWinMain(void *, void *, wchar_t * arguments, int) {
    return Lancer_visionneuse(arguments);
}
