// The version of these headers. Made from the project's by interface/generate.py.
#ifndef ORVANE_LAYER_VERSION_HPP
#define ORVANE_LAYER_VERSION_HPP

#define ORVANE_VERSION_MAJOR 0
#define ORVANE_VERSION_MINOR 1
#define ORVANE_VERSION_PATCH 0
/// For comparisons: 10203 is 1.2.3.
#define ORVANE_VERSION (ORVANE_VERSION_MAJOR * 10000 + ORVANE_VERSION_MINOR * 100 + ORVANE_VERSION_PATCH)
#define ORVANE_VERSION_STRING "0.1.0"

#endif
