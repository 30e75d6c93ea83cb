// Usage: gallery PICTURE FOLDER [SAMPLES [SOUND]]
// Runs the library's operations on a picture (PNG or JPEG), on the sample pictures of a folder and on a sound (WAV, 16
// bit) and writes FOLDER/index.html. The picture stands in for samples that are missing, a chirp for the sound.
#include <exception>
#include <iostream>

#include "strips.h"

namespace {

const char kCredits[] = R"(<footer id="credits"><p>
Pictures, from Debian's package python3-skimage, as its documentation describes them: coffee cup, CC0, Rachel
Michetti. Astronaut Eileen Collins, NASA, public domain. Chelsea the cat, CC0, Stefan van der Walt. Greek coins
from Pompeii, Brooklyn Museum, no known copyright restrictions. Retina, CC0, Mikael Häggström (WikiJournal of
Medicine 1, 2014). Hubble extreme deep field, NASA, ESA. Motorcycle, a stereo pair of the Middlebury benchmark:
D. Scharstein, H. Hirschmüller, Y. Kitajima, G. Krathwohl, N. Nešić, X. Wang, P. Westling, GCPR 2014. A scanned
page, from the same samples. The spoken words are those of Debian's alsa-utils. Reduced and converted to grey
where a section says so. A picture of your own takes the place of the coffee cup.
</p></footer>)";

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 3 || argc > 5) return std::cerr << "usage: gallery PICTURE FOLDER [SAMPLES [SOUND]]\n", 2;
    try {
        const Pictures pictures = read_pictures(argv[1], argc > 3 ? argv[3] : "");
        Page page(argv[2]);
        page.section("The photograph", std::to_string(pictures.photo.width) + " x " +
                                           std::to_string(pictures.photo.height) +
                                           " pixels, three channels. Others have their credits at the end.");
        page.show(pictures.photo, "The photograph that most sections begin with");
        page.feature();
        show_levels(page);
        show_moving(pictures, page);
        show_arithmetic(pictures, page);
        show_bits(pictures, page);
        show_border(pictures, page);
        show_colour(pictures, page);
        show_resize(pictures, page);
        show_edges(pictures, page);
        show_warp(pictures, page);
        show_filters(pictures, page);
        show_rank(pictures, page);
        show_convolution(pictures, page);
        show_statistics(pictures, page);
        show_packed_spectra(pictures, page);
        show_small_matrices(pictures, page);
        show_vectors(pictures, page);
        show_psd(argc > 4 ? argv[4] : "", page);
        show_fft2(pictures, page);
        show_random(pictures, page);
        show_matrices(pictures, page);
        show_lapack(pictures, page);
        show_container(page);
        page.block(kCredits);
        page.write();
        return 0;
    } catch (const std::exception& e) {
        return std::cerr << "gallery: " << e.what() << "\n", 1;
    }
}
