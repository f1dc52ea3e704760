// Counts the heap allocations of adding points to the stores. This binary
// replaces the global operator new and malloc (Qt's containers allocate
// through malloc), so it brings its own main.
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "testsupport.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <new>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *p, size_t size);
}

namespace {
std::atomic<long> g_allocations{0};
}

extern "C" void *malloc(size_t size)
{
    ++g_allocations;
    return __libc_malloc(size);
}

extern "C" void *calloc(size_t count, size_t size)
{
    ++g_allocations;
    return __libc_calloc(count, size);
}

extern "C" void *realloc(void *p, size_t size)
{
    ++g_allocations;
    return __libc_realloc(p, size);
}

void *operator new(std::size_t size)
{
    if (void *p = malloc(size ? size : 1))
        return p;
    throw std::bad_alloc();
}

void operator delete(void *p) noexcept
{
    std::free(p);
}

void operator delete(void *p, std::size_t) noexcept
{
    std::free(p);
}

namespace {

double titrationCurve(int k)
{
    return 100.0 * std::tanh((k - 300) / 5.0) + 50.0 * std::tanh((k - 700) / 5.0);
}

TEST(StoreAllocations, TemporalPointCostsOnlyItsMapNode)
{
    TemporalDataStore store;
    for (int k = 0; k < 10; ++k)
        store.addPoint(250 * k, 100.0 + k);
    const int points = 1000;
    const long before = g_allocations;
    for (int k = 10; k < 10 + points; ++k)
        store.addPoint(250 * k, 100.0 + std::sin(k * 0.1));
    const long allocations = g_allocations - before;
    EXPECT_EQ(allocations, points);
}

TEST(StoreAllocations, VolumetricPointCostsOnlyItsMapNode)
{
    VolumetricDataStore store;
    store.setMinimumVolume(40.0);
    for (int k = 0; k < 10; ++k)
        store.addPoint(20.0 * k, titrationCurve(k));
    const int points = 1000;
    const long before = g_allocations;
    for (int k = 10; k < 10 + points; ++k)
        store.addPoint(20.0 * k, titrationCurve(k));
    const long allocations = g_allocations - before;
    EXPECT_EQ(store.peakCount(), 2) << "the search ran through both peaks and valleys";
    EXPECT_EQ(allocations, points);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    TempSandbox sandbox;
    return RUN_ALL_TESTS();
}
