#pragma once
#include <functional>
#include <string>

// Deletes for good the files of a directory that "*.*" names: hidden and system ones stay, and its
// subdirectories. `continuer` is asked before each file, with its name. False when it ended the deletion. The
// first file that cannot be deleted ends it too, by its error: 75 when it is read-only.
bool Vider_repertoire(const std::wstring &                              repertoire,
                      const std::function<bool(const std::wstring &)> & continuer);
