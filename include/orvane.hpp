// The typed layer: operations on views of images and vectors, which say what is wrong with a call.
//
// The classes beside it take addresses, steps and sizes one by one and answer true or false; the layer takes views,
// checks them, and answers with a status that names the argument and the reason. Nothing of it needs to be linked.
// C++17 or later.
#ifndef ORVANE_HPP
#define ORVANE_HPP

#if __cplusplus < 201703L && (!defined(_MSVC_LANG) || _MSVC_LANG < 201703L)
#error "orvane.hpp needs C++17; the classes beside it do with C++11"
#endif

#include "layer/codes.hpp"
#include "layer/conversions.hpp"
#include "layer/geometry.hpp"
#include "layer/images.hpp"
#include "layer/in_place.hpp"
#include "layer/matrices.hpp"
#include "layer/objects.hpp"
#include "layer/library.hpp"
#include "layer/statistics.hpp"
#include "layer/status.hpp"
#include "layer/tables.hpp"
#include "layer/vectors.hpp"
#include "layer/version.hpp"
#include "layer/view.hpp"

#endif
