// Gaussian random numbers.
#ifndef ORVANE_RANDOM_NUMBER_GENERATOR_H
#define ORVANE_RANDOM_NUMBER_GENERATOR_H

#include "Export.h"

/// One stream of normally distributed double values.
///
/// **Stream.** A generalised feedback shift register of 250 words of 32 bits, R250 (S. Kirkpatrick,
/// E. P. Stoll, J. Comput. Phys. 40, 1981), in its reciprocal form: x[n] = x[n-250] xor x[n-147]. Seeding
/// fills it by a multiplicative congruential generator with the factor 69069 and makes 32 of the words
/// linearly independent. Seed 0 is seed 1.
///
/// **Values.** Box and Muller's transform, one value for two words: with u1 and u2 the words times 2^-32,
/// value = (sqrt(-2 ln u1) sigma) sin(2 pi u2) + mean, in double and in that order. Logarithm, root and
/// sine are within a unit in the last place of the correctly rounded ones. For u1 = 0 the logarithm is that of the
/// smallest positive double, so the largest radius is 38.58600969059592.
///
/// **Sequence.** The same seed gives the same values on every processor, and values do not depend on how
/// a request is split into calls.
///
/// One object is used by one thread at a time; distinct objects are independent.
class ORVANE_API RandomNumberGenerator {
public:
    /// An object without a stream.
    RandomNumberGenerator();
    /// Deletes the stream.
    ~RandomNumberGenerator();
    /// Not available: see the assignment.
    RandomNumberGenerator(const RandomNumberGenerator& other) = delete;
    /// Shares the stream of `other`, and forgets its own without deleting it: only one of the two objects
    /// may be destroyed afterwards.
    RandomNumberGenerator& operator=(const RandomNumberGenerator& other);

    /// Deletes the stream, if there is one, and starts a new one. Always true, also when memory runs out:
    /// then there is no stream.
    bool Init(int seed);
    /// r[k] = the next n values with this mean and standard deviation. False, with r unwritten and the
    /// stream where it was: without a stream, for n below 0, for a null r, and for a sigma that is not
    /// above 0. With a stream, n = 0 is true and writes nothing, whatever follows.
    bool GenerateGaussian(int n, double* r, double mean, double sigma);
    /// Deletes the stream.
    void Cleanup();

    /// Fills the first `size` bytes of the object with zeros; for use before a constructor runs on it.
    void __autoclassinit2(unsigned int size);

private:
    void** cell_;  // holds the stream
};

#endif
