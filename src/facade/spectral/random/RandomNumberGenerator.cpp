#include "RandomNumberGenerator.h"

#include "core/memory.h"
#include "facade/object_memory.h"
#include "spectral/random/random_numbers.h"

using namespace orv;

namespace {

RandomStream* stream_in(void** cell) { return cell != nullptr ? static_cast<RandomStream*>(*cell) : nullptr; }

void** create_cell()
{
    void** const cell = static_cast<void**>(orv_allocate(sizeof(void*)));
    if (cell != nullptr) *cell = nullptr;
    return cell;
}

}  // namespace

RandomNumberGenerator::RandomNumberGenerator() : cell_(create_cell()) {}

RandomNumberGenerator::~RandomNumberGenerator()
{
    Cleanup();
    orv_release(cell_);
}

// Intended: the cell is shared, and the one that was here is lost.
RandomNumberGenerator& RandomNumberGenerator::operator=(const RandomNumberGenerator& other)
{
    cell_ = other.cell_;
    return *this;
}

// Intended: true even without a stream. GenerateGaussian() is the one that fails then.
bool RandomNumberGenerator::Init(int seed)
{
    Cleanup();
    if (cell_ == nullptr) cell_ = create_cell();  // memory had run out
    if (cell_ != nullptr) *cell_ = orv_create_random_stream(seed);
    return true;
}

bool RandomNumberGenerator::GenerateGaussian(int n, double* r, double mean, double sigma)
{
    return orv_Gaussian_64f(stream_in(cell_), n, r, mean, sigma) == StatusOk;
}

void RandomNumberGenerator::Cleanup()
{
    if (cell_ == nullptr) return;
    orv_delete_random_stream(stream_in(cell_));
    *cell_ = nullptr;
}

void RandomNumberGenerator::__autoclassinit2(unsigned int size) { zero_object(this, size); }
