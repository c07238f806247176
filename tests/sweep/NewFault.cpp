// SPDX-License-Identifier: MIT
#include "sweep/NewFault.h"

#include <cstdlib>
#include <new>

namespace Orvane::Testing {

namespace {

thread_local AllocationCounter* ArmedInNew = nullptr;

} // namespace

NewFault::~NewFault()
{
    NewFault::Disarm();
}

std::string NewFault::Name() const
{
    return m_counter.Lasts() ? "NewFromThenOn" : "New";
}

void NewFault::Arm(int number)
{
    m_counter.Start(number);
    ArmedInNew = &m_counter;
}

void NewFault::Disarm()
{
    if (ArmedInNew == &m_counter)
        ArmedInNew = nullptr;
}

std::string NewFault::FirstFailure() const
{
    return HasFailed() ? "operator new " + m_counter.FirstFailure() : std::string();
}

namespace {

void* Allocated(std::size_t bytes) noexcept
{
    if (ArmedInNew && ArmedInNew->Fails(bytes))
        return nullptr;
    return std::malloc(bytes == 0 ? 1 : bytes);
}

void* Required(std::size_t bytes)
{
    if (void* memory = Allocated(bytes))
        return memory;
    throw std::bad_alloc();
}

} // namespace

} // namespace Orvane::Testing

// Each form is replaced, because a sanitizer's own forms would not know memory of these.

void* operator new(std::size_t bytes)
{
    return Orvane::Testing::Required(bytes);
}

void* operator new[](std::size_t bytes)
{
    return Orvane::Testing::Required(bytes);
}

void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept
{
    return Orvane::Testing::Allocated(bytes);
}

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept
{
    return Orvane::Testing::Allocated(bytes);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}
