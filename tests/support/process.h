// What a process shows of itself: the number of its threads, and what it prints.
#pragma once

#include <cstdio>

#include <unistd.h>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#include <tlhelp32.h>
#undef far
#undef near
#else
#include <dirent.h>
#endif

namespace test {

inline int count_threads()
{
    int count = 0;
#if defined(_WIN32)
    const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Thread32First(all, &entry); more; more = Thread32Next(all, &entry)) {
        count += entry.th32OwnerProcessID == GetCurrentProcessId();
    }
    CloseHandle(all);
#else
    DIR* const tasks = opendir("/proc/self/task");
    while (const dirent* entry = readdir(tasks)) count += entry->d_name[0] != '.';
    closedir(tasks);
#endif
    return count;
}

// While it lives, standard output and error go to a file.
class CapturedOutput {
public:
    CapturedOutput() : file_(std::tmpfile()), out_(dup(1)), err_(dup(2))
    {
        std::fflush(nullptr);
        dup2(fileno(file_), 1);
        dup2(fileno(file_), 2);
    }
    ~CapturedOutput()
    {
        std::fflush(nullptr);
        dup2(out_, 1);
        dup2(err_, 2);
        close(out_);
        close(err_);
        std::fclose(file_);
    }
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

    long bytes() const
    {
        std::fflush(nullptr);
        return static_cast<long>(lseek(fileno(file_), 0, SEEK_END));
    }

private:
    std::FILE* file_;
    int out_, err_;
};

}  // namespace test
