// What the exported classes need of a C++ runtime, so that the DLL needs none: compiled for either ABI.
extern "C" {
__declspec(dllimport) void* malloc(decltype(sizeof(0)) bytes);
__declspec(dllimport) void free(void* block);
__declspec(dllimport) void __stdcall RaiseException(unsigned long code, unsigned long flags, unsigned long count,
                                                    const void* arguments);
#if defined(_MSC_VER)
extern int _fltused;
int _fltused = 0x9875;  // objects with floating point refer to it
#endif
}

// The image container allocates its description. There is no language exception that hosts of every
// runtime could catch, so what is raised is the system's own for this: STATUS_NO_MEMORY.
void* operator new(decltype(sizeof(0)) bytes)
{
    void* const block = malloc(bytes);
    if (block == nullptr) RaiseException(0xC0000017ul, 1, 0, nullptr);
    return block;
}
void operator delete(void* block) noexcept { free(block); }
void operator delete(void* block, decltype(sizeof(0))) noexcept { free(block); }
