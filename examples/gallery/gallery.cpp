// Usage: gallery PICTURE FOLDER [SOUND]
// Runs the library's operations on a picture (PNG or JPEG) and a sound (WAV, 16 bit) and writes
// FOLDER/index.html.
#include <exception>
#include <iostream>

#include "strips.h"

int main(int argc, char** argv)
{
    if (argc != 3 && argc != 4) return std::cerr << "usage: gallery PICTURE FOLDER [SOUND]\n", 2;
    try {
        const Picture photo = read_picture(argv[1]);
        Page page(argv[2]);
        page.strip("The photograph",
                   std::to_string(photo.width) + " x " + std::to_string(photo.height) + " pixels, three channels.");
        page.show(photo, argv[1], 0, true);
        show_data_movement(photo, page);
        show_integer_arithmetic(photo, page);
        show_pixels(photo, page);
        show_colour(photo, page);
        show_statistics(photo, page);
        show_filters(photo, page);
        show_rank(photo, page);
        show_edges(photo, page);
        show_resize(photo, page);
        show_warp(photo, page);
        show_spectra(photo, argc > 3 ? argv[3] : "", page);
        show_vectors(page);
        show_matrices(photo, page);
        return 0;
    } catch (const std::exception& e) {
        return std::cerr << "gallery: " << e.what() << "\n", 1;
    }
}
