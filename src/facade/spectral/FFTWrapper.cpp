// Families: fft.
#include "FFTWrapper.h"

#include "facade/object_memory.h"
#include "spectral/psd_object.h"

FFTWrapper::FFTWrapper() : record_(orv::orv_psd_create()) {}
FFTWrapper::FFTWrapper(int n) : record_(orv::orv_psd_create()) { Init(n); }
FFTWrapper::~FFTWrapper() { orv::orv_psd_destroy(record_); }

// Intended: the record is shared, and the one that was held is not released.
FFTWrapper& FFTWrapper::operator=(const FFTWrapper& other)
{
    record_ = other.record_;
    return *this;
}

bool FFTWrapper::Init(int n)
{
    orv::orv_psd_init(record_, n);
    return true;
}

bool FFTWrapper::PsdFFT(const float* signal, const float* window, float* out, int len)
{
    orv::orv_psd_run(record_, signal, window, out, len);
    return true;
}

void FFTWrapper::Cleanup() { orv::orv_psd_cleanup(record_); }

void FFTWrapper::__autoclassinit2(unsigned int size) { orv::zero_object(this, size); }
