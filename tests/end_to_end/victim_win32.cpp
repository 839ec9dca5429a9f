// A program that loads a library by its bare name, without any precaution: it shows that the trap works.
#include <windows.h>

int main() { return ::LoadLibraryW(L"dwmapi.dll") ? 0 : 1; }
