// A block of functions for Windows.
#include <windows.h>

BLOCK
