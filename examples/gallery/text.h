// Letters on pictures.
#pragma once

#include <string>

#include "picture.h"

// Dark letters of 7 * `scale` pixels' height, the upper left corner of the first at (x, y).
void write_text(Picture& picture, int x, int y, int scale, const std::string& text);
