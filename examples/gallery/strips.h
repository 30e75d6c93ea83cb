// The sections of the gallery, by rooms of the library.
#pragma once

#include "page.h"

void show_levels(Page& page);
void show_moving(const Pictures& pictures, Page& page);
void show_arithmetic(const Pictures& pictures, Page& page);
void show_bits(const Pictures& pictures, Page& page);
void show_border(const Pictures& pictures, Page& page);
void show_colour(const Pictures& pictures, Page& page);
void show_resize(const Pictures& pictures, Page& page);
void show_edges(const Pictures& pictures, Page& page);
void show_warp(const Pictures& pictures, Page& page);
void show_filters(const Pictures& pictures, Page& page);
void show_rank(const Pictures& pictures, Page& page);
void show_convolution(const Pictures& pictures, Page& page);
void show_statistics(const Pictures& pictures, Page& page);
void show_packed_spectra(const Pictures& pictures, Page& page);
void show_small_matrices(const Pictures& pictures, Page& page);
void show_vectors(const Pictures& pictures, Page& page);
void show_psd(const std::string& sound, Page& page);
void show_fft2(const Pictures& pictures, Page& page);
void show_random(const Pictures& pictures, Page& page);
void show_matrices(const Pictures& pictures, Page& page);
void show_lapack(const Pictures& pictures, Page& page);
void show_container(Page& page);
