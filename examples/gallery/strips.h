// The strips of the gallery, one per family of operations.
#pragma once

#include "page.h"

void show_data_movement(const Picture& photo, Page& page);
void show_integer_arithmetic(const Picture& photo, Page& page);
