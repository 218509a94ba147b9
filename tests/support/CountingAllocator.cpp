#include "support/CountingAllocator.h"

#include <cstdlib>
#include <new>

namespace
{
thread_local bool t_counting = false;
thread_local long t_allocations = 0;
} // namespace

void* operator new(std::size_t size)
{
    if (t_counting)
        ++t_allocations;
    if (void* p = std::malloc(size != 0 ? size : 1))
        return p;
    throw std::bad_alloc();
}

void operator delete(void* p) noexcept
{
    std::free(p);
}

void operator delete(void* p, std::size_t) noexcept
{
    std::free(p);
}

// Every other form too, so that no block is taken by one allocator and given
// back to another (the sanitizers' would report the mismatch).
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    if (t_counting)
        ++t_allocations;
    return std::malloc(size != 0 ? size : 1);
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept
{
    return operator new(size, tag);
}

void operator delete(void* p, const std::nothrow_t&) noexcept
{
    std::free(p);
}

void operator delete[](void* p) noexcept
{
    std::free(p);
}

void operator delete[](void* p, std::size_t) noexcept
{
    std::free(p);
}

void operator delete[](void* p, const std::nothrow_t&) noexcept
{
    std::free(p);
}

AllocationCounter::AllocationCounter()
{
    t_allocations = 0;
    t_counting = true;
}

AllocationCounter::~AllocationCounter()
{
    t_counting = false;
}

long AllocationCounter::count() const
{
    return t_allocations;
}
