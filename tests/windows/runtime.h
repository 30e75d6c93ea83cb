// There are no Microsoft headers here, so the hosts declare the little they need of the C runtime and the
// system.
#pragma once

extern "C" {
__declspec(dllimport) int __cdecl printf(const char* format, ...);
__declspec(dllimport) void* __cdecl malloc(unsigned bytes);
__declspec(dllimport) void __cdecl free(void* block);
__declspec(dllimport) unsigned __cdecl _msize(void* block);
__declspec(dllimport) void* __cdecl memset(void* block, int value, unsigned bytes);
__declspec(dllimport) void* __cdecl memcpy(void* to, const void* from, unsigned bytes);
__declspec(dllimport) int __cdecl memcmp(const void* a, const void* b, unsigned bytes);
__declspec(dllimport) void __cdecl exit(int code);

__declspec(dllimport) void* __stdcall LoadLibraryA(const char* name);
__declspec(dllimport) int __stdcall FreeLibrary(void* library);
__declspec(dllimport) void* __stdcall GetModuleHandleA(const char* name);
__declspec(dllimport) void* __stdcall GetProcAddress(void* library, const char* name);
__declspec(dllimport) void* __stdcall CreateThread(void* security, unsigned stack, unsigned long(__stdcall* run)(void*),
                                                   void* argument, unsigned long flags, unsigned long* id);
__declspec(dllimport) unsigned long __stdcall WaitForSingleObject(void* object, unsigned long milliseconds);
__declspec(dllimport) int __stdcall QueryPerformanceCounter(long long* ticks);
__declspec(dllimport) int __stdcall QueryPerformanceFrequency(long long* ticks);
}

extern int passed, failed;

inline void expect(bool ok, const char* what)
{
    if (ok) ++passed;
    else ++failed, printf("FAILED %s\n", what);
}
