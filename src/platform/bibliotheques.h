#pragma once

// Libraries that are loaded while the program runs. The current directory is the SOURCE directory, and the program may stand among
// downloaded files: a library that lies there under the name of a system's one is never taken for it.

// From now on libraries asked for by their name alone come from the system's directory. Nothing changes on a system that does not
// know how.
void Restreindre_bibliotheques();
// Before the first call of a library that is loaded then: such a call has no way of failing. From the system's directory,
// error 57 with the system's code and the library's path when it cannot be loaded.
void Exiger_bibliotheque(const wchar_t * nom);
