// The strips of the gallery, one per family of operations.
#pragma once

#include "page.h"

void show_data_movement(const Picture& photo, Page& page);
void show_integer_arithmetic(const Picture& photo, Page& page);
void show_pixels(const Picture& photo, Page& page);
void show_colour(const Picture& photo, Page& page);
void show_statistics(const Picture& photo, Page& page);
void show_filters(const Picture& photo, Page& page);
void show_rank(const Picture& photo, Page& page);
void show_edges(const Picture& photo, Page& page);
void show_resize(const Picture& photo, Page& page);
void show_warp(const Picture& photo, Page& page);
void show_spectra(const Picture& photo, const std::string& sound, Page& page);
void show_vectors(Page& page);
void show_matrices(const Picture& photo, Page& page);
