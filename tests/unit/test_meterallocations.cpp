// Counts every heap allocation of the process while samples run through the
// measurement engine: the global operator new is replaced here, and on glibc
// without a sanitizer malloc is counted as well (Qt allocates with malloc).
#include "meter/cmeasurementcontext.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <vector>

namespace {
bool g_counting = false;
long g_newCalls = 0;
long g_mallocCalls = 0;

void *countedNew(std::size_t size)
{
    if (g_counting)
        ++g_newCalls;
    if (void *p = std::malloc(size ? size : 1))
        return p;
    throw std::bad_alloc();
}
}

void *operator new(std::size_t size) { return countedNew(size); }
void *operator new[](std::size_t size) { return countedNew(size); }
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    if (g_counting)
        ++g_newCalls;
    return std::malloc(size ? size : 1);
}
void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    if (g_counting)
        ++g_newCalls;
    return std::malloc(size ? size : 1);
}
void operator delete(void *p) noexcept { std::free(p); }
void operator delete[](void *p) noexcept { std::free(p); }
void operator delete(void *p, std::size_t) noexcept { std::free(p); }
void operator delete[](void *p, std::size_t) noexcept { std::free(p); }

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#define KESTRUM_COUNT_MALLOC 1
extern "C" {
void *__libc_malloc(std::size_t);
void *__libc_calloc(std::size_t, std::size_t);
void *__libc_realloc(void *, std::size_t);

void *malloc(std::size_t size)
{
    if (g_counting)
        ++g_mallocCalls;
    return __libc_malloc(size);
}
void *calloc(std::size_t n, std::size_t size)
{
    if (g_counting)
        ++g_mallocCalls;
    return __libc_calloc(n, size);
}
void *realloc(void *p, std::size_t size)
{
    if (g_counting)
        ++g_mallocCalls;
    return __libc_realloc(p, size);
}
}
#endif

namespace {

struct Counted
{
    long news;
    long mallocs;
};

template<typename F>
Counted countAllocations(F &&work)
{
    g_newCalls = 0;
    g_mallocCalls = 0;
    g_counting = true;
    work();
    g_counting = false;
    return {g_newCalls, g_mallocCalls};
}

TEST(MeterAllocations, TheCounterSeesAllocations)
{
    const Counted c = countAllocations([] {
        std::vector<double> v(100);
        v[0] = 1.0;
        QString s = QString::number(v[0]);
        s.append(QStringLiteral(" mV"));
    });
    EXPECT_GE(c.news, 1);
#ifdef KESTRUM_COUNT_MALLOC
    EXPECT_GE(c.mallocs, 2);
#endif
}

TEST(MeterAllocations, TenThousandSamplesThroughTheContextAllocateNothing)
{
    CMeasurementContext context;
    const float mv[5] = {177.0f, 0.0f, -178.0f};
    const float slope[5] = {-59.2f, -58.0f};
    const float offset[5] = {0.0f, 5.0f};
    const float temperature[5] = {25.0f, 25.0f, 25.0f};
    const float value[5] = {4.01f, 7.0f, 10.01f};
    context.LoadPhCalibration(mv, slope, offset, temperature, value, value, 3, -59.16f);
    const float iseMv[6] = {100.0f, 159.16f, 218.32f};
    const float conc[6] = {1.0f, 10.0f, 100.0f};
    const float iseSlope[6] = {59.16f, 59.16f};
    const float iseOffset[6] = {100.0f, 100.0f};
    context.LoadIseCalibration(iseMv, conc, iseSlope, iseOffset, temperature, QStringLiteral("Sodium (Na+)"), 3,
                               59.16f);
    context.ConfigurePh(0, 0.01f, 7.0);
    context.ConfigureIse(3, 1.0);
    context.ConfigureOrp(0.1f, 7.0);
    context.SetOrpOffset(-10.0);

    double checksum = 0.0;
    int stableSamples = 0;
    int outOfRange = 0;
    const Counted c = countAllocations([&] {
        for (int i = 0; i < 10000; ++i) {
            // Runs of 500 samples per kind; a slow wave with a settled
            // stretch, an excursion out of range, and a reset now and then.
            context.SetActiveKind((i / 500) % 4 == 3 ? -1 : (i / 500) % 3);
            const int phase = i % 500;
            double potential = phase < 250 ? 120.0 + (phase % 50) * 0.5 : 130.0;
            if (phase == 400)
                potential = 3000.0;
            context.SetRawMv(potential);
            context.SetTemperatuteDegreC(20.0 + (i % 7));
            context.UpdateMeasurement();
            checksum += context.GetMeasuredValue() + context.GetStableMv();
            checksum += context.Get_Mv_From_pH(static_cast<float>(phase % 14), 25.0f);
            stableSamples += context.IsStable() ? 1 : 0;
            outOfRange += context.IsOutOfRange() ? 1 : 0;
            if (phase == 450)
                context.ResetStability();
        }
    });
    EXPECT_EQ(c.news, 0);
    EXPECT_EQ(c.mallocs, 0);
    // The run did real work: readings settled and went out of range.
    EXPECT_GT(stableSamples, 1000);
    EXPECT_GT(outOfRange, 0);
    EXPECT_NE(checksum, 0.0);
}


TEST(MeterAllocations, CalibrationsAllocateNothing)
{
    CMeasurementContext context;
    context.SetActiveKind(CMeasurementContext::KindIse);
    context.SetIonName(QStringLiteral("Sodium (Na+)"));
    int points = 0;
    float averages = 0.0f;
    const Counted c = countAllocations([&] {
        for (int kind : {CMeasurementContext::KindPh, CMeasurementContext::KindIse, CMeasurementContext::KindRedox}) {
            context.SetActiveKind(kind);
            context.StartCalibration();
            const double potentials[3] = {177.0, 0.0, -178.0};
            for (int p = 0; p < 3; ++p) {
                for (int i = 0; i < 60; ++i) {
                    context.SetRawMv(potentials[p]);
                    context.SetTemperatuteDegreC(25.0);
                    context.UpdateMeasurement();
                    if (context.IsStable())
                        context.GetCalibrationValue(true);
                }
                float value = 0.0f;
                float mv = 0.0f;
                bool accepted = false;
                context.OverrideCalibrationPoint(value, mv, accepted);
                if (kind == CMeasurementContext::KindIse)
                    context.EditCalibrationValue(p == 0 ? 100.0 : (p == 1 ? 10.0 : 1.0));
                context.AcceptCalibrationPoint(false);
                context.StartNextPoint();
            }
            context.FinishCalibration();
            const CalibrationResult result = context.GetCalibrationResult();
            points += result.count;
            averages += result.averageSlope;
            context.LoadCalibration(result);
        }
    });
    EXPECT_EQ(c.news, 0);
    EXPECT_EQ(c.mallocs, 0);
    // pH three points, ISE three, redox one
    EXPECT_EQ(points, 7);
    EXPECT_NE(averages, 0.0f);
}
}

int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
