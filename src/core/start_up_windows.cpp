// The entry routine of the DLL: process attach runs start-up, every reason succeeds.
#include "core/start_up.h"

extern "C" __attribute__((stdcall)) int orv_dll_entry(void*, unsigned long reason, void*)
{
    constexpr unsigned long process_attach = 1;
    if (reason == process_attach) orv::start_up();
    return 1;
}
