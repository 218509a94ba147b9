#pragma once

// A program that links CountingAllocator.cpp has its global operator new
// replaced by one that counts the allocations a thread makes while an
// AllocationCounter is alive on it; other threads are not counted.
class AllocationCounter
{
public:
    AllocationCounter();
    ~AllocationCounter();

    AllocationCounter(const AllocationCounter&) = delete;
    AllocationCounter& operator=(const AllocationCounter&) = delete;

    // Allocations of this thread since the counter was made.
    long count() const;
};
