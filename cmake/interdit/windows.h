// Stands in the way of the system's header where it has no place.
#error "<windows.h> is only for src/toolkit and src/platform"
