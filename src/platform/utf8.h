#pragma once
#include <optional>
#include <string>
#include <string_view>

// UTF-8 of text that may hold anything a file name can: half of a surrogate pair alone has its three bytes too. Text is UTF-16
// on every system, whatever the width of its characters.

std::string En_utf8(std::wstring_view texte);
// Empty for bytes that are not UTF-8 from end to end.
std::optional<std::wstring> De_utf8(std::string_view octets);
