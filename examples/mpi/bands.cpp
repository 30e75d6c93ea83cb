// A scan in a raw file (8 bits, row by row), restored by any number of processes: each reads its band with the rows
// round it, and writes its part of the result. The bytes do not depend on how many there are.
//
//     mpirun -n 3 bands WIDTH HEIGHT scan.raw result.raw
//
// Where a process dies, mpirun ends the others and gives a status other than 0; the result then lacks bands, and the
// run is to be repeated. (Open MPI 4.1 can do no more; where lost workers must be replaced, take examples/cluster.)
#include <cstdio>
#include <cstdlib>
#include <mpi.h>
#include <vector>

#include "../cores/chain.hpp"

namespace {

// Rows of a file, addressed by 64 bits.
class raw_file {
public:
    raw_file(const char* name, int mode, int width) : width_(width)
    {
        MPI_Type_contiguous(width, MPI_UNSIGNED_CHAR, &row_);
        MPI_Type_commit(&row_);
        MPI_File_open(MPI_COMM_WORLD, name, mode, MPI_INFO_NULL, &file_);
    }
    ~raw_file()
    {
        MPI_File_close(&file_);
        MPI_Type_free(&row_);
    }
    raw_file(const raw_file&) = delete;
    raw_file& operator=(const raw_file&) = delete;

    void set_height(int height) { MPI_File_set_size(file_, MPI_Offset{width_} * height); }
    void read(orvane::rows_read rows, unsigned char* pixels)
    {
        MPI_Status status;
        int count = 0;
        MPI_File_read_at(file_, MPI_Offset{width_} * rows.first, pixels, rows.count, row_, &status);
        MPI_Get_count(&status, row_, &count);
        if (count == rows.count) return;
        std::fprintf(stderr, "the file ends before row %d\n", rows.first + rows.count);
        MPI_Abort(MPI_COMM_WORLD, 1);
    }
    void write(orvane::rows_read rows, const unsigned char* pixels)
    {
        MPI_File_write_at(file_, MPI_Offset{width_} * rows.first, pixels, rows.count, row_, MPI_STATUS_IGNORE);
    }

private:
    MPI_File file_{};
    MPI_Datatype row_{};
    int width_;
};

void restore_band(const orvane::band& band, int width, raw_file& scan, raw_file& result)
{
    const orvane::rows_read read = band.reading(around);
    const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(read.count);
    std::vector<unsigned char> in(pixels), out(pixels);
    scan.read(read, in.data());
    const grey made(out.data(), width, read.count, width);
    // The band's neighbours are computed, too, from edges that are not the image's: they are left out.
    restore_in_bands(orvane::one_by_one{}, const_grey(in.data(), width, read.count, width), made);
    result.write(band, band.inside(read).of(made).row(0));
}

}  // namespace

int main(int count, char** words)
{
    MPI_Init(&count, &words);
    MPI_File_set_errhandler(MPI_FILE_NULL, MPI_ERRORS_ARE_FATAL);
    const int width = count == 5 ? std::atoi(words[1]) : 0, height = count == 5 ? std::atoi(words[2]) : 0;
    if (width < 1 || height < 1) {
        std::fprintf(stderr, "usage: bands WIDTH HEIGHT scan.raw result.raw\n");
        MPI_Abort(MPI_COMM_WORLD, 2);
    }
    int rank = 0, processes = 0;
    MPI_Comm_rank(MPI_COMM_WORLD, &rank);
    MPI_Comm_size(MPI_COMM_WORLD, &processes);
    {
        raw_file scan(words[3], MPI_MODE_RDONLY, width);
        raw_file result(words[4], MPI_MODE_WRONLY | MPI_MODE_CREATE, width);
        result.set_height(height);
        const int rows = (height + processes - 1) / processes;
        if (rank < orvane::bands_of(height, rows)) {
            restore_band(orvane::band_of(height, rows, rank), width, scan, result);
        }
    }
    MPI_Finalize();
}
