#pragma once
#include <string_view>

// Whether the command interpreter sees the end of the command before the end of the line: another command, a pipe or a
// redirection begins there, or the line is cut. Written as the interpreter reads, apart from the code under test.
inline bool se_termine(std::wstring_view ligne) {
    bool cite = false;
    for (std::size_t i = 0; i < ligne.size(); ++i) {
        const wchar_t signe = ligne[i];
        if (signe == L'\n' || signe == L'\r') return true;
        if (signe == L'"') cite = !cite;
        if (cite) continue;
        if (signe == L'^')
            ++i;
        else if (signe == L'&' || signe == L'|' || signe == L'<' || signe == L'>')
            return true;
    }
    return false;
}
