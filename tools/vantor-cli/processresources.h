#pragma once

// What the process holds right now, for soak runs: the peak resident memory
// since it started, the heap in use and the open file descriptors. Read from
// the C library and the kernel's calls, no files.
class ProcessResources
{
public:
    static long peakResidentKb();
    static long heapInUseKb();
    static int openFileDescriptors();
};
