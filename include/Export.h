// Marks what the library exports, and how it is called.
#ifndef ORVANE_EXPORT_H
#define ORVANE_EXPORT_H

#if defined(ORVANE_STATIC)
#define ORVANE_API  // what is linked with a static library shows nothing of it
#elif defined(_WIN32) || defined(__CYGWIN__)
#if defined(ORVANE_BUILDING)
#define ORVANE_API __declspec(dllexport)
#else
#define ORVANE_API __declspec(dllimport)
#endif
#else
#define ORVANE_API __attribute__((visibility("default")))
#endif

// Static methods and free functions, whatever convention the host's compiler takes by default (/Gz, /Gv).
#if defined(_WIN32) && !defined(_WIN64)
#define ORVANE_CALL __cdecl
#else
#define ORVANE_CALL
#endif

#endif
