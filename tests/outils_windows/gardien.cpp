// Keeps the desktop and the services of a session alive between programs: starting them anew takes a second
// each time. Its argument is how long it lives, in seconds. It says that it is ready by making
// C:\gardien.pret.
#include "platform/windows.h"

#include <cwchar>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR arguments, int) {
    GetDesktopWindow();
    // Never shown: owning a window is enough.
    CreateWindowExW(0, L"STATIC", L"gardien", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    CloseHandle(CreateFileW(L"C:\\gardien.pret", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    const unsigned long secondes = std::wcstoul(arguments, nullptr, 10);
    SetTimer(nullptr, 0, static_cast<UINT>((secondes ? secondes : 600) * 1000), nullptr);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0 && message.message != WM_TIMER)
        DispatchMessageW(&message);
    return 0;
}
