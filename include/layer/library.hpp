// Which library is running.
#ifndef ORVANE_LAYER_LIBRARY_HPP
#define ORVANE_LAYER_LIBRARY_HPP

#include "../Version.h"

namespace orvane {

/// The version of the library, "1.2.3"; ORVANE_VERSION_STRING is that of the headers.
inline const char* version() { return orvaneVersionString(); }
/// The version of the library as a number, to be compared with ORVANE_VERSION.
inline int version_number() { return orvaneVersion(); }
/// The processor level whose kernels run: "px", "w7", "v8", "s8", "p8", "g9" or "h9".
inline const char* level() { return orvaneLevel(); }

}  // namespace orvane

#endif
