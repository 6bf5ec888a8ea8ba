// Everything is in windows.h; this file only answers to the name.
#include <windows.h>
