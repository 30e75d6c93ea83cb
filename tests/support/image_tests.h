// What the tests of image methods start from.
#pragma once

#include "ImageProcessingWrapper.h"
#include "support/expected.h"
#include "support/tests.h"

namespace test {

using W = ImageProcessingWrapper;

}  // namespace test
